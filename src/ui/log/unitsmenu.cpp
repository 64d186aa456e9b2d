// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/log/unitsmenu.h"

#include <QCoreApplication>
#include <QMenu>

#include <array>

QMenu* AddUnitsMenu(QMenu* options, bool& imperial)
{
    QMenu* menu = options->addMenu(QCoreApplication::translate("UnitsMenu", "&Units"));
    menu->setObjectName(QStringLiteral("mnuUnits"));
    // Index 0 metric, 1 imperial; the checked one is the choice.
    const std::array<QAction*, 2> items = {
        menu->addAction(QCoreApplication::translate("UnitsMenu", "&Metric (cm, kg, °C)")),
        menu->addAction(QCoreApplication::translate("UnitsMenu", "&Imperial (in, lb, °F)"))};
    items[0]->setObjectName(QStringLiteral("mnuUnitsMetric"));
    items[1]->setObjectName(QStringLiteral("mnuUnitsImperial"));
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i]->setCheckable(true);
        items[i]->setChecked(imperial == (i == 1));
        QObject::connect(items[i], &QAction::triggered, menu, [&imperial, items, i] {
            imperial = i == 1;
            for (std::size_t k = 0; k < items.size(); ++k)
                items[k]->setChecked(k == i);
        });
    }
    return menu;
}
