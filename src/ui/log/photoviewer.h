// SPDX-License-Identifier: GPL-3.0-or-later
// A catch's photo at full size, scrolled when it is larger than the screen.
#pragma once

#include <QDialog>

class MessageService;
class QLabel;

class PhotoViewer : public QDialog {
    Q_OBJECT

public:
    // image: already read; the caller reports a file that cannot be read.
    PhotoViewer(const QImage& image, const QString& title, QWidget* parent = nullptr);

    QLabel* Picture = nullptr;
};

// Opens the photo file in a viewer; a file that is missing or not a picture gets a message
// instead, naming it. False then.
bool ShowPhoto(MessageService& messages, const QString& path, QWidget* parent);
