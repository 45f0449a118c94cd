#include "zelFile.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

fs::path projectDir;
std::vector<fs::path> standardDirs;

fs::path toPath(const zelWString &text)
{
    return fs::path(text.toUtf8()).lexically_normal();
}

zelWString toText(const fs::path &path)
{
    return zelWString::fromUtf8(path.generic_string());
}

fs::path withoutSeparatorAtTheEnd(fs::path path)
{
    // The root has nothing else.
    return path.has_filename() || path == path.root_path() ? path : path.parent_path();
}

fs::path currentProjectDir()
{
    std::error_code error; // the working directory may be gone
    return projectDir.empty() ? fs::current_path(error) : projectDir;
}

// Those in which names without path are looked up, the first one wins.
std::vector<fs::path> searchedDirs()
{
    std::vector<fs::path> directories{currentProjectDir()};
    directories.insert(directories.end(), standardDirs.begin(), standardDirs.end());
    return directories;
}

fs::path fullName(const fs::path &name)
{
    if (name.empty() || name.is_absolute())
        return name;
    for (const fs::path &directory : searchedDirs()) {
        std::error_code error;
        if (fs::exists(directory / name, error))
            return (directory / name).lexically_normal();
    }
    return (currentProjectDir() / name).lexically_normal();
}

} // namespace

zelFile::zelFile(const zelWString &name, int mode, bool, zelFileEncoding)
    : mStream((mode & Write) != 0 ? zelFStream(name, (mode & Truncate) == 0) : zelFStream())
{
}

zelFile::~zelFile() = default;

zelWString zelFile::GetProjectDir()
{
    return toText(currentProjectDir());
}

void zelFile::SetProjectDir(const zelWString &directory)
{
    projectDir = withoutSeparatorAtTheEnd(toPath(directory));
}

void zelFile::SetStandardDirs(const std::vector<zelWString> &directories)
{
    standardDirs.clear();
    for (const zelWString &directory : directories)
        standardDirs.push_back(withoutSeparatorAtTheEnd(toPath(directory)));
}

zelWString zelFile::CheckForStandardPath(const zelWString &path)
{
    const fs::path file = toPath(path);
    for (const fs::path &directory : searchedDirs()) {
        const fs::path name = file.lexically_relative(directory);
        const bool within = !name.empty() && name != "." && *name.begin() != "..";
        if (within && fullName(name) == file)
            return toText(name);
    }
    return path;
}

zelWString zelFile::GetFullName(const wchar_t *name)
{
    return toText(fullName(toPath(name)));
}
