// Main of the Qt test programs: an isolated environment, an offscreen QApplication with a
// fixed style and font so that window tests and screenshots do not depend on the desktop.
#include "support/testenv.h"

#include <QApplication>
#include <QFont>
#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testenv::Isolate();
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication app(argc, argv);
    QApplication::setFont(QFont("DejaVu Sans", 9));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
