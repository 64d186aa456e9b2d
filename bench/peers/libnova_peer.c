// SPDX-License-Identifier: GPL-3.0-or-later
/* Benchmark peer: per-day Sun/Moon events from libnova in quillmere-forecast's CSV columns.
 * Usage: libnova_peer FROM(YYYY-MM-DD) DAYS LAT LON_EAST ZONE_WEST
 * libnova's rise/set/transit work on a UT day, so each local day looks at the
 * neighbouring UT days too and keeps the event that falls inside the local day. */
#include <libnova/libnova.h>
#include <stdio.h>
#include <stdlib.h>

enum { RISE, SET, TRANSIT };

typedef int (*rst_fn)(double jd, struct ln_lnlat_posn *obs, double horizon, struct ln_rst_time *rst);

static int solar(double jd, struct ln_lnlat_posn *obs, double horizon, struct ln_rst_time *rst)
{
	return ln_get_solar_rst_horizon(jd, obs, horizon, rst);
}

static int lunar(double jd, struct ln_lnlat_posn *obs, double horizon, struct ln_rst_time *rst)
{
	(void)horizon; /* libnova fixes the Moon's horizon itself */
	return ln_get_lunar_rst(jd, obs, rst);
}

/* Local clock hours of the event inside [start, start + 1), or a negative value when absent. */
static double event(rst_fn fn, double start, struct ln_lnlat_posn *obs, double horizon, int which)
{
	for (int d = -1; d <= 1; d++) {
		struct ln_rst_time rst;
		if (fn(start + d, obs, horizon, &rst) != 0 && which != TRANSIT)
			continue;
		double jd = which == RISE ? rst.rise : which == SET ? rst.set : rst.transit;
		if (jd >= start && jd < start + 1)
			return (jd - start) * 24;
	}
	return -1;
}

static void cell(double h)
{
	if (h >= 0)
		printf(",%.6f", h);
	else
		printf(",");
}

int main(int argc, char **argv)
{
	if (argc != 6) {
		fprintf(stderr, "usage: %s FROM DAYS LAT LON_EAST ZONE_WEST\n", argv[0]);
		return 2;
	}
	struct ln_date date = {0};
	if (sscanf(argv[1], "%d-%d-%d", &date.years, &date.months, &date.days) != 3)
		return 2;
	int days = atoi(argv[2]);
	struct ln_lnlat_posn obs = {.lat = atof(argv[3]), .lng = atof(argv[4])};
	double zone = atof(argv[5]);
	double first = ln_get_julian_day(&date) + zone / 24;
	static const double twilights[] = {-6, -12, -18};

	puts("date,sunrise,sunset,sun_transit,civil_dawn,civil_dusk,nautical_dawn,nautical_dusk,"
	     "astronomical_dawn,astronomical_dusk,day_length,moonrise,moon_transit,moonset,illum_percent");
	for (int i = 0; i < days; i++) {
		double start = first + i;
		struct ln_date day;
		ln_get_date(start - zone / 24 + 1e-6, &day);
		printf("%04d-%02d-%02d", day.years, day.months, day.days);
		double rise = event(solar, start, &obs, LN_SOLAR_STANDART_HORIZON, RISE);
		double set = event(solar, start, &obs, LN_SOLAR_STANDART_HORIZON, SET);
		cell(rise);
		cell(set);
		cell(event(solar, start, &obs, LN_SOLAR_STANDART_HORIZON, TRANSIT));
		for (int t = 0; t < 3; t++) {
			cell(event(solar, start, &obs, twilights[t], RISE));
			cell(event(solar, start, &obs, twilights[t], SET));
		}
		cell(rise >= 0 && set >= 0 ? set - rise : -1);
		cell(event(lunar, start, &obs, 0, RISE));
		cell(event(lunar, start, &obs, 0, TRANSIT));
		cell(event(lunar, start, &obs, 0, SET));
		printf(",%.4f\n", 100 * ln_get_lunar_disk(start + 0.5));
	}
	return 0;
}
