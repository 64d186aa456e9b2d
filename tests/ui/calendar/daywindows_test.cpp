// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settingsio.h"
#include "ui/calendar/daycellwidget.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/calendar/frmyearcal.h"
#include "ui/calendar/mainwindowtest.h"
#include "ui/views/daygraph.h"
#include "ui/views/frmdetail.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

// The main window on 10 March 2024, with the windows it opens.
class DayWindows : public MainWindowTest {
protected:
    DayWindows() : MainWindowTest("2024-03-10T07:30:00") {}

    // Runs `act` on the modal window the next step opens, then lets the step return.
    template <typename Window> void WithModal(std::function<void(Window&)> act)
    {
        QTimer::singleShot(0, [act] {
            auto* w = qobject_cast<Window*>(QApplication::activeModalWidget());
            ASSERT_NE(w, nullptr);
            act(*w);
            if (w->isVisible())
                w->close();
        });
    }
};

// "&Yearly" stands between "&DataBase" and "&Options" in the menu bar.
TEST_F(DayWindows, YearlyMenuInItsPlace)
{
    QStringList captions;
    for (QAction* a : W->menuBar()->actions())
        captions << a->text();
    const auto yearly = captions.indexOf("&Yearly");
    ASSERT_GE(yearly, 0) << captions.join(",").toStdString();
    EXPECT_EQ(captions.indexOf("&DataBase"), yearly - 1);
    EXPECT_GT(captions.indexOf("&Options"), yearly);
    EXPECT_EQ(W->mnuyearly->objectName(), "mnuyearly");
}

// Double-clicking a day opens the details beside it (a Wednesday's to its right), never over
// it and within the screen, filled for the day; a click on another day hides them, and while
// they show, passing over the days changes nothing.
TEST_F(DayWindows, DoubleClickPlacesAndFillsTheDetails)
{
    // March 2024 begins on a Friday: cell 10 is Wednesday the 6th, cell 11 Thursday the 7th.
    QTest::mouseDClick(W->txtpic[10], Qt::LeftButton);
    ASSERT_NE(W->Detail, nullptr);
    EXPECT_TRUE(W->Detail->isVisible());
    const auto cellOnScreen = [this](int cell) {
        return QRect(W->txtpic[std::size_t(cell)]->mapToGlobal(QPoint(0, 0)),
                     W->txtpic[std::size_t(cell)]->size());
    };
    const QRect screen = W->screen()->availableGeometry();
    EXPECT_FALSE(W->Detail->frameGeometry().intersects(cellOnScreen(10)));
    EXPECT_GT(W->Detail->frameGeometry().left(), cellOnScreen(10).right());
    EXPECT_TRUE(screen.contains(W->Detail->frameGeometry()));
    EXPECT_EQ(W->Detail->windowTitle(), "Details for  3/6/2024");
    EXPECT_EQ(W->Detail->Label[24]->text().right(1), "%");
    EXPECT_TRUE(W->Detail->Timer1->isActive());
    const double jd = App.Config.SelectedJD;
    W->txtpic_MouseMove(20);
    EXPECT_EQ(App.Config.SelectedJD, jd);
    W->Detail->close();

    // A Thursday's details go to its left where there is room, else to its right.
    QTest::mouseDClick(W->txtpic[11], Qt::LeftButton);
    EXPECT_FALSE(W->Detail->frameGeometry().intersects(cellOnScreen(11)));
    EXPECT_TRUE(screen.contains(W->Detail->frameGeometry()));
    EXPECT_EQ(W->Detail->windowTitle(), "Details for  3/7/2024");
    QTest::mouseClick(W->txtpic[15], Qt::LeftButton);
    EXPECT_FALSE(W->Detail->isVisible());
}

// The right button on the selected day opens the day's graph, modal; on another day nothing.
TEST_F(DayWindows, RightButtonOnTheSelectedDayOpensTheGraph)
{
    W->txtpic_MouseDown(15, Qt::RightButton); // not the selected cell (14)
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    QString caption;
    std::size_t bands = 0;
    WithModal<DayGraph>([&](DayGraph& g) {
        caption = g.windowTitle();
        bands = g.Series.Twilights.size();
    });
    W->txtpic_MouseDown(14, Qt::RightButton);
    EXPECT_EQ(caption, "Daily Conditions For 03/10/2024");
    EXPECT_EQ(bands, 6u);
}

// The year bar from 2023 to 2024 refills the months; a double click on March returns the main
// window to March of the shown year.
TEST_F(DayWindows, YearCalendarReturnsOnTheChosenMonth)
{
    std::string feb2023, feb2024, caption;
    WithModal<FrmYearCal>([&](FrmYearCal& y) {
        y.vsbyearcal->setValue(2023);
        feb2023 = y.Labmonth[2]->text().toStdString();
        y.vsbyearcal->setValue(2024);
        feb2024 = y.Labmonth[2]->text().toStdString();
        caption = y.windowTitle().toStdString();
        y.vsbyearcal->setValue(2023);
        y.Labmonth_MouseMove(3);
        EXPECT_EQ(y.Labmonth[3]->toolTip(), " Double Click to Select Mar and Exit ");
        const QPoint day(y.Labmonth[3]->width() / 2, 5);
        QTest::mouseDClick(y.Labmonth[3], Qt::LeftButton, {}, day);
    });
    W->mnuyearly_Click();
    EXPECT_EQ(feb2023.substr(feb2023.size() - 3), " 28");
    EXPECT_EQ(feb2024.substr(feb2024.size() - 3), " 29");
    EXPECT_EQ(caption, "   2024");
    EXPECT_EQ(App.Cal.CurMonth, 3);
    EXPECT_EQ(App.Cal.CurYear, 2023);
    EXPECT_EQ(Text(11), "March");
    EXPECT_EQ(Text(12), " 2023");
    EXPECT_EQ(W->VsbYear->value(), 2023);
}

// A click marks a month in white; "Done-Exit" without a change leaves the month as it was.
TEST_F(DayWindows, YearCalendarClickMarksAndExitWithoutChange)
{
    WithModal<FrmYearCal>([](FrmYearCal& y) {
        EXPECT_EQ(y.Labmonth[3]->palette().color(QPalette::WindowText), QColor(Qt::white));
        EXPECT_EQ(y.Labmonth[5]->palette().color(QPalette::WindowText), QColor(Qt::black));
        EXPECT_FALSE(y.Changed);
        y.cmdexit_Click();
    });
    W->mnuyearly_Click();
    EXPECT_EQ(Text(11), "March");
    EXPECT_EQ(Text(12), " 2024");

    WithModal<FrmYearCal>([](FrmYearCal& y) {
        y.Labmonth_Click(5);
        EXPECT_EQ(y.Labmonth[5]->palette().color(QPalette::WindowText), QColor(Qt::white));
        EXPECT_EQ(y.Labmonth[3]->palette().color(QPalette::WindowText), QColor(Qt::black));
        EXPECT_TRUE(y.Changed);
        y.cmdexit_Click();
    });
    W->mnuyearly_Click();
    EXPECT_EQ(Text(11), "May");
}

// The year calendar and the details window, for a person to look at.
TEST_F(DayWindows, SavesScreenshots)
{
    const QDir dir(QUILLMERE_SCREENSHOTS);
    WithModal<FrmYearCal>(
        [&](FrmYearCal& y) { EXPECT_TRUE(y.grab().save(dir.filePath("FrmYearCal-2024.png"))); });
    W->mnuyearly_Click();
    W->DisplayDetails(App.Config.SelectedJD, 14);
    EXPECT_TRUE(W->Detail->grab().save(dir.filePath("FrmDetail-main.png")));
}

} // namespace
