// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/importcatches.h"

#include "logdb/backups.h"
#include "logdb/logimport.h"
#include "platform/clock.h"
#include "ui/common/busypointer.h"
#include "ui/common/messageservice.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

QString Title() { return QCoreApplication::translate("ImportCatches", "Import Catches"); }
constexpr qsizetype IssuesShown = 20;

QString IssueReport(const ImportPlan& plan)
{
    QStringList lines = IssueLines(plan);
    if (lines.isEmpty())
        return {};
    const qsizetype more = lines.size() - IssuesShown;
    if (more > 0) {
        lines = lines.mid(0, IssuesShown);
        lines << QCoreApplication::translate("ImportCatches", "... and %1 more").arg(more);
    }
    return QStringLiteral("\n\n") + lines.join('\n');
}

// Skip or Overwrite, or nothing when the angler cancels.
std::optional<ImportChoice> AskChoice(MessageService& messages, const ImportPlan& plan,
                                      const QString& name)
{
    const QString found =
        QCoreApplication::translate("ImportCatches", "%1 day(s) can be imported into %2.%3\n\n")
            .arg(plan.Rows.size())
            .arg(name, IssueReport(plan));
    if (plan.OccupiedRows() == 0) {
        const MsgResult go = messages.MsgBox(
            found + QCoreApplication::translate(
                        "ImportCatches", "OK imports them; lines with problems are left out."),
            MsgButtons::OKCancel, Title(), MsgIcon::Question);
        return go == MsgResult::OK ? std::optional(ImportChoice::Skip) : std::nullopt;
    }
    const MsgResult answer = messages.MsgBox(
        found + QCoreApplication::translate(
                    "ImportCatches", "%1 of these days already hold an entry. Yes overwrites those "
                                     "entries, No keeps them and imports the rest, Cancel imports "
                                     "nothing.")
                    .arg(plan.OccupiedRows()),
        MsgButtons::YesNoCancel, Title(), MsgIcon::Question);
    if (answer == MsgResult::Yes)
        return ImportChoice::Overwrite;
    return answer == MsgResult::No ? std::optional(ImportChoice::Skip) : std::nullopt;
}

void Say(MessageService& messages, const QString& text, MsgIcon icon = MsgIcon::None)
{
    messages.MsgBox(text, MsgButtons::OK, Title(), icon);
}

} // namespace

void ImportCatches(const LogContext& context, const QString& yearFile, const QString& csvPath)
{
    MessageService& messages = context.Messages;
    const QString name = QFileInfo(yearFile).fileName();
    QByteArray csv;
    if (const DbResult read = ReadImportFile(csvPath, csv); !read)
        return Say(messages,
                   QCoreApplication::translate("ImportCatches", "Nothing was imported: %1.")
                       .arg(read.Message),
                   MsgIcon::Critical);
    ImportPlan plan;
    const bool json =
        QFileInfo(csvPath).suffix().compare(QLatin1String("json"), Qt::CaseInsensitive) == 0;
    const int year = name.left(4).toInt();
    if (DbResult planned = json ? PlanJsonImport(yearFile, year, csv, plan)
                                : PlanImport(yearFile, year, csv, plan);
        !planned)
        return Say(messages,
                   QCoreApplication::translate("ImportCatches", "Nothing was imported: %1")
                       .arg(planned.Message),
                   MsgIcon::Critical);
    if (plan.Rows.empty())
        return Say(messages,
                   QCoreApplication::translate("ImportCatches",
                                               "The file holds no catch entry to import into %1.%2")
                       .arg(name, IssueReport(plan)));
    const std::optional<ImportChoice> choice = AskChoice(messages, plan, name);
    if (!choice)
        return;
    ImportCount count;
    DbResult done;
    {
        const BusyPointer busy;
        done = BackUpIfChanged(yearFile, Clock::Now());
        if (done)
            done = ApplyImport(yearFile, plan, *choice, count);
    }
    if (!done)
        return Say(messages,
                   QCoreApplication::translate("ImportCatches", "Nothing was imported: %1")
                       .arg(done.Message),
                   MsgIcon::Critical);
    Say(messages, QCoreApplication::translate("ImportCatches",
                                              "%1 day(s) of %2 now hold the imported entries%3.")
                      .arg(count.Written)
                      .arg(name, GainedEntryNote(count)));
}
