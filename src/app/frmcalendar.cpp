#include "app/frmcalendar.h"

#include "app/appstate.h"
#include "app/settingsio.h"
#include "platform/twips.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenuBar>

#include <algorithm>
#include <limits>

namespace {
constexpr int FormHeightTwips = 6390;
constexpr int FormWidthTwips = 10200;
} // namespace

FrmCalendar::FrmCalendar(AppState& app, QWidget* parent) : QMainWindow(parent), App(app)
{
    setWindowTitle(QStringLiteral("Quillmere"));
    mnuexit = menuBar()->addAction(QStringLiteral("E&xit"));
    mnuexit->setObjectName(QStringLiteral("mnuexit"));
    connect(mnuexit, &QAction::triggered, this, &FrmCalendar::mnuexit_Click);
    App.Messages.SetParent(this);
    Form_Load();
}

void FrmCalendar::Form_Load()
{
    const int top = Twips(QString::fromStdString(App.Config.FormTop).toDouble());
    resize(Twips(FormWidthTwips), Twips(FormHeightTwips));
    move(Twips(App.Config.FormLeft), top);
}

void FrmCalendar::mnuexit_Click() { close(); }

void FrmCalendar::RecordPosition()
{
    Settings& s = App.Config;
    if (isMinimized() || isMaximized()) {
        s.FormTop = "0";
        s.FormLeft = 0;
        return;
    }
    const auto clamp16 = [](int twips) {
        return std::clamp(twips, int(std::numeric_limits<std::int16_t>::min()),
                          int(std::numeric_limits<std::int16_t>::max()));
    };
    s.FormTop = std::to_string(clamp16(PixelsToTwips(y())));
    s.FormLeft = static_cast<std::int16_t>(clamp16(PixelsToTwips(x())));
}

void FrmCalendar::closeEvent(QCloseEvent* event)
{
    RecordPosition();
    SaveSettings(App.Config, App.Store);
    event->accept();
    QCoreApplication::quit();
}
