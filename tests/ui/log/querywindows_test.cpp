// SPDX-License-Identifier: GPL-3.0-or-later
// The browser's query builder, the grid view and the report window on a real year of
// forecasts, offscreen.
#include "logdb/catches.h"
#include "logdb/querybuilder.h"
#include "logdb/reportlines.h"
#include "pages/twips.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/pdftext.h"
#include "support/testenv.h"
#include "ui/common/databar.h"
#include "ui/log/frmreport.h"
#include "ui/log/frmtable1.h"
#include "ui/log/frmtable2.h"
#include "ui/log/logwindowenv.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace logtest;

namespace {

// A browser on a filled year, shown once so that it loads its records.
struct Browser {
    LogWindowEnv Env{testenv::FreshDir("querywindows")};
    std::unique_ptr<frmTable1> Window;

    explicit Browser(const QString& path)
    {
        Env.State.DBPath = path;
        Window = std::make_unique<frmTable1>(Env.Context());
        Window->Form_Activate();
    }
    frmTable1& operator*() { return *Window; }
    frmTable1* operator->() { return Window.get(); }
    std::vector<int> ShownIds()
    {
        std::vector<int> ids;
        DataControl& data = Window->Data1;
        if (data.RecordCount() > 0)
            data.MoveFirst();
        for (int i = 0; i < data.RecordCount(); ++i, data.MoveNext())
            ids.push_back(data.Field("DBID").toInt());
        if (data.RecordCount() > 0)
            data.MoveFirst();
        return ids;
    }
};

QString& SharedYear()
{
    static QString path = MakeFilledYearFile("querywindows-year");
    return path;
}

std::vector<int> Plain(const QString& where)
{
    return PlainIds(SharedYear(),
                    "SELECT DBID FROM table1 WHERE " + where + " ORDER BY JulianDate");
}

QStringList TextLines(const QString& text)
{
    QStringList lines = text.split("\r\n");
    lines.removeLast(); // after the last line end
    return lines;
}

} // namespace

TEST(QueryBuilderWindow, ConditionsPickersAndOrderInTheBrowser)
{
    Browser w(SharedYear());
    EXPECT_EQ(w->Check1[4]->text(), "Illumination Percent Between");
    EXPECT_EQ(w->cmdSelect->toolTip(), " Select Data From Conditions of CheckBoxes ");
    EXPECT_EQ(w->Text6[1]->text(), "1");
    EXPECT_EQ(w->Text6[2]->text(), "12");
    EXPECT_EQ(w->SortByCombo->count(), 5);
    EXPECT_EQ(w->SortByCombo->itemText(4), "Total Taken");
    EXPECT_EQ(w->TimeCombo->count(), 24);
    EXPECT_EQ(w->DOWList->itemText(7), "Sat-Sun");

    // Pickers: 50 for the moon age writes 29; Sat-Sun sets both weekday boxes.
    w->Text6_Click(6);
    w->Combo2->setCurrentIndex(50);
    w->Combo2_Click();
    EXPECT_EQ(w->Text6[6]->text(), "29");
    w->Text6_Click(5);
    w->Combo2->setCurrentIndex(0);
    w->Combo2_Click();
    EXPECT_EQ(w->Text6[5]->text(), "0");
    w->Text6_Click(3);
    w->DOWList->setCurrentIndex(7);
    w->DOWList_Click();
    EXPECT_EQ(w->Text6[3]->text() + w->Text6[4]->text(), "88");
    w->Text2_Click();
    w->TimeCombo->setCurrentIndex(21); // "9:00 PM"
    w->TimeCombo_Click();
    EXPECT_EQ(w->Text2->text(), "9:00 PM");
    w->Text6_Click(11);
    w->TimeCombo->setCurrentIndex(0);
    w->TimeCombo_Click();
    EXPECT_EQ(w->Text6[11]->text(), "12:00 AM");
    w->Text1->setText("07:30pm");
    emit w->Text1->editingFinished();
    EXPECT_EQ(w->Text1->text(), "7:30 PM");
    w->Text1->clear();

    // Weekend days of the waxing moon from April to June, sorted by rating.
    w->Check1[2]->setChecked(true);
    w->Check1[3]->setChecked(true);
    w->Check1[10]->setChecked(true);
    w->Text6[1]->setText("4");
    w->Text6[2]->setText("6");
    w->SortByCombo->setCurrentIndex(3);
    w->SortByCombo_Click();
    w->cmdSelect_Click();
    EXPECT_EQ(w->Label9->text(), "Sorted by Fish Rating");
    std::vector<int> shown = w.ShownIds();
    std::vector<int> expected = PlainIds(
        SharedYear(), "SELECT DBID FROM table1 WHERE Month BETWEEN 4 AND 6 AND DayOfWeek_ IN "
                      "(1, 7) AND MoonAge BETWEEN 0 AND 29 AND Waxing = 1 ORDER BY GraphicType, "
                      "JulianDate");
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(w->Data1Bar->Caption(), QString("Record: 1 of %1 Record(s)").arg(expected.size()));
    w->resize(1400, 760);
    Screenshot(*w, "frmTable1-query");
    EXPECT_TRUE(w.Env.Messages.Shown().empty()) << w.Env.ShownTexts().join('|').toStdString();
}

// A click into a value box shows its picker beside it, but the keys typed next go into the
// box: what the angler types is what the selection uses.
TEST(QueryBuilderWindow, TypedValuesGoIntoTheClickedBoxNotItsPicker)
{
    Browser w(SharedYear());
    w->show();
    QApplication::setActiveWindow(w.Window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(w.Window.get()));
    const struct {
        int Box;
        QComboBox* Picker;
        const char* Keys;
    } cases[] = {{1, w->MonthList, "12"},      {3, w->DOWList, "2"},
                 {5, w->Combo2, "12"},         {6, w->Combo2, "20"},
                 {9, w->Combo2, "150"},        {Text1Box, w->TimeCombo, "5:30 PM"},
                 {10, w->TimeCombo, "6:00 am"}};
    for (const auto& c : cases) {
        QLineEdit* box = c.Box == Text1Box ? w->Text1 : w->Text6[std::size_t(c.Box)];
        QTest::mouseClick(box, Qt::LeftButton);
        EXPECT_FALSE(c.Picker->isHidden()) << c.Box; // the aid is offered
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), c.Keys);
        EXPECT_EQ(box->text(), c.Keys) << c.Box;
    }
    // The typed moon ages and months select what plain SQL finds.
    w->Check1[3]->setChecked(true);
    w->cmdSelect_Click();
    EXPECT_EQ(w.ShownIds(), Plain("Month BETWEEN 12 AND 12 AND MoonAge BETWEEN 12 AND 20"));
    EXPECT_TRUE(w.Env.Messages.Shown().empty()) << w.Env.ShownTexts().join('|').toStdString();
}

TEST(QueryBuilderWindow, MessagesForMissingAndRefusedValues)
{
    Browser w(SharedYear());
    w->Check1[9]->setChecked(true);
    w->cmdSelect_Click();
    w->Text6[9]->setText("1; DROP TABLE table1");
    w->cmdSelect_Click();
    EXPECT_EQ(w.Env.ShownTexts(),
              (QStringList{"A box is checked with no data",
                           "Total Taken >=: \"1; DROP TABLE table1\" is not a whole number from "
                           "0 to 9999."}));
    // Nothing ran: the browser still shows the year as it opened.
    EXPECT_EQ(w->Data1.RecordSource(), "Select * from table1 order by juliandate");
    EXPECT_EQ(CountRows(SharedYear(), "table1"), 366);
}

TEST(QueryBuilderWindow, EmptySelectionShowsAnEmptyBrowser)
{
    Browser w(SharedYear());
    // A click on the waxing note checks the moon condition of the day shown (1 January).
    const bool waxing =
        PlainColumn(SharedYear(), "SELECT Waxing FROM table1 WHERE DBID = 1").at(0).toInt() == 1;
    w->Check1[waxing ? 11 : 10]->setChecked(true);
    w->Label7_Click();
    EXPECT_EQ(w->Check1[10]->isChecked(), waxing);
    EXPECT_EQ(w->Check1[11]->isChecked(), !waxing);
    w->Command3_Click();
    EXPECT_FALSE(w->Check1[10]->isChecked() || w->Check1[11]->isChecked());

    w->Check1[6]->setChecked(true);
    w->Check1[7]->setChecked(true);
    w->cmdSelect_Click();
    EXPECT_EQ(w->Data1.RecordCount(), 0);
    EXPECT_EQ(w->Data1Bar->Caption(), "Record: 0 of 0 Record(s)");
    EXPECT_EQ(w->txtFields[0]->text(), "");
    // Nothing of the last day stays on show, and there is no record to edit.
    for (const QString& shown : {w->Label3->text(), w->Label7->text(), w->FakeTextBox[0]->text(),
                                 w->txtFields[7]->text(), w->Text5->text()})
        EXPECT_EQ(shown, "");
    EXPECT_FALSE(w->WholeFish->isVisibleTo(&*w) || w->QuarterFish->isVisibleTo(&*w));
    EXPECT_FALSE(w->cmdEdit->isEnabled());
    EXPECT_TRUE(w.Env.Messages.Shown().empty());

    // All Records brings back the year and makes Table3 whole again.
    w->Command1_Click();
    EXPECT_EQ(w->Data1.RecordCount(), 366);
    EXPECT_EQ(CountRows(SharedYear(), "table3"), 366);
    EXPECT_TRUE(w->cmdEdit->isEnabled());
    EXPECT_FALSE(w->Label3->text().isEmpty());
}

TEST(QueryBuilderWindow, MonthsAndDaysMenus)
{
    Browser w(SharedYear());
    w->Check1[6]->setChecked(true);
    w->Text6[0]->setText("12");
    EXPECT_EQ(w->mnuMonths[0]->text(), "January");
    EXPECT_EQ(w->mnuMonths[11]->text(), "December");
    EXPECT_EQ(w->mnuMonths[1]->text(), "February");
    w->mnuMonths[1]->trigger();
    EXPECT_EQ(w.ShownIds(), Plain("Month = 2"));
    EXPECT_EQ(w.ShownIds().size(), 29u);
    EXPECT_FALSE(w->Check1[6]->isChecked());
    EXPECT_EQ(w->Text6[0]->text(), "");
    EXPECT_EQ(w->Text6[1]->text(), "");
    EXPECT_EQ(w->Text6[2]->text(), "");
    EXPECT_EQ(w->Label9->text(), "Sorted by Date");
    // With the month boxes emptied, the next selection covers the whole year.
    w->cmdSelect_Click();
    EXPECT_EQ(w->Data1.RecordCount(), 366);

    // Every entry of the Days menu, in menu order, against the same days asked in plain SQL.
    const std::vector<std::pair<QString, QString>> days = {
        {"Apogee Days", "Perigee = 2"},
        {"Perigee Days", "Perigee = 1"},
        {"Day before/after and Perigee", "Perigee IN (-1, 1)"},
        {"Weekends (Friday and Saturday)", "DayOfWeek_ IN (6, 7)"},
        {"Weekends(Saturday and Sunday)", "DayOfWeek_ IN (1, 7)"},
        {"Weekends(Friday - Sunday)", "DayOfWeek_ IN (1, 6, 7)"},
        {"Week Days", "DayOfWeek_ BETWEEN 2 AND 6"},
        {"Sundays", "DayOfWeek_ = 1"},
        {"Mondays", "DayOfWeek_ = 2"},
        {"Tuesdays", "DayOfWeek_ = 3"},
        {"Wednesdays", "DayOfWeek_ = 4"},
        {"Thursdays", "DayOfWeek_ = 5"},
        {"Fridays", "DayOfWeek_ = 6"},
        {"Saturdays", "DayOfWeek_ = 7"}};
    for (std::size_t i = 0; i < days.size(); ++i) {
        const auto& [caption, where] = days[i];
        EXPECT_EQ(w->mnuYears[i]->text(), caption);
        w->mnuYears[i]->trigger();
        const std::vector<int> shown = w.ShownIds();
        EXPECT_FALSE(shown.empty()) << caption.toStdString();
        EXPECT_EQ(shown, Plain(where)) << caption.toStdString();
    }
}

TEST(QueryBuilderWindow, CatchEnteredOnASelectionReachesTheLog)
{
    Browser w(SharedYear());
    w->Check1[6]->setChecked(true);
    w->cmdSelect_Click();
    ASSERT_GT(w->Data1.RecordCount(), 2);
    w->Data1.MoveNext();
    const int id = w->Data1.Field("DBID").toInt();
    const auto before = PlainRows(
        SharedYear(), QString("SELECT TotalTaken, TakenWith FROM table1 WHERE DBID = %1").arg(id));
    w->cmdEdit_Click();
    w->txtFields[17]->setText("42");
    w->txtFields[17]->setModified(true);
    w->cmdUpdate_Click();
    EXPECT_EQ(
        PlainColumn(SharedYear(), QString("SELECT TotalTaken FROM table1 WHERE DBID = %1").arg(id))
            .at(0)
            .toInt(),
        42);
    // The next selection rebuilds Table3 from the log and still finds the entry.
    w->Check1[6]->setChecked(false);
    w->Check1[9]->setChecked(true);
    w->Text6[9]->setText("42");
    w->cmdSelect_Click();
    EXPECT_EQ(w.ShownIds(), std::vector<int>{id});
    // An entry left in the editing state: Cancel keeps the records and the edit, Save saves
    // it before a menu replaces the records.
    w->cmdEdit_Click();
    w->txtFields[18]->setText("spinner");
    w->txtFields[18]->setModified(true);
    w.Env.Answers = {MsgResult::Cancel, MsgResult::Save};
    w->mnuYears[1]->trigger();
    EXPECT_EQ(w.ShownIds(), std::vector<int>{id});
    EXPECT_FALSE(w->cmdEdit->isEnabled());
    w->mnuYears[1]->trigger();
    EXPECT_EQ(w.Env.ShownTexts(),
              (QStringList{"Save changes to this day?", "Save changes to this day?"}));
    EXPECT_EQ(
        PlainColumn(SharedYear(), QString("SELECT TakenWith FROM table1 WHERE DBID = %1").arg(id))
            .at(0)
            .toString(),
        "spinner");
    EXPECT_TRUE(w->cmdEdit->isEnabled());
    // As it was, for the other tests.
    Database db;
    ASSERT_TRUE(db.Open(SharedYear()));
    ASSERT_TRUE(db.UpdateRecord({"table1"}, "DBID", id,
                                {{"TotalTaken", before[0][0]}, {"TakenWith", before[0][1]}}));
}

TEST(GridView, ColumnsAndAJumpBackToThePickedDay)
{
    Browser w(SharedYear());
    w->mnuYears[12]->trigger(); // Fridays
    frmTable2 grid(w.Env.Context(), w->Data1.RecordSource());
    grid.Form_Activate();
    const auto* model = grid.DBGrid1->model();
    ASSERT_EQ(model->rowCount(), 52);
    EXPECT_EQ(model->columnCount(), 30); // table1's 25, then the 5 catch columns
    EXPECT_EQ(model->headerData(1, Qt::Horizontal).toString(), "Date");
    EXPECT_EQ(model->headerData(6, Qt::Horizontal).toString(), "Major 1 ");
    EXPECT_EQ(model->headerData(12, Qt::Horizontal).toString(), "SunSet  ");
    EXPECT_EQ(grid.DBGrid1->columnWidth(1), Twips(1150));
    EXPECT_EQ(grid.DBGrid1->columnWidth(11), Twips(1300));
    for (int hidden : {0, 8, 9, 10, 13, 20, 24})
        EXPECT_TRUE(grid.DBGrid1->isColumnHidden(hidden)) << hidden;
    EXPECT_FALSE(grid.DBGrid1->isColumnHidden(2));
    const std::vector<int> fridays = Plain("DayOfWeek_ = 6");
    EXPECT_EQ(model->index(0, 1).data().toString(), "01/05/2024");
    EXPECT_EQ(grid.Data1Bar->Caption(), "Record: 1");
    grid.resize(900, 600);
    Screenshot(grid, "frmTable2");

    grid.DBGrid1->selectRow(9);
    EXPECT_EQ(grid.Data1Bar->Caption(), "Record: 10");
    grid.DBGrid1_DblClick(9);
    EXPECT_TRUE(w.Env.State.FindRecord);
    EXPECT_EQ(w.Env.State.FindDBID, fridays[9]);
    w->Form_Activate();
    EXPECT_EQ(w->Data1.Field("DBID").toInt(), fridays[9]);
    EXPECT_EQ(w->Label3->text().left(3), "Fri");
    EXPECT_FALSE(w.Env.State.FindRecord);
}

// The catch columns against plain SQL over the file: species once each (ignoring case) by
// their first catch's time, untimed first; the sums; the largest measures in the chosen units.
TEST(TableView, CatchColumnsSummariseEachDaysCatches)
{
    const QString path = MakeYearFile("grid-catches");
    const QString old = MakeYearFile("grid-catches-old");
    const auto make = [](const char* date, const char* time, const char* species, int count,
                         bool released, std::optional<int> mm, std::optional<int> g) {
        Catch c;
        c.Date = date;
        c.Time = time;
        c.Species = species;
        c.Count = count;
        c.Released = released;
        c.LengthMm = mm;
        c.WeightG = g;
        return c;
    };
    std::vector<Catch> catches = {
        make("2024-03-10", "06:10:00", "Pike", 1, false, 812, 4350),
        make("2024-03-10", "05:00:00", "walleye", 3, true, 400, std::nullopt),
        make("2024-03-10", "20:00:00", "PIKE", 2, true, std::nullopt, 5000),
        make("2024-03-11", "", "Perch", 5, false, std::nullopt, std::nullopt),
        make("2024-03-11", "04:00:00", "Bream", 1, false, 300, 640),
        make("2024-07-04", "23:50:00", "Ñandú", 1, true, 1234, 12345)};
    ASSERT_TRUE(AddCatches(path, catches, QDateTime::currentDateTime()));
    struct Case {
        QString File;
        UnitSystem Units;
        QString LengthSql, WeightSql; // the stored measure in the shown unit
        QString Longest, Heaviest;    // the headings
    };
    const std::vector<Case> cases = {
        {path, UnitSystem::Metric, "printf('%.1f', m / 10.0)", "printf('%.2f', w / 1000.0)",
         "Longest (cm)", "Heaviest (kg)"},
        {path, UnitSystem::Imperial, "printf('%.1f', m / 25.4)", "printf('%.2f', w / 453.59237)",
         "Longest (in)", "Heaviest (lb)"},
        {old, UnitSystem::Metric, "", "", "Longest (cm)", "Heaviest (kg)"}};
    for (const Case& k : cases) {
        LogWindowEnv env(QFileInfo(k.File).absolutePath(), k.File);
        LogContext context = env.Context();
        context.Units = k.Units;
        frmTable2 grid(context, QStringLiteral("SELECT * FROM table1 ORDER BY JulianDate"));
        grid.Form_Activate();
        const auto* model = grid.DBGrid1->model();
        const int first = model->columnCount() - 5;
        QStringList headings;
        for (int c = first; c < model->columnCount(); ++c)
            headings << model->headerData(c, Qt::Horizontal).toString();
        EXPECT_EQ(headings, QStringList({"Species", "Fish", "Released", k.Longest, k.Heaviest}));
        const QString perDay =
            k.LengthSql.isEmpty()
                ? "SELECT NULL, NULL, NULL, NULL, NULL FROM table1"
                : "SELECT (SELECT group_concat(Species, ', ') FROM (SELECT Species, "
                  "min(printf('%8s|%010d', coalesce(CatchTime, ''), CatchID)) FROM Catches c "
                  "WHERE c.JulianDate = t.JulianDate GROUP BY lower(Species) ORDER BY 2)), s.n, "
                  "s.r, iif(m IS NULL, NULL, " +
                      k.LengthSql + "), iif(w IS NULL, NULL, " + k.WeightSql +
                      ") FROM table1 t LEFT JOIN (SELECT JulianDate, SUM(FishCount) n, "
                      "SUM(FishCount * Released) r, max(LengthMm) m, max(WeightG) w FROM "
                      "Catches GROUP BY JulianDate) s USING (JulianDate)";
        const auto expected = PlainRows(k.File, perDay + " ORDER BY JulianDate");
        ASSERT_EQ(model->rowCount(), static_cast<int>(expected.size()));
        int withCatches = 0;
        for (int r = 0; r < model->rowCount(); ++r) {
            withCatches += expected[std::size_t(r)][1].isNull() ? 0 : 1;
            for (int c = 0; c < 5; ++c)
                EXPECT_EQ(model->index(r, first + c).data().toString().toStdString(),
                          expected[std::size_t(r)][std::size_t(c)].toString().toStdString())
                    << r << " " << c;
        }
        EXPECT_EQ(withCatches, k.File == path ? 3 : 0);
        if (k.Units == UnitSystem::Imperial) {
            grid.DBGrid1->selectRow(69); // March 10
            grid.resize(1300, 420);
            grid.DBGrid1->scrollTo(model->index(69, 1), QAbstractItemView::PositionAtTop);
            Screenshot(grid, "frmTable2-catches");
        }
        EXPECT_TRUE(env.ShownTexts().isEmpty());
    }
}

TEST(ReportWindow, LinesFollowTheBrowsersOrder)
{
    Browser w(SharedYear());
    w->Check1[0]->setChecked(true);
    w->Text6[1]->setText("3");
    w->Text6[2]->setText("3");
    w->SortByCombo->setCurrentIndex(4); // Total Taken
    w->SortByCombo_Click();
    w->cmdSelect_Click();
    frmReport report(w.Env.Context(), w->Data1.RecordSource(), true);
    const QStringList lines = TextLines(report.ReportText());
    ASSERT_EQ(lines.size(), 31);
    const auto order = PlainRows(SharedYear(), "SELECT strftime('%m/%d/%Y', JulianDate), "
                                               "IllumPercent, MoonAge FROM table1 WHERE Month = "
                                               "3 ORDER BY TotalTaken, JulianDate");
    for (int i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].left(17), QString("%1  %2  ")
                                         .arg(i + 1, 3, 10, QChar('0'))
                                         .arg(order[std::size_t(i)][0].toString()));
        const QString moon = QString("%1  %2    ")
                                 .arg(order[std::size_t(i)][1].toInt(), 3, 10, QChar('0'))
                                 .arg(order[std::size_t(i)][2].toInt(), 2, 10, QChar('0'));
        EXPECT_TRUE(lines[i].endsWith(moon)) << lines[i].toStdString();
    }
    // Days with a catch come last, in date order among themselves.
    EXPECT_TRUE(lines[30].startsWith("031  03/30/2024")) << lines[30].toStdString();
    EXPECT_EQ(report.ProgressBar1->maximum(), 31);
    EXPECT_EQ(report.ProgressBar1->value(), 31);
    report.resize(760, 520);
    Screenshot(report, "frmReport");
}

TEST(ReportWindow, PrintsFiftyNineLinesOnTwoPages)
{
    Browser w(SharedYear());
    const QString pdf = QDir(testenv::FreshDir("report-pdf")).filePath("report.pdf");
    qputenv("QUILLMERE_PRINT_PDF", pdf.toUtf8());
    frmReport report(w.Env.Context(), "select * from table1 where dbid <= 59 order by dbid", true);
    report.mnuPrint_Click();
    const QStringList pages = testenv::PdfText(pdf).split('\f');
    ASSERT_GE(pages.size(), 2);
    ASSERT_TRUE(pages.size() == 2 || pages[2].trimmed().isEmpty()) << pages.size();
    const QString dashes(76, '-');
    const QStringList first = pages[0].split('\n');
    const QStringList second = pages[1].split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(first[0].trimmed(), "Quillmere DataBase Report - Page # 1");
    // The text extraction keeps the words of a line, not the number of blanks between them.
    EXPECT_TRUE(pages[0].simplified().contains("058 02/27/2024"))
        << pages[0].right(400).toStdString();
    EXPECT_FALSE(pages[0].simplified().contains("059 02/28/2024"));
    ASSERT_EQ(second.size(), 5) << pages[1].toStdString();
    EXPECT_EQ(second[0].trimmed(), "Quillmere DataBase Report - Page # 2");
    EXPECT_EQ(second[1].simplified(),
              QString::fromStdString(std::string(ReportHeading)).simplified());
    EXPECT_EQ(second[2].trimmed(), dashes);
    EXPECT_TRUE(second[3].simplified().startsWith("059 02/28/2024"));
    EXPECT_EQ(second[4].trimmed(), dashes); // the dash line appended before printing

    // Printing again appends a second dash line to the text.
    report.mnuPrint_Click();
    const QStringList lines = TextLines(report.ReportText());
    ASSERT_EQ(lines.size(), 61);
    EXPECT_EQ(lines[59], dashes);
    EXPECT_EQ(lines[60], dashes);
    qunsetenv("QUILLMERE_PRINT_PDF");
}

TEST(ReportWindow, NoRecordsPrintOnePageOfHeadings)
{
    Browser w(SharedYear());
    const QString pdf = QDir(testenv::FreshDir("report-empty")).filePath("empty.pdf");
    qputenv("QUILLMERE_PRINT_PDF", pdf.toUtf8());
    frmReport report(w.Env.Context(), "select * from table1 where dbid < 0", true);
    EXPECT_EQ(report.ReportText(), "");
    report.mnuPrint_Click();
    qunsetenv("QUILLMERE_PRINT_PDF");
    EXPECT_EQ(testenv::PdfPages(pdf), 1);
}
