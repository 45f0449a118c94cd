#pragma once

#include "metaParam.h"
#include "zelDimensions.h"
#include "zelUIVar.h"
#include "zelmath_export.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class ZelUIVarChoice;

/// Who wrote a value.
enum class ZelOrigin {
    User, ///< entered in a mask
    Module, ///< computed
    Load ///< read from a file, or set by a program
};

/// A change in the store as its observer hears it. Values stand in the text form's notation.
struct ZelValueChange
{
    const ZelUIVar *mVariable = nullptr;
    int mComponent = 0;
    int64_t mId = 0;
    zelWString mOld;
    zelWString mNew;
    ZelOrigin mOrigin = ZelOrigin::User;
    /// True when it was the check box of an optional variable that changed, not its value.
    bool mOption = false;
};

/// The data of a calculation module: its variables and their values. A variable has a dense index,
/// each object (gear 1, gear 2: the `id`) a row of slots; an object comes into being with the first
/// write and reads as initial values before. Reading and writing look up no text. Numbers are
/// stored in the variable's default unit.
///
/// Reading with a component, an id or a variable that isn't there gives 0, false or "".
class ZELMATH_EXPORT Meta
{
public:
    using Function = std::function<bool(const zelWString &argument, zelWString &result)>;
    using Observer = std::function<void(const ZelValueChange &)>;

    Meta();
    virtual ~Meta();
    Meta(const Meta &) = delete;
    Meta &operator=(const Meta &) = delete;

    // Description

    /// Takes the variable; null when the name is taken.
    ZelUIVar *add(std::unique_ptr<ZelUIVar> variable);
    /// The same for one made in place: add<ZelUIMultiVar>(L"d", ZelDimensions::Millimetre).
    template <class Variable, class... Args> Variable *add(Args &&...args)
    {
        return static_cast<Variable *>(add(
            std::unique_ptr<ZelUIVar>(std::make_unique<Variable>(std::forward<Args>(args)...))));
    }
    /// Null for an unknown name.
    ZelUIVar *variable(const zelWString &name) const;
    const std::vector<std::unique_ptr<ZelUIVar>> &variables() const { return mVariables; }

    // Functions of the module

    void setFunction(const zelWString &name, Function function);
    bool hasFunction(const zelWString &name) const;
    /// Runs the function of each parameter. False when one is unknown or fails; its result is then
    /// empty. "GetModuleId" is built in and yields moduleId().
    bool CallFunc(MetaParam &param);
    void setModuleId(const zelWString &id) { mModuleId = id; }
    const zelWString &moduleId() const { return mModuleId; }

    // Values. Real and whole numbers are read and written as each other, since value fields hold
    // doubles: rounded half away from zero, saturated, and not at all for a NaN or infinity.

    double real(const ZelUIVar &variable, int64_t id, int component = 0) const;
    int64_t integer(const ZelUIVar &variable, int64_t id, int component = 0) const;
    bool boolean(const ZelUIVar &variable, int64_t id) const;
    zelWString text(const ZelUIVar &variable, int64_t id) const;
    /// The same without a copy, valid until the next write.
    std::wstring_view textView(const ZelUIVar &variable, int64_t id) const;
    /// False for a result that was not computed, and for an optional variable whose check box is
    /// unchecked as long as nothing was computed for it. Other inputs are set from the start.
    bool isSet(const ZelUIVar &variable, int64_t id, int component = 0) const;

    // Writing. A value that is the same bit for bit changes nothing and tells nobody, but sets an
    // unset one.
    void setReal(const ZelUIVar &variable, int64_t id, int component, double value,
                 ZelOrigin origin);
    void setInteger(const ZelUIVar &variable, int64_t id, int component, int64_t value,
                    ZelOrigin origin);
    void setBoolean(const ZelUIVar &variable, int64_t id, bool value, ZelOrigin origin);
    void setText(const ZelUIVar &variable, int64_t id, const zelWString &value, ZelOrigin origin);
    /// All components; they read as the initial value then.
    void unset(const ZelUIVar &variable, int64_t id, ZelOrigin origin = ZelOrigin::Module);
    /// Unsets everything that is computed: variables with role result and unchecked optional ones.
    void unsetResults(int64_t id);
    /// Back to initial values, results unset, options unchecked, messages gone; units stay. The
    /// observer hears each change with ZelOrigin::Load, the choice observer nothing: there is
    /// nothing to convert.
    void reset(int64_t id);
    /// The objects that hold values, in ascending order.
    std::vector<int64_t> objects() const;

    // What stands beside the value

    /// The unit in which the user sees the variable; the default unit of the dimension in the
    /// current unit system as long as nobody chose one.
    ZelDimensions::Unit currentUnit(const ZelUIVar &variable, int64_t id) const;
    /// NoUnit forgets the choice; a unit of another dimension changes nothing.
    void setCurrentUnit(const ZelUIVar &variable, int64_t id, ZelDimensions::Unit unit);
    /// True while the user enters the variable: always, but for results, for unchecked optional
    /// variables and for those of a choice that is set to another alternative.
    bool isEntered(const ZelUIVar &variable, int64_t id) const;
    /// The check box of an optional variable.
    bool isOptionChecked(const ZelUIVar &variable, int64_t id) const;
    /// Checking sets the variable: to what was computed last, else to its initial value. Unchecking
    /// unsets it until it is computed; checked again before that, it has its former value back.
    void setOptionChecked(const ZelUIVar &variable, int64_t id, bool checked, ZelOrigin origin);

    // Choices

    /// The choice that holds the variable, null for none.
    const ZelUIVarChoice *choiceOf(const ZelUIVar &variable) const;
    /// Sets the alternative (1 and up); an unknown number changes nothing.
    void pick(const ZelUIVarChoice &choice, int64_t id, short alternative, ZelOrigin origin);
    /// The user typed in a variable of a choice by typing: picks, among the alternatives that hold
    /// it, the one whose other members were typed last.
    void noteTyped(const ZelUIVar &variable, int64_t id);
    /// The member of a choice that was typed last; null when none was since an alternative was
    /// picked by pick().
    const ZelUIVar *lastTyped(const ZelUIVarChoice &choice, int64_t id) const;
    /// Called after an alternative was picked by anybody, with the former and the new one.
    using ChoiceObserver = std::function<void(const ZelUIVarChoice &, int64_t id, short former,
                                              short current, ZelOrigin)>;
    void setChoiceObserver(ChoiceObserver observer);

    // Messages colour fields: 0 none, 1 error, 2 warning.
    void setMessageState(const ZelUIVar &variable, int64_t id, int state);
    int messageState(const ZelUIVar &variable, int64_t id) const;
    void clearMessageStates(int64_t id);

    /// The one observer of all changes of values, options and choices.
    void setObserver(Observer observer);

private:
    struct Object;
    struct Private;

    std::vector<std::unique_ptr<ZelUIVar>> mVariables;
    std::unordered_map<std::wstring, ZelUIVar *> mByName;
    zelWString mModuleId;
    std::unique_ptr<Private> d;
};
