#include "zelConditionCompiler_p.h"

#include "meta.h"
#include "zelUIMultiVar.h"
#include "zelUIVarKinds.h"

#include <algorithm>

namespace {

constexpr int maxNesting = 50;

std::string utf8(const std::wstring &text)
{
    return zelWString(text).toUtf8();
}

std::string quoted(const std::wstring &text)
{
    return '"' + utf8(text) + '"';
}

std::string joined(const std::vector<zelWString> &names)
{
    std::string list;
    for (const zelWString &name : names)
        list += (list.empty() ? "" : ", ") + name.toUtf8();
    return list;
}

const char *const valueExpected = "a number, a text in single quotes or a variable";

// The operands of one level may recurse as deep as a line is long.
class Nesting
{
public:
    explicit Nesting(int &level)
        : mLevel(level)
    {
        ++mLevel;
    }
    ~Nesting() { --mLevel; }
    Nesting(const Nesting &) = delete;
    Nesting &operator=(const Nesting &) = delete;

private:
    int &mLevel;
};

} // namespace

ZelConditionCompiler::ZelConditionCompiler(const zelWString &source, const Meta &meta)
    : mMeta(meta)
    , mLexer(source.view())
{
}

void ZelConditionCompiler::compile()
{
    const Value value = parseOr();
    if (mLexer.token().mKind != ZelConditionLexer::Kind::End)
        failAtToken("\"and\", \"or\" or the end");
    need(value, Type::Flag);
}

void ZelConditionCompiler::fail(size_t at, std::string text, std::string expected) const
{
    throw ZelCondition::Fault{static_cast<int>(at), std::move(text), std::move(expected)};
}

void ZelConditionCompiler::failAtToken(std::string expected) const
{
    const ZelConditionLexer::Token &token = mLexer.token();
    switch (token.mKind) {
    case ZelConditionLexer::Kind::End:
        fail(token.mAt, "the condition ends too early", std::move(expected));
    case ZelConditionLexer::Kind::Bad:
        fail(token.mAt, "a character that does not belong here",
             "or, and, not, ==, !=, <, <=, >, >=, +, -, *, /, a number or a text in single quotes");
    default:
        fail(token.mAt, "unexpected " + quoted(token.mText), std::move(expected));
    }
}

void ZelConditionCompiler::need(const Value &value, Type type) const
{
    if (value.mType == type)
        return;
    if (type == Type::Number)
        fail(value.mAt, "this is no number", "a number");
    const std::string name = value.mVariable ? value.mVariable->name().toUtf8() : "";
    if (value.mType == Type::List)
        fail(value.mAt, "a list is neither true nor false", name + " == 'entry'");
    fail(value.mAt, "this is neither true nor false", "a comparison");
}

void ZelConditionCompiler::expectSign(const wchar_t *sign)
{
    if (!mLexer.isSign(sign))
        failAtToken(quoted(sign));
    mLexer.next();
}

void ZelConditionCompiler::emitStep(ZelCondition::Program::Step step, int depthChange)
{
    mDepth += depthChange;
    if (mDepth > ZelCondition::Program::maxStack)
        fail(mLexer.token().mAt, "the condition is nested too deep");
    if (step.mVariable
        && std::find(mOperands.begin(), mOperands.end(), step.mVariable) == mOperands.end())
        mOperands.push_back(step.mVariable);
    if (step.mOther
        && std::find(mOperands.begin(), mOperands.end(), step.mOther) == mOperands.end())
        mOperands.push_back(step.mOther);
    mProgram.mSteps.push_back(step);
}

void ZelConditionCompiler::emitOperation(Code code, int operands)
{
    ZelCondition::Program::Step step;
    step.mCode = code;
    emitStep(step, 1 - operands);
}

ZelConditionCompiler::Value ZelConditionCompiler::parseOr()
{
    const Nesting nesting(mNesting);
    if (mNesting > maxNesting)
        fail(mLexer.token().mAt, "the condition is nested too deep");
    Value left = parseAnd();
    while (mLexer.isName(L"or")) {
        need(left, Type::Flag);
        mLexer.next();
        need(parseAnd(), Type::Flag);
        emitOperation(Code::Or, 2);
    }
    return left;
}

ZelConditionCompiler::Value ZelConditionCompiler::parseAnd()
{
    Value left = parseNot();
    while (mLexer.isName(L"and")) {
        need(left, Type::Flag);
        mLexer.next();
        need(parseNot(), Type::Flag);
        emitOperation(Code::And, 2);
    }
    return left;
}

ZelConditionCompiler::Value ZelConditionCompiler::parseNot()
{
    const size_t at = mLexer.token().mAt;
    bool negate = false;
    bool any = false;
    // A loop: "not not not ..." may be as long as the line.
    while (mLexer.isName(L"not")) {
        mLexer.next();
        negate = !negate;
        any = true;
    }
    Value value = parseComparison();
    if (any) {
        need(value, Type::Flag);
        value.mAt = at;
        emitOperation(Code::Not, 1);
        if (!negate)
            emitOperation(Code::Not, 1);
    }
    return value;
}

ZelConditionCompiler::Value ZelConditionCompiler::parseComparison()
{
    Value left = parseSum();
    for (const wchar_t *sign : {L"==", L"!=", L"<=", L">=", L"<", L">"}) {
        if (!mLexer.isSign(sign))
            continue;
        const size_t at = mLexer.token().mAt;
        mLexer.next();
        compare(sign, at, left, parseSum());
        Value result;
        result.mAt = left.mAt;
        return result;
    }
    return left;
}

ZelConditionCompiler::Value ZelConditionCompiler::parseSum()
{
    Value left = parseProduct();
    while (mLexer.isSign(L"+") || mLexer.isSign(L"-")) {
        const Code code = mLexer.isSign(L"+") ? Code::Add : Code::Subtract;
        need(left, Type::Number);
        mLexer.next();
        need(parseProduct(), Type::Number);
        emitOperation(code, 2);
    }
    return left;
}

ZelConditionCompiler::Value ZelConditionCompiler::parseProduct()
{
    Value left = parseSign();
    while (mLexer.isSign(L"*") || mLexer.isSign(L"/")) {
        const Code code = mLexer.isSign(L"*") ? Code::Multiply : Code::Divide;
        need(left, Type::Number);
        mLexer.next();
        need(parseSign(), Type::Number);
        emitOperation(code, 2);
    }
    return left;
}

ZelConditionCompiler::Value ZelConditionCompiler::parseSign()
{
    const size_t at = mLexer.token().mAt;
    bool negate = false;
    bool any = false;
    while (mLexer.isSign(L"-") || mLexer.isSign(L"+")) {
        negate = negate != mLexer.isSign(L"-");
        any = true;
        mLexer.next();
    }
    Value value = parsePrimary();
    if (any) {
        need(value, Type::Number);
        value.mAt = at;
    }
    if (negate)
        emitOperation(Code::Negate, 1);
    return value;
}

ZelConditionCompiler::Value ZelConditionCompiler::parsePrimary()
{
    const ZelConditionLexer::Token token = mLexer.token();
    Value value;
    value.mAt = token.mAt;
    if (mLexer.isSign(L"(")) {
        mLexer.next();
        value = parseOr();
        value.mAt = token.mAt;
        expectSign(L")");
    } else if (token.mKind == ZelConditionLexer::Kind::Number) {
        value.mType = Type::Number;
        mLexer.next();
        emitStep({.mCode = Code::Constant, .mNumber = token.mNumber}, 1);
    } else if (token.mKind == ZelConditionLexer::Kind::Text) {
        value.mType = Type::Literal;
        value.mLiteral = zelWString(token.mText);
        mLexer.next();
    } else if (mLexer.isName(L"true") || mLexer.isName(L"false")) {
        mLexer.next();
        emitStep({.mCode = Code::Constant, .mNumber = token.mText == L"true" ? 1.0 : 0.0}, 1);
    } else if (token.mKind == ZelConditionLexer::Kind::Name && !mLexer.isName(L"and")
               && !mLexer.isName(L"or") && !mLexer.isName(L"not")) {
        value = parseName();
    } else {
        failAtToken(valueExpected);
    }
    return value;
}

ZelConditionCompiler::Value ZelConditionCompiler::parseName()
{
    const ZelConditionLexer::Token token = mLexer.token();
    mLexer.next();
    if (mLexer.isSign(L"("))
        return parseCall(token.mText, token.mAt);
    const ZelUIVar &found = variable(token.mText, token.mAt);
    return variableValue(found, parseComponent(found), token.mAt);
}

ZelConditionCompiler::Value ZelConditionCompiler::parseCall(const std::wstring &function, size_t at)
{
    const bool rows = function == L"rows";
    const bool set = function == L"set";
    if (!rows && !set && function != L"entered")
        fail(at, "there is no function " + quoted(function), "set, entered, rows");
    mLexer.next();
    const ZelConditionLexer::Token name = mLexer.token();
    if (name.mKind != ZelConditionLexer::Kind::Name)
        failAtToken("the name of a variable");
    mLexer.next();
    const ZelUIVar &found = variable(name.mText, name.mAt);
    if (rows != (dynamic_cast<const ZelUIVarTable *>(&found) != nullptr))
        fail(name.mAt, quoted(name.mText) + (rows ? " is no table" : " is a table"),
             rows ? "a table" : "rows(" + utf8(name.mText) + ")");
    const int component = set ? parseComponent(found) : 0;
    expectSign(L")");
    const Code code = rows ? Code::Rows : set ? Code::Set : Code::Entered;
    emitStep({.mCode = code, .mComponent = component, .mVariable = &found}, 1);
    Value value;
    value.mType = rows ? Type::Number : Type::Flag;
    value.mAt = at;
    return value;
}

// Components count from 1 in the text and from 0 in the store.
int ZelConditionCompiler::parseComponent(const ZelUIVar &variable)
{
    if (!mLexer.isSign(L"["))
        return 0;
    mLexer.next();
    const ZelConditionLexer::Token token = mLexer.token();
    for (int component = 0; component < variable.componentCount(); ++component) {
        if (token.mKind == ZelConditionLexer::Kind::Number && token.mNumber == component + 1) {
            mLexer.next();
            expectSign(L"]");
            return component;
        }
    }
    fail(token.mAt, variable.name().toUtf8() + " has no such component",
         variable.componentCount() == 1 ? "1"
                                        : "1 to " + std::to_string(variable.componentCount()));
}

ZelConditionCompiler::Value ZelConditionCompiler::variableValue(const ZelUIVar &variable,
                                                                int component, size_t at)
{
    Value value;
    value.mAt = at;
    value.mVariable = &variable;
    const ZelVarStorage storage = variable.storage();
    if (storage == ZelVarStorage::None) {
        const bool table = dynamic_cast<const ZelUIVarTable *>(&variable) != nullptr;
        fail(at, quoted(variable.name()) + " has no value",
             table ? "rows(" + variable.name().toUtf8() + ")" : "");
    }
    if (storage == ZelVarStorage::Text)
        value.mType = Type::Text;
    else if (storage == ZelVarStorage::Integer && !variable.entryNames().empty())
        value.mType = Type::List;
    else if (storage == ZelVarStorage::Boolean)
        emitStep({.mCode = Code::Flag, .mVariable = &variable}, 1);
    else
        emitStep({.mCode = Code::Number, .mComponent = component, .mVariable = &variable}, 1);
    if (storage == ZelVarStorage::Real
        || (storage == ZelVarStorage::Integer && value.mType != Type::List))
        value.mType = Type::Number;
    return value;
}

const ZelUIVar &ZelConditionCompiler::variable(const std::wstring &name, size_t at)
{
    const ZelUIVar *found = mMeta.variable(name);
    if (!found)
        fail(at, "there is no variable " + quoted(name), "a variable of the module");
    return *found;
}

void ZelConditionCompiler::compare(const std::wstring &sign, size_t at, const Value &left,
                                   const Value &right)
{
    const bool equality = sign == L"==" || sign == L"!=";
    const bool equal = sign == L"==";
    if (left.mType == Type::Number) {
        need(right, Type::Number);
        const Code code = equal ? Code::Equal
            : sign == L"!="     ? Code::NotEqual
            : sign == L"<"      ? Code::Less
            : sign == L"<="     ? Code::LessOrEqual
            : sign == L">"      ? Code::Greater
                                : Code::GreaterOrEqual;
        emitOperation(code, 2);
        return;
    }
    if (!equality)
        fail(at, quoted(sign) + " compares numbers only", "== or !=");
    if (left.mType == Type::Flag) {
        need(right, Type::Flag);
        emitOperation(equal ? Code::Equal : Code::NotEqual, 2);
    } else if (left.mType == Type::Text) {
        compareTexts(equal, *left.mVariable, right);
    } else if (left.mType == Type::List) {
        compareEntry(equal, *left.mVariable, right);
    } else if (right.mType == Type::Text) {
        compareTexts(equal, *right.mVariable, left);
    } else if (right.mType == Type::List) {
        compareEntry(equal, *right.mVariable, left);
    } else {
        fail(right.mAt, "a text compares with a variable only", "a text variable or a list");
    }
}

void ZelConditionCompiler::compareTexts(bool equal, const ZelUIVar &variable, const Value &right)
{
    if (right.mType == Type::Text) {
        const Code code = equal ? Code::TextsAre : Code::TextsAreNot;
        emitStep({.mCode = code, .mVariable = &variable, .mOther = right.mVariable}, 1);
        return;
    }
    if (right.mType != Type::Literal)
        fail(right.mAt, "this is no text", "a text in single quotes");
    const Code code = equal ? Code::TextIs : Code::TextIsNot;
    emitStep({.mCode = code, .mVariable = &variable, .mText = mProgram.mTexts.size()}, 1);
    mProgram.mTexts.push_back(right.mLiteral);
}

void ZelConditionCompiler::compareEntry(bool equal, const ZelUIVar &list, const Value &literal)
{
    const std::string names = joined(list.entryNames());
    if (literal.mType != Type::Literal)
        fail(literal.mAt, "a list compares with an entry in single quotes only", names);
    const std::optional<int64_t> id = list.entryId(literal.mLiteral);
    if (!id)
        fail(literal.mAt, quoted(literal.mLiteral) + " is no entry of " + list.name().toUtf8(),
             names);
    emitStep({.mCode = Code::Entry, .mVariable = &list}, 1);
    emitStep({.mCode = Code::Constant, .mNumber = static_cast<double>(*id)}, 1);
    emitOperation(equal ? Code::Equal : Code::NotEqual, 2);
}
