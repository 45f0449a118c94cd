#pragma once

#include "zelUITypes.h"
#include "zelWString.h"

#include <algorithm>
#include <vector>

class ZelDomNode;
class ZelUIInput;
class ZelUIObject;
class ZelUIPushButton;
class ZelUIStdButtonBox;
class ZelUITextLabel;
class ZelUIVar;
class ZelUiBuild;

// Makes parts of lines through the factory of a build. Null when the factory does not know the
// kind, or when a variable is of a kind that has no such part.

/// The field for a component of a variable, set up.
ZelUIInput *zelMakeInput(ZelUiBuild &build, ZelUIVar *variable, const AttrMap &attributes,
                         int component);
/// The prompt of a line: the text of the node, else that of the variable; null without a text.
ZelUITextLabel *zelMakePrompt(ZelUiBuild &build, ZelUIVar *variable, const AttrMap &attributes,
                              const ZelDomNode *node);
/// The icon buttons of the attribute "buttons", in its order, at most `limit` of them. Their tips
/// name the quantity as the prompt of the node does.
std::vector<ZelUIPushButton *> zelMakeIconButtons(ZelUiBuild &build, ZelUIVar *variable,
                                                  const AttrMap &attributes, const ZelDomNode *node,
                                                  size_t limit = size_t(-1));
/// The box with these buttons; null without the attribute.
ZelUIStdButtonBox *zelMakeIconBox(ZelUiBuild &build, ZelUIVar *variable, const AttrMap &attributes,
                                  const ZelDomNode *node);
/// "left", "center" or "right", the first for anything else.
ZelUIAlignment zelAlignment(const zelWString &name);
/// Empty without the attribute.
zelWString zelAttribute(const AttrMap &attributes, const wchar_t *name);

/// A typed pointer that points to the child becomes null.
template <class Part> void zelForget(Part *&part, const ZelUIObject *child)
{
    if (part == child)
        part = nullptr;
}

/// The same for a list, which gets shorter.
template <class Part> void zelForget(std::vector<Part *> &parts, const ZelUIObject *child)
{
    parts.erase(std::remove(parts.begin(), parts.end(), child), parts.end());
}
