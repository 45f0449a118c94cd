#pragma once

#include "recorder.h"
#include "window.h"

#include <QLineEdit>

/// A page with the field under test and a neighbour that takes the focus away. The recorder of the
/// page holds the signals of both: "host valueChanged", "field valueChanged" and so on.
template <class Field> class FieldOnPage
{
public:
    FieldOnPage()
    {
        mPage.resize(600, 100);
        mNeighbour.move(400, 0);
        mPage.mRecorder.recordProtocol(&mField, QStringLiteral("field"));
    }

    /// Shows the page and gives the field the focus.
    [[nodiscard]] bool enter() { return showAndActivate(&mPage) && focus(&mField); }
    [[nodiscard]] bool leave() { return focus(&mNeighbour); }
    /// Signals since the last call.
    QStringList take() { return mPage.take(); }

    RecordedPage mPage;
    Field mField{&mPage};
    QLineEdit mNeighbour{&mPage};
};

inline const QStringList changedEvents{QStringLiteral("host valueChanged"),
                                       QStringLiteral("field valueChanged")};
inline const QStringList confirmedEvents{QStringLiteral("host valueConfirmed"),
                                         QStringLiteral("field valueConfirmed")};
