#include "lib/files/FileRights.h"

#include <cerrno>
#include <optional>
#include <set>
#include <string_view>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr const char* kAccessList = "system.posix_acl_access";

/// A list or value of extended attributes; a second try if it grew between the question for its size and the
/// reading.
template <typename Read>
std::optional<std::string> ReadAttribute(const Read& read)
{
    for (int i = 0; i < 2; ++i) {
        const ssize_t size = read(nullptr, 0);
        if (size < 0) {
            return std::nullopt;
        }
        std::string value(static_cast<std::size_t>(size), '\0');
        const ssize_t got = size == 0 ? 0 : read(value.data(), value.size());
        if (got >= 0) {
            value.resize(static_cast<std::size_t>(got));
            return value;
        }
    }
    return std::nullopt;
}

std::set<std::string> Names(const std::optional<std::string>& list)
{
    std::set<std::string> names;
    std::string_view rest = list ? std::string_view(*list) : std::string_view();
    for (std::size_t end = rest.find('\0'); end != std::string_view::npos; end = rest.find('\0')) {
        names.emplace(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    return names;
}

/// Copies one attribute; true if the new file has it as the old one has.
bool CopyAttribute(int fd, const std::string& path, const char* name)
{
    const auto value =
        ReadAttribute([&](char* to, std::size_t n) { return getxattr(path.c_str(), name, to, n); });
    const auto present = ReadAttribute([&](char* to, std::size_t n) { return fgetxattr(fd, name, to, n); });
    return value && (present == value || fsetxattr(fd, name, value->data(), value->size(), 0) == 0);
}

} // namespace

bool TakeRights(int fd, const std::string& path, const struct stat& old)
{
    const bool owner = fchown(fd, old.st_uid, old.st_gid) == 0;
    struct stat now = {};
    const bool group = owner || fchown(fd, static_cast<uid_t>(-1), old.st_gid) == 0 ||
                       (fstat(fd, &now) == 0 && now.st_gid == old.st_gid);
    const mode_t kept = owner ? 07777 : group ? 0777 : 0707;

    const auto names = ReadAttribute([&](char* to, std::size_t n) { return listxattr(path.c_str(), to, n); });
    const bool known = names || errno == ENOTSUP || errno == ENOSYS; // or a file system without any
    const auto wanted = Names(names);
    const auto present = Names(ReadAttribute([&](char* to, std::size_t n) { return flistxattr(fd, to, n); }));
    const bool list = !known || wanted.contains(kAccessList);
    bool complete = known && (group || !list);
    for (const std::string& name : present) {
        if (!wanted.contains(name)) {
            fremovexattr(fd, name.c_str()); // what the folder gives to a new file
        }
    }
    // Beside an access list the group's bits are the list's own. A file system that knows no rights, or keeps
    // to its own, refuses: the new file is then as private as it was made.
    static_cast<void>(fchmod(fd, old.st_mode & (list ? kept & ~mode_t{070} : kept)));
    for (const std::string& name : wanted) {
        if (name != kAccessList || group) {
            complete = CopyAttribute(fd, path, name.c_str()) && complete;
        }
    }
    return complete;
}
