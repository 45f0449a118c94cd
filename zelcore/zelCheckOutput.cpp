#include "zelCheckParts_p.h"

#include "zelMask.h"
#include "zelUIComboBox.h"
#include "zelUIFlag.h"
#include "zelUIMultiVar.h"
#include "zelUINotepad.h"
#include "zelUITabPage.h"
#include "zelUITextLabel.h"
#include "zelUIValueEdit.h"
#include "zelUIVarKinds.h"

#include <array>
#include <cstdio>
#include <ostream>

namespace {

// Inputs come back as they were entered; results have the digits of tables.
constexpr int inputDigits = 12;
constexpr int resultDigits = 6;

std::string number(double value, int digits)
{
    std::array<char, 64> buffer{};
    // Nobody wants to read a zero with a sign.
    std::snprintf(buffer.data(), buffer.size(), "%.*g", digits, value == 0 ? 0.0 : value);
    return buffer.data();
}

// What a part of a line shows; nothing for parts that show no value.
std::string shownValue(const ZelUIItem &item, bool entered)
{
    if (const auto *edit = dynamic_cast<const ZelUIValueEdit *>(&item)) {
        const std::string text =
            number(edit->valueInCurrentUnit(), entered ? inputDigits : resultDigits);
        const std::string unit = edit->getCurrentUnitString().toUtf8();
        return unit.empty() ? text : text + ' ' + unit;
    }
    if (const auto *flag = dynamic_cast<const ZelUIFlag *>(&item))
        return flag->mChecked ? "true" : "false";
    if (const auto *notepad = dynamic_cast<const ZelUINotepad *>(&item))
        return notepad->mText.toUtf8();
    return {};
}

// True for parts that show the value of their variable.
bool showsValue(const ZelUIItem &item)
{
    return dynamic_cast<const ZelUIInput *>(&item) || dynamic_cast<const ZelUIFlag *>(&item)
        || dynamic_cast<const ZelUINotepad *>(&item);
}

class CalculationPrinter
{
public:
    CalculationPrinter(const ZelMask &mask, std::ostream &out)
        : mMask(mask)
        , mOut(out)
    {
    }
    void print(const char *title, bool entered);

private:
    void printBelow(const ZelUIObject &object, bool entered);
    void printItem(ZelUIItem &item, bool entered);

    const ZelMask &mMask;
    std::ostream &mOut;
};

void CalculationPrinter::print(const char *title, bool entered)
{
    mOut << title << '\n';
    for (const ZelUITabPage *page : mMask.pages())
        printBelow(*page, entered);
}

void CalculationPrinter::printBelow(const ZelUIObject &object, bool entered)
{
    for (ZelUIObject *child : object.modelChildren()) {
        if (auto *item = dynamic_cast<ZelUIItem *>(child))
            printItem(*item, entered);
        printBelow(*child, entered);
    }
}

void CalculationPrinter::printItem(ZelUIItem &item, bool entered)
{
    const ZelUIVar *variable = item.modelVariable();
    const bool wanted = variable && item.mVisible && showsValue(item)
        && mMask.meta().isEntered(*variable, mMask.id()) == entered;
    if (!wanted)
        return;
    auto *input = dynamic_cast<ZelUIInput *>(&item);
    std::string value = shownValue(item, entered);
    if (value.empty() && input)
        value = input->getRenderedData().toUtf8();
    const bool empty =
        !item.mEnabled || !mMask.meta().isSet(*variable, mMask.id(), item.modelComponent());
    const std::string text = variable->mText.getText().toUtf8();
    const std::string symbol = zelPlainFormula(variable->mFormula.toUtf8());
    mOut << "  " << (text.empty() ? variable->name().toUtf8() : text)
         << (symbol.empty() ? "" : ", " + symbol);
    if (variable->componentCount() > 1)
        mOut << " [" << item.modelComponent() + 1 << ']';
    mOut << " = " << (empty ? "-" : value) << '\n';
}

const char *severityText(ZelMessageSeverity severity)
{
    switch (severity) {
    case ZelMessageSeverity::Error:
        return "error";
    case ZelMessageSeverity::Warning:
        return "warning";
    case ZelMessageSeverity::Note:
        break;
    }
    return "note";
}

} // namespace

void zelPrintCalculation(const ZelMask &mask, const ZelCalcResult &result, std::ostream &out)
{
    CalculationPrinter printer(mask, out);
    printer.print("Inputs", true);
    printer.print("Results", false);
    out << "Messages\n";
    for (const ZelCalcMessage &message : result.mMessages)
        out << "  " << severityText(message.mSeverity) << ": " << message.text().toUtf8() << '\n';
    if (!result.mSucceeded)
        out << "The calculation was refused.\n";
}

std::string zelPlainFormula(const std::string &richText)
{
    struct Replacement
    {
        std::string_view mRich;
        std::string_view mPlain;
    };
    constexpr std::array replacements{
        Replacement{"<sub>", "_"},   Replacement{"</sub>", ""}, Replacement{"<sup>", "^"},
        Replacement{"</sup>", ""},   Replacement{"&lt;", "<"},  Replacement{"&gt;", ">"},
        Replacement{"&quot;", "\""}, Replacement{"&amp;", "&"},
    };
    std::string plain;
    for (size_t at = 0; at < richText.size();) {
        const std::string_view rest = std::string_view(richText).substr(at);
        size_t length = 0;
        for (const Replacement &replacement : replacements) {
            if (length == 0 && rest.starts_with(replacement.mRich)) {
                plain += replacement.mPlain;
                length = replacement.mRich.size();
            }
        }
        if (length == 0)
            plain += richText[at];
        at += std::max<size_t>(length, 1);
    }
    return plain;
}
