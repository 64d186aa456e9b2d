// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/calendarpage.h"
#include "support/pdftext.h"
#include "support/testenv.h"
#include "ui/calendar/frmprint.h"
#include "ui/calendar/mainwindowtest.h"
#include "ui/views/frmglance.h"
#include "ui/views/frmlist.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

// The main window at Alexandria, LA (the first-start default) in February 2024.
class Functions : public MainWindowTest {
protected:
    Functions() : MainWindowTest("2024-02-10T07:30:00") {}
    void TearDown() override
    {
        MainWindowTest::TearDown();
        qunsetenv("QUILLMERE_PRINT_PDF");
    }
    // Prints into a fresh PDF file and returns its path.
    QString PrintTo(const QString& name)
    {
        const QString path = testenv::FreshDir("functions-" + name) + "/" + name + ".pdf";
        qputenv("QUILLMERE_PRINT_PDF", path.toLocal8Bit());
        return path;
    }
};

template <typename T> T* OpenWindow()
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* t = dynamic_cast<T*>(w); t && t->isVisible())
            return t;
    return nullptr;
}

// The printed calendar's boxes: February 2024 begins on a Thursday, 29 boxes with times in
// five rows; June 2024 begins on a Saturday and needs six. 1 February 2024: the Moon's
// transit at 10:57 UT (PyEphem) is 04:57 AM here. Days 2 and 16 carry the quarters (last
// quarter lit on the left in the north), 9 new, 24 full; the south sees the quarters the
// other way round.
TEST_F(Functions, CalendarPageBoxesFollowTheMonthGrid)
{
    const CalendarPage feb = CalendarPageOf(App.Astro, App.Cal, 0);
    const CalendarPage south = CalendarPageOf(App.Astro, App.Cal, -1);
    ASSERT_EQ(feb.Boxes.size(), 29u);
    EXPECT_EQ(feb.Boxes[0].Majors.substr(0, 8), "04:57 A/");
    for (auto [day, north, southern] : {std::tuple{2, 4, 2}, {9, 1, 1}, {16, 2, 4}, {24, 3, 3}}) {
        EXPECT_EQ(feb.Boxes[std::size_t(day - 1)].PhaseSymbol, north) << day;
        EXPECT_EQ(south.Boxes[std::size_t(day - 1)].PhaseSymbol, southern) << day;
    }
    SetMonth(2024, 6);
    const CalendarPage june = CalendarPageOf(App.Astro, App.Cal, 0);
    EXPECT_EQ(june.Title, "June   2024");
    // Rows, then the first and last day's column and row.
    for (const auto& [page, rows, first, last] :
         {std::tuple{&feb, 5, std::pair{4, 0}, std::pair{4, 4}}, {&june, 6, {6, 0}, {0, 5}}}) {
        EXPECT_EQ(page->Rows, rows);
        EXPECT_EQ(std::pair(page->Boxes.front().Column, page->Boxes.front().Row), first);
        EXPECT_EQ(std::pair(page->Boxes.back().Column, page->Boxes.back().Row), last);
    }
}

// "&Print" previews the shown month; the window's print button prints it at 1.2 times its
// size, upright on landscape paper; the main window's forecast stays the selected day's.
TEST_F(Functions, PrintCalendarPreviewsAndPrints)
{
    const std::string major = App.Astro.Forecast.Major1Text;
    W->PrintCalendar->trigger();
    FrmPrint* print = W->PrintWindow;
    ASSERT_NE(print, nullptr);
    EXPECT_TRUE(print->isVisible());
    EXPECT_EQ(App.Astro.Forecast.Major1Text, major);

    const QString pdf = PrintTo("calendar");
    print->Command2->click();
    EXPECT_EQ(testenv::PdfPages(pdf), 1);
    const QString text = testenv::PdfText(pdf);
    // The page names its month and place; tools/pdf_pages_check.py reads the rest of the page.
    EXPECT_TRUE(text.contains(QRegularExpression("February\\s+2024")) &&
                text.contains(QString::fromStdString(W->Here.CurLocName)) &&
                text.contains("04:57 A/"))
        << text.toStdString();
    print->Command1->click();
    EXPECT_FALSE(print->isVisible());
}

// "@Glance" and "&Table" hide the main window until they close; the chart opens centred on
// the screen and prints with its title line; the list shows the month at the current location,
// copies it with the wider headings and prints the same lines.
TEST_F(Functions, GlanceAndTableShowPrintAndReturn)
{
    W->AtAGlance->trigger();
    FrmGlance* glance = OpenWindow<FrmGlance>();
    ASSERT_NE(glance, nullptr);
    EXPECT_FALSE(W->isVisible());
    EXPECT_EQ(glance->Chart.Days.size(), 29u);
    const QPoint off = glance->screen()->geometry().center() - glance->geometry().center();
    EXPECT_LE(std::max(std::abs(off.x()), std::abs(off.y())), 2);
    QString pdf = PrintTo("glance");
    glance->Cmd[1]->click();
    QString text = testenv::PdfText(pdf);
    EXPECT_TRUE(text.contains("Lunar Events for Feb/2024") && text.contains("Perigee") &&
                text.contains("Apogee"))
        << text.toStdString();
    glance->Cmd[0]->click();
    EXPECT_TRUE(W->isVisible());

    W->ShowList->trigger();
    FrmList* list = OpenWindow<FrmList>();
    ASSERT_NE(list, nullptr);
    EXPECT_FALSE(W->isVisible());
    EXPECT_EQ(list->windowTitle(), "Monthly Data for Alexandria, LA");
    const QStringList shown = list->Text1->toPlainText().split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(shown.size(), 29);
    // 1 February's line: the Moon's transit at 10:57 UT (PyEphem), 04:57 AM here.
    EXPECT_TRUE(shown[0].startsWith("01  ") && shown[0].contains("04:57"))
        << shown[0].toStdString();
    list->Command2->click();
    const QString clip = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(
        clip.startsWith("Feb 2024\r\n\r\n                 Sun                  Moon \r\n") &&
        clip.contains(shown[28] + "\r\n"))
        << clip.toStdString();
    pdf = PrintTo("list");
    list->Command3->click();
    text = testenv::PdfText(pdf);
    EXPECT_TRUE(text.contains("Feb 2024") && text.contains("\n29 ")) << text.toStdString();
    list->Command1->click();
    EXPECT_TRUE(W->isVisible());
}

} // namespace
