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
    const QColor window(53, 53, 53), base(35, 35, 35), text(230, 230, 230), grey(120, 120, 120);
    QPalette dark(text, window, window, window, window, text, text, base, window);
    dark.setColor(QPalette::ToolTipBase, base);
    dark.setColor(QPalette::ToolTipText, text);
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::black);
    dark.setColor(QPalette::PlaceholderText, QColor(140, 140, 140));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, grey);
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
