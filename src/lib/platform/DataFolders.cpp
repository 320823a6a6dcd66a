#include "lib/platform/DataFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace fs = std::filesystem;

namespace {

/// A variable's value; `otherwise` if it is not set or empty.
std::string VariableOr(const char* name, std::string otherwise)
{
    const char* const value = std::getenv(name);
    return value != nullptr && *value != 0 ? value : std::move(otherwise);
}

void AddDataFolder(std::vector<std::string>& folders, std::string_view name)
{
    while (name.size() > 1 && name.ends_with('/')) {
        name.remove_suffix(1);
    }
    if (name.starts_with('/') && std::ranges::find(folders, name) == folders.end()) {
        folders.emplace_back(name);
    }
}

} // namespace

std::string HomeOfUser()
{
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home == '/') {
        return home;
    }
    const passwd* const user = getpwuid(geteuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

std::vector<std::string> DataFolders()
{
    std::vector<std::string> folders;
    const std::string home = HomeOfUser();
    AddDataFolder(folders, VariableOr("XDG_DATA_HOME", home.empty() ? home : home + "/.local/share"));
    const std::string system = VariableOr("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    for (std::string_view rest = system; !rest.empty();) {
        const std::size_t end = rest.find(':');
        AddDataFolder(folders, rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    AddDataFolder(folders, (program.parent_path().parent_path() / "share").string());
    return folders;
}
