// SPDX-License-Identifier: GPL-3.0-or-later
// The reminders as the desktop receives them: a session bus of the test's own (dbus-daemon
// --session), a notification service on it that records what it is sent, and the program's
// reminder service stepped through a day on the fake clock.
#include "platform/reminderservice.h"

#include "platform/timezones.h"
#include "platform/translations.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {
// The desktop's notification service, as far as a sender sees it.
class FakeNotifications : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Received {
        QString App, Icon, Summary, Body;
        QVariantMap Hints;
        int Expiry = 0;
        QDateTime At; // the fake clock when it arrived
    };
    std::vector<Received> Got;

public slots:
    uint Notify(const QString& app, uint, const QString& icon, const QString& summary,
                const QString& body, const QStringList&, const QVariantMap& hints, int expiry)
    {
        const QDateTime at =
            QDateTime::fromString(qEnvironmentVariable("QUILLMERE_NOW"), Qt::ISODate);
        Got.push_back({app, icon, summary, body, hints, expiry, at});
        return uint(Got.size());
    }
};

// A session bus of the test's own, so nothing reaches the desktop the tests run on.
class PrivateBus {
public:
    PrivateBus()
    {
        Daemon.start(QStringLiteral("dbus-daemon"),
                     {QStringLiteral("--session"), QStringLiteral("--nofork"),
                      QStringLiteral("--print-address=1")});
        if (Daemon.waitForStarted() && Daemon.waitForReadyRead())
            Address = QString::fromUtf8(Daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        Daemon.kill();
        Daemon.waitForFinished();
    }
    QDBusConnection Connect(const QString& name) const
    {
        return QDBusConnection::connectToBus(Address, name);
    }
    QString Address;

private:
    QProcess Daemon;
};

// Lets the bus deliver until the service holds `count` notifications or a few seconds pass.
void AwaitCount(const FakeNotifications& service, std::size_t count)
{
    QElapsedTimer waited;
    waited.start();
    while (service.Got.size() < count && waited.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}
} // namespace

// Stepped five minutes at a time through 12 March 2024 at Alexandria on its own clock (CDT),
// each reminder arrives once with the program's texts, and sunrise and sunset the lead time
// before PyEphem's instants, within a step.
TEST(ReminderNotifications, ADayOfRemindersArrivesOnTimeWithTheirTexts)
{
    PrivateBus bus;
    ASSERT_FALSE(bus.Address.isEmpty());
    FakeNotifications service;
    QDBusConnection server = bus.Connect(QStringLiteral("notification-service"));
    ASSERT_TRUE(server.registerService(QStringLiteral("org.freedesktop.Notifications")));
    ASSERT_TRUE(server.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &service,
                                      QDBusConnection::ExportAllSlots));
    Notifier notifier(bus.Connect(QStringLiteral("quillmere")));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));

    Settings s;
    s.TimeFormats = LocalClockMode;
    constexpr int lead = 30;
    s.Locations[1] = {"Alexandria, LA",
                      92.42,
                      31.25,
                      6,
                      "America/Chicago",
                      {.Majors = true, .Minors = true, .SunEvents = true, .LeadMinutes = lead}};
    ReminderService reminders(s, notifier);

    const QDateTime start = QDateTime::fromString("2024-03-12T00:00:00-05:00", Qt::ISODate);
    constexpr int stepMinutes = 5;
    for (int minute = 0; minute < MinutesPerDay; minute += stepMinutes) {
        const QDateTime now = start.addSecs(qint64(minute) * SecondsPerMinute);
        qputenv("QUILLMERE_NOW", now.toString(Qt::ISODateWithMs).toUtf8());
        const std::size_t before = service.Got.size();
        AwaitCount(service, before + std::size_t(reminders.Check()));
    }
    qunsetenv("QUILLMERE_NOW");

    // Each reminder once, with the program's texts and the desktop's hints.
    ASSERT_GE(service.Got.size(), 6u);
    QStringList summaries;
    for (const auto& got : service.Got) {
        EXPECT_FALSE(summaries.contains(got.Summary)) << got.Summary.toStdString();
        summaries << got.Summary;
        EXPECT_TRUE(got.Body.startsWith("Alexandria, LA")) << got.Body.toStdString();
        EXPECT_EQ(got.App, "Quillmere");
        EXPECT_EQ(got.Icon, "io.github.quillmere.Quillmere");
        EXPECT_EQ(got.Hints.value("desktop-entry").toString(), "io.github.quillmere.Quillmere");
        EXPECT_EQ(got.Expiry, -1);
    }
    // Sunrise and sunset as PyEphem gives them for the place and day (07:21:26 and 19:17:27
    // CDT) to the engine's minute, each told the lead time before, within a step.
    for (const auto& [event, ephem] : {std::pair{QStringLiteral("Sunrise at "), QTime(7, 21, 26)},
                                       {QStringLiteral("Sunset at "), QTime(19, 17, 27)}}) {
        const auto sun = std::find_if(service.Got.begin(), service.Got.end(), [&](const auto& got) {
            return got.Summary.startsWith(event);
        });
        ASSERT_NE(sun, service.Got.end()) << event.toStdString();
        const QTime shown = QLocale().toTime(sun->Summary.mid(event.size()), QLocale::ShortFormat);
        EXPECT_LE(std::abs(shown.secsTo(ephem)), 90) << sun->Summary.toStdString();
        EXPECT_EQ(sun->Body, "Alexandria, LA\nDay rating: Best");
        const int told = sun->At.time().secsTo(shown);
        EXPECT_GT(told, (lead - stepMinutes) * SecondsPerMinute) << sun->Summary.toStdString();
        EXPECT_LE(told, lead * SecondsPerMinute) << sun->Summary.toStdString();
    }
}

// Under a German or Spanish locale the program's translation is installed and the reminders
// read in that language with the locale's clock (platform/data/reminder_texts.txt).
TEST(ReminderNotifications, TextsFollowTheLocalesLanguageAndClock)
{
    QFile file(QStringLiteral(QUILLMERE_TESTDATA "/reminder_texts.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    DueReminder major;
    major.StartClock = "17:05";
    major.EndClock = "19:05";
    major.Rating = BestDayRating;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList f = line.split('|');
        if (line.startsWith('#') || f.size() != 4)
            continue;
        EXPECT_EQ(InstallTranslations(*QCoreApplication::instance(), QLocale(f[0])), f[1] == "1");
        const Notification n = ReminderService::Text(major, QStringLiteral("Bad Tölz"));
        EXPECT_EQ(n.Summary, f[2]) << f[0].toStdString();
        EXPECT_EQ(n.Body, QString(f[3]).replace(QLatin1String("\\n"), QLatin1String("\n")))
            << f[0].toStdString();
        for (QTranslator* t : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            QCoreApplication::removeTranslator(t);
            delete t;
        }
    }
}

#include "reminders_test.moc"
