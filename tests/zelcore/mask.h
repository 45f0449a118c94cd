#pragma once

#include "meta.h"
#include "zelCondition.h"
#include "zelDomDocument.h"
#include "zelUIItem.h"
#include "zelUITabPage.h"
#include "zelUIVarKinds.h"
#include "zelUiBuild.h"
#include "zelUiPlainFactory.h"

#include <QString>
#include <QStringList>
#include <memory>

inline QString toText(const zelWString &text)
{
    return QString::fromStdWString(text);
}

/// A condition over the variables of `meta`; null for a text that is none.
inline std::shared_ptr<const ZelCondition> condition(const wchar_t *text, const Meta &meta)
{
    ZelCondition::Fault fault;
    return ZelCondition::compile(text, meta, fault);
}

/// A page of plain model objects, built from its XML text over the variables of mMeta.
struct Mask
{
    ZelUITabPage &build(const char *xml)
    {
        mDocument = ZelDomDocument::fromText(xml, "mask.xml", mFaults);
        mPage = mFactory.makeTabPage();
        ZelUiBuild build(mMeta, mFactory, mFaults, "mask.xml");
        mPage->setup(mDocument.root());
        mPage->makeLayout();
        mPage->retranslate();
        return *mPage;
    }

    void refresh(int64_t id = 0)
    {
        mPage->updateState(&mMeta, id);
        mPage->setData(&mMeta, id);
        mPage->updateState(&mMeta, id);
    }

    /// "code name at line:column" for each fault, the name as far as the test needs it.
    QStringList faultPlaces() const
    {
        QStringList places;
        for (const ZelFault &fault : mFaults)
            places << QString("%1 at %2:%3")
                          .arg(static_cast<int>(fault.mCode))
                          .arg(fault.mLine)
                          .arg(fault.mColumn);
        return places;
    }

    /// The first object below the page with this item name and of this class.
    template <class Object> Object *find(const wchar_t *itemName) const
    {
        return find<Object>(*mPage, itemName);
    }

    template <class Object> static Object *find(const ZelUIObject &parent, const wchar_t *itemName)
    {
        for (ZelUIObject *child : parent.modelChildren()) {
            auto *item = dynamic_cast<ZelUIItem *>(child);
            auto *object = dynamic_cast<Object *>(child);
            const zelWString name = item ? item->getItemName() : child->getName();
            if (object && name == itemName)
                return object;
            if (Object *below = find<Object>(*child, itemName))
                return below;
        }
        return nullptr;
    }

    Meta mMeta;
    ZelUiPlainFactory mFactory;
    ZelFaultList mFaults;
    ZelDomDocument mDocument;
    ZelUITabPage *mPage = nullptr;
};
