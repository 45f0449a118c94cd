#pragma once

#include "zelFault.h"

#include <QStringList>

/// "line:column code" of each fault; tests compare these and not the texts.
inline QStringList faultPlaces(const ZelFaultList &faults)
{
    static const char *const names[] = {
        "FileMissing",     "FileTooLarge",     "TooDeep",          "NotUtf8",
        "Syntax",          "SecondRoot",       "UnknownEntity",    "DuplicateAttribute",
        "UnknownElement",  "MisplacedElement", "UnknownAttribute", "MissingAttribute",
        "BadValue",        "BadName",          "DuplicateName",    "UnknownName",
        "WrongKind",       "UnknownUnit",      "UnlikeUnits",      "BadCondition",
        "UnknownFunction", "MissingHandle",    "WrongUnit"};
    QStringList places;
    for (const ZelFault &fault : faults)
        places
            << QString("%1:%2 %3").arg(fault.mLine).arg(fault.mColumn).arg(names[int(fault.mCode)]);
    return places;
}
