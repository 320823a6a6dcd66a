#include "cli/Toolkit.h"

#include <clocale>

std::unique_ptr<QGuiApplication> OpenToolkit()
{
    if (QCoreApplication::instance() != nullptr) {
        return nullptr;
    }
    static char name[] = "orreva-cli";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Warnings of the toolkit about the desktop that is not there are none of ours.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    auto application = std::make_unique<QGuiApplication>(count, arguments);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit follows the user's language
    return application;
}
