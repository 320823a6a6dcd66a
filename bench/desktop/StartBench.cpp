// The start, from the beginning of the process to the first painted frame: the workbench beside a bare main
// window of the toolkit, empty and with one line of text. The empty one never opens the system's fonts, which
// any window with a menu must. Each is a process of its own, run in turn. To be run on a display: the
// offscreen platform has no window to open, so that a bare one costs there little more than the loading of
// the libraries.

#include "app/OrrevaApp.h"

#include "app/MainFrame.h"
#include "app/ProgramStyle.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constexpr int kRuns = 31;

/// Ends the process when the window has been painted: taking it down is no part of the start.
class UntilPainted : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            QMetaObject::invokeMethod(
                qApp, [] { std::_Exit(0); }, Qt::QueuedConnection);
        }
        return false;
    }
};

int StartBare(int argc, char** argv, const char* text)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    if (*text != 0) {
        window.setCentralWidget(new QLabel(text));
    }
    UntilPainted painted;
    window.installEventFilter(&painted);
    window.showMaximized();
    return QApplication::exec();
}

int StartWorkbench(int argc, char** argv)
{
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setStyle(new CProgramStyle);
    COrrevaApp app;
    if (!app.InitInstance({})) {
        return 1;
    }
    UntilPainted painted;
    app.Frame().installEventFilter(&painted);
    return QApplication::exec();
}

double Milliseconds(const QString& program, const QString& what)
{
    QElapsedTimer timer;
    timer.start();
    QProcess::execute(program, {what});
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray what = argc > 1 ? argv[1] : "";
    if (what == "bare") {
        return StartBare(argc, argv, "");
    }
    if (what == "text") {
        return StartBare(argc, argv, "one line of text");
    }
    if (what == "workbench") {
        return StartWorkbench(argc, argv);
    }

    const QTemporaryDir profile;
    qputenv("XDG_CONFIG_HOME", profile.path().toUtf8());
    std::vector<double> bare;
    std::vector<double> text;
    std::vector<double> workbench;
    for (int i = 0; i < kRuns; ++i) {
        bare.push_back(Milliseconds(argv[0], "bare"));
        text.push_back(Milliseconds(argv[0], "text"));
        workbench.push_back(Milliseconds(argv[0], "workbench"));
    }
    std::printf("empty window %.1f ms, window with a text %.1f ms, workbench %.1f ms: ratios %.2f and %.2f\n",
                Median(bare), Median(text), Median(workbench), Median(workbench) / Median(bare),
                Median(workbench) / Median(text));
    return 0;
}
