#include "zelQtSpacerItems.h"

#include <QSpacerItem>

QSpacerItem *vSpacerItem()
{
    return new QSpacerItem(0, 20, QSizePolicy::Minimum, QSizePolicy::Expanding);
}

QSpacerItem *hMidSpacerItem()
{
    return new QSpacerItem(80, 0, QSizePolicy::Maximum, QSizePolicy::Minimum);
}

QSpacerItem *hRightSpacerItem()
{
    return new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum);
}
