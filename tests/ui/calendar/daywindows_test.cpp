// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/daycellwidget.h"
#include "ui/calendar/frmyearcal.h"
#include "ui/calendar/mainwindowtest.h"
#include "ui/views/daygraph.h"
#include "ui/views/frmdetail.h"

#include <QApplication>
#include <QScreen>
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

// The year bar from 2023 to 2024 refills the months; a click marks a month in white;
// "Done-Exit" without a change leaves the month as it was; a double click on March returns the
// main window to March of the shown year.
TEST_F(DayWindows, YearCalendarMarksAndReturnsOnTheChosenMonth)
{
    const auto colour = [](FrmYearCal& y, int month) {
        return y.Labmonth[std::size_t(month)]->palette().color(QPalette::WindowText);
    };
    WithModal<FrmYearCal>([&](FrmYearCal& y) {
        EXPECT_EQ(colour(y, 3), QColor(Qt::white));
        EXPECT_EQ(colour(y, 5), QColor(Qt::black));
        EXPECT_FALSE(y.Changed);
        y.cmdexit_Click();
    });
    W->mnuyearly_Click();
    EXPECT_EQ(Text(11) + Text(12), "March 2024");
    std::string feb2023, feb2024;
    WithModal<FrmYearCal>([&](FrmYearCal& y) {
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

} // namespace
