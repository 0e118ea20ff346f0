#pragma once
// What one processed baseline is: everything that the extraction row and the protocols print.

#include <string>

#include "suite/geodaesie.h"
#include "suite/gps_zeit.h"

namespace jorv::suite {

struct Ergebnis {
    std::string basis_datei, rover_datei;  // file names
    std::string rover_marke;               // MARKER NAME
    Xyz basis, rover;                      // markers, metres
    int zone = 32;                         // of the projected coordinates
    GpsZeit beginn, ende;                  // first and last epoch that counted
    double minuten = 0.0;
    std::string loesungstyp;  // FixedL1, FixedL0, FloatDGNSS

    Xyz sigma;                                  // standard deviations, metres
    double r_xy = 0.0, r_yz = 0.0, r_zx = 0.0;  // correlations
    Enu sigma_enu;                              // metres
    double sigma0 = 0.0;                        // of a phase in the zenith, metres

    double mehrdeutigkeiten = 0.0;  // fixed, percent of the observations
    double satelliten = 0.0;        // mean number
    double pdop_beste = 0.0, pdop_mittel = 0.0;
    double umgewichtet = 0.0;  // percent of the observations
    std::size_t epochen = 0, epochen_fest = 0;
    double verhaeltnis = 0.0;  // ratio of the last ambiguity search

    double antennenhoehe = 0.0;  // metres
    std::string antennentyp;
    std::string basis_kalibrierung = "keine", rover_kalibrierung = "keine";  // file, line, block and how it was found

    Xyz basislinie() const { return rover - basis; }
};

}  // namespace jorv::suite
