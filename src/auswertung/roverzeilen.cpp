#include "auswertung/roverzeilen.h"

#include <algorithm>

#include "modell/Gemeinsam.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

void rover_namen(Batchtext& batch, std::string_view rover)
{
    const auto session = mitte(rover, 8, 1);
    batch.setzen("ROVER", rover);
    batch.setzen("DDD", mitte(rover, 5, 3));
    batch.setzen("SES", session == "." ? "" : session);
    batch.setzen("EXT4", mitte(rover, 9, 4));
    batch.setzen("ROV8", links(rover, 8));
    batch.setzen("ROV-4", ohne_ende(rover, 4));
    batch.setzen("ROV-3", ohne_ende(rover, 3));
    batch.setzen("ROV-1", ohne_ende(rover, 1));
}

std::string stationsliste(const ROVER_TOREL_Satz& zuordnung)
{
    std::string liste;
    for (std::size_t i = 0; i < static_cast<std::size_t>(zuordnung.Anzahl_Namen()); ++i)
        liste += verkettet(i == 0 ? "" : ",", links(zuordnung.TOREL_Dateiname[i], 4));
    return liste;
}

std::vector<std::string> satelliten_optionen(const ROVER_Settings_Satz& einstellung)
{
    std::vector<std::string> optionen;
    const int anzahl = std::clamp<int>(einstellung.AnzahlDelSatellite, 0, ROVER_Settings_Satz::max_satelliten);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(anzahl); ++i)
        if (einstellung.DelSatellite[i] == 0)
            optionen.push_back(verkettet(" -SV", trimmen(rechts(einstellung.DelSatelliteName[i], 3))));
    return optionen;
}

bool fenster_nutzbar(const Global& g, const ROVER_TOREL_Satz& zuordnung)
{
    if (g.Zeitfenster_1h != "1") return false;
    const double beginn = zahl_lesen(zuordnung.Zeitfenster_Startzeit);
    const double ende = zahl_lesen(zuordnung.Zeitfenster_Endzeit);
    const auto namen = zuordnung.TOREL_Dateiname.begin();
    return std::all_of(namen, namen + zuordnung.Anzahl_Namen(), [&](const std::string& station) {
        const int i = Index_OBS_S(g, station);
        return i != 0 && beginn >= g.OBS_S[i].Startzeit_GPS_Sekunde && ende <= g.OBS_S[i].Endzeit_GPS_Sekunde;
    });
}

}  // namespace jorv
