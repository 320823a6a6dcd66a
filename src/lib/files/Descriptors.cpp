#include "lib/files/Descriptors.h"

#include <cerrno>
#include <charconv>
#include <filesystem>
#include <utility>

#include <poll.h>
#include <unistd.h>

bool Descriptor::Close()
{
    const int number = std::exchange(m_number, -1);
    return number < 0 || close(number) == 0;
}

std::optional<int> OpenDescriptorOf(const std::string& path)
{
    const std::string plain = std::filesystem::path(path).lexically_normal().string();
    constexpr std::string_view kStandard[] = {"/dev/stdin", "/dev/stdout", "/dev/stderr"};
    for (int i = 0; i < 3; ++i) {
        if (plain == kStandard[i]) {
            return i;
        }
    }
    const std::string own = "/proc/" + std::to_string(getpid()) + "/fd/";
    for (const std::string_view folder : {std::string_view("/dev/fd/"), std::string_view("/proc/self/fd/"),
                                          std::string_view("/proc/thread-self/fd/"), std::string_view(own)}) {
        if (!plain.starts_with(folder)) {
            continue;
        }
        int number = -1;
        const char* const end = plain.data() + plain.size();
        const auto read = std::from_chars(plain.data() + folder.size(), end, number);
        if (read.ec == std::errc() && read.ptr == end && number >= 0) {
            return number;
        }
    }
    return std::nullopt;
}

bool WaitUntilReady(int fd, Ready ready)
{
    if (errno != EAGAIN) {
        return false;
    }
    constexpr int kForever = -1;
    pollfd wait{fd, static_cast<short>(ready == Ready::ToRead ? POLLIN : POLLOUT), 0};
    const bool again = poll(&wait, 1, kForever) > 0 || errno == EINTR;
    errno = again ? errno : EAGAIN;
    return again;
}

bool WriteAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(fd, bytes.data(), bytes.size());
        if (written < 0 && (errno == EINTR || WaitUntilReady(fd, Ready::ToWrite))) {
            continue;
        }
        if (written <= 0) {
            errno = written == 0 ? EIO : errno;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}
