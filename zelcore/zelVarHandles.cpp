#include "zelVarHandles.h"

#include "meta.h"
#include "zelCalcModule.h"
#include "zelParse_p.h"
#include "zelUIMultiVar.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

namespace {

using Mismatch = ZelVarHandle::Mismatch;

// A unit text that is none differs from every unit: a slip in the module shows at load.
bool isUnit(const std::string &text, ZelDimensions::Unit unit)
{
    const auto wanted = zelParseUnit(zelWString::fromUtf8(text));
    return wanted && *wanted == unit;
}

Mismatch checkNumber(const ZelUIVar &variable, bool whole, const std::string &unit)
{
    const auto *number = dynamic_cast<const ZelUIMultiVar *>(&variable);
    if (!number || (number->mValueKind != 0) != whole)
        return Mismatch::Kind;
    return isUnit(unit, number->mDefaultUnit) ? Mismatch::None : Mismatch::Unit;
}

std::string unitText(const std::string &unit)
{
    return unit.empty() ? std::string() : " unit=\"" + unit + '"';
}

} // namespace

ZelVarHandle::ZelVarHandle(ZelCalcModule &module, std::string_view name)
    : mModule(module)
    , mName(zelWString::fromUtf8(name))
{
    module.mHandles.push_back(this);
}

ZelVarHandle::~ZelVarHandle() = default;

bool ZelVarHandle::isEntered(int64_t id) const
{
    return mVariable && meta().isEntered(*mVariable, id);
}

bool ZelVarHandle::isSet(int64_t id) const
{
    return mVariable && meta().isSet(*mVariable, id);
}

void ZelVarHandle::unset(int64_t id) const
{
    if (mVariable)
        meta().unset(*mVariable, id);
}

Mismatch ZelVarHandle::bind(const Meta &meta)
{
    const ZelUIVar *variable = meta.variable(mName);
    const Mismatch mismatch = variable ? check(*variable) : Missing;
    mVariable = mismatch == None ? variable : nullptr;
    return mismatch;
}

Meta &ZelVarHandle::meta() const
{
    return mModule.meta();
}

std::string ZelVarHandle::tagText(std::string_view tag, std::string_view more) const
{
    return "<" + std::string(tag) + " name=\"" + mName.toUtf8() + '"' + std::string(more) + ">";
}

ZelRealVar::ZelRealVar(ZelCalcModule &module, std::string_view name, std::string_view unit)
    : ZelVarHandle(module, name)
    , mUnit(unit)
{
}

double ZelRealVar::get(int64_t id, int component) const
{
    return variable() ? meta().real(*variable(), id, component) : 0;
}

void ZelRealVar::set(double value, int64_t id, int component) const
{
    if (variable())
        meta().setReal(*variable(), id, component, value, ZelOrigin::Module);
}

std::string ZelRealVar::expectedTag() const
{
    return tagText("real", unitText(mUnit));
}

Mismatch ZelRealVar::check(const ZelUIVar &variable) const
{
    const bool list = dynamic_cast<const ZelUIVarRealList *>(&variable)
        || dynamic_cast<const ZelUIVarRealFuncList *>(&variable);
    return list ? None : checkNumber(variable, false, mUnit);
}

std::string ZelResultVar::expectedTag() const
{
    std::string tag = ZelRealVar::expectedTag();
    tag.insert(tag.size() - 1, " role=\"result\"");
    return tag;
}

Mismatch ZelResultVar::check(const ZelUIVar &variable) const
{
    return variable.mResult ? ZelRealVar::check(variable) : Kind;
}

ZelIntVar::ZelIntVar(ZelCalcModule &module, std::string_view name, std::string_view unit)
    : ZelVarHandle(module, name)
    , mUnit(unit)
{
}

int64_t ZelIntVar::get(int64_t id, int component) const
{
    return variable() ? meta().integer(*variable(), id, component) : 0;
}

void ZelIntVar::set(int64_t value, int64_t id, int component) const
{
    if (variable())
        meta().setInteger(*variable(), id, component, value, ZelOrigin::Module);
}

std::string ZelIntVar::expectedTag() const
{
    return tagText("int", unitText(mUnit));
}

Mismatch ZelIntVar::check(const ZelUIVar &variable) const
{
    return checkNumber(variable, true, mUnit);
}

ZelBoolVar::ZelBoolVar(ZelCalcModule &module, std::string_view name)
    : ZelVarHandle(module, name)
{
}

bool ZelBoolVar::get(int64_t id) const
{
    return variable() && meta().boolean(*variable(), id);
}

void ZelBoolVar::set(bool value, int64_t id) const
{
    if (variable())
        meta().setBoolean(*variable(), id, value, ZelOrigin::Module);
}

std::string ZelBoolVar::expectedTag() const
{
    return tagText("bool");
}

Mismatch ZelBoolVar::check(const ZelUIVar &variable) const
{
    return variable.storage() == ZelVarStorage::Boolean ? None : Kind;
}

ZelListVar::ZelListVar(ZelCalcModule &module, std::string_view name)
    : ZelVarHandle(module, name)
{
}

int64_t ZelListVar::get(int64_t id) const
{
    return variable() ? meta().integer(*variable(), id) : 0;
}

void ZelListVar::set(int64_t entry, int64_t id) const
{
    if (variable())
        meta().setInteger(*variable(), id, 0, entry, ZelOrigin::Module);
}

bool ZelListVar::is(std::string_view entryName, int64_t id) const
{
    if (!variable())
        return false;
    const auto entry = variable()->entryId(zelWString::fromUtf8(entryName));
    return entry && *entry == get(id);
}

std::string ZelListVar::expectedTag() const
{
    return tagText("list");
}

Mismatch ZelListVar::check(const ZelUIVar &variable) const
{
    const bool number = dynamic_cast<const ZelUIMultiVar *>(&variable);
    return variable.storage() == ZelVarStorage::Integer && !number ? None : Kind;
}

ZelTextVar::ZelTextVar(ZelCalcModule &module, std::string_view name)
    : ZelVarHandle(module, name)
{
}

zelWString ZelTextVar::get(int64_t id) const
{
    return variable() ? meta().text(*variable(), id) : zelWString();
}

void ZelTextVar::set(const zelWString &value, int64_t id) const
{
    if (variable())
        meta().setText(*variable(), id, value, ZelOrigin::Module);
}

std::string ZelTextVar::expectedTag() const
{
    return tagText("text");
}

Mismatch ZelTextVar::check(const ZelUIVar &variable) const
{
    return variable.storage() == ZelVarStorage::Text ? None : Kind;
}
