#include "zelFormulaText.h"

#include <QtTest>

class tst_zelFormulaText : public QObject
{
    Q_OBJECT

private slots:
    void turnsSymbolsIntoRichText_data();
    void turnsSymbolsIntoRichText();
};

void tst_zelFormulaText::turnsSymbolsIntoRichText_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("rich");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("plain") << "C"
                           << "C";
    QTest::newRow("lowered letter") << "C_u"
                                    << "C<sub>u</sub>";
    QTest::newRow("Greek and lowered") << "tau_k2"
                                       << "τ<sub>k2</sub>";
    QTest::newRow("lowered from digits on") << "L_10h"
                                            << "L<sub>10h</sub>";
    QTest::newRow("Greek lowered") << "epsilon_alpha"
                                   << "ε<sub>α</sub>";
    QTest::newRow("capital Greek") << "Delta"
                                   << "Δ";
    QTest::newRow("Greek letter with number") << "alpha1"
                                              << "α1";
    QTest::newRow("Greek with a lowered number") << "sigma_H0"
                                                 << "σ<sub>H0</sub>";
    QTest::newRow("raised") << "x^2"
                            << "x<sup>2</sup>";
    QTest::newRow("raised with a sign") << "10^-3"
                                        << "10<sup>-3</sup>";
    QTest::newRow("lowered and raised") << "d_m^2"
                                        << "d<sub>m</sub><sup>2</sup>";
    QTest::newRow("lowered twice") << "S_H_min"
                                   << "S<sub>H</sub><sub>min</sub>";
    QTest::newRow("group") << "F_{t,max}"
                           << "F<sub>t,max</sub>";
    QTest::newRow("Greek in a group") << "K_{H,beta}"
                                      << "K<sub>H,β</sub>";
    QTest::newRow("letter written as such") << "K_Hβ"
                                            << "K<sub>Hβ</sub>";
    QTest::newRow("several tokens") << "F_1/F_2"
                                    << "F<sub>1</sub>/F<sub>2</sub>";
    QTest::newRow("a name inside a word is none") << "beta2eta"
                                                  << "β2η";
    QTest::newRow("a longer word") << "betax"
                                   << "betax";
    QTest::newRow("prime stays") << "alpha_t'"
                                 << "α<sub>t</sub>'";
    QTest::newRow("mark at the end") << "C_"
                                     << "C_";
    QTest::newRow("mark before a blank") << "C_ u"
                                         << "C_ u";
    QTest::newRow("mark alone") << "^"
                                << "^";
    QTest::newRow("two marks") << "a__b"
                               << "a_<sub>b</sub>";
    QTest::newRow("group that does not end") << "F_{t"
                                             << "F_{t";
    QTest::newRow("empty group") << "F_{}"
                                 << "F_{}";
    QTest::newRow("braces alone") << "{a}"
                                  << "{a}";
    QTest::newRow("markup") << "<b>a</b>&\""
                            << "&lt;b&gt;a&lt;/b&gt;&amp;&quot;";
    QTest::newRow("markup in a group") << "a_{<&}"
                                       << "a<sub>&lt;&amp;</sub>";
}

void tst_zelFormulaText::turnsSymbolsIntoRichText()
{
    QFETCH(QString, source);
    QTEST(QString::fromStdWString(zelFormulaText(zelWString(source.toStdWString()))), "rich");
}

QTEST_APPLESS_MAIN(tst_zelFormulaText)
#include "tst_zelFormulaText.moc"
