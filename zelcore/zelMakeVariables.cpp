#include "meta.h"
#include "zelDomNode.h"
#include "zelFormulaText.h"
#include "zelParse_p.h"
#include "zelSchemaPasses_p.h"
#include "zelUIMultiVar.h"
#include "zelUIVarChoice.h"
#include "zelUIVarKinds.h"
#include "zelUIVarLists.h"

#include <array>
#include <cstdio>

// Nodes have passed the check: a value that can't be read has been taken out, so its default
// counts.

namespace {

using Made = std::unique_ptr<ZelUIVar>;

bool flag(const ZelDomNode &node, const zelWString &attribute, bool otherwise = false)
{
    return zelParseBool(node.attribute(attribute)).value_or(otherwise);
}

void setNumbers(const ZelDomNode &node, ZelUIMultiVar &variable)
{
    const auto bottom = zelParseNumber(node.attribute(L"bottom"));
    const auto top = zelParseNumber(node.attribute(L"top"));
    variable.mHasBottom = bottom.has_value();
    variable.mHasTop = top.has_value();
    variable.mBottom = bottom.value_or(0);
    variable.mTop = top.value_or(0);
    variable.mStepped = node.hasAttribute(L"step");
    variable.mStep = zelParseNumber(node.attribute(L"step")).value_or(1);
    const auto initial = zelParseNumbers(node.attribute(L"initial"));
    for (size_t i = 0; initial && i < std::min<size_t>(initial->size(), 3); ++i)
        variable.mInitial[i] = (*initial)[i];
}

Made makeNumber(const ZelDomNode &node)
{
    const auto unit = zelParseUnit(node.attribute(L"unit")).value_or(ZelDimensions::NoUnit);
    const int components = zelParseComponents(node.attribute(L"components")).value_or(1);
    auto made = std::make_unique<ZelUIMultiVar>(node.attribute(L"name"), unit, components);
    const bool whole = node.name() == L"int";
    made->mValueKind = whole ? 1 : 0;
    made->mDecimals =
        static_cast<short>(whole ? 0 : zelParseInteger(node.attribute(L"decimals")).value_or(4));
    setNumbers(node, *made);
    return made;
}

Made makeBool(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarBool>(node.attribute(L"name"));
    made->mInitial = flag(node, L"initial");
    return made;
}

Made makeText(const ZelDomNode &node)
{
    if (node.attribute(L"role") == L"result") {
        auto shown = std::make_unique<ZelUIVarText>(node.attribute(L"name"));
        shown->mInitial = node.attribute(L"initial");
        return shown;
    }
    auto made = std::make_unique<ZelUIVarString>(node.attribute(L"name"));
    made->mInitial = node.attribute(L"initial");
    made->mPlaceholder.setup(&node, L"placeholder");
    return made;
}

template <class Variable> Made makeWithInitial(const ZelDomNode &node)
{
    auto made = std::make_unique<Variable>(node.attribute(L"name"));
    made->mInitial = node.attribute(L"initial");
    return made;
}

template <class Variable> Made makeWithFunction(const ZelDomNode &node)
{
    auto made = std::make_unique<Variable>(node.attribute(L"name"));
    made->mFunction = node.attribute(L"function");
    return made;
}

Made makeList(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarList>(node.attribute(L"name"));
    for (const ZelDomNode *child = node.firstChild(); child; child = child->nextSibling()) {
        ZelListEntry entry;
        entry.mId = static_cast<short>(zelParseInteger(child->attribute(L"id")).value_or(0));
        entry.mName = child->attribute(L"name");
        entry.mText.setup(child);
        made->mEntries.push_back(std::move(entry));
    }
    const ZelListEntry *initial = made->entry(node.attribute(L"initial"));
    if (!initial && !made->mEntries.empty())
        initial = &made->mEntries.front();
    made->mInitial = initial ? initial->mId : short(0);
    return made;
}

// An entry without text shows its number, with the decimals and the unit of the list.
zelWString numberText(const ZelDomNode &list, double number)
{
    const long decimals = zelParseInteger(list.attribute(L"decimals")).value_or(4);
    std::array<char, 400> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.*f", static_cast<int>(decimals), number);
    std::wstring text = zelWString::fromUtf8(buffer.data());
    const auto unit = zelParseUnit(list.attribute(L"unit")).value_or(ZelDimensions::NoUnit);
    const std::wstring unitText = ZelDimensions::getString(unit);
    return unitText.empty() ? text : text + L' ' + unitText;
}

Made makeNumberList(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarRealList>(node.attribute(L"name"));
    for (const ZelDomNode *child = node.firstChild(); child; child = child->nextSibling()) {
        ZelListEntry entry;
        entry.mNumber = zelParseNumber(child->attribute(L"number")).value_or(0);
        entry.mName = child->attribute(L"name");
        entry.mId = static_cast<short>(made->mEntries.size() + 1);
        if (child->hasAttribute(L"text"))
            entry.mText.setup(child);
        else
            entry.mText.setText(numberText(node, entry.mNumber));
        made->mEntries.push_back(std::move(entry));
    }
    const double first = made->mEntries.empty() ? 0 : made->mEntries.front().mNumber;
    made->mInitial = zelParseNumber(node.attribute(L"initial")).value_or(first);
    return made;
}

Made makeChoice(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarChoice>(node.attribute(L"name"));
    made->mBy =
        node.attribute(L"by") == L"typing" ? ZelUIVarChoice::Typing : ZelUIVarChoice::Switch;
    for (const ZelDomNode *child = node.firstChild(); child; child = child->nextSibling()) {
        ZelListEntry entry;
        entry.mId = static_cast<short>(made->mEntries.size() + 1);
        entry.mName = child->attribute(L"name");
        entry.mText.setup(child);
        made->mEntries.push_back(std::move(entry));
    }
    const ZelListEntry *initial = made->entry(node.attribute(L"initial"));
    made->mInitial = initial ? initial->mId : short(1);
    return made;
}

Made makeTable(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarTable>(node.attribute(L"name"));
    const zelWString source = node.attribute(L"source");
    made->mDataSource = source == L"calculation" ? DataSource::Calculation
        : source == L"database"                  ? DataSource::Database
        : source == L"filtered"                  ? DataSource::Filtered
                                                 : DataSource::User;
    made->mRemoveRowsButtons = flag(node, L"removebuttons", true);
    return made;
}

short initialId(const ZelDomNode &node)
{
    return static_cast<short>(zelParseInteger(node.attribute(L"initial")).value_or(0));
}

Made makeFunctionList(const ZelDomNode &node)
{
    if (flag(node, L"dynamic")) {
        auto objects = std::make_unique<ZelUIVarFuncListDynamic>(node.attribute(L"name"));
        objects->mFunction = node.attribute(L"function");
        objects->mInitial = initialId(node);
        return objects;
    }
    auto made = std::make_unique<ZelUIVarFuncList>(node.attribute(L"name"));
    made->mFunction = node.attribute(L"function");
    made->mInitial = initialId(node);
    return made;
}

Made makeFunctionNumberList(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarRealFuncList>(node.attribute(L"name"));
    made->mFunction = node.attribute(L"function");
    made->mInitial = zelParseNumber(node.attribute(L"initial")).value_or(0);
    return made;
}

template <class Variable> std::unique_ptr<Variable> makeFromDatabase(const ZelDomNode &node)
{
    auto made = std::make_unique<Variable>(node.attribute(L"name"));
    made->mDatabase = node.attribute(L"database");
    made->mTable = node.attribute(L"table");
    if (node.hasAttribute(L"column"))
        made->mIdColumn = node.attribute(L"column");
    made->mOwn.setup(&node, L"own");
    made->mInitial = initialId(node);
    return made;
}

Made makeDatabaseList(const ZelDomNode &node)
{
    if (!node.hasAttribute(L"function"))
        return makeFromDatabase<ZelUIVarDBList>(node);
    auto made = makeFromDatabase<ZelUIVarDBFuncList>(node);
    made->mFunction = node.attribute(L"function");
    return made;
}

Made makeMaterial(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarMatList>(node.attribute(L"name"));
    for (const zelWString &word : zelWords(node.attribute(L"types"), true))
        made->mTypes.push_back(static_cast<short>(zelParseInteger(word).value_or(0)));
    made->mOwn.setup(&node, L"own");
    made->mInitial = initialId(node);
    return made;
}

Made makeLubricant(const ZelDomNode &node)
{
    auto made = std::make_unique<ZelUIVarLubList>(node.attribute(L"name"));
    made->mOwn.setup(&node, L"own");
    made->mInitial = initialId(node);
    return made;
}

struct Maker
{
    std::wstring_view mTag;
    Made (*mMake)(const ZelDomNode &);
};

constexpr std::array makers{
    Maker{L"real", makeNumber},
    Maker{L"int", makeNumber},
    Maker{L"bool", makeBool},
    Maker{L"text", makeText},
    Maker{L"notes", makeWithInitial<ZelUIVarMultilineString>},
    Maker{L"functext", makeWithFunction<ZelUIVarFuncText>},
    Maker{L"button", makeWithFunction<ZelUIVarTextButton>},
    Maker{L"image", makeWithInitial<ZelUIVarImage>},
    Maker{L"list", makeList},
    Maker{L"reallist", makeNumberList},
    Maker{L"funclist", makeFunctionList},
    Maker{L"realfunclist", makeFunctionNumberList},
    Maker{L"dblist", makeDatabaseList},
    Maker{L"material", makeMaterial},
    Maker{L"lubricant", makeLubricant},
    Maker{L"choice", makeChoice},
    Maker{L"table", makeTable},
};

void setCommon(const ZelDomNode &node, ZelUIVar &variable)
{
    variable.mText.setup(&node);
    variable.mStatusTip.setup(&node, L"status");
    variable.mFormula = zelFormulaText(node.attribute(L"formula"));
    if (const auto help = zelParseInteger(node.attribute(L"help")))
        variable.mHelpCode = static_cast<int>(*help);
    variable.mUpdateBlocking = flag(node, L"blocking");
    variable.mResult = node.attribute(L"role") == L"result";
    variable.mOptional = flag(node, L"optional");
}

void makeVariable(const ZelDomNode &node, Meta &meta)
{
    for (const Maker &maker : makers) {
        if (node.name().view() != maker.mTag)
            continue;
        Made made = maker.mMake(node);
        setCommon(node, *made);
        meta.add(std::move(made));
    }
}

// Members stand behind their choice in the file as often as before it.
void fillChoice(const ZelDomNode &node, Meta &meta)
{
    auto *choice = dynamic_cast<ZelUIVarChoice *>(meta.variable(node.attribute(L"name")));
    if (!choice)
        return;
    for (const ZelDomNode *child = node.firstChild(); child; child = child->nextSibling()) {
        std::vector<const ZelUIVar *> members;
        for (const zelWString &name : zelWords(child->attribute(L"vars"))) {
            if (const ZelUIVar *variable = meta.variable(name))
                members.push_back(variable);
        }
        choice->mAlternatives.push_back(std::move(members));
    }
}

template <class Visit> void forEachVariable(const ZelDomNode &root, Visit visit)
{
    for (const ZelDomNode *group = root.firstChild(L"variables"); group;
         group = group->nextSibling(L"variables")) {
        for (const ZelDomNode *node = group->firstChild(); node; node = node->nextSibling())
            visit(*node);
    }
}

} // namespace

void zelMakeVariables(const ZelDomNode &root, Meta &meta)
{
    forEachVariable(root, [&meta](const ZelDomNode &node) { makeVariable(node, meta); });
    forEachVariable(root, [&meta](const ZelDomNode &node) {
        if (node.name() == L"choice")
            fillChoice(node, meta);
    });
}
