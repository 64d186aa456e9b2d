// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/timebase.h"

#include "text/vbformat.h"

#include <algorithm>
#include <chrono>
#include <cmath>

// Values of Meeus, Astronomical Algorithms, ch. 10, in tenths of a second.
const std::array<std::int16_t, 191> DeltaTTable = {
    1240, 1150, 1060, 980, 910, 850, 790, 740, 700, 650, // 1620-1638
    620,  580,  550,  530, 500, 480, 460, 440, 420, 400, // 1640-1658
    370,  350,  330,  310, 280, 260, 240, 220, 200, 180, // 1660-1678
    160,  140,  130,  120, 110, 100, 90,  90,  90,  90,  // 1680-1698
    90,   90,   90,   90,  100, 100, 100, 100, 100, 110, // 1700-1718
    110,  110,  110,  110, 110, 110, 110, 120, 120, 120, // 1720-1738
    120,  120,  130,  130, 130, 130, 140, 140, 140, 150, // 1740-1758
    150,  150,  150,  160, 160, 160, 160, 160, 170, 170, // 1760-1778
    170,  170,  170,  170, 170, 170, 160, 160, 150, 140, // 1780-1798
    137,  131,  127,  125, 125, 125, 125, 125, 125, 123, // 1800-1818
    120,  114,  106,  96,  86,  75,  66,  60,  57,  56,  // 1820-1838
    57,   59,   62,   65,  68,  71,  73,  75,  77,  78,  // 1840-1858
    79,   75,   64,   54,  29,  16,  -10, -27, -36, -47, // 1860-1878
    -54,  -52,  -55,  -56, -58, -59, -62, -64, -61, -47, // 1880-1898
    -27,  0,    26,   54,  77,  105, 134, 160, 182, 202, // 1900-1918
    212,  224,  235,  239, 243, 240, 239, 239, 237, 240, // 1920-1938
    243,  253,  262,  273, 282, 291, 300, 307, 314, 322, // 1940-1958
    331,  340,  350,  365, 383, 402, 422, 445, 465, 485, // 1960-1978
    505,  522,  538,  549, 558, 569, 580, 600, 620, 640, // 1980-1998
    670,                                                 // 2000
};

double CenturiesSinceJ2000(double jd) { return (jd - J2000) / 36525.0; }

double MillenniaSinceJ2000(double jd) { return (jd - J2000) / 365250.0; }

double DeltaTSeconds(double jd)
{
    const double T = CenturiesSinceJ2000(jd);
    const double Y = 2000.0 + 100.0 * T;
    if (Y >= 2000.0)
        return 67.0 + 123.5 * T + 32.5 * T * T;
    const auto Yi = static_cast<std::int16_t>(std::trunc(Y));
    const auto n = static_cast<std::size_t>(std::floor((Yi - 1620) / 2.0));
    double dT = DeltaTTable[n] / 10.0;
    if (Yi % 2 != 0) // half-way between the two even years
        dT += (DeltaTTable[n + 1] - DeltaTTable[n]) / 20.0;
    return dT;
}

double WrapInto(double x, double m)
{
    if (x > 0)
        return x - m * std::floor(x / m);
    if (x < 0) {
        const double r = x + m * (std::floor(std::fabs(x) / m) + 1.0);
        return r == m ? 0.0 : r;
    }
    return 0.0;
}

double WrapSigned(double x)
{
    double r = x - std::floor(x / TwoPi) * TwoPi;
    if (r > Pi)
        r -= TwoPi;
    if (r < -Pi)
        r += TwoPi;
    return r;
}

CivilDate JdToCivil(double jd)
{
    using namespace std::chrono;
    const auto days = static_cast<int>(std::floor(jd - SerialEpochJD));
    const year_month_day ymd{sys_days{year{1899} / December / 30} + std::chrono::days{days}};
    return {int(ymd.year()), int(unsigned(ymd.month())), int(unsigned(ymd.day()))};
}

double CivilToJd(int y, int m, double d)
{
    using namespace std::chrono;
    const sys_days first{year{y} / month{unsigned(m)} / 1};
    const auto serial = (first - sys_days{year{1899} / December / 30}).count();
    return SerialEpochJD + double(serial) + d - 1.0;
}

std::string JdToText(double jd, bool monthFirstDates)
{
    return VbFormatDate(jd - SerialEpochJD,
                        monthFirstDates ? "mm/dd/yyyy hh:nn:ss" : "dd/mm/yyyy hh:nn:ss");
}

// Hours carry the rounding of their arithmetic (16.9 h is 16 h 53.99999... min): a time this
// close below a whole minute is that minute. Anything further below stays truncated.
constexpr double MinuteTolerance = 1e-6;

std::string FormatClock(int mode, double h, bool ampm)
{
    const double minutes = std::floor(h * 60.0 + MinuteTolerance);
    double s = std::max(0.0, (h * 60.0 - minutes) * 60.0);
    if (std::nearbyint(s) >= 60)
        s = 59;
    double H = std::floor(minutes / 60.0);
    const double M = minutes - 60.0 * H;
    std::string suffix;
    if (ampm && mode != 3) {
        if (H > 12) {
            H -= 12;
            suffix = " PM";
        } else if (H == 12) {
            suffix = " PM";
        } else if (H == 0) {
            H = 12;
            suffix = " AM";
        } else if (H >= 1) {
            suffix = " AM";
        }
    }
    std::string text = VbFormat(H, "0#") + ":" + VbFormat(M, "0#");
    if (mode == 1)
        text += ":" + VbFormat(std::nearbyint(s), "0#");
    return text + suffix;
}

double EventMinute(double localJD) { return std::round(localJD * MinutesPerDay) / MinutesPerDay; }

double EventDayJD(double localJD) { return std::floor(EventMinute(localJD) + 0.5) - 0.5; }

std::string EventClock(double localJD, int mode, bool ampm)
{
    const double minutes = std::round((EventMinute(localJD) - EventDayJD(localJD)) * MinutesPerDay);
    return FormatClock(mode, minutes / 60.0, ampm);
}
