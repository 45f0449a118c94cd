#include "zelCondition.h"

#include "meta.h"
#include "zelConditionCompiler_p.h"

#include <array>
#include <limits>

namespace {

using Code = ZelCondition::Program::Code;

constexpr double unset = std::numeric_limits<double>::quiet_NaN();

bool truth(double value)
{
    return value == 1;
}

double number(bool value)
{
    return value ? 1 : 0;
}

double load(const ZelCondition::Program &program, const ZelCondition::Program::Step &step,
            const Meta &meta, int64_t id)
{
    const auto isSet = [&](const ZelUIVar *variable) {
        return meta.isSet(*variable, id, step.mComponent);
    };
    switch (step.mCode) {
    case Code::Constant:
        return step.mNumber;
    case Code::Number:
        return isSet(step.mVariable) ? meta.real(*step.mVariable, id, step.mComponent) : unset;
    case Code::Flag:
        return isSet(step.mVariable) ? number(meta.boolean(*step.mVariable, id)) : unset;
    case Code::Entry:
        return isSet(step.mVariable) ? static_cast<double>(meta.integer(*step.mVariable, id))
                                     : unset;
    case Code::Set:
        return number(isSet(step.mVariable));
    case Code::Entered:
        return number(meta.isEntered(*step.mVariable, id));
    case Code::TextIs:
    case Code::TextIsNot: {
        const bool same = meta.textView(*step.mVariable, id) == program.mTexts[step.mText].view();
        return number(isSet(step.mVariable) && same == (step.mCode == Code::TextIs));
    }
    case Code::TextsAre:
    case Code::TextsAreNot: {
        const bool same = meta.textView(*step.mVariable, id) == meta.textView(*step.mOther, id);
        return number(isSet(step.mVariable) && isSet(step.mOther)
                      && same == (step.mCode == Code::TextsAre));
    }
    default:
        return 0; // rows of a table: the store holds none yet
    }
}

bool isLoad(Code code)
{
    return code < Code::Or;
}

double combine(Code code, double a, double b)
{
    switch (code) {
    case Code::Or:
        return number(truth(a) || truth(b));
    case Code::And:
        return number(truth(a) && truth(b));
    case Code::Equal:
        return number(a == b);
    case Code::NotEqual:
        return number(a < b || a > b); // false for NaN, as all comparisons are
    case Code::Less:
        return number(a < b);
    case Code::LessOrEqual:
        return number(a <= b);
    case Code::Greater:
        return number(a > b);
    case Code::GreaterOrEqual:
        return number(a >= b);
    case Code::Add:
        return a + b;
    case Code::Subtract:
        return a - b;
    case Code::Multiply:
        return a * b;
    case Code::Divide:
        return b == 0 ? unset : a / b;
    default:
        return unset;
    }
}

} // namespace

ZelCondition::ZelCondition() = default;
ZelCondition::~ZelCondition() = default;

std::shared_ptr<const ZelCondition> ZelCondition::compile(const zelWString &text, const Meta &meta,
                                                          Fault &fault)
{
    ZelConditionCompiler compiler(text, meta);
    try {
        compiler.compile();
    } catch (const Fault &found) {
        fault = found;
        return nullptr;
    }
    const std::shared_ptr<ZelCondition> condition(new ZelCondition);
    condition->mProgram = std::make_unique<Program>(std::move(compiler.mProgram));
    condition->mOperands = std::move(compiler.mOperands);
    return condition;
}

bool ZelCondition::evaluate(const Meta &meta, int64_t id) const
{
    std::array<double, Program::maxStack> stack;
    size_t top = 0; // the first free place; the compiler has checked that there are enough
    for (const Program::Step &step : mProgram->mSteps) {
        if (isLoad(step.mCode)) {
            stack[top++] = load(*mProgram, step, meta, id);
        } else if (step.mCode == Code::Not) {
            stack[top - 1] = number(!truth(stack[top - 1]));
        } else if (step.mCode == Code::Negate) {
            stack[top - 1] = -stack[top - 1];
        } else {
            --top;
            stack[top - 1] = combine(step.mCode, stack[top - 1], stack[top]);
        }
    }
    return truth(stack[0]);
}
