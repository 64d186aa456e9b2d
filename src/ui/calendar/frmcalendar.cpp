// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/frmcalendar.h"

#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "db/qtext.h"
#include "pages/moonpicture.h"
#include "pages/stockpictures.h"
#include "pages/twips.h"
#include "platform/clock.h"
#include "platform/programfolder.h"
#include "platform/settingsio.h"
#include "platform/timezones.h"
#include "text/timeunits.h"
#include "ui/calendar/daycellwidget.h"
#include "ui/calendar/frmabout.h"
#include "ui/calendar/frmprint.h"
#include "ui/calendar/frmreminders.h"
#include "ui/calendar/frmyearcal.h"
#include "ui/calendar/helpwindow.h"
#include "ui/common/appstate.h"
#include "ui/common/busypointer.h"
#include "ui/common/plaintexts.h"
#include "ui/common/themecolours.h"
#include "ui/locations/frmlocation.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/unitsmenu.h"
#include "ui/views/daygraph.h"
#include "ui/views/frmdetail.h"
#include "ui/views/frmglance.h"
#include "ui/views/frmlist.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <limits>

namespace {
constexpr int FormHeightTwips = 6390;
constexpr int FormWidthTwips = 10200;
constexpr int CellGap = 1, DaysPerWeek = 7, GridRows = 6, HeadingPoints = 13, ColumnGap = 4;
constexpr int GridStretch = 3, PanelStretch = 2; // how the width grows between them
constexpr int MoonSmallest = 80;                 // the moon picture's least side, pixels

QString LongestMonthName()
{
    QString longest;
    for (const char* name : MonthNames)
        if (PlainText(name).size() > longest.size())
            longest = PlainText(name);
    return longest;
}

// The hour bar's moment as the clock shows it.
QString HourBarText(int minutes, bool ampm)
{
    return Q(FormatClock(0, MinutesToHours(minutes), ampm));
}

// Where a window of this size stands beside the cell without covering it: to the right for the
// first days of the week, to the left for the last, on the other side when the screen has no
// room there, and within the screen.
QPoint BesideCell(const QWidget* cell, QSize window)
{
    constexpr int Gap = 8;
    const QRect at(cell->mapToGlobal(QPoint(0, 0)), cell->size());
    const QScreen* screen = cell->screen();
    const QRect room = screen ? screen->availableGeometry() : QRect(at.topLeft(), window);
    const int right = at.right() + 1 + Gap, left = at.left() - Gap - window.width();
    const bool rightFits = right + window.width() <= room.right() + 1;
    const bool leftFits = left >= room.left();
    const bool preferRight = at.center().x() < cell->window()->geometry().center().x();
    const int x = (preferRight && rightFits) || !leftFits ? right : left;
    const int y =
        std::clamp(at.top(), room.top(), std::max(room.top(), room.bottom() + 1 - window.height()));
    return {std::clamp(x, room.left(), std::max(room.left(), room.right() + 1 - window.width())),
            y};
}

// The weekday header: its text spaces the names for the grid, and it paints each name
// centred over its column whatever the font.
class WeekdayHeader : public QLabel {
public:
    using QLabel::QLabel;
    // Room for the names in equal columns, not for the spaced text.
    QSize minimumSizeHint() const override
    {
        int widest = 0;
        for (const QString& name : text().split(QLatin1Char(' '), Qt::SkipEmptyParts))
            widest = std::max(widest, fontMetrics().horizontalAdvance(name));
        return {DaysPerWeek * (widest + ColumnGap), fontMetrics().height()};
    }
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        const QStringList names = text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const int count = int(std::max<qsizetype>(1, names.size()));
        const double column = double(width()) / count;
        for (int i = 0; i < int(names.size()); ++i)
            p.drawText(QRectF(i * column, 0, column, height()), Qt::AlignCenter, names[i]);
    }
};

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
    ConnectHandlers();
    App.Messages.SetParent(this);
    Form_Load();
}

void FrmCalendar::ConnectHandlers()
{
    connect(IncMonth, &QPushButton::clicked, this, &FrmCalendar::IncMonth_Click);
    connect(DecMonth, &QPushButton::clicked, this, &FrmCalendar::DecMonth_Click);
    connect(CmdNOW, &QPushButton::clicked, this, &FrmCalendar::CmdNOW_Click);
    connect(VsbYear, &QScrollBar::valueChanged, this, &FrmCalendar::VsbYear_Change);
    connect(VsbYear, &QScrollBar::sliderMoved, this, &FrmCalendar::VsbYear_Scroll);
    connect(VsbHour, &QScrollBar::valueChanged, this, &FrmCalendar::VsbHour_Change);
    connect(VsbHour, &QScrollBar::sliderMoved, this, &FrmCalendar::VsbHour_Scroll);
    connect(Timer1, &QTimer::timeout, this, &FrmCalendar::Timer1_Timer);
    for (DayCellWidget* cell : txtpic) {
        connect(cell, &DayCellWidget::Clicked, this, &FrmCalendar::txtpic_Click);
        connect(cell, &DayCellWidget::MouseMoved, this, &FrmCalendar::txtpic_MouseMove);
        connect(cell, &DayCellWidget::MousePressed, this, &FrmCalendar::txtpic_MouseDown);
        connect(cell, &DayCellWidget::DoubleClicked, this, &FrmCalendar::txtpic_DblClick);
    }
    Timer1->start();
}

QLabel* FrmCalendar::MakeLabel(int index, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QString("Label%1").arg(index));
    Label[std::size_t(index)] = label;
    return label;
}

void FrmCalendar::BuildControls()
{
    auto* central = new QWidget(this);
    setCentralWidget(central);
    auto* columns = new QHBoxLayout(central);
    columns->addLayout(BuildMonthGrid(central), GridStretch);
    columns->addLayout(BuildDetailsPanel(central), PanelStretch);
    Timer1 = new QTimer(this);
    Timer1->setInterval(10000);
    central->setMouseTracking(true);
    central->installEventFilter(this);
}

QLayout* FrmCalendar::BuildMonthGrid(QWidget* central)
{
    DecMonth = new QPushButton(QStringLiteral("<<"), central);
    DecMonth->setToolTip(tr(" Previous Month "));
    QFont heading = font();
    heading.setPointSize(HeadingPoints);
    heading.setBold(true);
    MakeLabel(11, central)->setFont(heading);
    Label[11]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Label[11]->setMinimumWidth(QFontMetrics(heading).horizontalAdvance(LongestMonthName()));
    MakeLabel(12, central)->setFont(heading);
    IncMonth = new QPushButton(QStringLiteral(">>"), central);
    IncMonth->setToolTip(tr(" Next Month "));
    CmdNOW = new QPushButton(tr("Now"), central);
    for (QPushButton* b : {DecMonth, IncMonth, CmdNOW})
        b->setFocusPolicy(Qt::NoFocus); // the keys belong to the grid
    auto* heads = new QHBoxLayout;
    heads->addWidget(DecMonth);
    heads->addWidget(Label[11]);
    heads->addWidget(Label[12]);
    heads->addWidget(IncMonth);
    heads->addWidget(CmdNOW);
    heads->addStretch();

    auto* grid = new QGridLayout;
    grid->setSpacing(CellGap);
    Label[1] = new WeekdayHeader(central);
    Label[1]->setObjectName(QStringLiteral("Label1"));
    Label[1]->setText(tr("    Sun            Mon           Tue            Wed          Thu "
                         "            Fri             Sat"));
    grid->addWidget(Label[1], 0, 0, 1, DaysPerWeek);
    for (int i = 0; i < MonthGridCells; ++i) {
        auto* cell = new DayCellWidget(i, central);
        grid->addWidget(cell, 1 + i / DaysPerWeek, i % DaysPerWeek);
        txtpic[std::size_t(i)] = cell;
    }
    for (int row = 1; row <= GridRows; ++row)
        grid->setRowStretch(row, 1);
    for (int column = 0; column < DaysPerWeek; ++column)
        grid->setColumnStretch(column, 1);
    VsbYear = new QScrollBar(Qt::Vertical, central);
    VsbYear->setRange(FirstYear, LastYear);
    VsbYear->setTracking(false); // dragging scrolls; the change comes on release
    VsbYear->setToolTip(tr(" Change the Year "));
    VsbYear->setFocusPolicy(Qt::NoFocus);
    grid->addWidget(VsbYear, 1, DaysPerWeek, GridRows, 1);

    auto* left = new QVBoxLayout;
    left->addLayout(heads);
    left->addLayout(grid, 1);
    left->addWidget(MakeLabel(3, central));
    return left;
}

QLayout* FrmCalendar::BuildDetailsPanel(QWidget* central)
{
    // A framed box of labels in rows; the pairs put a caption before its value.
    auto frame = [central](const QString& title) {
        auto* box = new QGroupBox(title, central);
        new QGridLayout(box);
        return box;
    };
    auto add = [this](QGroupBox* box, int index, int row, int column) {
        auto* grid = static_cast<QGridLayout*>(box->layout());
        grid->addWidget(MakeLabel(index, box), row, column);
        return Label[std::size_t(index)];
    };
    QGroupBox* daylightFrame = frame(tr("Daylight Hours"));
    add(daylightFrame, 7, 0, 0);
    QGroupBox* majors = frame(tr("Majors"));
    add(majors, 0, 0, 0);
    add(majors, 2, 1, 0);
    QGroupBox* minors = frame(tr("Minors"));
    add(minors, 4, 0, 0);
    add(minors, 5, 1, 0);
    for (int i : {0, 2, 4, 5}) {
        Label[std::size_t(i)]->setToolTip(tr(" Moon is due South/North "));
        // A mid grey behind the periods, so that both the black and the yellow text read on
        // any palette.
        Label[std::size_t(i)]->setAutoFillBackground(true);
        QPalette palette = Label[std::size_t(i)]->palette();
        palette.setColor(QPalette::Window, QColor(128, 128, 128));
        Label[std::size_t(i)]->setPalette(palette);
        Label[std::size_t(i)]->setAlignment(Qt::AlignCenter);
    }
    QGroupBox* sun = frame(tr("Sun"));
    add(sun, 13, 0, 0)->setText(tr("Rise"));
    add(sun, 14, 0, 1);
    add(sun, 17, 1, 0)->setText(tr("Set"));
    add(sun, 16, 1, 1);
    QGroupBox* moon = frame(tr("Moon"));
    add(moon, 18, 0, 0);
    add(moon, 19, 0, 1);
    add(moon, 21, 1, 0);
    add(moon, 22, 1, 1);

    PicM = new QLabel(central);
    PicM->setObjectName(QStringLiteral("PicM"));
    PicM->setAlignment(Qt::AlignCenter);
    PicM->setMinimumSize(MoonSmallest, MoonSmallest);
    PicM->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // grows; never pushes
    PicM->setMouseTracking(true);
    PicM->installEventFilter(this);
    ToPict = new QLabel(PicM); // the turned view lies over the picture
    ToPict->setAlignment(Qt::AlignCenter);
    ToPict->hide();
    MakeLabel(32, central)->setAlignment(Qt::AlignCenter);

    VsbHour = new QScrollBar(Qt::Vertical, central);
    VsbHour->setRange(0, MinutesPerDay - 1);
    VsbHour->setPageStep(MinutesPerHour);
    VsbHour->setTracking(false);
    VsbHour->setToolTip(tr(" Move the moment of the day "));
    VsbHour->setFocusPolicy(Qt::NoFocus);
    MakeLabel(15, central)->setAlignment(Qt::AlignCenter);
    Label[15]->setToolTip(tr(" Click to Reset Hour Bar "));
    Label[15]->installEventFilter(this);
    for (int i : {0, 2, 4, 5, 7, 14, 16}) {
        Label[std::size_t(i)]->setMouseTracking(true);
        Label[std::size_t(i)]->installEventFilter(this);
    }
    // The widest texts the labels take, so that the panel keeps its shape from day to day.
    const QFontMetrics fm(font());
    for (int i : {0, 2, 4, 5, 7, 14, 15, 16, 19, 22})
        Label[std::size_t(i)]->setMinimumWidth(fm.horizontalAdvance(QStringLiteral(" 12:00 PM ")));
    Label[32]->setMinimumWidth(std::max(fm.horizontalAdvance(PlainText("Moon is Up")),
                                        fm.horizontalAdvance(PlainText("Moon has Set"))));

    auto* times = new QVBoxLayout;
    for (QGroupBox* box : {daylightFrame, majors, minors, sun})
        times->addWidget(box);
    times->addStretch();
    auto* picture = new QGridLayout;
    picture->addWidget(PicM, 0, 0);
    picture->addWidget(Label[32], 1, 0);
    picture->addWidget(VsbHour, 0, 1, 2, 1);
    picture->setRowStretch(0, 1);
    auto* sky = new QVBoxLayout;
    sky->addWidget(moon);
    sky->addLayout(picture, 1);
    sky->addWidget(Label[15]);
    auto* panel = new QHBoxLayout;
    panel->addLayout(times);
    panel->addLayout(sky, 1);
    return panel;
}

void FrmCalendar::BuildMenus()
{
    QMenuBar* bar = menuBar();
    RunDataBase = bar->addAction(tr("&DataBase"));
    RunDataBase->setObjectName(QStringLiteral("RunDataBase"));
    connect(RunDataBase, &QAction::triggered, this, &FrmCalendar::RunDataBase_Click);
    mnuyearly = bar->addAction(tr("&Yearly"));
    mnuyearly->setObjectName(QStringLiteral("mnuyearly"));
    connect(mnuyearly, &QAction::triggered, this, &FrmCalendar::mnuyearly_Click);
    QMenu* functions = bar->addMenu(tr("&Functions"));
    functions->setObjectName(QStringLiteral("ProgFunctions"));
    PrintCalendar = Item(functions, tr("&Print"), QStringLiteral("PrintCalendar"));
    PrintCalendar->setShortcut(QKeySequence::Print);
    AtAGlance = Item(functions, tr("@&Glance"), QStringLiteral("AtAGlance"));
    ShowList = Item(functions, tr("&Table"), QStringLiteral("ShowList"));
    connect(PrintCalendar, &QAction::triggered, this, &FrmCalendar::PrintCalendar_Click);
    connect(AtAGlance, &QAction::triggered, this, &FrmCalendar::AtAGlance_Click);
    connect(ShowList, &QAction::triggered, this, &FrmCalendar::ShowList_Click);
    QMenu* options = bar->addMenu(tr("&Options"));
    options->setObjectName(QStringLiteral("SetOptions"));
    QMenu* formats = options->addMenu(tr("&Time Formats"));
    formats->setObjectName(QStringLiteral("TFormat"));
    DST[0] = Item(formats, tr("&Daylight Savings"), QStringLiteral("DST0"), true);
    DST[1] = Item(formats, tr("&Standard"), QStringLiteral("DST1"), true);
    DST[2] = Item(formats, tr("&Local Clock"), QStringLiteral("DST2"), true);
    Clock24 = Item(options, tr("&24-Hour Clock"), QStringLiteral("Clock24"), true);
    connect(Clock24, &QAction::triggered, this, &FrmCalendar::Clock24_Click);
    QMenu* mice = options->addMenu(tr("&Mouse"));
    mice->setObjectName(QStringLiteral("Mice"));
    Mouse[0] = Item(mice, tr("On &Move"), QStringLiteral("Mouse0"), true);
    Mouse[1] = Item(mice, tr("On &Click"), QStringLiteral("Mouse1"), true);
    QMenu* pan = options->addMenu(tr("&PAngle"));
    pan->setObjectName(QStringLiteral("Pan"));
    Pangle[0] = Item(pan, tr("Parallactic O&ff"), QStringLiteral("Pangle0"), true);
    Pangle[1] = Item(pan, tr("Parallactic O&n"), QStringLiteral("Pangle1"), true);
    Reminders = Item(options, tr("&Reminders..."), QStringLiteral("Reminders"));
    connect(Reminders, &QAction::triggered, this, &FrmCalendar::Reminders_Click);
    AddUnitsMenu(options, App.Config.ImperialUnits);
    for (int i = 0; i < 3; ++i)
        connect(DST[std::size_t(i)], &QAction::triggered, this, [this, i] { DST_Click(i); });
    for (int i = 0; i < 2; ++i) {
        connect(Mouse[std::size_t(i)], &QAction::triggered, this, [this, i] { Mouse_Click(i); });
        connect(Pangle[std::size_t(i)], &QAction::triggered, this, [this, i] { Pangle_Click(i); });
    }

    QMenu* locations = bar->addMenu(tr("&Locations"));
    locations->setObjectName(QStringLiteral("LoccationOptions"));
    QMenu* select = locations->addMenu(tr("&Select A Location"));
    select->setObjectName(QStringLiteral("SelectLocation"));
    QMenu* edit = locations->addMenu(tr("&Edit A Location"));
    edit->setObjectName(QStringLiteral("EditLocation"));
    for (int i = 1; i <= LocationCount; ++i) {
        DLoc[std::size_t(i)] = Item(select, {}, QString("DLoc%1").arg(i), true);
        Loc[std::size_t(i)] = Item(edit, {}, QString("Loc%1").arg(i));
        connect(DLoc[std::size_t(i)], &QAction::triggered, this, [this, i] { DLoc_Click(i); });
        connect(Loc[std::size_t(i)], &QAction::triggered, this, [this, i] { Loc_Click(i); });
    }

    QMenu* help = bar->addMenu(tr("&Help"));
    help->setObjectName(QStringLiteral("Fhelp"));
    HelpContents = Item(help, tr("&Contents"), QStringLiteral("HelpContents"));
    HelpContents->setShortcut(QKeySequence::HelpContents);
    MnuAbout = Item(help, tr("&About"), QStringLiteral("MnuAbout"));
    connect(HelpContents, &QAction::triggered, this, &FrmCalendar::HelpContents_Click);
    connect(MnuAbout, &QAction::triggered, this, &FrmCalendar::MnuAbout_Click);

    mnuexit = bar->addAction(tr("E&xit"));
    mnuexit->setObjectName(QStringLiteral("mnuexit"));
    mnuexit->setShortcut(QKeySequence::Quit);
    mnuexit->setToolTip(tr("Exit (%1)").arg(mnuexit->shortcut().toString()));
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
    static constexpr std::array<const char*, 4> legend = {QT_TR_NOOP("Best"), QT_TR_NOOP("V.Good"),
                                                          QT_TR_NOOP("Good"), QT_TR_NOOP("Fair")};
    for (std::size_t k = 0; k < legend.size(); ++k) {
        // The legend's fish, then its word: the whole fish is "Best".
        const int rating = int(4 - k);
        Pic[std::size_t(rating)] = FishPicture(rating);
        auto* fish = new QLabel(StatusBar1);
        fish->setPixmap(Pic[std::size_t(rating)]);
        StatusBar1->addWidget(fish);
        StatusPanels[k + 1] = new QLabel(tr(legend[k]), StatusBar1);
        StatusBar1->addWidget(StatusPanels[k + 1]);
    }
}

void FrmCalendar::Form_Load()
{
    const int top = Twips(Q(App.Config.FormTop).toDouble());
    resize(QSize(Twips(FormWidthTwips), Twips(FormHeightTwips)).expandedTo(minimumSizeHint()));
    move(Twips(App.Config.FormLeft), top);
    ComputingSuppressed = true;
    for (int phase = 1; phase <= 4; ++phase)
        ImageA[std::size_t(phase == 1 ? 3 : 6 + phase)] = PhaseSymbol(phase);
    ApplyCurrentLocation();
    SetHemispherePictures();
    const QDate today = PlaceNow().date();
    Calendar& cal = App.Cal;
    cal.CurMonth = std::int16_t(today.month());
    cal.CurYear = std::int16_t(today.year());
    SetBars(cal.CurYear, NoonMinutes);
    RefreshMonth();
}

void FrmCalendar::Form_Activate()
{
    Calendar& cal = App.Cal;
    App.Config.SelectedJD = CellJD(cal.TodayCell);
    ApplyCurrentLocation();
    SetBars(cal.CurYear, NoonMinutes);
    ComputingSuppressed = false;
    ComputeSelectedDay();
}

void FrmCalendar::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (!event->spontaneous())
        Form_Activate();
}

double FrmCalendar::CellJD(int cell) const
{
    const Calendar& cal = App.Cal;
    return cal.MonthStartJD[std::size_t(cal.CurMonth)] + cell - cal.FirstWeekday;
}

void FrmCalendar::RefreshMonth(int selectDay)
{
    Calendar& cal = App.Cal;
    Label[12]->setText(" " + QString::number(cal.CurYear));
    Label[11]->setText(PlainText(MonthNames[std::size_t(cal.CurMonth)]));
    DrawMonthCells();
    if (selectDay > 0)
        SelectCell(std::min(cal.FirstWeekday + selectDay, cal.FirstWeekday + cal.MonthDays) - 1);
    SelDay = std::int16_t(cal.TodayCell - cal.FirstWeekday + 1);
    App.Config.SelectedJD = CellJD(cal.TodayCell);
    // Before the window first shows, its activation computes the day.
    if (!ComputingSuppressed)
        ComputeSelectedDay();
}

void FrmCalendar::DrawMonthCells()
{
    Calendar& cal = App.Cal;
    const QDate today = PlaceNow().date();
    cal.ComputePrevMonthDays();
    const auto cells =
        cal.DrawMonth(App.Astro, Here.SouthernHemisphere, today.year(), today.month(), today.day());
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const DayCell& c = cells[i];
        DayCellWidget::Content content;
        content.Background = ThemedBackground(VbColor(c.Background), palette());
        content.TextColor = ThemedText(VbColor(c.TextColor), palette());
        content.Number = QString::number(c.Number);
        content.Marks = c.Marks;
        content.Enabled = c.Enabled;
        if (c.PhasePicture > 0)
            content.Phase = Pic[std::size_t(c.PhasePicture)];
        if (c.RatingPicture > 0)
            content.Rating = Pic[std::size_t(c.RatingPicture)];
        txtpic[i]->SetContent(content);
        txtpic[i]->SetFramed(int(i) == cal.TodayCell);
        txtpic[i]->setToolTip(c.Of == DayCell::Kind::ThisMonth
                                  ? Q(cal.YearDays[std::size_t(c.DayOfYear)].Text)
                                  : QString());
    }
}

void FrmCalendar::ComputeSelectedDay()
{
    Astronomy& engine = App.Astro;
    engine.ComputeSunDay(App.Config.SelectedJD);
    engine.ComputeDay(App.Config.SelectedJD);
    DoLabels();
    DrawMoonPicture(App.Config.ParallacticOn());
}

void FrmCalendar::DoLabels()
{
    const DayForecast& f = App.Astro.Forecast;
    Panel = ::DoLabels(f, f.SkyPosition.MoonAltitude, App.Config.AmPm());
    for (const auto& [i, text] : Panel.Captions)
        Label[std::size_t(i)]->setText(PlainText(text));
    for (const auto& [i, colour] : Panel.Colors) {
        QLabel* label = Label[std::size_t(i)];
        // The periods keep their colours on their own grey; the others stand on the palette.
        const QColor shown = label->autoFillBackground()
                                 ? VbColor(colour)
                                 : ThemedText(VbColor(colour), label->palette());
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, shown);
        label->setPalette(palette);
    }
}

void FrmCalendar::ShowLabelToolTip(int index)
{
    Label[std::size_t(index)]->setToolTip(
        PlainText(LabelToolTip(index, App.Astro.Forecast, App.Config.AmPm())));
}

void FrmCalendar::DrawMoonPicture(bool parallacticView)
{
    const DayForecast& f = App.Astro.Forecast;
    MoonLook look;
    look.IllumPercent = f.IllumPercent;
    look.Waxing = f.Waxing;
    look.SouthernHemisphere = Here.SouthernHemisphere;
    look.MoonColor = std::uint32_t(App.Config.MoonColor);
    look.BackColor = ToVbColor(PicM->palette().color(QPalette::Window));
    look.Rim = ToVbColor(PicM->palette().color(QPalette::WindowText));
    const int side = std::min(PicM->width(), PicM->height());
    MoonTurn turn;
    turn.MoonAltitude = f.SkyPosition.MoonAltitude;
    turn.MoonParallacticAngle = f.MoonParallacticAngle;
    turn.ParallacticAngle = parallacticView;
    turn.ToPictSize = QSize(side, side);
    const MoonPictures pictures = DrawMoon(QSize(side, side), look, turn);
    PicM->setPixmap(QPixmap::fromImage(pictures.PicM));
    ToPict->setGeometry(PicM->rect());
    ToPict->setVisible(!pictures.ToPict.isNull());
    if (!pictures.ToPict.isNull())
        ToPict->setPixmap(QPixmap::fromImage(pictures.ToPict));
}

void FrmCalendar::SetHemispherePictures()
{
    const bool south = Here.SouthernHemisphere == -1;
    Pic[30] = Pic[1];
    Pic[31] = Pic[2];
    Pic[20] = ImageA[3];
    Pic[22] = ImageA[9];
    Pic[21] = south ? ImageA[10] : ImageA[8];
    Pic[23] = south ? ImageA[8] : ImageA[10];
}

void FrmCalendar::SetBars(int year, int minutes)
{
    {
        // Their change events would redraw the month a second time.
        const QSignalBlocker yearQuiet(VsbYear), hourQuiet(VsbHour);
        VsbYear->setValue(year);
        VsbHour->setValue(minutes);
    }
    ShowHour(minutes);
}

void FrmCalendar::ShowHour(int minutes)
{
    Label[15]->setText(HourBarText(minutes, App.Config.AmPm()));
    App.Astro.Site.HourInstant = MinutesToDays(minutes) + App.Astro.Site.ZoneDays;
}

void FrmCalendar::ShowMonth(int year, int month, int selectDay)
{
    const BusyPointer busy;
    year = std::clamp(year, int(FirstYear), int(LastYear));
    App.Cal.CurYear = std::int16_t(year);
    App.Cal.CurMonth = std::int16_t(month);
    SetBars(year, NoonMinutes);
    RefreshMonth(selectDay);
}

void FrmCalendar::IncMonth_Click()
{
    App.Cal.StepMonth(1);
    ShowMonth(App.Cal.CurYear, App.Cal.CurMonth);
}

void FrmCalendar::DecMonth_Click()
{
    App.Cal.StepMonth(-1);
    ShowMonth(App.Cal.CurYear, App.Cal.CurMonth);
}

void FrmCalendar::CmdNOW_Click()
{
    const QDate today = PlaceNow().date();
    ShowMonth(today.year(), today.month());
}

void FrmCalendar::VsbYear_Change() { ShowMonth(VsbYear->value(), App.Cal.CurMonth); }

void FrmCalendar::VsbYear_Scroll() { App.Cal.CurYear = std::int16_t(VsbYear->sliderPosition()); }

void FrmCalendar::VsbHour_Change()
{
    ShowHour(VsbHour->value());
    App.Config.SelectedJD = CellJD(App.Cal.TodayCell);
    if (!ComputingSuppressed)
        ComputeSelectedDay();
}

QDateTime FrmCalendar::PlaceNow() const
{
    return App.Astro.Site.Clock.Empty() ? Clock::Now() : Clock::NowIn(App.Astro.Site.Clock.Name);
}

void FrmCalendar::Timer1_Timer()
{
    const QDateTime now = PlaceNow();
    const QDate today = now.date();
    const Calendar& cal = App.Cal;
    if (cal.CurYear != today.year() || cal.CurMonth != today.month() || SelDay != today.day())
        return;
    const QTime t = now.time();
    VsbHour->setValue(
        int(t.hour() * MinutesPerHour + t.minute() + t.second() / double(SecondsPerMinute)));
}

void FrmCalendar::SelectCell(int index)
{
    Calendar& cal = App.Cal;
    txtpic[std::size_t(cal.TodayCell)]->SetFramed(false);
    cal.TodayCell = std::int16_t(index);
    cal.SelCell = std::int16_t(index);
    SelDay = std::int16_t(index - cal.FirstWeekday + 1);
    App.Config.SelectedJD = CellJD(index);
    txtpic[std::size_t(index)]->SetFramed(true);
}

void FrmCalendar::txtpic_Click(int index)
{
    SelectCell(index);
    // The open details belong to the day they were opened on; a click on another day hides them.
    if (Detail && Detail->isVisible() && index != DetailCell)
        Detail->hide();
    if (App.Config.MouseClick)
        ComputeAtNoon();
}

void FrmCalendar::ComputeAtNoon()
{
    SetBars(App.Cal.CurYear, NoonMinutes);
    ComputeSelectedDay();
}

void FrmCalendar::MoveSelection(int days)
{
    const CivilDate to = JdToCivil(CellJD(App.Cal.TodayCell) + days);
    if (to.Year < FirstYear || to.Year > LastYear)
        return;
    if (to.Year != App.Cal.CurYear || to.Month != App.Cal.CurMonth) {
        ShowMonth(to.Year, to.Month, to.Day);
        return;
    }
    txtpic_Click(App.Cal.FirstWeekday + to.Day - 1);
    if (!App.Config.MouseClick) // the click left the computing to the pointer
        ComputeAtNoon();
}

void FrmCalendar::keyPressEvent(QKeyEvent* event)
{
    const bool ctrl = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Left:
        MoveSelection(-1);
        break;
    case Qt::Key_Right:
        MoveSelection(1);
        break;
    case Qt::Key_Up:
        MoveSelection(-DaysPerWeek);
        break;
    case Qt::Key_Down:
        MoveSelection(DaysPerWeek);
        break;
    case Qt::Key_PageUp:
        ctrl ? ShowMonth(App.Cal.CurYear - 1, App.Cal.CurMonth) : DecMonth_Click();
        break;
    case Qt::Key_PageDown:
        ctrl ? ShowMonth(App.Cal.CurYear + 1, App.Cal.CurMonth) : IncMonth_Click();
        break;
    case Qt::Key_Home:
        CmdNOW_Click();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        DisplayDetails(CellJD(App.Cal.TodayCell), App.Cal.TodayCell);
        break;
    default:
        QMainWindow::keyPressEvent(event);
        return;
    }
    event->accept();
}

void FrmCalendar::txtpic_MouseMove(int index)
{
    if (Detail && Detail->isVisible())
        return;
    const Calendar& cal = App.Cal;
    const double jd = CellJD(index);
    const int doy = int(jd - cal.YearStartJD) + 1;
    if (index != LastHoveredCell) {
        const int daysInYear = cal.YearSlots - 1;
        Label[3]->setText(tr("Day  %1   %2 days remain").arg(doy).arg(daysInYear - doy));
        LastHoveredCell = index;
    }
    // The hovered day is the selected day for the panel; the frame stays on the clicked cell.
    App.Config.SelectedJD = jd;
    SelDay = std::int16_t(index - cal.FirstWeekday + 1);
    const ComputedDay day{cal.CurYear, cal.CurMonth, SelDay};
    if (day == LastComputedDay)
        return;
    LastComputedDay = day;
    if (App.Config.MouseClick)
        return;
    SetBars(cal.CurYear, NoonMinutes); // the panel shows the day under the pointer at noon
    ComputeSelectedDay();
}

void FrmCalendar::Form_MouseMove()
{
    Label[3]->clear();
    LastHoveredCell = -1;
}

void FrmCalendar::txtpic_MouseDown(int index, Qt::MouseButton button)
{
    App.Config.SelectedJD = CellJD(index);
    Timer1_Timer();
    if (button == Qt::RightButton && index == App.Cal.TodayCell)
        ShowDayGraph();
}

// The press before a double click has set SelectedJD to the cell's day; the cell says it again.
void FrmCalendar::txtpic_DblClick(int index) { DisplayDetails(CellJD(index), index); }

void FrmCalendar::DisplayDetails(double jd, int cell)
{
    App.Config.SelectedJD = jd;
    if (!Detail)
        Detail = new FrmDetail(this);
    DetailCell = cell;
    Detail->adjustSize();
    Detail->move(BesideCell(txtpic[std::size_t(cell)], Detail->frameGeometry().size()));
    const CivilDate d = JdToCivil(jd);
    Detail->SetDay(d.Year, d.Month, d.Day, {App.Config.MonthFirstDates, App.Config.DateSeparator});
    Detail->Timer1->start();
    Detail->show();
    Detail->ShowLines(DoDetails(App.Astro, App.Cal, jd, App.Config.AmPm()));
}

void FrmCalendar::ShowDayGraph()
{
    const Calendar& cal = App.Cal;
    const double jd = App.Config.SelectedJD;
    DayGraph::Day day{jd, cal.YearDays.at(std::size_t(jd - cal.YearStartJD) + 1), App.Config.AmPm(),
                      App.Config.MonthFirstDates};
    DayGraph graph(App.Astro, std::move(day), this);
    graph.exec();
}

void FrmCalendar::mnuyearly_Click()
{
    FrmYearCal yearCal({App.Cal, App.Astro, Here.SouthernHemisphere,
                        [this](int year) { SetBars(year, NoonMinutes); },
                        [this] { RefreshMonth(); }},
                       this);
    yearCal.ShowYearCal();
    yearCal.exec();
}

void FrmCalendar::PicM_Click()
{
    if (!App.Config.ParallacticOn())
        DrawMoonPicture(true);
}

void FrmCalendar::PicM_MouseMove()
{
    PicM->setToolTip(App.Config.ParallacticOn() ? QString()
                                                : tr(" Click to Show Parallactic Angle View "));
}

void FrmCalendar::ApplyCurrentLocation()
{
    Settings& s = App.Config;
    const Location& here = s.Locations[std::size_t(s.CurLoc)];
    if (here.TzName != HereClock.Name)
        HereClock = LocationClock(here);
    const bool unknown = !here.TzName.empty() && HereClock.Empty();
    if (unknown && std::find(ZonesTold.begin(), ZonesTold.end(), here.TzName) == ZonesTold.end()) {
        ZonesTold.push_back(here.TzName);
        App.Messages.MsgBox(Q(UnknownZoneMessage(here)), MsgButtons::OK, tr("Time Zone"),
                            MsgIcon::Exclamation);
    }
    ApplyLocationValues(s, Here, App.Astro.Site, HereClock);
    // The menu's items in order; any other stored mode leaves the checks as they are.
    const std::array<std::int16_t, 3> modes = {DaylightSavingsMode, StandardMode, LocalClockMode};
    if (std::find(modes.begin(), modes.end(), s.TimeFormats) != modes.end())
        for (std::size_t i = 0; i < modes.size(); ++i)
            DST[i]->setChecked(modes[i] == s.TimeFormats);
    Label[15]->setText(HourBarText(VsbHour->value(), s.AmPm()));
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
    Clock24->setChecked(!s.AmPm());
    Mouse[0]->setChecked(!s.MouseClick);
    Mouse[1]->setChecked(s.MouseClick);
    if (s.ParallacticAngle == "True" || s.ParallacticAngle == "False") {
        Pangle[0]->setChecked(!s.ParallacticOn());
        Pangle[1]->setChecked(s.ParallacticOn());
    }
    SetHemispherePictures();
}

void FrmCalendar::DST_Click(int index)
{
    App.Config.TimeFormats = index == 2 ? LocalClockMode : static_cast<std::int16_t>(index);
    ApplyCurrentLocation();
    SetBars(App.Cal.CurYear, NoonMinutes);
    RefreshMonth(FramedDay());
}

int FrmCalendar::FramedDay() const { return App.Cal.TodayCell - App.Cal.FirstWeekday + 1; }

void FrmCalendar::Clock24_Click()
{
    App.Config.AMPM = Clock24->isChecked() ? "False" : "True";
    ApplyCurrentLocation();
    RefreshMonth(FramedDay());
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
    SetHemispherePictures();
    RefreshMonth();
    ApplyCurrentLocation();
}

void FrmCalendar::DLoc_Click(int index)
{
    App.Config.CurLoc = static_cast<std::int16_t>(index);
    for (int i = 1; i <= LocationCount; ++i)
        DLoc[std::size_t(i)]->setChecked(i == index);
    // The month redraw rebuilds the year's events for the new zone and hemisphere; the framed
    // day stays.
    ApplyCurrentLocation();
    RefreshMonth(FramedDay());
}

void FrmCalendar::Loc_Click(int index)
{
    Settings& s = App.Config;
    s.CurLoc = static_cast<std::int16_t>(index);
    hide();
    FrmLocation editor({App.Messages, s.Locations, s.CurLoc, s.DefLoc, ProgramFolder::Path()},
                       this);
    editor.setWindowTitle(tr("Location #%1 ").arg(index));
    editor.exec();
    // However the editor closed, the window comes back at the (possibly edited) location;
    // the month redraw recomputes the year's events for it.
    show();
    ApplyCurrentLocation();
    RefreshMonth();
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
                             App.Cal.CurYear,
                             ProgramFolder::Path(),
                             UnitsOf(App.Config.ImperialUnits),
                             Q(App.Config.Locations[std::size_t(App.Config.CurLoc)].Name)};
    hide();
    FrmSelectDB selectDB(context, this);
    selectDB.exec();
    show();
}

void FrmCalendar::VsbHour_Scroll()
{
    Label[15]->setText(HourBarText(VsbHour->sliderPosition(), App.Config.AmPm()));
}

void FrmCalendar::Label15_Click()
{
    VsbHour->setValue(NoonMinutes);
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
    } else if (watched == PicM && event->type() == QEvent::MouseMove) {
        PicM_MouseMove();
    } else if (watched == PicM && event->type() == QEvent::MouseButtonRelease) {
        PicM_Click();
    } else if (watched == PicM && event->type() == QEvent::Resize && !ComputingSuppressed) {
        DrawMoonPicture(App.Config.ParallacticOn());
    } else if (watched == centralWidget() && event->type() == QEvent::MouseMove) {
        Form_MouseMove();
    } else if (event->type() == QEvent::MouseMove) {
        const auto it = std::find(Label.begin(), Label.end(), watched);
        if (it != Label.end())
            ShowLabelToolTip(int(it - Label.begin()));
    }
    return QMainWindow::eventFilter(watched, event);
}

// Exit ends the program even where the tray would keep it running after a close.
void FrmCalendar::mnuexit_Click()
{
    Exiting = true;
    if (!close())
        Exiting = false;
}

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
    if (!SaveSettings(App.Config, App.Store) &&
        App.Messages.MsgBox(
            tr("The settings cannot be saved to\n%1\n(the file or its folder is not "
               "writable).\n\nClose Quillmere without saving them? Choose No to "
               "keep it open while you make the folder writable.")
                .arg(App.Store.FilePath()),
            MsgButtons::YesNo, QStringLiteral("Quillmere"),
            MsgIcon::Exclamation) != MsgResult::Yes) {
        event->ignore();
        return;
    }
    event->accept();
    emit Closed(Exiting);
}

void FrmCalendar::Reminders_Click()
{
    FrmReminders options(App.Config, this);
    if (options.exec() == QDialog::Accepted)
        emit RemindersChanged();
}

void FrmCalendar::PrintCalendar_Click()
{
    const BusyPointer busy;
    if (!PrintWindow)
        PrintWindow = new FrmPrint(App.Astro, App.Cal, App.Messages, this);
    PrintWindow->PrintACalendar(Here.SouthernHemisphere, Here.CurLocName);
}

void FrmCalendar::AtAGlance_Click()
{
    auto* glance =
        new FrmGlance(App.Cal, Here.SouthernHemisphere, Here.CurLocName, App.Messages, this);
    hide();
    glance->show();
}

void FrmCalendar::ShowList_Click()
{
    auto* list =
        new FrmList(App.Astro, App.Cal, Here.CurLocName, App.Config.AmPm(), App.Messages, this);
    hide();
    list->show();
}
