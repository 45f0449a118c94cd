#include "zelDomReader_p.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <pugixml.hpp>

namespace {

constexpr int maxLevels = 32;
// A damaged file of 4 MiB could have a fault in every byte.
constexpr size_t maxFaults = 1000;
constexpr std::string_view blanks = " \t\r\n";

bool isControl(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20 && blanks.find(byte) == std::string_view::npos;
}

bool isCharacter(unsigned long code)
{
    if (code < 0x20)
        return code == '\t' || code == '\n' || code == '\r';
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code <= 0x10FFFF && !surrogate && code != 0xFFFE && code != 0xFFFF;
}

// `name` is what stands between "&" and ";".
bool isEntity(std::string_view name)
{
    constexpr std::array<std::string_view, 5> known{"amp", "lt", "gt", "quot", "apos"};
    if (!name.starts_with('#'))
        return std::find(known.begin(), known.end(), name) != known.end();
    const bool hex = name.starts_with("#x");
    const std::string_view digits = name.substr(hex ? 2 : 1);
    unsigned long code = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, hex ? 16 : 10);
    return error == std::errc() && end == digits.data() + digits.size() && isCharacter(code);
}

std::string_view trimmed(std::string_view text)
{
    const size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isText(const pugi::xml_node &node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

size_t offsetOf(const pugi::xml_node &node)
{
    const ptrdiff_t offset = node.offset_debug();
    return offset < 0 ? 0 : static_cast<size_t>(offset);
}

} // namespace

ZelDomReader::ZelDomReader(std::string_view bytes, const std::string &fileName,
                           ZelFaultList &faults)
    : mSource(bytes)
    , mFileName(fileName)
    , mFaults(faults)
    , mFirstFault(faults.size())
    , mPlaces(mSource)
{
}

void ZelDomReader::add(ZelFaultCode code, size_t offset, std::string text, std::string expected)
{
    if (mFaults.size() - mFirstFault >= maxFaults)
        return;
    const ZelPlace place = mPlaces.place(offset);
    mFaults.push_back({ZelFaultSeverity::Error, code, mFileName, place.mLine, place.mColumn,
                       std::move(text), std::move(expected)});
}

// Bad bytes are replaced one by one, so that offsets stay and the rest of the file can show.
void ZelDomReader::checkBytes()
{
    size_t bad = zelFindInvalidUtf8(mSource);
    if (bad != std::string::npos)
        add(ZelFaultCode::NotUtf8, bad, "a byte that is not UTF-8", "a file in UTF-8");
    while (bad != std::string::npos) {
        mSource[bad] = '?';
        const size_t next = zelFindInvalidUtf8(std::string_view(mSource).substr(bad));
        bad = next == std::string::npos ? next : bad + next;
    }
    const auto control = std::find_if(mSource.begin(), mSource.end(), isControl);
    if (control != mSource.end())
        add(ZelFaultCode::Syntax, static_cast<size_t>(control - mSource.begin()),
            "a control character", "text");
    std::replace_if(control, mSource.end(), isControl, ' ');
}

std::unique_ptr<ZelDomNode> ZelDomReader::read()
{
    checkBytes();
    pugi::xml_document document;
    // As a fragment pugixml also yields what stands outside the root, which is to be reported.
    const pugi::xml_parse_result result =
        document.load_buffer(mSource.data(), mSource.size(),
                             pugi::parse_default | pugi::parse_fragment, pugi::encoding_utf8);
    std::unique_ptr<ZelDomNode> root = readRoot(document);
    if (!result)
        addSyntaxFault(result);
    else if (!root)
        add(ZelFaultCode::Syntax, 0, "the file has no element", "a root element");
    return root;
}

void ZelDomReader::addSyntaxFault(const pugi::xml_parse_result &result)
{
    size_t offset =
        std::min(static_cast<size_t>(std::max<ptrdiff_t>(result.offset, 0)), mSource.size());
    std::string expected;
    if (result.status == pugi::status_end_element_mismatch) {
        // pugixml stands behind the letter that differs; where it is in no end tag, one is missing
        // at the end of the file.
        const size_t tag = mSource.rfind("</", offset);
        const bool inTag = tag != std::string::npos && mSource.find('>', tag) >= offset;
        offset = inTag ? tag + 2 : mSource.size();
        expected = "an end tag for each start tag";
    }
    add(ZelFaultCode::Syntax, offset, result.description(), std::move(expected));
}

std::unique_ptr<ZelDomNode> ZelDomReader::readRoot(const pugi::xml_document &document)
{
    std::unique_ptr<ZelDomNode> root;
    for (const pugi::xml_node &child : document.children()) {
        const size_t offset = offsetOf(child);
        if (isText(child)) {
            const size_t first = mSource.find_first_not_of(blanks, offset);
            add(ZelFaultCode::Syntax, std::min(first, mSource.size()),
                "text outside the root element");
        } else if (child.type() == pugi::node_element && root) {
            add(ZelFaultCode::SecondRoot, offset,
                "a second root element <" + std::string(child.name()) + ">", "one root element");
        } else if (child.type() == pugi::node_element) {
            root = std::make_unique<ZelDomNode>(zelWString::fromUtf8(child.name()));
            readElement(child, *root, 1);
        }
    }
    return root;
}

void ZelDomReader::readElement(const pugi::xml_node &element, ZelDomNode &node, int level)
{
    node.setPlace(mPlaces.place(offsetOf(element)));
    readAttributes(element, node);
    std::string content;
    for (const pugi::xml_node &child : element.children()) {
        if (isText(child)) {
            checkText(child);
            content += child.value();
        } else if (child.type() == pugi::node_element && level == maxLevels) {
            add(ZelFaultCode::TooDeep, offsetOf(child),
                "<" + std::string(child.name()) + "> lies too deep",
                "at most " + std::to_string(maxLevels) + " levels");
        } else if (child.type() == pugi::node_element) {
            readElement(child, *node.addChild(zelWString::fromUtf8(child.name())), level + 1);
        }
    }
    node.setContent(zelWString::fromUtf8(trimmed(content)));
}

void ZelDomReader::readAttributes(const pugi::xml_node &element, ZelDomNode &node)
{
    const std::vector<Attribute> scanned = scanStartTag(offsetOf(element));
    size_t index = 0;
    for (const pugi::xml_attribute &attribute : element.attributes()) {
        // A syntax fault inside the tag leaves an attribute without value at its end.
        if (index >= scanned.size())
            break;
        const Attribute &source = scanned[index++];
        const zelWString name = zelWString::fromUtf8(attribute.name());
        if (node.hasAttribute(name)) {
            add(ZelFaultCode::DuplicateAttribute, source.mName,
                "attribute \"" + std::string(attribute.name()) + "\" stands twice in <"
                    + element.name() + ">");
        } else {
            // In this order: going back would read the file anew.
            const ZelPlace place = mPlaces.place(source.mName);
            const ZelPlace valuePlace = mPlaces.place(source.mValue);
            node.setAttribute(name, zelWString::fromUtf8(attribute.value()), place, valuePlace);
        }
        checkEntities(source.mValue, source.mEnd);
    }
}

// `offset` is that of the tag name. Only attributes with both quotes count.
std::vector<ZelDomReader::Attribute> ZelDomReader::scanStartTag(size_t offset) const
{
    constexpr auto npos = std::string::npos;
    std::vector<Attribute> attributes;
    size_t at = mSource.find_first_of(" \t\r\n/>", offset);
    while (at != npos) {
        Attribute attribute;
        attribute.mName = mSource.find_first_not_of(blanks, at);
        if (attribute.mName == npos || mSource[attribute.mName] == '>'
            || mSource[attribute.mName] == '/')
            break;
        const size_t equals = mSource.find_first_of("=>", attribute.mName);
        const size_t quote = equals == npos ? npos : mSource.find_first_not_of(blanks, equals + 1);
        if (quote == npos || mSource[equals] != '='
            || (mSource[quote] != '"' && mSource[quote] != '\''))
            break;
        attribute.mValue = quote + 1;
        attribute.mEnd = mSource.find(mSource[quote], attribute.mValue);
        if (attribute.mEnd == npos)
            break;
        attributes.push_back(attribute);
        at = attribute.mEnd + 1;
    }
    return attributes;
}

void ZelDomReader::checkEntities(size_t begin, size_t end)
{
    const std::string_view text = std::string_view(mSource).substr(begin, end - begin);
    for (size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
        const size_t stop = text.find_first_of("&; \t\r\n<", at + 1);
        const bool closed = stop != std::string_view::npos && text[stop] == ';';
        if (closed && isEntity(text.substr(at + 1, stop - at - 1)))
            continue;
        const std::string name(text.substr(at, closed ? std::min<size_t>(stop - at + 1, 40) : 1));
        add(ZelFaultCode::UnknownEntity, begin + at, "unknown entity \"" + name + "\"",
            "&amp; &lt; &gt; &quot; &apos; or a character's number");
    }
}

void ZelDomReader::checkText(const pugi::xml_node &text)
{
    if (text.type() != pugi::node_pcdata)
        return;
    const size_t begin = offsetOf(text);
    checkEntities(begin, std::min(mSource.find('<', begin), mSource.size()));
}
