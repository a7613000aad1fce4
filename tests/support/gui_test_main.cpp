#include <QApplication>
#include <cstdlib>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // The windows under test never reach a screen.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
