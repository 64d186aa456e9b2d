// SPDX-License-Identifier: GPL-3.0-or-later
// Planets in perihelion and aphelion (Meeus ch. 38): the instant from the mean orbit, with the
// corrections of Table 38.A that turn the Earth-Moon barycentre's passage into the Earth's.
// The engine's EarthApsides then refines the Earth's instants on its VSOP87 distance.
#pragma once

enum class Planet { Mercury, Venus, Earth, Mars, Jupiter, Saturn, Uranus, Neptune };

// Cycle number k of the passage nearest a year (decimal year): whole for a perihelion,
// + 0.5 for an aphelion (Meeus eq. 38.x, k rounded).
double ApsisCycle(Planet p, double year, bool aphelion);
// JDE of the passage of cycle k (whole k perihelion, k + 0.5 aphelion).
double ApsisJDE(Planet p, double k);
