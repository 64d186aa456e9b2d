#include "app/frmcalendar.h"

#include "app/appstate.h"
#include "app/daycellwidget.h"
#include "app/frmabout.h"
#include "app/helpwindow.h"
#include "app/settingsio.h"
#include "logdb/frmselectdb.h"
#include "platform/programfolder.h"
#include "platform/twips.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <limits>

namespace {
constexpr int FormHeightTwips = 6390;
constexpr int FormWidthTwips = 10200;
constexpr int CellWidth = 57, CellHeight = 48, CellGap = 1, GridLeft = 6, GridTop = 50;

QString Q(const std::string& s) { return QString::fromStdString(s); }

QAction* Item(QMenu* menu, const QString& caption, const QString& name, bool checkable = false)
{
    QAction* a = menu->addAction(caption);
    a->setObjectName(name);
    a->setCheckable(checkable);
    return a;
}
} // namespace

FrmCalendar::FrmCalendar(AppState& app, QWidget* parent) : QMainWindow(parent), App(app)
{
    setWindowTitle(QStringLiteral("Quillmere"));
    BuildControls();
    BuildMenus();
    BuildStatusBar();
    App.Messages.SetParent(this);
    Form_Load();
}

QLabel* FrmCalendar::MakeLabel(int index, QWidget* parent, const QRect& geometry)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QString("Label%1").arg(index));
    label->setGeometry(geometry);
    Label[std::size_t(index)] = label;
    return label;
}

void FrmCalendar::BuildControls()
{
    auto* central = new QWidget(this);
    setCentralWidget(central);

    DecMonth = new QPushButton(QStringLiteral("<<"), central);
    DecMonth->setGeometry(GridLeft, 4, 32, 26);
    DecMonth->setToolTip(QStringLiteral(" Previous Month "));
    QFont heading = font();
    heading.setPointSize(13);
    heading.setBold(true);
    MakeLabel(11, central, {44, 4, 130, 26})->setFont(heading);
    Label[11]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    MakeLabel(12, central, {176, 4, 70, 26})->setFont(heading);
    IncMonth = new QPushButton(QStringLiteral(">>"), central);
    IncMonth->setGeometry(250, 4, 32, 26);
    IncMonth->setToolTip(QStringLiteral(" Next Month "));
    CmdNOW = new QPushButton(QStringLiteral("Now"), central);
    CmdNOW->setGeometry(290, 4, 56, 26);

    MakeLabel(1, central, {GridLeft, 32, 7 * (CellWidth + CellGap), 16})
        ->setText(QStringLiteral("    Sun            Mon           Tue            Wed          Thu "
                                 "            Fri             Sat"));
    for (int i = 0; i < 37; ++i) {
        auto* cell = new DayCellWidget(i, central);
        cell->setGeometry(GridLeft + (i % 7) * (CellWidth + CellGap),
                          GridTop + (i / 7) * (CellHeight + CellGap), CellWidth, CellHeight);
        txtpic[std::size_t(i)] = cell;
    }
    const int gridRight = GridLeft + 7 * (CellWidth + CellGap);
    VsbYear = new QScrollBar(Qt::Vertical, central);
    VsbYear->setGeometry(gridRight + 2, GridTop, 16, 6 * (CellHeight + CellGap) - CellGap);
    VsbYear->setRange(1900, 2500);
    VsbYear->setToolTip(QStringLiteral(" Change the Year "));
    MakeLabel(3, central, {GridLeft, GridTop + 6 * (CellHeight + CellGap) + 2, 330, 18});

    BuildDetailsPanel(central);
    Timer1 = new QTimer(this);
    Timer1->setInterval(10000);
    central->setMouseTracking(true);
    central->installEventFilter(this);
}

void FrmCalendar::BuildDetailsPanel(QWidget* central)
{
    const int left = 438, right = 556;
    auto frame = [central](const QString& title, const QRect& r) {
        auto* box = new QGroupBox(title, central);
        box->setGeometry(r);
        return box;
    };
    QGroupBox* daylightFrame = frame(QStringLiteral("Daylight Hours"), {left, 0, 112, 42});
    MakeLabel(7, daylightFrame, {10, 18, 90, 18});
    QGroupBox* majors = frame(QStringLiteral("Majors"), {left, 44, 112, 62});
    MakeLabel(0, majors, {10, 18, 94, 18});
    MakeLabel(2, majors, {10, 38, 94, 18});
    QGroupBox* minors = frame(QStringLiteral("Minors"), {left, 108, 112, 62});
    MakeLabel(4, minors, {10, 18, 94, 18});
    MakeLabel(5, minors, {10, 38, 94, 18});
    for (int i : {0, 2, 4, 5}) {
        Label[std::size_t(i)]->setToolTip(QStringLiteral(" Moon is due South/North "));
        Label[std::size_t(i)]->setAutoFillBackground(true);
        Label[std::size_t(i)]->setAlignment(Qt::AlignCenter);
    }
    QGroupBox* sun = frame(QStringLiteral("Sun"), {left, 172, 112, 62});
    MakeLabel(13, sun, {6, 18, 30, 18})->setText(QStringLiteral("Rise"));
    MakeLabel(14, sun, {36, 18, 72, 18});
    MakeLabel(17, sun, {6, 38, 30, 18})->setText(QStringLiteral("Set"));
    MakeLabel(16, sun, {36, 38, 72, 18});
    QGroupBox* moon = frame(QStringLiteral("Moon"), {right, 0, 118, 62});
    MakeLabel(18, moon, {6, 18, 30, 18});
    MakeLabel(19, moon, {36, 18, 76, 18});
    MakeLabel(21, moon, {6, 38, 30, 18});
    MakeLabel(22, moon, {36, 38, 76, 18});

    PicM = new QLabel(central);
    PicM->setGeometry(right + 4, 68, 80, 80);
    PicM->setMouseTracking(true);
    PicM->installEventFilter(this);
    ToPict = new QLabel(central);
    ToPict->setGeometry(PicM->geometry());
    ToPict->hide();
    MakeLabel(32, central, {right, 152, 100, 18});

    VsbHour = new QScrollBar(Qt::Vertical, central);
    VsbHour->setGeometry(right + 92, 68, 18, 166);
    VsbHour->setRange(0, 1439);
    VsbHour->setPageStep(60);
    VsbHour->setToolTip(QStringLiteral(" Move the moment of the day "));
    MakeLabel(15, central, {right, 236, 118, 18})->setAlignment(Qt::AlignCenter);
    Label[15]->setToolTip(QStringLiteral(" Click to Reset Hour Bar "));
    Label[15]->installEventFilter(this);
    connect(VsbHour, &QScrollBar::sliderMoved, this, &FrmCalendar::VsbHour_Scroll);
}

void FrmCalendar::BuildMenus()
{
    QMenuBar* bar = menuBar();
    RunDataBase = bar->addAction(QStringLiteral("DataBase"));
    RunDataBase->setObjectName(QStringLiteral("RunDataBase"));
    connect(RunDataBase, &QAction::triggered, this, &FrmCalendar::RunDataBase_Click);
    QMenu* options = bar->addMenu(QStringLiteral("&Options"));
    options->setObjectName(QStringLiteral("SetOptions"));
    QMenu* formats = options->addMenu(QStringLiteral("Time Formats"));
    formats->setObjectName(QStringLiteral("TFormat"));
    DST[0] = Item(formats, QStringLiteral("Daylight Savings"), QStringLiteral("DST0"), true);
    DST[1] = Item(formats, QStringLiteral("Standard"), QStringLiteral("DST1"), true);
    QMenu* mice = options->addMenu(QStringLiteral("Mouse"));
    mice->setObjectName(QStringLiteral("Mice"));
    Mouse[0] = Item(mice, QStringLiteral("On Move"), QStringLiteral("Mouse0"), true);
    Mouse[1] = Item(mice, QStringLiteral("On Click"), QStringLiteral("Mouse1"), true);
    QMenu* pan = options->addMenu(QStringLiteral("PAngle"));
    pan->setObjectName(QStringLiteral("Pan"));
    Pangle[0] = Item(pan, QStringLiteral("Parallactic Off"), QStringLiteral("Pangle0"), true);
    Pangle[1] = Item(pan, QStringLiteral("Parallactic On"), QStringLiteral("Pangle1"), true);
    for (int i = 0; i < 2; ++i) {
        connect(DST[std::size_t(i)], &QAction::triggered, this, [this, i] { DST_Click(i); });
        connect(Mouse[std::size_t(i)], &QAction::triggered, this, [this, i] { Mouse_Click(i); });
        connect(Pangle[std::size_t(i)], &QAction::triggered, this, [this, i] { Pangle_Click(i); });
    }

    QMenu* locations = bar->addMenu(QStringLiteral("Locations"));
    locations->setObjectName(QStringLiteral("LoccationOptions"));
    QMenu* select = locations->addMenu(QStringLiteral("Select A Location"));
    select->setObjectName(QStringLiteral("SelectLocation"));
    QMenu* edit = locations->addMenu(QStringLiteral("Edit A Location"));
    edit->setObjectName(QStringLiteral("EditLocation"));
    for (int i = 1; i <= LocationCount; ++i) {
        DLoc[std::size_t(i)] = Item(select, {}, QString("DLoc%1").arg(i), true);
        Loc[std::size_t(i)] = Item(edit, {}, QString("Loc%1").arg(i));
        connect(DLoc[std::size_t(i)], &QAction::triggered, this, [this, i] { DLoc_Click(i); });
    }

    QMenu* help = bar->addMenu(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("Fhelp"));
    HelpContents = Item(help, QStringLiteral("&Contents"), QStringLiteral("HelpContents"));
    MnuAbout = Item(help, QStringLiteral("&About"), QStringLiteral("MnuAbout"));
    connect(HelpContents, &QAction::triggered, this, &FrmCalendar::HelpContents_Click);
    connect(MnuAbout, &QAction::triggered, this, &FrmCalendar::MnuAbout_Click);

    mnuexit = bar->addAction(QStringLiteral("E&xit"));
    mnuexit->setObjectName(QStringLiteral("mnuexit"));
    connect(mnuexit, &QAction::triggered, this, &FrmCalendar::mnuexit_Click);
}

void FrmCalendar::BuildStatusBar()
{
    StatusBar1 = new QStatusBar(this);
    setStatusBar(StatusBar1);
    StatusBar1->setSizeGripEnabled(false);
    StatusBar1->setMouseTracking(true);
    StatusBar1->installEventFilter(this);
    StatusPanels[0] = new QLabel(StatusBar1);
    StatusPanels[0]->setFixedWidth(Twips(1995 - 15));
    StatusPanels[0]->setMouseTracking(true);
    StatusBar1->addWidget(StatusPanels[0]);
    static constexpr std::array<const char*, 4> legend = {"Best", "V.Good", "Good", "Fair"};
    for (std::size_t k = 0; k < legend.size(); ++k) {
        StatusPanels[k + 1] = new QLabel(QString::fromLatin1(legend[k]), StatusBar1);
        StatusBar1->addWidget(StatusPanels[k + 1]);
    }
}

void FrmCalendar::Form_Load()
{
    const int top = Twips(QString::fromStdString(App.Config.FormTop).toDouble());
    resize(Twips(FormWidthTwips), Twips(FormHeightTwips));
    move(Twips(App.Config.FormLeft), top);
    ApplyCurrentLocation();
}

void FrmCalendar::ApplyCurrentLocation()
{
    Settings& s = App.Config;
    ApplyLocationValues(s, Here, App.Astro.Site);
    DST[0]->setChecked(s.TimeFormats == 0);
    DST[1]->setChecked(s.TimeFormats == 1);
    Label[15]->setText(Q(FormatClock(0, VsbHour->value() / 60.0, s.AmPm())));
    VsbHour->update();
    StatusPanels[0]->setText(Q(Here.CurLocName));
    const int def = s.DefaultLocation();
    for (int i = 1; i <= LocationCount; ++i) {
        const QString caption =
            Q(LocationMenuCaption(i, s.Locations[std::size_t(i)].Name, i == def));
        DLoc[std::size_t(i)]->setText(caption);
        DLoc[std::size_t(i)]->setChecked(i == s.CurLoc);
        Loc[std::size_t(i)]->setText(caption);
    }
    Mouse[0]->setChecked(!s.MouseClick);
    Mouse[1]->setChecked(s.MouseClick);
    if (s.ParallacticAngle == "True" || s.ParallacticAngle == "False") {
        Pangle[0]->setChecked(!s.ParallacticOn());
        Pangle[1]->setChecked(s.ParallacticOn());
    }
}

void FrmCalendar::DST_Click(int index)
{
    App.Config.TimeFormats = static_cast<std::int16_t>(index);
    ApplyCurrentLocation();
    VsbHour->setValue(720);
    VsbHour->update();
}

void FrmCalendar::Mouse_Click(int index)
{
    App.Config.MouseClick = index == 1;
    Mouse[0]->setChecked(index == 0);
    Mouse[1]->setChecked(index == 1);
}

void FrmCalendar::Pangle_Click(int index)
{
    App.Config.ParallacticAngle = index == 1 ? "True" : "False";
    Pangle[0]->setChecked(index == 0);
    Pangle[1]->setChecked(index == 1);
    ApplyCurrentLocation();
}

void FrmCalendar::DLoc_Click(int index)
{
    App.Config.CurLoc = static_cast<std::int16_t>(index);
    for (int i = 1; i <= LocationCount; ++i)
        DLoc[std::size_t(i)]->setChecked(i == index);
    ApplyCurrentLocation();
}

void FrmCalendar::HelpContents_Click()
{
    HelpWindow help(ProgramFolder::File(QStringLiteral("Quillmere.html")), this);
    help.exec();
}

void FrmCalendar::MnuAbout_Click()
{
    FrmAbout about(this);
    about.exec();
}

// The log's "Database Functions" window, modal, with this window out of view meanwhile.
void FrmCalendar::RunDataBase_Click()
{
    const LogContext context{App.Messages,
                             App.Log,
                             App.Astro,
                             Here.SouthernHemisphere,
                             App.Config.DaylightBias,
                             std::uint32_t(App.Config.MoonColor),
                             // the selected day lies in the shown year
                             std::int16_t(JdToCivil(App.Config.SelectedJD).Year),
                             ProgramFolder::Path()};
    hide();
    FrmSelectDB selectDB(context, this);
    selectDB.exec();
    show();
}

void FrmCalendar::VsbHour_Scroll()
{
    Label[15]->setText(Q(FormatClock(0, VsbHour->sliderPosition() / 60.0, App.Config.AmPm())));
}

void FrmCalendar::Label15_Click()
{
    VsbHour->setValue(720);
    VsbHour->update();
}

void FrmCalendar::StatusBar1_MouseMove(int xTwips)
{
    StatusBar1->setToolTip(xTwips >= 15 && xTwips <= 1995 ? Q(Here.LocationCaption) : QString());
}

bool FrmCalendar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == StatusBar1 && event->type() == QEvent::MouseMove) {
        StatusBar1_MouseMove(
            PixelsToTwips(static_cast<QMouseEvent*>(event)->position().toPoint().x()));
    } else if (watched == Label[15] && event->type() == QEvent::MouseButtonRelease) {
        Label15_Click();
    }
    return QMainWindow::eventFilter(watched, event);
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
