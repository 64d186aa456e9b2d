// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/datacontrol.h"

#include "db/jetcondition.h"

#include <QFile>

#include <algorithm>

#include <sys/stat.h>

namespace {

const QString NoCurrentRecord = QStringLiteral("No current record.");

JetValue ConditionValue(const QVariant& value)
{
    JetValue v;
    v.Null = value.isNull();
    v.Text = value.toString().toStdString();
    v.Number = NumberOf(value);
    return v;
}

} // namespace

namespace {

// The device and inode of the file at path; zeros when there is none.
std::pair<quint64, quint64> FileIdentity(const QString& path)
{
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    return {quint64(info.st_dev), quint64(info.st_ino)};
}

} // namespace

DataControl::DataControl(QObject* parent) : QObject(parent) {}

DataControl::~DataControl() = default;

DbResult DataControl::OpenIfNeeded()
{
    if (db_.IsOpen() && openedName_ == databaseName_ && openedConnect_ == connect_)
        return DbResult::Success();
    openedFile_ = FileIdentity(databaseName_);
    DbResult opened = db_.Open(databaseName_, connect_);
    openedName_ = opened ? databaseName_ : QString();
    openedConnect_ = opened ? connect_ : QString();
    return opened;
}

DbResult DataControl::ReopenIfReplaced()
{
    if (!db_.IsOpen() || FileIdentity(openedName_) == openedFile_)
        return DbResult::Success();
    db_.Close();
    openedName_.clear();
    return OpenIfNeeded();
}

DbResult DataControl::Refresh()
{
    if (editState_ != EditState::None)
        return DbResult::Failure(QStringLiteral("Update or cancel the current edit first."));
    if (DbResult opened = OpenIfNeeded(); !opened)
        return opened;
    RowSet result;
    QString source;
    if (DbResult read = db_.Query(recordSource_, result, &source, parameters_); !read)
        return read;
    Load(std::move(result), source);
    SetPosition(0);
    return DbResult::Success();
}

void DataControl::Load(RowSet result, const QString& sourceTable)
{
    fields_ = std::move(result.Fields);
    rows_ = std::move(result.Rows);
    sourceTable_ = sourceTable;
    kinds_.assign(fields_.size(), ColumnKind::Text);
    keyIndex_ = -1;
    const std::vector<ColumnInfo> columns =
        sourceTable.isEmpty() ? std::vector<ColumnInfo>{} : db_.Columns(sourceTable);
    bool allColumns = !columns.empty();
    int keys = 0;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const auto column = std::find_if(columns.begin(), columns.end(), [&](const ColumnInfo& c) {
            return c.Name.compare(fields_[i], Qt::CaseInsensitive) == 0;
        });
        allColumns = allColumns && column != columns.end();
        if (column == columns.end())
            continue;
        kinds_[i] = column->Kind;
        if (column->PrimaryKey)
            keyIndex_ = int(i);
    }
    for (const ColumnInfo& c : columns)
        keys += c.PrimaryKey ? 1 : 0;
    if (!allColumns || keys != 1)
        keyIndex_ = -1; // an expression or a partial key cannot lead back to one record
}

void DataControl::Close()
{
    CancelUpdate();
    rows_.clear();
    fields_.clear();
    kinds_.clear();
    keyIndex_ = -1;
    position_ = 0;
    db_.Close();
    openedName_.clear();
    openedConnect_.clear();
}

bool DataControl::HasCurrent() const { return position_ >= 0 && position_ < RecordCount(); }
bool DataControl::IsBOF() const { return rows_.empty() || position_ < 0; }
bool DataControl::IsEOF() const { return rows_.empty() || position_ >= RecordCount(); }
int DataControl::AbsolutePosition() const { return HasCurrent() ? position_ : -1; }

void DataControl::SetPosition(int index)
{
    position_ = index;
    ShowBound();
    emit Reposition();
}

DbResult DataControl::CheckCanMove() const
{
    if (editState_ != EditState::None)
        return DbResult::Failure(QStringLiteral("Update or cancel the current edit first."));
    return DbResult::Success();
}

DbResult DataControl::CheckCanChange() const
{
    if (DbResult can = CheckCanMove(); !can)
        return can;
    if (!Updatable())
        return DbResult::Failure(QStringLiteral("Database or object is read-only."));
    return DbResult::Success();
}

DbResult DataControl::MoveTo(int index)
{
    if (DbResult can = CheckCanMove(); !can)
        return can;
    if (rows_.empty())
        return DbResult::Failure(NoCurrentRecord);
    SetPosition(index);
    return DbResult::Success();
}

DbResult DataControl::MoveFirst() { return MoveTo(0); }
DbResult DataControl::MoveLast() { return MoveTo(RecordCount() - 1); }

DbResult DataControl::MoveNext()
{
    if (IsEOF())
        return DbResult::Failure(NoCurrentRecord);
    return MoveTo(position_ + 1);
}

DbResult DataControl::MovePrevious()
{
    if (IsBOF())
        return DbResult::Failure(NoCurrentRecord);
    return MoveTo(position_ - 1);
}

QString DataControl::FieldName(int index) const
{
    return index >= 0 && index < FieldCount() ? fields_[std::size_t(index)] : QString();
}

int DataControl::FieldIndex(const QString& name) const
{
    const auto it = std::find_if(fields_.begin(), fields_.end(), [&](const QString& f) {
        return f.compare(name, Qt::CaseInsensitive) == 0;
    });
    return it == fields_.end() ? -1 : int(it - fields_.begin());
}

ColumnKind DataControl::FieldKind(int index) const
{
    return index >= 0 && index < FieldCount() ? kinds_[std::size_t(index)] : ColumnKind::Text;
}

QVariant DataControl::Field(int index) const
{
    if (index < 0 || index >= FieldCount())
        return {};
    if (editState_ != EditState::None)
        return buffer_[std::size_t(index)];
    return HasCurrent() ? rows_[std::size_t(position_)][std::size_t(index)] : QVariant();
}

DbResult DataControl::SetField(int index, const QVariant& value)
{
    if (editState_ == EditState::None)
        return DbResult::Failure(QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
    if (index < 0 || index >= FieldCount())
        return DbResult::Failure(QStringLiteral("Item not found in this collection."));
    const auto stored = ToStored(kinds_[std::size_t(index)], value);
    if (!stored)
        return DbResult::Failure(QStringLiteral("Data type conversion error: '%1' for %2.")
                                     .arg(value.toString(), FieldName(index)));
    buffer_[std::size_t(index)] = *stored;
    changed_[std::size_t(index)] = true;
    return DbResult::Success();
}

DbResult DataControl::SetField(const QString& name, const QVariant& value)
{
    const int index = FieldIndex(name);
    if (index < 0)
        return DbResult::Failure(
            QStringLiteral("Item '%1' not found in this collection.").arg(name));
    return SetField(index, value);
}

DbResult DataControl::FindFirst(const QString& condition, const QVariantList& parameters)
{
    if (DbResult can = CheckCanMove(); !can)
        return can;
    std::vector<JetValue> values;
    for (const QVariant& p : parameters) // a text compares as text even when it looks numeric
        values.push_back(p.typeId() == QMetaType::QString
                             ? JetValue{{}, p.toString().toStdString(), false}
                             : ConditionValue(p));
    std::string error;
    const auto parsed = JetCondition::Parse(condition.toStdString(), error, values);
    if (!parsed)
        return DbResult::Failure(QString::fromStdString(error));
    for (const std::string& field : parsed->Fields()) {
        if (FieldIndex(QString::fromStdString(field)) < 0)
            return DbResult::Failure(QStringLiteral("Unknown field '%1' in search condition.")
                                         .arg(QString::fromStdString(field)));
    }
    const auto matches = [&](const std::vector<QVariant>& row) {
        return parsed->Matches([&](std::string_view field) {
            const int index = FieldIndex(QString::fromUtf8(field.data(), qsizetype(field.size())));
            return ConditionValue(row[std::size_t(index)]);
        });
    };
    const auto found = std::find_if(rows_.begin(), rows_.end(), matches);
    noMatch_ = found == rows_.end();
    if (!noMatch_)
        SetPosition(int(found - rows_.begin()));
    return DbResult::Success();
}

DbResult DataControl::Edit()
{
    if (DbResult can = CheckCanChange(); !can)
        return can;
    if (!HasCurrent())
        return DbResult::Failure(NoCurrentRecord);
    buffer_ = rows_[std::size_t(position_)];
    changed_.assign(fields_.size(), false);
    editState_ = EditState::Editing;
    return DbResult::Success();
}

DbResult DataControl::AddNew()
{
    if (DbResult can = CheckCanChange(); !can)
        return can;
    buffer_.assign(fields_.size(), QVariant());
    changed_.assign(fields_.size(), false);
    editState_ = EditState::Adding;
    ShowBound();
    return DbResult::Success();
}

void DataControl::CancelUpdate()
{
    if (editState_ == EditState::None)
        return;
    editState_ = EditState::None;
    buffer_.clear();
    changed_.clear();
    ShowBound();
}

DbResult DataControl::CollectBoundEntries()
{
    for (const auto& [field, control] : bound_) {
        if (const auto entry = control->EditedValue()) {
            if (DbResult set = SetField(field, *entry); !set)
                return set;
        }
    }
    return DbResult::Success();
}

FieldValues DataControl::ChangedFields() const
{
    FieldValues fields;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (changed_[i])
            fields.emplace_back(fields_[i], buffer_[i]);
    }
    return fields;
}

DbResult DataControl::ReadBack(const QString& keyColumn, const QVariant& key,
                               std::vector<QVariant>& row)
{
    return db_.ReadRecord(sourceTable_, keyColumn, key, fields_, row);
}

DbResult DataControl::Update()
{
    if (editState_ == EditState::None)
        return DbResult::Failure(QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
    if (DbResult collected = CollectBoundEntries(); !collected)
        return collected;
    if (DbResult opened = ReopenIfReplaced(); !opened)
        return opened;
    const FieldValues fields = ChangedFields();
    const QString keyColumn = fields_[std::size_t(keyIndex_)];
    std::vector<QVariant> row;
    DbResult saved;
    if (editState_ == EditState::Editing) {
        QStringList tables{sourceTable_};
        if (!mirrorTable_.isEmpty() && mirrorTable_.compare(sourceTable_, Qt::CaseInsensitive) != 0)
            tables << mirrorTable_;
        saved = db_.UpdateRecord(tables, keyColumn,
                                 rows_[std::size_t(position_)][std::size_t(keyIndex_)], fields);
        saved = saved ? ReadBack(keyColumn, buffer_[std::size_t(keyIndex_)], row) : saved;
    } else {
        QVariant rowId;
        saved = db_.InsertRecord(sourceTable_, fields, rowId);
        saved = saved ? ReadBack(QStringLiteral("rowid"), rowId, row) : saved;
    }
    if (!saved)
        return saved; // still editing: the entry can be corrected or cancelled
    lastModified_ = row[std::size_t(keyIndex_)];
    const bool adding = editState_ == EditState::Adding;
    const bool hadCurrent = HasCurrent();
    if (adding)
        rows_.push_back(std::move(row));
    else
        rows_[std::size_t(position_)] = std::move(row);
    editState_ = EditState::None;
    buffer_.clear();
    changed_.clear();
    if (adding && !hadCurrent)
        SetPosition(RecordCount() - 1); // with no record current before, the new one is
    else
        ShowBound();
    return DbResult::Success();
}

DbResult DataControl::Delete()
{
    if (DbResult can = CheckCanChange(); !can)
        return can;
    if (!HasCurrent())
        return DbResult::Failure(NoCurrentRecord);
    DbResult deleted = db_.DeleteRecord(sourceTable_, fields_[std::size_t(keyIndex_)],
                                        rows_[std::size_t(position_)][std::size_t(keyIndex_)]);
    if (!deleted)
        return deleted;
    rows_.erase(rows_.begin() + position_);
    SetPosition(std::min(position_, std::max(RecordCount() - 1, 0)));
    return DbResult::Success();
}

DbResult DataControl::SetBookmark(const QVariant& bookmark)
{
    if (DbResult can = CheckCanMove(); !can)
        return can;
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const auto& row) {
        return keyIndex_ >= 0 && row[std::size_t(keyIndex_)] == bookmark;
    });
    if (found == rows_.end())
        return DbResult::Failure(QStringLiteral("Not a valid bookmark."));
    SetPosition(int(found - rows_.begin()));
    return DbResult::Success();
}

void DataControl::Bind(const QString& field, BoundControl* control)
{
    bound_.emplace_back(field, control);
    control->ShowValue(Field(field));
}

void DataControl::Unbind(BoundControl* control)
{
    std::erase_if(bound_, [control](const auto& b) { return b.second == control; });
}

void DataControl::ShowBound()
{
    for (const auto& [field, control] : bound_)
        control->ShowValue(Field(field));
}

DbResult DataControl::AddRecords(const std::vector<FieldValues>& records)
{
    if (DbResult can = CheckCanChange(); !can)
        return can;
    if (DbResult added = db_.InsertRecords(sourceTable_, records); !added)
        return added;
    return Refresh();
}

DbResult DataControl::UpdateRecords(const std::vector<RecordChange>& changes)
{
    if (DbResult can = CheckCanChange(); !can)
        return can;
    if (DbResult updated =
            db_.UpdateRecords(sourceTable_, fields_[std::size_t(keyIndex_)], changes);
        !updated)
        return updated;
    return Refresh();
}
