// SPDX-License-Identifier: GPL-3.0-or-later
// The lunar day rating (0..4, 4 best) and the moon's age of every day of the year.
#include "calendar/calendar.h"

namespace {

class Ratings {
public:
    explicit Ratings(Calendar& cal) : Days(cal.YearDays), Slots(cal.YearSlots) {}

    void Set(int d, int rating) { Days[std::size_t(d)].Rating = std::int16_t(rating); }
    void Raise(int d)
    {
        std::int16_t& r = Days[std::size_t(d)].Rating;
        if (r < 4)
            ++r;
    }
    // The days after a phase: d + 1 .. d + 4, each while it stays clear of the year's end.
    void SetFollowing(int d, const int (&after)[4])
    {
        for (int j = 1; j <= 4; ++j)
            if (d < Slots - 1 - j)
                Set(d + j, after[j - 1]);
    }
    // The two days before a phase, or only what of them lies in the year.
    void SetPreceding(int d, int twoBefore, int oneBefore, int onDay)
    {
        if (d <= 2) {
            Set(d, 4);
            if (d == 2)
                Set(1, oneBefore);
            return;
        }
        Set(d - 2, twoBefore);
        Set(d - 1, oneBefore);
        Set(d, onDay);
    }

    std::vector<DayMarks>& Days;
    const int Slots;
};

// Phases: new moon 2 4 [4] 4 4 2 2, full moon 2 2 [4] 4 3 2 2; the moon's age counts from
// each new moon, and the days before the year's first new moon are filled back from it.
void PhasePass(Ratings& r)
{
    int age = 0;
    for (int d = 1; d <= r.Slots; ++d) {
        const std::int16_t phase = r.Days[std::size_t(d)].Phase;
        if (phase == 1) {
            age = 0;
            if (d < 31)
                for (int b = d - 1, a = 29; b >= 1; --b, --a)
                    r.Days[std::size_t(b)].MoonAge = std::int16_t(a);
            r.SetPreceding(d, 2, 4, 4);
            r.SetFollowing(d, {4, 4, 2, 2});
        } else if (phase == 3) {
            r.SetPreceding(d, 2, 2, 4);
            r.SetFollowing(d, {4, 3, 2, 2});
        }
        r.Days[std::size_t(d)].MoonAge = std::int16_t(age++);
    }
}

// One step up for a day and its two neighbours.
void RaiseAround(Ratings& r, int d)
{
    r.Raise(d);
    if (d >= 2)
        r.Raise(d - 1);
    r.Raise(d + 1);
}

// One step up around each perigee (whose neighbours are marked -1) and around the greatest
// declination toward the observer's hemisphere.
void ApsisAndDeclinationPass(Ratings& r, std::int16_t southernHemisphere)
{
    for (int d = 1; d <= r.Slots; ++d) {
        DayMarks& day = r.Days[std::size_t(d)];
        if (day.Perigee == 1) {
            RaiseAround(r, d);
            if (d >= 2)
                r.Days[std::size_t(d - 1)].Perigee = -1;
            r.Days[std::size_t(d + 1)].Perigee = -1;
        }
        if ((day.Declination == 1 && southernHemisphere == 0) ||
            (day.Declination == 2 && southernHemisphere == -1))
            RaiseAround(r, d);
    }
}

} // namespace

void SetDayRatings(Calendar& cal, std::int16_t southernHemisphere)
{
    Ratings r(cal);
    PhasePass(r);
    ApsisAndDeclinationPass(r, southernHemisphere);
}
