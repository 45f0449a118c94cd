#include "zelUIExternalItem.h"

ZelUIExternalItem::ZelUIExternalItem() = default;
ZelUIExternalItem::~ZelUIExternalItem() = default;
