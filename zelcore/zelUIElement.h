#pragma once

#include "zelUIObject.h"

class ZelDomNode;
class ZelUIItem;

struct ZelUIElementStruct
{
    zelWString mName;
    ZelUIState mState;
};

/// One line of a column. It walks its parts for setData and getData; state goes through the tree.
class ZELCORE_EXPORT ZelUIElement : public ZelUIObject
{
public:
    ZelUIElement();
    ~ZelUIElement() override;

    virtual void setData(Meta *meta, int64_t id);
    virtual void getData(Meta *meta, int64_t id);
    /// Every unit of the line becomes the one of the current unit system, or with `keepDefault` the
    /// default unit.
    virtual void updateUnitSystem(bool keepDefault);
    virtual void resetUnits(bool keepDefault);
    /// The caller owns the result.
    virtual ZelUIElementStruct *toElementStruct() const;

    /// Takes the conditions of the element's node, and during a build its texts. The node need not
    /// outlive the build.
    void modelSetNode(const ZelDomNode *node);
    /// Makes the parts that were announced by the set-up and are still missing, through the factory
    /// of the build under way. Without one, and for parts put in by hand, it does nothing.
    virtual void modelMakeParts();
    /// The parts that hold data, in the order of the line.
    const std::vector<ZelUIItem *> &modelItems() const { return mModelItems; }

protected:
    void modelForget(ZelUIObject *child) override;
    /// Makes `item` a model child, and a part that setData and getData visit.
    void modelAddItem(ZelUIItem *item);
    const ZelDomNode *modelNode() const { return mNode; }

private:
    const ZelDomNode *mNode = nullptr;
    std::vector<ZelUIItem *> mModelItems;
};
