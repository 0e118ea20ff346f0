#include "projekt/verfahren_loeschen.h"

#include <filesystem>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"
#include "projekt/verfahren.h"
#include "projekt/verfahrensliste.h"

namespace jorv {

namespace {

namespace fs = std::filesystem;

constexpr auto frage_kor =
    u8"*** INFO (KOR) ***\n"
    u8"Diese Funktion entfernt den Eintrag des aktuellen Verfahrens\n"
    u8"aus der Verfahrensliste und gibt dessen Nummer frei.\n"
    u8"Die Verzeichnisse des Verfahrens bleiben erhalten!\n"
    u8"Funktion jetzt ausführen?"_w;
constexpr auto frage_mt =
    u8"*** INFO (MT) ***\n"
    u8"Diese Funktion entfernt den Eintrag des aktuellen Verfahrens\n"
    u8"aus der Verfahrensliste und gibt dessen Nummer frei.\n"
    u8"Außerdem werden die Verzeichnisse und Daten des Verfahrens gelöscht!\n"
    u8"Funktion jetzt ausführen?"_w;

// `innen` is `aussen` itself or lies below it.
bool liegt_in(const fs::path& innen, const fs::path& aussen)
{
    std::error_code fehler;
    // What the system takes for the same folder counts, however it is written.
    for (fs::path ort = fs::weakly_canonical(innen, fehler); !ort.empty(); ort = ort.parent_path()) {
        if (fs::equivalent(ort, aussen, fehler)) return true;
        if (ort == ort.parent_path()) break;
    }
    return false;
}

// A project's own directory, and nothing that the user keeps other things in.
bool darf_weg(const Global& g)
{
    if (!g.dateien.ist_datei(Verfahrens_Datei(g, ".INI"))) return false;
    const fs::path ordner = g.dateien.host(g.Arbeitsverzeichnis);
    if (ordner.empty() || !ordner.has_relative_path()) return false;
    for (const auto& eigen : {umgebungsordner("HOME"), umgebungsordner("USERPROFILE"), dokumente_ordner(),
                              g.dateien.host(pfad_ordner(g.Einstellungsdatei)), programm_ordner()})
        if (!eigen.empty() && liegt_in(eigen, ordner)) return false;
    return true;
}

}  // namespace

Fehler m_datei_loeschen(Global& g)
{
    if (!g.Verfahren_offen()) return Fehler::gesetzt;
    const bool mit_daten = g.Land == "MT";
    if (g.oberflaeche->frage(Symbol::frage, mit_daten ? frage_mt : frage_kor, Antwort::nein) != Antwort::ja)
        return Fehler::keiner;
    Liste_entfernen(g, g.Verfahrensname);
    vier_Menues(g, false);
    g.Verfahrenssperre.reset();  // its file lies in the directory too
    Fehler fehler = Fehler::keiner;
    if (mit_daten && (!darf_weg(g) || g.dateien.ordner_loeschen(g.Arbeitsverzeichnis))) {
        stop_melden(g, u8"Das Arbeitsverzeichnis konnte nicht gelöscht werden!"_w);
        fehler = Fehler::gesetzt;
    }
    Verfahren_loeschen(g, g.Verfahrensnummer);
    Verfahren_schliessen(g);
    return fehler;
}

}  // namespace jorv
