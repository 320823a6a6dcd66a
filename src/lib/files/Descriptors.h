#pragma once

#include <optional>
#include <string>
#include <string_view>

/// An open descriptor, closed at the end; below 0: none.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    explicit operator bool() const { return m_number >= 0; }
    int Number() const { return m_number; }
    /// False if the system tells only now that something failed.
    bool Close();

private:
    int m_number;
};

/// The descriptor of this process that a path stands for (/dev/stdout, /dev/fd/N, /proc/self/fd/N and the
/// like), nothing for any other path. It need not be open.
std::optional<int> OpenDescriptorOf(const std::string& path);

enum class Ready { ToRead, ToWrite };

/// After a failed read or write of a descriptor that does not wait by itself: waits, and gives true if it is
/// to be tried again. False, with `errno` as it was, for every other failure.
bool WaitUntilReady(int fd, Ready ready);

/// Writes all bytes; false on an error (`errno`).
bool WriteAll(int fd, std::string_view bytes);
