// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/frmtable2.h"

#include "db/storedforms.h"
#include "logdb/catches.h"
#include "pages/twips.h"
#include "ui/common/busypointer.h"
#include "ui/common/databar.h"
#include "ui/common/messageservice.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenuBar>
#include <QScreen>
#include <QStandardItemModel>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Captions and widths in twips by column position; the other columns are hidden.
struct GridColumn {
    int Position;
    const char* Caption;
    int Width;
};
constexpr std::array<GridColumn, 9> ShownColumns = {{{1, "Date", 1150},
                                                     {2, " % ", 400},
                                                     {3, "Rate", 450},
                                                     {4, "Age", 400},
                                                     {5, "Wax", 450},
                                                     {6, "Major 1 ", 1200},
                                                     {7, "Major 2 ", 1200},
                                                     {11, "SunRise ", 1300},
                                                     {12, "SunSet  ", 1300}}};

// The catch columns after the record's own, in this order.
enum CatchColumn { SpeciesColumn, FishColumn, ReleasedColumn, LongestColumn, HeaviestColumn };
constexpr int CatchColumnCount = HeaviestColumn + 1;
constexpr std::array<int, CatchColumnCount> CatchColumnWidths = {1800, 450, 700, 900, 900};

QString CatchCaption(int column, UnitSystem units)
{
    switch (column) {
    case SpeciesColumn:
        return QCoreApplication::translate("frmTable2", "Species");
    case FishColumn:
        return QCoreApplication::translate("frmTable2", "Fish");
    case ReleasedColumn:
        return QCoreApplication::translate("frmTable2", "Released");
    case LongestColumn:
        return QCoreApplication::translate("frmTable2", "Longest (%1)")
            .arg(QString::fromUtf8(LengthUnit(units)));
    default:
        return QCoreApplication::translate("frmTable2", "Heaviest (%1)")
            .arg(QString::fromUtf8(WeightUnit(units)));
    }
}

// The day's catch columns in the chosen units; all empty for a day without catches.
std::array<QString, CatchColumnCount> CatchTexts(const DayCatchSummary& day, UnitSystem units)
{
    const auto measure = [](const std::optional<int>& value, auto text) {
        return value ? QString::fromStdString(text(*value)) : QString();
    };
    return {day.Species.join(QStringLiteral(", ")), QString::number(day.Fish),
            QString::number(day.Released),
            measure(day.LongestMm, [units](int mm) { return LengthText(mm, units); }),
            measure(day.HeaviestG, [units](int g) { return WeightText(g, units); })};
}

// A stored value as the grid shows it: dates and times in the browser's display forms.
QString GridText(const QVariant& stored, ColumnKind kind)
{
    if (stored.isNull())
        return {};
    const char* pattern = kind == ColumnKind::Date   ? "mm/dd/yyyy"
                          : kind == ColumnKind::Time ? "hh:mm AMPM"
                                                     : nullptr;
    const auto text = pattern ? FormatStored(stored.toString().toStdString(), pattern)
                              : std::optional<std::string>();
    return text ? QString::fromStdString(*text) : stored.toString();
}

} // namespace

frmTable2::frmTable2(const LogContext& context, const QString& recordSource, QWidget* parent)
    : QDialog(parent), Ctx(context), Source(recordSource)
{
    setWindowTitle(tr("Quillmere DataBase"));
    setModal(true);
    auto* bar = new QMenuBar(this);
    mnuExit = bar->addAction(tr("&Close"));
    mnuExit->setObjectName(QStringLiteral("mnuExit"));
    mnuExit->setShortcut(QKeySequence::Close);
    DBGrid1 = new QTableView(this);
    DBGrid1->setObjectName(QStringLiteral("DBGrid1"));
    DBGrid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    DBGrid1->setSelectionBehavior(QAbstractItemView::SelectRows);
    DBGrid1->setSelectionMode(QAbstractItemView::SingleSelection);
    Rows = new QStandardItemModel(this);
    DBGrid1->setModel(Rows);
    Data1Bar = new DataBar(Data1, this);
    // The grid takes the window's inner size.
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(DBGrid1, 1);
    layout->addWidget(Data1Bar);
    resize(Twips(9500), Twips(6500));

    connect(mnuExit, &QAction::triggered, this, &frmTable2::mnuExit_Click);
    connect(Data1Bar, &DataBar::Error, this, &frmTable2::Data1_Error);
    connect(DBGrid1, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { DBGrid1_DblClick(index.row()); });
    connect(DBGrid1->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { GridRowChanged(current.row()); });
    Form_Load();
}

frmTable2::~frmTable2() { Data1.Close(); }

void frmTable2::Form_Load()
{
    Data1.SetDatabaseName(Ctx.State.DBPath);
    Data1.SetRecordSource(Source);
    if (const DbResult opened = Data1.Refresh(); !opened) {
        Data1_Error(opened.Message);
        return;
    }
    FillGrid();
    connect(&Data1, &DataControl::Reposition, this, &frmTable2::Data1_Reposition);
    Data1_Reposition();
}

void frmTable2::FillGrid()
{
    const int count = Data1.RecordCount();
    const int fields = Data1.FieldCount();
    const int dateField = Data1.FieldIndex(QStringLiteral("JulianDate"));
    Rows->setRowCount(count);
    Rows->setColumnCount(fields + CatchColumnCount);
    std::vector<QString> dates;
    for (int r = 0; r < count; ++r, Data1.MoveNext()) {
        for (int c = 0; c < fields; ++c)
            Rows->setItem(r, c, new QStandardItem(GridText(Data1.Field(c), Data1.FieldKind(c))));
        dates.push_back(dateField < 0 ? QString() : Data1.Field(dateField).toString());
    }
    if (count > 0)
        Data1.MoveFirst();
    FillCatchColumns(dates);
}

// The catch columns of every row from one reading of the year file's catches.
void frmTable2::FillCatchColumns(const std::vector<QString>& dates)
{
    std::map<QString, DayCatchSummary> days;
    if (const DbResult read =
            ReadCatchSummaries(Ctx.State.DBPath, {dates.begin(), dates.end()}, days);
        !read)
        Data1_Error(read.Message);
    const int first = Data1.FieldCount();
    for (int r = 0; r < static_cast<int>(dates.size()); ++r) {
        const auto day = days.find(dates[std::size_t(r)]);
        if (day == days.end())
            continue;
        const auto texts = CatchTexts(day->second, Ctx.Units);
        for (int c = 0; c < CatchColumnCount; ++c)
            Rows->setItem(r, first + c, new QStandardItem(texts[std::size_t(c)]));
    }
}

void frmTable2::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Form_Activate();
}

void frmTable2::Form_Activate()
{
    Ctx.State.FindRecord = false;
    SetColumns();
}

void frmTable2::SetColumns()
{
    for (int c = 0; c < Rows->columnCount(); ++c)
        DBGrid1->setColumnHidden(c, true);
    for (const GridColumn& g : ShownColumns)
        if (g.Position < Data1.FieldCount())
            ShowColumn(g.Position, QString::fromLatin1(g.Caption), g.Width);
    for (int c = 0; c < CatchColumnCount; ++c)
        ShowColumn(Data1.FieldCount() + c, CatchCaption(c, Ctx.Units),
                   CatchColumnWidths[std::size_t(c)]);
    FitWindowToColumns();
}

// The column's own width, or wider when its heading or values need it.
void frmTable2::ShowColumn(int position, const QString& caption, int widthTwips)
{
    Rows->setHeaderData(position, Qt::Horizontal, caption);
    DBGrid1->setColumnHidden(position, false);
    DBGrid1->resizeColumnToContents(position);
    DBGrid1->setColumnWidth(position, std::max(Twips(widthTwips), DBGrid1->columnWidth(position)));
}

// Wide enough for every shown column, within the screen.
void frmTable2::FitWindowToColumns()
{
    int width = DBGrid1->verticalHeader()->width() + 2 * DBGrid1->frameWidth() +
                style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (int c = 0; c < Rows->columnCount(); ++c)
        width += DBGrid1->isColumnHidden(c) ? 0 : DBGrid1->columnWidth(c);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        width = std::min(width, screen->availableGeometry().width());
    resize(std::max(width, this->width()), height());
}

void frmTable2::Data1_Reposition()
{
    const BusyPointer busy;
    const int position = Data1.AbsolutePosition();
    Data1Bar->SetCaption(tr("Record: %1").arg(position + 1));
    if (position >= 0 && DBGrid1->currentIndex().row() != position)
        DBGrid1->selectRow(position);
}

void frmTable2::GridRowChanged(int row)
{
    const int key = Data1.FieldIndex(QStringLiteral("DBID"));
    if (row < 0 || key < 0 || row == Data1.AbsolutePosition())
        return;
    if (const DbResult moved = Data1.SetBookmark(Rows->item(row, key)->text().toInt()); !moved)
        Data1_Error(moved.Message);
}

void frmTable2::DBGrid1_DblClick(int row)
{
    GridRowChanged(row);
    const QVariant id = Data1.Field(QStringLiteral("DBID"));
    if (id.isNull())
        return;
    Ctx.State.FindDBID = id.toInt();
    Ctx.State.FindRecord = true;
    close();
}

void frmTable2::Data1_Error(const QString& message)
{
    Ctx.Messages.MsgBox(tr("Data error event hit err:") + message);
}

void frmTable2::mnuExit_Click() { close(); }

void frmTable2::closeEvent(QCloseEvent* event)
{
    Form_Unload();
    QDialog::closeEvent(event);
}

void frmTable2::Form_Unload() { Data1.Close(); }
