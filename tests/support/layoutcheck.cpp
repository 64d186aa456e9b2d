// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/layoutcheck.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

namespace layoutcheck {
namespace {

constexpr double BaseDpi = 96.0;
constexpr int LineEditMargin = 2; // QLineEdit's own horizontal margin on each side
constexpr int CursorWidth = 1;

QString Describe(const QWidget& w, const QString& text)
{
    QString name = w.objectName();
    if (name.isEmpty() && w.parentWidget() != nullptr)
        name = w.parentWidget()->objectName();
    return QStringLiteral("%1 %2 '%3'")
        .arg(QString::fromLatin1(w.metaObject()->className()), name, text);
}

struct Faults {
    QStringList Lines;
    void Width(const QWidget& w, const QString& text, int needed, int room)
    {
        if (needed > room)
            Lines << Describe(w, text) +
                         QString::asprintf(": needs %d px, has %d px", needed, room);
    }
    void Height(const QWidget& w, const QString& text, int needed, int room)
    {
        if (needed > room)
            Lines << Describe(w, text) +
                         QString::asprintf(": needs %d px high, has %d px", needed, room);
    }
};

// A text as drawn with mnemonics: "&Edit" takes the room of "Edit"; several lines stack.
QSize TextSize(const QFontMetrics& fm, const QString& text)
{
    return fm.size(Qt::TextShowMnemonic, text);
}

void CheckLabel(const QLabel& label, Faults& faults)
{
    const QString text = label.text();
    if (text.isEmpty() || !label.pixmap().isNull() || Qt::mightBeRichText(text))
        return;
    const QRect room = label.contentsRect().adjusted(label.margin(), label.margin(),
                                                     -label.margin(), -label.margin());
    if (label.wordWrap()) {
        faults.Height(label, text, label.heightForWidth(label.width()), label.height());
        return;
    }
    const QSize needed = TextSize(label.fontMetrics(), text);
    faults.Width(label, text, needed.width(), room.width());
    faults.Height(label, text, needed.height(), room.height());
}

void CheckButton(QAbstractButton& button, Faults& faults)
{
    const QString text = button.text();
    if (text.isEmpty())
        return;
    const QSize needed = TextSize(button.fontMetrics(), text);
    QStyle* style = button.style();
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = text;
    QRect room;
    if (qobject_cast<QCheckBox*>(&button) != nullptr)
        room = style->subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
    else if (qobject_cast<QRadioButton*>(&button) != nullptr)
        room = style->subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
    else {
        const int margin = style->pixelMetric(QStyle::PM_ButtonMargin, &option, &button) +
                           2 * style->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &button);
        const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
        room = button.rect().adjusted(0, 0, -margin - icon, 0);
    }
    faults.Width(button, text, needed.width(), room.width());
    faults.Height(button, text, needed.height(), button.height());
}

void CheckLineEdit(const QLineEdit& edit, Faults& faults)
{
    const QString text = edit.displayText().isEmpty() ? edit.placeholderText() : edit.displayText();
    if (text.isEmpty())
        return;
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth =
        edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
    const QMargins margins = edit.textMargins();
    const QRect room = edit.style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, &edit)
                           .marginsRemoved(margins);
    const QFontMetrics fm = edit.fontMetrics();
    faults.Width(edit, text, fm.horizontalAdvance(text) + 2 * LineEditMargin + CursorWidth,
                 room.width());
    faults.Height(edit, text, fm.height(), room.height());
}

// The current text in the edit field, then every item in the popup as the combo box opens it.
void CheckCombo(QComboBox& combo, Faults& faults)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.currentText = combo.currentText();
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    if (!combo.currentText().isEmpty())
        faults.Width(combo, combo.currentText(),
                     combo.fontMetrics().horizontalAdvance(combo.currentText()) +
                         (combo.isEditable() ? 2 * LineEditMargin + CursorWidth : 0),
                     field.width());
    if (combo.count() == 0)
        return;
    combo.showPopup();
    QAbstractItemView* view = combo.view();
    const int room = view->viewport()->width();
    for (int i = 0; i < combo.count(); ++i)
        faults.Width(combo, combo.itemText(i),
                     view->sizeHintForIndex(combo.model()->index(i, 0)).width(), room);
    combo.hidePopup();
}

// A menu bar hides what does not fit behind its extension button; a menu must fit the screen.
void CheckMenuBar(const QMenuBar& bar, Faults& faults)
{
    for (QAction* action : bar.actions()) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        const QRect place = bar.actionGeometry(action);
        const int needed = TextSize(bar.fontMetrics(), action->text()).width();
        faults.Width(bar, action->text(), needed, place.isValid() ? place.width() : 0);
        if (QMenu* menu = action->menu(); menu != nullptr) {
            const int screen = bar.screen()->availableGeometry().width();
            faults.Width(*menu, menu->title(), menu->sizeHint().width(), screen);
        }
    }
}

// Each section's text with the style's margins and sort arrow, as the header sizes it.
void CheckHeader(const QHeaderView& header, Faults& faults)
{
    const QAbstractItemModel* model = header.model();
    if (model == nullptr)
        return;
    const int count =
        header.orientation() == Qt::Horizontal ? model->columnCount() : model->rowCount();
    const int checked = header.orientation() == Qt::Horizontal ? count : std::min(count, 50);
    for (int i = 0; i < checked; ++i) {
        if (header.isSectionHidden(i))
            continue;
        const QString text = model->headerData(i, header.orientation()).toString();
        if (text.isEmpty())
            continue;
        QStyleOptionHeader option;
        option.initFrom(&header);
        option.text = text;
        option.section = i;
        const QSize needed =
            header.style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), &header);
        const int room =
            header.orientation() == Qt::Horizontal ? header.sectionSize(i) : header.width();
        faults.Width(header, text, needed.width(), room);
    }
}

// The cells a table shows: the widest of each column's shown rows against the column.
void CheckTableCells(QTableView& table, Faults& faults)
{
    const QAbstractItemModel* model = table.model();
    if (model == nullptr || model->rowCount() == 0)
        return;
    for (int column = 0; column < model->columnCount(); ++column) {
        if (table.isColumnHidden(column))
            continue;
        const QString heading = model->headerData(column, Qt::Horizontal).toString();
        faults.Width(table, QStringLiteral("cells of ") + heading,
                     static_cast<QAbstractItemView&>(table).sizeHintForColumn(column) -
                         (table.showGrid() ? 1 : 0),
                     table.columnWidth(column));
    }
}

void CheckTabBar(const QTabBar& bar, Faults& faults)
{
    const int space = bar.style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &bar);
    for (int i = 0; i < bar.count(); ++i) {
        const QRect tab = bar.tabRect(i);
        const int needed = TextSize(bar.fontMetrics(), bar.tabText(i)).width() + space;
        faults.Width(bar, bar.tabText(i), needed, bar.rect().intersected(tab).width());
    }
}

void CheckGroupBox(const QGroupBox& box, Faults& faults)
{
    if (box.title().isEmpty())
        return;
    faults.Width(box, box.title(), TextSize(box.fontMetrics(), box.title()).width(), box.width());
}

// The title bar as the style draws one: the title beside the window's buttons.
void CheckTitle(const QWidget& window, Faults& faults)
{
    const QString title = window.windowTitle();
    if (title.isEmpty())
        return;
    QStyleOptionTitleBar option;
    option.initFrom(&window);
    option.text = title;
    option.titleBarFlags = window.windowFlags();
    option.subControls = QStyle::SC_All;
    option.rect =
        QRect(0, 0, window.width(), window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QRect room =
        window.style()->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel);
    QFont bold = QApplication::font("QMdiSubWindowTitleBar");
    bold.setBold(true);
    faults.Width(window, QStringLiteral("title ") + title,
                 QFontMetrics(bold).horizontalAdvance(title), room.width());
}

// A child is cut off where it leaves its parent; the contents of a scroll area may.
void CheckPlace(const QWidget& child, Faults& faults)
{
    const QWidget* parent = child.parentWidget();
    if (parent == nullptr || child.isWindow())
        return;
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(parent->parentWidget());
        area != nullptr && area->viewport() == parent)
        return;
    if (!parent->rect().contains(child.geometry()))
        faults.Lines << Describe(child, {}) +
                            QString::asprintf(": lies at %d,%d %dx%d outside its parent's %dx%d",
                                              child.x(), child.y(), child.width(), child.height(),
                                              parent->width(), parent->height());
}

void CheckWidget(QWidget& w, Faults& faults)
{
    CheckPlace(w, faults);
    if (auto* label = qobject_cast<QLabel*>(&w))
        CheckLabel(*label, faults);
    else if (auto* button = qobject_cast<QAbstractButton*>(&w))
        CheckButton(*button, faults);
    else if (auto* edit = qobject_cast<QLineEdit*>(&w);
             edit != nullptr && qobject_cast<QComboBox*>(w.parentWidget()) == nullptr)
        CheckLineEdit(*edit, faults);
    else if (auto* combo = qobject_cast<QComboBox*>(&w))
        CheckCombo(*combo, faults);
    else if (auto* bar = qobject_cast<QMenuBar*>(&w))
        CheckMenuBar(*bar, faults);
    else if (auto* header = qobject_cast<QHeaderView*>(&w))
        CheckHeader(*header, faults);
    else if (auto* table = qobject_cast<QTableView*>(&w))
        CheckTableCells(*table, faults);
    else if (auto* tabs = qobject_cast<QTabBar*>(&w))
        CheckTabBar(*tabs, faults);
    else if (auto* box = qobject_cast<QGroupBox*>(&w))
        CheckGroupBox(*box, faults);
}

} // namespace

QStringList ClippedItems(QWidget& window)
{
    Faults faults;
    CheckTitle(window, faults);
    const QRect screen = window.screen()->availableGeometry();
    if (window.width() > screen.width() || window.height() > screen.height())
        faults.Lines << Describe(window, window.windowTitle()) +
                            QString::asprintf(": %dx%d is larger than the screen's %dx%d",
                                              window.width(), window.height(), screen.width(),
                                              screen.height());
    for (QWidget* child : window.findChildren<QWidget*>()) {
        if (!child->isWindow() && child->isVisibleTo(&window))
            CheckWidget(*child, faults);
    }
    return faults.Lines;
}

QFont FontAtDpi(const QFont& font96, int dpi)
{
    QFont font = font96;
    font.setPointSizeF(font96.pointSizeF() * dpi / BaseDpi);
    return font;
}

} // namespace layoutcheck
