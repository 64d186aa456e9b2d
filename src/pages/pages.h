// SPDX-License-Identifier: GPL-3.0-or-later
// Printed pages without widgets: a document is a drawing called once per page, written to a
// PDF file here or sent to a printer by printer.h. The command-line programs use this part
// alone, so it needs QtGui only.
#pragma once

#include <QPageLayout>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>

class QPagedPaintDevice;
class QPainter;

// Draws page `page` (0, 1, ...) into `area`, the printable part of the paper in the painter's
// device units with its top-left corner at (0, 0); returns true when another page follows.
using PageDrawing = std::function<bool(QPainter& painter, const QRectF& area, int page)>;

// Paints the drawing's pages on a printer or PDF writer whose printable area is area; false
// when the device cannot be painted on.
bool PaintPages(QPagedPaintDevice& device, const QRectF& area, const PageDrawing& draw);

// The paper of the user's locale: Letter where US measures are used, A4 elsewhere, upright,
// with half-inch margins.
QPageLayout DefaultPageLayout(QPageLayout::Orientation orientation = QPageLayout::Portrait);

// True when nothing is at path or it is a PDF file: what a PDF may be written over.
bool IsPdfOrAbsent(const QString& path);

// Writes the document as a PDF file under a temporary name, synced, and renames it into place,
// so an earlier file of that name stays whole until the new one is complete; a file that is
// not a PDF (a year file, a letter) is never written over. Returns an empty text
// when written, else one line saying which file could not be written and why.
QString WritePdf(const QString& path, const QString& title, const QPageLayout& layout,
                 const PageDrawing& draw);

// Sets the painter so that a drawing made in twips (1/1440 inch), `contentTwips` in size,
// appears `scale` times its true size at the top of `area`, centred across it, made smaller
// when it would not fit. Returns the scale used (`scale`, or less when shrunk to fit).
double PlaceTwips(QPainter& painter, const QRectF& area, const QSizeF& contentTwips, double scale);

// A font whose size is given in points, for drawings made in twips.
QFont TwipsFont(const QString& family, double points, bool bold);
