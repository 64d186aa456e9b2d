// SPDX-License-Identifier: GPL-3.0-or-later
// The catch editor driven by key events on the real window, and the record browser's catch
// list after adds, edits and removals, checked against the year file read in plain SQL.
#include "logdb/catches.h"
#include "logdb/catchphotos.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "ui/log/catcheditor.h"
#include "ui/log/catchlist.h"
#include "ui/log/catchtabs.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/frmstatistics.h"
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QCompleter>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedBarSeries>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <map>

using namespace logtest;

namespace {

constexpr auto FirstDay = "2024-01-01";

// A small picture file of its own colour, as a camera's would be found on disk.
QString TestPhoto(const QString& folder, const QString& name, Qt::GlobalColor colour)
{
    QImage image(320, 240, QImage::Format_RGB32);
    image.fill(colour);
    QPainter(&image).fillRect(40, 40, 120, 60, Qt::white);
    const QString path = QDir(folder).filePath(name);
    EXPECT_TRUE(image.save(path));
    return path;
}

void Type(QWidget* box, const QString& text)
{
    box->setFocus();
    QTest::keyClicks(box, text);
}

// The window's picture in the test's palette and in a dark one, named for the screen's dpi.
void Shots(QWidget& window, const QString& name)
{
    const QString dpi =
        QStringLiteral("-%1dpi").arg(qRound(window.logicalDpiY() * window.devicePixelRatioF()));
    Screenshot(window, name + dpi);
    const QPalette light = window.palette();
    QPalette dark = light;
    for (const auto& [role, colour] : {std::pair{QPalette::Window, QColor(53, 53, 53)},
                                       {QPalette::WindowText, Qt::white},
                                       {QPalette::Base, QColor(35, 35, 35)},
                                       {QPalette::AlternateBase, QColor(66, 66, 66)},
                                       {QPalette::Text, Qt::white},
                                       {QPalette::Button, QColor(53, 53, 53)},
                                       {QPalette::ButtonText, Qt::white},
                                       {QPalette::Highlight, QColor(42, 130, 218)},
                                       {QPalette::HighlightedText, Qt::black},
                                       {QPalette::PlaceholderText, Qt::gray}})
        dark.setColor(role, colour);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, Qt::gray);
    window.setPalette(dark);
    Screenshot(window, name + dpi + QStringLiteral("-dark"));
    window.setPalette(light);
}

QVariant SqlValue(const QString& path, const QString& sql)
{
    const auto column = PlainColumn(path, sql);
    return column.empty() ? QVariant() : column.front();
}

} // namespace

// What the angler types is what the file keeps, in the chosen units, or the message under the
// fields says why not and nothing is written.
TEST(CatchEditor, TypedEntriesAreStoredOrRefusedWithTheirMessage)
{
    struct Case {
        UnitSystem Units;
        const char* Field; // the editor's box
        const char* Typed;
        const char* Column;  // the stored column
        QVariant Stored;     // as SQLite holds it; null when refused
        const char* Message; // what the editor says, when it refuses
    };
    const std::vector<Case> cases = {
        {UnitSystem::Metric, "LengthBox", "52.5", "LengthMm", 525, ""},
        {UnitSystem::Imperial, "LengthBox", "20.5", "LengthMm", 521, ""}, // 520.7 mm
        {UnitSystem::Imperial, "WeightBox", "3.5", "WeightG", 1588, ""},  // 1587.57 g
        {UnitSystem::Imperial, "WaterBox", "68", "WaterTemp", 20.0, ""},
        {UnitSystem::Metric, "TimeBox", "7:30 pm", "CatchTime", "19:30:00", ""},
        {UnitSystem::Metric, "TimeBox", "06:05", "CatchTime", "06:05:00", ""},
        {UnitSystem::Metric, "LengthBox", "-3", "LengthMm", {}, "\"-3\" is not a length"},
        {UnitSystem::Imperial, "LengthBox", "long", "LengthMm", {}, "\"long\" is not a length"},
        {UnitSystem::Metric, "TimeBox", "25:00", "CatchTime", {}, "\"25:00\" is not a time"},
        {UnitSystem::Metric, "LatitudeBox", "95", "Latitude", {}, "\"95\" is not a latitude"},
    };
    int n = 0;
    for (const Case& c : cases) {
        const QString label = QStringLiteral("%1 %2").arg(c.Field, c.Typed);
        const QString path = MakeYearFile(QStringLiteral("catch-typing-%1").arg(n++), 3);
        LogWindowEnv env(QFileInfo(path).absolutePath(), path);
        LogContext context = env.Context();
        context.Units = c.Units;
        PhotoThumbnails thumbnails(48);
        Catch fresh;
        fresh.Date = FirstDay;
        CatchEditor editor(context, path, fresh, thumbnails);
        editor.show();
        editor.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
        Type(editor.SpeciesBox, QStringLiteral("Walleye"));
        Type(editor.findChild<QWidget*>(QLatin1String(c.Field)), QLatin1String(c.Typed));
        QTest::mouseClick(editor.cmdOK, Qt::LeftButton);
        const QString count =
            QStringLiteral("SELECT count(*) FROM sqlite_master WHERE name = 'Catches'");
        if (c.Stored.isNull()) {
            EXPECT_TRUE(editor.isVisible()) << label.toStdString();
            EXPECT_TRUE(editor.Message->text().startsWith(QLatin1String(c.Message)))
                << label.toStdString() << ": " << editor.Message->text().toStdString();
            EXPECT_EQ(QApplication::focusWidget(),
                      editor.findChild<QWidget*>(QLatin1String(c.Field)))
                << label.toStdString();
            const bool tables = SqlValue(path, count).toInt() == 1;
            EXPECT_TRUE(!tables || SqlValue(path, "SELECT count(*) FROM Catches").toInt() == 0)
                << label.toStdString();
            continue;
        }
        EXPECT_FALSE(editor.isVisible())
            << label.toStdString() << editor.Message->text().toStdString();
        const QVariant stored =
            SqlValue(path, QStringLiteral("SELECT %1 FROM Catches WHERE Species = 'Walleye' AND "
                                          "JulianDate = '%2'")
                               .arg(QLatin1String(c.Column), QLatin1String(FirstDay)));
        EXPECT_EQ(stored.toString(), c.Stored.toString()) << label.toStdString();
    }
}

// The species list of the folder's year files completes what the angler begins to type.
TEST(CatchEditor, SpeciesCompleteFromTheFolder)
{
    const QString path = MakeYearFile(QStringLiteral("catch-species"), 3);
    for (const char* name : {"Northern Pike", "Walleye", "Nile Perch"}) {
        Catch c;
        c.Date = FirstDay;
        c.Species = QLatin1String(name);
        ASSERT_TRUE(AddCatch(path, c, QDateTime::currentDateTime()));
    }
    LogWindowEnv env(QFileInfo(path).absolutePath(), path);
    PhotoThumbnails thumbnails(48);
    Catch fresh;
    fresh.Date = FirstDay;
    CatchEditor editor(env.Context(), path, fresh, thumbnails);
    editor.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&editor));
    Type(editor.SpeciesBox, QStringLiteral("n"));
    QCompleter* completer = editor.SpeciesBox->completer();
    ASSERT_TRUE(completer->popup()->isVisible());
    EXPECT_EQ(completer->completionCount(), 2); // Nile Perch, Northern Pike
    QTest::keyClicks(editor.SpeciesBox, QStringLiteral("or"));
    EXPECT_EQ(completer->completionCount(), 1);
    QTest::keyClick(completer->popup(), Qt::Key_Down);
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    EXPECT_EQ(editor.SpeciesBox->text(), "Northern Pike");
}

// Add, edit and remove through the browser: the list shows what the file holds, and the
// day's Total Taken follows its catches.
TEST(CatchList, ShowsTheDaysCatchesAsTheFileHoldsThem)
{
    const QString path = MakeYearFile(QStringLiteral("catch-browser"), 3);
    const QString folder = QFileInfo(path).absolutePath();
    LogWindowEnv env(folder, path);
    frmTable1 browser(env.Context());
    browser.Form_Activate();
    CatchList& list = *browser.CatchesList;
    const QString pike = TestPhoto(folder, QStringLiteral("pike.png"), Qt::darkGreen);
    const QString perch = TestPhoto(folder, QStringLiteral("perch.png"), Qt::darkYellow);
    // Each editor run types a species and a count, adds its photos and saves.
    struct Typed {
        QString Species;
        int Count;
        QStringList Photos;
    };
    std::vector<Typed> typed = {
        {"Pike", 2, {pike}}, {"Perch", 5, {perch, pike}}, {"Bass", 1, {}}, {"Zander", 1, {}}};
    list.RunEditor = [&typed](CatchEditor& editor) {
        editor.SpeciesBox->clear();
        Type(editor.SpeciesBox, typed.front().Species);
        editor.CountBox->setValue(typed.front().Count);
        editor.AddPhotoFiles(typed.front().Photos);
        if (typed.front().Species == "Perch")
            Shots(editor, QStringLiteral("catch-editor"));
        typed.erase(typed.begin());
        editor.cmdOK_Click();
        return editor.result();
    };
    const auto sqlSpecies = [&path] {
        QStringList names;
        for (const QVariant& v : PlainColumn(path, QStringLiteral("SELECT Species FROM Catches "
                                                                  "WHERE JulianDate = '2024-01-01' "
                                                                  "ORDER BY CatchID")))
            names << v.toString();
        return names;
    };
    const auto shownSpecies = [&list] {
        QStringList names;
        for (int i = 0; i < list.Catches->topLevelItemCount(); ++i)
            names << list.Catches->topLevelItem(i)->text(1);
        return names;
    };
    const auto sqlTotal = [&path] {
        return SqlValue(path, "SELECT TotalTaken FROM table1 WHERE JulianDate = '2024-01-01'")
            .toString();
    };

    for (int i = 0; i < 3; ++i)
        list.cmdAddCatch_Click();
    EXPECT_EQ(shownSpecies(), sqlSpecies());
    EXPECT_EQ(sqlSpecies(), (QStringList{"Pike", "Perch", "Bass"}));
    EXPECT_EQ(sqlTotal(), "8");
    EXPECT_EQ(SqlValue(path, "SELECT count(*) FROM CatchPhotos").toInt(), 3);
    EXPECT_EQ(browser.txtFields[17]->text(), sqlTotal());
    const QString stored =
        SqlValue(path, "SELECT Photo FROM CatchPhotos JOIN Catches USING (CatchID) "
                       "WHERE Species = 'Pike'")
            .toString();
    EXPECT_TRUE(QFileInfo::exists(QDir(folder).filePath(stored))) << stored.toStdString();
    EXPECT_TRUE(list.Notice->isHidden());
    browser.show();
    Shots(browser, QStringLiteral("catch-browser"));

    list.Catches->setCurrentItem(list.Catches->topLevelItem(1));
    list.cmdEditCatch_Click(); // Perch becomes Zander, one fish
    EXPECT_EQ(sqlSpecies(), (QStringList{"Pike", "Zander", "Bass"}));
    EXPECT_EQ(shownSpecies(), sqlSpecies());
    EXPECT_EQ(browser.txtFields[17]->text(), "4");

    // A photo file that went missing is reported under the list, and the day still shows.
    ASSERT_TRUE(QFile::remove(QDir(folder).filePath(stored)));
    browser.Data1.MoveNext();
    browser.Data1.MovePrevious();
    EXPECT_FALSE(list.Notice->isHidden());
    EXPECT_TRUE(list.Notice->text().contains(stored)) << list.Notice->text().toStdString();

    env.Answers = {MsgResult::Yes};
    list.Catches->setCurrentItem(list.Catches->topLevelItem(0));
    list.cmdRemoveCatch_Click();
    EXPECT_EQ(sqlSpecies(), (QStringList{"Zander", "Bass"}));
    EXPECT_EQ(shownSpecies(), sqlSpecies());
    EXPECT_EQ(browser.txtFields[17]->text(), "2");
    EXPECT_EQ(browser.txtFields[17]->text(), sqlTotal());
    browser.cmdEdit_Click(); // the total follows the catches: not typed over
    EXPECT_TRUE(browser.txtFields[17]->isReadOnly());
    EXPECT_FALSE(browser.CatchesList->isEnabled());
}

// Moving the browser to a day of 20 catches with 20 photos reads the day and draws its
// thumbnails from the cache: well within 50 ms once each photo has been seen.
TEST(CatchList, ADayOfTwentyCatchesAndPhotosShowsWithin50Ms)
{
    const QString path = MakeYearFile(QStringLiteral("catch-speed"), 3);
    const QString folder = QFileInfo(path).absolutePath();
    std::vector<Catch> catches;
    for (int i = 0; i < 20; ++i) {
        Catch c;
        c.Date = FirstDay;
        c.Time = QStringLiteral("%1:00:00").arg(i + 2, 2, 10, QLatin1Char('0'));
        c.Species = QStringLiteral("Species %1").arg(i);
        QString relative;
        ASSERT_TRUE(AddPhoto(
            path,
            TestPhoto(folder, QStringLiteral("p%1.png").arg(i), i % 2 ? Qt::darkBlue : Qt::darkRed),
            relative));
        c.Photos << relative;
        catches.push_back(c);
    }
    ASSERT_TRUE(AddCatches(path, catches, QDateTime::currentDateTime()));
    LogWindowEnv env(folder, path);
    CatchList list(env.Context());
    list.ShowDay(path, FirstDay); // the first sight of each photo decodes it
    ASSERT_EQ(list.Catches->topLevelItemCount(), 20);
    QElapsedTimer clock;
    clock.start();
    list.ShowDay(path, "2024-01-02");
    list.ShowDay(path, FirstDay);
    const qint64 ms = clock.elapsed();
    std::printf("a day of 20 catches and 20 photos shown in %lld ms\n", ms);
    EXPECT_LT(ms, 50);
    EXPECT_EQ(list.Catches->topLevelItemCount(), 20);
}

// The statistics' catch pages chart what the file holds, asked in plain SQL, and name the
// water temperature bands in the chosen units.
TEST(CatchPages, ChartTheFilesFishInTheChosenUnits)
{
    const QString path = MakeYearFile(QStringLiteral("catch-pages"), 3);
    struct Entry {
        const char* Species;
        int Count;
        bool Released;
        std::optional<double> Water;
        const char* Time;
    };
    std::vector<Catch> catches;
    for (const Entry& e :
         {Entry{"Pike", 2, true, 12.0, "06:10:00"}, Entry{"Pike", 1, false, 7.5, "13:00:00"},
          Entry{"Perch", 6, false, 12.5, "18:40:00"}, Entry{"Bass", 1, true, std::nullopt, ""}}) {
        Catch c;
        c.Date = FirstDay;
        c.Species = QLatin1String(e.Species);
        c.Count = e.Count;
        c.Released = e.Released;
        c.WaterTemp = e.Water;
        c.Time = QLatin1String(e.Time);
        catches.push_back(c);
    }
    ASSERT_TRUE(AddCatches(path, catches, QDateTime::currentDateTime()));
    LogWindowEnv env(QFileInfo(path).absolutePath(), path);
    LogContext context = env.Context();
    context.Units = UnitSystem::Imperial;
    FrmStatistics window(context, path);

    const auto chartOf = [&window](int page) {
        QChart* chart = window.CatchCharts->Charts[std::size_t(page)]->chart();
        auto* series = qobject_cast<QStackedBarSeries*>(chart->series().front());
        auto* axis = qobject_cast<QBarCategoryAxis*>(chart->axes(Qt::Horizontal).front());
        std::map<QString, std::pair<long, long>> bars; // name: fish, released
        for (int i = 0; i < axis->count(); ++i)
            bars[axis->at(i)] = {long(series->barSets()[0]->at(i) + series->barSets()[1]->at(i)),
                                 long(series->barSets()[1]->at(i))};
        return bars;
    };
    std::map<QString, std::pair<long, long>> sql;
    for (const auto& row :
         PlainRows(path, "SELECT Species, sum(FishCount), sum(FishCount * Released) "
                         "FROM Catches GROUP BY Species"))
        sql[row[0].toString()] = {row[1].toLongLong(), row[2].toLongLong()};
    EXPECT_EQ(chartOf(0), sql);
    const auto water = chartOf(4);
    QStringList bands;
    for (const auto& [name, fish] : water)
        bands << name;
    // 5 to 10 °C and 10 to 15 °C, and the catch without a temperature.
    EXPECT_EQ(bands, (QStringList{"(no temperature)", "41 to 50 \u00B0F", "50 to 59 \u00B0F"}));
    EXPECT_EQ(water.at("50 to 59 \u00B0F").first, 8);
    window.show();
    window.Tabs->setCurrentWidget(window.CatchCharts->Pages);
    for (int page = 0; page < window.CatchCharts->Pages->count(); ++page) {
        window.CatchCharts->Pages->setCurrentIndex(page);
        Shots(window, QStringLiteral("catch-statistics-%1").arg(page + 1));
    }
}

// Export from Database Functions and import into a fresh year: the catches arrive as the file
// held them, and exporting the new year gives the same bytes, in CSV and in JSON.
TEST(CatchExport, DatabaseFunctionsExportAndImportTheCatchesWhole)
{
    const QString columns = QStringLiteral(
        "SELECT JulianDate, CatchTime, Species, FishCount, LengthMm, WeightG, Released, Bait, "
        "Spot, Latitude, Longitude, WaterTemp, Note FROM Catches ORDER BY JulianDate, CatchTime");
    for (const QString& extension : {QStringLiteral("csv"), QStringLiteral("json")}) {
        const QString from = MakeYearFileWithEntries(QStringLiteral("catch-export-") + extension);
        std::vector<Catch> catches(3);
        const std::array<const char*, 3> species = {"Pike", "Perch, yellow", "Zander \"big\""};
        for (std::size_t i = 0; i < catches.size(); ++i) {
            catches[i].Date = i < 2 ? QStringLiteral("2024-03-10") : QStringLiteral("2024-12-31");
            catches[i].Time = QStringLiteral("0%1:15:00").arg(i + 5);
            catches[i].Species = QLatin1String(species[i]);
            catches[i].Count = int(i) + 1;
            catches[i].LengthMm = 400 + int(i);
            catches[i].Released = i == 1;
            catches[i].WaterTemp = 11.5;
            catches[i].Latitude = 46.5;
            catches[i].Longitude = -84.25;
            catches[i].Note = QStringLiteral("line one\nline two");
        }
        ASSERT_TRUE(AddCatches(from, catches, QDateTime::currentDateTime()));
        const QString into = MakeYearFileWithEntries(QStringLiteral("catch-import-") + extension);
        const QString first = QFileInfo(from).absolutePath() + "/out." + extension;
        const QString again = QFileInfo(into).absolutePath() + "/again." + extension;

        LogWindowEnv source(QFileInfo(from).absolutePath());
        FrmSelectDB exporter(source.Context());
        exporter.DBFiles->setCurrentRow(0);
        exporter.ChooseExportFile = [&first] { return first; };
        exporter.CmdExport_Click();
        LogWindowEnv target(QFileInfo(into).absolutePath());
        FrmSelectDB importer(target.Context());
        importer.DBFiles->setCurrentRow(0);
        importer.ChooseImportFile = [&first] { return first; };
        importer.CmdImport_Click();
        importer.ChooseExportFile = [&again] { return again; };
        importer.CmdExport_Click();

        EXPECT_EQ(PlainRows(into, columns), PlainRows(from, columns)) << extension.toStdString();
        EXPECT_EQ(PlainRows(into, columns).size(), 3u);
        QFile a(first), b(again);
        ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        EXPECT_EQ(a.readAll(), b.readAll()) << extension.toStdString();
        EXPECT_TRUE(target.ShownTexts().last().startsWith("366 day(s) and 3 catch(es)"))
            << target.ShownTexts().join("|").toStdString();
    }
}

// Leaving the editor with a change asks first: Cancel keeps it open, Save writes the catch,
// Discard writes nothing; leaving without a change asks nothing.
TEST(CatchEditor, LeavingWithAChangeAsksFirst)
{
    const QString path = MakeYearFile(QStringLiteral("catch-leave"), 3);
    LogWindowEnv env(QFileInfo(path).absolutePath(), path);
    PhotoThumbnails thumbnails(48);
    Catch fresh;
    fresh.Date = FirstDay;
    const auto stored = [&path] {
        return SqlValue(path, "SELECT count(*) FROM sqlite_master WHERE name = 'Catches'")
                           .toInt() == 1
                   ? SqlValue(path, "SELECT count(*) FROM Catches").toInt()
                   : 0;
    };
    for (const auto& [answer, open, rows] : {std::tuple{MsgResult::Cancel, true, 0},
                                             {MsgResult::Discard, false, 0},
                                             {MsgResult::Save, false, 1}}) {
        CatchEditor editor(env.Context(), path, fresh, thumbnails);
        editor.show();
        QTest::keyClick(&editor, Qt::Key_Escape); // unchanged: closes without a word
        EXPECT_FALSE(editor.isVisible());
        editor.show();
        Type(editor.SpeciesBox, QStringLiteral("Bream"));
        env.Answers = {answer};
        QTest::keyClick(&editor, Qt::Key_Escape);
        EXPECT_EQ(editor.isVisible(), open);
        EXPECT_EQ(stored(), rows);
    }
    EXPECT_EQ(env.ShownTexts(), QStringList(3, QStringLiteral("Save changes to this catch?")));
}
