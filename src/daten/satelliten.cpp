#include "daten/satelliten.h"

#include <algorithm>
#include <utility>

#include "daten/rinex_abtastung.h"
#include "modell/Gemeinsam.h"

namespace jorv {

namespace {

void einsortieren(ROVER_Settings_Satz& satz, const std::string& satellit)
{
    const int anzahl = satz.AnzahlDelSatellite;
    if (anzahl >= ROVER_Settings_Satz::max_satelliten) return;
    const auto beginn = satz.DelSatelliteName.begin() + 1, ende = beginn + anzahl;
    const auto platz = std::lower_bound(beginn, ende, satellit);
    if (platz != ende && *platz == satellit) return;
    std::move_backward(platz, ende, ende + 1);
    *platz = satellit;
    const auto flagge = satz.DelSatellite.begin() + (platz - satz.DelSatelliteName.begin());
    std::move_backward(flagge, satz.DelSatellite.begin() + anzahl + 1, satz.DelSatellite.begin() + anzahl + 2);
    *flagge = 1;
    ++satz.AnzahlDelSatellite;
}

std::vector<std::string> inventar(Zeilenstrom& strom)
{
    const std::int32_t typen = kopf_uebergehen(strom);
    return epochen_abtasten(strom, typen).Satelliten;
}

}  // namespace

Fehler satelliten_lesen(Global& g, const std::string& name)
{
    const auto bekannt = std::exchange(g.abtastung, std::nullopt);
    auto datei = beobachtungsdatei_oeffnen(g, name, "Die Beobachtungsdatei:");
    if (!datei) return Fehler::gesetzt;
    const bool schon_gelesen = bekannt && bekannt->Datei == datei->kennung;
    const int i = Index_Settings(g, name);
    if (i == 0) return Fehler::keiner;
    const auto satelliten = schon_gelesen ? bekannt->Satelliten : inventar(datei->strom);
    if (lesefehler_melden(g, *datei)) return Fehler::gesetzt;
    for (const auto& satellit : satelliten) einsortieren(g.ROVER_Settings[i], satellit);
    return Fehler::keiner;
}

}  // namespace jorv
