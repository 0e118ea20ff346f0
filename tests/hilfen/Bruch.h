// System calls of a state's files that fail on demand, for the tests of every floor above the files.
#pragma once

#include <cerrno>
#include <string>
#include <string_view>

#include "hilfen/Projekt.h"

namespace jorv::hilfen {

/// One break at a time; each is mended when the object goes.
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
            tafel.umbenennen = umbenennen;
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
        umbenennen_luegt = false;
        verboten.clear();
        loeschen_endung.clear();
    }
    /// The call from now on that fails, once: a bad block, a full disk, bytes that the close can't bring home.
    static inline int lesen_bei = 0, schreiben_bei = 0, schliessen_bei = 0;
    static inline bool umbenennen_luegt = false;  ///< a rename reports success and does nothing
    static inline std::string verboten;           ///< paths that hold this (with "/") can't be written or deleted
    static inline std::string loeschen_endung;    ///< files whose path ends so can't be deleted

private:
    static bool jetzt(int& zaehler) { return zaehler > 0 && --zaehler == 0; }
    static int fehler(int grund) { return errno = grund, -1; }
    // Windows separates the names of a path otherwise.
    static std::string mit_schraegstrichen(std::string_view pfad) { return ersetzt(std::string(pfad), '\\', '/'); }
    static bool gesperrt(std::string_view pfad)
    {
        return !verboten.empty() && mit_schraegstrichen(pfad).find(verboten) != std::string::npos;
    }
    static int oeffnen(const char* pfad, int art, unsigned rechte)
    {
        constexpr int nur_lesen = 0;
        if (art != nur_lesen && gesperrt(pfad)) return fehler(EACCES);
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
        return jetzt(schliessen_bei) ? fehler(EIO) : ergebnis;
    }
    static int loeschen(const char* pfad)
    {
        const bool endung = !loeschen_endung.empty() && mit_schraegstrichen(pfad).ends_with(loeschen_endung);
        return endung || gesperrt(pfad) ? fehler(EACCES) : Systemaufrufe::echte().loeschen(pfad);
    }
    static int umbenennen(const char* alt, const char* neu)
    {
        return umbenennen_luegt ? Systemaufrufe::echte().loeschen(alt) : Systemaufrufe::echte().umbenennen(alt, neu);
    }
    Global& m_g;
};

}  // namespace jorv::hilfen
