#include "lib/platform/LibSup.h"

#include "lib/files/FileQueries.h"
#include "lib/text/CharTools.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kNoStart = 62;

/// The result of a system call, which is made again when a signal interrupts it: the child's end is one.
template <typename Call>
auto Uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// In the child: starts the program in a grandchild, which nobody has to wait for. What fails is written to
/// `report`; a start that succeeds closes it.
[[noreturn]] void Start(char* const* words, int report)
{
    const pid_t program = fork();
    if (program == 0) {
        setsid();
        execvp(words[0], words);
    }
    if (program <= 0) {
        const int error = errno;
        [[maybe_unused]] const ssize_t told = write(report, &error, sizeof error);
    }
    _exit(0);
}

/// 0 if the program runs, otherwise 62.
int StartDetached(std::vector<std::string> words)
{
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    int report[2];
    if (words.empty() || pipe2(report, O_CLOEXEC) != 0) {
        return kNoStart;
    }
    const pid_t child = fork();
    if (child == 0) {
        Start(arguments.data(), report[1]);
    }
    close(report[1]);
    int error = 0;
    const bool failed =
        child < 0 || Uninterrupted([&] { return read(report[0], &error, sizeof error); }) != 0;
    close(report[0]);
    if (child > 0) {
        Uninterrupted([child] { return waitpid(child, nullptr, 0); });
    }
    return failed ? kNoStart : 0;
}

std::vector<std::string> SplitWords(const char* psz)
{
    std::vector<std::string> words;
    for (const char* p = SkipBlanks(psz); *p != 0; p = SkipBlanks(p)) {
        std::string word;
        for (bool quoted = false; *p != 0 && (quoted || !IsBlank(*p)); ++p) {
            if (*p == '"') {
                quoted = !quoted;
            } else {
                word += *p;
            }
        }
        words.push_back(word);
    }
    return words;
}

} // namespace

void* AlreadyRunning(const char* pszName)
{
    constexpr off_t kSize = 32;
    if (pszName == nullptr) {
        return nullptr;
    }
    std::string name(pszName);
    std::replace(name.begin(), name.end(), '/', '_');
    name = "/" + name + "." + std::to_string(geteuid());
    const int fd = shm_open(name.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
    if (fd < 0) {
        return nullptr;
    }
    // The object outlives its program, so it is the lock that tells whether one holds it.
    if (flock(fd, LOCK_EX | LOCK_NB) != 0 || ftruncate(fd, kSize) != 0) {
        close(fd);
        return nullptr;
    }
    void* const object = mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
    if (object == MAP_FAILED) {
        close(fd);
        return nullptr;
    }
    return object; // the descriptor stays open with its lock until the program ends
}

int RunProgram(const char* pszCommandLine)
{
    return pszCommandLine != nullptr ? StartDetached(SplitWords(pszCommandLine)) : kNoStart;
}

int OpenDocument(void*, const char* pszPath)
{
    if (pszPath == nullptr) {
        return 27;
    }
    if (FileExists(pszPath) == 0) {
        return 1;
    }
    // A path is a path: it must not look like an option, nor like an address.
    const std::string path = *pszPath == '/' ? pszPath : std::string("./") + pszPath;
    return StartDetached({"xdg-open", path});
}

bool IsUserLoggedIn()
{
    passwd entry = {};
    passwd* found = nullptr;
    std::vector<char> buffer(16384);
    return IsUserLoggedIn(getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found));
}

bool IsUserLoggedIn(int nError) { return nError != ENOSYS; }
