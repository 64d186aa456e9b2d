// SPDX-License-Identifier: GPL-3.0-or-later
// Main of the Qt test programs: an isolated environment, an offscreen QApplication with a
// fixed style and font so that window tests and screenshots do not depend on the desktop.
// QUILLMERE_TEST_DARK=1 gives the windows a dark palette, to look at them as on a dark desktop.
#include "support/testenv.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include <gtest/gtest.h>

namespace {
QPalette DarkPalette()
{
    QPalette dark;
    const QColor window(53, 53, 53), base(35, 35, 35), text(230, 230, 230);
    for (const auto& [role, colour] : {std::pair{QPalette::Window, window},
                                       {QPalette::WindowText, text},
                                       {QPalette::Base, base},
                                       {QPalette::AlternateBase, window},
                                       {QPalette::Text, text},
                                       {QPalette::Button, window},
                                       {QPalette::ButtonText, text},
                                       {QPalette::ToolTipBase, base},
                                       {QPalette::ToolTipText, text},
                                       {QPalette::Highlight, QColor(42, 130, 218)},
                                       {QPalette::HighlightedText, Qt::black},
                                       {QPalette::PlaceholderText, QColor(140, 140, 140)}})
        dark.setColor(role, colour);
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor(120, 120, 120));
    dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(120, 120, 120));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 120, 120));
    return dark;
}
} // namespace

int main(int argc, char** argv)
{
    testenv::Isolate();
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont("DejaVu Sans", 9));
    if (qEnvironmentVariableIsSet("QUILLMERE_TEST_DARK"))
        QApplication::setPalette(DarkPalette());
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
