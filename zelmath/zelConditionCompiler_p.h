#pragma once

#include "zelConditionLexer_p.h"
#include "zelConditionProgram_p.h"

#include <optional>

/// Parses and type-checks a condition by recursive descent. The first fault is thrown.
class ZelConditionCompiler
{
public:
    ZelConditionCompiler(const zelWString &source, const Meta &meta);
    /// Throws ZelCondition::Fault.
    void compile();

    ZelCondition::Program mProgram;
    std::vector<const ZelUIVar *> mOperands;

private:
    using Code = ZelCondition::Program::Code;
    // Texts and lists emit no step of their own: they have a value only in a comparison.
    enum class Type { Flag, Number, Text, List, Literal };
    struct Value
    {
        Type mType = Type::Flag;
        size_t mAt = 0;
        const ZelUIVar *mVariable = nullptr;
        zelWString mLiteral;
    };

    Value parseOr();
    Value parseAnd();
    Value parseNot();
    Value parseComparison();
    Value parseSum();
    Value parseProduct();
    Value parseSign();
    Value parsePrimary();
    Value parseName();
    Value parseCall(const std::wstring &function, size_t at);
    int parseComponent(const ZelUIVar &variable);
    Value variableValue(const ZelUIVar &variable, int component, size_t at);

    void compare(const std::wstring &sign, size_t at, const Value &left, const Value &right);
    void compareTexts(bool equal, const ZelUIVar &variable, const Value &right);
    void compareEntry(bool equal, const ZelUIVar &list, const Value &literal);

    const ZelUIVar &variable(const std::wstring &name, size_t at);
    void need(const Value &value, Type type) const;
    void expectSign(const wchar_t *sign);
    void emitStep(ZelCondition::Program::Step step, int depthChange);
    void emitOperation(Code code, int operands);
    [[noreturn]] void fail(size_t at, std::string text, std::string expected = {}) const;
    [[noreturn]] void failAtToken(std::string expected) const;

    const Meta &mMeta;
    ZelConditionLexer mLexer;
    int mNesting = 0;
    int mDepth = 0;
};
