#include "karte/einzelkarte.h"

#include "karte/ausduennung.h"
#include "karte/beschriftung.h"
#include "karte/massstab.h"
#include "karte/treffer.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr double rand_anteil = 0.05, umkreis = 100.0;
constexpr Stift umriss = {kartenfarbe::schwarz, 1, Strich::voll};

Ausschnitt wunsch_von(const Handarbeit& h)
{
    const Handausschnitt a = handarbeit_ausschnitt(h);
    const double breite = a.Rechtswert_max - a.Rechtswert_min, hoehe = a.Hochwert_max - a.Hochwert_min;
    // A single place has no length to take a share of.
    const bool ein_ort = breite <= 0 && hoehe <= 0;
    const double rand_r = ein_ort ? umkreis : rand_anteil * breite, rand_h = ein_ort ? umkreis : rand_anteil * hoehe;
    return {a.Rechtswert_min - rand_r, a.Rechtswert_max + rand_r, a.Hochwert_min - rand_h, a.Hochwert_max + rand_h};
}

}  // namespace

void Einzelkarte::groesse_setzen(double breite, double hoehe)
{
    m_ansicht.groesse_setzen(breite, hoehe);
    m_ansicht.wunsch_setzen(wunsch_von(m_h));
    static_cast<void>(m_ansicht.einpassen());
}

Zeichenliste Einzelkarte::bild() const
{
    Zeichenliste bild;
    if (!m_ansicht.skaliert()) return bild;
    const auto hinzu = [&bild](Ebene ebene, auto form) { bild.push_back({ebene, std::move(form)}); };
    const auto kreise = [&](Ebene ebene, std::vector<Bildort> orte, Farbe farbe) {
        if (!orte.empty()) hinzu(ebene, Kreise{std::move(orte), Ansicht::symbol, umriss, farbe});
    };
    const auto massstab = grafik_massstab(m_ansicht);
    hinzu(Ebene::hintergrund,
          Rechteck{{0, 0}, m_ansicht.breite(), m_ansicht.hoehe(), std::nullopt, kartenfarbe::weiss});
    if (massstab) hinzu(Ebene::massstab, massstab->balken);
    std::vector<Bildort> katalog, gewaehlte, uebrige;
    std::vector<int> stationen;
    sichtbare_punkte(m_g.TOREL_Punkt, m_ansicht, Umfang::sichtbar, [&](const Bildort& stelle, int index) {
        katalog.push_back(stelle);
        stationen.push_back(index);
    });
    kreise(Ebene::katalog, katalog, kartenfarbe::gruen);
    for (const auto& z : m_h.Detail) (z.farbe == Zeilenfarbe::gelb ? gewaehlte : uebrige).push_back(ort(z));
    for (const auto& ziel : gewaehlte)
        hinzu(Ebene::zuordnung, Linie{ort(m_h.ROVER), ziel, {kartenfarbe::blau, 1, Strich::gepunktet}});
    kreise(Ebene::station, std::move(uebrige), kartenfarbe::blau);
    kreise(Ebene::ecke, std::move(gewaehlte), kartenfarbe::gelb);
    kreise(Ebene::rover, {ort(m_h.ROVER)}, kartenfarbe::rot);
    Beschriftung beschriftung(m_ansicht, Umfang::sichtbar);
    beschriftung.symbole_freihalten(katalog);
    beschriftung.symbole_freihalten({ort(m_h.ROVER)});
    for (std::size_t n = 0; n < katalog.size(); ++n)
        beschriftung.schreiben(katalog[n], m_g.TOREL_Punkt[stationen[n]].PKZ + " ", bild);
    if (massstab) hinzu(Ebene::massstab, massstab->schrift);
    return bild;
}

void Einzelkarte::bewegen(const Bildort& ort)
{
    m_zeiger = ort;
}

void Einzelkarte::verlassen()
{
    m_zeiger.reset();
}

// A station that the catalogue lacks is told by its files.
std::optional<Punktmarke> Einzelkarte::lbl_pkz() const
{
    if (!m_zeiger || !m_ansicht.skaliert()) return std::nullopt;
    const Weltort welt = m_ansicht.welt(*m_zeiger);
    const double radius = m_ansicht.symbol_radius();
    if (const int i = treffer(m_g.TOREL_Punkt, welt, radius); i != 0)
        return Punktmarke{verkettet("  ", m_g.TOREL_Punkt[i].PKZ, "  "), kartenfarbe::gelb};
    if (const int i = treffer(m_h.Detail, welt, radius); i != 0)
        return Punktmarke{verkettet("  ", m_h.Detail[i].Punktkennzeichen, "  "), kartenfarbe::gelb};
    return std::nullopt;
}

Zeichenliste Einzelkarte::ueberlagerung() const
{
    Zeichenliste bild;
    if (const auto marke = lbl_pkz()) marke_zeichnen(*marke, *m_zeiger, m_ansicht, bild);
    return bild;
}

}  // namespace jorv
