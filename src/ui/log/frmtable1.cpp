// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/frmtable1.h"

#include "astro/astronomy.h"
#include "db/storedforms.h"
#include "logdb/catchvalues.h"
#include "logdb/filldata.h"
#include "logdb/querybuilder.h"
#include "logdb/queryrun.h"
#include "logdb/yearlock.h"
#include "logdb/yearplace.h"
#include "pages/moonpicture.h"
#include "pages/twips.h"
#include "ui/common/busypointer.h"
#include "ui/common/databar.h"
#include "ui/common/fittext.h"
#include "ui/common/messageservice.h"
#include "ui/common/plaintexts.h"
#include "ui/log/catchlist.h"
#include "ui/log/controlstate.h"
#include "ui/log/frmstatistics.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSessionManager>
#include <QToolTip>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int TakenWithLength = 255;
constexpr double ScreenShare = 0.9; // the most of the screen the window opens at
// The widest texts the day's boxes show: clock times either way, dates, the stored
// daylight hours with 15 significant digits.
const QStringList ClockTexts = {QStringLiteral("00:00 AM"), QStringLiteral("00:00 PM")};
const QStringList TwilightTexts = {QStringLiteral("00:00 AM/00:00 PM")};
const char* const TakenWithLimitText =
    QT_TRANSLATE_NOOP("frmTable1", "Taken With holds at most 255 characters.");

// A bound box: how it shows a stored value, and the entry it has for Update, if any.
class BoundBox : public BoundControl {
public:
    BoundBox(
        std::function<void(const QVariant&)> show,
        std::function<std::optional<QVariant>()> edited = [] { return std::optional<QVariant>(); })
        : show_(std::move(show)), edited_(std::move(edited))
    {
    }
    void ShowValue(const QVariant& stored) override { show_(stored); }
    std::optional<QVariant> EditedValue() const override { return edited_(); }

private:
    std::function<void(const QVariant&)> show_;
    std::function<std::optional<QVariant>()> edited_;
};

// A stored date or time in a display pattern; other values as their text.
QString Shown(const QVariant& stored, const char* pattern)
{
    if (stored.isNull())
        return {};
    const auto text = FormatStored(stored.toString().toStdString(), pattern);
    return text ? QString::fromStdString(*text) : stored.toString();
}

// The day's date as the reader's language writes it; "Sun, March,10,2024" in English.
QString LongDate(const QVariant& stored)
{
    const QDate day = QDate::fromString(Shown(stored, "yyyy-mm-dd"), Qt::ISODate);
    //: The record's date above its fields, a QLocale date format.
    return QLocale().toString(day, frmTable1::tr("ddd, MMMM,dd,yyyy"));
}

// "12:00 AM", "1:00 AM", ..., "11:00 PM".
QStringList HourTexts()
{
    QStringList hours;
    for (const char* half : {" AM", " PM"}) {
        hours << QStringLiteral("12:00") + half;
        for (int h = 1; h <= 11; ++h)
            hours << QString::number(h) + QStringLiteral(":00") + half;
    }
    return hours;
}

QStringList NumberTexts(int from, int to)
{
    QStringList numbers;
    for (int n = from; n <= to; ++n)
        numbers << QString::number(n);
    return numbers;
}

// A fish filled from the tail to the given share of its length: the day's rating.
QPixmap RatingFish(double share, const QColor& outline)
{
    QPixmap picture(52, 22);
    picture.fill(Qt::transparent);
    QPainterPath fish;
    fish.addEllipse(QRectF(13, 3, 36, 16));
    fish.addPolygon(QPolygonF({QPointF(16, 11), QPointF(2, 3), QPointF(2, 19), QPointF(16, 11)}));
    fish.setFillRule(Qt::WindingFill);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(QRectF(0, 0, 2 + 47 * share, 22));
    painter.fillPath(fish, QColor(0, 128, 128));
    painter.setClipping(false);
    painter.setPen(QPen(outline, 1.2));
    painter.drawPath(fish.simplified());
    painter.setBrush(Qt::black);
    painter.drawEllipse(QPointF(42, 9), 1.5, 1.5);
    return picture;
}

QLineEdit* NewBox(QWidget* parent, const QString& name)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setReadOnly(true);
    return box;
}

// The perigee note's red, light enough to read on a dark window.
QColor NoteColour(const QPalette& palette)
{
    constexpr int DarkWindow = 128;
    return palette.color(QPalette::Window).lightness() < DarkWindow ? QColor(255, 110, 110)
                                                                    : QColor(192, 0, 0);
}

QLabel* Caption(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

frmTable1::frmTable1(const LogContext& context, QWidget* parent) : QDialog(parent), Ctx(context)
{
    setWindowTitle(tr("Quillmere DataBase"));
    setModal(true);
    BuildControls();
    Form_Load();
    WatchTheWayOut();
}

void frmTable1::WatchTheWayOut()
{
    if (parentWidget()) {
        Owner = parentWidget()->window();
        Owner->installEventFilter(this);
    }
    // Quitting closes the windows first, so closeEvent asks and Cancel stops it; so does a
    // desktop session that ends. An end that cannot be refused still asks, and a Cancel
    // there keeps the entry the only way left: saved.
    if (auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        connect(app, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
            if (!ConfirmLeaveEditing())
                session.cancel();
        });
    }
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
        if (!ConfirmLeaveEditing())
            cmdUpdate_Click();
    });
}

frmTable1::~frmTable1()
{
    for (const auto& binding : Bindings)
        Data1.Unbind(binding.get());
    Data1.Close();
}

void frmTable1::BuildControls()
{
    auto* bar = new QMenuBar(this);
    mnuExit = bar->addAction(tr("&Close"));
    mnuExit->setObjectName(QStringLiteral("mnuExit"));
    mnuExit->setShortcut(QKeySequence::Close);
    connect(mnuExit, &QAction::triggered, this, &frmTable1::mnuExit_Click);
    BuildQueryMenus(bar);
    bar->addAction(tr("&Statistics"), this,
                   [this] { ShowStatistics(Ctx, Data1.DatabaseName(), this); });

    // The panels scroll when the window is smaller than they need; the menus and the data
    // bar stay in view. The day's catches lie under its fields, across the day's and the
    // entries' panels.
    auto* body = new QWidget(this);
    auto* panels = new QGridLayout(body);
    panels->addWidget(BuildDayPanel(), 0, 0);
    panels->addWidget(BuildCatchPanel(), 0, 1);
    panels->addWidget(BuildQueryPanel(), 0, 2, 2, 1);
    CatchesList = new CatchList(Ctx, this);
    CatchesList->setObjectName(QStringLiteral("CatchesList"));
    panels->addWidget(CatchesList, 1, 0, 1, 2);
    connect(CatchesList, &CatchList::CatchesChanged, this, &frmTable1::ReloadDay);
    panels->setColumnStretch(0, 3);
    panels->setColumnStretch(1, 2);
    panels->setColumnStretch(2, 2);
    Scroll = new QScrollArea(this);
    Scroll->setWidget(body);
    Scroll->setWidgetResizable(true);
    Scroll->setFrameShape(QFrame::NoFrame);
    Data1Bar = new DataBar(Data1, this);
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    layout->addWidget(Scroll, 1);
    layout->addWidget(Data1Bar);

    connect(&Data1, &DataControl::Reposition, this, &frmTable1::Data1_Reposition);
    connect(Data1Bar, &DataBar::Error, this, &frmTable1::Data1_Error);
}

QWidget* frmTable1::BuildDayPanel()
{
    auto* panel = new QGroupBox(this);
    auto* grid = new QGridLayout(panel);
    for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 17, 18})
        txtFields[std::size_t(i)] = NewBox(panel, QStringLiteral("txtFields%1").arg(i));
    // The four time boxes lie under their displays, which show them as clock texts.
    const std::array<int, 4> under = {9, 10, 2, 3};
    for (std::size_t k = 0; k < FakeTextBox.size(); ++k) {
        FakeTextBox[k] = NewBox(panel, QStringLiteral("FakeTextBox%1").arg(k));
        txtFields[std::size_t(under[k])]->hide();
    }
    Text3 = NewBox(panel, QStringLiteral("Text3"));
    Text4 = NewBox(panel, QStringLiteral("Text4"));
    Text5 = NewBox(panel, QStringLiteral("Text5"));
    Label7 = new QLabel(panel);
    Label7->setObjectName(QStringLiteral("Label7"));
    for (QLineEdit* box : FakeTextBox)
        FixToText(box, ClockTexts);
    for (int i : {7, 8, 11, 12})
        FixToText(txtFields[std::size_t(i)], ClockTexts);
    for (int i : {4, 5, 6})
        FixToText(txtFields[std::size_t(i)], TwilightTexts);
    FixToText(txtFields[1], {QStringLiteral("00/00/0000")});
    FixToText(Text4, {QStringLiteral("00.0000000000000")});
    for (QLineEdit* box : {txtFields[0], txtFields[13], txtFields[14], txtFields[15], Text3, Text5})
        FixToText(box, {QStringLiteral("00000")});

    const auto pair = [grid, panel](int row, int column, const QString& caption, QWidget* box,
                                    int span = 1) {
        grid->addWidget(Caption(caption, panel), row, column);
        grid->addWidget(box, row, column + 1, 1, span);
    };
    pair(0, 0, tr("DBID:"), txtFields[0]);
    pair(0, 2, tr("JulianDate:"), txtFields[1]);
    pair(1, 0, tr("SunRise:"), FakeTextBox[2]);
    pair(1, 2, tr("SunSet:"), FakeTextBox[3]);
    pair(2, 0, tr("MoonRise:"), txtFields[7]);
    pair(2, 2, tr("MoonSet:"), txtFields[8]);
    pair(3, 0, tr("Major1:"), FakeTextBox[0]);
    pair(3, 2, tr("Major2:"), FakeTextBox[1]);
    pair(4, 0, tr("Minor1:"), txtFields[11]);
    pair(4, 2, tr("Minor2:"), txtFields[12]);
    pair(5, 0, tr("CivilTwilight:"), txtFields[4], 3);
    pair(6, 0, tr("NauticalTwilight:"), txtFields[5], 3);
    pair(7, 0, tr("AstronomicalTwilight:"), txtFields[6], 3);
    pair(8, 0, tr("IllumPercent:"), txtFields[13]);
    pair(8, 2, tr("MoonAge:"), txtFields[15]);
    pair(9, 0, tr("GraphicType:"), txtFields[14]);
    pair(9, 2, tr("Waxing:"), Label7);
    pair(10, 0, tr("Day of Year"), Text3);
    pair(10, 2, tr("Day Light Hrs:"), Text5);
    pair(11, 0, tr("DaylightHours:"), Text4);
    grid->setRowStretch(12, 1);
    return panel;
}

QWidget* frmTable1::BuildCatchPanel()
{
    auto* panel = new QWidget(this);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    Label3 = new QLabel(panel);
    Label3->setObjectName(QStringLiteral("Label3"));
    QFont heading = Label3->font();
    heading.setPointSize(heading.pointSize() + 3);
    heading.setBold(true);
    Label3->setFont(heading);
    grid->addWidget(Label3, 0, 0, 1, 3);

    PicM = new QLabel(panel);
    PicM->setObjectName(QStringLiteral("PicM"));
    PicM->setFixedSize(80, 80);
    grid->addWidget(PicM, 1, 0, 3, 1);
    std::array<QLabel**, 4> fish = {&QuarterFish, &HalfFish, &ThreeQuarterfish, &WholeFish};
    for (std::size_t k = 0; k < fish.size(); ++k) {
        *fish[k] = new QLabel(panel);
        (*fish[k])->setPixmap(
            RatingFish(double(k + 1) / 4.0, palette().color(QPalette::WindowText)));
        (*fish[k])->hide();
        grid->addWidget(*fish[k], 1, 1, 1, 2, Qt::AlignLeft);
    }
    QuarterFish->setObjectName(QStringLiteral("QuarterFish"));
    HalfFish->setObjectName(QStringLiteral("HalfFish"));
    ThreeQuarterfish->setObjectName(QStringLiteral("ThreeQuarterfish"));
    WholeFish->setObjectName(QStringLiteral("WholeFish"));
    Label8 = new QLabel(panel);
    Label8->setObjectName(QStringLiteral("Label8"));
    QPalette note = Label8->palette();
    note.setColor(QPalette::WindowText, NoteColour(palette()));
    Label8->setPalette(note);
    QFont bold = Label8->font();
    bold.setBold(true);
    Label8->setFont(bold);
    grid->addWidget(Label8, 2, 1, 1, 2);
    Label9 = new QLabel(panel);
    Label9->setObjectName(QStringLiteral("Label9"));
    grid->addWidget(Label9, 3, 1, 1, 2);

    auto* catchBox = new QGroupBox(panel);
    auto* form = new QGridLayout(catchBox);
    // The pickers are aids: typing goes into the box, never into a list; a list opens only
    // when it is clicked.
    Combo4 = new QComboBox(catchBox);
    Combo4->setObjectName(QStringLiteral("Combo4"));
    Combo4->setFocusPolicy(Qt::NoFocus);
    Combo4->hide();
    PeakTimeCombo = new QComboBox(catchBox);
    PeakTimeCombo->setObjectName(QStringLiteral("PeakTimeCombo"));
    PeakTimeCombo->setEditable(true);
    PeakTimeCombo->setCompleter(nullptr); // no completion that turns "1" into "1:00 AM"
    PeakTimeCombo->setInsertPolicy(QComboBox::NoInsert);
    Text7 = new QPlainTextEdit(catchBox);
    Text7->setObjectName(QStringLiteral("Text7"));
    Text7->setTabChangesFocus(true); // Tab leaves the notes for the next control
    txtFields[17]->setParent(catchBox);
    txtFields[18]->setParent(catchBox);
    // The column holds 255 characters; the box takes no more and says so when it refuses.
    txtFields[18]->setMaxLength(TakenWithLength);
    txtFields[18]->setToolTip(tr(TakenWithLimitText));
    connect(txtFields[18], &QLineEdit::inputRejected, this, [this] {
        QToolTip::showText(txtFields[18]->mapToGlobal(QPoint(0, txtFields[18]->height())),
                           tr(TakenWithLimitText), txtFields[18]);
    });
    txtFields[17]->installEventFilter(this);
    form->addWidget(Caption(tr("Total Taken:"), catchBox), 0, 0);
    form->addWidget(txtFields[17], 0, 1);
    form->addWidget(Combo4, 0, 2);
    form->addWidget(Caption(tr("Taken With:"), catchBox), 1, 0);
    form->addWidget(txtFields[18], 1, 1, 1, 2);
    form->addWidget(Caption(tr("Peak Time:"), catchBox), 2, 0);
    form->addWidget(PeakTimeCombo, 2, 1, 1, 2);
    form->addWidget(Caption(tr("Notes:"), catchBox), 3, 0, Qt::AlignTop);
    form->addWidget(Text7, 3, 1, 1, 2);
    grid->addWidget(catchBox, 4, 0, 1, 3);

    cmdEdit = new QPushButton(tr("Edit"), panel);
    cmdEdit->setObjectName(QStringLiteral("cmdEdit"));
    cmdEdit->setToolTip(tr(" Click To Edit Record "));
    cmdUpdate = new QPushButton(tr("&Update"), panel);
    cmdUpdate->setObjectName(QStringLiteral("cmdUpdate"));
    cmdUpdate->setToolTip(tr(" Click To Update Record "));
    for (QPushButton* b : {cmdEdit, cmdUpdate})
        b->setAutoDefault(false);
    grid->addWidget(cmdEdit, 6, 0);
    grid->addWidget(cmdUpdate, 6, 1);
    grid->setRowStretch(4, 1);

    // The catch entries in the order they are filled in, then the two buttons.
    QWidget* previous = txtFields[17];
    for (QWidget* next :
         std::initializer_list<QWidget*>{txtFields[18], PeakTimeCombo, Text7, cmdEdit, cmdUpdate}) {
        setTabOrder(previous, next);
        previous = next;
    }
    connect(cmdEdit, &QPushButton::clicked, this, &frmTable1::cmdEdit_Click);
    connect(cmdUpdate, &QPushButton::clicked, this, &frmTable1::cmdUpdate_Click);
    connect(Combo4, &QComboBox::activated, this, &frmTable1::Combo4_Click);
    return panel;
}

void frmTable1::BindControls()
{
    const auto bindBox = [this](int index, const QString& field, const char* pattern = "") {
        QLineEdit* box = txtFields[std::size_t(index)];
        Bindings.push_back(std::make_unique<BoundBox>(
            [box, pattern](const QVariant& v) {
                box->setText(Shown(v, pattern));
                box->setCursorPosition(0); // long values show their beginning
                box->setModified(false);
            },
            [box]() {
                return box->isModified() ? std::optional<QVariant>(box->text()) : std::nullopt;
            }));
        Data1.Bind(field, Bindings.back().get());
    };
    bindBox(0, QStringLiteral("DBID"));
    bindBox(1, QStringLiteral("JulianDate"), "mm/dd/yyyy");
    bindBox(2, QStringLiteral("SunRise"), "hh:mm AMPM");
    bindBox(3, QStringLiteral("SunSet"), "hh:mm AMPM");
    bindBox(4, QStringLiteral("CivilTwilight"));
    bindBox(5, QStringLiteral("NauticalTwilight"));
    bindBox(6, QStringLiteral("AstronomicalTwilight"));
    bindBox(9, QStringLiteral("Major1"), "hh:mm AMPM");
    bindBox(10, QStringLiteral("Major2"), "hh:mm AMPM");
    bindBox(13, QStringLiteral("IllumPercent"));
    bindBox(14, QStringLiteral("GraphicType"));
    bindBox(15, QStringLiteral("MoonAge"));
    bindBox(17, QStringLiteral("TotalTaken"));
    bindBox(18, QStringLiteral("TakenWith"));

    Bindings.push_back(std::make_unique<BoundBox>([this](const QVariant& v) {
        // 15 significant digits, as the log has always shown a double.
        const auto hours = NumberOf(v);
        Text4->setText(hours ? QString::number(*hours, 'g', 15) : v.toString());
        Text4->setCursorPosition(0);
    }));
    Data1.Bind(QStringLiteral("DaylightHours"), Bindings.back().get());

    // The combo's entry counts as edited once the user picks one or types.
    connect(PeakTimeCombo, &QComboBox::activated, this, [this] { PeakTimePicked = true; });
    Bindings.push_back(std::make_unique<BoundBox>(
        [this](const QVariant& v) {
            PeakTimeCombo->setCurrentIndex(PeakTimeCombo->findText(v.toString()));
            PeakTimeCombo->setEditText(v.toString());
            PeakTimeCombo->lineEdit()->setModified(false);
            PeakTimePicked = false;
        },
        [this]() -> std::optional<QVariant> {
            if (!PeakTimeEdited())
                return std::nullopt;
            QString why;
            return CatchValue(QStringLiteral("PeakTime"), PeakTimeCombo->currentText(), why);
        }));
    Data1.Bind(QStringLiteral("PeakTime"), Bindings.back().get());

    Bindings.push_back(std::make_unique<BoundBox>(
        [this](const QVariant& v) {
            Text7->setPlainText(v.toString());
            Text7->document()->setModified(false);
        },
        [this]() {
            return Text7->document()->isModified() ? std::optional<QVariant>(Text7->toPlainText())
                                                   : std::nullopt;
        }));
    Data1.Bind(QStringLiteral("Notes"), Bindings.back().get());
}

void frmTable1::Form_Load()
{
    // Where and on which clock the year's times hold, when the file records it.
    if (const auto place = ReadYearPlace(Ctx.State.DBPath))
        setWindowTitle(tr("Quillmere DataBase - %1").arg(YearPlaceText(*place)));
    Data1.SetDatabaseName(Ctx.State.DBPath);
    // Catch entries made while a query result is shown are kept in the log table too.
    Data1.SetMirrorTable(QStringLiteral("table1"));
    Label9->setText(tr("Sorted by Date"));
    PeakTimeCombo->addItems(HourTexts());
    Combo4->addItems(NumberTexts(0, 100));
    TimeCombo->addItems(HourTexts());
    Combo2->addItems(NumberTexts(0, 100));
    MonthList->addItems(NumberTexts(1, 12));
    DOWList->addItems(NumberTexts(1, 7) << tr("Sat-Sun") << tr("Fri-Sun"));
    for (const Ordering& order : Orderings())
        SortByCombo->addItem(PlainText(order.Entry));
    const QueryForm start;
    ShowQueryValues(start);
    BindControls();
    SetBrowsing(true);
    FirstActivation = true;
    OpenWithinScreen();
}

// As large as the panels need, up to most of the screen, centred on it; what does not fit
// then scrolls.
void frmTable1::OpenWithinScreen()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    const QRect room = screen->availableGeometry();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize wanted = sizeHint() - Scroll->sizeHint() + Scroll->widget()->sizeHint() +
                         QSize(scrollBar, scrollBar);
    const QSize size = wanted.boundedTo(room.size() * ScreenShare);
    resize(size);
    move(room.center() - QPoint(size.width() / 2, size.height() / 2));
}

void frmTable1::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Form_Activate();
}

void frmTable1::Form_Activate()
{
    if (FirstActivation) {
        FirstActivation = false;
        Data1.SetRecordSource(QStringLiteral("Select * from table1 order by juliandate"));
        DbResult opened = Data1.Refresh();
        opened = opened ? Data1.MoveLast() : opened;
        opened = opened ? Data1.MoveFirst() : opened;
        if (!opened)
            Data1_Error(opened.Message);
    }
    if (Ctx.State.FindRecord) {
        if (const DbResult found =
                Data1.FindFirst(QStringLiteral("dbid = ") + QString::number(Ctx.State.FindDBID));
            !found)
            Data1_Error(found.Message);
        // Found once: later activations (after the report, say) stay on the shown record.
        Ctx.State.FindRecord = false;
    }
}

void frmTable1::Data1_Reposition()
{
    const BusyPointer busy;
    Data1Bar->SetCaption(tr("Record: %1 of %2 Record(s)")
                             .arg(Data1.AbsolutePosition() + 1)
                             .arg(Data1.RecordCount()));
    cmdEdit->setEnabled(Data1Bar->isEnabled() && (Data1.AbsolutePosition() >= 0));
    if (Data1.AbsolutePosition() < 0) {
        ClearDay();
        return;
    }
    ShowTimes();
    ShowNotes();
    ShowMoon();
    CatchesList->ShowDay(Data1.DatabaseName(), Data1.Field("JulianDate").toString());
}

void frmTable1::ReloadDay()
{
    const QVariant id = Data1.Field(QStringLiteral("DBID"));
    DbResult reloaded = Data1.Refresh();
    if (reloaded && !id.isNull())
        reloaded = Data1.FindFirst(QStringLiteral("dbid = ") + QString::number(id.toInt()));
    if (!reloaded)
        Data1_Error(reloaded.Message);
}

void frmTable1::ShowTimes()
{
    const std::array<const char*, 4> fakes = {"Major1", "Major2", "SunRise", "SunSet"};
    for (std::size_t k = 0; k < fakes.size(); ++k) {
        if (Data1.FieldIndex(fakes[k]) >= 0)
            FakeTextBox[k]->setText(Shown(Data1.Field(fakes[k]), "hh:mm AMPM"));
    }
    const bool ampm = Ctx.Engine.Site.AMPM;
    const std::array<std::pair<int, const char*>, 4> hours = {
        {{7, "MoonRise"}, {8, "MoonSet"}, {11, "Minor1"}, {12, "Minor2"}}};
    for (const auto& [index, field] : hours) {
        if (Data1.FieldIndex(field) < 0)
            continue;
        const auto value = NumberOf(Data1.Field(field));
        txtFields[std::size_t(index)]->setText(
            value && *value >= 0 ? QString::fromStdString(FormatClock(0, *value, ampm))
                                 : QStringLiteral("*****"));
    }
    if (const auto light = NumberOf(Data1.Field("DaylightHours")))
        Text5->setText(QString::fromStdString(FormatClock(3, *light, ampm)));
}

void frmTable1::ShowNotes()
{
    if (const auto perigee = NumberOf(Data1.Field("Perigee"))) {
        const int p = int(*perigee);
        Label8->setVisible(p != 0);
        Label8->setText(p == -1  ? tr("Day before/after perigee")
                        : p == 1 ? tr("Perigee")
                        : p == 2 ? tr("Apogee")
                                 : QString());
    }
    const QVariant date = Data1.Field("JulianDate");
    if (!date.isNull()) {
        Label3->setText(LongDate(date));
        Text3->setText(Shown(date, "y"));
    }
    if (const auto rating = NumberOf(Data1.Field("GraphicType"))) {
        const std::array<QLabel*, 4> fish = {QuarterFish, HalfFish, ThreeQuarterfish, WholeFish};
        for (std::size_t k = 0; k < fish.size(); ++k)
            fish[k]->setVisible(int(*rating) == int(k) + 1);
    }
}

void frmTable1::ShowMoon()
{
    const auto waxing = NumberOf(Data1.Field("Waxing"));
    const auto percent = NumberOf(Data1.Field("IllumPercent"));
    if (waxing)
        Label7->setText(*waxing == 1 ? tr("Moon is Waxing") : tr("Moon is Waning"));
    if (!waxing || !percent)
        return;
    MoonLook look;
    look.IllumPercent = std::int16_t(*percent);
    look.Waxing = std::int16_t(*waxing);
    look.SouthernHemisphere = Ctx.SouthernHemisphere;
    look.MoonColor = Ctx.MoonColor;
    look.BackColor = ToVbColor(palette().color(QPalette::Window));
    PicM->setPixmap(QPixmap::fromImage(DrawMoon(PicM->size(), look, std::nullopt).PicM));
}

// No record is current (a selection that found none): nothing of the last day stays on show.
void frmTable1::ClearDay()
{
    for (QLineEdit* box : FakeTextBox)
        box->clear();
    for (int i : {7, 8, 11, 12})
        txtFields[std::size_t(i)]->clear();
    for (QLabel* label : {Label3, Label7, Label8})
        label->clear();
    for (QLineEdit* box : {Text3, Text5})
        box->clear();
    for (QLabel* fish : {QuarterFish, HalfFish, ThreeQuarterfish, WholeFish})
        fish->hide();
    PicM->clear();
}

void frmTable1::Data1_Error(const QString& message)
{
    Ctx.Messages.MsgBox(tr("Data error event hit err:") + message);
}

void frmTable1::SetBrowsing(bool browsing)
{
    const auto set = [](auto* control, bool enabled) {
        enabled ? EnableControl(control) : DisableControl(control);
    };
    set(Data1Bar, browsing);
    set(cmdEdit, browsing && (Data1.AbsolutePosition() >= 0));
    set(mnuExit, browsing);
    set(Command1, browsing);
    set(mnutableview, browsing);
    set(CatchesList, browsing); // catches are written on their own, not within the day's edit
    for (QWidget* w : std::initializer_list<QWidget*>{cmdUpdate, txtFields[17], txtFields[18],
                                                      Combo4, PeakTimeCombo, Text7})
        set(w, !browsing);
    // The catch boxes take typing only while editing.
    // A day with catches takes its Total Taken from them.
    txtFields[17]->setReadOnly(browsing || !CatchesList->Shown().empty());
    txtFields[18]->setReadOnly(browsing);
}

void frmTable1::cmdEdit_Click()
{
    if (const DbResult editing = Data1.Edit(); !editing) {
        Data1_Error(editing.Message);
        return;
    }
    SetBrowsing(false);
}

bool frmTable1::PeakTimeEdited() const
{
    return PeakTimePicked || PeakTimeCombo->lineEdit()->isModified();
}

QString frmTable1::CatchEntryProblem() const
{
    struct Entry {
        const char* Label;
        const char* Column;
        bool Edited;
        QString Typed;
    };
    const std::array<Entry, 2> entries = {
        {{QT_TR_NOOP("Total Taken"), "TotalTaken", txtFields[17]->isModified(),
          txtFields[17]->text()},
         {QT_TR_NOOP("Peak Time"), "PeakTime", PeakTimeEdited(), PeakTimeCombo->currentText()}}};
    for (const Entry& entry : entries) {
        QString why;
        if (entry.Edited && !CatchValue(QLatin1String(entry.Column), entry.Typed, why))
            return QStringLiteral("%1: %2.").arg(tr(entry.Label), why);
    }
    return {};
}

void frmTable1::cmdUpdate_Click()
{
    // Nothing is stored while an entry cannot be kept as typed; the edit stays open.
    if (const QString problem = CatchEntryProblem(); !problem.isEmpty()) {
        Ctx.Messages.MsgBox(problem, MsgButtons::OK, windowTitle(), MsgIcon::Exclamation);
        return;
    }
    DbResult saved;
    {
        const BusyPointer busy;
        saved = UpdateUnderLock(Data1);
    }
    saved = saved ? Data1.SetBookmark(Data1.LastModified()) : saved;
    if (!saved) {
        Data1_Error(saved.Message);
        return;
    }
    Combo4->hide();
    SetBrowsing(true);
}

void frmTable1::txtFields_Click(int index)
{
    if (index != 17 || !txtFields[17]->isEnabled() || txtFields[17]->isReadOnly())
        return;
    Combo4->show();
}

void frmTable1::Combo4_Click()
{
    txtFields[17]->setText(Combo4->currentText());
    txtFields[17]->setModified(true);
    Combo4->hide();
}

bool frmTable1::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == txtFields[17] && event->type() == QEvent::MouseButtonRelease)
        txtFields_Click(17);
    if (watched == Owner && event->type() == QEvent::Close && !ConfirmLeaveEditing()) {
        event->ignore();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmTable1::mnuExit_Click()
{
    Data1.Close();
    close();
}

bool frmTable1::ConfirmLeaveEditing()
{
    if (Data1.EditMode() == DataControl::EditState::None)
        return true;
    const MsgResult answer =
        Ctx.Messages.MsgBox(tr("Save changes to this day?"), MsgButtons::SaveDiscardCancel,
                            windowTitle(), MsgIcon::Question);
    if (answer == MsgResult::Save) {
        cmdUpdate_Click();
        return Data1.EditMode() == DataControl::EditState::None;
    }
    if (answer != MsgResult::Discard)
        return false;
    Data1.CancelUpdate();
    Combo4->hide();
    SetBrowsing(true);
    return true;
}

void frmTable1::reject()
{
    if (ConfirmLeaveEditing())
        QDialog::reject();
}

void frmTable1::closeEvent(QCloseEvent* event)
{
    if (!ConfirmLeaveEditing()) {
        event->ignore();
        return;
    }
    Form_Unload();
    QDialog::closeEvent(event);
}

void frmTable1::Form_Unload()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}
