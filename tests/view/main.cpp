#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // Fonts and images need an application; no window is opened.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
