#include "zelUITextLabel.h"

#include "meta.h"
#include "zelDomNode.h"
#include "zelUIVarKinds.h"

ZelUITextLabel::ZelUITextLabel(ZelUIAlignment alignment)
    : mAlignment(alignment)
{
    setModelKind(L"label");
}

ZelUITextLabel::~ZelUITextLabel() = default;

void ZelUITextLabel::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIItem::setup(variable, attributes);
    if (variable && mText.empty())
        mText = variable->mText;
}

void ZelUITextLabel::setup(const AttrMap &attributes)
{
    ZelUIItem::setup(attributes);
}

void ZelUITextLabel::setup(const ZelDomNode *node)
{
    if (!node)
        return;
    mText.setup(node);
    AttrMap attributes = node->attributes();
    setup(nullptr, attributes);
}

void ZelUITextLabel::setup(ZelUIVarText *variable, AttrMap &attributes, int kind)
{
    ZelUIObject::setup(variable, attributes);
    setModelComponent(kind);
    setModelKind(L"");
    mShowsValue = true;
}

void ZelUITextLabel::setData(Meta *meta, int64_t id)
{
    ZelUIItem::setData(meta, id);
    if (!meta || !mShowsValue || !modelVariable())
        return;
    const zelWString value = meta->text(*modelVariable(), id);
    if (value == mValue)
        return;
    mValue = value;
    retranslate();
}

zelWString ZelUITextLabel::getText() const
{
    return mShowsValue ? mValue : mText.getText();
}
