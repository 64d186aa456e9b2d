// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/databar.h"

#include "db/datacontrol.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {
QToolButton* Arrow(const QString& text, const QString& tip, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setText(text);
    button->setToolTip(tip);
    return button;
}
} // namespace

DataBar::DataBar(DataControl& control, QWidget* parent) : QWidget(parent), Control(control)
{
    setObjectName(QStringLiteral("Data1"));
    First = Arrow(QStringLiteral("|<"), DataBar::tr("First record"), this);
    Previous = Arrow(QStringLiteral("<"), DataBar::tr("Previous record"), this);
    Next = Arrow(QStringLiteral(">"), DataBar::tr("Next record"), this);
    Last = Arrow(QStringLiteral(">|"), DataBar::tr("Last record"), this);
    CaptionLabel = new QLabel(this);
    CaptionLabel->setAlignment(Qt::AlignCenter);
    CaptionLabel->setFrameShape(QFrame::StyledPanel);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(First);
    row->addWidget(Previous);
    row->addWidget(CaptionLabel, 1);
    row->addWidget(Next);
    row->addWidget(Last);

    connect(First, &QToolButton::clicked, this, [this] { Move(&DataControl::MoveFirst); });
    connect(Last, &QToolButton::clicked, this, [this] { Move(&DataControl::MoveLast); });
    connect(Previous, &QToolButton::clicked, this, [this] { Step(-1); });
    connect(Next, &QToolButton::clicked, this, [this] { Step(1); });
}

void DataBar::SetCaption(const QString& caption) { CaptionLabel->setText(caption); }
QString DataBar::Caption() const { return CaptionLabel->text(); }

void DataBar::Move(DbResult (DataControl::*step)())
{
    if (const DbResult moved = (Control.*step)(); !moved)
        emit Error(moved.Message);
}

void DataBar::Step(int by)
{
    const int target = Control.AbsolutePosition() + by;
    if (target < 0 || target >= Control.RecordCount())
        return;
    Move(by < 0 ? &DataControl::MovePrevious : &DataControl::MoveNext);
}
