#pragma once

#include "zelDomDocument.h"
#include "zelFault.h"
#include "zelcore_export.h"

#include <string>
#include <vector>

class Meta;

/// The description of a module. It is read first, so that the module can be made by its class, and
/// then checked and described to the module's Meta; what is faulty is taken out on the way.
class ZELCORE_EXPORT ZelDescription
{
public:
    ZelDescription();
    ~ZelDescription();
    ZelDescription(ZelDescription &&) noexcept;
    ZelDescription &operator=(ZelDescription &&) noexcept;

    /// Reads a file and the translations beside it. Faults are appended; isEmpty() when nothing of
    /// the file can be used.
    static ZelDescription fromFile(const std::string &path, ZelFaultList &faults);
    static ZelDescription fromText(std::string_view bytes, const std::string &fileName,
                                   ZelFaultList &faults);

    /// Checks the file, takes out what is faulty and adds its variables to `meta`, which should
    /// have none yet. Functions are looked up when `withFunctions` says that `meta` knows those of
    /// the module. To be called once, before pages().
    void describe(Meta &meta, ZelFaultList &faults, bool withFunctions = false);

    bool isEmpty() const;
    /// Identifier; the name of the file without ending when the file gives none.
    const zelWString &moduleId() const { return mModuleId; }
    /// Class of the calculation, empty without one.
    const zelWString &className() const { return mClassName; }
    ZelDomNode *root() const { return mDocument.root(); }
    /// The pages of the module, in the order of the file.
    std::vector<ZelDomNode *> pages() const;
    const std::string &fileName() const { return mDocument.fileName(); }

private:
    explicit ZelDescription(ZelDomDocument document);

    ZelDomDocument mDocument;
    zelWString mModuleId;
    zelWString mClassName;
};

/// Reads a description, checks it and describes its variables to `meta`.
ZELCORE_EXPORT ZelDescription zelLoadDescription(const std::string &path, Meta &meta,
                                                 ZelFaultList &faults);
