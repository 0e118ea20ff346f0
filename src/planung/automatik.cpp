#include "planung/automatik.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <vector>

#include "geo/xyz_nach_utm.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::int64_t stunde_s = 3600, stunde_min = 60;
constexpr double weiteste_strecke = 999999999.0;
constexpr int max_namen = 4;

enum Grundwort : std::uint8_t { ok = 0, keine_station, zu_wenige, tag_verschieden, session_verschieden, kurz, laenger };
constexpr auto gruen = static_cast<std::uint8_t>(Ampel::gruen), gelb = static_cast<std::uint8_t>(Ampel::gelb),
               rot = static_cast<std::uint8_t>(Ampel::rot);

// An observation's first and last epoch in seconds.
struct Spanne {
    std::int64_t von = 0, bis = 0;
};

std::int64_t minute(std::int64_t sekunde)
{
    return (sekunde >= 0 ? sekunde : sekunde - 59) / 60;
}

std::int64_t minuten(std::int64_t von, std::int64_t bis)
{
    return minute(bis) - minute(von);
}

std::vector<Spanne> spannen(const Feld<OBS>& beobachtungen)
{
    std::vector<Spanne> alle(static_cast<std::size_t>(beobachtungen.anzahl()) + 1);
    for (std::size_t i = 1; i < alle.size(); ++i) {
        const OBS& beobachtung = beobachtungen[static_cast<int>(i)];
        alle[i] = {sekunden_seit_1970(beobachtung.Startzeit()), sekunden_seit_1970(beobachtung.Endzeit())};
    }
    return alle;
}

// First record of each file name.
std::unordered_map<std::string_view, std::size_t> namen(const Feld<OBS>& beobachtungen)
{
    std::unordered_map<std::string_view, std::size_t> stellen;
    for (int i = 1; i <= beobachtungen.anzahl(); ++i)
        stellen.try_emplace(beobachtungen[i].Dateiname, static_cast<std::size_t>(i));
    return stellen;
}

Dateiurteil urteil(const OBS& datei, const Spanne& station, const Spanne& rover)
{
    Dateiurteil u;
    u.TOREL_Dateiname = datei.Dateiname;
    u.Punktkennzeichen = datei.Punktkennzeichen;
    u.Sekunden_vorher = std::max<std::int64_t>(0, station.von - rover.von);
    u.Sekunden_nachher = std::max<std::int64_t>(0, rover.bis - station.bis);
    if (u.Sekunden_vorher > 0) u.Minuten_vorher = minuten(rover.von, station.von);
    if (u.Sekunden_nachher > 0) u.Minuten_nachher = minuten(station.bis, rover.bis);
    return u;
}

// The reasons keep their room from run to run.
void begruendungen_leeren(Global& g)
{
    g.Begruendungen.resize(static_cast<std::size_t>(g.OBS_R.anzahl()));
    for (auto& grund : g.Begruendungen) {
        auto dateien = std::move(grund.Dateien);
        auto schritte = std::move(grund.Schritte);
        dateien.clear();
        schritte.clear();
        grund = {};
        grund.Dateien = std::move(dateien);
        grund.Schritte = std::move(schritte);
    }
}

// The assignment of modes E and S.
class Zuordnung {
public:
    explicit Zuordnung(Global& g) : m_g(g) {}

    void ausfuehren()
    {
        const int anzahl = m_g.OBS_R.anzahl();
        if (!m_g.ROVER_TOREL.groesse_setzen(anzahl)) {
            stop_melden(m_g, dimensionierung_meldung(25, "automatik",
                                                     verkettet("    ReDim Preserve ROVER_TOREL(", anzahl, ")")));
            return;
        }
        begruendungen_leeren(m_g);
        zuruecksetzen();
        if (m_g.GEO_Punkt.anzahl() == 0) return;
        verzeichnisse_anlegen();
        for (int i = 1; i <= anzahl; ++i) {
            if (!m_g.ROVER_TOREL[i].Schutz) stationen_nehmen(i);
            tag_pruefen(i);
            session_pruefen(i);
            if (!m_g.ROVER_TOREL[i].Schutz) dauer_pruefen(i);
        }
    }

private:
    Begruendung& grund(int i) { return m_g.Begruendungen[static_cast<std::size_t>(i - 1)]; }

    void ampel(int i, std::uint8_t status, std::uint8_t wort, Pruefung pruefung)
    {
        m_g.ROVER_TOREL[i].Status = status;
        m_g.ROVER_TOREL[i].Grund = wort;
        grund(i).Schritte.push_back(pruefung);
    }

    void zuruecksetzen()
    {
        for (int i = 1; i <= m_g.ROVER_TOREL.anzahl(); ++i) {
            auto& zeile = m_g.ROVER_TOREL[i];
            zeile.ROVER_Dateiname = m_g.OBS_R[i].Dateiname;
            if (zeile.Schutz) {
                grund(i).Schritte.push_back(Pruefung::geschuetzt);
                continue;
            }
            zeile.Anzahl = 0;
            zeile.TOREL_Dateiname.fill("");
            zeile.Status = zeile.Grund = 0;
            if (m_g.GEO_Punkt.anzahl() == 0) grund(i).Schritte.push_back(Pruefung::keine);
        }
    }

    void verzeichnisse_anlegen()
    {
        m_rover_spannen = spannen(m_g.OBS_R);
        m_stations_spannen = spannen(m_g.OBS_S);
        m_rover = namen(m_g.OBS_R);
        m_stationsdateien = namen(m_g.OBS_S);
        for (int k = 1; k <= m_g.OBS_S.anzahl(); ++k)
            m_dateien_des_punkts[m_g.OBS_S[k].Punktkennzeichen].push_back(static_cast<std::size_t>(k));
    }

    // The first figure that holds the rover counts, whether its stations serve him or not.
    int figur_von(int i) const
    {
        if (i > m_g.R_Punkt.anzahl()) return 0;
        const Punkt& rover = m_g.R_Punkt[i];
        for (int f = 1; f <= m_g.GEO_Punkt.anzahl(); ++f)
            if (punkt_in_figur(m_g.GEO_Punkt[f], rover.Rechtswert, rover.Hochwert)) return f;
        return 0;
    }

    void stationen_nehmen(int i)
    {
        Begruendung& warum = grund(i);
        const Spanne& rover = m_rover_spannen[static_cast<std::size_t>(i)];
        warum.Minuten_ROVER = minuten(rover.von, rover.bis);
        warum.Figur = figur_von(i);
        if (warum.Figur == 0) {
            ampel(i, rot, keine_station, Pruefung::in_keiner_figur);
            return;
        }
        const GEO_Punkt_Satz& figur = m_g.GEO_Punkt[warum.Figur];
        warum.Ecken = figur.Anzahl;
        for (int ecke = 0; ecke < figur.Anzahl; ++ecke) {
            const auto dateien = m_dateien_des_punkts.find(figur.Punkt[static_cast<std::size_t>(ecke)]);
            if (dateien == m_dateien_des_punkts.end()) continue;
            warum.Dateien.reserve(warum.Dateien.size() + dateien->second.size());
            for (const std::size_t k : dateien->second) datei_pruefen(i, k, rover);
        }
        anzahl_bewerten(i, figur.Anzahl);
    }

    // All files of a station that cover the rover are taken; a fifth is counted, but has no room.
    void datei_pruefen(int i, std::size_t k, const Spanne& rover)
    {
        const OBS& datei = m_g.OBS_S[static_cast<int>(k)];
        Dateiurteil u = urteil(datei, m_stations_spannen[k], rover);
        u.genommen = u.Sekunden_vorher == 0 && u.Sekunden_nachher == 0;
        if (u.genommen) {
            auto& zeile = m_g.ROVER_TOREL[i];
            if (++zeile.Anzahl <= max_namen)
                zeile.TOREL_Dateiname[static_cast<std::size_t>(zeile.Anzahl - 1)] = datei.Dateiname;
        }
        grund(i).Dateien.push_back(std::move(u));
    }

    void anzahl_bewerten(int i, int ecken)
    {
        const int anzahl = m_g.ROVER_TOREL[i].Anzahl;
        if (anzahl == 0)
            ampel(i, rot, keine_station, Pruefung::keine_datei);
        else if (anzahl < ecken)
            ampel(i, gelb, zu_wenige, Pruefung::zu_wenig);
        else if (anzahl == ecken)
            ampel(i, gruen, ok, Pruefung::vollstaendig);
        else
            grund(i).Schritte.push_back(Pruefung::mehr_als_ecken);
    }

    // Day of year: characters 5 to 7 of the file names.
    void tag_pruefen(int i)
    {
        const auto& zeile = m_g.ROVER_TOREL[i];
        const auto tag = mitte(zeile.ROVER_Dateiname, 5, 3);
        for (int n = 0; n < zeile.Anzahl_Namen(); ++n) {
            const std::string& datei = zeile.TOREL_Dateiname[static_cast<std::size_t>(n)];
            if (mitte(datei, 5, 3) == tag) continue;
            grund(i).abweichende_Datei = datei;
            ampel(i, rot, tag_verschieden, Pruefung::tag);
            return;
        }
    }

    // Day and session letter among the stations: characters 5 to 8.
    void session_pruefen(int i)
    {
        const auto& zeile = m_g.ROVER_TOREL[i];
        for (int n = 1; n < zeile.Anzahl_Namen(); ++n) {
            const std::string& datei = zeile.TOREL_Dateiname[static_cast<std::size_t>(n)];
            if (mitte(datei, 5, 4) == mitte(zeile.TOREL_Dateiname[0], 5, 4)) continue;
            grund(i).abweichende_Datei = datei;
            ampel(i, rot, session_verschieden, Pruefung::session);
            return;
        }
    }

    void dauer_pruefen(int i)
    {
        const auto& zeile = m_g.ROVER_TOREL[i];
        const Spanne& rover = m_rover_spannen[m_rover.find(zeile.ROVER_Dateiname)->second];
        if (minuten(rover.von, rover.bis) >= stunde_min) {
            if (zeile.Status < gelb) ampel(i, gruen, ok, Pruefung::lang_genug);
            return;
        }
        const Spanne angebot = spanne_der_stationen(i, rover);
        Begruendung& warum = grund(i);
        warum.Minuten_Spanne = minuten(angebot.von, angebot.bis);
        warum.Spanne_von = zeitpunkt_aus_sekunden(angebot.von);
        warum.Spanne_bis = zeitpunkt_aus_sekunden(angebot.bis);
        if (warum.Minuten_Spanne < stunde_min) {
            ampel(i, rot, kurz, Pruefung::spanne_zu_kurz);
        } else if (angebot.von <= rover.von && angebot.bis > rover.bis) {  // not symmetric, and must stay so
            if (zeile.Status < gelb) ampel(i, gruen, ok, Pruefung::spanne_reicht);
        } else {
            ampel(i, rot, laenger, Pruefung::spanne_endet_zu_frueh);
        }
    }

    // What the assigned files offer within an hour before and behind the rover.
    Spanne spanne_der_stationen(int i, const Spanne& rover) const
    {
        Spanne angebot{rover.von - stunde_s, rover.bis + stunde_s};
        const auto& zeile = m_g.ROVER_TOREL[i];
        for (int n = 0; n < zeile.Anzahl_Namen(); ++n) {
            const auto datei = m_stationsdateien.find(zeile.TOREL_Dateiname[static_cast<std::size_t>(n)]);
            if (datei == m_stationsdateien.end()) continue;
            const Spanne& station = m_stations_spannen[datei->second];
            angebot.von = std::max(angebot.von, station.von);
            angebot.bis = std::min(angebot.bis, station.bis);
        }
        return angebot;
    }

    Global& m_g;
    std::vector<Spanne> m_rover_spannen, m_stations_spannen;
    std::unordered_map<std::string_view, std::size_t> m_rover, m_stationsdateien;
    std::unordered_map<std::string_view, std::vector<std::size_t>> m_dateien_des_punkts;
};

// The nearest foreign station that covers the rover; the first of two equally near ones wins.
void fremde_waehlen(Global& g, int i, const Spanne& rover, const std::vector<Spanne>& stationen)
{
    auto& zeile = g.ROVER_VIRT[i];
    Begruendung& warum = g.Begruendungen[static_cast<std::size_t>(i - 1)];
    warum.Minuten_ROVER = minuten(rover.von, rover.bis);
    double beste = weiteste_strecke;
    std::size_t gewaehlt = 0;  // place from 1 of the choice among the files looked at
    const int anzahl = std::min(g.V_Punkt.anzahl(), g.OBS_V.anzahl());
    for (int j = 1; j <= anzahl; ++j) {
        const double dr = g.V_Punkt[j].Rechtswert - g.R_Punkt[i].Rechtswert;
        const double dh = g.V_Punkt[j].Hochwert - g.R_Punkt[i].Hochwert;
        const double strecke = std::sqrt(dr * dr + dh * dh);
        if (!(strecke < beste)) continue;
        const Spanne& station = stationen[static_cast<std::size_t>(j)];
        Dateiurteil u = urteil(g.OBS_V[j], station, rover);
        u.Strecke = strecke;
        u.Minuten_Laenge = minuten(station.von, station.bis);
        u.genommen = u.Minuten_Laenge >= stunde_min && u.Sekunden_vorher == 0 && u.Sekunden_nachher == 0;
        const bool taugt = u.genommen;
        warum.Dateien.push_back(std::move(u));
        if (!taugt) continue;
        if (gewaehlt != 0) warum.Dateien[gewaehlt - 1].genommen = false;
        gewaehlt = warum.Dateien.size();
        beste = strecke;
        zeile.VIRT_Dateiname = g.OBS_V[j].Dateiname;
        zeile.VIRT_Index = j;
        zeile.Strecke = strecke;
    }
    warum.Schritte.push_back(zeile.VIRT_Index != 0 ? Pruefung::fremde_zugeordnet : Pruefung::keine_fremde);
}

void fremde_zuordnen(Global& g)
{
    const int anzahl = g.OBS_R.anzahl();
    if (!g.ROVER_VIRT.groesse_setzen(anzahl)) {
        stop_melden(g,
                    dimensionierung_meldung(76, "automatik", verkettet("    ReDim Preserve ROVER_VIRT(", anzahl, ")")));
        return;
    }
    begruendungen_leeren(g);
    const auto rover = spannen(g.OBS_R), stationen = spannen(g.OBS_V);
    for (int i = 1; i <= anzahl; ++i) {
        g.ROVER_VIRT[i] = {};
        g.ROVER_VIRT[i].ROVER_Dateiname = g.OBS_R[i].Dateiname;
        if (i <= g.R_Punkt.anzahl()) fremde_waehlen(g, i, rover[static_cast<std::size_t>(i)], stationen);
    }
}

}  // namespace

void zuordnen(Global& g)
{
    if (g.OBS_R.anzahl() == 0) g.Begruendungen.clear();
    if (g.OBS_R.anzahl() > 0 && ist_E_oder_S(g)) Zuordnung(g).ausfuehren();
    if (g.OBS_R.anzahl() > 0 && ist_F(g)) fremde_zuordnen(g);
}

void automatik(Global& g)
{
    zuordnen(g);
    baum_aufbauen(g);
}

}  // namespace jorv
