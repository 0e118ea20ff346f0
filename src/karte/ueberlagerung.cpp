// What moves above the kept picture of the map.
#include <algorithm>
#include <cmath>

#include "karte/karte.h"
#include "karte/lichtzeichen.h"
#include "karte/schriftmass.h"

namespace jorv {

namespace {

constexpr Ebene ebene = Ebene::ueberlagerung;
constexpr Stift gepunktet = {kartenfarbe::schwarz, 1, Strich::gepunktet};

}  // namespace

Zeichenliste Karte::ueberlagerung() const
{
    Zeichenliste bild;
    if (!m_ansicht.skaliert()) return bild;
    for (const auto& ort : m_markiert)
        bild.push_back(
            {ebene,
             Kreise{
                 {m_ansicht.bild(ort)}, Ansicht::symbol, {kartenfarbe::schwarz, 1, Strich::voll}, kartenfarbe::gelb}});
    lichter_zeichnen(bild);
    figur_zeichnen(bild);
    if (m_zoom && m_zoom->bewegt) {
        const auto [links, rechts] = std::minmax(m_zoom->von.x, m_zoom->bis.x);
        const auto [oben, unten] = std::minmax(m_zoom->von.y, m_zoom->bis.y);
        bild.push_back({ebene, Rechteck{{links, oben}, rechts - links, unten - oben, gepunktet, std::nullopt}});
    }
    marke_zeichnen(bild);
    return bild;
}

void Karte::lichter_zeichnen(Zeichenliste& bild) const
{
    for (const auto& licht : m_lichter) {
        if (licht.rover > m_g.R_Punkt.anzahl()) continue;
        const Punkt& p = m_g.R_Punkt[licht.rover];
        lichtzeichen(licht.bild, m_ansicht.bild({p.Rechtswert, p.Hochwert}), ebene, bild);
    }
}

// From the last corner to the pointer, and on to the first corner once that gives a figure. A ring shows the station
// that a click would take.
void Karte::figur_zeichnen(Zeichenliste& bild) const
{
    if (!m_zeiger || m_zoom) return;
    const bool im_bau = !m_g.geo_fertig && m_g.GEO_Punkt.anzahl() > 0;
    const bool ecke = waere_neue_ecke(m_g, m_station), schluss = wuerde_schliessen(m_g, m_station);
    Bildort spitze = *m_zeiger;
    if (m_station != 0 && (ecke || schluss)) {
        const Punkt& p = m_g.S_Punkt[m_station];
        spitze = m_ansicht.bild({p.Rechtswert, p.Hochwert});
        constexpr double ring = Ansicht::symbol + 3;
        bild.push_back({ebene, Kreise{{spitze}, ring, {kartenfarbe::schwarz, 1.5, Strich::voll}, std::nullopt}});
    }
    if (!im_bau) return;
    const auto& figur = m_g.GEO_Punkt.letztes();
    constexpr int max_ecken = 4;
    if (figur.Anzahl == 0 || figur.Anzahl >= max_ecken) return;
    const auto ort = [&](int n) {
        const auto i = static_cast<std::size_t>(n - 1);
        return m_ansicht.bild({figur.Rechtswert[i], figur.Hochwert[i]});
    };
    bild.push_back({ebene, Linie{ort(figur.Anzahl), spitze, gepunktet}});
    if (figur.Anzahl > 1) bild.push_back({ebene, Linie{spitze, ort(1), gepunktet}});
}

void Karte::marke_zeichnen(Zeichenliste& bild) const
{
    if (m_marke && m_zeiger && !m_zoom) jorv::marke_zeichnen(*m_marke, *m_zeiger, m_ansicht, bild);
}

// On the other side where the picture ends.
void marke_zeichnen(const Punktmarke& marke, const Bildort& zeiger, const Ansicht& ansicht, Zeichenliste& bild)
{
    constexpr double weit = 4 * Ansicht::symbol;
    const double breite = schriftbreite(marke.text, schrift_hinweis) + 2 * textrand;
    const double hoehe = schrifthoehe(schrift_hinweis);
    const auto stelle = [](double ort, double laenge, double ende) {
        return ort + weit + laenge <= ende ? weit : -weit - laenge;
    };
    Schrift schrift;
    schrift.ort = zeiger;
    schrift.abstand = {stelle(zeiger.x, breite, ansicht.breite()), stelle(zeiger.y, hoehe, ansicht.hoehe())};
    schrift.text = marke.text;
    schrift.groesse = schrift_hinweis;
    schrift.hintergrund = marke.hintergrund;
    bild.push_back({ebene, std::move(schrift)});
}

}  // namespace jorv
