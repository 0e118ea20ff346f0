#include "daten/dateiauswahl.h"

#include "modell/Meldungen.h"
#include "plattform/hostpfad.h"
#include "plattform/text.h"

namespace jorv {

std::optional<std::string> gewaehlte_datei(Global& g, const std::filesystem::path& datei)
{
    auto pfad = g.dateien.laufwerke().dos(datei);
    if (!pfad) {
        stop_melden(g, datei_meldung("Die Datei:", text_aus_utf8_mit_ersatz(utf8(datei)),
                                     "kann in JorvPlus nicht verwendet werden (Zeichen im Namen)!"));
    }
    return pfad;
}

}  // namespace jorv
