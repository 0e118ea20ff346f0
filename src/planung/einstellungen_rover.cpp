#include "planung/einstellungen_rover.h"

#include <algorithm>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

using Zeilenpaar = std::array<std::string_view, 2>;

constexpr std::array<Zeilenpaar, 7> bedeutungen = {
    {{"Alles OK.", "Zur Zeit keine Probleme identifiziert."},
     {"Kein TOREL-Punkt mit passenden Beobachtungszeiten", "zum ROVER zugeordnet."},
     {"Zu wenig TOREL-Punkte mit passenden Beobachtungszeiten", " zum ROVER zugeordnet."},
     {"TOREL-Punkt(e) und ROVER haben ein", "unterschiedliches Tagesdatum (DAY)."},
     {"Tagesdatum und/oder Sessionsnummer der TOREL-Stationen", u8" für diesen ROVER sind nicht einheitlich"_w},
     {"Weniger als 1h Beobachtungsmaterial der TOREL-Stationen", " vorhanden"},
     {u8"Daten des ROVER sind länger als das Beobachtungsmaterial"_w, " der TOREL-Stationen"}}};
constexpr Zeilenpaar unbekannt = {"Unspezifizierter Grund.", u8"Für mögliche Ursachen bitte im Handbuch nachlesen."_w};

struct Grenzen {
    std::int32_t minimum, maximum;
};

// First and last second of the rover. An observation that runs past midnight has no range of times of day: then the
// box takes any time.
Grenzen zeitgrenzen(const Global& g, std::string_view rover)
{
    constexpr Grenzen alle = {0, 999999};
    const int i = Index_OBS_R(g, rover);
    if (i == 0 || g.OBS_R[i].Startzeit_GPS_Sekunde > g.OBS_R[i].Endzeit_GPS_Sekunde) return alle;
    return {g.OBS_R[i].Startzeit_GPS_Sekunde, g.OBS_R[i].Endzeit_GPS_Sekunde};
}

Zahlenfeld feld(std::int32_t wert, Grenzen grenzen)
{
    return {verkettet(wert), grenzen.minimum, grenzen.maximum};
}

}  // namespace

Satellitenkasten satellitenkasten(std::string_view name, bool haken)
{
    return {std::string(name), verkettet(name, ". . . "), true, haken};
}

std::string ampel_bedeutung(std::uint8_t status, std::uint8_t grund)
{
    if (status == 1) grund = 0;
    const bool bekannt = grund < bedeutungen.size() && (grund != 0 || status == 1);
    const Zeilenpaar& zeilen = bekannt ? bedeutungen[grund] : unbekannt;
    return verkettet(zeilen[0], "\n", zeilen[1]);
}

std::optional<Rovereinstellungen> einstellungen_oeffnen(const Global& g, std::string_view rover)
{
    const int i = Index_Settings(g, rover);
    if (i == 0) return std::nullopt;
    const ROVER_Settings_Satz& satz = g.ROVER_Settings[i];
    Rovereinstellungen e;
    e.ROVER_Dateiname = rover;
    e.Titel = verkettet("Einstellungen/Infos zu: ", rover);
    const Grenzen zeiten = zeitgrenzen(g, rover);
    e.starttime = feld(satz.StartTime, zeiten);
    e.endtime = feld(satz.EndTime, zeiten);
    e.epochrate = feld(satz.EpochRate, {1, 3600});
    if (satz.EpochRate == 0) e.epochrate.text_setzen("");
    e.elevation = feld(satz.Elevation, {0, 90});
    e.firstminutes = feld(satz.DelFirstMinutes, {0, 60});
    e.lastminutes = feld(satz.DelLastMinutes, {0, 60});
    e.frequenz = satz.Solution;
    e.einaus = satz.Ein_Ausschalterkennung == 1;
    const int anzahl = std::clamp(satz.AnzahlDelSatellite, 0, ROVER_Settings_Satz::max_satelliten);
    for (std::size_t k = 1; k <= static_cast<std::size_t>(anzahl); ++k)
        e.satelliten[k - 1] = satellitenkasten(satz.DelSatelliteName[k], satz.DelSatellite[k] == 1);
    e.ampelinfo_sichtbar = ist_E_oder_S(g);
    if (const int z = Index_ROVER_TOREL(g, rover); e.ampelinfo_sichtbar && z != 0)
        e.ampelinfo = ampel_bedeutung(g.ROVER_TOREL[z].Status, g.ROVER_TOREL[z].Grund);
    return e;
}

Fehler einstellungen_ok(Global& g, const Rovereinstellungen& e)
{
    const int i = Index_Settings(g, e.ROVER_Dateiname);
    if (i == 0) return Fehler::gesetzt;
    ROVER_Settings_Satz& satz = g.ROVER_Settings[i];
    satz.Elevation = e.elevation.wert();
    satz.DelFirstMinutes = e.firstminutes.wert();
    satz.DelLastMinutes = e.lastminutes.wert();
    satz.Solution = e.frequenz;
    satz.Ein_Ausschalterkennung = e.einaus ? 1 : 0;
    for (std::size_t k = 0; k < e.satelliten.size(); ++k)
        if (e.satelliten[k].aktiv) satz.DelSatellite[k + 1] = e.satelliten[k].Haken ? 1 : 0;
    if (const int rover = Index_OBS_R(g, e.ROVER_Dateiname); rover != 0)
        rover_bild_setzen(g, e.ROVER_Dateiname, rover_bild(g, rover));
    Datum_setzen(g);
    return Fehler::keiner;
}

}  // namespace jorv
