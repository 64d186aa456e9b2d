// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/helpwindow.h"

#include <QFile>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

HelpWindow::HelpWindow(const QString& file, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Quillmere Help"));
    Browser = new QTextBrowser(this);
    Browser->setOpenExternalLinks(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Browser);
    resize(560, 600);
    if (QFile::exists(file))
        Browser->setSource(QUrl::fromLocalFile(file));
    else
        Browser->setPlainText(tr("The help file %1 is missing. Reinstall Quillmere, "
                                 "or delete the program folder's copy so that it is "
                                 "put back at the next start.")
                                  .arg(file));
}
