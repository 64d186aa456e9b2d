#include "app/daycellwidget.h"

#include "platform/twips.h"

#include <QMouseEvent>
#include <QPainter>

DayCellWidget::DayCellWidget(int index, QWidget* parent) : QWidget(parent), CellIndex(index)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
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

void DayCellWidget::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Now.Background);
    if (!Now.Phase.isNull())
        p.drawPixmap(TwipsPoint(520, 1), Now.Phase);
    if (!Now.Rating.isNull())
        p.drawPixmap(TwipsPoint(1, 200), Now.Rating);

    QFont bold = font();
    bold.setBold(true);
    p.setFont(bold);
    const QFontMetrics fm(bold);
    const QString number = " " + Now.Number + " ";
    p.setPen(Now.TextColor);
    p.drawText(0, fm.ascent(), number);
    p.setPen(VbColor(0x0000FF));
    p.drawText(fm.horizontalAdvance(number), fm.ascent(), QString("^^").repeated(Now.Marks));

    if (IsFramed) {
        // Pen width 3 from (-15, -20) to (width + 5, height + 5) twips: along the cell's edges.
        p.setPen(QPen(VbColor(0x0000FF), 3));
        p.drawRect(QRectF(1, 1, width() - 2.5, height() - 2.5));
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
