#pragma once

#include "internMessage.h"
#include "modal.h"
#include "openLine.h"
#include "window.h"
#include "zelQtFormeleingabe.h"
#include "zelQtWinkeleingabe.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

/// A page with a line of fields and a neighbour that takes the focus away. The recorder of the page
/// holds the signals of both: "host valueChanged", "inputValueChanged" and so on.
template <class Line> class LineOnPage
{
public:
    LineOnPage()
        : mLine(new OpenLine<Line>(&mPage))
        , mNeighbour(new QLineEdit(&mPage))
    {
        auto *layout = new QVBoxLayout(&mPage);
        layout->addWidget(mLine);
        layout->addWidget(mNeighbour);
        using Base = ZelQtCalcVarInput;
        EventRecorder &recorder = mPage.mRecorder;
        recorder.record(mLine, &Base::inputValueChanged, QStringLiteral("inputValueChanged"));
        recorder.record(mLine, &Base::inputValueConfirmed, QStringLiteral("inputValueConfirmed"));
        recorder.record(mLine, &Line::editingFinished, QStringLiteral("editingFinished"));
    }

    ZelQtValueEdit *field(int index) const { return mLine->fields().at(index); }
    /// Shows the page and gives a field the focus, its whole text selected.
    [[nodiscard]] bool enter(int index)
    {
        const bool entered = showAndActivate(&mPage) && focus(field(index));
        field(index)->selectAll();
        return entered;
    }
    [[nodiscard]] bool leave() { return focus(mNeighbour); }
    /// Signals since the last call.
    QStringList take() { return mPage.take(); }

    RecordedPage mPage;
    OpenLine<Line> *mLine;
    QLineEdit *mNeighbour;
};

inline const QStringList lineChanged{QStringLiteral("host valueChanged"),
                                     QStringLiteral("inputValueChanged")};
inline const QStringList lineConfirmed{QStringLiteral("host valueConfirmed"),
                                       QStringLiteral("inputValueConfirmed")};
inline const QStringList lineFinished{QStringLiteral("editingFinished")};

/// A right click: simulated mouse buttons make no context menu.
inline void rightClick(QWidget *widget)
{
    const QPoint middle = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &event);
}

inline QStringList texts(const QVector<ZelQtValueEdit *> &fields)
{
    QStringList texts;
    for (const ZelQtValueEdit *field : fields)
        texts.append(field->text());
    return texts;
}

/// True where a field is read-only.
inline QVector<bool> closed(const QVector<ZelQtValueEdit *> &fields)
{
    QVector<bool> flags;
    for (const ZelQtValueEdit *field : fields)
        flags.append(field->isReadOnly());
    return flags;
}

inline QColor colorOf(const ZelQtValueEdit *field)
{
    return field->palette().color(QPalette::Text);
}

/// Right click on a unit label, the unit chosen from its menu. False if none came up.
inline bool chooseUnit(QWidget *label, const QString &unit)
{
    const auto menu = onPopup<QMenu>([&unit](QMenu *menu) {
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            if (action->text() == unit)
                menu->setActiveAction(action);
        }
        QTest::keyClick(menu, Qt::Key_Return);
    });
    rightClick(label);
    return menu.ran();
}

/// True where a field has low priority.
inline QVector<bool> low(const QVector<ZelQtValueEdit *> &fields)
{
    QVector<bool> flags;
    for (const ZelQtValueEdit *field : fields)
        flags.append(field->hasLowPriority());
    return flags;
}

/// The text of what a call throws, empty when it doesn't.
template <class Call> QString thrownBy(Call call)
{
    try {
        call();
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    }
    return QString();
}

/// Takes the reports of internal faults while it lives: "file: text".
class InternReports
{
public:
    InternReports()
        : mFormer(setInternMessageSink([this](const char *file, long, const char *text) {
            mReports.append(QString::fromUtf8(file).section('/', -1) + QStringLiteral(": ")
                            + QString::fromUtf8(text));
        }))
    {
    }
    ~InternReports() { setInternMessageSink(mFormer); }
    InternReports(const InternReports &) = delete;
    InternReports &operator=(const InternReports &) = delete;

    QStringList mReports;

private:
    ZelInternMessageSink mFormer;
};

/// An evaluator that takes plain numbers only, installed while it lives.
class PlainNumbers
{
public:
    PlainNumbers()
    {
        ZelQtFormeleingabe::setEvalFuncPnt([](const QString &text, double &result) {
            bool ok = false;
            result = text.toDouble(&ok);
            return ok;
        });
    }
    ~PlainNumbers() { ZelQtFormeleingabe::setEvalFuncPnt(nullptr); }
    PlainNumbers(const PlainNumbers &) = delete;
    PlainNumbers &operator=(const PlainNumbers &) = delete;
};

/// Right click on a field, the text typed in its formula popup, Return. False if none came up.
inline bool enterFormula(ZelQtValueEdit *field, const QString &formula)
{
    const PlainNumbers evaluator;
    const auto popup = onPopup<ZelQtFormeleingabe>([&formula](ZelQtFormeleingabe *popup) {
        auto *entry = popup->findChild<QLineEdit *>(QStringLiteral("mFormel"));
        QTest::keyClicks(entry, formula);
        QTest::keyClick(entry, Qt::Key_Return);
    });
    rightClick(field);
    return popup.ran();
}

/// The same for the popup of a field in degrees.
inline bool enterAngle(ZelQtValueEdit *field, const QString &degrees)
{
    const auto popup = onPopup<ZelQtWinkeleingabe>([&degrees](ZelQtWinkeleingabe *popup) {
        auto *entry = popup->findChild<QLineEdit *>(QStringLiteral("mGrad"));
        entry->selectAll();
        QTest::keyClicks(entry, degrees);
        QTest::keyClick(entry, Qt::Key_Return);
    });
    rightClick(field);
    return popup.ran();
}
