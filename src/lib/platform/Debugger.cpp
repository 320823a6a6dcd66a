#include "lib/platform/Debugger.h"

#include <fstream>
#include <iterator>
#include <string>

bool IsDebuggerAttached()
{
    std::ifstream file("/proc/self/status");
    return IsTraced(std::string(std::istreambuf_iterator<char>(file), {}));
}

bool IsTraced(std::string_view status)
{
    constexpr std::string_view kTracer = "TracerPid:";
    const std::size_t found = status.find(kTracer);
    if (found == std::string_view::npos) {
        return false;
    }
    status.remove_prefix(found + kTracer.size());
    status.remove_prefix(std::min(status.find_first_not_of(" \t"), status.size()));
    return !status.empty() && status.front() >= '1' && status.front() <= '9';
}
