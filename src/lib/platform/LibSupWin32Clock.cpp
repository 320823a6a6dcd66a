#include "lib/platform/LibSupWin32.h"
#include "lib/platform/TickCount.h"

bool PauseWatch::Pause(bool bPause, std::uint32_t now)
{
    if (bPause && !m_bPaused) {
        m_nPausedAt = now;
    }
    if (!bPause && m_bPaused) {
        m_nPauses += now - m_nPausedAt;
    }
    m_bPaused = bPause;
    return m_bPaused;
}

std::uint32_t PauseWatch::Count(std::uint32_t now) const
{
    return (m_bPaused ? m_nPausedAt : now) - m_nPauses;
}

bool PauseWatch::HasElapsed(std::uint32_t t, std::uint32_t now) const
{
    constexpr std::uint32_t kJustStarted = 15000;
    return Count(now) > t || Count(now) < kJustStarted;
}

namespace {

PauseWatch g_watch;

} // namespace

bool PauseClock(bool bPause) { return g_watch.Pause(bPause, TickCount()); }

bool ElapsedSince(std::uint32_t t) { return g_watch.HasElapsed(t, TickCount()); }
