// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/calendar.h"
#include "pages/calendarpage.h"
#include "platform/settingsio.h"
#include "support/pdftext.h"
#include "support/testenv.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/calendar/frmprint.h"
#include "ui/calendar/mainwindowtest.h"
#include "ui/views/frmglance.h"
#include "ui/views/frmlist.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <set>

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
    static QString Screenshots() { return QStringLiteral(QUILLMERE_SCREENSHOTS); }
};

template <typename T> T* OpenWindow()
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* t = dynamic_cast<T*>(w); t && t->isVisible())
            return t;
    return nullptr;
}

TEST_F(Functions, MenuHoldsPrintGlanceAndTable)
{
    QMenu* menu = W->menuBar()->findChild<QMenu*>(QStringLiteral("ProgFunctions"));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->title(), "&Functions");
    QStringList captions;
    for (QAction* a : menu->actions())
        captions << a->text();
    EXPECT_EQ(captions, QStringList({"&Print", "@&Glance", "&Table"}));
}

// February 2024 begins on a Thursday: 29 boxes with times, in five rows; June 2024 begins on
// a Saturday and needs six.
TEST_F(Functions, CalendarPageBoxesFollowTheMonthGrid)
{
    const CalendarPage feb = CalendarPageOf(App.Astro, App.Cal, 0);
    ASSERT_EQ(feb.Boxes.size(), 29u);
    EXPECT_EQ(feb.Rows, 5);
    EXPECT_EQ(feb.Boxes[0].Column, 4);
    EXPECT_EQ(feb.Boxes[0].Row, 0);
    EXPECT_EQ(feb.Boxes[28].Column, 4);
    EXPECT_EQ(feb.Boxes[28].Row, 4);
    for (const CalendarPageBox& b : feb.Boxes) {
        EXPECT_NE(b.Majors.find('/'), std::string::npos) << b.Day;
        EXPECT_NE(b.Minors.find('/'), std::string::npos) << b.Day;
        EXPECT_EQ(b.Majors.find(" PM"), std::string::npos) << b.Majors;
    }
    // 1 February 2024: the Moon's transit at 10:57 UT (PyEphem) is 04:57 AM here.
    EXPECT_EQ(feb.Boxes[0].Majors.substr(0, 8), "04:57 A/");
    // Days 2 and 16 carry the quarters (last quarter lit on the left in the north), 9 new,
    // 24 full; the south sees the quarters the other way round.
    const CalendarPage south = CalendarPageOf(App.Astro, App.Cal, -1);
    for (auto [day, north, southern] : {std::tuple{2, 4, 2}, {9, 1, 1}, {16, 2, 4}, {24, 3, 3}}) {
        EXPECT_EQ(feb.Boxes[std::size_t(day - 1)].PhaseSymbol, north) << day;
        EXPECT_EQ(south.Boxes[std::size_t(day - 1)].PhaseSymbol, southern) << day;
    }

    SetMonth(2024, 6);
    const CalendarPage june = CalendarPageOf(App.Astro, App.Cal, 0);
    EXPECT_EQ(june.Rows, 6);
    EXPECT_EQ(june.Boxes[0].Column, 6);
    EXPECT_EQ(june.Boxes[29].Row, 5);
    EXPECT_EQ(june.Boxes[29].Column, 0);
    EXPECT_EQ(june.Title, "June   2024");
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
    EXPECT_EQ(print->windowTitle(), "Print Calendar");
    EXPECT_EQ(print->Page.Boxes.size(), 29u);
    EXPECT_EQ(App.Astro.Forecast.Major1Text, major);
    EXPECT_TRUE(print->grab().save(Screenshots() + "/frmprint-feb2024.png"));

    const QString pdf = PrintTo("calendar");
    print->Command2->click();
    EXPECT_TRUE(App.Messages.Shown().empty());
    EXPECT_EQ(testenv::PdfPages(pdf), 1);
    const QString text = testenv::PdfText(pdf);
    EXPECT_TRUE(text.contains(QRegularExpression("February\\s+2024"))) << text.toStdString();
    // The page names its place and explains its fish.
    EXPECT_TRUE(text.contains(QString::fromStdString(W->Here.CurLocName))) << text.toStdString();
    for (const char* word : {"Best", "V.Good", "Good", "Fair"})
        EXPECT_TRUE(text.contains(word)) << word;
    EXPECT_TRUE(text.contains("04:57 A/")) << text.toStdString();
    std::set<int> numbers;
    for (const auto& m : QRegularExpression("(?:^|\\s)(\\d{1,2})(?=\\s|$)").globalMatch(text))
        numbers.insert(m.captured(1).toInt());
    for (int d = 1; d <= 29; ++d)
        EXPECT_TRUE(numbers.count(d)) << d;
    EXPECT_FALSE(numbers.count(30));
    for (const char* day : {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"})
        EXPECT_TRUE(text.contains(day)) << day;
    testenv::PdfToPng(pdf, Screenshots() + "/printed-calendar-feb2024");
    print->Command1->click();
    EXPECT_FALSE(print->isVisible());
}

// "@Glance" hides the main window and shows the chart centred on the screen; closing it
// brings the main window back. Its print button prints the chart and the title line.
TEST_F(Functions, GlanceOpensCentredPrintsAndReturns)
{
    W->AtAGlance->trigger();
    FrmGlance* glance = OpenWindow<FrmGlance>();
    ASSERT_NE(glance, nullptr);
    EXPECT_FALSE(W->isVisible());
    EXPECT_EQ(glance->windowTitle(), "Lunar Events for Feb/2024");
    EXPECT_EQ(glance->Chart.Days.size(), 29u);
    const QRect screen = glance->screen()->geometry();
    EXPECT_NEAR(glance->x() + glance->width() / 2, screen.center().x(), 2);
    EXPECT_NEAR(glance->y() + glance->height() / 2, screen.center().y(), 2);
    EXPECT_TRUE(glance->grab().save(Screenshots() + "/frmglance-feb2024.png"));

    const QString pdf = PrintTo("glance");
    glance->Cmd[1]->click();
    const QString text = testenv::PdfText(pdf);
    EXPECT_TRUE(text.contains("Lunar Events for Feb/2024")) << text.toStdString();
    EXPECT_TRUE(text.contains("Perigee") && text.contains("Apogee")) << text.toStdString();
    glance->Cmd[0]->click();
    EXPECT_TRUE(W->isVisible());
}

// "&Table" lists the month at the current location with the main window out of view; the
// clipboard gets the wider headings; the printout uses the same lines.
TEST_F(Functions, TableListsCopiesPrintsAndReturns)
{
    W->ShowList->trigger();
    FrmList* list = OpenWindow<FrmList>();
    ASSERT_NE(list, nullptr);
    EXPECT_FALSE(W->isVisible());
    EXPECT_EQ(list->windowTitle(), "Monthly Data for Alexandria, LA");
    EXPECT_EQ(list->Label[0]->text(), "Feb");
    EXPECT_EQ(list->Label[1]->text(), "2024");
    EXPECT_EQ(list->Command1->toolTip(), " Close List Screen ");
    EXPECT_EQ(list->Command2->toolTip(), " Copy text to clipboard ");
    EXPECT_EQ(list->Command3->toolTip(), " Print a Calendar ");
    const QStringList shown = list->Text1->toPlainText().split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(shown.size(), 29);
    EXPECT_TRUE(shown[4].startsWith("05  "));
    EXPECT_TRUE(list->grab().save(Screenshots() + "/frmlist-feb2024.png"));

    list->Command2->click();
    const QString clip = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(clip.startsWith("Feb 2024\r\n\r\n                 Sun                  Moon \r\n"))
        << clip.toStdString();
    EXPECT_TRUE(clip.contains(shown[28] + "\r\n"));

    const QString pdf = PrintTo("list");
    list->Command3->click();
    const QString text = testenv::PdfText(pdf);
    EXPECT_TRUE(text.contains("Feb 2024"));
    for (int d = 1; d <= 29; ++d)
        EXPECT_TRUE(text.contains(QString("\n%1 ").arg(d, 2, 10, QChar('0')))) << d;
    list->Command1->click();
    EXPECT_TRUE(W->isVisible());
}

} // namespace
