#include <gtest/gtest.h>

#include <QApplication>

#include <clocale>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // numbers never follow the user's language
    return RUN_ALL_TESTS();
}
