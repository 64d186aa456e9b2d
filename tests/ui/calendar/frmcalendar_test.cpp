// SPDX-License-Identifier: GPL-3.0-or-later
// The main window and the windows it opens, over the first-start settings at a fixed "now".
#include "astro/timebase.h"
#include "model/settings.h"
#include "pages/calendarpage.h"
#include "platform/settingsio.h"
#include "support/pdftext.h"
#include "support/testenv.h"
#include "ui/calendar/daycellwidget.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/calendar/frmprint.h"
#include "ui/calendar/frmreminders.h"
#include "ui/calendar/frmyearcal.h"
#include "ui/common/appstate.h"
#include "ui/views/daygraph.h"
#include "ui/views/frmdetail.h"
#include "ui/views/frmglance.h"
#include "ui/views/frmlist.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDate>
#include <QKeySequence>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

class MainWindowTest : public ::testing::Test {
protected:
    explicit MainWindowTest(const char* now) : Now(now) {}
    void SetUp() override
    {
        qputenv("QUILLMERE_NOW", Now);
        SettingsStore().DeleteAll();
        WriteFirstStartValues(App.Store);
        LoadSettings(App.Config, App.Store);
        App.Config.CurLoc = App.Config.DefaultLocation();
        W = std::make_unique<FrmCalendar>(App);
        W->show();
    }
    void TearDown() override
    {
        qunsetenv("QUILLMERE_NOW");
        qunsetenv("QUILLMERE_PRINT_PDF");
    }

    std::string Text(int label) const { return W->Label[std::size_t(label)]->text().toStdString(); }
    std::string Shown() const { return Text(11) + Text(12); }
    void SetMonth(int year, int month)
    {
        App.Cal.CurYear = std::int16_t(year);
        App.Cal.CurMonth = std::int16_t(month);
        W->VsbYear->setValue(year);
        W->RefreshMonth();
    }
    int FramedCell() const
    {
        for (int i = 0; i < 37; ++i)
            if (W->txtpic[std::size_t(i)]->Framed())
                return i;
        return -1;
    }
    // Runs `act` on the modal window the next step opens, then lets the step return.
    template <typename Modal> void WithModal(std::function<void(Modal&)> act)
    {
        QTimer::singleShot(0, [act] {
            auto* w = qobject_cast<Modal*>(QApplication::activeModalWidget());
            ASSERT_NE(w, nullptr);
            act(*w);
            if (w->isVisible())
                w->close();
        });
    }
    // Prints into a fresh PDF file and returns its path.
    static QString PrintTo(const QString& name)
    {
        const QString path = testenv::FreshDir("functions-" + name) + "/" + name + ".pdf";
        qputenv("QUILLMERE_PRINT_PDF", path.toLocal8Bit());
        return path;
    }
    template <typename T> static T* OpenWindow()
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* t = dynamic_cast<T*>(w); t && t->isVisible())
                return t;
        return nullptr;
    }

    const char* Now;
    AppState App;
    std::unique_ptr<FrmCalendar> W;
};

// The main window on 10 March 2024, 07:30.
class Window : public MainWindowTest {
protected:
    Window() : MainWindowTest("2024-03-10T07:30:00") {}
};

// The main window at Alexandria, LA (the first-start default) in February 2024.
class Functions : public MainWindowTest {
protected:
    Functions() : MainWindowTest("2024-02-10T07:30:00") {}
};

} // namespace

// Today at noon on opening and after "Now"; the month buttons wrap from 2500 to 1900 and
// back; the hour bar moves the moment and a click on its label returns to noon.
TEST_F(Window, OpensOnTodayAndTheMonthYearAndHourControlsMoveIt)
{
    EXPECT_EQ(Shown() + Text(15), "March 202412:00 PM");
    EXPECT_EQ(FramedCell(), 5 + 9); // 1 March 2024 is a Friday
    EXPECT_DOUBLE_EQ(App.Config.SelectedJD, CivilToJd(2024, 3, 10));
    // Chicago's clocks went forward that day ("Local Clock" is the first-start mode).
    EXPECT_EQ(W->txtpic[14]->toolTip(), " Daylight Saving's Time Starts  Moon at Perigee ");

    const double noonAltitude = App.Astro.Forecast.SkyPosition.MoonAltitude;
    W->VsbHour->setValue(18 * 60 + 45);
    EXPECT_EQ(Text(15), "06:45 PM");
    EXPECT_NE(App.Astro.Forecast.SkyPosition.MoonAltitude, noonAltitude);
    W->Label15_Click();
    EXPECT_EQ(W->VsbHour->value(), 720);
    EXPECT_DOUBLE_EQ(App.Astro.Forecast.SkyPosition.MoonAltitude, noonAltitude);

    SetMonth(2500, 12);
    W->IncMonth_Click();
    EXPECT_EQ(Shown(), "January 1900");
    W->DecMonth_Click();
    W->DecMonth_Click();
    EXPECT_EQ(Shown(), "November 2500");
    EXPECT_EQ(FramedCell(), App.Cal.FirstWeekday); // not this month: day 1 is framed

    W->VsbHour->setValue(100);
    W->CmdNOW_Click();
    EXPECT_EQ(Shown(), "March 2024");
    EXPECT_EQ(std::pair(W->VsbHour->value(), FramedCell()), std::pair(720, 14));
}

// With "On Click", hovering shows the day counter but recomputes nothing; with "On Move" a
// day is recomputed at noon once when the mouse comes to it, not on every movement; a click
// frames a day, which stays framed through a move and the 24-hour clock (no AM/PM anywhere).
TEST_F(Window, MouseSelectsAndRecomputesDays)
{
    W->Mouse_Click(1);
    W->txtpic_MouseMove(20); // 16 March
    EXPECT_EQ(Text(3), "Day  76   290 days remain");
    EXPECT_EQ(FramedCell(), 14);
    W->Mouse_Click(0);
    W->VsbHour->setValue(300);
    W->txtpic_MouseMove(21); // 17 March: the panel shows it at noon, the frame stays
    EXPECT_EQ(FramedCell(), 14);
    EXPECT_EQ(W->VsbHour->value(), 720);
    EXPECT_DOUBLE_EQ(App.Config.SelectedJD, CivilToJd(2024, 3, 17));
    App.Astro.Forecast.Major1Text = "marker";
    W->txtpic_MouseMove(21);
    EXPECT_EQ(App.Astro.Forecast.Major1Text, "marker");
    W->txtpic_MouseMove(22);
    EXPECT_NE(App.Astro.Forecast.Major1Text, "marker");
    W->Form_MouseMove();
    EXPECT_EQ(Text(3), "");

    // A real click frames the day; another location and the 24-hour clock keep it framed.
    QTest::mouseClick(W->txtpic[20], Qt::LeftButton); // 16 March
    EXPECT_DOUBLE_EQ(App.Config.SelectedJD, CivilToJd(2024, 3, 16));
    W->DLoc_Click(2);
    W->Clock24->trigger();
    EXPECT_EQ(FramedCell(), 20);
    EXPECT_EQ(Text(15), "12:00");
    for (int label : {0, 2, 14, 16})
        EXPECT_EQ(Text(label).find('M'), std::string::npos) << Text(label);
}

// The hour bar follows the place's clock while today is selected, and stays put on another
// day: 21:20 UT is 16:20 in Alexandria, LA on daylight time, whatever the computer's zone;
// 07:30 UT is 18:30 in Sydney on 10 March 2024 (daylight time) and 13:00 in Kolkata. The
// chosen hour stays the place's clock hour through a move; "Standard Time" moves the times
// one hour back, as the status bar's tip says.
TEST_F(Window, TheHourIsThePlacesClockHour)
{
    qputenv("QUILLMERE_NOW", "2024-03-10T21:20:40Z");
    W->Timer1_Timer();
    EXPECT_EQ(W->VsbHour->value(), 16 * 60 + 20);
    W->Mouse_Click(1);
    W->txtpic_Click(15);
    W->Timer1_Timer();
    EXPECT_EQ(W->VsbHour->value(), 720);

    W->VsbHour->setValue(15 * 60);
    App.Config.Locations[5] = {"Sydney, NSW", -151.21, -33.87, -10};
    W->DLoc_Click(5);
    EXPECT_EQ(Text(15), "03:00 PM");
    EXPECT_NEAR(App.Astro.Site.HourInstant, 15.0 / 24.0 - 10.0 / 24.0, 1e-12);
    Astronomy fresh; // the moon of the new place, not the old one's
    fresh.Site = App.Astro.Site;
    fresh.ComputeDay(App.Config.SelectedJD);
    EXPECT_EQ(App.Astro.Forecast.IllumFraction, fresh.Forecast.IllumFraction);

    qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00Z");
    App.Config.Locations[6] = {"Sydney, Australia", -151.21, -33.87, -10, "Australia/Sydney"};
    App.Config.Locations[7] = {"Kolkata, India", -88.36, 22.57, -6, "Asia/Kolkata"};
    for (const auto& [location, minutes] : {std::pair{6, 18 * 60 + 30}, {7, 13 * 60}}) {
        W->DLoc_Click(location);
        W->CmdNOW_Click();
        W->Timer1_Timer();
        EXPECT_EQ(std::pair(W->VsbHour->value(), int(W->SelDay)), std::pair(minutes, 10))
            << location;
    }
    W->DLoc_Click(1);
    const std::string local = Text(14); // 10 March 2024: on daylight time from 2 AM
    W->DST_Click(1);
    EXPECT_NE(Text(14), local);
    W->StatusBar1_MouseMove(1000);
    EXPECT_TRUE(W->StatusBar1->toolTip().contains("TimeZone= 6  Time=STD"));
    W->DST_Click(0);
    EXPECT_EQ(Text(14), local);
}

// Number, marks, phase symbol and fish each keep their own place inside the selection frame,
// on the days with marks and two-digit numbers too (10 March, 15 and 30 December 2024).
TEST_F(Window, DayCellsKeepTheirPartsApart)
{
    int marked = 0;
    for (const int month : {3, 12}) {
        SetMonth(2024, month);
        for (int i = 0; i < 37; ++i) {
            const DayCellWidget& cell = *W->txtpic[std::size_t(i)];
            const DayCellWidget::Placement at = cell.Place();
            marked += cell.Shown().Marks > 0 ? 1 : 0;
            std::vector<QRect> parts{at.Number};
            for (const QRect& r : {at.Marks, at.Phase, at.Rating})
                if (!r.isEmpty())
                    parts.push_back(r);
            for (std::size_t a = 0; a < parts.size(); ++a) {
                EXPECT_TRUE(at.Inside.contains(parts[a])) << month << " cell " << i;
                for (std::size_t b = a + 1; b < parts.size(); ++b)
                    EXPECT_FALSE(parts[a].intersects(parts[b])) << month << " cell " << i;
            }
        }
    }
    EXPECT_GT(marked, 4);
}

// The keys on the real window, one after another from Sunday 10 March 2024: the framed day
// and the month shown after each, across month and year ends; each key redraws a month at
// most once and computes the framed day's forecast once. Enter opens the day's details.
TEST_F(Window, KeysMoveTheFramedDayAndTheMonth)
{
    const auto steps = testenv::DataRows(QUILLMERE_CALENDAR_KEYS);
    ASSERT_EQ(steps.size(), 16u);
    for (const QStringList& step : steps) {
        const QKeyCombination key = QKeySequence::fromString(step[0])[0];
        const QDate day = QDate::fromString(step[1], Qt::ISODate);
        const int computed = App.Astro.DaysComputed, built = App.Cal.YearTableBuilds;
        QTest::keyClick(W.get(), key.key(), key.keyboardModifiers());
        const std::string at = step.join(' ').toStdString();
        EXPECT_EQ(std::tie(App.Cal.CurYear, App.Cal.CurMonth), std::tuple(day.year(), day.month()))
            << at;
        EXPECT_EQ(FramedCell() - App.Cal.FirstWeekday + 1, day.day()) << at;
        EXPECT_EQ(W->VsbYear->value(), day.year()) << at;
        EXPECT_DOUBLE_EQ(App.Config.SelectedJD, CivilToJd(day.year(), day.month(), day.day()))
            << at;
        EXPECT_EQ(App.Astro.DaysComputed - computed, 1) << at;
        EXPECT_LE(App.Cal.YearTableBuilds - built, 1) << at;
    }
    QTest::keyClick(W.get(), Qt::Key_Return);
    ASSERT_NE(W->Detail, nullptr);
    EXPECT_TRUE(W->Detail->isVisible());
    EXPECT_EQ(W->Detail->windowTitle(), "Details for  3/10/2024");
}

// Double-clicking a day opens the details beside it (a Wednesday's to its right), never over
// it and within the screen, filled for the day; a click on another day hides them, and while
// they show, passing over the days changes nothing.
TEST_F(Window, DoubleClickPlacesAndFillsTheDetails)
{
    // March 2024 begins on a Friday: cell 10 is Wednesday the 6th, cell 11 Thursday the 7th.
    QTest::mouseDClick(W->txtpic[10], Qt::LeftButton);
    ASSERT_NE(W->Detail, nullptr);
    const auto cellOnScreen = [this](int cell) {
        return QRect(W->txtpic[std::size_t(cell)]->mapToGlobal(QPoint(0, 0)),
                     W->txtpic[std::size_t(cell)]->size());
    };
    const QRect screen = W->screen()->availableGeometry();
    EXPECT_FALSE(W->Detail->frameGeometry().intersects(cellOnScreen(10)));
    EXPECT_GT(W->Detail->frameGeometry().left(), cellOnScreen(10).right());
    EXPECT_TRUE(screen.contains(W->Detail->frameGeometry()));
    EXPECT_EQ(W->Detail->windowTitle(), "Details for  3/6/2024");
    EXPECT_TRUE(W->Detail->Label[17]->text().contains('/')); // the sunrise and sunset line
    const double jd = App.Config.SelectedJD;
    W->txtpic_MouseMove(20);
    EXPECT_EQ(App.Config.SelectedJD, jd);
    W->Detail->close();

    // A Thursday's details go to its left where there is room, else to its right.
    QTest::mouseDClick(W->txtpic[11], Qt::LeftButton);
    EXPECT_FALSE(W->Detail->frameGeometry().intersects(cellOnScreen(11)));
    EXPECT_TRUE(screen.contains(W->Detail->frameGeometry()));
    QTest::mouseClick(W->txtpic[15], Qt::LeftButton);
    EXPECT_FALSE(W->Detail->isVisible());
}

// The year bar from 2023 to 2024 refills the months; a click marks a month in white; a double
// click on March returns the main window to March of the shown year.
TEST_F(Window, YearCalendarMarksAndReturnsOnTheChosenMonth)
{
    const auto colour = [](FrmYearCal& y, int month) {
        return y.Labmonth[std::size_t(month)]->palette().color(QPalette::WindowText);
    };
    std::string feb2023, feb2024;
    WithModal<FrmYearCal>([&](FrmYearCal& y) {
        EXPECT_EQ(colour(y, 3), QColor(Qt::white));
        y.Labmonth_Click(5);
        EXPECT_EQ(colour(y, 5), QColor(Qt::white));
        EXPECT_EQ(colour(y, 3), QColor(Qt::black));
        y.vsbyearcal->setValue(2023);
        feb2023 = y.Labmonth[2]->text().toStdString();
        y.vsbyearcal->setValue(2024);
        feb2024 = y.Labmonth[2]->text().toStdString();
        y.vsbyearcal->setValue(2023);
        const QPoint day(y.Labmonth[3]->width() / 2, 5);
        QTest::mouseDClick(y.Labmonth[3], Qt::LeftButton, {}, day);
    });
    W->mnuyearly_Click();
    EXPECT_EQ(feb2023.substr(feb2023.size() - 3), " 28");
    EXPECT_EQ(feb2024.substr(feb2024.size() - 3), " 29");
    EXPECT_EQ(Text(11) + Text(12), "March 2023");
    EXPECT_EQ(W->VsbYear->value(), 2023);
}

// "&Print" previews the shown month; the window's print button prints it at 1.2 times its
// size, upright on landscape paper; the main window's forecast stays the selected day's. The
// boxes: February 2024 begins on a Thursday, 29 boxes in five rows; June 2024 begins on a
// Saturday and needs six. 1 February 2024: the Moon's transit at 10:57 UT (PyEphem) is
// 04:57 AM here. Days 2 and 16 carry the quarters (last quarter lit on the left in the north),
// 9 new, 24 full; the south sees the quarters the other way round.
TEST_F(Functions, PrintedCalendarFollowsTheMonthGrid)
{
    const std::string major = App.Astro.Forecast.Major1Text;
    W->PrintCalendar->trigger();
    FrmPrint* print = W->PrintWindow;
    ASSERT_NE(print, nullptr);
    EXPECT_TRUE(print->isVisible());
    EXPECT_EQ(App.Astro.Forecast.Major1Text, major);
    const CalendarPage feb = print->Page;
    const CalendarPage south = CalendarPageOf(App.Astro, App.Cal, -1);
    ASSERT_EQ(feb.Boxes.size(), 29u);
    for (auto [day, north, southern] : {std::tuple{2, 4, 2}, {9, 1, 1}, {16, 2, 4}, {24, 3, 3}}) {
        EXPECT_EQ(feb.Boxes[std::size_t(day - 1)].PhaseSymbol, north) << day;
        EXPECT_EQ(south.Boxes[std::size_t(day - 1)].PhaseSymbol, southern) << day;
    }
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

// "@Glance" and "&Table" hide the main window until they close; the chart opens centred on
// the screen and prints; the list shows the month at the current location, copies it with the
// wider headings and prints (tools/pdf_pages_check.py reads the pages the printer gets).
TEST_F(Functions, GlanceAndTableShowPrintAndReturn)
{
    W->AtAGlance->trigger();
    FrmGlance* glance = OpenWindow<FrmGlance>();
    ASSERT_NE(glance, nullptr);
    EXPECT_FALSE(W->isVisible());
    EXPECT_EQ(glance->Chart.Days.size(), 29u);
    const QPoint off = glance->screen()->geometry().center() - glance->geometry().center();
    EXPECT_LE(std::max(std::abs(off.x()), std::abs(off.y())), 2);
    const QString glancePdf = PrintTo("glance");
    glance->Cmd[1]->click();
    EXPECT_TRUE(testenv::PdfText(glancePdf).contains("Lunar Events for Feb/2024"));
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
    const QString listPdf = PrintTo("list");
    list->Command3->click();
    EXPECT_TRUE(testenv::PdfText(listPdf).contains("\n29 "));
    list->Command1->click();
    EXPECT_TRUE(W->isVisible());
}

// Each location keeps its own choices while the window is open; OK puts all of them into the
// settings, Cancel none.
TEST(FrmReminders, KeepsEachLocationsChoicesUntilOK)
{
    Settings s;
    s.CurLoc = 2;
    s.Locations[2].Name = "Miami, FL";
    s.Locations[5].Reminder = {.SunEvents = true, .LeadMinutes = 90, .BestDaysOnly = true};
    for (const bool ok : {false, true}) {
        Settings edited = s;
        FrmReminders w(edited);
        EXPECT_EQ(w.CboLocation->currentText(), "# 2 Miami, FL");
        w.ChkMajors->setChecked(true);
        w.SpnLead->setValue(15);
        w.CboLocation->setCurrentIndex(4); // location 5
        EXPECT_EQ(std::tuple(w.ChkSun->isChecked(), w.ChkMajors->isChecked(), w.SpnLead->value(),
                             w.OptBestDays->isChecked()),
                  std::tuple(true, false, 90, true));
        w.OptEveryDay->setChecked(true);
        w.CboLocation->setCurrentIndex(1);
        EXPECT_TRUE(w.ChkMajors->isChecked());
        if (!ok) {
            w.reject();
            EXPECT_TRUE(edited.Locations == s.Locations);
            continue;
        }
        w.CmdOK_Click();
        Settings expected = s;
        expected.Locations[2].Reminder = {.Majors = true, .LeadMinutes = 15};
        expected.Locations[5].Reminder = {.SunEvents = true, .LeadMinutes = 90};
        EXPECT_TRUE(edited.Locations == expected.Locations);
    }
}
