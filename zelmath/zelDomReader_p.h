#pragma once

#include "zelDomNode.h"
#include "zelFault.h"
#include "zelSourceText_p.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace pugi {
class xml_document;
class xml_node;
struct xml_parse_result;
} // namespace pugi

/// Makes nodes from the bytes of one description and checks what pugixml lets through.
class ZelDomReader
{
public:
    /// Bytes without byte order mark.
    ZelDomReader(std::string_view bytes, const std::string &fileName, ZelFaultList &faults);
    std::unique_ptr<ZelDomNode> read();

private:
    struct Attribute
    {
        size_t mName = 0; // offsets in the source
        size_t mValue = 0;
        size_t mEnd = 0;
    };

    void add(ZelFaultCode code, size_t offset, std::string text, std::string expected = {});
    void checkBytes();
    void addSyntaxFault(const pugi::xml_parse_result &result);
    std::unique_ptr<ZelDomNode> readRoot(const pugi::xml_document &document);
    void readElement(const pugi::xml_node &element, ZelDomNode &node, int level);
    void readAttributes(const pugi::xml_node &element, ZelDomNode &node);
    std::vector<Attribute> scanStartTag(size_t offset) const;
    void checkEntities(size_t begin, size_t end);
    void checkText(const pugi::xml_node &text);

    std::string mSource;
    const std::string &mFileName;
    ZelFaultList &mFaults;
    size_t mFirstFault;
    ZelPlaceFinder mPlaces;
};
