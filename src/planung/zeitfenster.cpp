#include "planung/zeitfenster.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr int minuten_der_stunde = 60;
constexpr std::int64_t halbe_stunde = 1800;

// The middle of a span of whole seconds, a half second to the even neighbour.
std::int64_t haelfte(std::int64_t sekunden)
{
    return static_cast<std::int64_t>(std::nearbyint(static_cast<double>(sekunden) / 2));
}

// Cut by position from the date text, which has no time part at midnight.
std::string sechs_ziffern(const Zeitpunkt& zeit)
{
    const std::string text = datum_text(zeit);
    return verkettet(mitte(text, 12, 2), mitte(text, 15, 2), rechts(text, 2));
}

void alle_aus(Global& g)
{
    for (auto& zeile : g.ROVER_TOREL) {
        g.oberflaeche->ereignisse();
        zeile.Zeitfenster_Startzeit = zeile.Zeitfenster_Endzeit = "0";
    }
}

void alle_berechnen(Global& g)
{
    std::unordered_map<std::string_view, int> stelle;
    for (int i = 1; i <= g.OBS_R.anzahl(); ++i) stelle.try_emplace(g.OBS_R[i].Dateiname, i);
    const int anzahl = g.ROVER_TOREL.anzahl();
    for (int i = 1; i <= anzahl; ++i) {
        if (g.oberflaeche->ereignisse()) g.abbruch = -1;
        if (g.abbruch != 0) {
            m_grund_zeitfenster_1h(g);
            return;
        }
        g.oberflaeche->fortschritt_setzen(i * 100.0 / anzahl);
        const auto fund = stelle.find(g.ROVER_TOREL[i].ROVER_Dateiname);
        if (fund == stelle.end()) continue;
        const Zeitfenster fenster = zeitfenster_von(g.OBS_R[fund->second]);
        g.ROVER_TOREL[i].Zeitfenster_Startzeit = sechs_ziffern(fenster.von);
        g.ROVER_TOREL[i].Zeitfenster_Endzeit = sechs_ziffern(fenster.bis);
    }
}

// Adds the days that the list doesn't hold yet.
class Tagesliste {
public:
    explicit Tagesliste(Global& g) : m_g(g) {}

    Fehler beginnen()
    {
        if (m_g.tage.groesse_setzen(0)) return Fehler::keiner;
        return melden(26, "       ReDim tage(0 To 1)");
    }

    Fehler aufnehmen(const Feld<OBS>& beobachtungen, int nummer)
    {
        for (const auto& beobachtung : beobachtungen) {
            if (!m_vorhanden.insert(beobachtung.Tag).second) continue;
            if (!m_g.tage.anfuegen(beobachtung.Tag))
                return melden(nummer, verkettet("    ReDim Preserve tage(0 To ", m_g.tage.anzahl() + 1, ")"));
        }
        return Fehler::keiner;
    }

private:
    Fehler melden(int nummer, std::string_view anweisung)
    {
        stop_melden(m_g, dimensionierung_meldung(nummer, "menue_zeitfenster", anweisung));
        return Fehler::gesetzt;
    }

    Global& m_g;
    std::unordered_set<std::int16_t> m_vorhanden;
};

Fehler tage_sammeln(Global& g)
{
    Tagesliste liste(g);
    if (ist_fehler(liste.beginnen())) return Fehler::gesetzt;
    if (ist_E_oder_S(g) && ist_fehler(liste.aufnehmen(g.OBS_S, 27))) return Fehler::gesetzt;
    if (ist_fehler(liste.aufnehmen(g.OBS_R, 28))) return Fehler::gesetzt;
    if (ist_F(g) && ist_fehler(liste.aufnehmen(g.OBS_V, 75))) return Fehler::gesetzt;
    std::sort(g.tage.begin(), g.tage.end());
    return Fehler::keiner;
}

}  // namespace

Zeitfenster zeitfenster_von(const OBS& rover)
{
    const Zeitpunkt a = rover.Startzeit(), e = rover.Endzeit();
    if (minuten_zwischen(a, e) >= minuten_der_stunde) return {a, e};
    const std::int64_t beginn = sekunden_seit_1970(a);
    const std::int64_t mitte_s = beginn + haelfte(sekunden_seit_1970(e) - beginn);
    return {zeitpunkt_aus_sekunden(mitte_s - halbe_stunde), zeitpunkt_aus_sekunden(mitte_s + halbe_stunde)};
}

void zeitfenster_alle(Global& g)
{
    g.abbruch = 0;
    if (g.Zeitfenster_1h != "1") {
        alle_aus(g);
        return;
    }
    constexpr double anfang_prozent = 0.0001;
    g.oberflaeche->fortschritt_zeigen("Bitte warten (Zeitfenster berechnen)");
    g.oberflaeche->fortschritt_setzen(anfang_prozent);
    alle_berechnen(g);
    g.oberflaeche->fortschritt_verbergen();
}

void m_grund_zeitfenster_1h(Global& g)
{
    g.Zeitfenster_1h = g.Zeitfenster_1h == "1" ? "0" : "1";
    g.oberflaeche->menue_erneuern();
    zeitfenster_alle(g);
    Datum_setzen(g);
}

Fehler menue_zeitfenster(Global& g)
{
    const Fehler fehler = tage_sammeln(g);
    g.oberflaeche->menue_erneuern();
    return fehler;
}

}  // namespace jorv
