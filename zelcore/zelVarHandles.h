#pragma once

#include "zelDimensions.h"
#include "zelWString.h"
#include "zelcore_export.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class Meta;
class ZelCalcModule;
class ZelUIMultiVar;
class ZelUIVar;

// Handles by which a calculation reads and writes the variables of its description. They stand as
// members in the module and are bound when the description is loaded. Their operations take the id
// of the object, 0 when a module has only one. A handle that could not be bound reads as 0, false
// and "", and writes nothing.

/// What all handles have in common. Owned by the module, which must outlive it.
class ZELCORE_EXPORT ZelVarHandle
{
public:
    /// What is wrong between a handle and its variable.
    enum Mismatch { None, Missing, Kind, Unit };

    virtual ~ZelVarHandle();
    ZelVarHandle(const ZelVarHandle &) = delete;
    ZelVarHandle &operator=(const ZelVarHandle &) = delete;

    const zelWString &name() const { return mName; }
    /// Null while it is not bound.
    const ZelUIVar *variable() const { return mVariable; }
    /// True while the user enters the variable; false for results, unchecked optional variables and
    /// those of a choice that is set to another alternative.
    bool isEntered(int64_t id = 0) const;
    /// False for a result that was not computed.
    bool isSet(int64_t id = 0) const;
    /// The field is empty then.
    void unset(int64_t id = 0) const;

    /// Looks for the variable and takes it when it fits.
    Mismatch bind(const Meta &meta);
    /// The tag that would fit, for reports: <real name="d" unit="mm">.
    virtual std::string expectedTag() const = 0;

protected:
    ZelVarHandle(ZelCalcModule &module, std::string_view name);
    virtual Mismatch check(const ZelUIVar &variable) const = 0;
    Meta &meta() const;
    /// `tag` with the name and, when it is not empty, the unit.
    std::string tagText(std::string_view tag, std::string_view more = {}) const;

private:
    ZelCalcModule &mModule;
    zelWString mName;
    const ZelUIVar *mVariable = nullptr;
};

/// Variables that a message is about: {mWire, mCoil}.
using ZelVarHandles = std::vector<std::reference_wrapper<const ZelVarHandle>>;

/// A real number, or one of a list of numbers. Values count in the unit of the handle, which is the
/// default unit of the variable.
class ZELCORE_EXPORT ZelRealVar : public ZelVarHandle
{
public:
    /// `unit` is a display text or a text for files; empty for a plain number.
    ZelRealVar(ZelCalcModule &module, std::string_view name, std::string_view unit = {});
    double get(int64_t id = 0, int component = 0) const;
    void set(double value, int64_t id = 0, int component = 0) const;
    std::string expectedTag() const override;

protected:
    Mismatch check(const ZelUIVar &variable) const override;

private:
    std::string mUnit;
};

/// A real number that the module computes: role result.
class ZELCORE_EXPORT ZelResultVar : public ZelRealVar
{
public:
    using ZelRealVar::ZelRealVar;
    std::string expectedTag() const override;

protected:
    Mismatch check(const ZelUIVar &variable) const override;
};

/// A whole number.
class ZELCORE_EXPORT ZelIntVar : public ZelVarHandle
{
public:
    ZelIntVar(ZelCalcModule &module, std::string_view name, std::string_view unit = {});
    int64_t get(int64_t id = 0, int component = 0) const;
    void set(int64_t value, int64_t id = 0, int component = 0) const;
    std::string expectedTag() const override;

protected:
    Mismatch check(const ZelUIVar &variable) const override;

private:
    std::string mUnit;
};

/// Yes or no.
class ZELCORE_EXPORT ZelBoolVar : public ZelVarHandle
{
public:
    ZelBoolVar(ZelCalcModule &module, std::string_view name);
    bool get(int64_t id = 0) const;
    void set(bool value, int64_t id = 0) const;
    std::string expectedTag() const override;

protected:
    Mismatch check(const ZelUIVar &variable) const override;
};

/// An entry of a list or of the database, or the alternative of a choice, by its id.
class ZELCORE_EXPORT ZelListVar : public ZelVarHandle
{
public:
    ZelListVar(ZelCalcModule &module, std::string_view name);
    int64_t get(int64_t id = 0) const;
    void set(int64_t entry, int64_t id = 0) const;
    /// True while the entry of that name is chosen; false for a name that is none.
    bool is(std::string_view entryName, int64_t id = 0) const;
    std::string expectedTag() const override;

protected:
    Mismatch check(const ZelUIVar &variable) const override;
};

/// A text of one or several lines, or the path of a picture.
class ZELCORE_EXPORT ZelTextVar : public ZelVarHandle
{
public:
    ZelTextVar(ZelCalcModule &module, std::string_view name);
    zelWString get(int64_t id = 0) const;
    void set(const zelWString &value, int64_t id = 0) const;
    std::string expectedTag() const override;

protected:
    Mismatch check(const ZelUIVar &variable) const override;
};
