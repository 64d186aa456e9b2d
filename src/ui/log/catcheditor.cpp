// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/catcheditor.h"

#include "astro/astronomy.h"
#include "logdb/catchphotos.h"
#include "platform/clock.h"
#include "ui/common/busypointer.h"
#include "ui/common/messageservice.h"
#include "ui/log/photothumbs.h"
#include "ui/log/photoviewer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTime>
#include <QVBoxLayout>

#include <array>
#include <cmath>

namespace {

constexpr int PendingRole = Qt::UserRole + 1; // a photo file still to be copied in
constexpr int SpotTextLength = 255;

// The forms a typed time of day may take: "7:30 PM", "7:30pm", "7 PM", "19:30", "19:30:15".
constexpr std::array<const char*, 7> TimeForms = {"h:mm AP", "h:mmAP",  "h AP",      "hAP",
                                                  "H:mm",    "H:mm:ss", "h:mm:ss AP"};

std::optional<QTime> TimeOf(const QString& typed)
{
    const QString text = typed.trimmed().toUpper();
    for (const char* form : TimeForms)
        if (const QTime t = QTime::fromString(text, QLatin1String(form)); t.isValid())
            return t;
    return std::nullopt;
}

QString Quoted(const QString& typed) { return QStringLiteral("\"%1\"").arg(typed.trimmed()); }

// A typed latitude or longitude: blank is none; `why` says when the text is not one.
std::optional<double> DegreesOf(const QString& typed, double limit, const QString& refusal,
                                QString& why)
{
    if (typed.trimmed().isEmpty())
        return std::nullopt;
    bool ok = false;
    const double value = typed.trimmed().toDouble(&ok);
    if (ok && std::abs(value) <= limit)
        return value;
    why = refusal.arg(Quoted(typed)).arg(-limit).arg(limit);
    return std::nullopt;
}

QString DegreesText(const std::optional<double>& degrees)
{
    return degrees ? QString::number(*degrees, 'g', 10) : QString();
}

template <typename Value>
QString MeasureText(const std::optional<Value>& stored, std::string (*text)(Value, UnitSystem),
                    UnitSystem units)
{
    return stored ? QString::fromStdString(text(*stored, units)) : QString();
}

QComboBox* Suggestions(QWidget* parent, const QString& name, const QStringList& entries)
{
    auto* box = new QComboBox(parent);
    box->setObjectName(name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(QStringList{QString()} + entries);
    return box;
}

QLineEdit* Box(QWidget* parent, const QString& name, int length = SpotTextLength)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setMaxLength(length);
    return box;
}

} // namespace

CatchEditor::CatchEditor(const LogContext& context, const QString& yearFile, const Catch& start,
                         PhotoThumbnails& thumbnails, QWidget* parent)
    : QDialog(parent), Ctx(context), YearFile(yearFile), Start(start), Result(start),
      Thumbnails(thumbnails)
{
    setWindowTitle(start.Id == 0 ? tr("New Catch") : tr("Catch"));
    setModal(true);
    ChoosePhotoFiles = [this] {
        return QFileDialog::getOpenFileNames(
            this, tr("Add Photos"), {},
            tr("Pictures (*.jpg *.jpeg *.png *.bmp *.gif *.webp);;All files (*)"));
    };
    BuildControls();
    ShowCatch(start);
}

void CatchEditor::BuildControls()
{
    const UnitSystem units = Ctx.Units;
    TimeBox = Box(this, QStringLiteral("TimeBox"), 12);
    TimeBox->setPlaceholderText(Ctx.Engine.Site.AMPM ? QStringLiteral("7:30 PM")
                                                     : QStringLiteral("19:30"));
    SpeciesBox = Box(this, QStringLiteral("SpeciesBox"), 100);
    QStringList species;
    if (const DbResult listed = SpeciesList(Ctx.Folder, species); !listed)
        species.clear(); // completion is a help; the editor works without it
    auto* completer = new QCompleter(species, SpeciesBox);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    SpeciesBox->setCompleter(completer);
    CountBox = new QSpinBox(this);
    CountBox->setObjectName(QStringLiteral("CountBox"));
    CountBox->setRange(1, MostFishPerCatch);
    LengthBox = Box(this, QStringLiteral("LengthBox"), 12);
    WeightBox = Box(this, QStringLiteral("WeightBox"), 12);
    ReleasedCheck = new QCheckBox(tr("&Released"), this);
    ReleasedCheck->setObjectName(QStringLiteral("ReleasedCheck"));
    BaitBox = Box(this, QStringLiteral("BaitBox"));
    MethodBox = Suggestions(this, QStringLiteral("MethodBox"),
                            {tr("Casting"), tr("Trolling"), tr("Fly fishing"), tr("Jigging"),
                             tr("Still fishing"), tr("Ice fishing"), tr("Spinning")});
    SpotBox = Box(this, QStringLiteral("SpotBox"));
    LatitudeBox = Box(this, QStringLiteral("LatitudeBox"), 16);
    LatitudeBox->setPlaceholderText(tr("north +"));
    LongitudeBox = Box(this, QStringLiteral("LongitudeBox"), 16);
    LongitudeBox->setPlaceholderText(tr("east +"));
    WaterBox = Box(this, QStringLiteral("WaterBox"), 12);
    AirBox = Box(this, QStringLiteral("AirBox"), 12);
    WindBox = Suggestions(this, QStringLiteral("WindBox"),
                          {tr("Calm"), tr("Light"), tr("Moderate"), tr("Strong"), tr("Gale")});
    SkyBox = Suggestions(
        this, QStringLiteral("SkyBox"),
        {tr("Clear"), tr("Partly cloudy"), tr("Overcast"), tr("Rain"), tr("Fog"), tr("Snow")});
    NoteBox = new QPlainTextEdit(this);
    NoteBox->setObjectName(QStringLiteral("NoteBox"));
    NoteBox->setTabChangesFocus(true);
    Message = new QLabel(this);
    Message->setObjectName(QStringLiteral("Message"));
    Message->setWordWrap(true);
    QFont bold = Message->font();
    bold.setBold(true);
    Message->setFont(bold);

    // Captions carry the Alt letters of their fields and the units they are typed in.
    auto* grid = new QGridLayout;
    int row = 0;
    const auto field = [this, grid, &row](const QString& caption, QWidget* box, int column,
                                          const QString& unit = {}) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(box);
        grid->addWidget(label, row, column);
        grid->addWidget(box, row, column + 1, 1, unit.isEmpty() ? 2 : 1);
        if (!unit.isEmpty())
            grid->addWidget(new QLabel(unit, this), row, column + 2);
    };
    const auto unit = [](std::string_view name) {
        return QString::fromUtf8(name.data(), qsizetype(name.size()));
    };
    field(tr("&Time:"), TimeBox, 0);
    field(tr("&Species:"), SpeciesBox, 3);
    ++row;
    field(tr("C&ount:"), CountBox, 0);
    grid->addWidget(ReleasedCheck, row, 4, 1, 2);
    ++row;
    field(tr("&Length:"), LengthBox, 0, unit(LengthUnit(units)));
    field(tr("&Weight:"), WeightBox, 3, unit(WeightUnit(units)));
    ++row;
    field(tr("&Bait or lure:"), BaitBox, 0);
    field(tr("&Method:"), MethodBox, 3);
    ++row;
    field(tr("S&pot:"), SpotBox, 0);
    ++row;
    field(tr("L&atitude:"), LatitudeBox, 0, QStringLiteral("\u00B0"));
    field(tr("Lo&ngitude:"), LongitudeBox, 3, QStringLiteral("\u00B0"));
    ++row;
    field(tr("Wat&er:"), WaterBox, 0, unit(TemperatureUnit(units)));
    field(tr("A&ir:"), AirBox, 3, unit(TemperatureUnit(units)));
    ++row;
    field(tr("Win&d:"), WindBox, 0);
    field(tr("Sk&y:"), SkyBox, 3);
    ++row;
    auto* noteLabel = new QLabel(tr("N&ote:"), this);
    noteLabel->setBuddy(NoteBox);
    grid->addWidget(noteLabel, row, 0, Qt::AlignTop);
    grid->addWidget(NoteBox, row, 1, 1, 5);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);

    auto* buttons = new QDialogButtonBox(this);
    cmdOK = buttons->addButton(QDialogButtonBox::Ok);
    cmdCancel = buttons->addButton(QDialogButtonBox::Cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(BuildPhotoPanel());
    layout->addWidget(Message);
    layout->addWidget(buttons);

    connect(cmdOK, &QPushButton::clicked, this, &CatchEditor::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &CatchEditor::reject);
    connect(cmdAddPhoto, &QPushButton::clicked, this, &CatchEditor::cmdAddPhoto_Click);
    connect(cmdRemovePhoto, &QPushButton::clicked, this, &CatchEditor::cmdRemovePhoto_Click);
    connect(PhotoList, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { PhotoList_DblClick(PhotoList->row(item)); });
    // Tab runs down the left column, then the right, as the angler fills a form.
    const std::array<QWidget*, 21> order = {
        TimeBox, CountBox,   LengthBox,     BaitBox,     SpotBox,        LatitudeBox,  WaterBox,
        WindBox, SpeciesBox, ReleasedCheck, WeightBox,   MethodBox,      LongitudeBox, AirBox,
        SkyBox,  NoteBox,    PhotoList,     cmdAddPhoto, cmdRemovePhoto, cmdOK,        cmdCancel};
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QWidget* CatchEditor::BuildPhotoPanel()
{
    auto* panel = new QGroupBox(tr("Photos"), this);
    PhotoList = new QListWidget(panel);
    PhotoList->setObjectName(QStringLiteral("PhotoList"));
    PhotoList->setViewMode(QListView::IconMode);
    PhotoList->setFlow(QListView::LeftToRight);
    PhotoList->setWrapping(false);
    PhotoList->setMovement(QListView::Static);
    const int side = Thumbnails.ThumbnailSide();
    PhotoList->setIconSize(QSize(side, side));
    PhotoList->setFixedHeight(side + PhotoList->fontMetrics().height() * 3);
    PhotoList->setToolTip(tr("Double-click a photo to see it at full size"));
    cmdAddPhoto = new QPushButton(tr("&Add Photos..."), panel);
    cmdAddPhoto->setObjectName(QStringLiteral("cmdAddPhoto"));
    cmdRemovePhoto = new QPushButton(tr("Remo&ve Photo"), panel);
    cmdRemovePhoto->setObjectName(QStringLiteral("cmdRemovePhoto"));
    for (QPushButton* b : {cmdAddPhoto, cmdRemovePhoto})
        b->setAutoDefault(false);
    auto* buttonColumn = new QVBoxLayout;
    buttonColumn->addWidget(cmdAddPhoto);
    buttonColumn->addWidget(cmdRemovePhoto);
    buttonColumn->addStretch(1);
    auto* layout = new QHBoxLayout(panel);
    layout->addWidget(PhotoList, 1);
    layout->addLayout(buttonColumn);
    return panel;
}

void CatchEditor::ShowCatch(const Catch& c)
{
    const UnitSystem units = Ctx.Units;
    const QTime time = QTime::fromString(c.Time, QStringLiteral("HH:mm:ss"));
    TimeBox->setText(!time.isValid()        ? QString()
                     : Ctx.Engine.Site.AMPM ? time.toString(QStringLiteral("h:mm AP"))
                                            : time.toString(QStringLiteral("HH:mm")));
    SpeciesBox->setText(c.Species);
    CountBox->setValue(c.Count);
    LengthBox->setText(MeasureText(c.LengthMm, &LengthText, units));
    WeightBox->setText(MeasureText(c.WeightG, &WeightText, units));
    ReleasedCheck->setChecked(c.Released);
    BaitBox->setText(c.Bait);
    MethodBox->setEditText(c.Method);
    SpotBox->setText(c.Spot);
    LatitudeBox->setText(DegreesText(c.Latitude));
    LongitudeBox->setText(DegreesText(c.Longitude));
    WaterBox->setText(MeasureText(c.WaterTemp, &TemperatureText, units));
    AirBox->setText(MeasureText(c.AirTemp, &TemperatureText, units));
    WindBox->setEditText(c.Wind);
    SkyBox->setEditText(c.Sky);
    NoteBox->setPlainText(c.Note);
    for (const QString& stored : c.Photos)
        ShowPhoto(stored);
}

void CatchEditor::ShowPhoto(const QString& stored)
{
    const PhotoFile file = LookUpPhoto(YearFile, stored);
    const QPixmap thumbnail = file.Missing ? QPixmap() : Thumbnails.Thumbnail(file.Path);
    auto* item = new QListWidgetItem(
        thumbnail.isNull() ? MissingPhotoPicture(Thumbnails.ThumbnailSide()) : thumbnail,
        QFileInfo(stored).fileName(), PhotoList);
    item->setData(Qt::UserRole, stored);
    item->setToolTip(file.Missing ? file.Message : file.Path);
}

void CatchEditor::AddPhotoFiles(const QStringList& files)
{
    for (const QString& path : files) {
        const QPixmap thumbnail = Thumbnails.Thumbnail(path);
        auto* item = new QListWidgetItem(
            thumbnail.isNull() ? MissingPhotoPicture(Thumbnails.ThumbnailSide()) : thumbnail,
            QFileInfo(path).fileName(), PhotoList);
        item->setData(Qt::UserRole, path);
        item->setData(PendingRole, true);
        item->setToolTip(path);
    }
}

void CatchEditor::cmdAddPhoto_Click() { AddPhotoFiles(ChoosePhotoFiles()); }

void CatchEditor::cmdRemovePhoto_Click() { delete PhotoList->currentItem(); }

void CatchEditor::PhotoList_DblClick(int row)
{
    const QListWidgetItem* item = PhotoList->item(row);
    if (!item)
        return;
    const QString path = item->data(Qt::UserRole).toString();
    ::ShowPhoto(Ctx.Messages,
                item->data(PendingRole).toBool() ? path : LookUpPhoto(YearFile, path).Path, this);
}

std::optional<Catch> CatchEditor::ReadFields(QWidget*& field, QString& why) const
{
    Catch c = Start;
    const UnitSystem units = Ctx.Units;
    std::string problem;
    const auto refuse = [&](QWidget* box, const QString& text) {
        field = box;
        why = text;
        return std::nullopt;
    };
    if (const QString typed = TimeBox->text().trimmed(); typed.isEmpty())
        c.Time.clear();
    else if (const auto time = TimeOf(typed))
        c.Time = time->toString(QStringLiteral("HH:mm:ss"));
    else
        return refuse(TimeBox, tr("%1 is not a time of day").arg(Quoted(typed)));
    c.Species = SpeciesBox->text().trimmed();
    c.Count = CountBox->value();
    c.LengthMm = LengthFromText(LengthBox->text().toStdString(), units, problem);
    if (!problem.empty())
        return refuse(LengthBox, QString::fromStdString(problem));
    c.WeightG = WeightFromText(WeightBox->text().toStdString(), units, problem);
    if (!problem.empty())
        return refuse(WeightBox, QString::fromStdString(problem));
    c.Released = ReleasedCheck->isChecked();
    c.Bait = BaitBox->text().trimmed();
    c.Method = MethodBox->currentText().trimmed();
    c.Spot = SpotBox->text().trimmed();
    QString degrees;
    c.Latitude =
        DegreesOf(LatitudeBox->text(), 90.0, tr("%1 is not a latitude from %2 to %3"), degrees);
    if (!degrees.isEmpty())
        return refuse(LatitudeBox, degrees);
    c.Longitude =
        DegreesOf(LongitudeBox->text(), 180.0, tr("%1 is not a longitude from %2 to %3"), degrees);
    if (!degrees.isEmpty())
        return refuse(LongitudeBox, degrees);
    c.WaterTemp = TemperatureFromText(WaterBox->text().toStdString(), units, problem);
    if (!problem.empty())
        return refuse(WaterBox, QString::fromStdString(problem));
    c.AirTemp = TemperatureFromText(AirBox->text().toStdString(), units, problem);
    if (!problem.empty())
        return refuse(AirBox, QString::fromStdString(problem));
    c.Wind = WindBox->currentText().trimmed();
    c.Sky = SkyBox->currentText().trimmed();
    c.Note = NoteBox->toPlainText();
    c.Photos.clear();
    for (int i = 0; i < PhotoList->count(); ++i)
        c.Photos << PhotoList->item(i)->data(Qt::UserRole).toString();
    if (const QString rule = CatchProblem(c); !rule.isEmpty())
        return refuse(LatitudeBox->text().isEmpty() ? LatitudeBox : LongitudeBox, rule);
    return c;
}

std::optional<Catch> CatchEditor::TypedCatch()
{
    QWidget* field = nullptr;
    QString why;
    std::optional<Catch> c = ReadFields(field, why);
    Message->setText(why.isEmpty() ? QString() : why + QLatin1Char('.'));
    if (field)
        field->setFocus();
    return c;
}

bool CatchEditor::Changed() const
{
    QWidget* field = nullptr;
    QString why;
    const std::optional<Catch> c = ReadFields(field, why);
    return !c || *c != Start;
}

bool CatchEditor::CopyNewPhotos(Catch& c)
{
    for (int i = 0; i < PhotoList->count(); ++i) {
        QListWidgetItem* item = PhotoList->item(i);
        if (!item->data(PendingRole).toBool())
            continue;
        QString relative;
        if (const DbResult copied =
                AddPhoto(YearFile, item->data(Qt::UserRole).toString(), relative);
            !copied) {
            Message->setText(copied.Message);
            PhotoList->setCurrentItem(item);
            return false;
        }
        // Copied once: a second OK after a later refusal does not copy it again.
        item->setData(Qt::UserRole, relative);
        item->setData(PendingRole, false);
        c.Photos[i] = relative;
    }
    return true;
}

void CatchEditor::cmdOK_Click()
{
    std::optional<Catch> c = TypedCatch();
    if (!c)
        return;
    const BusyPointer busy;
    if (!CopyNewPhotos(*c))
        return;
    const DbResult saved =
        c->Id == 0 ? AddCatch(YearFile, *c, Clock::Now()) : UpdateCatch(YearFile, *c, Clock::Now());
    if (!saved) {
        Message->setText(saved.Message);
        return;
    }
    Result = *c;
    accept();
}

void CatchEditor::reject()
{
    if (Changed()) {
        const MsgResult answer =
            Ctx.Messages.MsgBox(tr("Save changes to this catch?"), MsgButtons::SaveDiscardCancel,
                                windowTitle(), MsgIcon::Question);
        if (answer == MsgResult::Save)
            cmdOK_Click();
        if (answer != MsgResult::Discard)
            return;
    }
    QDialog::reject();
}
