// SPDX-License-Identifier: GPL-3.0-or-later
// The day's catches under the record browser's fields: one row each with its time, species,
// count, measures in the chosen units, released or kept, bait, spot and its photos as
// thumbnails. Add, Edit and Remove write through the log's catch operations; photo files
// dropped onto the browser start a new catch with them (or join the catch they land on).
#pragma once

#include "logdb/catches.h"
#include "logdb/logstate.h"
#include "ui/log/photothumbs.h"

#include <QWidget>

#include <functional>
#include <vector>

class CatchEditor;
class QLabel;
class QPushButton;
class QTreeWidget;

class CatchList : public QWidget {
    Q_OBJECT

public:
    CatchList(const LogContext& context, QWidget* parent = nullptr);

    // Shows the catches of the day ("2024-03-10") in the year file.
    void ShowDay(const QString& yearFile, const QString& date);

    // Handlers, connected explicitly and callable from tests.
    void cmdAddCatch_Click();
    void cmdEditCatch_Click();
    void cmdRemoveCatch_Click();
    void Catches_DblClick(int row, int column, int x);
    // Photo files dropped onto the catch in `row`, or onto the browser (row -1): a new catch.
    void PhotosDropped(const QStringList& files, int row);

    const std::vector<Catch>& Shown() const { return DayCatches; }

    // Runs the catch editor modally; tests put their own in its place.
    std::function<int(CatchEditor&)> RunEditor;

    QTreeWidget* Catches = nullptr;
    QPushButton* cmdAddCatch = nullptr;
    QPushButton* cmdEditCatch = nullptr;
    QPushButton* cmdRemoveCatch = nullptr;
    QLabel* Notice = nullptr; // photos that are missing, and why a day could not be read

signals:
    // A catch was written: the day's record (its Total Taken) changed too.
    void CatchesChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void FillRow(int row, const Catch& c, QStringList& missing);
    QPixmap PhotoStrip(const Catch& c, QStringList& missing);
    void Edit(const Catch& start, const QStringList& newPhotos);
    void WatchDrops(QWidget* target);

    LogContext Ctx;
    PhotoThumbnails Thumbnails;
    QString YearFile;
    QString Date;
    std::vector<Catch> DayCatches;
};
