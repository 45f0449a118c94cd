#include "zelDomDocument.h"

#include "zelDomReader_p.h"
#include "zelTextTable.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>

namespace {

constexpr size_t maxBytes = 4 * 1024 * 1024;

// Nothing, with a fault, for a file that can't be read. Stops one byte behind the limit.
std::optional<std::string> readFile(const std::string &path, ZelFaultList &faults)
{
    std::error_code error;
    const bool directory = std::filesystem::is_directory(path, error);
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (directory || !stream) {
        const char *reason =
            directory ? "it is a directory" : std::strerror(errno ? errno : ENOENT);
        faults.push_back({ZelFaultSeverity::Error,
                          ZelFaultCode::FileMissing,
                          path,
                          0,
                          0,
                          std::string("the file can't be read: ") + reason,
                          {}});
        return std::nullopt;
    }
    std::string bytes(maxBytes + 1, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<size_t>(stream.gcount()));
    return bytes;
}

bool isTooLarge(std::string_view bytes, const std::string &fileName, ZelFaultList &faults)
{
    if (bytes.size() <= maxBytes)
        return false;
    faults.push_back({ZelFaultSeverity::Error, ZelFaultCode::FileTooLarge, fileName, 0, 0,
                      "the file is too large", "at most 4 MiB"});
    return true;
}

std::shared_ptr<const ZelTextTable> readTexts(const std::string &path, ZelFaultList &faults)
{
    const std::string file = std::filesystem::path(path).replace_extension(".tsv").string();
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        return nullptr;
    const std::optional<std::string> bytes = readFile(file, faults);
    if (!bytes || isTooLarge(*bytes, file, faults))
        return nullptr;
    return std::make_shared<const ZelTextTable>(ZelTextTable::fromText(*bytes, file, faults));
}

} // namespace

ZelDomDocument::ZelDomDocument() = default;
ZelDomDocument::~ZelDomDocument() = default;
ZelDomDocument::ZelDomDocument(ZelDomDocument &&) noexcept = default;
ZelDomDocument &ZelDomDocument::operator=(ZelDomDocument &&) noexcept = default;

ZelDomDocument ZelDomDocument::fromFile(const std::string &path, ZelFaultList &faults)
{
    const std::optional<std::string> bytes = readFile(path, faults);
    if (!bytes) {
        ZelDomDocument none;
        none.mFileName = path;
        return none;
    }
    ZelDomDocument document = fromText(*bytes, path, faults);
    if (document.mRoot) {
        if (const auto texts = readTexts(path, faults))
            document.mRoot->setTexts(texts);
    }
    return document;
}

ZelDomDocument ZelDomDocument::fromText(std::string_view bytes, const std::string &fileName,
                                        ZelFaultList &faults)
{
    ZelDomDocument document;
    document.mFileName = fileName;
    if (isTooLarge(bytes, fileName, faults))
        return document;
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        faults.push_back({ZelFaultSeverity::Error, ZelFaultCode::NotUtf8, fileName, 1, 1,
                          "the file is UTF-16", "a file in UTF-8"});
        return document;
    }
    document.mRoot = ZelDomReader(zelWithoutMark(bytes), fileName, faults).read();
    return document;
}
