#pragma once

#include "zelFStream.h"
#include "zelcore_export.h"

#include <vector>

/// The number is part of the interface. Lines end in a line feed alone.
enum class zelFileEncoding : int {
    Utf8 = 1 ///< without byte order mark
};

/// A text file that is written, and the directories in which the files of a project lie. Names of
/// files in these are kept without their path, so that a project can move.
class ZELCORE_EXPORT zelFile
{
public:
    // Bits of the mode.
    static constexpr int Write = 2;
    static constexpr int Truncate = 16; ///< without it the text goes to the end of the file

    /// A file that is not opened for writing swallows what is put in. The flag asks for text, which
    /// all files are here.
    zelFile(const zelWString &name, int mode, bool text, zelFileEncoding encoding);
    virtual ~zelFile();
    zelFile(const zelFile &) = delete;
    zelFile &operator=(const zelFile &) = delete;

    zelFStream &stream() { return mStream; }

    /// Without separator at its end; the working directory until one is set.
    static zelWString GetProjectDir();
    /// Empty for the working directory.
    static void SetProjectDir(const zelWString &directory);
    /// Directories that are searched behind that of the project, in this order.
    static void SetStandardDirs(const std::vector<zelWString> &directories);
    /// The path relative to the project's or a standard directory when it lies there and
    /// GetFullName finds it again by that; any other path as it is.
    static zelWString CheckForStandardPath(const zelWString &path);
    /// The path of a file of that name: in the first of the directories that has one, else in that
    /// of the project. An absolute and an empty name stay as they are.
    static zelWString GetFullName(const wchar_t *name);

private:
    zelFStream mStream;
};
