#pragma once

#include "zelUIObject.h"

class ZelDomNode;
class ZelUIElement;

/// A node that holds other nodes. It walks containers and elements below it for setData and
/// getData.
class ZELCORE_EXPORT ZelUIContainer : public ZelUIObject
{
public:
    ZelUIContainer();
    ~ZelUIContainer() override;

    using ZelUIObject::setup;
    /// Takes name, help code and conditions of the node; derived classes build what stands in it.
    virtual void setup(const ZelDomNode *node);
    virtual void setData(Meta *meta, int64_t id);
    /// The mirror of setData.
    void getData(Meta *meta, int64_t id);

    /// In the order of the description.
    const std::vector<ZelUIContainer *> &modelContainers() const { return mContainers; }
    const std::vector<ZelUIElement *> &modelElements() const { return mElements; }

protected:
    void modelForget(ZelUIObject *child) override;
    void modelAddContainer(ZelUIContainer *container);
    void modelAddElement(ZelUIElement *element);

private:
    std::vector<ZelUIContainer *> mContainers;
    std::vector<ZelUIElement *> mElements;
};
