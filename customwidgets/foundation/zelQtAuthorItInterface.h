#pragma once

#include "customwidgets_export.h"

#include <QString>

/// The help code that a widget carries: the number of its topic in the help. A topic's file is the
/// code in decimal with the ending ".htm". Codes below 1 name no topic.
class CUSTOMWIDGETS_EXPORT ZelQtAuthorItInterface
{
public:
    explicit ZelQtAuthorItInterface(int code = -1)
        : mCode(code)
    {
    }
    virtual ~ZelQtAuthorItInterface();
    ZelQtAuthorItInterface(const ZelQtAuthorItInterface &) = default;
    ZelQtAuthorItInterface &operator=(const ZelQtAuthorItInterface &) = default;

    virtual int authorItCode() const;
    void setAuthorItCode(int code) { mCode = code; }
    /// File of this object's own code, whatever authorItCode() answers.
    QString authorItFile() const { return authorItFile(mCode); }
    /// Empty for a code below 1.
    static QString authorItFile(int code);

private:
    int mCode;
};
