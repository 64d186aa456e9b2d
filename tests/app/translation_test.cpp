// SPDX-License-Identifier: GPL-3.0-or-later
// The main window and the record browser in German and in Spanish, at 96 and 144 dpi: every
// text a reader sees (title, labels, buttons, group titles, tabs, menus and their items, column
// headings) is another than the English one, unless it is the same in both by nature, and
// none is clipped. The main window's pictures go to the screenshots folder.
#include "app/startup.h"
#include "platform/singleinstance.h"
#include "support/filledyear.h"
#include "support/layoutcheck.h"
#include "support/testenv.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/common/appstate.h"
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabBar>
#include <QTranslator>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

namespace {

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

// The program's translation and the locale's numbers and dates, while it lives.
class Language {
public:
    explicit Language(const QLocale& locale) : Before(QLocale())
    {
        QLocale::setDefault(locale);
        EXPECT_TRUE(Translator.load(locale, QStringLiteral("quillmere"), QStringLiteral("_"),
                                    QStringLiteral(":/i18n")));
        QCoreApplication::installTranslator(&Translator);
    }
    ~Language()
    {
        QCoreApplication::removeTranslator(&Translator);
        QLocale::setDefault(Before);
    }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

private:
    QLocale Before;
    QTranslator Translator;
};

// The program at its first start, and a filled year of the log.
struct Program {
    AppState App;
    SingleInstance Instance{QStringLiteral("translation-test")};
    logtest::LogWindowEnv Log{testenv::FreshDir("translation-log"),
                              logtest::MakeFilledYearFile("translation-year")};

    Program()
    {
        qputenv("QUILLMERE_NOW", "2024-03-10T07:30:00");
        App.Messages.Script([](const ShownMessage&) { return MsgResult::OK; });
        EXPECT_EQ(StartUp(App, true, Instance), StartOutcome::Run);
    }
};

struct Window {
    const char* Name;
    std::function<std::unique_ptr<QWidget>(Program&)> Make;
};

const std::vector<Window> Windows = {
    {"main", [](Program& p) { return std::make_unique<FrmCalendar>(p.App); }},
    {"recordbrowser",
     [](Program& p) {
         auto browser = std::make_unique<frmTable1>(p.Log.Context());
         browser->show();
         browser->Form_Activate();
         return browser;
     }},
};

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

TEST_P(Translated, ChangesEveryTextAndClipsNone)
{
    const QFont base = QApplication::font();
    QApplication::setFont(layoutcheck::FontAtDpi(base, GetParam().Dpi));
    Program program;
    for (const Window& window : Windows) {
        const auto shown = [&] {
            std::unique_ptr<QWidget> w = window.Make(program);
            w->show();
            QApplication::processEvents();
            return w;
        };
        std::unique_ptr<QWidget> w = shown();
        const QStringList english = VisibleTexts(*w);
        const QStringList englishFaults = layoutcheck::ClippedItems(*w);
        w.reset();
        const Language language{QLocale(QString::fromLatin1(GetParam().Locale))};
        w = shown();
        const QStringList translated = VisibleTexts(*w);
        ASSERT_EQ(translated.size(), english.size()) << window.Name;
        for (qsizetype i = 0; i < english.size(); ++i) {
            const bool same = SameByNature.contains(english[i]) ||
                              GetParam().SameWords.contains(english[i]) ||
                              PlaceName.match(english[i]).hasMatch() ||
                              NumbersAndTimes.match(english[i]).hasMatch();
            EXPECT_TRUE(same || translated[i] != english[i])
                << window.Name << ": " << english[i].toStdString();
        }
        const QStringList faults =
            FaultsBeyondEnglish(layoutcheck::ClippedItems(*w), englishFaults);
        EXPECT_TRUE(faults.isEmpty())
            << window.Name << ":\n  " << faults.join(QStringLiteral("\n  ")).toStdString();
        logtest::Screenshot(*w, QStringLiteral("translated_%1_%2_%3dpi")
                                    .arg(window.Name, GetParam().Locale)
                                    .arg(GetParam().Dpi));
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
