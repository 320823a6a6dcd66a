#include "lib/platform/LibSup.h"

#include "lib/files/FileBytes.h"
#include "lib/platform/TickCount.h"
#include "lib/text/CharTools.h"
#include "lib/text/Log.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

void LogMark(const char* psz)
{
    static std::optional<std::uint32_t> stamp;
    const std::uint32_t now = TickCount();
    LibString text;
    text.Format("Mark (%ld): %s", static_cast<long>(now - stamp.value_or(now)), psz);
    LogText(text);
    stamp = TickCount();
}

namespace {

/// The figure of one line of /proc/meminfo, such as "MemTotal:  2048 kB", in bytes.
std::uint64_t ReportedFigure(const std::string& report, const char* pszName)
{
    const char* const line = FindText(pszName, report.c_str());
    return line != nullptr ? std::strtoull(line + std::strlen(pszName), nullptr, 10) << 10 : 0;
}

} // namespace

MemoryFigures ReadMemoryFigures()
{
    constexpr std::uint64_t kAddressSpace = std::uint64_t{1} << 47; // what a program of 64 bits can reach
    const std::string system = ReadFileBytes("/proc/meminfo").value_or("");
    const std::string self = ReadFileBytes("/proc/self/status").value_or("");
    MemoryFigures figures;
    figures.physical = ReportedFigure(system, "MemTotal:");
    figures.freePhysical = ReportedFigure(system, "MemAvailable:");
    figures.paging = ReportedFigure(system, "SwapTotal:");
    figures.freePaging = ReportedFigure(system, "SwapFree:");
    if (figures.physical != 0) {
        figures.percentInUse = 100 - figures.freePhysical * 100 / figures.physical;
    }
    rlimit limit = {};
    const bool limited = getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
    figures.addressSpace = limited ? limit.rlim_cur : kAddressSpace;
    const std::uint64_t used = ReportedFigure(self, "VmSize:");
    figures.freeAddressSpace = figures.addressSpace > used ? figures.addressSpace - used : 0;
    return figures;
}

void LogMemory(const MemoryFigures& figures)
{
    const struct {
        const char* format;
        std::uint64_t value;
    } lines[] = {
        {"percent of memory in use     %7ld", figures.percentInUse},
        {"bytes of physical memory     %7ld", figures.physical},
        {"free physical memory bytes   %7ld", figures.freePhysical},
        {"bytes of paging file         %7ld", figures.paging},
        {"free bytes of paging file    %7ld", figures.freePaging},
        {"user bytes of address space  %7ld", figures.addressSpace},
        {"free user bytes              %7ld", figures.freeAddressSpace},
    };
    for (const auto& line : lines) {
        LibString text;
        text.Format(line.format, static_cast<long>(line.value >> 10));
        LogText(text);
    }
}

void LogMemory() { LogMemory(ReadMemoryFigures()); }
