// A library that is loaded before the companion (LD_PRELOAD) and has no memory at one place: at the
// allocation of the number ORREVA_FAIL_AT, counted from 1 after the program's main function began. At the end
// the number of allocations goes to the file ORREVA_FAIL_COUNT.

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <new>

#include <dlfcn.h>

namespace {

std::atomic<bool> g_counts = false;
std::atomic<int> g_allocations = 0;

int Setting(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? std::atoi(value) : 0;
}

struct Report {
    ~Report()
    {
        const char* const path = std::getenv("ORREVA_FAIL_COUNT");
        if (std::FILE* const file = path != nullptr ? std::fopen(path, "w") : nullptr) {
            std::fprintf(file, "%d", g_allocations.load());
            std::fclose(file);
        }
    }
};
const Report g_report;

} // namespace

void* operator new(std::size_t size)
{
    static const int at = Setting("ORREVA_FAIL_AT");
    void* const memory = g_counts && ++g_allocations == at ? nullptr : std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

/// What the main function does first.
extern "C" __sighandler_t signal(int number, __sighandler_t handler) noexcept
{
    static auto* const next =
        reinterpret_cast<__sighandler_t (*)(int, __sighandler_t)>(dlsym(RTLD_NEXT, "signal"));
    g_counts = true;
    return next(number, handler);
}
