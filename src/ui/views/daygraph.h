// SPDX-License-Identifier: GPL-3.0-or-later
// The day graph: one day as a 24-hour time line with the twilight bands, the major and minor
// periods and the Moon's rise, transit and set; moving the pointer along the line shows where
// the Sun and the Moon stand at that moment. Modal; it changes no state of the program.
#pragma once

#include "calendar/calendar.h"
#include "viewrules/daygraphdata.h"

#include <QDialog>

#include <array>

class Astronomy;
class QLabel;
class QLayout;
class QPushButton;
class DayTimeLine;
class SkyStrip;

class DayGraph : public QDialog {
    Q_OBJECT
public:
    // The day: its Julian day at 0h and its record of the year day table.
    struct Day {
        double SelectedJD = 0.0;
        DayMarks Marks;
        bool AmPm = true;
        bool MonthFirstDates = true;
    };
    DayGraph(Astronomy& engine, Day day, QWidget* parent = nullptr);

    // Handlers, connected explicitly and callable from tests. Places on the line are in its
    // units (7000 to the day across, twips down).
    void Form_Load();
    void Form_Activate();
    void PicTi_MouseMove(double x, double y);
    void Label_MouseMove(int index);
    void CloseCmd_Click();
    // Sun and Moon on the strips and in the read-outs at a local clock instant.
    void GetPicData(double jd);

    DayTimeLine* PicTi = nullptr;
    SkyStrip* PicAZ = nullptr;
    SkyStrip* PicEL = nullptr;
    std::array<QLabel*, 28> Label{};
    QPushButton* CloseCmd = nullptr;

    DayGraphSeries Series; // what the line shows
    SkyReadout Sky;        // what the strips show

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    QLayout* BuildLegend();
    QLayout* BuildSky();
    QLabel* MakeLabel(int index, const QString& text);
    QLabel* Adopt(int index, QLabel* label);

    Astronomy& Engine;
    Day Shown;
};

// The time line: bands, bars, marks, ticks and event texts from a series, drawn to its width.
class DayTimeLine : public QWidget {
    Q_OBJECT
public:
    explicit DayTimeLine(QWidget* parent = nullptr);
    void SetSeries(const DayGraphSeries* series);
    // Line units of a pixel position.
    double UnitsX(double px) const;
    static constexpr int BandHeight = 100; // pixels; a ruler of hours below

signals:
    void PointerMoved(double x, double y);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    double Px(double units) const;
    const DayGraphSeries* Series = nullptr;
};

// An azimuth (0..360) or elevation (0..90) strip with the Sun and the Moon on it.
class SkyStrip : public QWidget {
    Q_OBJECT
public:
    enum class Scale { Azimuth, Elevation };
    SkyStrip(Scale scale, QWidget* parent = nullptr);
    void SetBodies(double sun, double moon);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    double Px(double degrees) const;
    Scale Kind;
    double Sun = 0.0, Moon = 0.0;
};
