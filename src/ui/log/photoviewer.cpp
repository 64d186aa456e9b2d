// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/photoviewer.h"

#include "ui/common/messageservice.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

PhotoViewer::PhotoViewer(const QImage& image, const QString& title, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(title);
    Picture = new QLabel(this);
    Picture->setObjectName(QStringLiteral("Picture"));
    Picture->setPixmap(QPixmap::fromImage(image));
    auto* area = new QScrollArea(this);
    area->setWidget(Picture);
    area->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    // As large as the photo, within most of the screen.
    QSize room = image.size() + QSize(4, 4);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        room = room.boundedTo(screen->availableGeometry().size() * 9 / 10);
    resize(room);
}

bool ShowPhoto(MessageService& messages, const QString& path, QWidget* parent)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull()) {
        const QString why = QFileInfo::exists(path)
                                ? reader.errorString()
                                : QCoreApplication::translate("PhotoViewer", "the file is missing");
        messages.MsgBox(
            QCoreApplication::translate("PhotoViewer", "The photo %1 cannot be shown: %2.")
                .arg(path, why),
            MsgButtons::OK, QCoreApplication::translate("PhotoViewer", "Photo"),
            MsgIcon::Exclamation);
        return false;
    }
    PhotoViewer viewer(image, QFileInfo(path).fileName(), parent);
    viewer.exec();
    return true;
}
