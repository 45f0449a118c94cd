#pragma once

#include "openLine.h"
#include "window.h"

#include <QContextMenuEvent>
#include <QLineEdit>
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
