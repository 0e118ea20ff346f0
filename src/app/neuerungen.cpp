#include "app/neuerungen.h"

#include "modell/Meldungen.h"
#include "plattform/hostpfad.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

Neuerungen Neuerungen_lesen(Global& g)
{
    const std::string pfad = pfad_verbinden(g.EXE_Verzeichnis, "Jorv-Neuerungen.txt");
    if (!g.dateien.vorhanden(pfad)) return {verkettet("    >>> Fehler <<<\n    ", pfad, "\n    nicht gefunden!"), true};
    const Gelesen datei = g.dateien.lesen_stufenweise(pfad);
    if (!datei.gut()) stop_melden(g, datei_meldung("Die Datei:", pfad, "konnte nicht richtig gelesen werden!"));
    return {ersetzt(datei.text, "\r\n", "\n"), false};
}

Fehler Editor_setzen(Global& g, const std::filesystem::path& programm)
{
    if (const auto pfad = g.dateien.laufwerke().dos(programm)) {
        g.Editor = *pfad;
        return Fehler::keiner;
    }
    stop_melden(g, datei_meldung("Das Programm:", text_aus_utf8_mit_ersatz(utf8(programm)),
                                 "kann in JorvPlus nicht verwendet werden (Zeichen im Namen)!"));
    return Fehler::gesetzt;
}

}  // namespace jorv
