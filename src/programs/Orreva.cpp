#include "app/OrrevaApp.h"
#include "app/ProgramStyle.h"

#include "Version.h"

#include <QApplication>

#include <clocale>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    // The toolkit takes the system's locale over; numbers are read and written in the C locale always.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("Orreva");
    QApplication::setApplicationVersion(kVersion);
    QApplication::setDesktopFileName("orreva");
    QApplication::setStyle(new CProgramStyle);

    COrrevaApp app;
    if (!app.InitInstance(QApplication::arguments().mid(1))) {
        return 1;
    }
    return QApplication::exec();
}
