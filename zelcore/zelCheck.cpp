#include "zelCheck.h"

#include "zelCheckParts_p.h"
#include "zelMask.h"
#include "zelSchema.h"
#include "zelTextForm.h"
#include "zelUiPlainFactory.h"
#include "zelUnitsText.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>

namespace {

constexpr int good = 0;
constexpr int faulty = 1;
constexpr int badCall = 2;

constexpr const char *usage =
    "usage: zelcheck [--calculate VALUES] [--language LANGUAGE] [--us] [--texts] FILE\n"
    "       zelcheck --schema | --units | --help\n"
    "  FILE                 description whose faults are listed\n"
    "  --calculate VALUES   fills the mask from a file of values, calculates, prints the results\n"
    "  --language LANGUAGE  de, en, fr, it, es, ru, pt, zh or ja; de without it\n"
    "  --us                 US customary units\n"
    "  --texts              lists the texts without translation into the language, en without it\n"
    "  --schema             prints the page of documentation about descriptions\n"
    "  --units              prints the page of documentation about units\n"
    "Exit code: 0; 1 for faults or a refused calculation; 2 for a bad call or file.\n";

// In the order of the languages.
constexpr std::array<std::string_view, zelLanguageCount> languageCodes{"de", "en", "fr", "it", "es",
                                                                       "ru", "pt", "zh", "ja"};

struct Call
{
    std::string mFile;
    std::string mValues;
    std::optional<ZelLanguage> mLanguage;
    bool mUSCustomary = false;
    bool mTexts = false;
    /// Printed instead of reading a file.
    std::string (*mPage)() = nullptr;
};

std::string usagePage()
{
    return usage;
}

std::optional<ZelLanguage> languageOf(const std::string &code)
{
    const auto found = std::find(languageCodes.begin(), languageCodes.end(), code);
    if (found == languageCodes.end())
        return std::nullopt;
    return static_cast<ZelLanguage>(found - languageCodes.begin());
}

// Nothing, with a line that says why, for a call that can't be understood.
std::optional<Call> parse(const std::vector<std::string> &arguments, std::ostream &err)
{
    Call call;
    const auto refuse = [&err](const std::string &text) {
        err << "zelcheck: " << text << '\n' << usage;
        return std::nullopt;
    };
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string &argument = arguments[i];
        const bool takesValue = argument == "--calculate" || argument == "--language";
        if (takesValue && i + 1 == arguments.size())
            return refuse(argument + " wants a value");
        if (argument == "--calculate") {
            call.mValues = arguments[++i];
        } else if (argument == "--language") {
            call.mLanguage = languageOf(arguments[++i]);
            if (!call.mLanguage)
                return refuse("unknown language \"" + arguments[i] + '"');
        } else if (argument == "--us") {
            call.mUSCustomary = true;
        } else if (argument == "--texts") {
            call.mTexts = true;
        } else if (argument == "--help") {
            call.mPage = usagePage;
        } else if (argument == "--schema") {
            call.mPage = zelSchemaMarkdown;
        } else if (argument == "--units") {
            call.mPage = zelUnitsMarkdown;
        } else if (argument.starts_with("--")) {
            return refuse("unknown option " + argument);
        } else if (!call.mFile.empty()) {
            return refuse("more than one file");
        } else {
            call.mFile = argument;
        }
    }
    if (call.mFile.empty() && !call.mPage)
        return refuse("no file");
    return call;
}

std::optional<std::string> readFile(const std::string &path)
{
    std::error_code error;
    std::ifstream stream(path, std::ios::binary);
    if (!stream || std::filesystem::is_directory(path, error))
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

// Language and unit system are those of the whole process.
class Surroundings
{
public:
    explicit Surroundings(const Call &call)
    {
        setZelLanguage(call.mLanguage.value_or(ZelLanguage::German));
        mSetup.mUSCustomaryUnits = call.mUSCustomary ? 1 : 0;
        TarvexModule::Setup = &mSetup;
    }
    ~Surroundings()
    {
        setZelLanguage(mFormerLanguage);
        TarvexModule::Setup = mFormerSetup;
    }
    Surroundings(const Surroundings &) = delete;
    Surroundings &operator=(const Surroundings &) = delete;

private:
    ZelLanguage mFormerLanguage = zelLanguage();
    TarvexSetup *mFormerSetup = TarvexModule::Setup;
    TarvexSetup mSetup;
};

// Values go through the fields of a mask, as they do in a window. False when a run is refused.
bool calculate(ZelLoadedModule &module, const std::string &values, const Call &call,
               ZelFaultList &faults, std::ostream &out)
{
    ZelUiPlainFactory factory;
    ZelMask mask(module, factory, faults);
    zelReadValues(module.meta(), values, call.mValues, faults);
    std::vector<int64_t> objects = module.meta().objects();
    if (objects.empty())
        objects.push_back(0);
    bool succeeded = true;
    for (const int64_t id : objects) {
        if (objects.size() > 1)
            out << "Object " << id << '\n';
        mask.setId(id);
        const ZelCalcResult result = mask.calculate();
        zelPrintCalculation(mask, result, out);
        succeeded = succeeded && result.mSucceeded;
    }
    return succeeded;
}

// The mask is built in any case: some faults show only then.
void build(ZelLoadedModule &module, ZelFaultList &faults)
{
    ZelUiPlainFactory factory;
    const ZelMask mask(module, factory, faults);
}

bool isUnreadable(const ZelFaultList &faults, const std::string &file)
{
    return std::any_of(faults.begin(), faults.end(), [&file](const ZelFault &fault) {
        return fault.mCode == ZelFaultCode::FileMissing && fault.mFile == file;
    });
}

int run(const Call &call, std::ostream &out, std::ostream &err, const ZelModuleRegistry &registry)
{
    const Surroundings surroundings(call);
    const bool calculates = !call.mValues.empty();
    const std::optional<std::string> values = calculates ? readFile(call.mValues) : std::string();
    if (!values) {
        err << call.mValues << ": error: the file can't be read\n";
        return badCall;
    }
    ZelFaultList faults;
    const auto module = zelLoadModule(call.mFile, registry, faults);
    if (isUnreadable(faults, call.mFile)) {
        err << zelFaultReport(faults);
        return badCall;
    }
    bool succeeded = true;
    if (calculates)
        succeeded = calculate(*module, *values, call, faults, out);
    else
        build(*module, faults);
    if (call.mTexts)
        zelPrintMissingTexts(module->mDescription, call.mLanguage.value_or(ZelLanguage::English),
                             out);
    err << zelFaultReport(faults);
    return faults.empty() && succeeded ? good : faulty;
}

} // namespace

int zelCheckMain(const std::vector<std::string> &arguments, std::ostream &out, std::ostream &err,
                 const ZelModuleRegistry &registry)
{
    const std::optional<Call> call = parse(arguments, err);
    if (!call)
        return badCall;
    if (call->mPage) {
        out << call->mPage();
        return good;
    }
    return run(*call, out, err, registry);
}
