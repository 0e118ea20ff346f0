// Delays of the ionosphere and the neutral atmosphere.
#pragma once

#include "simulator/simulator.h"

namespace jorv::simulator {

/// Slant electron content in TECU seen from `ort` towards `richtung` at `t` (seconds since 0 h). The plane and the wave
/// are functions of the pierce point's distance north and east of `mitte`; thin shell at 400 km over a sphere of 6371
/// km.
double elektronen(const Ionosphaere& modell, Geographisch mitte, Geographisch ort, Richtung richtung, double t);

/// Delay of the code in metres on frequency `f` (Hz) for a slant content in TECU; the phase is advanced by as much.
double ionosphaere_laufzeit(double tecu, double f);

/// Slant delay of the neutral atmosphere in metres. Zenith hydrostatic: Saastamoinen with the pressure of the standard
/// atmosphere at the place; mapping: continued fraction in three terms, fixed coefficients of the middle latitudes.
double troposphaere_laufzeit(const Troposphaere& modell, Geographisch mitte, Geographisch ort, double hoehenwinkel);

}  // namespace jorv::simulator
