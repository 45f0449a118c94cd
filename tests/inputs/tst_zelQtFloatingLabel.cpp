#include "zelQtFloatingLabel.h"

#include "window.h"
#include "zelQtFloatingLabelPlace_p.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QtTest>

#include <algorithm>

namespace {

// Counts the events that reach it in spite of the filter.
class Receiver : public QObject
{
public:
    bool event(QEvent *event) override
    {
        mTypes.append(event->type());
        return true;
    }
    QList<QEvent::Type> mTypes;
};

} // namespace

// The label hides with many events of the whole application, so the tests look at it before the
// event loop turns.
class tst_zelQtFloatingLabel : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void placing_data();
    void placing();
    void showsTheText();
    void emptyTextHidesAVisibleLabel();
    void emptyTextOnAHiddenLabelShowsNothing();
    void hides();
    void staysOnTheScreenInTheLowerRightCorner();
    void withoutWidgetItStandsOnThePrimaryScreen();
    void thereIsOneForTheProcess();
    void looksLikeAToolTip();
    void eventsHideItAndArePassedOn_data();
    void eventsHideItAndArePassedOn();
    void aClickStillReachesItsWidget();
    void keysDoNotHideIt();

private:
    static QLabel *label();
    static QRect place();
};

QLabel *tst_zelQtFloatingLabel::label()
{
    QLabel *found = nullptr;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("zelQtFloatingLabel"))
            found = qobject_cast<QLabel *>(widget);
    }
    return found;
}

// By its position: the platform without a screen puts a frame round every window.
QRect tst_zelQtFloatingLabel::place()
{
    return {label()->pos(), label()->size()};
}

void tst_zelQtFloatingLabel::cleanup()
{
    zelQtFloatingLabel::hideFloatingLabel();
}

void tst_zelQtFloatingLabel::placing_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("place");

    const QRect first(0, 0, 1000, 800);
    const QSize size(100, 20);
    QTest::newRow("below and right of the position")
        << first << QPoint(500, 400) << size << QPoint(502, 416);
    QTest::newRow("just fits to the right")
        << first << QPoint(898, 400) << size << QPoint(900, 416);
    QTest::newRow("one pixel too far right")
        << first << QPoint(899, 400) << size << QPoint(899 + 2 - 104, 416);
    QTest::newRow("just fits below") << first << QPoint(500, 764) << size << QPoint(502, 780);
    QTest::newRow("one pixel too low")
        << first << QPoint(500, 765) << size << QPoint(502, 765 + 16 - 44);
    QTest::newRow("lower right corner")
        << first << QPoint(999, 799) << size << QPoint(999 + 2 - 104, 799 + 16 - 44);
    QTest::newRow("above the screen") << first << QPoint(500, -100) << size << QPoint(502, 0);
    QTest::newRow("left of the screen") << first << QPoint(-50, 400) << size << QPoint(0, 416);
    QTest::newRow("far right of the screen")
        << first << QPoint(1500, 400) << size << QPoint(900, 416);
    QTest::newRow("far below the screen") << first << QPoint(500, 1500) << size << QPoint(502, 780);
    QTest::newRow("wider than the screen: left edge shows")
        << first << QPoint(500, 400) << QSize(1200, 20) << QPoint(0, 416);
    QTest::newRow("higher than the screen: lower edge shows")
        << first << QPoint(500, 400) << QSize(100, 900) << QPoint(502, -100);

    const QRect second(-1000, 200, 1000, 800);
    QTest::newRow("left neighbour") << second << QPoint(-500, 600) << size << QPoint(-498, 616);
    QTest::newRow("right edge of the left neighbour")
        << second << QPoint(-1, 600) << size << QPoint(-1 + 2 - 104, 616);
    QTest::newRow("above the left neighbour")
        << second << QPoint(-500, 0) << size << QPoint(-498, 200);
    QTest::newRow("left of the left neighbour")
        << second << QPoint(-1200, 600) << size << QPoint(-1000, 616);
}

void tst_zelQtFloatingLabel::placing()
{
    QFETCH(QRect, screen);
    QFETCH(QPoint, pos);
    QFETCH(QSize, size);
    QTEST(floatingLabelPlace(pos, size, screen), "place");
}

void tst_zelQtFloatingLabel::showsTheText()
{
    QVERIFY(!zelQtFloatingLabel::isActive());
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("12,5 mm"), nullptr);
    QVERIFY(zelQtFloatingLabel::isActive());
    QVERIFY(label()->isVisible());
    QCOMPARE(label()->text(), QStringLiteral("12,5 mm"));
    QVERIFY(label()->wordWrap());
    QCOMPARE(label()->pos(), QPoint(102, 116));
    QCOMPARE(label()->size(), label()->sizeHint() + QSize(1, 0));
}

void tst_zelQtFloatingLabel::emptyTextHidesAVisibleLabel()
{
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("a"), nullptr);
    QVERIFY(zelQtFloatingLabel::isActive());
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QString(), nullptr);
    QVERIFY(!zelQtFloatingLabel::isActive());
}

void tst_zelQtFloatingLabel::emptyTextOnAHiddenLabelShowsNothing()
{
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QString(), nullptr);
    QVERIFY(!zelQtFloatingLabel::isActive());
}

void tst_zelQtFloatingLabel::hides()
{
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("a"), nullptr);
    QVERIFY(zelQtFloatingLabel::isActive());
    zelQtFloatingLabel::hideFloatingLabel();
    QVERIFY(!zelQtFloatingLabel::isActive());
}

void tst_zelQtFloatingLabel::staysOnTheScreenInTheLowerRightCorner()
{
    QWidget window;
    const QRect screen = window.screen()->geometry();
    zelQtFloatingLabel::showFloatingLabel(screen.bottomRight(), QStringLiteral("F = 1250 N"),
                                          &window);
    QVERIFY(zelQtFloatingLabel::isActive());
    QVERIFY2(screen.contains(place()), "part of the label lies outside");
    QVERIFY(!place().contains(screen.bottomRight()));
}

void tst_zelQtFloatingLabel::withoutWidgetItStandsOnThePrimaryScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    zelQtFloatingLabel::showFloatingLabel(screen.bottomRight() + QPoint(5000, 5000),
                                          QStringLiteral("a"), nullptr);
    QVERIFY(screen.contains(place()));
}

void tst_zelQtFloatingLabel::thereIsOneForTheProcess()
{
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("a"), nullptr);
    QLabel *first = label();
    zelQtFloatingLabel::hideFloatingLabel();
    zelQtFloatingLabel::showFloatingLabel(QPoint(200, 100), QStringLiteral("b"), nullptr);
    const QWidgetList widgets = QApplication::allWidgets();
    const auto count = std::count_if(widgets.begin(), widgets.end(), [](QWidget *widget) {
        return widget->inherits("zelQtFloatingLabel");
    });
    QCOMPARE(count, 1);
    QCOMPARE(label(), first);
}

void tst_zelQtFloatingLabel::looksLikeAToolTip()
{
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("a"), nullptr);
    const QLabel *shown = label();
    const QStyle *style = shown->style();
    QCOMPARE(shown->parentWidget(), nullptr);
    QCOMPARE(shown->windowFlags() & Qt::WindowType_Mask, Qt::ToolTip);
    QVERIFY(shown->windowFlags() & Qt::BypassGraphicsProxyWidget);
    QCOMPARE(shown->foregroundRole(), QPalette::ToolTipText);
    QCOMPARE(shown->backgroundRole(), QPalette::ToolTipBase);
    QCOMPARE(shown->margin(), 1 + style->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth));
    QCOMPARE(shown->frameStyle(), int(QFrame::NoFrame));
    QCOMPARE(shown->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(shown->indent(), 1);
    const int opacity = style->styleHint(QStyle::SH_ToolTipLabel_Opacity, nullptr, shown);
    QVERIFY(qAbs(shown->windowOpacity() - opacity / 255.0) < 0.005);
}

void tst_zelQtFloatingLabel::eventsHideItAndArePassedOn_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("press") << int(QEvent::MouseButtonPress);
    QTest::newRow("release") << int(QEvent::MouseButtonRelease);
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick);
    QTest::newRow("focus in") << int(QEvent::FocusIn);
    QTest::newRow("focus out") << int(QEvent::FocusOut);
    QTest::newRow("leave") << int(QEvent::Leave);
    QTest::newRow("close") << int(QEvent::Close);
    QTest::newRow("window activate") << int(QEvent::WindowActivate);
    QTest::newRow("window deactivate") << int(QEvent::WindowDeactivate);
    QTest::newRow("wheel") << int(QEvent::Wheel);
}

void tst_zelQtFloatingLabel::eventsHideItAndArePassedOn()
{
    QFETCH(int, type);
    // A plain object gets the event: the filter looks at its type alone, whoever receives it.
    Receiver receiver;
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("a"), nullptr);
    QVERIFY(zelQtFloatingLabel::isActive());
    QEvent event(static_cast<QEvent::Type>(type));
    QCoreApplication::sendEvent(&receiver, &event);
    QVERIFY(!zelQtFloatingLabel::isActive());
    QCOMPARE(receiver.mTypes, QList<QEvent::Type>({event.type()}));
}

void tst_zelQtFloatingLabel::aClickStillReachesItsWidget()
{
    QWidget window;
    auto *button = new QPushButton(&window);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QVERIFY(showAndActivate(&window));
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("a"), nullptr);
    QVERIFY(zelQtFloatingLabel::isActive());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!zelQtFloatingLabel::isActive());
    QCOMPARE(clicked.count(), 1);
}

void tst_zelQtFloatingLabel::keysDoNotHideIt()
{
    QWidget window;
    auto *field = new QLineEdit(&window);
    QVERIFY(showAndActivate(&window));
    QVERIFY(focus(field));
    zelQtFloatingLabel::showFloatingLabel(QPoint(100, 100), QStringLiteral("a"), nullptr);
    QTest::keyClicks(field, QStringLiteral("12"));
    QCOMPARE(field->text(), QStringLiteral("12"));
    QVERIFY(zelQtFloatingLabel::isActive());
}

QTEST_MAIN(tst_zelQtFloatingLabel)
#include "tst_zelQtFloatingLabel.moc"
