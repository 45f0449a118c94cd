#pragma once

#include <memory>

class ZelDomNode;
class ZelUIColumn;
class ZelUIElement;
class ZelUIVar;
class ZelUiBuild;

/// Fills a column from its description: an element for each node, picked by the tag and by the kind
/// of the variable. Nodes that are unknown, faulty or of a kind that the factory does not know are
/// left out.
class ZelUiColumnBuilder
{
public:
    ZelUiColumnBuilder(ZelUIColumn &column, ZelUiBuild &build);

    void add(const ZelDomNode &node);

private:
    void addVariable(const ZelDomNode &node);
    void addStandard(const ZelDomNode &node, ZelUIVar *variable);
    void addLine(const ZelDomNode &node);
    void addFlag(const ZelDomNode &node, ZelUIVar *variable);
    void addText(const ZelDomNode &node, ZelUIVar *variable);
    void addNotepad(const ZelDomNode &node, ZelUIVar *variable);
    void addButton(const ZelDomNode &node, ZelUIVar *variable);
    void addMaterial(const ZelDomNode &node, ZelUIVar *variable);
    void addLubricant(const ZelDomNode &node, ZelUIVar *variable);
    void addTable(const ZelDomNode &node, ZelUIVar *variable);
    void addImage(const ZelDomNode &node, ZelUIVar *variable);
    void addOutput(const ZelDomNode &node);
    /// The column owns it from now on.
    template <class Element> Element *own(std::unique_ptr<Element> element);

    ZelUIColumn &mColumn;
    ZelUiBuild &mBuild;
};
