#include "zelQtFormulaLabel.h"

#include "meta.h"
#include "modal.h"
#include "zelQtFormelanzeige.h"
#include "zelUIMultiVar.h"

#include <QContextMenuEvent>
#include <QLayout>
#include <QtTest>

namespace {

class Page : public QWidget
{
public:
    int mContextMenus = 0;

protected:
    void contextMenuEvent(QContextMenuEvent *) override { ++mContextMenus; }
};

void rightClick(QWidget *widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
{
    QContextMenuEvent event(reason, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(widget, &event);
}

const QString symbol = QStringLiteral("τ<sub>k2</sub>");

} // namespace

class tst_zelQtFormulaLabel : public QObject
{
    Q_OBJECT

private slots:
    void textOfTheConstructor();
    void hasStandardHeightButNoReserve();
    void setupShowsTheSymbol();
    void setDataShowsTheSymbolAgain();
    void formulaWidthIsThatOfTheModelsSymbol();
    void modelHidesButNeverDisables();
    void rightClickShowsTheSymbolEnlarged();
    void popupGrowsAFontInPixelsToo();
    void popupTakesTheSizeOfTheSymbol();
    void acceptHidesThePopup();
    void keyboardShowsNoPopup();
    void parentReceivesTheEventTooOnPurpose();
    void labelMayGoWhileThePopupIsOpen();
};

void tst_zelQtFormulaLabel::textOfTheConstructor()
{
    const ZelQtFormulaLabel label(symbol);
    QCOMPARE(label.text(), symbol);
    QCOMPARE(ZelQtFormulaLabel().text(), QString());
    QCOMPARE(label.textFormat(), Qt::RichText);
}

void tst_zelQtFormulaLabel::hasStandardHeightButNoReserve()
{
    const ZelQtFormulaLabel label(symbol);
    QCOMPARE(label.sizeHint().width(), label.QLabel::sizeHint().width());
    QCOMPARE(label.sizeHint().height(), label.ZelQtLabel::sizeHint().height());
    QVERIFY(label.sizeHint().width() != label.ZelQtLabel::sizeHint().width());
}

void tst_zelQtFormulaLabel::setupShowsTheSymbol()
{
    ZelUIMultiVar variable(L"tau_k2");
    variable.mFormula = symbol.toStdWString();
    AttrMap attributes;
    ZelQtFormulaLabel label;
    label.setup(&variable, attributes);
    QCOMPARE(label.text(), symbol);
    QCOMPARE(label.objectName(), QStringLiteral("tau_k2_formula"));
    QCOMPARE(label.whatsThis(), QStringLiteral("tau_k2"));
}

void tst_zelQtFormulaLabel::setDataShowsTheSymbolAgain()
{
    Meta meta;
    ZelQtFormulaLabel label(QStringLiteral("alt"));
    label.setModelFormula(symbol.toStdWString());
    label.setData(&meta, 0);
    QCOMPARE(label.text(), symbol);
}

void tst_zelQtFormulaLabel::formulaWidthIsThatOfTheModelsSymbol()
{
    ZelQtFormulaLabel label(QStringLiteral("ein langer Text"));
    QCOMPARE(label.formulaWidth(), 0);
    label.setModelFormula(L"x<sub>12</sub>&nbsp;");
    QCOMPARE(label.formulaWidth(), label.fontMetrics().horizontalAdvance(QStringLiteral("x12__")));
}

void tst_zelQtFormulaLabel::modelHidesButNeverDisables()
{
    QWidget window;
    ZelUIObject line;
    ZelQtFormulaLabel label(symbol, &window);
    label.setModelParent(&line);
    Meta meta;
    line.mEnabled = false;
    line.mVisible = false;
    label.updateState(&meta, 0);
    QVERIFY(label.isHidden());
    QVERIFY(label.isEnabled());
    line.mVisible = true;
    label.updateState(&meta, 0);
    QVERIFY(!label.isHidden());
}

void tst_zelQtFormulaLabel::rightClickShowsTheSymbolEnlarged()
{
    ZelQtFormulaLabel label(symbol);
    label.show();
    QString text;
    qreal pointSize = 0;
    const auto popup = onPopup<ZelQtFormelanzeige>([&](QMenu *menu) {
        const auto *formula = menu->findChild<ZelQtLabel *>();
        text = formula->text();
        pointSize = formula->font().pointSizeF();
    });
    rightClick(&label);
    QVERIFY(popup.ran());
    QCOMPARE(text, symbol);
    QCOMPARE(pointSize, 2 * label.font().pointSizeF());
    QVERIFY(!label.findChild<ZelQtFormelanzeige *>());
}

void tst_zelQtFormulaLabel::popupGrowsAFontInPixelsToo()
{
    ZelQtFormulaLabel label(symbol);
    QFont font = label.font();
    font.setPixelSize(13);
    label.setFont(font);
    const ZelQtFormelanzeige popup(&label);
    QCOMPARE(popup.findChild<ZelQtLabel *>()->font().pixelSize(), 26);
}

void tst_zelQtFormulaLabel::popupTakesTheSizeOfTheSymbol()
{
    ZelQtFormulaLabel label(symbol);
    const ZelQtFormelanzeige popup(&label);
    QCOMPARE(popup.parentWidget(), &label);
    QCOMPARE(popup.layout()->sizeConstraint(), QLayout::SetFixedSize);
    const QSize shown = popup.findChild<ZelQtLabel *>()->sizeHint();
    QVERIFY(popup.layout()->sizeHint().width() >= shown.width());
    QVERIFY(popup.layout()->sizeHint().height() >= shown.height());
}

void tst_zelQtFormulaLabel::acceptHidesThePopup()
{
    ZelQtFormulaLabel label(symbol);
    label.show();
    bool wasVisible = false;
    bool isVisible = true;
    const auto popup = onPopup<ZelQtFormelanzeige>([&](ZelQtFormelanzeige *menu) {
        wasVisible = menu->isVisible();
        menu->accept();
        isVisible = menu->isVisible();
    });
    rightClick(&label);
    QVERIFY(popup.ran());
    QVERIFY(wasVisible);
    QVERIFY(!isVisible);
}

void tst_zelQtFormulaLabel::keyboardShowsNoPopup()
{
    ZelQtFormulaLabel label(symbol);
    label.show();
    const auto popup = onPopup<QWidget>([](QWidget *) {});
    rightClick(&label, QContextMenuEvent::Keyboard);
    QVERIFY(!popup.ran());
}

void tst_zelQtFormulaLabel::parentReceivesTheEventTooOnPurpose()
{
    Page page;
    ZelQtFormulaLabel label(symbol, &page);
    page.show();
    const auto popup = onPopup<ZelQtFormelanzeige>([](QWidget *) {});
    rightClick(&label, QContextMenuEvent::Keyboard);
    QCOMPARE(page.mContextMenus, 1);
    rightClick(&label, QContextMenuEvent::Mouse);
    QVERIFY(popup.ran());
    QCOMPARE(page.mContextMenus, 2);
}

void tst_zelQtFormulaLabel::labelMayGoWhileThePopupIsOpen()
{
    Page page;
    QPointer<ZelQtFormulaLabel> label(new ZelQtFormulaLabel(symbol, &page));
    page.show();
    const auto popup = onPopup<ZelQtFormelanzeige>([&](QWidget *) { delete label.data(); });
    rightClick(label);
    QVERIFY(popup.ran());
    QVERIFY(!label);
    QCOMPARE(page.mContextMenus, 0);
}

QTEST_MAIN(tst_zelQtFormulaLabel)
#include "tst_zelQtFormulaLabel.moc"
