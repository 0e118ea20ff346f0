#include "app/start.h"

#include "app/einstellungen.h"
#include "daten/katalog.h"
#include "geo/koordtrans.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "modell/Version.h"
#include "planung/zeitfenster.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"
#include "plattform/zahl.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahren.h"

namespace jorv {

namespace {

constexpr std::string_view einstellungsordner = "Melvikon.kor", einstellungsname = "JorvPlus.INI";

// Folders of the host come in through one door: a name that Windows-1252 can't hold is refused by its path.
Fehler dos_ordner(Global& g, const std::filesystem::path& host, std::string& dos)
{
    if (const auto pfad = g.dateien.laufwerke().dos(host)) {
        dos = *pfad;
        return Fehler::keiner;
    }
    stop_melden(g, datei_meldung("Das Verzeichnis:", text_aus_utf8_mit_ersatz(host.string()),
                                 "kann in JorvPlus nicht verwendet werden (Zeichen im Namen)!"));
    return Fehler::gesetzt;
}

Fehler einstellungsordner_anlegen(Global& g, std::string_view ordner)
{
    if (!g.dateien.ist_ordner(ordner) && g.dateien.ordner_anlegen(ordner)) {
        stop_melden(g, verkettet(u8"Fehlendes Verzeichnis für die Datei JorvPlus.INI:"_w, "\n", ordner,
                                 "\nkonnte nicht angelegt werden!\n\n",
                                 "Evtl. fehlender Speicherplatz oder mangelnde Rechte!"));
        return Fehler::gesetzt;
    }
    return Fehler::keiner;
}

// A window that was never shown still needs a size to come up with.
void fenster_vorgaben(Global& g)
{
    g.Form_left = g.Form_top = 60;
    g.Form_width = 1280;
    g.Form_height = 800;
}

Fehler einstellungen_finden(Global& g, const Startwahl& wahl)
{
    if (!wahl.einstellungen.empty()) {
        g.Einstellungsdatei = wahl.einstellungen;
        return einstellungsordner_anlegen(g, pfad_ordner(g.Einstellungsdatei));
    }
    std::string dokumente;
    if (ist_fehler(dos_ordner(g, dokumente_ordner(), dokumente))) return Fehler::gesetzt;
    const std::string ordner = pfad_verbinden(dokumente, einstellungsordner);
    if (ist_fehler(einstellungsordner_anlegen(g, ordner))) return Fehler::gesetzt;
    g.Einstellungsdatei = pfad_verbinden(ordner, einstellungsname);
    const std::string alt_system = pfad_verbinden(g.Windowsverzeichnis, einstellungsname);
    const std::string alt_programm = pfad_verbinden(g.Programmverzeichnis, einstellungsname);
    if (ini_mischen(g, alt_system, g.Einstellungsdatei, false, true) != 0) return Fehler::gesetzt;
    if (ini_mischen(g, alt_programm, g.Einstellungsdatei, true, true) != 0) return Fehler::gesetzt;
    return Fehler::keiner;
}

}  // namespace

Fehler start(Global& g, const Startwahl& wahl)
{
    g.Programmverzeichnis = wahl.programmverzeichnis;
    if (g.Programmverzeichnis.empty() && ist_fehler(dos_ordner(g, programm_ordner(), g.Programmverzeichnis)))
        return Fehler::gesetzt;
    g.Datei_Verzeichnis = g.Programmverzeichnis;
    fenster_vorgaben(g);
    if (ist_fehler(all_ini(g))) return Fehler::gesetzt;
    if (ist_fehler(dos_ordner(g, system_ordner(), g.Windowsverzeichnis))) return Fehler::gesetzt;
    if (ist_fehler(einstellungen_finden(g, wahl))) return Fehler::gesetzt;
    g.dateien.reste_wegraeumen(pfad_ordner(g.Einstellungsdatei));
    if (ist_fehler(ini_lesen_START(g))) return Fehler::gesetzt;
    if (g.EXE_Verzeichnis.empty()) g.EXE_Verzeichnis = g.Programmverzeichnis;
    g.dateien.reste_wegraeumen(g.EXE_Verzeichnis);
    std::int32_t status = 0;
    DEFSYSTEM(1, 4, 2, status);
    return status != 0 ? Fehler::gesetzt : Fehler::keiner;
}

void erste_aktivierung(Global& g, const std::function<void()>& neuerungen)
{
    baum_aufbauen(g);
    (void)ist_fehler(torel_coo_laden(g));  // a map without stations is shown all the same
    if (neuerungen && zahl_lesen(g.Hinweis1) == 1) neuerungen();
    g.ErstStart = programm_version;
    g.oberflaeche->karte_zeichnen(true);
    g.oberflaeche->titel_setzen(Titel(g));
    g.oberflaeche->liste_erneuern();
    (void)ist_fehler(menue_zeitfenster(g));
    g.oberflaeche->menue_erneuern();
}

Fehler ende(Global& g)
{
    const bool sichern = g.Verfahren_offen() && g.vollstaendig_gelesen;
    const Fehler projekt = sichern ? Verfahren_sichern(g) : Fehler::keiner;
    const Fehler einstellungen = ini_schreiben_START(g);
    g.Verfahrenssperre.reset();
    return ist_fehler(projekt) ? projekt : einstellungen;
}

}  // namespace jorv
