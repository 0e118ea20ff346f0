#include "app/bilddatei.h"

#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

Fehler Bild_sichern(Global& g, const std::filesystem::path& datei, std::string_view bytes)
{
    const auto pfad = g.dateien.laufwerke().dos(datei);
    if (pfad && !g.dateien.schreiben(*pfad, bytes)) return Fehler::keiner;
    const auto utf8 = datei.u8string();
    const std::string name(reinterpret_cast<const char*>(utf8.data()), utf8.size());
    stop_melden(g, datei_meldung("Das Bild:", text_aus_utf8_mit_ersatz(name), "konnte nicht gespeichert werden!"));
    return Fehler::gesetzt;
}

}  // namespace jorv
