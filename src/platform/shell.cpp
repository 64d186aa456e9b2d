// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell.h"

#include <QDesktopServices>
#include <QUrl>

bool OpenLink(const QString& operation, const QString& file, const QString& parameters,
              const QString& folder)
{
    if (operation.compare(QLatin1String("open"), Qt::CaseInsensitive) != 0)
        return false;
    QUrl url(file, QUrl::TolerantMode);
    if (url.isRelative() && !folder.isEmpty())
        url = QUrl::fromLocalFile(folder + "/" + file);
    if (!parameters.isEmpty())
        url.setQuery(parameters);
    return QDesktopServices::openUrl(url);
}
