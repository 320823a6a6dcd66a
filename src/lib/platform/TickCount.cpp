#include "lib/platform/TickCount.h"

#include <chrono>

std::uint32_t TickCount()
{
    using namespace std::chrono;
    const auto now = steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(duration_cast<milliseconds>(now).count());
}
