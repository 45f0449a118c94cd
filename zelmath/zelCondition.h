#pragma once

#include "zelWString.h"
#include "zelmath_export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class Meta;
class ZelUIVar;

/// A compiled condition over the variables of a module:
///
///     or  and  not  == != < <= > >=  + - * /  ( )  number  'entry or text'  true  false
///     name  name[2]  set(x)  entered(x)  rows(table)
///
/// A quote inside a text is written twice. It is type-checked when it is compiled; evaluating
/// allocates nothing and cannot fail. Numbers count in default units. With an unset value or a
/// division by 0 a comparison is false.
class ZELMATH_EXPORT ZelCondition
{
public:
    /// What is wrong with a condition, with the character it was found at, from 0.
    struct Fault
    {
        int mAt = 0;
        std::string mText;
        std::string mExpected;
    };

    ~ZelCondition();

    /// Null with the fault filled when the text is no condition over the variables of `meta`.
    static std::shared_ptr<const ZelCondition> compile(const zelWString &text, const Meta &meta,
                                                       Fault &fault);

    bool evaluate(const Meta &meta, int64_t id) const;
    /// The variables it reads, each once.
    const std::vector<const ZelUIVar *> &operands() const { return mOperands; }

    struct Program;

private:
    ZelCondition();
    std::unique_ptr<Program> mProgram;
    std::vector<const ZelUIVar *> mOperands;
};
