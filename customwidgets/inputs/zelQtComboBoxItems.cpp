#include "zelQtComboBox.h"
#include "zelQtConversions.h"
#include "zelQtWidgetHelpers_p.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

#include <QStandardItemModel>

// Marks the entry of addUndefinedItem(), whose text follows the language.
static constexpr int undefinedRole = Qt::UserRole + 1;

// Entries that come from elsewhere may carry numbers beyond 16 bits.
static bool containsId(const std::set<short> &ids, int id)
{
    const auto narrow = static_cast<short>(id);
    return narrow == id && ids.count(narrow) > 0;
}

template <class IsDisabled>
static void applyDisabled(const QStandardItemModel &model, IsDisabled isDisabled)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        QStandardItem *item = model.item(row);
        item->setEnabled(!isDisabled(item->data(Qt::UserRole)));
    }
}

void ZelQtComboBox::setup(ZelUIVar *variable, AttrMap &attributes)
{
    applyElementName(this, nullptr);
    if (variable && variable->IsUpdateBlocking())
        disableValueChanged();
    const auto layout = attributes.find(L"layout");
    const zelWString width = layout == attributes.end() ? zelWString() : layout->second;
    if (width == L"wide") {
        // The size policy stays on purpose.
        mOurMaxWidth = true;
        return;
    }
    setSizePolicy(width == L"table" ? QSizePolicy::Expanding : QSizePolicy::Minimum,
                  QSizePolicy::Fixed);
}

template <class Variable>
void ZelQtComboBox::setupList(Variable *variable, AttrMap &attributes, int component)
{
    ZelUIComboBox::setup(variable, attributes, component);
    setup(static_cast<ZelUIVar *>(variable), attributes);
}

void ZelQtComboBox::setup(ZelUIVarRealFuncList *variable, AttrMap &attributes, int component)
{
    setupList(variable, attributes, component);
}

void ZelQtComboBox::setup(ZelUIVarRealList *variable, AttrMap &attributes, int component)
{
    setupList(variable, attributes, component);
}

void ZelQtComboBox::setup(ZelUIVarDBFuncList *variable, AttrMap &attributes, int component)
{
    setupList(variable, attributes, component);
}

void ZelQtComboBox::setup(ZelUIVarDBList *variable, AttrMap &attributes, int component)
{
    setupList(variable, attributes, component);
}

void ZelQtComboBox::setup(ZelUIVarFuncListDynamic *variable, AttrMap &attributes, int component)
{
    setupList(variable, attributes, component);
}

void ZelQtComboBox::setup(ZelUIVarFuncList *variable, AttrMap &attributes, int component)
{
    setupList(variable, attributes, component);
}

void ZelQtComboBox::setup(ZelUIVarList *variable, AttrMap &attributes, int component)
{
    setupList(variable, attributes, component);
}

void ZelQtComboBox::updateState(Meta *meta, int64_t id)
{
    ZelUIInput::updateState(meta, id);
    setEnabled(mEnabled);
    setVisible(mVisible);
    setIndexFixed(mReadOnly);
}

void ZelQtComboBox::setData(Meta *meta, int64_t id)
{
    ZelUIComboBox::setData(meta, id);
    if (!mEnabled) {
        setCurrentIndex(-1);
        return;
    }
    if (!dynamicList().empty()) {
        retranslate();
        setCurrentData(qlonglong(mCurrentId64), true);
        return;
    }
    if (count() == 0)
        return;
    if (!setCurrentData(int(mCurrentId), true) && addFromDatabase(mCurrentId))
        setCurrentIndex(count() - 1);
}

bool ZelQtComboBox::addFromDatabase(short id)
{
    const std::optional<zelWString> name = modelDatabaseName(id);
    if (!name)
        return false;
    addItem(toQString(*name), int(id));
    updateGeometry();
    return true;
}

void ZelQtComboBox::setData(Meta *meta, int64_t id, short key, short currentId)
{
    ZelUIComboBox::setData(meta, id, key, currentId);
    setCurrentData(int(mCurrentId), true);
}

void ZelQtComboBox::getData(Meta *meta, int64_t id)
{
    // Without a current entry both become 0.
    const QVariant data = currentData();
    mCurrentId = static_cast<short>(data.toInt());
    mCurrentId64 = data.toLongLong();
    ZelUIComboBox::getData(meta, id);
}

void ZelQtComboBox::getData(short &currentId)
{
    mCurrentId = static_cast<short>(currentData().toInt());
    ZelUIComboBox::getData(currentId);
}

void ZelQtComboBox::retranslate()
{
    ZelUIComboBox::retranslate();
    clear();
    const TextList &entries = list();
    for (const auto &[text, id] : entries)
        addItem(toQString(text), int(id));
    if (entries.empty()) {
        for (const auto &[text, id] : dynamicList())
            addItem(toQString(text), qlonglong(id));
    }
    applyDisabledIDs();
    updateGeometry();
}

void ZelQtComboBox::applyDisabledIDs() const
{
    const auto *items = qobject_cast<const QStandardItemModel *>(model());
    if (!items)
        return;
    if (!mDisabledIDs.empty()) {
        applyDisabled(*items, [this](const QVariant &data) {
            return containsId(mDisabledIDs, data.toInt());
        });
    }
    if (!dynamicList().empty() && !mDynamicDisabledIDs.empty()) {
        applyDisabled(*items, [this](const QVariant &data) {
            return mDynamicDisabledIDs.count(data.toLongLong()) > 0;
        });
    }
}

bool ZelQtComboBox::setCurrentData(const QVariant &data, bool fallback)
{
    const int index = findData(data);
    setCurrentIndex(index < 0 && fallback ? 0 : index);
    return index >= 0;
}

void ZelQtComboBox::addUndefinedItem(int id)
{
    addItem(QIcon(QStringLiteral(":/undefined.svg")), tr("nicht definiert"), id);
    setItemData(count() - 1, true, undefinedRole);
}

void ZelQtComboBox::retranslateStrings()
{
    for (int row = 0; row < count(); ++row) {
        if (itemData(row, undefinedRole).toBool())
            setItemText(row, tr("nicht definiert"));
    }
}
