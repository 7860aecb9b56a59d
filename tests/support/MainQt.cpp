#include "window/ui/Theme.h"

#include <QApplication>
#include <clocale>
#include <gtest/gtest.h>

/// Tests of windows: without a screen unless one is named, numbers as the C library's own.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    std::setlocale(LC_NUMERIC, "C");
    vermo::theme::appliquer(application);
    return RUN_ALL_TESTS();
}
