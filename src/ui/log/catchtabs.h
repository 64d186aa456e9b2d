// SPDX-License-Identifier: GPL-3.0-or-later
// The statistics window's pages of catches: fish by species, by time of day (against the
// day's solunar periods and the sun, and by clock hour), by spot and by water temperature.
// Each chart stacks the fish kept and released, with the fish taken printed over each bar.
#pragma once

#include "logdb/catchtally.h"
#include "logdb/catchunits.h"

#include <QObject>

#include <vector>

class QChartView;
class QTabWidget;

class CatchPages : public QObject {
    Q_OBJECT

public:
    // Adds the pages to the tabs.
    CatchPages(QTabWidget* tabs, UnitSystem units);

    void Show(const CatchBreakdown& breakdown);

    // By species, by period, by clock hour, by spot, by water temperature.
    std::vector<QChartView*> Charts;
    QTabWidget* Pages = nullptr; // the catch charts' tabs, in the window's "Catches" tab

protected:
    // A chart follows its view's palette, light or dark.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    UnitSystem Units;
};

// The name of a water temperature band in the chosen units: "50 to 59 °F", "(no temperature)".
QString WaterBandName(const CatchTally& band, UnitSystem units);
