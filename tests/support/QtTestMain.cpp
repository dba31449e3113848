#include <QApplication>

#include <gtest/gtest.h>

// Taken in by test programs without a main() of their own. Widgets are drawn off screen and dialogs are Qt's own, so
// that a test can drive them.
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
