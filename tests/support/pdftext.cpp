// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/pdftext.h"

#include <QProcess>
#include <QRegularExpression>

namespace {
QString Run(const QString& program, const QStringList& args)
{
    QProcess p;
    p.start(program, args);
    if (!p.waitForFinished(30000) || p.exitCode() != 0)
        return {};
    return QString::fromUtf8(p.readAllStandardOutput());
}
} // namespace

namespace testenv {
QString PdfText(const QString& path)
{
    return Run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
}

int PdfPages(const QString& path)
{
    const QString info = Run(QStringLiteral("pdfinfo"), {path});
    const auto m = QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(info);
    return m.hasMatch() ? m.captured(1).toInt() : 0;
}

} // namespace testenv
