#include "lib/platform/LibSupWin32.h"

#include "lib/platform/LibSup.h"
#include "lib/text/Assertion.h"
#include "lib/text/CodePage.h"
#include "lib/text/ErrCode.h"

#include <cerrno>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// 0 for a directory that stands now, otherwise the system's error.
int MakeOne(const char* pszPath) { return mkdir(pszPath, 0777) == 0 || errno == EEXIST ? 0 : errno; }

bool IsBadPath(int error) { return error == EINVAL || error == ENAMETOOLONG || error == ELOOP; }

/// The path of the directory above, empty for none.
std::string Above(std::string path)
{
    while (path.ends_with('/')) {
        path.pop_back();
    }
    const std::size_t slash = path.rfind('/');
    return slash != std::string::npos ? path.substr(0, slash) : "";
}

std::vector<FindData> ReadEntries(DIR* directory)
{
    std::vector<FindData> entries;
    while (const dirent* const entry = readdir(directory)) {
        struct stat status = {};
        const bool known = fstatat(dirfd(directory), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0;
        entries.push_back({LibString(entry->d_name), known && S_ISDIR(status.st_mode)});
    }
    return entries;
}

constexpr int kOpenDirectory = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int kDeepestTree = 500; // one open file a level

/// Removes what stands below an open directory and closes it; true if all went.
bool RemoveBelow(int folder, int depth)
{
    DIR* const directory = folder >= 0 ? fdopendir(folder) : nullptr;
    if (directory == nullptr) {
        if (folder >= 0) {
            close(folder);
        }
        return false;
    }
    bool removed = true;
    for (const FindData& entry : ReadEntries(directory)) {
        if (entry.name[0] == '.') {
            continue;
        }
        if (IsDirectory(entry)) {
            removed = depth < kDeepestTree &&
                      RemoveBelow(openat(folder, entry.name, kOpenDirectory), depth + 1) && removed;
        }
        const int flags = IsDirectory(entry) ? AT_REMOVEDIR : 0;
        removed = unlinkat(folder, entry.name, flags) == 0 && removed;
    }
    closedir(directory);
    return removed;
}

} // namespace

int MakeDirectory(const char* pszPath)
{
    int error = MakeOne(pszPath);
    const std::string above = Above(pszPath);
    if (error == ENOENT && !above.empty()) {
        MakeDirectory(above.c_str());
        return MakeOne(pszPath) == 0 ? 0 : 1;
    }
    LibString text;
    if (IsBadPath(error)) {
        text.Format("ERROR_BAD_PATHNAME: %s", Cp1252FromUtf8(pszPath).c_str());
        ShowError(text);
        throw ErrCode::Unknown;
    }
    if (error != 0) {
        text.Format("Err %d, %s", error, Cp1252FromUtf8(pszPath).c_str());
        ShowError(text);
        return 1;
    }
    return 0;
}

int RemoveTree(const char* pszPath)
{
    std::string path(pszPath);
    while (path.size() > 1 && path.ends_with('/')) {
        path.pop_back(); // a slash behind a link would follow it
    }
    return RemoveBelow(open(path.c_str(), kOpenDirectory), 0) ? 0 : 1;
}

bool IsDirectory(const FindData& data) { return data.directory && data.name[0] != '.'; }

bool BrowseFolder(void*, LibString& target, const char* pszRoot)
{
    return CurrentDesktop().ChooseFolder("Select a Directory", pszRoot, target);
}
