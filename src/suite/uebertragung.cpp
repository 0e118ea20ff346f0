#include "suite/uebertragung.h"

#include <algorithm>
#include <optional>

#include "suite/verschiebung.h"

namespace jorv::suite {

namespace {

double code(const Messung& m)
{
    for (const Art art : {Art::C1, Art::P1, Art::P2})
        if (m[art] != 0.0) return m[art];
    return 0.0;
}

/// The shift of an observation with the ionosphere's delay on L1 (metres of a code) and the frequencies of its phases.
struct Bewegt {
    Verschiebung um;
    double frequenz1 = FREQUENZ1, frequenz2 = FREQUENZ2;
    double iono = 0.0;
};

void verschieben(Messung& m, const Bewegt& bewegt)
{
    const double strecke = bewegt.um.strecke;
    const auto dazu = [&](Art art, double betrag) {
        double& wert = m.wert[static_cast<std::size_t>(art)];
        if (wert != 0.0) wert += betrag;
    };
    const auto iono = [&](double frequenz) { return bewegt.iono * FREQUENZ1 * FREQUENZ1 / (frequenz * frequenz); };
    const double iono1 = iono(bewegt.frequenz1), iono2 = iono(bewegt.frequenz2);
    for (const Art art : {Art::C1, Art::P1}) dazu(art, strecke + iono1);
    for (const Art art : {Art::C2, Art::P2}) dazu(art, strecke + iono2);
    dazu(Art::L1, (strecke - iono1) * bewegt.frequenz1 / LICHT);
    dazu(Art::L2, (strecke - iono2) * bewegt.frequenz2 / LICHT);
}

void verbessern(Messung& m, const Korrektur& k)
{
    const auto dazu = [&](Art art, double betrag) {
        double& wert = m.wert[static_cast<std::size_t>(art)];
        if (wert != 0.0) wert += betrag;
    };
    for (const Art art : {Art::C1, Art::P1}) dazu(art, k.code1());
    for (const Art art : {Art::C2, Art::P2}) dazu(art, k.code2());
    dazu(Art::L1, k.l1 * FREQUENZ1 / LICHT);
    dazu(Art::L2, k.l2 * FREQUENZ2 / LICHT);
}

// Nothing for a satellite without an orbit.
std::optional<Bewegt> bewegt(const Uebertragungsauftrag& u, const Verschieber& verschieber, const Messung& m,
                             const GpsZeit& zeit, double strecke)
{
    if (m.satellit > GLONASS) {
        const Glonasssatz* satz = passender_satz(u.glonass, m.satellit, zeit);
        if (!satz) return {};
        return Bewegt{verschieber.rechnen(*satz, strecke), glonass_frequenz1(satz->kanal),
                      glonass_frequenz2(satz->kanal)};
    }
    const auto saetze = u.bahnen.find(m.satellit);
    const Ephemeride* eph = saetze == u.bahnen.end() ? nullptr : passende_ephemeride(saetze->second, m.satellit, zeit);
    if (!eph) return {};
    return Bewegt{verschieber.rechnen(*eph, strecke)};
}

// The observation at the new place; nothing when it is left out.
std::optional<Messung> uebertragene(const Uebertragungsauftrag& u, const Verschieber& verschieber, Messung m,
                                    const GpsZeit& zeit, Uebertragungsbericht& zaehlung)
{
    // The network knows GPS alone, and what it doesn't correct would spoil what it does.
    if (m.satellit > GLONASS && u.korrekturen) return {};
    const double strecke = code(m);
    auto neu = strecke == 0.0 ? std::nullopt : bewegt(u, verschieber, m, zeit, strecke);
    zaehlung.ohne_code += strecke == 0.0;
    zaehlung.ohne_bahn += strecke != 0.0 && !neu;
    if (!neu) return {};
    zaehlung.unter_maske += neu->um.elevation < u.maske;
    if (neu->um.elevation < u.maske) return {};
    zaehlung.groesste = std::max(zaehlung.groesste, neu->um.strecke);
    zaehlung.kleinste = std::min(zaehlung.kleinste, neu->um.strecke);
    zaehlung.glonass += m.satellit > GLONASS;
    neu->iono = u.gefaelle.bei(neu->um.satellit, zeit);
    verschieben(m, *neu);
    if (!u.korrekturen) return m;
    const auto k = korrektur_bei(*u.korrekturen, zeit, m.satellit);
    zaehlung.ohne_netz += !k;
    if (!k) return {};
    verbessern(m, *k);
    return m;
}

}  // namespace

Uebertragungsbericht uebertragen(RinexBeobachtung& daten, const Uebertragungsauftrag& auftrag)
{
    Uebertragungsbericht zaehlung;
    std::size_t behalten = 0;  // observations move forward in their own array
    for (Epoche& e : daten.epochen) {
        const Verschieber verschieber(auftrag.von, auftrag.nach, auftrag.modell, e.zeit);
        const std::size_t erste = behalten;
        for (std::size_t i = 0; i < e.anzahl; ++i)
            if (const auto m = uebertragene(auftrag, verschieber, daten.messungen[e.erste + i], e.zeit, zaehlung))
                daten.messungen[behalten++] = *m;
        e.erste = erste;
        e.anzahl = behalten - erste;
    }
    daten.messungen.resize(behalten);
    std::erase_if(daten.epochen, [](const Epoche& e) { return e.anzahl == 0; });
    return zaehlung;
}

Ionosphaerengefaelle gefaelle(const Netz& netz, const Ort& master, const Ort& nach, double anteil)
{
    Ionosphaerengefaelle ziel;
    ziel.schicht = netz.ionosphaere;
    double rest = 1.0;
    for (std::size_t k = 0; anteil > 0 && k < netz.stationen.size(); ++k) {
        ziel.orte.push_back({Ort(netz.stationen[k].ort), -anteil * netz.gewichte[k]});
        rest -= anteil * netz.gewichte[k];
    }
    ziel.orte.push_back({master, -rest});
    ziel.orte.push_back({nach, 1.0});
    return ziel;
}

}  // namespace jorv::suite
