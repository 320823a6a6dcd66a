// The window program with a design that changes all the time, in bursts with rests between them, until it is
// killed. Each change is told on standard output: the milliseconds of the steady clock and the focal length.

#include "app/MainFrame.h"
#include "app/OrrevaApp.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace {

constexpr int kEvery = 37; ///< milliseconds
constexpr int kBurst = 20; ///< changes in a row, and as long a rest

long long Now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir profile;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, profile.path());
    QApplication application(argc, argv);
    COrrevaApp app;
    if (!app.InitInstance({})) {
        return 1;
    }
    COrrevaDoc& document = app.Document();
    document.main_record.Reset();
    int turn = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++turn / kBurst % 2 == 0) {
            document.main_record.SetFocalLength(1000 + turn);
            document.Recalculate();
            std::printf("%lld %d\n", Now(), 1000 + turn);
            std::fflush(stdout);
        }
    });
    timer.start(kEvery);
    return QApplication::exec();
}
