#include "lib/platform/LibSupWin32.h"

#include "lib/text/Assertion.h"
#include "lib/text/CodePage.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <vector>

#include <grp.h>
#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace {

constexpr std::size_t kAccountBuffer = 16384;

bool IsMember(const std::vector<gid_t>& groups, gid_t group)
{
    return std::find(groups.begin(), groups.end(), group) != groups.end();
}

/// Whether one of the groups bears the name.
bool IsMemberOf(const std::vector<gid_t>& groups, const char* pszName)
{
    group entry = {};
    group* found = nullptr;
    std::vector<char> buffer(kAccountBuffer);
    getgrnam_r(pszName, &entry, buffer.data(), buffer.size(), &found);
    return found != nullptr && IsMember(groups, found->gr_gid);
}

} // namespace

int IsAdministrator()
{
    constexpr gid_t kRootGroup = 0;
    const int count = getgroups(0, nullptr);
    std::vector<gid_t> groups(count > 0 ? static_cast<std::size_t>(count) : 0);
    if (count < 0 || getgroups(count, groups.data()) != count) {
        return 1;
    }
    groups.push_back(getegid());
    const bool administrator = geteuid() == 0 || IsMember(groups, kRootGroup) || IsMemberOf(groups, "sudo") ||
                               IsMemberOf(groups, "wheel");
    return administrator ? 1 : 0;
}

int GetUserAccount(char* target, std::size_t size)
{
    if (size == 0) {
        return 1;
    }
    *target = 0;
    passwd entry = {};
    passwd* found = nullptr;
    std::vector<char> buffer(kAccountBuffer);
    getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found);
    if (found == nullptr || std::strlen(found->pw_name) >= size) {
        return 1;
    }
    std::strcpy(target, found->pw_name);
    return 0;
}

void FormatOsVersion(LibString& target, const char* pszSystem, const char* pszRelease)
{
    unsigned long numbers[3] = {};
    const char* p = pszRelease;
    for (unsigned long& number : numbers) {
        char* end = nullptr;
        number = IsDigit(*p) ? std::strtoul(p, &end, 10) : 0;
        p = end != nullptr ? end + (*end == '.' && IsDigit(end[1]) ? 1 : 0) : p;
    }
    const char* const rest = *p == '-' || *p == '.' ? p + 1 : p;
    target.Format("%s Version %lu.%lu Build %lu %s", pszSystem, numbers[0], numbers[1], numbers[2], rest);
}

int GetOsVersionText(LibString& target)
{
    target.Empty();
    utsname system = {};
    if (uname(&system) != 0) {
        std::fputs("Cannot GetVersionEx\n", stdout);
        return 1;
    }
    FormatOsVersion(target, system.sysname, system.release);
    return 0;
}

void ShowLastError()
{
    CurrentDesktop().ShowBox("Error", Cp1252FromUtf8(std::strerror(errno)).c_str(), false);
}
