#include "daten/dateiauswahl.h"

#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

std::optional<std::string> gewaehlte_datei(Global& g, const std::filesystem::path& datei)
{
    auto pfad = g.dateien.laufwerke().dos(datei);
    if (!pfad) {
        const auto utf8 = datei.u8string();
        const std::string name(reinterpret_cast<const char*>(utf8.data()), utf8.size());
        stop_melden(g, datei_meldung("Die Datei:", text_aus_utf8_mit_ersatz(name),
                                     "kann in JorvPlus nicht verwendet werden (Zeichen im Namen)!"));
    }
    return pfad;
}

}  // namespace jorv
