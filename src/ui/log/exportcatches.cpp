// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/exportcatches.h"

#include "astro/astronomy.h"
#include "logdb/catchexport.h"
#include "ui/common/busypointer.h"
#include "ui/common/messageservice.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString Title() { return QCoreApplication::translate("ExportCatches", "Export Catches"); }

// Written under a temporary name and renamed into place: a failed export leaves no half file.
DbResult WriteWhole(const QString& target, const std::string& text)
{
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(text.data(), qint64(text.size())) != qint64(text.size()) || !file.commit())
        return DbResult::Failure(file.errorString());
    return {};
}

} // namespace

void ExportCatches(const LogContext& context, const QString& yearFile, const QString& target)
{
    CatchLogTable table;
    DbResult done;
    {
        const BusyPointer busy;
        done = ExportCatchTable(yearFile, context.Engine.Site.AMPM, table);
        const bool json =
            QFileInfo(target).suffix().compare(QLatin1String("json"), Qt::CaseInsensitive) == 0;
        if (done)
            done = WriteWhole(target, json ? CatchTableAsJson(table) : CatchTableAsCsv(table));
    }
    if (!done) {
        context.Messages.MsgBox(
            QCoreApplication::translate("ExportCatches", "Nothing was exported: %1")
                .arg(done.Message),
            MsgButtons::OK, Title(), MsgIcon::Critical);
        return;
    }
    std::size_t catches = 0;
    for (const auto& day : table.Catches)
        catches += day.size();
    context.Messages.MsgBox(
        QCoreApplication::translate("ExportCatches",
                                    "%1 day(s) and %2 catch(es) of %3 were written to %4.")
            .arg(table.Days.Rows.size())
            .arg(catches)
            .arg(QFileInfo(yearFile).fileName(), target),
        MsgButtons::OK, Title(), MsgIcon::Information);
}
