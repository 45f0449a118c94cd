#pragma once

#include "zelWString.h"
#include "zelcore_export.h"

#include <vector>

class ZelDomNode;

/// Questions to the attributes of a description that several widgets ask.
class ZELCORE_EXPORT ZelUiParser
{
public:
    /// True when the attributes "width" and "height" hold numbers above 0, which are then stored.
    /// `naturalSize` is always written: whether the attribute "natural" asks for the natural size.
    static bool hasGeometryAttribute(const AttrMap &attributes, bool &naturalSize, int &width,
                                     int &height);
    static bool hasGeometryAttribute(const ZelDomNode *node, bool &naturalSize, int &width,
                                     int &height);
    /// The attribute "frame" is true: a board with a frame is a group.
    static bool hasFrameAttribute(const ZelDomNode *node);
    /// "true" and "1" are, anything else is not.
    static bool isTrue(const zelWString &value);
    /// The words of a list that is separated by blanks or commas.
    static std::vector<zelWString> words(const zelWString &value);
};
