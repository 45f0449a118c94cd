#include "zelCalcModule.h"

#include "internMessage.h"
#include "zelDescription.h"
#include "zelDomNode.h"
#include "zelSchemaPasses_p.h"
#include "zelUIVarChoice.h"

#include <exception>

namespace {

// Numbers of the pool.
constexpr const char *noCalculation = "#8470";
constexpr const char *internalError = "#8471";

const ZelDomNode *nodeOf(const zelWString &name, const ZelDomNode &root)
{
    for (const ZelDomNode *group = root.firstChild(L"variables"); group;
         group = group->nextSibling(L"variables")) {
        for (const ZelDomNode *node = group->firstChild(); node; node = node->nextSibling()) {
            if (node->attribute(L"name") == name)
                return node;
        }
    }
    return nullptr;
}

} // namespace

ZelCalcModule::ZelCalcModule()
{
    mMeta.setChoiceObserver([this](const ZelUIVarChoice &choice, int64_t id, short former,
                                   short current, ZelOrigin origin) {
        // A file brings the values of the alternative along, and the module knows what it does.
        if (mCanCalculate && origin == ZelOrigin::User)
            convert(choice, former, current, id);
    });
}

ZelCalcModule::~ZelCalcModule() = default;

void ZelCalcModule::choiceChanged(const ZelUIVarChoice &, short, short, int64_t)
{
}

// What the user has just typed stays as it is, also when the module converts all of an alternative.
void ZelCalcModule::convert(const ZelUIVarChoice &choice, short former, short current, int64_t id)
{
    const bool typing = choice.mBy == ZelUIVarChoice::Typing;
    const ZelUIVar *typed = typing ? mMeta.lastTyped(choice, id) : nullptr;
    std::vector<double> values;
    for (int component = 0; typed && component < typed->componentCount(); ++component)
        values.push_back(mMeta.real(*typed, id, component));
    try {
        choiceChanged(choice, former, current, id);
    } catch (const std::exception &exception) {
        internMessage(__FILE__, __LINE__, exception.what());
    }
    for (size_t component = 0; component < values.size(); ++component)
        mMeta.setReal(*typed, id, static_cast<int>(component), values[component],
                      ZelOrigin::Module);
}

void ZelCalcModule::bindHandles(const ZelDescription &description, ZelFaultList &faults)
{
    mCanCalculate = true;
    if (description.root())
        mTexts = description.root()->texts();
    for (ZelVarHandle *handle : mHandles) {
        const ZelVarHandle::Mismatch mismatch = handle->bind(mMeta);
        if (mismatch == ZelVarHandle::None)
            continue;
        mCanCalculate = false;
        addHandleFault(*handle, mismatch, description, faults);
    }
}

void ZelCalcModule::addHandleFault(const ZelVarHandle &handle, ZelVarHandle::Mismatch mismatch,
                                   const ZelDescription &description, ZelFaultList &faults) const
{
    const ZelDomNode *root = description.root();
    const ZelDomNode *node = root ? nodeOf(handle.name(), *root) : nullptr;
    ZelPlace place;
    if (node)
        place = mismatch == ZelVarHandle::Unit ? node->attributeValuePlace(L"unit") : node->place();
    else if (root)
        place = root->attributeValuePlace(L"class");
    const std::string what = mismatch == ZelVarHandle::Missing ? "no variable"
        : mismatch == ZelVarHandle::Kind                       ? "another kind of variable"
                                                               : "another unit of";
    const ZelFaultCode code = mismatch == ZelVarHandle::Missing ? ZelFaultCode::MissingHandle
        : mismatch == ZelVarHandle::Kind                        ? ZelFaultCode::WrongKind
                                                                : ZelFaultCode::WrongUnit;
    ZelCheckReport(description.fileName(), faults)
        .add(code, place,
             "the calculation " + description.className().toUtf8() + " finds " + what + " \""
                 + handle.name().toUtf8() + '"',
             handle.expectedTag());
}

ZelCalcResult ZelCalcModule::run(int64_t id)
{
    mMeta.clearMessageStates(id);
    ZelCalcRun run(mMeta, id, mTexts);
    if (mCanCalculate) {
        try {
            calculate(run);
        } catch (const std::exception &exception) {
            run.error("exception", {}, internalError, {exception.what()});
        } catch (...) {
            run.error("exception", {}, internalError, {"?"});
        }
    } else {
        run.error("noCalculation", {}, noCalculation);
    }
    if (run.hasErrors())
        mMeta.unsetResults(id);
    return {!run.hasErrors(), run.messages()};
}
