// The only conversion entry of the system, and the question whether a rover lies in a station figure.
#pragma once

#include "modell/Saetze.h"
#include "plattform/fehler.h"

namespace jorv {

/// Geocentric coordinates to easting and northing of zone 32, metres, whatever zone the results are later printed in.
/// Shows no message. A point far outside the zone gets its (distorted) coordinates.
Fehler xyz_nach_utm(double X, double Y, double Z, double& Rechtswert, double& Hochwert);

/// True inside the figure and on its border; figures of fewer than three corners hold nothing.
bool punkt_in_figur(const GEO_Punkt_Satz& figur, double Rechtswert, double Hochwert);

}  // namespace jorv
