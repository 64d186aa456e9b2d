// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/headlessapp.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

void WithoutRuntimeDirNote(QtMsgType type, const QMessageLogContext& context,
                           const QString& message)
{
    if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

std::unique_ptr<QCoreApplication> HeadlessApplication(bool printing, int& argc, char** argv)
{
    qInstallMessageHandler(WithoutRuntimeDirNote);
    if (!printing)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}
