#pragma once

#include "zelWString.h"
#include "zeltypes_export.h"

#include <string>
#include <vector>

/// What kind of fault of an input file it is; tests and programs compare this and not the text.
enum class ZelFaultCode {
    FileMissing, ///< the file can't be read
    FileTooLarge,
    TooDeep,
    NotUtf8,
    Syntax, ///< the XML itself is broken
    SecondRoot,
    UnknownEntity,
    DuplicateAttribute,
    UnknownElement,
    MisplacedElement,
    UnknownAttribute,
    MissingAttribute,
    BadValue,
    BadName,
    DuplicateName,
    UnknownName, ///< a reference to something that is not described
    WrongKind, ///< a reference to something of another kind
    UnknownUnit,
    UnlikeUnits, ///< quantities of different dimensions in one line
    BadCondition,
    UnknownFunction,
    MissingHandle, ///< the calculation asks for something the description does not have
    WrongUnit ///< the calculation counts in another unit than the description stores
};

enum class ZelFaultSeverity { Warning, Error };

/// One fault of an input file: where it is, what is wrong and what was expected there.
struct ZELTYPES_EXPORT ZelFault
{
    ZelFaultSeverity mSeverity = ZelFaultSeverity::Error;
    ZelFaultCode mCode = ZelFaultCode::Syntax;
    std::string mFile; ///< path as given by the caller, UTF-8
    int mLine = 0; ///< from 1; 0 when the fault has no place in the file
    int mColumn = 0; ///< characters from 1
    std::string mText; ///< UTF-8
    std::string mExpected; ///< UTF-8; empty when nothing else was expected

    /// "file:line:column: error: text (expected)", the form that compilers use.
    std::string toString() const;
};

using ZelFaultList = std::vector<ZelFault>;

/// Faults that are kept of one file; further ones are only counted.
constexpr size_t zelFaultLimit = 100;

/// The faults of one file as lines, the first `limit` of them, then a line with the number of the
/// others.
ZELTYPES_EXPORT std::string zelFaultReport(const ZelFaultList &faults,
                                           size_t limit = zelFaultLimit);
