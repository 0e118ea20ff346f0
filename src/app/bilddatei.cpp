#include "app/bilddatei.h"

#include "modell/Meldungen.h"
#include "plattform/hostpfad.h"
#include "plattform/text.h"

namespace jorv {

Fehler Bild_sichern(Global& g, const std::filesystem::path& datei, std::string_view bytes)
{
    const auto pfad = g.dateien.laufwerke().dos(datei);
    if (pfad && !g.dateien.schreiben(*pfad, bytes)) return Fehler::keiner;
    stop_melden(g,
                datei_meldung("Das Bild:", text_aus_utf8_mit_ersatz(utf8(datei)), "konnte nicht gespeichert werden!"));
    return Fehler::gesetzt;
}

}  // namespace jorv
