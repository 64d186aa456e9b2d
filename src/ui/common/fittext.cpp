// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/common/fittext.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>

namespace {
constexpr int LineEditMargin = 2; // QLineEdit's own margin on each side of the text
constexpr int CursorWidth = 1;
} // namespace

void FitToText(QLineEdit* box, const QStringList& widest)
{
    int text = 0;
    for (const QString& sample : widest)
        text = std::max(text, box->fontMetrics().horizontalAdvance(sample));
    const QMargins margins = box->textMargins();
    QStyleOptionFrame option;
    option.initFrom(box);
    option.lineWidth =
        box->hasFrame() ? box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
    const QSize inner(text + 2 * LineEditMargin + CursorWidth + margins.left() + margins.right(),
                      box->fontMetrics().height());
    box->setMinimumWidth(
        box->style()->sizeFromContents(QStyle::CT_LineEdit, &option, inner, box).width());
}

void FixToText(QLineEdit* box, const QStringList& widest)
{
    FitToText(box, widest);
    box->setMaximumWidth(box->minimumWidth());
}
