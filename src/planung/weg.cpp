#include "planung/weg.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "geo/xyz_nach_utm.h"
#include "modell/Gemeinsam.h"
#include "planung/automatik.h"
#include "planung/handarbeit.h"
#include "planung/zeitfenster.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::uint8_t gruen = 1;
constexpr std::size_t ecken = 3, hoechstens_stationen = 12;

Dateiurteil urteil(const OBS& datei, const OBS& rover)
{
    Dateiurteil u;
    u.TOREL_Dateiname = datei.Dateiname;
    u.Punktkennzeichen = datei.Punktkennzeichen;
    const auto spaeter = [](const Zeitpunkt& a, const Zeitpunkt& b) {
        return std::max<std::int64_t>(0, sekunden_seit_1970(b) - sekunden_seit_1970(a));
    };
    u.Sekunden_vorher = spaeter(rover.Startzeit(), datei.Startzeit());
    u.Sekunden_nachher = spaeter(datei.Endzeit(), rover.Endzeit());
    if (u.Sekunden_vorher > 0) u.Minuten_vorher = minuten_zwischen(rover.Startzeit(), datei.Startzeit());
    if (u.Sekunden_nachher > 0) u.Minuten_nachher = minuten_zwischen(datei.Endzeit(), rover.Endzeit());
    return u;
}

std::int64_t fehlend(const Dateiurteil& u)
{
    return u.Sekunden_vorher + u.Sekunden_nachher;
}

// Day, and day with session, out of a file name.
std::string_view tag(std::string_view name)
{
    return mitte(name, 5, 3);
}
std::string_view kennung(std::string_view name)
{
    return mitte(name, 5, 4);
}

class Wegsuche {
public:
    Wegsuche(const Global& g, int rover)
        : m_g(g), m_rover(g.OBS_R[rover]), m_punkt(g.R_Punkt[rover]), m_satz(g.ROVER_TOREL[rover])
    {
        if (static_cast<std::size_t>(rover) <= g.Begruendungen.size())
            m_warum = g.Begruendungen[static_cast<std::size_t>(rover - 1)];
    }

    Weg suchen() const
    {
        for (const auto versuch :
             {&Wegsuche::ohne_schutz, &Wegsuche::mit_figur, &Wegsuche::von_hand, &Wegsuche::mit_neuen_dateien})
            if (auto weg = (this->*versuch)()) return *weg;
        return {};
    }

private:
    // The project with this rover alone.
    Global probe() const
    {
        Global p(*m_g.oberflaeche, *m_g.uhr, m_g.dateien);
        p.Verfahrensmodus = m_g.Verfahrensmodus;
        p.OBS_S = m_g.OBS_S;
        p.S_Punkt = m_g.S_Punkt;
        p.GEO_Punkt = m_g.GEO_Punkt;
        static_cast<void>(p.OBS_R.anfuegen(m_rover));
        static_cast<void>(p.R_Punkt.anfuegen(m_punkt));
        static_cast<void>(p.ROVER_TOREL.anfuegen(m_satz));
        return p;
    }

    static bool wird_gruen(Global& p)
    {
        zuordnen(p);
        return p.ROVER_TOREL[1].Status == gruen;
    }

    double strecke(const Punkt& station) const
    {
        return std::hypot(station.Rechtswert - m_punkt.Rechtswert, station.Hochwert - m_punkt.Hochwert);
    }

    std::optional<Weg> ohne_schutz() const
    {
        if (!m_satz.Schutz) return std::nullopt;
        Global p = probe();
        p.ROVER_TOREL[1].Schutz = false;
        if (!wird_gruen(p)) return std::nullopt;
        return Weg{Wegart::schutz_aufheben, {}, {}, {}};
    }

    // Only a rover that lies in no figure can be reached by a new one.
    std::optional<Weg> mit_figur() const
    {
        if (m_satz.Schutz || m_warum.Figur != 0) return std::nullopt;
        const auto stationen = naechste_stationen();
        struct Dreieck {
            double weite;
            std::array<const Punkt*, ecken> punkte;
        };
        std::vector<Dreieck> dreiecke;
        for (std::size_t a = 0; a < stationen.size(); ++a)
            for (std::size_t b = a + 1; b < stationen.size(); ++b)
                for (std::size_t c = b + 1; c < stationen.size(); ++c)
                    dreiecke.push_back({strecke(*stationen[a]) + strecke(*stationen[b]) + strecke(*stationen[c]),
                                        {stationen[a], stationen[b], stationen[c]}});
        std::sort(dreiecke.begin(), dreiecke.end(), [](const auto& x, const auto& y) { return x.weite < y.weite; });
        Global p = probe();
        for (const auto& dreieck : dreiecke) {
            GEO_Punkt_Satz figur;
            Weg weg{Wegart::figur, {}, {}, {}};
            for (const Punkt* ecke : dreieck.punkte) {
                const auto i = static_cast<std::size_t>(figur.Anzahl++);
                figur.Punkt[i] = ecke->Punktkennzeichen;
                figur.Rechtswert[i] = ecke->Rechtswert;
                figur.Hochwert[i] = ecke->Hochwert;
                weg.Punkte.push_back(ecke->Punktkennzeichen);
            }
            if (!punkt_in_figur(figur, m_punkt.Rechtswert, m_punkt.Hochwert)) continue;
            if (!p.GEO_Punkt.anfuegen(figur)) return std::nullopt;
            if (wird_gruen(p)) return weg;
            static_cast<void>(p.GEO_Punkt.entfernen(p.GEO_Punkt.anzahl()));
        }
        return std::nullopt;
    }

    // Those with a file of the rover's day that covers him.
    std::vector<const Punkt*> naechste_stationen() const
    {
        std::map<std::string_view, const Punkt*> alle;
        const int anzahl = std::min(m_g.OBS_S.anzahl(), m_g.S_Punkt.anzahl());
        for (int k = 1; k <= anzahl; ++k)
            if (tag(m_g.OBS_S[k].Dateiname) == tag(m_rover.Dateiname) && fehlend(urteil(m_g.OBS_S[k], m_rover)) == 0)
                alle.try_emplace(m_g.S_Punkt[k].Punktkennzeichen, &m_g.S_Punkt[k]);
        std::vector<const Punkt*> stationen;
        for (const auto& eintrag : alle) stationen.push_back(eintrag.second);
        std::sort(stationen.begin(), stationen.end(),
                  [this](const Punkt* a, const Punkt* b) { return strecke(*a) < strecke(*b); });
        if (stationen.size() > hoechstens_stationen) stationen.resize(hoechstens_stationen);
        return stationen;
    }

    // Three stations of one session that miss as little of the rover as there are.
    std::optional<Weg> von_hand() const
    {
        struct Wahl {
            Dateiurteil datei;
            double weite;
        };
        std::map<std::string_view, std::map<std::string_view, Wahl>> sessionen;  // best file of each station
        const int anzahl = std::min(m_g.OBS_S.anzahl(), m_g.S_Punkt.anzahl());
        for (int k = 1; k <= anzahl; ++k) {
            const OBS& datei = m_g.OBS_S[k];
            const bool ueberlappt = datei.Endzeit() > m_rover.Startzeit() && datei.Startzeit() < m_rover.Endzeit();
            if (!ueberlappt || tag(datei.Dateiname) != tag(m_rover.Dateiname)) continue;
            const Wahl wahl{urteil(datei, m_rover), strecke(m_g.S_Punkt[k])};
            auto& session = sessionen[kennung(datei.Dateiname)];
            const auto [platz, neu] = session.try_emplace(datei.Punktkennzeichen, wahl);
            if (!neu && fehlend(wahl.datei) < fehlend(platz->second.datei)) platz->second = wahl;
        }
        std::optional<Weg> bester;
        std::int64_t fehlt = 0;
        for (const auto& session : sessionen) {
            if (session.second.size() < ecken) continue;
            std::vector<Wahl> wahl;
            for (const auto& station : session.second) wahl.push_back(station.second);
            std::stable_sort(wahl.begin(), wahl.end(), [](const Wahl& a, const Wahl& b) {
                return std::pair(fehlend(a.datei), a.weite) < std::pair(fehlend(b.datei), b.weite);
            });
            Weg weg{Wegart::von_hand, {}, {}, {}};
            std::int64_t summe = 0;
            for (std::size_t n = 0; n < ecken; ++n) {
                summe += fehlend(wahl[n].datei);
                weg.Dateien.push_back(wahl[n].datei);
            }
            if (bester && summe >= fehlt) continue;
            bester = std::move(weg);
            fehlt = summe;
        }
        return bester && verknuepft_gruen(*bester) ? bester : std::nullopt;
    }

    bool verknuepft_gruen(const Weg& weg) const
    {
        Global p = probe();
        Handarbeit h;
        p.ROVER_TOREL[1].Anzahl = 0;  // nothing is chosen yet
        p.ROVER_TOREL[1].TOREL_Dateiname = {};
        if (ist_fehler(handarbeit_oeffnen(p, m_rover.Dateiname, h))) return false;
        for (const auto& datei : weg.Dateien)
            for (int i = 1; i <= h.Detail.anzahl(); ++i)
                if (h.Detail[i].Dateiname == datei.TOREL_Dateiname) {
                    handarbeit_klick(p, h, i);
                    break;
                }
        h.Schutz = true;
        handarbeit_ok(p, h);
        return wird_gruen(p);
    }

    // The corners of the rover's figure that have no file for him. A short rover wants an hour around it.
    std::optional<Weg> mit_neuen_dateien() const
    {
        if (m_satz.Schutz || m_warum.Figur < 1 || m_warum.Figur > m_g.GEO_Punkt.anzahl()) return std::nullopt;
        const GEO_Punkt_Satz& figur = m_g.GEO_Punkt[m_warum.Figur];
        const Zeitfenster spanne = zeitfenster_von(m_rover);
        const std::string& muster = m_satz.Anzahl > 0 ? m_satz.TOREL_Dateiname[0] : m_rover.Dateiname;
        Global p = probe();
        Weg weg{Wegart::einfuegen, {}, {}, {}};
        for (std::size_t n = 0; n < static_cast<std::size_t>(figur.Anzahl); ++n) {
            const auto hat = [&](const Dateiurteil& u) { return u.genommen && u.Punktkennzeichen == figur.Punkt[n]; };
            if (std::any_of(m_warum.Dateien.begin(), m_warum.Dateien.end(), hat)) continue;
            weg.Bedarf.push_back({figur.Punkt[n], verkettet(figur.Punkt[n], kennung(muster), mitte(muster, 9, 4)),
                                  spanne.von, spanne.bis});
            if (!p.OBS_S.anfuegen(datei_nach(weg.Bedarf.back()))) return std::nullopt;
        }
        return !weg.Bedarf.empty() && wird_gruen(p) ? std::optional(weg) : std::nullopt;
    }

    static OBS datei_nach(const Stationsbedarf& bedarf)
    {
        const auto kurz = [](int wert) { return static_cast<std::int16_t>(wert); };
        OBS o;
        o.Dateiname = bedarf.TOREL_Dateiname;
        o.Punktkennzeichen = bedarf.Punktkennzeichen;
        const Zeitpunkt &a = bedarf.von, &e = bedarf.bis;
        o.Startzeit_Jahr = kurz(a.jahr), o.Startzeit_Monat = kurz(a.monat), o.Startzeit_Tag = kurz(a.tag);
        o.Startzeit_Stunde = kurz(a.stunde), o.Startzeit_Minute = kurz(a.minute), o.Startzeit_Sekunde = kurz(a.sekunde);
        o.Endzeit_Jahr = kurz(e.jahr), o.Endzeit_Monat = kurz(e.monat), o.Endzeit_Tag = kurz(e.tag);
        o.Endzeit_Stunde = kurz(e.stunde), o.Endzeit_Minute = kurz(e.minute), o.Endzeit_Sekunde = kurz(e.sekunde);
        return o;
    }

    const Global& m_g;
    const OBS& m_rover;
    const Punkt& m_punkt;
    const ROVER_TOREL_Satz& m_satz;
    Begruendung m_warum;
};

}  // namespace

std::optional<Weg> weg_zu_gruen(const Global& g, int rover)
{
    const bool bekannt =
        rover >= 1 && rover <= std::min({g.OBS_R.anzahl(), g.R_Punkt.anzahl(), g.ROVER_TOREL.anzahl()});
    if (!ist_E_oder_S(g) || !bekannt || g.ROVER_TOREL[rover].Status == gruen) return std::nullopt;
    return Wegsuche(g, rover).suchen();
}

}  // namespace jorv
