#include "auswertung/koordinaten_datei.h"

#include <algorithm>
#include <unordered_set>

#include "auswertung/dateifehler.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

std::string coo_datei(const Global& g)
{
    return verkettet(g.Arbeitsverzeichnis, "\\", links(g.Verfahrensnummer, 8), ".COO");
}

std::string coo_zeile(const Punkt& punkt, std::string_view antenne)
{
    return verkettet(punkt.Punktkennzeichen, " ", zahl_format(punkt.X, "######0.000"), " ",
                     zahl_format(punkt.Y, "#####0.000"), " ", zahl_format(punkt.Z, "######0.000"), " \"", antenne,
                     "\"\r\n");
}

// Stations of region KOR are named by type and the first half of the number, all others by their number alone.
std::string antennentext(const Global& g, const std::string& punktkennzeichen, std::string_view antenne)
{
    const double nummer = zahl_lesen(punktkennzeichen);
    const bool im_bereich = std::any_of(g.KOR_ANTENNEN.begin(), g.KOR_ANTENNEN.end(), [&](const auto& bereich) {
        return nummer >= zahl_lesen(bereich.von) && nummer <= zahl_lesen(bereich.bis);
    });
    return im_bereich ? verkettet(links(antenne, 15), mitte(antenne, 21, 5)) : std::string(rechts(antenne, 20));
}

Fehler coo_schreiben(Global& g, const std::string& text)
{
    const std::string datei = coo_datei(g);
    const std::error_code fehler = g.dateien.schreiben(datei, text);
    if (!fehler) return Fehler::keiner;
    stop_melden(g, beim_uebertragen(fehler)
                       ? datei_meldung("In die Datei:", datei, "konnte nicht richtig geschrieben werden!")
                       : datei_meldung("Die Datei:", datei, u8"konnte nicht angelegt/überschrieben werden!"_w));
    return Fehler::gesetzt;
}

}  // namespace

Fehler koordinaten_datei_schreiben(Global& g)
{
    if (Antennenformat(g) != "APC") return Fehler::keiner;
    std::string text;
    std::unordered_set<std::string> geschrieben;
    const int anzahl = std::min(g.S_Punkt.anzahl(), g.OBS_S.anzahl());
    for (int i = 1; i <= anzahl; ++i) {
        const Punkt& punkt = g.S_Punkt[i];
        if (!geschrieben.insert(punkt.Punktkennzeichen).second) continue;
        text += coo_zeile(punkt, antennentext(g, punkt.Punktkennzeichen, g.OBS_S[i].Antenne));
    }
    return coo_schreiben(g, text);
}

Fehler koordinaten_datei_rover(Global& g, const std::string& rover)
{
    if (Antennenformat(g) != "APC") return Fehler::keiner;
    const int i = Index_ROVER_VIRT(g, rover);
    if (i == 0) {
        stop_melden(g, verkettet("Zum ROVER:", rover, "\nist keine virtuelle Referenzstation zugeordnet!"));
        return Fehler::gesetzt;
    }
    std::string text;
    const auto zeile = [&text](const Feld<Punkt>& punkte, const Feld<OBS>& beobachtungen, int index) {
        if (index >= 1 && index <= std::min(punkte.anzahl(), beobachtungen.anzahl()))
            text += coo_zeile(punkte[index], rechts(beobachtungen[index].Antenne, 20));
    };
    zeile(g.V_Punkt, g.OBS_V, g.ROVER_VIRT[i].VIRT_Index);
    zeile(g.R_Punkt, g.OBS_R, i);
    return coo_schreiben(g, text);
}

}  // namespace jorv
