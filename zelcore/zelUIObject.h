#pragma once

#include "zelUIState.h"
#include "zelWString.h"
#include "zelcore_export.h"

#include <cstdint>
#include <memory>
#include <vector>

class Meta;
class ZelCondition;
class ZelDomNode;
class ZelUIVar;

/// Root of the model classes: a node of a mask with its variable, its help code, its state and its
/// place in the model tree. A node neither owns its model children nor its parent: when one of them
/// goes, the other forgets it, whichever goes first.
class ZELCORE_EXPORT ZelUIObject
{
public:
    ZelUIObject();
    virtual ~ZelUIObject();
    ZelUIObject(const ZelUIObject &) = delete;
    ZelUIObject &operator=(const ZelUIObject &) = delete;

    /// Brings the texts into the current language; does nothing here.
    virtual void retranslate();
    /// Takes variable and attributes; attributes that were understood may be consumed.
    virtual void setup(ZelUIVar *variable, AttrMap &attributes);
    virtual void setup(const AttrMap &attributes);
    virtual void setup(ZelUIVar *variable);
    /// Computes mEnabled, mVisible and mReadOnly: the conditions of variable and node, and the
    /// state of the model parent (AND, OR for read-only); then does the same for all model
    /// children. A null meta leaves the flags of this node as they are, and so does an object that
    /// has neither variable nor conditions nor model parent.
    virtual void updateState(Meta *meta, int64_t id);

    /// Name of the variable, or of the node for an object without one.
    zelWString getName() const { return mName; }
    ZelUIState state() const { return {mEnabled, mVisible, mReadOnly}; }
    int getAuthorItCode() const { return mAuthorItCode; }
    void setAuthorItCode(int code) { mAuthorItCode = code; }

    ZelUIVar *modelVariable() const { return mVariable; }
    ZelUIObject *modelParent() const { return mModelParent; }
    const std::vector<ZelUIObject *> &modelChildren() const { return mModelChildren; }
    /// Null takes the object out of the tree.
    void setModelParent(ZelUIObject *parent);
    void setModelName(const zelWString &name) { mName = name; }
    /// Takes name (unless there is a variable), help code and conditions of a description node.
    /// Conditions need a build under way; a bad one is reported there and counts as absent.
    void modelSetupNode(const ZelDomNode *node);
    /// The conditions of another node of the same line, so that each is compiled once.
    void modelShareConditions(const ZelUIObject &other);

    /// What the conditions of variable and node alone say of being visible.
    bool modelConditionsShow(const Meta &meta, int64_t id) const;

    bool mEnabled = true;
    bool mVisible = true;
    bool mReadOnly = false;

protected:
    /// A child dies or leaves: whoever keeps typed pointers to children drops them here.
    virtual void modelForget(ZelUIObject *child);
    /// Inputs follow the role of their variable: results and computed values are read-only, an
    /// unset result is disabled. Other parts of a line do not.
    void modelFollowRole(bool follow) { mFollowsRole = follow; }
    /// For parts that show something computed, whatever their variable says.
    void modelAlwaysReadOnly(bool readOnly) { mAlwaysReadOnly = readOnly; }
    /// Invisible from the next updateState on, whatever the conditions say.
    void modelHide(bool hide) { mHidden = hide; }

    /// Component of the variable, from 0.
    int mComponent = 0;

private:
    bool hasStateSource() const;
    void computeState(const Meta &meta, int64_t id);
    void applyRole(const Meta &meta, int64_t id);
    void takeAttributes(const AttrMap &attributes);

    zelWString mName;
    ZelUIVar *mVariable = nullptr;
    ZelUIObject *mModelParent = nullptr;
    std::vector<ZelUIObject *> mModelChildren;
    std::shared_ptr<const ZelCondition> mEnabledIf;
    std::shared_ptr<const ZelCondition> mVisibleIf;
    std::shared_ptr<const ZelCondition> mReadOnlyIf;
    int mAuthorItCode = -1;
    bool mFollowsRole = false;
    bool mAlwaysReadOnly = false;
    bool mHidden = false;
};
