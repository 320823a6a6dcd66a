// Saves under fire: each call for a file failing in turn, the program killed at each of them and at any
// moment. Whatever happens, the old or the new file stands there whole, with a status or a word, and nothing
// beside it that the next save does not remove.

#include "document/TelescopeFile.h"
#include "model/record/OrrevaData.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int kErrors[] = {EIO, ENOSPC, EACCES, EPERM, EROFS, EINTR};

std::string Design(const char* title)
{
    COrrevaData record;
    record.SetTitle(title);
    return WriteTelescope(record);
}

struct Ended {
    int status = 0; ///< of the exit; -1 for an end by a signal
    std::string words;
};

/// A folder with a design "old" in it, where a program is to write "new"; and a state folder beside.
class Save {
public:
    explicit Save(std::vector<std::string> words) : m_words(std::move(words))
    {
        fs::create_directory(m_folder / "designs");
        fs::create_directory(m_folder / "state");
        fs::create_directory(m_folder / "temporary");
        chmod((m_folder / "temporary").c_str(), 0777);
        chmod(m_folder.Path().c_str(), 0777);
        chmod((m_folder / "state").c_str(), 0777);
        Restore();
    }
    ~Save() { chmod((m_folder / "designs").c_str(), 0777); }

    /// The file may be written, its folder not; root would write into it all the same.
    void OnlyInPlace()
    {
        m_inPlace = true;
        Restore();
    }

    /// The old design alone, and no copies.
    void Restore()
    {
        chmod((m_folder / "designs").c_str(), 0777);
        fs::remove_all(m_folder / "state/orreva");
        for (const auto& entry : fs::directory_iterator(m_folder / "designs")) {
            fs::remove(entry);
        }
        m_folder.Write("designs/a.orreva.xml", Design("old"));
        chmod((m_folder / "designs/a.orreva.xml").c_str(), 0666);
        chmod((m_folder / "designs").c_str(), m_inPlace ? 0555 : 0777);
    }

    /// Runs the program with the call of a number failing (0: none).
    Ended With(int call, int error)
    {
        const pid_t child = Start(call, error);
        return End(child);
    }

    pid_t Start(int call, int error)
    {
        const pid_t child = fork();
        if (child == 0) {
            Become(call, error);
        }
        return child;
    }

    Ended End(pid_t child)
    {
        int status = 0;
        waitpid(child, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, m_folder.Read("words")};
    }

    int Calls() { return std::atoi(m_folder.Read("count").c_str()); }

    std::string File() const { return m_folder.Read("designs/a.orreva.xml"); }

    /// What stands beside the file and its `~`, and in the folder for temporary files.
    std::set<std::string> Others() const
    {
        std::set<std::string> names;
        for (const char* const place : {"designs", "temporary"}) {
            for (const auto& entry : fs::directory_iterator(m_folder / place)) {
                names.insert(entry.path().filename());
            }
        }
        names.erase("a.orreva.xml");
        names.erase("a.orreva.xml~");
        return names;
    }

    /// Whether a whole copy of the old design stands among the rescue copies or beside the file.
    bool OldIsKept() const
    {
        const std::string old = Design("old");
        bool kept = m_folder.Read("designs/a.orreva.xml~") == old;
        std::error_code none;
        for (const auto& entry : fs::recursive_directory_iterator(m_folder / "state", none)) {
            kept = kept || m_folder.Read(fs::relative(entry.path(), m_folder.Path())) == old;
        }
        return kept;
    }

private:
    [[noreturn]] void Become(int call, int error)
    {
        if (m_inPlace) {
            BecomeOrdinaryUser();
        }
        const int words = open((m_folder / "words").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        dup2(words, 1);
        dup2(words, 2);
        setenv("TMPDIR", (m_folder / "temporary").c_str(), 1);
        setenv("XDG_STATE_HOME", (m_folder / "state").c_str(), 1);
        setenv("ORREVA_FAIL_AT", std::to_string(call).c_str(), 1);
        setenv("ORREVA_FAIL_ERROR", std::to_string(error).c_str(), 1);
        setenv("ORREVA_FAIL_COUNT", (m_folder / "count").c_str(), 1);
        setenv("LD_PRELOAD", ORREVA_FAILING_CALLS, 1);
        std::vector<char*> arguments;
        for (std::string& word : m_words) {
            arguments.push_back(word.data());
        }
        arguments.push_back(nullptr);
        umask(0);
        execv(arguments[0], arguments.data());
        std::_Exit(99);
    }

    TemporaryFolder m_folder;
    std::vector<std::string> m_words;
    bool m_inPlace = false;
};

std::vector<std::string> WindowSave() { return {ORREVA_SAVE_DESIGN, "designs/a.orreva.xml", "new"}; }

/// How many random kills a test makes; more by hand.
int Kills(int usual)
{
    const char* const wanted = std::getenv("ORREVA_KILLS");
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

/// Lets each call fail in turn, with every one of the errors or with the next of them.
void EachCallFails(Save& save, const std::string& fresh, bool every)
{
    ASSERT_EQ(0, save.With(0, 0).status);
    ASSERT_EQ(fresh, save.File());
    const int calls = save.Calls();
    ASSERT_GT(calls, 10);
    std::printf("%d calls\n", calls);
    int done = 0;
    int failed = 0;
    for (int call = 1; call <= calls; ++call) {
        for (std::size_t k = 0; k < std::size(kErrors); ++k) {
            if (!every && k != static_cast<std::size_t>(call) % std::size(kErrors)) {
                continue;
            }
            save.Restore();
            const Ended run = save.With(call, kErrors[k]);
            const std::string what = "call " + std::to_string(call) + ", error " +
                                     std::to_string(kErrors[k]) + ", status " + std::to_string(run.status) +
                                     ": " + run.words;
            ASSERT_TRUE(run.status == 0 || run.status == 1) << what;
            EXPECT_TRUE(save.File() == (run.status == 0 ? fresh : Design("old"))) << what;
            EXPECT_TRUE(run.status == 0 || !run.words.empty()) << what;
            ++(run.status == 0 ? done : failed);
            if (!save.Others().empty()) {
                ASSERT_EQ(0, save.With(0, 0).status) << what;
                EXPECT_TRUE(save.Others().empty()) << what;
            }
        }
    }
    std::printf("%d saved, %d failed with a word\n", done, failed);
}

/// Kills the program at each of its calls.
void KilledAtEachCall(Save& save, const std::string& fresh, bool inPlace)
{
    ASSERT_EQ(0, save.With(0, 0).status);
    const int calls = save.Calls();
    for (int call = 1; call <= calls; ++call) {
        save.Restore();
        const Ended run = save.With(call, 0);
        const std::string what = "killed at call " + std::to_string(call);
        ASSERT_EQ(-1, run.status) << what;
        const std::string file = save.File();
        EXPECT_TRUE(file == fresh || file == Design("old") || (inPlace && save.OldIsKept())) << what;
        if (!save.Others().empty()) {
            ASSERT_EQ(0, save.With(0, 0).status) << what;
            EXPECT_EQ(fresh, save.File()) << what;
            EXPECT_TRUE(save.Others().empty()) << what;
        }
    }
}

/// Kills the program at random moments of the time that a save takes.
void KilledAtAnyMoment(Save& save, const std::string& fresh, int kills)
{
    ASSERT_EQ(0, save.With(0, 0).status);
    std::mt19937 random(1);
    useconds_t longest = 1000;
    int olds = 0;
    int news = 0;
    for (int i = 0; i < kills; ++i) {
        save.Restore();
        const pid_t child = save.Start(0, 0);
        usleep(std::uniform_int_distribution<useconds_t>(0, longest)(random));
        kill(child, SIGKILL);
        // As many saves come through as are killed, whatever the machine's speed.
        longest = save.End(child).status == 0 ? longest * 9 / 10 + 1 : longest * 11 / 10 + 1;
        const std::string file = save.File();
        ASSERT_TRUE(file == fresh || file == Design("old")) << "kill " << i;
        ++(file == fresh ? news : olds);
    }
    ASSERT_EQ(0, save.With(0, 0).status);
    EXPECT_TRUE(save.Others().empty());
    std::printf("%d kills: %d old, %d new\n", kills, olds, news);
}

TEST(WindowSave, StandsEveryFailingCall)
{
    Save save(WindowSave());
    EachCallFails(save, Design("new"), true);
}

TEST(WindowSave, StandsEveryFailingCallInPlace)
{
    Save save(WindowSave());
    save.OnlyInPlace();
    EachCallFails(save, Design("new"), false);
}

TEST(WindowSave, StandsAKillAtEveryCall)
{
    Save save(WindowSave());
    KilledAtEachCall(save, Design("new"), false);
}

TEST(WindowSave, StandsAKillAtEveryCallInPlace)
{
    Save save(WindowSave());
    save.OnlyInPlace();
    KilledAtEachCall(save, Design("new"), true);
}

TEST(WindowSave, StandsAKillAtAnyMoment)
{
    Save save(WindowSave());
    KilledAtAnyMoment(save, Design("new"), Kills(100));
}

#ifdef ORREVA_CLI

std::vector<std::string> CompanionSave()
{
    return {ORREVA_CLI, "save", "--title", "new", "-o", "designs/a.orreva.xml"};
}

std::string CompanionsDesign()
{
    Save save(CompanionSave());
    save.With(0, 0);
    return save.File();
}

TEST(CompanionSave, StandsEveryFailingCall)
{
    const std::string fresh = CompanionsDesign();
    Save save(CompanionSave());
    EachCallFails(save, fresh, Kills(0) > 0);
}

TEST(CompanionSave, StandsAKillAtEveryCall)
{
    const std::string fresh = CompanionsDesign();
    Save save(CompanionSave());
    KilledAtEachCall(save, fresh, false);
}

TEST(CompanionSave, StandsAKillAtAnyMoment)
{
    const std::string fresh = CompanionsDesign();
    Save save(CompanionSave());
    KilledAtAnyMoment(save, fresh, Kills(50));
}

TEST(CompanionRead, NeverGivesATelescopeOfZeros)
{
    Save read({ORREVA_CLI, "save", "designs/a.orreva.xml"});
    const Ended whole = read.With(0, 0);
    ASSERT_EQ(0, whole.status);
    ASSERT_NE(std::string::npos, whole.words.find("<title>old</title>"));
    const int calls = read.Calls();
    ASSERT_GE(calls, 3) << "it opens, reads and closes at least";
    int failed = 0;
    for (int call = 1; call <= calls; ++call) {
        const Ended run = read.With(call, EIO);
        EXPECT_TRUE(run.status == 0 || run.status == 1) << call;
        EXPECT_EQ(run.status == 0 ? whole.words : "orreva-cli: cannot read designs/a.orreva.xml\n",
                  run.words);
        failed += run.status;
    }
    EXPECT_GE(failed, 2) << "the opening and the reading";
}

#endif

} // namespace
