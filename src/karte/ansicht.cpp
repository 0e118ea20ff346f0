#include "karte/ansicht.h"

#include <algorithm>
#include <cmath>

namespace jorv {

namespace {

// Beyond these a double no longer tells neighbouring places apart, or there is no world left to show.
constexpr double kleinste_breite = 1e-3, groesste_breite = 1e9;

bool darstellbar(const Ausschnitt& a)
{
    const auto seite_gut = [](double laenge) { return laenge >= kleinste_breite && laenge <= groesste_breite; };
    return std::isfinite(a.links) && std::isfinite(a.unten) && seite_gut(a.breite()) && seite_gut(a.hoehe());
}

}  // namespace

Ausschnitt Ausschnitt::vergroessert(double faktor) const
{
    const double halbe_breite = breite() / 2 * faktor, halbe_hoehe = hoehe() / 2 * faktor;
    const Weltort m = mitte();
    return {m.Rechtswert - halbe_breite, m.Rechtswert + halbe_breite, m.Hochwert - halbe_hoehe,
            m.Hochwert + halbe_hoehe};
}

Ausschnitt ausschnitt_aus_ecken(const Weltort& a, const Weltort& b)
{
    const auto [links, rechts] = std::minmax(a.Rechtswert, b.Rechtswert);
    const auto [unten, oben] = std::minmax(a.Hochwert, b.Hochwert);
    return {links, rechts, unten, oben};
}

void Ansicht::groesse_setzen(double breite, double hoehe)
{
    m_breite = std::max(breite, 0.0);
    m_hoehe = std::max(hoehe, 0.0);
    if (!skaliert()) return;
    const Weltort m = m_fenster.mitte();
    const double dr = m_breite / je_meter() / 2, dh = m_hoehe / je_meter() / 2;
    m_fenster = {m.Rechtswert - dr, m.Rechtswert + dr, m.Hochwert - dh, m.Hochwert + dh};
}

bool Ansicht::setzen(const Ausschnitt& fenster, double faktor)
{
    if (!darstellbar(fenster) || !std::isfinite(faktor) || faktor <= 0) return false;
    m_fenster = fenster;
    m_Faktor = faktor;
    return true;
}

bool Ansicht::einpassen()
{
    if (m_breite <= 0 || m_hoehe <= 0) return false;
    const double bildbreite = m_breite * einheiten, bildhoehe = m_hoehe * einheiten;
    const double sx = m_wunsch.breite() / bildbreite, sy = m_wunsch.hoehe() / bildhoehe;
    Ausschnitt fenster = m_wunsch;
    if (sx <= sy) {
        const double rand = (bildbreite * sy - m_wunsch.breite()) / 2;
        fenster.links -= rand;
        fenster.rechts += rand;
    } else {
        const double rand = (bildhoehe * sx - m_wunsch.hoehe()) / 2;
        fenster.unten -= rand;
        fenster.oben += rand;
    }
    return setzen(fenster, std::max(sx, sy));
}

bool Ansicht::verkleinern()
{
    if (!setzen(m_fenster.vergroessert(2), m_Faktor * 2)) return false;
    m_wunsch = m_fenster;
    return true;
}

bool Ansicht::zoomen(const Bildort& fest, double faktor)
{
    if (!(faktor > 0) || !skaliert()) return false;
    const Weltort halt = welt(fest);
    const auto um_halt = [faktor](double rand, double mitte) { return mitte + (rand - mitte) / faktor; };
    const Ausschnitt neu = {um_halt(m_fenster.links, halt.Rechtswert), um_halt(m_fenster.rechts, halt.Rechtswert),
                            um_halt(m_fenster.unten, halt.Hochwert), um_halt(m_fenster.oben, halt.Hochwert)};
    if (!setzen(neu, m_Faktor / faktor)) return false;
    m_wunsch = m_fenster;
    return true;
}

bool Ansicht::verschieben(double dx, double dy)
{
    if (!skaliert()) return false;
    const double dr = dx / je_meter(), dh = dy / je_meter();
    const Ausschnitt neu = {m_fenster.links - dr, m_fenster.rechts - dr, m_fenster.unten + dh, m_fenster.oben + dh};
    if (!setzen(neu, m_Faktor)) return false;
    m_wunsch = m_fenster;
    return true;
}

}  // namespace jorv
