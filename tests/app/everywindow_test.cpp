// SPDX-License-Identifier: GPL-3.0-or-later
// Every window of the program, opened as the program opens it, at 96 and 144 dpi: no label,
// button, box, menu, column heading or cell shows less than its whole text, and no child lies
// outside its window. The main window and the record browser in German and in Spanish: every
// text a reader sees (title, labels, buttons, group titles, tabs, menus and their items, column
// headings) is another than the English one, unless it is the same in both by nature, and none
// is clipped. Each window's picture goes to the screenshots folder.
#include "app/startup.h"
#include "platform/singleinstance.h"
#include "support/cityfolder.h"
#include "support/filledyear.h"
#include "support/layoutcheck.h"
#include "support/testenv.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"
#include "ui/locations/editdb.h"
#include "ui/log/frmbackups.h"
#include "ui/log/frmreport.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/frmstatistics.h"
#include "ui/log/frmtable1.h"
#include "ui/log/frmtable2.h"
#include "ui/log/logwindowenv.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QTabBar>
#include <QTimer>
#include <QTranslator>

#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <ostream>
#include <set>

namespace {

using Opener = std::function<void()>;

std::set<QWidget*> ShownWindows()
{
    std::set<QWidget*> shown;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible())
            shown.insert(w);
    return shown;
}

// Lets `look` at the window the opener brings up (modal or not), then closes it unless it is
// the main window, which stays for the windows it opens; false when no window opened.
bool LookAtWindowOpenedBy(const Opener& open, const std::function<void(QWidget&)>& look,
                          const QWidget* main)
{
    const std::set<QWidget*> before = ShownWindows();
    bool checked = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        for (QWidget* w : ShownWindows()) {
            if (before.count(w) != 0 || checked)
                continue;
            checked = true;
            poll.stop();
            look(*w);
            if (w != main)
                w->close();
        }
    });
    poll.start(0);
    open();
    for (int spins = 0; !checked && spins < 100; ++spins)
        QApplication::processEvents();
    return checked;
}

struct Window {
    const char* Name;
    std::function<Opener(struct Program&)> Open;
    int KnownClippedFrom; // dpi from which the window is known to clip until its rework lands
};

// The program at its first start with a filled year of the log and the main window shown.
struct Program {
    AppState App;
    SingleInstance Instance{QStringLiteral("everywindow-test")};
    std::unique_ptr<FrmCalendar> Main;
    logtest::LogWindowEnv Log{testenv::FreshDir("everywindow-log")};
    QString YearFile = logtest::MakeFilledYearFile("everywindow-year");
    std::vector<std::unique_ptr<QWidget>> Opened;

    Program()
    {
        qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
        App.Messages.Script([](const ShownMessage&) { return MsgResult::OK; });
        EXPECT_EQ(StartUp(App, true, Instance), StartOutcome::Run);
        Main = std::make_unique<FrmCalendar>(App);
        Log.State.DBPath = YearFile;
    }
    // A log window made over the filled year and shown.
    template <typename W, typename... Args> Opener Show(Args&&... args)
    {
        return [this, args...] {
            Opened.push_back(std::make_unique<W>(Log.Context(), args...));
            Opened.back()->show();
        };
    }
    // The record browser on the filled year with its first record current.
    Opener Browser()
    {
        return [this] {
            auto browser = std::make_unique<frmTable1>(Log.Context());
            browser->show();
            browser->Form_Activate();
            Opened.push_back(std::move(browser));
        };
    }
};

const QString AllDays = QStringLiteral("select * from table1 order by juliandate");

// KnownClippedFrom marks a window whose rework is on another branch (the developer named) or
// still to come: 0 when the window must be whole at both sizes.
const std::vector<Window> Windows = {
    // At 144 dpi the main window and the day graph keep their 96-dpi look at 1.5 times the
    // size, wider than the 800-pixel offscreen screen: every text is whole, the window is not.
    {"main", [](Program& p) -> Opener { return [&p] { p.Main->show(); }; }, 144},
    {"yearcalendar", [](Program& p) -> Opener { return [&p] { p.Main->mnuyearly_Click(); }; }, 0},
    {"daygraph", [](Program& p) -> Opener { return [&p] { p.Main->ShowDayGraph(); }; }, 144},
    {"printpreview", [](Program& p) -> Opener { return [&p] { p.Main->PrintCalendar_Click(); }; },
     0},
    {"glance", [](Program& p) -> Opener { return [&p] { p.Main->AtAGlance_Click(); }; }, 0},
    {"help", [](Program& p) -> Opener { return [&p] { p.Main->HelpContents_Click(); }; }, 0},
    {"about", [](Program& p) -> Opener { return [&p] { p.Main->MnuAbout_Click(); }; }, 0},
    {"reminders", [](Program& p) -> Opener { return [&p] { p.Main->Reminders_Click(); }; }, 0},
    {"detail", [](Program& p) -> Opener { return [&p] { p.Main->txtpic_DblClick(10); }; }, 0},
    {"table", [](Program& p) -> Opener { return [&p] { p.Main->ShowList_Click(); }; }, 0},
    {"databasefunctions", [](Program& p) { return p.Show<FrmSelectDB>(); }, 0},
    {"recordbrowser", [](Program& p) { return p.Browser(); }, 0},
    {"grid", [](Program& p) { return p.Show<frmTable2>(AllDays); }, 0},
    {"report", [](Program& p) { return p.Show<frmReport>(AllDays, true); }, 0},
    // At 144 dpi the six tabs need 927 px, more than the test's 800 px screen.
    {"statistics", [](Program& p) { return p.Show<FrmStatistics>(p.YearFile); }, 144},
    {"backups", [](Program& p) { return p.Show<FrmBackups>(p.YearFile); }, 0},
    {"locationeditor", [](Program& p) -> Opener { return [&p] { p.Main->Loc_Click(1); }; }, 0},
    {"cityeditor",
     [](Program& p) -> Opener {
         return [&p] {
             p.Opened.push_back(
                 std::make_unique<EditDB>(p.App.Messages, cityfolder::Make("everywindow-cities")));
             p.Opened.back()->show();
         };
     },
     0},
};

// The screenshots of a dark or enlarged run (QUILLMERE_TEST_DARK, a larger offscreen screen)
// are kept apart from the plain ones.
QString Look()
{
    const QSize screen = QGuiApplication::primaryScreen()->size();
    QString look =
        qEnvironmentVariableIsSet("QUILLMERE_TEST_DARK") ? QStringLiteral("_dark") : QString();
    return screen == QSize(800, 800)
               ? look
               : look + QStringLiteral("_%1x%2").arg(screen.width()).arg(screen.height());
}

class EveryWindow : public ::testing::TestWithParam<int> {};

TEST_P(EveryWindow, ShowsEveryTextWholeAndEveryChildInside)
{
    const QFont base = QApplication::font();
    QApplication::setFont(layoutcheck::FontAtDpi(base, GetParam()));
    Program program;
    for (const Window& window : Windows) {
        const QString shot =
            QStringLiteral("everywindow_%1_%2dpi%3").arg(window.Name).arg(GetParam()).arg(Look());
        QStringList faults{QStringLiteral("no new window opened")};
        LookAtWindowOpenedBy(
            window.Open(program),
            [&](QWidget& w) {
                faults = layoutcheck::ClippedItems(w);
                logtest::Screenshot(w, shot);
            },
            program.Main.get());
        const bool known = window.KnownClippedFrom != 0 && GetParam() >= window.KnownClippedFrom;
        if (known) {
            std::cout << window.Name << " at " << GetParam() << " dpi, known to clip:\n  "
                      << faults.join(QStringLiteral("\n  ")).toStdString() << '\n';
            EXPECT_FALSE(faults.isEmpty()) << window.Name << " is whole now: clear its known mark";
        } else
            EXPECT_TRUE(faults.isEmpty()) << window.Name << " at " << GetParam() << " dpi:\n  "
                                          << faults.join(QStringLiteral("\n  ")).toStdString();
    }
    QApplication::setFont(base);
}

INSTANTIATE_TEST_SUITE_P(Dpi, EveryWindow, ::testing::Values(96, 144));

// Texts that read the same in every language, with why.
const QStringList SameByNature = {
    QStringLiteral("Quillmere"), // the program's name
    QStringLiteral("<<"),
    QStringLiteral(">>"), // the month arrows
    QStringLiteral("|<"),        QStringLiteral("<"), QStringLiteral(">"),
    QStringLiteral(">|"), // the data bar's arrows
};
// Places' names, in the status bar and the location menus ("# 1 Alexandria, LA  [Def]").
const QRegularExpression
    PlaceName(QStringLiteral("^(# ?\\d+ )?[A-Z][\\w .'-]*, [A-Z][A-Za-z]( +\\[Def\\])?$"));
// Numbers, clock times (the panel writes its own clock, 12- or 24-hour as the menu says),
// and the stars of an event the day does not have.
const QRegularExpression NumbersAndTimes(QStringLiteral("^[\\d\\s:./%*-]*( ?[AP]M)?[\\d\\s/*-]*$"));

void AddMenuTexts(const QList<QAction*>& actions, QStringList& texts)
{
    for (const QAction* a : actions) {
        texts << a->text();
        if (a->menu())
            AddMenuTexts(a->menu()->actions(), texts);
    }
}

void AddHeadings(const QHeaderView& header, QStringList& texts)
{
    for (int i = 0; i < header.count(); ++i)
        texts << header.model()->headerData(i, header.orientation()).toString();
}

// The texts the window shows, in the order its widgets were made.
QStringList VisibleTexts(const QWidget& window)
{
    QStringList texts{window.windowTitle()};
    for (const QWidget* w : window.findChildren<QWidget*>()) {
        if (!w->isVisibleTo(&window))
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(w))
            texts << label->text();
        else if (const auto* button = qobject_cast<const QAbstractButton*>(w))
            texts << button->text();
        else if (const auto* box = qobject_cast<const QGroupBox*>(w))
            texts << box->title();
        else if (const auto* header = qobject_cast<const QHeaderView*>(w))
            AddHeadings(*header, texts);
        else if (const auto* tabs = qobject_cast<const QTabBar*>(w))
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i);
        else if (const auto* bar = qobject_cast<const QMenuBar*>(w))
            AddMenuTexts(bar->actions(), texts);
    }
    texts.removeAll(QString());
    return texts;
}

struct Case {
    const char* Locale;
    int Dpi;
    QStringList SameWords; // words this language shares with English
};

// The row as the test's name shows it, with no addresses in it.
void PrintTo(const Case& row, std::ostream* out) { *out << row.Locale << ' ' << row.Dpi << " dpi"; }

// At 144 dpi the main window is wider than the 800-pixel test screen in English too: that
// fault is the window's, not the language's.
const QString TooLarge = QStringLiteral("is larger than the screen");

QStringList FaultsBeyondEnglish(QStringList faults, const QStringList& english)
{
    if (!english.filter(TooLarge).isEmpty())
        faults.removeIf([](const QString& f) { return f.contains(TooLarge); });
    return faults;
}

class Translated : public ::testing::TestWithParam<Case> {};

// Each of the two windows' texts and clipping faults, in English and in the row's language.
TEST_P(Translated, ChangesEveryTextAndClipsNone)
{
    const QFont base = QApplication::font();
    QApplication::setFont(layoutcheck::FontAtDpi(base, GetParam().Dpi));
    std::vector<const Window*> windows;
    for (const Window& w : Windows)
        if (QString(w.Name) == "main" || QString(w.Name) == "recordbrowser")
            windows.push_back(&w);
    std::vector<QStringList> texts[2], faults[2]; // [translated][window]
    const QLocale english;
    QTranslator translator; // the program's translation and the locale's numbers and dates
    for (const bool translated : {false, true}) {
        if (translated) {
            QLocale::setDefault(QLocale(QString::fromLatin1(GetParam().Locale)));
            EXPECT_TRUE(translator.load(QLocale(), "quillmere", "_", ":/i18n"));
            QCoreApplication::installTranslator(&translator);
        }
        Program program;
        for (const Window* window : windows)
            EXPECT_TRUE(LookAtWindowOpenedBy(
                window->Open(program),
                [&](QWidget& w) {
                    QApplication::processEvents();
                    texts[translated].push_back(VisibleTexts(w));
                    faults[translated].push_back(layoutcheck::ClippedItems(w));
                    if (translated)
                        logtest::Screenshot(w, QStringLiteral("translated_%1_%2_%3dpi")
                                                   .arg(window->Name, GetParam().Locale)
                                                   .arg(GetParam().Dpi));
                },
                program.Main.get()));
    }
    QCoreApplication::removeTranslator(&translator);
    QLocale::setDefault(english);
    ASSERT_EQ(texts[0].size() + texts[1].size(), 2 * windows.size());
    for (std::size_t n = 0; n < windows.size(); ++n) {
        const QStringList &before = texts[0][n], &translated = texts[1][n];
        ASSERT_EQ(translated.size(), before.size()) << windows[n]->Name;
        for (qsizetype i = 0; i < before.size(); ++i) {
            const bool same = SameByNature.contains(before[i]) ||
                              GetParam().SameWords.contains(before[i]) ||
                              PlaceName.match(before[i]).hasMatch() ||
                              NumbersAndTimes.match(before[i]).hasMatch();
            EXPECT_TRUE(same || translated[i] != before[i])
                << windows[n]->Name << ": " << before[i].toStdString();
        }
        const QStringList beyond = FaultsBeyondEnglish(faults[1][n], faults[0][n]);
        EXPECT_TRUE(beyond.isEmpty())
            << windows[n]->Name << ":\n  " << beyond.join(QStringLiteral("\n  ")).toStdString();
    }
    QApplication::setFont(base);
}

// German writes four months as English does; the record browser's menu lists them.
const QStringList GermanSameMonths = {QStringLiteral("April"), QStringLiteral("August"),
                                      QStringLiteral("September"), QStringLiteral("November")};

INSTANTIATE_TEST_SUITE_P(Languages, Translated,
                         ::testing::Values(Case{"de_DE", 96, GermanSameMonths},
                                           Case{"de_DE", 144, GermanSameMonths},
                                           Case{"es_ES", 96, {}}, Case{"es_ES", 144, {}}),
                         [](const ::testing::TestParamInfo<Case>& row) {
                             return std::string(row.param.Locale) + "_" +
                                    std::to_string(row.param.Dpi) + "dpi";
                         });

} // namespace
