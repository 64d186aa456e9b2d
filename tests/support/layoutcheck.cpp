// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/layoutcheck.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScreen>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

namespace layoutcheck {
namespace {

constexpr double BaseDpi = 96.0;
constexpr int EditPadding = 2 * 2 + 1; // QLineEdit's margin on each side and the cursor

QString Name(const QWidget& w)
{
    const QString own = w.objectName();
    return QStringLiteral("%1 %2").arg(
        w.metaObject()->className(),
        own.isEmpty() && w.parentWidget() != nullptr ? w.parentWidget()->objectName() : own);
}

struct Faults {
    QStringList Lines;
    // A text that needs more pixels (wide, or high when `high`) than its widget gives it.
    void Need(const QWidget& w, const QString& text, int needed, int room, bool high = false)
    {
        if (needed > room)
            Lines << QString::asprintf("%s '%s': needs %d px%s, has %d px", qPrintable(Name(w)),
                                       qPrintable(text), needed, high ? " high" : "", room);
    }
    // A text needs its widget's own size hint, which the style computes from the text.
    void NeedHint(const QWidget& w, const QString& text, QSize hint)
    {
        Need(w, text, hint.width(), w.width());
        Need(w, text, hint.height(), w.height(), true);
    }
};

// A text as drawn with mnemonics: "&Edit" takes the room of "Edit"; several lines stack.
QSize TextSize(const QWidget& w, const QString& text)
{
    return w.fontMetrics().size(Qt::TextShowMnemonic, text);
}

// A label, check box, option button or group box with a text asks for the room it takes; a
// wrapped label's height follows its width.
void CheckByHint(const QWidget& w, const QString& text, Faults& f)
{
    if (text.isEmpty())
        return;
    if (const auto* label = qobject_cast<const QLabel*>(&w); label && label->wordWrap())
        return f.Need(w, text, label->heightForWidth(w.width()), w.height(), true);
    f.NeedHint(w, text, w.minimumSizeHint());
}

// Check boxes and option buttons size to their text; a push button's hint has a least width,
// so its text is measured against the room inside its margins.
void CheckButton(QAbstractButton& button, Faults& f)
{
    const QString text = button.text();
    if (text.isEmpty())
        return;
    if (qobject_cast<QCheckBox*>(&button) || qobject_cast<QRadioButton*>(&button))
        return CheckByHint(button, text, f);
    QStyleOptionButton option;
    option.initFrom(&button);
    const QStyle* style = button.style();
    const int margin = style->pixelMetric(QStyle::PM_ButtonMargin, &option, &button) +
                       2 * style->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &button);
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
    f.Need(button, text, TextSize(button, text).width(), button.width() - margin - icon);
    f.Need(button, text, TextSize(button, text).height(), button.height(), true);
}

void CheckLineEdit(const QLineEdit& edit, Faults& f)
{
    const QString text = edit.displayText().isEmpty() ? edit.placeholderText() : edit.displayText();
    if (text.isEmpty())
        return;
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth =
        edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
    const QRect room = edit.style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, &edit)
                           .marginsRemoved(edit.textMargins());
    f.Need(edit, text, edit.fontMetrics().horizontalAdvance(text) + EditPadding, room.width());
    f.Need(edit, text, edit.fontMetrics().height(), room.height(), true);
}

// The current text in the edit field, then every item in the popup as the combo box opens it.
void CheckCombo(QComboBox& combo, Faults& f)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    const QString text = combo.currentText();
    if (!text.isEmpty())
        f.Need(combo, text,
               combo.fontMetrics().horizontalAdvance(text) + (combo.isEditable() ? EditPadding : 0),
               field.width());
    if (combo.count() == 0)
        return;
    combo.showPopup();
    const QAbstractItemView* view = combo.view();
    for (int i = 0; i < combo.count(); ++i)
        f.Need(combo, combo.itemText(i), view->sizeHintForIndex(combo.model()->index(i, 0)).width(),
               view->viewport()->width());
    combo.hidePopup();
}

// A menu bar hides what does not fit behind its extension button; a menu must fit the screen.
void CheckMenuBar(const QMenuBar& bar, Faults& f)
{
    if (const auto* more = bar.findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
        more != nullptr && more->isVisible())
        f.Lines << Name(bar) + ": items hidden behind the extension button";
    for (QAction* action : bar.actions())
        if (const QMenu* menu = action->menu())
            f.Need(*menu, menu->title(), menu->sizeHint().width(),
                   bar.screen()->availableGeometry().width());
}

// A table's column headings and the cells it shows, each against its column; row headings
// against the header's width.
void CheckTable(QTableView& table, Faults& f)
{
    const QAbstractItemModel* model = table.model();
    if (model == nullptr)
        return;
    const QHeaderView* rows = table.verticalHeader();
    if (rows->isVisible())
        f.Need(*rows, "row headings", rows->sizeHint().width(), rows->width());
    for (int column = 0; column < model->columnCount(); ++column) {
        if (table.isColumnHidden(column))
            continue;
        const QString heading = model->headerData(column, Qt::Horizontal).toString();
        const int room = table.columnWidth(column);
        f.Need(table, heading, table.horizontalHeader()->sectionSizeHint(column), room);
        if (model->rowCount() > 0)
            f.Need(table, "cells of " + heading,
                   static_cast<QAbstractItemView&>(table).sizeHintForColumn(column) -
                       (table.showGrid() ? 1 : 0),
                   room);
    }
}

// A child is cut off where it leaves its parent; the contents of a scroll area may.
void CheckPlace(const QWidget& child, Faults& f)
{
    const QWidget* parent = child.parentWidget();
    const auto* area = qobject_cast<const QAbstractScrollArea*>(parent->parentWidget());
    if ((area != nullptr && area->viewport() == parent) ||
        parent->rect().contains(child.geometry()))
        return;
    f.Lines << QString::asprintf("%s: lies at %d,%d %dx%d outside its parent's %dx%d",
                                 qPrintable(Name(child)), child.x(), child.y(), child.width(),
                                 child.height(), parent->width(), parent->height());
}

void CheckWidget(QWidget& w, Faults& f)
{
    CheckPlace(w, f);
    if (auto* label = qobject_cast<QLabel*>(&w))
        CheckByHint(w, label->text(), f);
    else if (auto* button = qobject_cast<QAbstractButton*>(&w))
        CheckButton(*button, f);
    else if (auto* edit = qobject_cast<QLineEdit*>(&w);
             edit != nullptr && qobject_cast<QComboBox*>(w.parentWidget()) == nullptr)
        CheckLineEdit(*edit, f);
    else if (auto* combo = qobject_cast<QComboBox*>(&w))
        CheckCombo(*combo, f);
    else if (auto* bar = qobject_cast<QMenuBar*>(&w))
        CheckMenuBar(*bar, f);
    else if (auto* table = qobject_cast<QTableView*>(&w))
        CheckTable(*table, f);
    else if (auto* tabs = qobject_cast<QTabBar*>(&w))
        for (int i = 0; i < tabs->count(); ++i)
            f.Need(*tabs, tabs->tabText(i),
                   TextSize(*tabs, tabs->tabText(i)).width() +
                       tabs->style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, tabs),
                   tabs->rect().intersected(tabs->tabRect(i)).width());
    else if (auto* box = qobject_cast<QGroupBox*>(&w))
        CheckByHint(w, box->title(), f);
}

} // namespace

QStringList ClippedItems(QWidget& window)
{
    Faults f;
    const QRect screen = window.screen()->availableGeometry();
    if (window.width() > screen.width() || window.height() > screen.height())
        f.Lines << QString::asprintf("%s: %dx%d is larger than the screen's %dx%d",
                                     qPrintable(Name(window)), window.width(), window.height(),
                                     screen.width(), screen.height());
    for (QWidget* child : window.findChildren<QWidget*>())
        if (!child->isWindow() && child->isVisibleTo(&window))
            CheckWidget(*child, f);
    return f.Lines;
}

QFont FontAtDpi(const QFont& font96, int dpi)
{
    QFont font = font96;
    font.setPointSizeF(font96.pointSizeF() * dpi / BaseDpi);
    return font;
}

} // namespace layoutcheck
