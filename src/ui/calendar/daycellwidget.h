// SPDX-License-Identifier: GPL-3.0-or-later
// One day cell of the month grid: background, the day number with its "^^" marks below it,
// the phase picture at the top right, the rating picture at the bottom left, and the red
// frame of the selected day along the edges, clear of all of them. It paints what it is given
// and reports the mouse to the window.
#pragma once

#include <QFontMetrics>
#include <QHash>
#include <QPixmap>
#include <QWidget>

#include <optional>

class DayCellWidget : public QWidget {
    Q_OBJECT
public:
    struct Content {
        QColor Background;
        QColor TextColor;
        QString Number;
        int Marks = 0; // red "^^" after the number
        QPixmap Phase;
        QPixmap Rating;
        bool Enabled = true;
    };

    explicit DayCellWidget(int index, QWidget* parent = nullptr);
    void SetContent(Content content);
    const Content& Shown() const { return Now; }
    // The red frame of the selected cell.
    void SetFramed(bool framed);
    bool Framed() const { return IsFramed; }

    // Where each part of the content is painted, in the cell's pixels.
    struct Placement {
        QRect Number, Marks, Phase, Rating;
        QRect Inside; // within the selection frame
    };
    Placement Place() const;
    // Room for the widest content in the cell's font; the cell grows from there.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

signals:
    void Clicked(int index);
    void DoubleClicked(int index);
    void MouseMoved(int index);
    void MousePressed(int index, Qt::MouseButton button);

protected:
    void paintEvent(QPaintEvent*) override;
    void changeEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    // The bold font's measures, kept while the font stays: measuring a text shapes it, and
    // the cells repaint far more often than their font changes.
    struct Measures {
        QFont Bold;
        QFontMetrics Metrics;
        QRect Caret;                   // a caret's ink, from the baseline
        QHash<QString, QSize> Numbers; // each day number's bounding box, as first measured
    };
    Measures& Measured() const;
    QSize NumberSize() const;

    int CellIndex;
    Content Now;
    bool IsFramed = false;
    mutable std::optional<Measures> Measure;
};
