// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/catchlist.h"

#include "astro/astronomy.h"
#include "logdb/catchphotos.h"
#include "platform/clock.h"
#include "ui/common/busypointer.h"
#include "ui/common/messageservice.h"
#include "ui/log/catcheditor.h"
#include "ui/log/photoviewer.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column {
    TimeColumn,
    SpeciesColumn,
    CountColumn,
    LengthColumn,
    WeightColumn,
    KeptColumn,
    BaitColumn,
    SpotColumn,
    PhotoColumn,
    ColumnCount
};
constexpr int StripGap = 4;       // pixels between thumbnails
constexpr int ThumbnailLines = 3; // a thumbnail is as tall as three lines of text
constexpr int StripPhotos = 8;    // photos a row shows at full thumbnail size
constexpr int ShownRows = 2;      // catches the list has room for at least

QString Unit(std::string_view name)
{
    return QString::fromUtf8(name.data(), qsizetype(name.size()));
}

QStringList DroppedFiles(const QMimeData* data)
{
    QStringList files;
    for (const QUrl& url : data->urls())
        if (url.isLocalFile())
            files << url.toLocalFile();
    return files;
}

} // namespace

CatchList::CatchList(const LogContext& context, QWidget* parent)
    : QWidget(parent), Ctx(context), Thumbnails(fontMetrics().height() * ThumbnailLines)
{
    RunEditor = [](CatchEditor& editor) { return editor.exec(); };
    BuildControls();
}

void CatchList::BuildControls()
{
    Catches = new QTreeWidget(this);
    Catches->setObjectName(QStringLiteral("Catches"));
    Catches->setRootIsDecorated(false);
    Catches->setUniformRowHeights(true);
    Catches->setColumnCount(ColumnCount);
    Catches->setHeaderLabels({tr("Time"), tr("Species"), tr("Count"),
                              tr("Length (%1)").arg(Unit(LengthUnit(Ctx.Units))),
                              tr("Weight (%1)").arg(Unit(WeightUnit(Ctx.Units))), tr("Kept"),
                              tr("Bait or lure"), tr("Spot"), tr("Photos")});
    Catches->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    Catches->header()->setStretchLastSection(true);
    const int side = Thumbnails.ThumbnailSide();
    Catches->setIconSize(QSize(StripPhotos * (side + StripGap), side));
    // Room for two catches with their photos, however small the window.
    Catches->setMinimumHeight(Catches->header()->sizeHint().height() +
                              ShownRows * (side + StripGap * 2));
    cmdAddCatch = new QPushButton(tr("Add &Catch..."), this);
    cmdAddCatch->setObjectName(QStringLiteral("cmdAddCatch"));
    cmdEditCatch = new QPushButton(tr("Edit Catc&h..."), this);
    cmdEditCatch->setObjectName(QStringLiteral("cmdEditCatch"));
    cmdRemoveCatch = new QPushButton(tr("Remove Catch"), this);
    cmdRemoveCatch->setObjectName(QStringLiteral("cmdRemoveCatch"));
    Notice = new QLabel(this);
    Notice->setObjectName(QStringLiteral("Notice"));
    Notice->setWordWrap(true);
    Notice->hide();
    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {cmdAddCatch, cmdEditCatch, cmdRemoveCatch}) {
        b->setAutoDefault(false);
        buttons->addWidget(b);
    }
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Catches, 1);
    layout->addWidget(Notice);
    layout->addLayout(buttons);

    connect(cmdAddCatch, &QPushButton::clicked, this, &CatchList::cmdAddCatch_Click);
    connect(cmdEditCatch, &QPushButton::clicked, this, &CatchList::cmdEditCatch_Click);
    connect(cmdRemoveCatch, &QPushButton::clicked, this, &CatchList::cmdRemoveCatch_Click);
    connect(Catches, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item, int column) {
                const QPoint at = Catches->viewport()->mapFromGlobal(QCursor::pos());
                Catches_DblClick(Catches->indexOfTopLevelItem(item), column,
                                 at.x() - Catches->header()->sectionViewportPosition(column));
            });
    WatchDrops(Catches->viewport());
    if (parentWidget())
        WatchDrops(parentWidget()->window());
}

void CatchList::WatchDrops(QWidget* target)
{
    target->setAcceptDrops(true);
    target->installEventFilter(this);
}

bool CatchList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
        auto* drag = static_cast<QDropEvent*>(event);
        if (isEnabled() && !DroppedFiles(drag->mimeData()).isEmpty()) {
            drag->acceptProposedAction();
            return true;
        }
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        const QStringList files = DroppedFiles(drop->mimeData());
        if (isEnabled() && !files.isEmpty()) {
            drop->acceptProposedAction();
            QTreeWidgetItem* onto = watched == Catches->viewport()
                                        ? Catches->itemAt(drop->position().toPoint())
                                        : nullptr;
            PhotosDropped(files, onto ? Catches->indexOfTopLevelItem(onto) : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CatchList::ShowDay(const QString& yearFile, const QString& date)
{
    YearFile = yearFile;
    Date = date;
    DayCatches.clear();
    QStringList missing;
    if (const DbResult read = ReadDayCatches(yearFile, date, DayCatches); !read)
        missing << tr("The day's catches could not be read: %1").arg(read.Message);
    Catches->clear();
    for (int row = 0; row < int(DayCatches.size()); ++row)
        FillRow(row, DayCatches[std::size_t(row)], missing);
    Notice->setText(missing.join(QLatin1Char('\n')));
    Notice->setVisible(!missing.isEmpty());
    cmdEditCatch->setEnabled(!DayCatches.empty());
    cmdRemoveCatch->setEnabled(!DayCatches.empty());
}

void CatchList::FillRow(int row, const Catch& c, QStringList& missing)
{
    const UnitSystem units = Ctx.Units;
    auto* item = new QTreeWidgetItem(Catches);
    const QTime time = QTime::fromString(c.Time, QStringLiteral("HH:mm:ss"));
    item->setText(TimeColumn, !time.isValid()        ? QString()
                              : Ctx.Engine.Site.AMPM ? time.toString(QStringLiteral("h:mm AP"))
                                                     : time.toString(QStringLiteral("HH:mm")));
    item->setText(SpeciesColumn, c.Species);
    item->setText(CountColumn, QString::number(c.Count));
    item->setTextAlignment(CountColumn, Qt::AlignRight | Qt::AlignVCenter);
    if (c.LengthMm)
        item->setText(LengthColumn, QString::fromStdString(LengthText(*c.LengthMm, units)));
    if (c.WeightG)
        item->setText(WeightColumn, QString::fromStdString(WeightText(*c.WeightG, units)));
    for (int column : {LengthColumn, WeightColumn})
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    item->setText(KeptColumn, c.Released ? tr("Released") : tr("Kept"));
    item->setText(BaitColumn, c.Bait);
    item->setText(SpotColumn, c.Spot);
    if (!c.Photos.isEmpty())
        item->setIcon(PhotoColumn, PhotoStrip(c, missing));
    if (!c.Note.isEmpty())
        item->setToolTip(SpeciesColumn, c.Note);
    if (row == 0)
        Catches->setCurrentItem(item);
}

// The catch's photos side by side; a missing one is drawn crossed out and named in `missing`.
QPixmap CatchList::PhotoStrip(const Catch& c, QStringList& missing)
{
    const int side = Thumbnails.ThumbnailSide();
    const auto count = int(c.Photos.size());
    QPixmap strip(count * side + (count - 1) * StripGap, side);
    strip.fill(Qt::transparent);
    QPainter painter(&strip);
    for (int i = 0; i < count; ++i) {
        const PhotoFile file = LookUpPhoto(YearFile, c.Photos[i]);
        QPixmap picture = file.Missing ? QPixmap() : Thumbnails.Thumbnail(file.Path);
        if (picture.isNull()) {
            missing << (file.Missing ? file.Message
                                     : tr("The photo %1 is not a picture.").arg(c.Photos[i]));
            picture = MissingPhotoPicture(side);
        }
        const QPoint at(i * (side + StripGap) + (side - picture.width()) / 2,
                        (side - picture.height()) / 2);
        painter.drawPixmap(at, picture);
    }
    return strip;
}

void CatchList::Edit(const Catch& start, const QStringList& newPhotos)
{
    CatchEditor editor(Ctx, YearFile, start, Thumbnails, this);
    editor.AddPhotoFiles(newPhotos);
    if (RunEditor(editor) != QDialog::Accepted)
        return;
    ShowDay(YearFile, Date);
    emit CatchesChanged();
}

void CatchList::cmdAddCatch_Click()
{
    Catch fresh;
    fresh.Date = Date;
    Edit(fresh, {});
}

void CatchList::cmdEditCatch_Click()
{
    const int row = Catches->indexOfTopLevelItem(Catches->currentItem());
    if (row >= 0 && row < int(DayCatches.size()))
        Edit(DayCatches[std::size_t(row)], {});
}

void CatchList::cmdRemoveCatch_Click()
{
    const int row = Catches->indexOfTopLevelItem(Catches->currentItem());
    if (row < 0 || row >= int(DayCatches.size()))
        return;
    const Catch& doomed = DayCatches[std::size_t(row)];
    const QString name = doomed.Species.isEmpty() ? tr("this catch") : doomed.Species;
    if (Ctx.Messages.MsgBox(tr("Remove %1 from the log?").arg(name), MsgButtons::YesNoDefaultNo,
                            tr("Remove Catch"), MsgIcon::Question) != MsgResult::Yes)
        return;
    DbResult removed;
    {
        const BusyPointer busy;
        removed = RemoveCatch(YearFile, doomed.Id, Clock::Now());
    }
    if (!removed)
        Ctx.Messages.MsgBox(tr("The catch could not be removed: %1").arg(removed.Message),
                            MsgButtons::OK, tr("Remove Catch"), MsgIcon::Exclamation);
    ShowDay(YearFile, Date);
    emit CatchesChanged();
}

void CatchList::Catches_DblClick(int row, int column, int x)
{
    if (row < 0 || row >= int(DayCatches.size()))
        return;
    const Catch& c = DayCatches[std::size_t(row)];
    const int photo = x / (Thumbnails.ThumbnailSide() + StripGap);
    if (column != PhotoColumn || photo < 0 || photo >= c.Photos.size()) {
        Catches->setCurrentItem(Catches->topLevelItem(row));
        cmdEditCatch_Click();
        return;
    }
    ShowPhoto(Ctx.Messages, LookUpPhoto(YearFile, c.Photos[photo]).Path, this);
}

void CatchList::PhotosDropped(const QStringList& files, int row)
{
    Catch start;
    start.Date = Date;
    if (row >= 0 && row < int(DayCatches.size()))
        start = DayCatches[std::size_t(row)];
    Edit(start, files);
}
