// SPDX-License-Identifier: GPL-3.0-or-later
// The data control the log windows work through: a database file, an SQL record source in
// the program's dialect, the current record of its result, edits written back by the
// record's key, and bound controls that show and edit one column each.
//
// The result of Refresh is read whole (a year is 366 records), so the record count is exact
// at once and moves never touch the file. A record source that reads one table whose key
// column is among its fields can be edited; edits go to that table by key.
#pragma once

#include "db/database.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

// What a window puts on a box bound to a column, without the layer knowing the widget.
class BoundControl {
public:
    virtual ~BoundControl() = default;
    // Shows the column's value of the current record in its stored form (null when there is
    // no current record).
    virtual void ShowValue(const QVariant& stored) = 0;
    // The value the user entered since the last ShowValue, if any; Update writes it.
    virtual std::optional<QVariant> EditedValue() const = 0;
};

class DataControl : public QObject {
    Q_OBJECT

public:
    enum class EditState { None, Editing, Adding };

    explicit DataControl(QObject* parent = nullptr);
    ~DataControl() override;

    // The file and the Jet connect string (";pwd=..."); both take effect at the next Refresh.
    void SetDatabaseName(const QString& path) { databaseName_ = path; }
    QString DatabaseName() const { return databaseName_; }
    void SetConnect(const QString& connect) { connect_ = connect; }
    QString Connect() const { return connect_; }
    // Each "?" in the statement stands for the next of the parameters: a user's entry reaches
    // the engine as a bound value, never as part of the statement.
    void SetRecordSource(const QString& jetSql, const QVariantList& parameters = {})
    {
        recordSource_ = jetSql;
        parameters_ = parameters;
    }
    QString RecordSource() const { return recordSource_; }
    // Edits saved through this control are also written to this table by key, so an entry
    // made while a query result is shown reaches the log table itself.
    void SetMirrorTable(const QString& table) { mirrorTable_ = table; }

    // Opens the file if needed, reads the record source and makes the first record current.
    DbResult Refresh();
    // Drops the result and closes the file.
    void Close();

    DbResult MoveFirst();
    DbResult MoveLast();
    DbResult MoveNext();
    DbResult MovePrevious();
    // Before the first record / after the last one; both when there are no records.
    bool IsBOF() const;
    bool IsEOF() const;
    int RecordCount() const { return int(rows_.size()); }
    // The current record's index from 0; -1 when there is none.
    int AbsolutePosition() const;

    // Makes the first record that meets the condition ("dbid = 12", "City = ?" with the
    // parameters) current; NoMatch tells whether there was none, in which case the current
    // record stays.
    DbResult FindFirst(const QString& condition, const QVariantList& parameters = {});
    bool NoMatch() const { return noMatch_; }

    DbResult Edit();
    DbResult AddNew();
    // Saves the edit or the new record, bound controls' entries included; when another program
    // has put a new file under the name since it was opened, that file is opened first and
    // the edit goes into it. A new record is
    // added at the end of the result; the record that was current stays current.
    DbResult Update();
    void CancelUpdate();
    // Deletes the current record; the next one (or else the last) becomes current.
    DbResult Delete();
    EditState EditMode() const { return editState_; }

    // Bookmarks are key values: a record's key, and the last one saved.
    DbResult SetBookmark(const QVariant& bookmark);
    QVariant LastModified() const { return lastModified_; }
    bool Updatable() const { return keyIndex_ >= 0; }

    int FieldCount() const { return int(fields_.size()); }
    QString FieldName(int index) const;
    // The field's index, names compared without regard to case; -1 when there is none.
    int FieldIndex(const QString& name) const;
    ColumnKind FieldKind(int index) const;
    // Values in their stored form; while editing, the edited values.
    QVariant Field(int index) const;
    QVariant Field(const QString& name) const { return Field(FieldIndex(name)); }
    DbResult SetField(int index, const QVariant& value);
    DbResult SetField(const QString& name, const QVariant& value);

    // A bound control shows its column on every reposition and gives its entry to Update.
    // The control must be unbound before it is destroyed.
    void Bind(const QString& field, BoundControl* control);
    void Unbind(BoundControl* control);

    // Adds many records to the source table in one transaction (all or, on failure, none),
    // then refreshes: the year fill's way of writing.
    DbResult AddRecords(const std::vector<FieldValues>& records);

    // Changes many records of the source table by their keys in one transaction (all or, on
    // failure, none), then refreshes: for walks over a whole result.
    DbResult UpdateRecords(const std::vector<RecordChange>& changes);

signals:
    // Another record became current, or there is none any more.
    void Reposition();

private:
    DbResult OpenIfNeeded();
    DbResult ReopenIfReplaced();
    void Load(RowSet rows, const QString& sourceTable);
    DbResult MoveTo(int index);
    void SetPosition(int index);
    void ShowBound();
    bool HasCurrent() const;
    DbResult CheckCanMove() const;
    DbResult CheckCanChange() const; // CheckCanMove, and a key to write by
    DbResult CollectBoundEntries();
    FieldValues ChangedFields() const;
    DbResult ReadBack(const QString& keyColumn, const QVariant& key, std::vector<QVariant>& row);

    QString databaseName_;
    QString connect_;
    QString recordSource_;
    QVariantList parameters_;
    QString mirrorTable_;
    QString openedName_;
    QString openedConnect_;
    // The file the connection reads: another program's compaction or restore puts a new file
    // under the same name, and the connection would go on reading the old one.
    std::pair<quint64, quint64> openedFile_{};
    Database db_;

    QString sourceTable_;
    std::vector<QString> fields_;
    std::vector<ColumnKind> kinds_;
    std::vector<std::vector<QVariant>> rows_;
    int keyIndex_ = -1;
    int position_ = 0;
    bool noMatch_ = false;

    EditState editState_ = EditState::None;
    std::vector<QVariant> buffer_;
    std::vector<bool> changed_;
    QVariant lastModified_;

    std::vector<std::pair<QString, BoundControl*>> bound_;
};
