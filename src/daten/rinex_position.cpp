#include "daten/rinex_position.h"

#include "daten/rinex_abtastung.h"
#include "daten/wortzahl.h"
#include "plattform/text.h"

namespace jorv {

Fehler rinex_position_lesen(Global& g, const std::string& pfad_oder_name, double& X, double& Y, double& Z,
                            std::string& Markernummer)
{
    auto datei = beobachtungsdatei_oeffnen(g, pfad_oder_name, "Die RINEX-Datei:");
    if (!datei) return Fehler::gesetzt;
    Zeilenstrom& strom = datei->strom;
    while (const auto zeile = strom.naechste()) {
        if (ist_kopfzeile(*zeile, "COMMENT")) continue;
        if (ist_kopfzeile(*zeile, "APPROX POSITION XYZ")) {
            if (!xyz_holen(g, *zeile, 1, {pfad_oder_name, strom.nummer()}, X, Y, Z)) return Fehler::gesetzt;
        } else if (ist_kopfzeile(*zeile, "MARKER NUMBER")) {
            Markernummer = trimmen(ersetzt(std::string(links(*zeile, 60)), ',', '.'));
        } else if (ist_kopfzeile(*zeile, "END OF HEADER")) {
            break;
        }
    }
    return lesefehler_melden(g, *datei) ? Fehler::gesetzt : Fehler::keiner;
}

}  // namespace jorv
