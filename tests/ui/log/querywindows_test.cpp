// SPDX-License-Identifier: GPL-3.0-or-later
// The browser's query builder, the grid view and the report window on a real year of
// forecasts, offscreen, against the same days asked of the file in plain SQL.
#include "logdb/catches.h"
#include "logdb/querybuilder.h"
#include "logdb/reportlines.h"
#include "support/pdftext.h"
#include "ui/common/databar.h"
#include "ui/log/frmreport.h"
#include "ui/log/frmtable1.h"
#include "ui/log/frmtable2.h"
#include "ui/log/logdata.h"
#include "ui/log/logwindowenv.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QTableView>

using namespace logtest;

namespace {

QString& SharedYear()
{
    static QString path = MakeFilledYearFile("querywindows-year");
    return path;
}

// A browser on the shared year, shown once so that it loads its records.
struct Browser {
    LogWindowEnv Env{testenv::FreshDir("querywindows"), SharedYear()};
    frmTable1 Window{Env.Context()};

    Browser() { Window.Form_Activate(); }
    frmTable1* operator->() { return &Window; }
    std::vector<int> ShownIds() { return RecordIds(SharedYear(), Window.Data1.RecordSource()); }
    QLineEdit* Box(int box)
    {
        return box == Text1Box   ? Window.Text1
               : box == Text2Box ? Window.Text2
                                 : Window.Text6[std::size_t(box)];
    }
};

std::vector<int> Plain(const QString& where)
{
    return PlainIds(SharedYear(),
                    "SELECT DBID FROM table1 WHERE " + where + " ORDER BY JulianDate");
}

} // namespace

// A click into a value box shows its picker; a pick fills the box, and the keys typed next go
// into the box, not the picker. The typed values select what plain SQL finds.
TEST(QueryBuilderWindow, PickersAndTypedValuesFillTheClickedBox)
{
    Browser w;
    w->show();
    QApplication::setActiveWindow(&w.Window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w.Window));
    for (const QStringList& c : DataRows("query_pickers.csv", '|')) {
        QLineEdit* box = w.Box(c[0].toInt());
        auto* picker = w->findChild<QComboBox*>(c[1]);
        QTest::mouseClick(box, Qt::LeftButton);
        EXPECT_FALSE(picker->isHidden()) << c[0].toStdString();
        if (c[2].isEmpty()) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(QApplication::focusWidget(), c[3]);
        } else {
            picker->setCurrentIndex(c[2].toInt());
            emit picker->activated(c[2].toInt());
        }
        EXPECT_EQ(box->text(), c[3]) << c.join('|').toStdString();
    }
    EXPECT_EQ(w->Text6[4]->text(), "8"); // Sat-Sun sets both weekday boxes
    w->Text1->setText("07:30pm");
    emit w->Text1->editingFinished();
    EXPECT_EQ(w->Text1->text(), "7:30 PM");
    w->Check1[3]->setChecked(true);
    w->cmdSelect_Click();
    EXPECT_EQ(w.ShownIds(), Plain("Month BETWEEN 12 AND 12 AND MoonAge BETWEEN 12 AND 20"));
    Screenshot(w.Window, "frmTable1");
    EXPECT_TRUE(w.Env.Messages.Shown().empty()) << w.Env.ShownTexts().join('|').toStdString();
}

// Every value box at both ends of its range, and what lies beyond: the selection shows what
// plain SQL finds, or a message refuses it and the browser keeps the year.
TEST(QueryBuilderWindow, ValueBoxesAtBothEndsOfTheirRanges)
{
    Browser w;
    for (const QStringList& row : DataRows("query_ranges.csv", '|')) {
        const int check = row[0].toInt();
        const auto& boxes = QueryConditions()[std::size_t(check)].Boxes;
        w->Command1_Click(); // All Records
        w->Text6[1]->setText("1");
        w->Text6[2]->setText("12");
        for (std::size_t i = 0; i < boxes.size(); ++i)
            w.Box(boxes[i])->setText(row[int(i) + 1]);
        w->Check1[std::size_t(check)]->setChecked(true);
        const std::size_t before = w.Env.Messages.Shown().size();
        const QString source = w->Data1.RecordSource();
        w->cmdSelect_Click();
        w->Check1[std::size_t(check)]->setChecked(false);
        const std::string where = row.join('|').toStdString();
        if (row[3] == "message") {
            ASSERT_EQ(w.Env.Messages.Shown().size(), before + 1) << where;
            EXPECT_EQ(w.Env.Messages.Shown().back().Text, row[4]) << where;
            EXPECT_EQ(w->Data1.RecordSource(), source) << where;
        } else {
            EXPECT_EQ(w.Env.Messages.Shown().size(), before) << where;
            EXPECT_EQ(w.ShownIds(), Plain(row[4])) << where;
        }
    }
    EXPECT_EQ(CountRows(SharedYear(), "table1"), 366);
}

TEST(QueryBuilderWindow, MonthsAndDaysMenus)
{
    Browser w;
    w->Check1[6]->setChecked(true);
    w->Text6[0]->setText("12");
    EXPECT_EQ(w->mnuMonths[1]->text(), "February");
    w->mnuMonths[1]->trigger();
    EXPECT_EQ(w.ShownIds(), Plain("Month = 2"));
    EXPECT_FALSE(w->Check1[6]->isChecked());
    EXPECT_EQ(w->Text6[0]->text() + w->Text6[1]->text() + w->Text6[2]->text(), "");
    EXPECT_EQ(w->Label9->text(), "Sorted by Date");
    w->cmdSelect_Click(); // the emptied month boxes read as the whole year
    EXPECT_EQ(w->Data1.RecordCount(), 366);

    const std::vector<QStringList> days = DataRows("days_menu.csv", '|');
    ASSERT_EQ(days.size(), 14u);
    for (std::size_t i = 0; i < days.size(); ++i) {
        EXPECT_EQ(w->mnuYears[i]->text(), days[i][0]);
        w->mnuYears[i]->trigger();
        EXPECT_FALSE(w.ShownIds().empty()) << days[i][0].toStdString();
        EXPECT_EQ(w.ShownIds(), Plain(days[i][1])) << days[i][0].toStdString();
    }
}

// The grid shows table1's columns, then each day's catch columns in the chosen units as worked
// by hand (none for a year without catches); a double click takes the browser to the day.
TEST(TableView, CatchColumnsSummariseEachDaysCatchesAndADoubleClickGoesBack)
{
    const QString path = MakeYearFile("grid-catches");
    std::vector<Catch> catches = CatchRows("grid_catches.csv");
    ASSERT_TRUE(AddCatches(path, catches, QDateTime::currentDateTime()));
    std::map<QString, QStringList> days; // day: the columns in cm and kg, then in and lb
    for (const QStringList& row : DataRows("grid_catch_columns.csv", '|'))
        days[row[0]] = row.mid(1);
    const struct {
        QString File;
        UnitSystem Units;
        const char* Headings;
    } cases[] = {
        {path, UnitSystem::Metric, "Longest (cm)|Heaviest (kg)"},
        {path, UnitSystem::Imperial, "Longest (in)|Heaviest (lb)"},
        {MakeYearFile("grid-catches-old"), UnitSystem::Metric, "Longest (cm)|Heaviest (kg)"}};
    const QString all = QStringLiteral("SELECT * FROM table1 ORDER BY JulianDate");
    for (const auto& k : cases) {
        LogWindowEnv env(QFileInfo(k.File).absolutePath(), k.File);
        LogContext context = env.Context();
        context.Units = k.Units;
        frmTable2 grid(context, all);
        grid.Form_Activate();
        const auto* model = grid.DBGrid1->model();
        ASSERT_EQ(model->columnCount(), 30); // table1's 25, then the 5 catch columns
        EXPECT_TRUE(grid.DBGrid1->isColumnHidden(0) && !grid.DBGrid1->isColumnHidden(2));
        const auto cells = [model](int r) { // the catch columns of a row, or their headings
            QStringList row;
            for (int c = 25; c < 30; ++c)
                row << (r < 0 ? model->headerData(c, Qt::Horizontal) : model->index(r, c).data())
                           .toString();
            return row;
        };
        EXPECT_EQ(cells(-1).join('|'), QString("Species|Fish|Released|") + k.Headings);
        ASSERT_EQ(model->rowCount(), DaysInYear);
        const bool imperial = k.Units == UnitSystem::Imperial;
        for (int r = 0; r < model->rowCount(); ++r) {
            const QString day = model->index(r, 1).data().toString();
            QStringList want = k.File == path && days.contains(day) ? days[day] : QStringList(7);
            want = want.mid(0, 3) + want.mid(imperial ? 5 : 3, 2);
            EXPECT_EQ(cells(r), want) << day.toStdString();
        }
        EXPECT_TRUE(env.ShownTexts().isEmpty());
    }
    LogWindowEnv env(QFileInfo(path).absolutePath(), path);
    frmTable1 browser(env.Context());
    frmTable2 grid(env.Context(), all);
    grid.Form_Activate();
    grid.DBGrid1->selectRow(69);
    EXPECT_EQ(grid.Data1Bar->Caption(), "Record: 70");
    grid.DBGrid1_DblClick(69);
    browser.Form_Activate();
    EXPECT_EQ(browser.txtFields[1]->text(), "03/10/2024");
    EXPECT_FALSE(env.State.FindRecord);
    Screenshot(grid, "frmTable2");
}

// 58 lines fit a page; printing appends a dash line to the text each time. No records print
// one page of headings.
TEST(ReportWindow, PrintsFiftyNineLinesOnTwoPagesAndNoneOnOne)
{
    Browser w;
    const QString pdf = testenv::FreshDir("report-pdf") + "/report.pdf";
    qputenv("QUILLMERE_PRINT_PDF", pdf.toUtf8());
    frmReport report(w.Env.Context(), "select * from table1 where dbid <= 59 order by dbid", true);
    Screenshot(report, "frmReport");
    report.mnuPrint_Click();
    const QStringList pages = testenv::PdfText(pdf).split('\f');
    ASSERT_GE(pages.size(), 2);
    ASSERT_TRUE(pages.size() == 2 || pages[2].trimmed().isEmpty()) << pages.size();
    const QString dashes(76, '-');
    QStringList second; // the words of each line: the extraction does not keep the blanks
    for (const QString& line : pages[1].split('\n', Qt::SkipEmptyParts))
        second << line.simplified();
    EXPECT_EQ(pages[0].split('\n')[0].trimmed(), "Quillmere DataBase Report - Page # 1");
    EXPECT_TRUE(pages[0].simplified().contains("058 02/27/2024"));
    EXPECT_FALSE(pages[0].simplified().contains("059 02/28/2024"));
    ASSERT_EQ(second.size(), 5) << pages[1].toStdString();
    EXPECT_TRUE(second.takeAt(3).startsWith("059 02/28/2024"));
    EXPECT_EQ(second, QStringList({"Quillmere DataBase Report - Page # 2",
                                   QString::fromStdString(std::string(ReportHeading)).simplified(),
                                   dashes, dashes}));
    report.mnuPrint_Click();
    const QStringList lines = report.ReportText().split("\r\n"); // the last after the last end
    ASSERT_EQ(lines.size(), 62);
    EXPECT_EQ(lines.mid(59), QStringList({dashes, dashes, ""}));

    frmReport none(w.Env.Context(), "select * from table1 where dbid < 0", true);
    EXPECT_EQ(none.ReportText(), "");
    none.mnuPrint_Click();
    qunsetenv("QUILLMERE_PRINT_PDF");
    EXPECT_EQ(testenv::PdfPages(pdf), 1);
}
