// SPDX-License-Identifier: GPL-3.0-or-later
// The main window on the dark palette QUILLMERE_PALETTE asks for, enlarged: the grid and the
// moon picture take the room, and every day's number reads on its cell.
#include "app/startup.h"
#include "platform/singleinstance.h"
#include "ui/calendar/daycellwidget.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"

#include <QApplication>
#include <QLabel>
#include <QStatusBar>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

// The WCAG contrast ratio of two colours (1 to 21).
double Contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& c) {
        const auto channel = [](double v) {
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) +
               0.0722 * channel(c.blueF());
    };
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

TEST(MainWindowLook, DarkPaletteAndALargeWindow)
{
    constexpr double ReadableContrast = 4.5;
    const QPalette before = QApplication::palette();
    qputenv("QUILLMERE_PALETTE", "dark");
    ApplyRequestedPalette();
    qunsetenv("QUILLMERE_PALETTE");
    qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
    AppState app;
    SingleInstance instance(QStringLiteral("palette-test"));
    ASSERT_EQ(StartUp(app, true, instance), StartOutcome::Run);
    FrmCalendar w(app);
    w.show();
    w.resize(1600, 1000);
    QApplication::processEvents();

    for (const DayCellWidget* cell : w.txtpic) {
        const DayCellWidget::Content& c = cell->Shown();
        EXPECT_LT(c.Background.lightness(), 128) << c.Number.toStdString();
        EXPECT_GE(Contrast(c.Background, c.TextColor), ReadableContrast) << c.Number.toStdString();
    }
    const QColor text = w.Label[32]->palette().color(QPalette::WindowText);
    EXPECT_GE(Contrast(text, w.palette().color(QPalette::Window)), ReadableContrast);

    // The grid reaches down to the day counter under it and the panel's picture has grown.
    const QWidget* central = w.centralWidget();
    const QRect lastRow = w.txtpic[35]->geometry();
    EXPECT_GT(lastRow.bottom(), central->height() - 3 * w.Label[3]->height());
    EXPECT_GT(w.txtpic[6]->geometry().right(), central->width() / 2);
    EXPECT_GT(std::min(w.PicM->width(), w.PicM->height()), 250);
    EXPECT_GT(w.PicM->pixmap().width(), 250);
    EXPECT_TRUE(w.grab().save(QStringLiteral(QUILLMERE_SCREENSHOTS "/main-dark-1600x1000.png")));
    QApplication::setPalette(before);
}

} // namespace
