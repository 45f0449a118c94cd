#pragma once

#include "zelDomNode.h"
#include "zelFault.h"
#include "zelmath_export.h"

#include <memory>
#include <string>
#include <string_view>

/// A description file as a tree of nodes. Reading checks the bytes and the XML: valid UTF-8, at
/// most 4 MiB, at most 32 levels, one root, no attribute twice, no unknown entity. What stands
/// before a syntax fault is kept, so that the rest of a mask can show.
class ZELMATH_EXPORT ZelDomDocument
{
public:
    ZelDomDocument();
    ~ZelDomDocument();
    ZelDomDocument(ZelDomDocument &&) noexcept;
    ZelDomDocument &operator=(ZelDomDocument &&) noexcept;

    /// Reads a file, and beside it the translations "<file name without ending>.tsv" when that file
    /// exists. Faults are appended; a file that can't be read gives FileMissing and no root.
    static ZelDomDocument fromFile(const std::string &path, ZelFaultList &faults);
    /// The same from memory; `fileName` only names the file in faults.
    static ZelDomDocument fromText(std::string_view bytes, const std::string &fileName,
                                   ZelFaultList &faults);

    /// Null when nothing could be read.
    ZelDomNode *root() const { return mRoot.get(); }
    const std::string &fileName() const { return mFileName; }

private:
    std::string mFileName;
    std::unique_ptr<ZelDomNode> mRoot;
};
