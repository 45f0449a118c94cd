#include "recorder.h"
#include "zelQtItemDelegate.h"

#include <QtTest>

#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTimer>

// With its slots and the index that a painting saw in reach.
class TestDelegate : public ZelQtItemDelegate
{
public:
    using ZelQtItemDelegate::drawDisplay;
    using ZelQtItemDelegate::emitCommitData;
    using ZelQtItemDelegate::emitCommitDataAndCloseEditor;
};

class WatchingDelegate : public ZelQtItemDelegate
{
public:
    mutable QModelIndex mSeen;

protected:
    void drawDisplay(QPainter *, const QStyleOptionViewItem &option, const QRect &,
                     const QString &) const override
    {
        mSeen = option.index;
    }
};

class tst_zelQtItemDelegate : public QObject
{
    Q_OBJECT

private slots:
    void shownTextIsTheModelsText();
    void paintingKnowsItsIndex();
    void hintIsThatOfQtUntilAMinimumIsSet();
    void minimumWidthOnlyWidens();
    void withoutRenderingTheTextIsDrawnAsQtDoes();
    void renderedTextStandsAtTheLeftWhateverTheAlignment();
    void renderedTagsAreNotShown();
    void textThatOnlyLooksLikeMarkupIsDrawnAsItStands();
    void renderedTextIsNotWrapped();
    void renderedDisabledTextIsGrey();
    void selectedRenderedCellHasItsBackground();
    void commitNeedsAWidgetAsSender();
    void commitAndCloseCommitsFirst();
    void partOfAnEditorClosesTheEditor();
    void senderWithoutWidgetClosesNothing();
};

static QStyleOptionViewItem optionFor(const QRect &rect)
{
    QStyleOptionViewItem option;
    option.rect = rect;
    option.font = QApplication::font();
    option.fontMetrics = QFontMetrics(option.font);
    option.palette = QApplication::palette();
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    return option;
}

static QImage painted(const TestDelegate &delegate, const QString &text,
                      QStyle::State state = QStyle::State_Enabled | QStyle::State_Active)
{
    QImage image(200, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QApplication::font());
    QStyleOptionViewItem option = optionFor(image.rect());
    option.state = state;
    option.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    delegate.drawDisplay(&painter, option, image.rect(), text);
    return image;
}

// The smallest rectangle that holds everything that isn't white.
static QRect inked(const QImage &image)
{
    QRect used;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != Qt::white)
                used |= QRect(x, y, 1, 1);
    return used;
}

static int darkest(const QImage &image)
{
    int value = 255;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            value = qMin(value, qGray(image.pixel(x, y)));
    return value;
}

void tst_zelQtItemDelegate::shownTextIsTheModelsText()
{
    const ZelQtItemDelegate delegate;
    QCOMPARE(delegate.renderDisplay("a <b>b</b>"), QStringLiteral("a <b>b</b>"));
}

void tst_zelQtItemDelegate::paintingKnowsItsIndex()
{
    QStandardItemModel model(3, 2);
    model.setData(model.index(2, 1), "text");
    QImage image(100, 20, QImage::Format_RGB32);
    QPainter painter(&image);
    const WatchingDelegate delegate;
    delegate.paint(&painter, optionFor(image.rect()), model.index(2, 1));
    QCOMPARE(delegate.mSeen, model.index(2, 1));
}

void tst_zelQtItemDelegate::hintIsThatOfQtUntilAMinimumIsSet()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), "text");
    const QStyleOptionViewItem option = optionFor(QRect());
    ZelQtItemDelegate delegate;
    const QSize hint = QItemDelegate().sizeHint(option, model.index(0, 0));
    QCOMPARE(delegate.sizeHint(option, model.index(0, 0)), hint);
    delegate.setMinWidth(0);
    QCOMPARE(delegate.sizeHint(option, model.index(0, 0)), hint);
}

void tst_zelQtItemDelegate::minimumWidthOnlyWidens()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), "text");
    const QStyleOptionViewItem option = optionFor(QRect());
    ZelQtItemDelegate delegate;
    const QSize hint = delegate.sizeHint(option, model.index(0, 0));
    delegate.setMinWidth(hint.width() + 100);
    QCOMPARE(delegate.sizeHint(option, model.index(0, 0)),
             QSize(hint.width() + 100, hint.height()));
    delegate.setMinWidth(1);
    QCOMPARE(delegate.sizeHint(option, model.index(0, 0)), hint);
}

void tst_zelQtItemDelegate::withoutRenderingTheTextIsDrawnAsQtDoes()
{
    const TestDelegate delegate;
    const QRect used = inked(painted(delegate, "text"));
    QVERIFY(!used.isEmpty());
    QVERIFY2(used.left() > 100, "the alignment at the right counts");
}

void tst_zelQtItemDelegate::renderedTextStandsAtTheLeftWhateverTheAlignment()
{
    TestDelegate delegate;
    delegate.initRendering();
    const QRect used = inked(painted(delegate, "text"));
    QVERIFY(!used.isEmpty());
    QVERIFY2(used.left() < 10, qPrintable(QString::number(used.left())));
    QVERIFY(used.top() > 5 && used.bottom() < 35); // in the middle of the height
}

void tst_zelQtItemDelegate::renderedTagsAreNotShown()
{
    TestDelegate delegate;
    delegate.initRendering();
    const int plain = inked(painted(delegate, "Fe")).width();
    const int tagged = inked(painted(delegate, "F<sub>e</sub>")).width();
    QVERIFY(tagged > 0);
    QVERIFY2(tagged <= plain + 2, qPrintable(QString::number(tagged)));
}

void tst_zelQtItemDelegate::textThatOnlyLooksLikeMarkupIsDrawnAsItStands()
{
    TestDelegate delegate;
    delegate.initRendering();
    const int part = inked(painted(delegate, "1")).width();
    QVERIFY(inked(painted(delegate, "1 < 2")).width() > 2 * part);
}

void tst_zelQtItemDelegate::renderedTextIsNotWrapped()
{
    TestDelegate delegate;
    delegate.initRendering();
    const int height = inked(painted(delegate, "<b>word</b>")).height();
    QCOMPARE(
        inked(painted(delegate, "<b>word word word word word word word word word</b>")).height(),
        height);
}

void tst_zelQtItemDelegate::renderedDisabledTextIsGrey()
{
    TestDelegate delegate;
    delegate.initRendering();
    const int enabled = darkest(painted(delegate, "text"));
    const int disabled = darkest(painted(delegate, "text", QStyle::State_None));
    QVERIFY2(disabled > enabled, "a disabled entry is drawn in the disabled colour");
}

void tst_zelQtItemDelegate::selectedRenderedCellHasItsBackground()
{
    TestDelegate delegate;
    delegate.initRendering();
    const QImage image = painted(
        delegate, "text", QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected);
    QCOMPARE(image.pixelColor(190, 20), QApplication::palette().color(QPalette::Highlight));
}

void tst_zelQtItemDelegate::commitNeedsAWidgetAsSender()
{
    TestDelegate delegate;
    EventRecorder recorder;
    recorder.record(&delegate, &QAbstractItemDelegate::commitData, "commit");
    recorder.record(&delegate, &QAbstractItemDelegate::closeEditor, "close");
    delegate.emitCommitData(); // no sender
    QCOMPARE(recorder.take(), QStringList());

    QLineEdit editor;
    connect(&editor, &QLineEdit::textChanged, &delegate, &TestDelegate::emitCommitData);
    editor.setText("a");
    QCOMPARE(recorder.take(), QStringList({"commit"}));

    QObject bare;
    connect(&bare, &QObject::objectNameChanged, &delegate, &TestDelegate::emitCommitData);
    bare.setObjectName("bare");
    QCOMPARE(recorder.take(), QStringList());
}

void tst_zelQtItemDelegate::commitAndCloseCommitsFirst()
{
    TestDelegate delegate;
    EventRecorder recorder;
    recorder.record(&delegate, &QAbstractItemDelegate::commitData, "commit");
    recorder.record(&delegate, &QAbstractItemDelegate::closeEditor, "close");
    QLineEdit editor;
    connect(&editor, &QLineEdit::textChanged, &delegate,
            &TestDelegate::emitCommitDataAndCloseEditor);
    editor.setText("a");
    QCOMPARE(recorder.take(), QStringList({"commit", "close"}));
}

void tst_zelQtItemDelegate::partOfAnEditorClosesTheEditor()
{
    TestDelegate delegate;
    QSignalSpy committed(&delegate, &QAbstractItemDelegate::commitData);
    QVector<QAbstractItemDelegate::EndEditHint> hints;
    QWidget *closed = nullptr;
    connect(&delegate, &QAbstractItemDelegate::closeEditor, &delegate,
            [&](QWidget *widget, QAbstractItemDelegate::EndEditHint hint) {
                closed = widget;
                hints.append(hint);
            });
    QWidget editor;
    QObject part(&editor);
    connect(&part, &QObject::objectNameChanged, &delegate,
            &TestDelegate::emitCommitDataAndCloseEditor);
    part.setObjectName("part");
    QCOMPARE(committed.size(), 1);
    QCOMPARE(committed[0][0].value<QWidget *>(), &editor);
    QCOMPARE(closed, &editor);
    QCOMPARE(hints.size(), 1);
    QCOMPARE(hints[0], QAbstractItemDelegate::NoHint);
}

void tst_zelQtItemDelegate::senderWithoutWidgetClosesNothing()
{
    TestDelegate delegate;
    QSignalSpy committed(&delegate, &QAbstractItemDelegate::commitData);
    QObject bare;
    connect(&bare, &QObject::objectNameChanged, &delegate,
            &TestDelegate::emitCommitDataAndCloseEditor);
    bare.setObjectName("bare");
    delegate.emitCommitDataAndCloseEditor();
    QCOMPARE(committed.size(), 0);
}

QTEST_MAIN(tst_zelQtItemDelegate)
#include "tst_zelQtItemDelegate.moc"
