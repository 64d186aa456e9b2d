// SPDX-License-Identifier: GPL-3.0-or-later
// The visible part of a data control: buttons to the first, previous, next and last record
// around a caption that the window sets (the record counter).
#pragma once

#include "db/database.h"

#include <QWidget>

class DataControl;
class QLabel;
class QToolButton;

class DataBar : public QWidget {
    Q_OBJECT

public:
    DataBar(DataControl& control, QWidget* parent = nullptr);
    void SetCaption(const QString& caption);
    QString Caption() const;

    QToolButton* First = nullptr;
    QToolButton* Previous = nullptr;
    QToolButton* Next = nullptr;
    QToolButton* Last = nullptr;

signals:
    // A move failed; the text says why.
    void Error(const QString& message);

private:
    void Move(DbResult (DataControl::*step)());
    // Next stops at the last record and Previous at the first, as the bar's arrows do.
    void Step(int by);

    DataControl& Control;
    QLabel* CaptionLabel = nullptr;
};
