#include "app/ProgramStyle.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <clocale>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // The user's own profile is not the tests' to write.
    const QTemporaryDir profile;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, profile.path());
    qputenv("XDG_STATE_HOME", profile.path().toUtf8());

    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setStyle(new CProgramStyle);
    return RUN_ALL_TESTS();
}
