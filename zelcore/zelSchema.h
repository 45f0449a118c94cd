#pragma once

#include "zelFault.h"
#include "zelWString.h"
#include "zelcore_export.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

class ZelDomDocument;

/// What the value of an attribute is.
enum class ZelSchemaType {
    Text, ///< German text, or "#8460" for a number of the pool
    Value, ///< text that is a value, which no translation touches
    Key, ///< key of a text in the translations
    NewName, ///< name that is given here: ASCII letters, digits, "_"
    Variable, ///< name of a variable
    Variables, ///< names of variables, blanks between them
    Entry, ///< name of an entry or alternative of the same variable
    Unit,
    Number, ///< in the variable's unit, "." as decimal sign
    Numbers, ///< one number for each component, blanks between them
    Integer,
    Integers, ///< whole numbers from 0, commas or blanks between them
    Bool, ///< true or false
    Condition,
    Enumeration, ///< one of the words of the attribute
    Buttons, ///< kinds of icon buttons, commas or blanks between them
    Components, ///< "2", or a range that begins with 1: "1..3"
    Formula, ///< formula symbol: "tau_k2"
    HelpCode, ///< number of a help topic
    ClassName, ///< name of a C++ class
    Function, ///< name of a function of the module
    Word ///< name of something outside the description: a table of the database, a file
};

/// One attribute of a tag.
struct ZelSchemaAttribute
{
    std::string_view mName;
    ZelSchemaType mType = ZelSchemaType::Text;
    std::string_view mExplanation;
    bool mRequired = false;
    /// The words of an enumeration, blanks between them.
    std::string_view mWords = {};
    /// Limits of a number or an integer.
    double mBottom = -1e300;
    double mTop = 1e300;
};

/// One tag in one kind of parent. A tag that means two things, as <table> does, has two rows.
struct ZelSchemaTag
{
    /// Unique in the schema; the tag itself but for the second row of a tag.
    std::string_view mKey;
    std::string_view mTag;
    /// Keys of the tags it may stand in, blanks between them; empty for the root.
    std::string_view mParents;
    std::string_view mExplanation;
    /// Groups of attributes; several tags share some.
    std::array<std::span<const ZelSchemaAttribute>, 5> mGroups;
    /// Text between the tags counts.
    bool mContent = false;

    /// Null for a name that is no attribute of it.
    ZELCORE_EXPORT const ZelSchemaAttribute *attribute(std::string_view name) const;
    ZELCORE_EXPORT bool mayStandIn(const ZelSchemaTag *parent) const;
    /// True for the tags that describe a variable.
    bool isVariable() const { return mParents == "variables"; }
};

/// All tags of a description, in the order of the documentation.
ZELCORE_EXPORT std::span<const ZelSchemaTag> zelSchemaTags();
/// The row of a tag below `parent` (null: the root); null when it may not stand there.
ZELCORE_EXPORT const ZelSchemaTag *zelSchemaTag(std::string_view tag, const ZelSchemaTag *parent);
/// The kind of a value in words: "a number", "true or false".
ZELCORE_EXPORT std::string zelSchemaTypeText(const ZelSchemaAttribute &attribute);
/// What descriptionFormat.md says, and the schema, as a page of documentation.
ZELCORE_EXPORT std::string zelSchemaMarkdown();

/// Checks a description against the schema and its names against each other, and takes out what is
/// faulty, as little as possible, so that the rest can be built:
/// an unknown or misplaced tag with what is below it, an unknown attribute, a bad value (the
/// default counts then), the line of an unknown variable, the second of two equal names, an unknown
/// unit and a bad condition. Faults are appended in the order of their places.
ZELCORE_EXPORT void zelCheckDescription(ZelDomDocument &document, ZelFaultList &faults);
