#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // The windows under test never reach a screen. Set here rather than by
    // the caller, since Wine hands a Windows program no QT_ variable.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
