#include "zelUIObject.h"

#include "meta.h"
#include "zelCondition.h"
#include "zelDomNode.h"
#include "zelUIVar.h"
#include "zelUIVarChoice.h"
#include "zelUiBuild.h"

#include <algorithm>

namespace {

std::shared_ptr<const ZelCondition> compileCondition(const ZelDomNode &node,
                                                     const zelWString &attribute)
{
    ZelUiBuild *build = ZelUiBuild::current();
    if (!build || !node.hasAttribute(attribute))
        return nullptr;
    ZelCondition::Fault fault;
    auto condition = ZelCondition::compile(node.attribute(attribute), build->meta(), fault);
    if (!condition) {
        ZelPlace place = node.attributeValuePlace(attribute);
        place.mColumn += place.mLine > 0 ? fault.mAt : 0;
        build->fault(ZelFaultCode::BadCondition, place, fault.mText, fault.mExpected);
    }
    return condition;
}

bool holds(const std::shared_ptr<const ZelCondition> &condition, const Meta &meta, int64_t id)
{
    return condition->evaluate(meta, id);
}

} // namespace

ZelUIObject::ZelUIObject() = default;

ZelUIObject::~ZelUIObject()
{
    for (ZelUIObject *child : mModelChildren)
        child->mModelParent = nullptr;
    setModelParent(nullptr);
}

void ZelUIObject::retranslate()
{
}

void ZelUIObject::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIObject::setup(variable);
    takeAttributes(attributes);
}

void ZelUIObject::setup(const AttrMap &attributes)
{
    takeAttributes(attributes);
}

void ZelUIObject::setup(ZelUIVar *variable)
{
    mVariable = variable;
    if (!variable)
        return;
    mName = variable->name();
    mAuthorItCode = variable->mHelpCode;
}

void ZelUIObject::takeAttributes(const AttrMap &attributes)
{
    if (const auto name = attributes.find(L"name"); name != attributes.end() && !mVariable)
        mName = name->second;
    if (const auto help = attributes.find(L"help"); help != attributes.end())
        mAuthorItCode = help->second.toInt();
}

void ZelUIObject::modelSetupNode(const ZelDomNode *node)
{
    if (!node)
        return;
    takeAttributes(node->attributes());
    mEnabledIf = compileCondition(*node, L"enabled");
    mVisibleIf = compileCondition(*node, L"visible");
    mReadOnlyIf = compileCondition(*node, L"readonly");
}

void ZelUIObject::modelShareConditions(const ZelUIObject &other)
{
    mEnabledIf = other.mEnabledIf;
    mVisibleIf = other.mVisibleIf;
    mReadOnlyIf = other.mReadOnlyIf;
}

void ZelUIObject::setModelParent(ZelUIObject *parent)
{
    if (parent == mModelParent)
        return;
    if (ZelUIObject *former = mModelParent) {
        auto &siblings = former->mModelChildren;
        siblings.erase(std::remove(siblings.begin(), siblings.end(), this), siblings.end());
        mModelParent = nullptr;
        former->modelForget(this);
    }
    mModelParent = parent;
    if (parent)
        parent->mModelChildren.push_back(this);
}

void ZelUIObject::modelForget(ZelUIObject *)
{
}

void ZelUIObject::updateState(Meta *meta, int64_t id)
{
    if (meta && hasStateSource())
        computeState(*meta, id);
    for (ZelUIObject *child : mModelChildren)
        child->updateState(meta, id);
}

bool ZelUIObject::hasStateSource() const
{
    return mVariable || mModelParent || mEnabledIf || mVisibleIf || mReadOnlyIf || mAlwaysReadOnly
        || mHidden;
}

bool ZelUIObject::modelConditionsShow(const Meta &meta, int64_t id) const
{
    return (!mVisibleIf || holds(mVisibleIf, meta, id))
        && (!mVariable || !mVariable->mVisibleIf || holds(mVariable->mVisibleIf, meta, id));
}

void ZelUIObject::computeState(const Meta &meta, int64_t id)
{
    mEnabled = !mModelParent || mModelParent->mEnabled;
    mVisible = !mHidden && (!mModelParent || mModelParent->mVisible);
    mReadOnly = mAlwaysReadOnly || (mModelParent && mModelParent->mReadOnly);

    const auto apply = [&](const auto &enabledIf, const auto &visibleIf, const auto &readOnlyIf) {
        mEnabled = mEnabled && (!enabledIf || holds(enabledIf, meta, id));
        mVisible = mVisible && (!visibleIf || holds(visibleIf, meta, id));
        mReadOnly = mReadOnly || (readOnlyIf && holds(readOnlyIf, meta, id));
    };
    apply(mEnabledIf, mVisibleIf, mReadOnlyIf);
    if (!mVariable)
        return;
    apply(mVariable->mEnabledIf, mVariable->mVisibleIf, mVariable->mReadOnlyIf);
    if (mFollowsRole)
        applyRole(meta, id);
}

// The variables of a choice by typing stay open whichever alternative is picked: typing is how the
// user picks. They show their role by priority.
void ZelUIObject::applyRole(const Meta &meta, int64_t id)
{
    const ZelUIVar &variable = *mVariable;
    const bool unchecked = variable.mOptional && !meta.isOptionChecked(variable, id);
    const ZelUIVarChoice *choice = meta.choiceOf(variable);
    const bool notPicked =
        choice && choice->mBy == ZelUIVarChoice::Switch && !meta.isEntered(variable, id);
    if (!variable.mResult && !unchecked && !notPicked)
        return;
    mReadOnly = true;
    if (!meta.isSet(variable, id, mComponent))
        mEnabled = false;
}
