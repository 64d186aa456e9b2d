// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/daycellwidget.h"

#include "pages/stockpictures.h"
#include "pages/twips.h"
#include "ui/common/themecolours.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

DayCellWidget::DayCellWidget(int index, QWidget* parent) : QWidget(parent), CellIndex(index)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DayCellWidget::SetContent(Content content)
{
    Now = std::move(content);
    setEnabled(Now.Enabled);
    update();
}

void DayCellWidget::SetFramed(bool framed)
{
    IsFramed = framed;
    update();
}

namespace {
// The selection frame's pen and the gap kept between it and the content.
constexpr int FramePen = 3, Margin = 1;

QFont BoldOf(const QFont& f)
{
    QFont bold = f;
    bold.setBold(true);
    return bold;
}

QString MarksText(int marks) { return QString("^^").repeated(marks); }

// The widest content a cell holds: a two-digit day with its three marks, a phase picture
// beside the number, a rating fish below.
constexpr int WidestMarks = 3;
const QString WidestNumber = QStringLiteral("30");
constexpr int DesignWidth = 57, DesignHeight = 48; // the cell at 96 dpi
} // namespace

QSize DayCellWidget::minimumSizeHint() const
{
    static const QSize phase = PhaseSymbol(1).size(), fish = FishPicture(4).size();
    const QFontMetrics fm(BoldOf(font()));
    const int frame = 2 * (FramePen + Margin);
    const int numberLine = std::max(fm.horizontalAdvance(WidestNumber) + Margin + phase.width(),
                                    fm.horizontalAdvance(MarksText(WidestMarks)));
    const int width = std::max(numberLine, fish.width());
    const int height =
        fm.height() + fm.tightBoundingRect(QStringLiteral("^")).height() + fish.height() + Margin;
    return {frame + width, frame + height};
}

QSize DayCellWidget::sizeHint() const
{
    return minimumSizeHint().expandedTo({DesignWidth, DesignHeight});
}

DayCellWidget::Measures& DayCellWidget::Measured() const
{
    if (!Measure) {
        const QFont bold = BoldOf(font());
        const QFontMetrics fm(bold);
        Measure.emplace(Measures{bold, fm, fm.tightBoundingRect(QStringLiteral("^")), {}});
    }
    return *Measure;
}

QSize DayCellWidget::NumberSize() const
{
    Measures& m = Measured();
    const auto known = m.Numbers.constFind(Now.Number);
    if (known != m.Numbers.cend())
        return *known;
    return *m.Numbers.insert(Now.Number, m.Metrics.boundingRect(Now.Number).size());
}

void DayCellWidget::changeEvent(QEvent* e)
{
    if (e->type() == QEvent::FontChange)
        Measure.reset();
    QWidget::changeEvent(e);
}

DayCellWidget::Placement DayCellWidget::Place() const
{
    Placement p;
    p.Inside = rect().adjusted(FramePen + Margin, FramePen + Margin, -(FramePen + Margin),
                               -(FramePen + Margin));
    const Measures& m = Measured();
    p.Number = QRect(p.Inside.topLeft(), NumberSize());
    // The marks' line is as tall as a caret's ink, just below the number.
    p.Marks = QRect(p.Inside.left(), p.Number.bottom() + 1,
                    m.Metrics.horizontalAdvance(MarksText(Now.Marks)), m.Caret.height());
    if (!Now.Phase.isNull())
        p.Phase = QRect(QPoint(p.Inside.right() + 1 - Now.Phase.width(), p.Inside.top()),
                        Now.Phase.size());
    if (!Now.Rating.isNull())
        p.Rating = QRect(QPoint(p.Inside.left(), p.Inside.bottom() + 1 - Now.Rating.height()),
                         Now.Rating.size());
    return p;
}

void DayCellWidget::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Now.Background);
    const Placement at = Place();
    if (!Now.Phase.isNull())
        p.drawPixmap(at.Phase.topLeft(), Now.Phase);
    if (!Now.Rating.isNull())
        p.drawPixmap(at.Rating.topLeft(), Now.Rating);

    const Measures& m = Measured();
    p.setFont(m.Bold);
    p.setPen(Now.TextColor);
    p.drawText(at.Number.left(), at.Number.top() + m.Metrics.ascent(), Now.Number);
    const QColor red = ThemedText(VbColor(0x0000FF), palette());
    p.setPen(red);
    if (Now.Marks > 0) // the caret's top lies above the baseline
        p.drawText(at.Marks.left(), at.Marks.top() - m.Caret.top(), MarksText(Now.Marks));

    if (IsFramed) {
        p.setPen(QPen(red, FramePen));
        p.drawRect(QRectF(1.5, 1.5, width() - 3.0, height() - 3.0));
    }
}

void DayCellWidget::mousePressEvent(QMouseEvent* e) { emit MousePressed(CellIndex, e->button()); }

void DayCellWidget::mouseReleaseEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()))
        emit Clicked(CellIndex);
}

void DayCellWidget::mouseDoubleClickEvent(QMouseEvent*) { emit DoubleClicked(CellIndex); }

void DayCellWidget::mouseMoveEvent(QMouseEvent*) { emit MouseMoved(CellIndex); }
