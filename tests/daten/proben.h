// Sample files for the tests of this folder: RINEX files line by line, antenna files, and system calls that break.
#pragma once

#include <cerrno>
#include <string>
#include <string_view>
#include <vector>

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

/// System calls of the state's files that fail on demand; mended when the object goes.
class Bruch {
public:
    explicit Bruch(Global& g) : m_g(g)
    {
        static const Systemaufrufe kaputt = [] {
            Systemaufrufe tafel = Systemaufrufe::echte();
            tafel.oeffnen = oeffnen;
            tafel.lesen = lesen;
            tafel.schreiben = schreiben;
            tafel.schliessen = schliessen;
            tafel.loeschen = loeschen;
            return tafel;
        }();
        m_g.dateien = Dateisystem(g.dateien.laufwerke(), kaputt);
    }
    Bruch(const Bruch&) = delete;
    Bruch& operator=(const Bruch&) = delete;
    ~Bruch()
    {
        m_g.dateien = Dateisystem(m_g.dateien.laufwerke());
        lesen_bei = schreiben_bei = schliessen_bei = 0;
        verboten.clear();
    }
    static inline int lesen_bei = 0, schreiben_bei = 0, schliessen_bei = 0;  ///< the call that fails, from 1
    static inline std::string verboten;  ///< paths that hold this can't be written or deleted

private:
    static bool jetzt(int& zaehler) { return zaehler > 0 && --zaehler == 0; }
    static long fehler(int grund)
    {
        errno = grund;
        return -1;
    }
    static bool gesperrt(std::string_view pfad)
    {
        return !verboten.empty() && pfad.find(verboten) != std::string_view::npos;
    }
    static int oeffnen(const char* pfad, int art, unsigned rechte)
    {
        constexpr int nur_lesen = 0;
        if (art != nur_lesen && gesperrt(pfad)) return static_cast<int>(fehler(EACCES));
        return Systemaufrufe::echte().oeffnen(pfad, art, rechte);
    }
    static long lesen(int nummer, void* bytes, std::size_t anzahl)
    {
        return jetzt(lesen_bei) ? fehler(EIO) : Systemaufrufe::echte().lesen(nummer, bytes, anzahl);
    }
    static long schreiben(int nummer, const void* bytes, std::size_t anzahl)
    {
        return jetzt(schreiben_bei) ? fehler(ENOSPC) : Systemaufrufe::echte().schreiben(nummer, bytes, anzahl);
    }
    static int schliessen(int nummer)
    {
        const int ergebnis = Systemaufrufe::echte().schliessen(nummer);
        return jetzt(schliessen_bei) ? static_cast<int>(fehler(EIO)) : ergebnis;
    }
    static int loeschen(const char* pfad)
    {
        return gesperrt(pfad) ? static_cast<int>(fehler(EACCES)) : Systemaufrufe::echte().loeschen(pfad);
    }
    Global& m_g;
};

}  // namespace jorv::hilfen
