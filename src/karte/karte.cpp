#include "karte/karte.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "karte/kartenbild.h"
#include "karte/treffer.h"
#include "modell/Gemeinsam.h"
#include "planung/figuren.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// A rubber band must exceed this on both sides, metres; the hand may shake by so much in a click, logical units.
constexpr double kleinstes_band = 15.0, zittern = 3;

}  // namespace

void Karte::groesse_setzen(double breite, double hoehe)
{
    const bool erste = !m_ansicht.skaliert();
    m_ansicht.groesse_setzen(breite, hoehe);
    if (erste)
        grafik_zeichnen(true);
    else
        ansicht_geaendert();
}

// The name tells projects apart, and the file keeps a view that was not shown yet.
bool Karte::verfahren_gewechselt() const
{
    return !m_verfahren || *m_verfahren != verkettet(m_g.Verfahrensnummer, "|", m_g.Verfahrensname);
}

void Karte::wunsch_fuer_verfahren()
{
    m_ansicht.wunsch_setzen(m_g.Grafik_Fenster_gelesen ? Ausschnitt{m_g.Y_min, m_g.Y_max, m_g.X_min, m_g.X_max}
                                                       : grafik_grenzen(m_g));
    m_original = !std::exchange(m_g.Grafik_Fenster_gelesen, false);
    m_verfahren = verkettet(m_g.Verfahrensnummer, "|", m_g.Verfahrensname);
}

void Karte::grafik_zeichnen(bool neu)
{
    m_markiert.clear();
    m_lichter_stand.clear();  // the project's data may have changed
    // A map that has no size yet leaves the project's view for later.
    if (neu && m_ansicht.breite() > 0 && m_ansicht.hoehe() > 0) {
        // The original size follows the catalogue, which may have been read or have grown since.
        if (verfahren_gewechselt() || m_g.Grafik_Fenster_gelesen)
            wunsch_fuer_verfahren();
        else if (m_original)
            m_ansicht.wunsch_setzen(grafik_grenzen(m_g));
        einpassen();
    }
    zeiger_setzen(m_zeiger);
}

void Karte::einpassen()
{
    if (!m_ansicht.einpassen()) {
        m_original = true;
        m_ansicht.wunsch_setzen(grafik_grenzen(m_g));
        (void)m_ansicht.einpassen();
    }
    ansicht_geaendert();
}

// The project keeps the view; one that was read and not yet shown must not be lost.
void Karte::ansicht_geaendert()
{
    if (!m_ansicht.skaliert() || m_g.Grafik_Fenster_gelesen) return;
    m_g.Y_min = m_ansicht.fenster().links;
    m_g.Y_max = m_ansicht.fenster().rechts;
    m_g.X_min = m_ansicht.fenster().unten;
    m_g.X_max = m_ansicht.fenster().oben;
    m_g.Faktor = m_ansicht.Faktor();
}

void Karte::neu_zeigen()
{
    ansicht_geaendert();
    m_g.oberflaeche->karte_zeichnen(false);
}

Zeichenliste Karte::bild() const
{
    return karte_zeichnen(m_g, m_ansicht);
}

void Karte::links_druecken(const Bildort& ort)
{
    m_zoom = Gummiband{ort, ort, false};
}

void Karte::bewegen(const Bildort& ort)
{
    if (m_zoom) {
        m_zoom->bewegt =
            m_zoom->bewegt || std::abs(ort.x - m_zoom->von.x) > zittern || std::abs(ort.y - m_zoom->von.y) > zittern;
        if (m_zoom->bewegt) m_zoom->bis = ort;
    }
    zeiger_setzen(ort);
}

bool Karte::zoom_ausfuehren(const Gummiband& band)
{
    const Ausschnitt wunsch = ausschnitt_aus_ecken(m_ansicht.welt(band.von), m_ansicht.welt(band.bis));
    if (!(wunsch.breite() > kleinstes_band && wunsch.hoehe() > kleinstes_band)) return false;
    m_g.vergroessert = true;
    m_original = false;
    m_ansicht.wunsch_setzen(wunsch);
    einpassen();
    return true;
}

void Karte::links_loslassen(const Bildort& ort)
{
    if (!m_ansicht.skaliert()) return;
    const Weltort stelle = m_ansicht.welt(ort);
    bewegen(ort);
    const auto band = std::exchange(m_zoom, std::nullopt);
    if (band && zoom_ausfuehren(*band)) {
        neu_zeigen();
        m_g.oberflaeche->menue_erneuern();
    }
    const int station = treffer(m_g.S_Punkt, stelle, m_ansicht.symbol_radius());
    if (station != 0) geo_markierung(m_g, station);
    zeiger_setzen(ort);
}

int Karte::rechts_loslassen(const Bildort& ort) const
{
    return m_ansicht.skaliert() ? treffer(m_g.TOREL_Punkt, m_ansicht.welt(ort), m_ansicht.symbol_radius()) : 0;
}

void Karte::verlassen()
{
    zeiger_setzen(std::nullopt);
}

void Karte::zoomen(const Bildort& fest, double faktor)
{
    if (!m_ansicht.zoomen(fest, faktor)) return;
    m_original = false;
    const bool erstes = !std::exchange(m_g.vergroessert, true);
    neu_zeigen();
    if (erstes) m_g.oberflaeche->menue_erneuern();
}

void Karte::verschieben(double dx, double dy)
{
    if (!m_ansicht.verschieben(dx, dy)) return;
    m_original = false;
    neu_zeigen();
}

void Karte::m_grafik_orginal()
{
    m_original = true;
    m_ansicht.wunsch_setzen(grafik_grenzen(m_g));
    einpassen();
    neu_zeigen();
}

void Karte::m_grafik_verkleinern()
{
    m_original = !m_ansicht.verkleinern();
    if (m_original) {
        m_ansicht.wunsch_setzen(grafik_grenzen(m_g));
        einpassen();
    }
    neu_zeigen();
}

void Karte::m_grafik_pkz()
{
    m_g.PKZ.assign(1, m_g.PKZ == "1" ? '0' : '1');
    einpassen();
    neu_zeigen();
    m_g.oberflaeche->menue_erneuern();
}

void Karte::alles_zeigen()
{
    m_original = false;
    m_ansicht.wunsch_setzen(alles_umfassend(m_g));
    einpassen();
    neu_zeigen();
}

std::vector<Kontexteintrag> Karte::mnu_hauptgrafik()
{
    return {{"mnu_hauptgrafik_entfernen", "TOREL-Punkt &entfernen...", true, false}};
}

bool Karte::basislinie_markieren(std::string_view knoten)
{
    m_markiert.clear();
    for (const auto& b : m_g.BASISLINIE) {
        if (verkettet(b.Datei_von, "-", b.Datei_nach) != knoten) continue;
        for (const auto& datei : {b.Datei_von, b.Datei_nach}) {
            const int i = Index_OBS_R(m_g, datei);
            if (i >= 1 && i <= m_g.R_Punkt.anzahl())
                m_markiert.push_back({m_g.R_Punkt[i].Rechtswert, m_g.R_Punkt[i].Hochwert});
        }
        return true;
    }
    return false;
}

std::optional<Punktmarke> Karte::marke_an(const Weltort& ort) const
{
    const double radius = m_ansicht.symbol_radius();
    if (zeigt_katalog(m_g))
        if (const int i = treffer(m_g.TOREL_Punkt, ort, radius); i != 0)
            return Punktmarke{verkettet("  ", m_g.TOREL_Punkt[i].PKZ, "  "), kartenfarbe::gelb};
    const auto mit_namen = [](const Punkt& p) { return !p.Punktkennzeichen.empty(); };
    if (const int i = treffer(m_g.R_Punkt, ort, radius, mit_namen); i != 0)
        return Punktmarke{verkettet("  ", m_g.R_Punkt[i].Punktkennzeichen, " "), kartenfarbe::rover_hinweis};
    if (const int i = treffer(m_g.V_Punkt, ort, radius); i != 0 && i <= m_g.OBS_V.anzahl())
        return Punktmarke{verkettet("  ", m_g.OBS_V[i].Dateiname, "  "), kartenfarbe::gelb};
    return std::nullopt;
}

// What depends on the pointer. The lights are worked out once for each figure to be.
void Karte::zeiger_setzen(const std::optional<Bildort>& ort)
{
    m_zeiger = ort;
    m_marke.reset();
    m_station = 0;
    if (ort && m_ansicht.skaliert()) {
        m_marke = marke_an(m_ansicht.welt(*ort));
        m_station = treffer(m_g.S_Punkt, m_ansicht.welt(*ort), m_ansicht.symbol_radius());
    }
    std::string stand;
    if (!m_g.geo_fertig && m_g.GEO_Punkt.anzahl() > 0) {
        const auto& figur = m_g.GEO_Punkt.letztes();
        stand = verkettet(m_g.GEO_Punkt.anzahl(), "|", figur.Anzahl, "|", figur.Punkt[0], "|",
                          waere_neue_ecke(m_g, m_station) ? m_station : 0);
    }
    if (stand == m_lichter_stand) return;
    m_lichter_stand = stand;
    m_lichter = lichter_der_figur(m_g, m_station);
}

std::string Karte::zeigertext() const
{
    if (!m_zeiger || !m_ansicht.skaliert()) return {};
    const Weltort ort = m_ansicht.welt(*m_zeiger);
    return verkettet("R ", fest(ort.Rechtswert, 0), " H ", fest(ort.Hochwert, 0));
}

std::string Karte::punktliste() const
{
    std::string text;
    const auto zeile = [&text](std::string_view art, std::string_view name, double Rechtswert, double Hochwert) {
        text += verkettet(art, "\t", name, "\t", ersetzt(fest(Rechtswert, 3), '.', ','), "\t",
                          ersetzt(fest(Hochwert, 3), '.', ','), "\r\n");
    };
    if (zeigt_katalog(m_g))
        for (const auto& p : m_g.TOREL_Punkt) zeile("TOREL", p.PKZ, p.Rechtswert, p.Hochwert);
    for (const auto& p : m_g.R_Punkt) zeile("ROVER", p.Punktkennzeichen, p.Rechtswert, p.Hochwert);
    for (const auto& p : m_g.V_Punkt) zeile("virt.Referenzstation", p.Punktkennzeichen, p.Rechtswert, p.Hochwert);
    return text;
}

}  // namespace jorv
