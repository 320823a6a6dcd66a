#include "lib/files/TemporaryFiles.h"

#include "lib/files/Descriptors.h"
#include "lib/files/FileQueries.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <mutex>
#include <random>
#include <string_view>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Not the replaced file's own name with an ending: that could be too long.
constexpr std::string_view kTemporaryPrefix = ".orreva-";
constexpr std::size_t kRandomCharacters = 6;
constexpr std::string_view kAlphabet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

std::string RandomName()
{
    std::random_device random;
    std::uniform_int_distribution<std::size_t> place(0, kAlphabet.size() - 1);
    std::string name(kTemporaryPrefix);
    for (std::size_t i = 0; i < kRandomCharacters; ++i) {
        name += kAlphabet[place(random)];
    }
    return name;
}

bool IsTemporaryName(std::string_view name)
{
    return name.size() == kTemporaryPrefix.size() + kRandomCharacters && name.starts_with(kTemporaryPrefix) &&
           name.find_first_not_of(kAlphabet, kTemporaryPrefix.size()) == std::string_view::npos;
}

/// Whether somebody has taken the file away, who then took it for one that was left behind.
bool IsGone(int fd)
{
    struct stat status = {};
    return fstat(fd, &status) == 0 && status.st_nlink == 0;
}

// What a signal removes. Its handler may look at nothing but plain memory. ---------------------------------

struct Place {
    std::atomic<bool> used = false;
    std::atomic<bool> filled = false;
    char path[PATH_MAX] = {};
};

Place g_places[8];
std::atomic<int> g_held = 0;
std::atomic<int> g_waiting = 0;

constexpr int kEndingSignals[] = {SIGTERM, SIGINT, SIGHUP};
struct sigaction g_before[std::size(kEndingSignals)];
struct sigaction g_beforeTooLarge;
std::mutex g_mutex;
int g_users = 0;

void OnEndingSignal(int signal)
{
    if (g_held > 0) {
        g_waiting = signal;
        return;
    }
    const int error = errno;
    for (const Place& place : g_places) {
        if (place.filled) {
            unlink(place.path);
        }
    }
    for (std::size_t i = 0; i < std::size(kEndingSignals); ++i) {
        if (kEndingSignals[i] == signal) {
            sigaction(signal, &g_before[i], nullptr);
        }
    }
    raise(signal); // comes again when this handler is done, and does what it would have done
    errno = error;
}

void CatchSignals()
{
    const std::lock_guard lock(g_mutex);
    if (g_users++ > 0) {
        return;
    }
    struct sigaction action = {};
    action.sa_handler = OnEndingSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < std::size(kEndingSignals); ++i) {
        sigaction(kEndingSignals[i], nullptr, &g_before[i]);
        if (g_before[i].sa_handler != SIG_IGN) {
            sigaction(kEndingSignals[i], &action, nullptr);
        }
    }
    action.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, nullptr, &g_beforeTooLarge);
    if (g_beforeTooLarge.sa_handler == SIG_DFL) {
        sigaction(SIGXFSZ, &action, nullptr);
    }
}

void ReleaseSignals()
{
    const std::lock_guard lock(g_mutex);
    if (--g_users > 0) {
        return;
    }
    for (std::size_t i = 0; i < std::size(kEndingSignals); ++i) {
        sigaction(kEndingSignals[i], &g_before[i], nullptr);
    }
    sigaction(SIGXFSZ, &g_beforeTooLarge, nullptr);
}

int TakePlace(const std::string& path)
{
    for (std::size_t i = 0; path.size() < PATH_MAX && i < std::size(g_places); ++i) {
        if (!g_places[i].used.exchange(true)) {
            std::strcpy(g_places[i].path, path.c_str());
            g_places[i].filled = true;
            return static_cast<int>(i);
        }
    }
    return -1;
}

void GivePlaceBack(int place)
{
    if (place >= 0) {
        g_places[place].filled = false;
        g_places[place].used = false;
    }
}

} // namespace

HeldSignals::HeldSignals() { ++g_held; }

HeldSignals::~HeldSignals()
{
    if (--g_held == 0) {
        const int signal = g_waiting.exchange(0);
        if (signal != 0) {
            raise(signal);
        }
    }
}

TemporaryFile::TemporaryFile() { CatchSignals(); }

TemporaryFile::~TemporaryFile()
{
    if (m_fd >= 0) {
        if (!m_path.empty()) {
            unlink(m_path.c_str());
        }
        close(m_fd);
    }
    Forget();
    ReleaseSignals();
}

void TemporaryFile::Forget()
{
    GivePlaceBack(m_place);
    m_place = -1;
    m_path.clear();
}

bool TemporaryFile::Make(const std::string& folder, mode_t mode)
{
    constexpr int kTries = 100;
    for (int i = 0; i < kTries; ++i) {
        const HeldSignals held;
        m_path = (fs::path(folder) / RandomName()).string();
        m_fd = open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (m_fd < 0 && errno == EEXIST) {
            continue;
        }
        if (m_fd < 0) {
            m_path.clear();
            return false;
        }
        m_place = TakePlace(m_path);
        // A file system without locks leaves nothing to be told by; then nothing is held for stale there.
        if ((flock(m_fd, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) && !IsGone(m_fd)) {
            return true;
        }
        close(m_fd); // somebody took it for stale before it was locked
        m_fd = -1;
        Forget();
    }
    errno = EEXIST;
    return false;
}

bool TemporaryFile::RenameTo(const std::string& path)
{
    if (std::rename(m_path.c_str(), path.c_str()) != 0) {
        return false;
    }
    Forget();
    return true;
}

void RemoveStaleFiles(const std::string& folder)
{
    for (const std::string& name : FolderNames(folder)) {
        if (!IsTemporaryName(name)) {
            continue;
        }
        const std::string path = (fs::path(folder) / name).string();
        const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat status = {};
        if (file && fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
            status.st_uid == geteuid() && flock(file.Number(), LOCK_EX | LOCK_NB) == 0) {
            unlink(path.c_str());
        }
    }
}
