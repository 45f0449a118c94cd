#include "zelQtAdvancedLabel.h"

#include "meta.h"
#include "zelDomNode.h"
#include "zelUIVarKinds.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QTimer>
#include <QtTest>

Q_DECLARE_METATYPE(ZelUIAlignment)

namespace {

class PressCounter : public QWidget
{
public:
    int mPresses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++mPresses; }
};

const QString longText = QStringLiteral("Anfang des langen Textes und hier sein Ende");

} // namespace

class tst_zelQtAdvancedLabel : public QObject
{
    Q_OBJECT

private slots:
    void modelAlignmentBecomesQtAlignment_data();
    void modelAlignmentBecomesQtAlignment();
    void textOfTheConstructorIsTheStatusTipToo();
    void setTextSetsTheStatusTip();
    void setTextThroughQLabelLeavesTheStatusTipOnPurpose();
    void preferedWidthReplacesThatOfTheText();
    void preferedWidthOfZeroCountsAsNone();
    void canBeSqueezedToThreeDots();
    void adjustHeightFixesTheStandardHeight();
    void setupNamesTheWidget_data();
    void setupNamesTheWidget();
    void setupLeavesTheTextToRetranslate();
    void setupByATextVariableNamesTheComponent();
    void textVariableShowsItsText();
    void retranslateSetsTextAndStatusTip();
    void modelHidesButNeverDisables();
    void pressNeverReachesTheDialogOnPurpose();
    void shortMoveStartsNoDrag();
    void longMoveDragsTheName();
    void otherButtonDragsNothing();
};

void tst_zelQtAdvancedLabel::modelAlignmentBecomesQtAlignment_data()
{
    QTest::addColumn<ZelUIAlignment>("model");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("0: that of QLabel") << ZelUIAlignment::Left << QLabel().alignment();
    QTest::newRow("1: right") << ZelUIAlignment::Right
                              << Qt::Alignment(Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("2: centre") << ZelUIAlignment::Center
                               << Qt::Alignment(Qt::AlignHCenter | Qt::AlignBottom);
    QTest::newRow("any other") << static_cast<ZelUIAlignment>(7) << QLabel().alignment();
}

void tst_zelQtAdvancedLabel::modelAlignmentBecomesQtAlignment()
{
    QFETCH(ZelUIAlignment, model);
    const ZelQtAdvancedLabel label(model);
    QTEST(label.alignment(), "alignment");
    QCOMPARE(label.getAlignment(), model);
}

void tst_zelQtAdvancedLabel::textOfTheConstructorIsTheStatusTipToo()
{
    const ZelQtAdvancedLabel label(QStringLiteral("Achsabstand"));
    QCOMPARE(label.text(), QStringLiteral("Achsabstand"));
    QCOMPARE(label.statusTip(), QStringLiteral("Achsabstand"));
    QCOMPARE(label.getAlignment(), ZelUIAlignment::Left);
    QCOMPARE(ZelQtAdvancedLabel().getAlignment(), ZelUIAlignment::Left);
}

void tst_zelQtAdvancedLabel::setTextSetsTheStatusTip()
{
    ZelQtAdvancedLabel label;
    label.setText(QStringLiteral("a<sub>w</sub>"));
    QCOMPARE(label.text(), QStringLiteral("a<sub>w</sub>"));
    QCOMPARE(label.statusTip(), QStringLiteral("a<sub>w</sub>"));
}

void tst_zelQtAdvancedLabel::setTextThroughQLabelLeavesTheStatusTipOnPurpose()
{
    ZelQtAdvancedLabel label(QStringLiteral("alt"));
    static_cast<QLabel &>(label).setText(QStringLiteral("neu"));
    QCOMPARE(label.text(), QStringLiteral("neu"));
    QCOMPARE(label.statusTip(), QStringLiteral("alt"));
}

void tst_zelQtAdvancedLabel::preferedWidthReplacesThatOfTheText()
{
    ZelQtAdvancedLabel label(longText);
    const int height = label.sizeHint().height();
    label.setPreferedWidth(37);
    QCOMPARE(label.sizeHint(), QSize(37, height));
}

void tst_zelQtAdvancedLabel::preferedWidthOfZeroCountsAsNone()
{
    ZelQtAdvancedLabel label(longText);
    const QSize hint = label.ZelQtLabel::sizeHint();
    QCOMPARE(label.sizeHint(), hint);
    label.setPreferedWidth(37);
    label.setPreferedWidth(0);
    QCOMPARE(label.sizeHint(), hint);
}

void tst_zelQtAdvancedLabel::canBeSqueezedToThreeDots()
{
    const ZelQtAdvancedLabel label(longText);
    QCOMPARE(label.minimumSizeHint().width(),
             label.fontMetrics().horizontalAdvance(QStringLiteral("...")));
    QCOMPARE(label.minimumSizeHint().height(), label.QLabel::minimumSizeHint().height());
}

void tst_zelQtAdvancedLabel::adjustHeightFixesTheStandardHeight()
{
    ZelQtAdvancedLabel label(longText);
    label.adjustHeight();
    QCOMPARE(label.minimumHeight(), label.sizeHint().height());
    QCOMPARE(label.maximumHeight(), label.sizeHint().height());
}

void tst_zelQtAdvancedLabel::setupNamesTheWidget_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("attributes") << 0;
    QTest::newRow("variable") << 1;
    QTest::newRow("node") << 2;
}

void tst_zelQtAdvancedLabel::setupNamesTheWidget()
{
    QFETCH(int, form);
    ZelUIVarBool variable(L"d");
    AttrMap attributes;
    attributes[L"name"] = L"d";
    ZelDomNode node(L"text");
    node.setAttribute(L"name", L"d");
    ZelQtAdvancedLabel label;
    if (form == 0)
        label.setup(static_cast<const AttrMap &>(attributes));
    else if (form == 1)
        label.setup(&variable, attributes);
    else
        label.setup(&node);
    QCOMPARE(label.objectName(), QStringLiteral("d_label"));
    QCOMPARE(label.whatsThis(), QStringLiteral("d"));
}

void tst_zelQtAdvancedLabel::setupLeavesTheTextToRetranslate()
{
    ZelUIVarBool variable(L"d");
    variable.mText.setText(L"Durchmesser");
    AttrMap attributes;
    ZelQtAdvancedLabel label;
    label.setup(static_cast<ZelUIVar *>(&variable), attributes);
    QCOMPARE(label.text(), QString());
    label.retranslate();
    QCOMPARE(label.text(), QStringLiteral("Durchmesser"));
}

void tst_zelQtAdvancedLabel::setupByATextVariableNamesTheComponent()
{
    ZelUIVarText variable(L"note");
    AttrMap attributes;
    ZelQtAdvancedLabel label;
    label.setup(&variable, attributes, 1);
    QCOMPARE(label.objectName(), QStringLiteral("note_2"));
    QCOMPARE(label.whatsThis(), QStringLiteral("note"));
}

void tst_zelQtAdvancedLabel::textVariableShowsItsText()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarText>(L"note");
    meta.setText(*variable, 3, L"nicht dauerfest", ZelOrigin::Module);
    AttrMap attributes;
    ZelQtAdvancedLabel label;
    label.setup(variable, attributes, 0);
    label.setData(&meta, 3);
    QCOMPARE(label.text(), QStringLiteral("nicht dauerfest"));
    QCOMPARE(label.statusTip(), QStringLiteral("nicht dauerfest"));
}

void tst_zelQtAdvancedLabel::retranslateSetsTextAndStatusTip()
{
    ZelQtAdvancedLabel label(QStringLiteral("alt"));
    ZelUITextHandler text;
    text.setText(L"Kraft F<sub>1</sub>");
    label.setModelText(text);
    label.retranslate();
    QCOMPARE(label.text(), QStringLiteral("Kraft F<sub>1</sub>"));
    QCOMPARE(label.statusTip(), QStringLiteral("Kraft F<sub>1</sub>"));
}

void tst_zelQtAdvancedLabel::modelHidesButNeverDisables()
{
    QWidget window;
    ZelUIObject line;
    ZelQtAdvancedLabel label(longText, &window);
    label.setModelParent(&line);
    Meta meta;
    line.mEnabled = false;
    label.updateState(&meta, 0);
    QVERIFY(!label.mEnabled);
    QVERIFY(label.isEnabled());
    QVERIFY(!label.isHidden());
    line.mVisible = false;
    label.updateState(&meta, 0);
    QVERIFY(label.isHidden());
    line.mVisible = true;
    label.updateState(&meta, 0);
    QVERIFY(!label.isHidden());
}

void tst_zelQtAdvancedLabel::pressNeverReachesTheDialogOnPurpose()
{
    PressCounter window;
    auto *plain = new ZelQtLabel(longText, &window);
    auto *label = new ZelQtAdvancedLabel(longText, &window);
    label->move(0, 100);
    window.show();
    QTest::mouseClick(plain, Qt::LeftButton);
    QCOMPARE(window.mPresses, 1);
    QTest::mouseClick(label, Qt::LeftButton);
    QTest::mouseClick(label, Qt::RightButton);
    QCOMPARE(window.mPresses, 1);
}

namespace {

// Presses at `from`, moves to `to` with `button` held and yields what was dragged; a null text when
// no drag began. Some platforms run the drag in an event loop, where it is cancelled; others come
// back at once and leave the drag to be deleted later.
QString draggedText(ZelQtAdvancedLabel &label, const QPoint &from, const QPoint &to,
                    Qt::MouseButton button)
{
    QString text;
    const auto look = [&label, &text] {
        if (const auto *drag = label.findChild<QDrag *>())
            text = QStringLiteral("drag:")
                + QString::fromLocal8Bit(drag->mimeData()->data(QStringLiteral("text/plain")));
    };
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&look] {
        look();
        QDrag::cancel();
    });
    watch.start(1);
    QTest::mousePress(&label, button, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, label.mapToGlobal(to), Qt::NoButton, button,
                     Qt::NoModifier);
    QApplication::sendEvent(&label, &move);
    look();
    QTest::mouseRelease(&label, button, Qt::NoModifier, to);
    return text;
}

} // namespace

void tst_zelQtAdvancedLabel::shortMoveStartsNoDrag()
{
    ZelQtAdvancedLabel label(longText);
    label.setModelName(L"d");
    label.show();
    const QPoint from(5, 5);
    // Along both axes: the sum of both ways counts.
    const QPoint to = from + QPoint(QApplication::startDragDistance() - 3, 2);
    QCOMPARE((to - from).manhattanLength(), QApplication::startDragDistance() - 1);
    QVERIFY(draggedText(label, from, to, Qt::LeftButton).isNull());
}

void tst_zelQtAdvancedLabel::longMoveDragsTheName()
{
    ZelQtAdvancedLabel label(longText);
    label.setModelName(L"d_w1");
    label.show();
    const QPoint from(5, 5);
    const QPoint to = from + QPoint(QApplication::startDragDistance() - 2, 2);
    QCOMPARE(draggedText(label, from, to, Qt::LeftButton), QStringLiteral("drag:d_w1"));
}

void tst_zelQtAdvancedLabel::otherButtonDragsNothing()
{
    ZelQtAdvancedLabel label(longText);
    label.setModelName(L"d");
    label.show();
    const QPoint to = QPoint(5, 5) + QPoint(2 * QApplication::startDragDistance(), 0);
    QVERIFY(draggedText(label, QPoint(5, 5), to, Qt::RightButton).isNull());
}

QTEST_MAIN(tst_zelQtAdvancedLabel)
#include "tst_zelQtAdvancedLabel.moc"
