#include "lib/platform/LibSupWin32.h"

#include "lib/files/TextLines.h"

#include <cstdlib>
#include <memory>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace {

/// A folder as the XDG directories name it: by a variable of the environment, or, for the user's own, by an
/// entry of user-dirs.dirs; otherwise by its standard place below the home. Null texts are none.
struct FolderRow {
    const char* variable;
    const char* userDir;
    const char* standard;
};

constexpr FolderRow kFolders[kSpecialFolderCount] = {
    {nullptr, nullptr, ""},
    {nullptr, "XDG_DESKTOP_DIR", "/Desktop"},
    {nullptr, "XDG_DOCUMENTS_DIR", ""},
    {nullptr, "XDG_DOWNLOAD_DIR", ""},
    {nullptr, "XDG_MUSIC_DIR", ""},
    {nullptr, "XDG_PICTURES_DIR", ""},
    {nullptr, "XDG_VIDEOS_DIR", ""},
    {nullptr, "XDG_TEMPLATES_DIR", ""},
    {nullptr, "XDG_PUBLICSHARE_DIR", ""},
    {"XDG_CONFIG_HOME", nullptr, "/.config"},
    {"XDG_DATA_HOME", nullptr, "/.local/share"},
    {"XDG_CACHE_HOME", nullptr, "/.cache"},
    {"TMPDIR", nullptr, nullptr},
};

LibString HomeFolder()
{
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home != 0) {
        return home;
    }
    passwd entry = {};
    passwd* found = nullptr;
    std::vector<char> buffer(16384);
    getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found);
    return found != nullptr ? found->pw_dir : nullptr;
}

/// The value of a line such as `XDG_MUSIC_DIR="$HOME/Musik"`; empty if it is not that entry's.
LibString UserDirOf(const char* pszLine, const char* pszEntry, const LibString& home)
{
    const char* const line = SkipBlanks(pszLine);
    const std::size_t length = std::strlen(pszEntry);
    if (StartsWith(pszEntry, line) == nullptr || line[length] != '=') {
        return LibString();
    }
    const LibString value = UnquoteField(line + length + 1);
    constexpr const char* kHome = "$HOME";
    if (StartsWith(kHome, value) != nullptr) {
        return home + (value.GetText() + std::strlen(kHome));
    }
    return value[0] == '/' ? value : LibString();
}

LibString UserDir(const char* pszEntry, const LibString& home)
{
    LibString path;
    GetSpecialFolder(path, kFolderConfig);
    path += "/user-dirs.dirs";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "rb"), std::fclose);
    LibString found;
    char szLine[1024];
    while (file != nullptr && found.Length() == 0 &&
           ReadTextLine(szLine, sizeof szLine, file.get()) != nullptr) {
        CutLineEnd(szLine);
        found = UserDirOf(szLine, pszEntry, home);
    }
    return found;
}

} // namespace

bool GetSpecialFolder(LibString& target, int id)
{
    target.Empty();
    if (id < 0 || id >= kSpecialFolderCount) {
        return false;
    }
    const FolderRow& row = kFolders[id];
    const char* const set = row.variable != nullptr ? std::getenv(row.variable) : nullptr;
    if (set != nullptr && *set == '/') { // a relative path is to be ignored
        target = set;
        return true;
    }
    if (row.standard == nullptr) {
        target = "/tmp";
        return true;
    }
    const LibString home = HomeFolder();
    if (home.Length() == 0) {
        return false;
    }
    if (row.userDir != nullptr) {
        target = UserDir(row.userDir, home);
    }
    if (target.Length() == 0) {
        target = home + row.standard;
    }
    return true;
}
