#pragma once

#include "customwidgets_export.h"

#include <QLayout>

/// A name that is kept for applications that declare it. It has no content and stays abstract:
/// nothing in the library uses it.
class CUSTOMWIDGETS_EXPORT zelQtFixedAspectLayout : public QLayout
{
    Q_OBJECT
};
