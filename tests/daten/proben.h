// Sample files for the tests of this folder: RINEX files line by line and antenna files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hilfen/Bruch.h"
#include "hilfen/Projekt.h"

namespace jorv::hilfen {

/// The text in 60 columns and the label behind.
inline std::string kopfzeile(std::string text, std::string_view marke)
{
    text.resize(60, ' ');
    return text + std::string(marke) + "\n";
}

/// The parts of a small observation file; a test changes the one that it is about.
struct Rinexprobe {
    std::string version = kopfzeile("     2.11           OBSERVATION DATA    G (GPS)", "RINEX VERSION / TYPE");
    std::string marker = kopfzeile("1234", "MARKER NAME") + kopfzeile("Musterstadt", "MARKER NUMBER");
    std::string position = kopfzeile("  3783000.1234   901600.1234  5038200.1234", "APPROX POSITION XYZ");
    std::string antenne = kopfzeile("00001               LEIAR25.R4      LEIT", "ANT # / TYPE");
    std::string typen = kopfzeile("     2    C1    L1", "# / TYPES OF OBSERV");
    std::string intervall = kopfzeile("    15", "INTERVAL");
    std::string beginn = kopfzeile("  2016     5     1     8     0    0.0000000     GPS", "TIME OF FIRST OBS");
    std::string ende = kopfzeile("  2016     5     1     9    30   59.9999999     GPS", "TIME OF LAST OBS");
    std::string schluss = kopfzeile("", "END OF HEADER");
    std::string daten =
        " 16  5  1  8  0  0.0000000  0  2G05R 7\n  1.000\n  2.000\n"
        " 16  5  1 10 11 12.0000000  0  1G21\n  3.000\n";

    std::string text() const
    {
        return version + marker + position + antenne + typen + intervall + beginn + ende + schluss + daten;
    }
};

/// A line of an antenna file with its label at column 61.
inline std::string antennenblock(std::string_view typ, std::string_view nummer)
{
    std::string zeile(typ);
    zeile.resize(20, ' ');
    return kopfzeile(zeile + std::string(nummer), "TYPE / SERIAL NO");
}

}  // namespace jorv::hilfen
