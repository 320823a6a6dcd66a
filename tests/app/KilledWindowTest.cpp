// The window program is killed while its design is modified: the next start offers the design as it was.
//
// ORREVA_WINDOW_KILLS asks for another number of kills, ORREVA_RANDOM_SEED for other moments.

#include "app/AppFixture.h"

#include "document/EarlierDesigns.h"
#include "document/RescueCopies.h"

#include <QDialogButtonBox>
#include <QProcess>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>
#include <chrono>
#include <random>
#include <sstream>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int kKills = 8;
/// A second is promised; a test machine may be as busy as it likes.
constexpr long long kLatest = 5000;

struct Change {
    long long at = 0; ///< milliseconds of the steady clock
    int value = 0;
};

class KilledWindow : public testing::Test {
protected:
    /// Starts the program and kills it after a while; what it changed, and when it was killed.
    std::vector<Change> Kill(milliseconds after, long long& killed) const
    {
        QProcess victim;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_STATE_HOME", state.path());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        victim.setProcessEnvironment(environment);
        victim.setStandardErrorFile(QProcess::nullDevice());
        victim.start(ORREVA_WINDOW_VICTIM, QStringList());
        EXPECT_TRUE(victim.waitForReadyRead(60000)) << "a first change";
        std::this_thread::sleep_for(after);
        killed = std::chrono::duration_cast<milliseconds>(Clock::now().time_since_epoch()).count();
        victim.kill();
        victim.waitForFinished();
        std::istringstream lines(victim.readAllStandardOutput().toStdString());
        std::vector<Change> changes;
        for (Change change; lines >> change.at >> change.value;) {
            changes.push_back(change);
        }
        return changes;
    }

    /// For how long before the kill the design had been another than the copy; -1 for no value of its own.
    static long long Lag(const std::vector<Change>& changes, int value, long long killed)
    {
        const auto found = std::ranges::find(changes, value, &Change::value);
        if (found == changes.end()) {
            return -1;
        }
        const auto next = found + 1;
        return next == changes.end() ? 0 : std::max(0LL, killed - next->at);
    }

    QTemporaryDir state;
};

TEST_F(KilledWindow, LeavesItsDesignToTheNextStart)
{
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("ORREVA_WINDOW_KILLS", &isNumber);
    const int kills = isNumber ? asked : kKills;
    std::mt19937 random(static_cast<unsigned>(qEnvironmentVariableIntValue("ORREVA_RANDOM_SEED")));
    long long longest = 0;
    for (int i = 0; i < kills; ++i) {
        long long killed = 0;
        // The first copy may take its second.
        const auto changes = Kill(milliseconds(1000 + random() % 1500), killed);
        RescueCopies copies(state.path().toStdString() + "/orreva/rescue");
        const auto news = copies.TakeNews();
        ASSERT_TRUE(news.has_value()) << i;
        EXPECT_EQ(RescueReason::Crash, news->reason);
        COrrevaData design;
        ASSERT_TRUE(ReadEarlierDesign(*news, design)) << i;
        const long long lag = Lag(changes, static_cast<int>(design.GetFocalLength()), killed);
        EXPECT_GE(lag, 0) << "a value that the design never had";
        EXPECT_LE(lag, kLatest);
        longest = std::max(longest, lag);
        EXPECT_FALSE(copies.TakeNews().has_value()) << "once";
    }
    RecordProperty("kills", kills);
    RecordProperty("longest lag in ms", static_cast<int>(longest));
    std::printf("%d kills, longest lag %lld ms\n", kills, longest);
}

TEST_F(KilledWindow, OffersItInTheListOverTheWindow)
{
    long long killed = 0;
    Kill(milliseconds(1500), killed);
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    COrrevaApp next;
    ASSERT_TRUE(next.InitInstance({}));
    bool offered = false;
    QTimer::singleShot(0, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, dialog);
        offered = dialog->findChild<QTreeView*>("designs")->currentIndex().isValid();
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    });
    QCoreApplication::processEvents();
    EXPECT_TRUE(offered);
    EXPECT_GE(next.Document().main_record.GetFocalLength(), 1000.0);
    EXPECT_EQ(1, next.Document().main_record.IsModified());
    next.Document().main_record.SetModified(0);
}

} // namespace
