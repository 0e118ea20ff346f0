#include "auswertung/export_objekte.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <set>

#include "auswertung/basisergebnis.h"
#include "auswertung/ergebniszeile.h"
#include "geo/koordtrans.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr int zone_verfahren = 32;

std::optional<Objektort> ort_aus(const std::optional<Geographisch>& geographisch, bool mit_hoehe)
{
    if (!geographisch) return std::nullopt;
    Objektort ort{*geographisch, mit_hoehe, 0, 0};
    std::int32_t status = 0;
    GEGGKO(1, geographisch->breite, geographisch->laenge, zone_verfahren, ort.Rechtswert, ort.Hochwert, 3, status);
    if (status != 0) return std::nullopt;
    return ort;
}

std::optional<Objektort> ort_von(const Punkt& punkt)
{
    return ort_aus(geographisch_aus_xyz(punkt.X, punkt.Y, punkt.Z), true);
}

// A result doesn't tell the zone that it was computed in: that of the settings then. The place in the file's header
// does: the wrong zone lies hundreds of kilometres beside it.
std::optional<Objektort> ort_von(const Global& g, const Ergebnis& ergebnis, const Punkt& kopf)
{
    const auto naeherung = geographisch_aus_xyz(kopf.X, kopf.Y, kopf.Z);
    std::optional<Geographisch> bester;
    for (const int zone : {ganz_streng(g.UTM_Zone).value_or(zone_verfahren), zone_verfahren}) {
        auto ort = geographisch_aus_utm(zone, ergebnis.Rechtswert, ergebnis.Hochwert);
        if (!ort) continue;
        ort->hoehe = ergebnis.Hoehe;
        if (!bester || (naeherung && entfernung(*naeherung, *ort) < entfernung(*naeherung, *bester))) bester = ort;
    }
    return ort_aus(bester, true);
}

void text(Objekt& objekt, std::string_view name, std::string_view wert)
{
    objekt.werte.push_back({name, Wertart::text, {std::string(wert)}});
}

void zahl(Objekt& objekt, std::string_view name, double wert, int stellen)
{
    objekt.werte.push_back({name, Wertart::zahl, {fest(wert, stellen)}});
}

void zahlen(Objekt& objekt, const std::array<std::string_view, 3>& namen, const std::array<double, 3>& werte,
            int stellen)
{
    for (std::size_t i = 0; i < namen.size(); ++i) zahl(objekt, namen[i], werte[i], stellen);
}

void lage(Objekt& objekt)
{
    const Objektort& ort = objekt.orte.front();
    zahl(objekt, "Rechtswert", ort.Rechtswert, 4);
    zahl(objekt, "Hochwert", ort.Hochwert, 4);
    if (ort.mit_hoehe) zahl(objekt, "Hoehe", ort.geographisch.hoehe, 4);
    zahl(objekt, "Breite", ort.geographisch.breite, 9);
    zahl(objekt, "Laenge", ort.geographisch.laenge, 9);
}

using Ring = std::vector<Objektort>;

// Where two edges of a ring cross between their ends.
std::optional<Objektort> kreuzung(const Objektort& a, const Objektort& b, const Objektort& c, const Objektort& d)
{
    const double rx = b.Rechtswert - a.Rechtswert, ry = b.Hochwert - a.Hochwert;
    const double sx = d.Rechtswert - c.Rechtswert, sy = d.Hochwert - c.Hochwert;
    const double qx = c.Rechtswert - a.Rechtswert, qy = c.Hochwert - a.Hochwert, nenner = rx * sy - ry * sx;
    const double t = (qx * sy - qy * sx) / nenner, u = (qx * ry - qy * rx) / nenner;
    if (nenner == 0 || t <= 0 || t >= 1 || u <= 0 || u >= 1) return std::nullopt;
    return ort_aus(geographisch_aus_utm(zone_verfahren, a.Rechtswert + t * rx, a.Hochwert + t * ry), false);
}

// A quadrilateral clicked crosswise encloses two triangles; maps want outlines that don't cross themselves.
std::vector<Ring> ohne_kreuzung(const Ring& ring)
{
    for (std::size_t i = 0; i < 2 && ring.size() == 4; ++i) {
        const Objektort &a = ring[i], &b = ring[i + 1], &c = ring[i + 2], &d = ring[(i + 3) % 4];
        if (const auto schnitt = kreuzung(a, b, c, d)) return {{*schnitt, b, c}, {*schnitt, d, a}};
    }
    return {ring};
}

// Clicked either way round; maps want the outside on the right.
void gegen_die_uhr(Ring& ring)
{
    double doppelte_flaeche = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Geographisch &a = ring[i].geographisch, &b = ring[(i + 1) % ring.size()].geographisch;
        doppelte_flaeche += a.laenge * b.breite - b.laenge * a.breite;
    }
    if (doppelte_flaeche < 0) std::reverse(ring.begin(), ring.end());
}

class Sammlung {
public:
    explicit Sammlung(const Global& zustand) : g(zustand) {}

    std::vector<Objekt> alle()
    {
        for (const auto& figur : g.GEO_Punkt) flaeche(figur);
        for (int i = 1; i <= g.S_Punkt.anzahl() && i <= g.OBS_S.anzahl(); ++i)
            station("TOREL", g.OBS_S[i], g.S_Punkt[i]);
        for (int i = 1; i <= g.V_Punkt.anzahl() && i <= g.OBS_V.anzahl(); ++i) station("VRS", g.OBS_V[i], g.V_Punkt[i]);
        for (int i = 1; i <= g.R_Punkt.anzahl() && i <= g.OBS_R.anzahl(); ++i) rover(i);
        std::move(m_verbindungen.begin(), m_verbindungen.end(), std::back_inserter(m_objekte));
        if (ist_B(g))
            for (const auto& b : g.BASISLINIE) basislinie(b);
        return std::move(m_objekte);
    }

private:
    void flaeche(const GEO_Punkt_Satz& figur)
    {
        Objekt objekt{"Figur", {}, Objektform::flaeche, {}, {}};
        std::vector<std::string> ecken;
        for (std::size_t i = 0; i < static_cast<std::size_t>(std::clamp(figur.Anzahl, 0, 4)); ++i) {
            const auto ort =
                ort_aus(geographisch_aus_utm(zone_verfahren, figur.Rechtswert[i], figur.Hochwert[i]), false);
            if (!ort) return;
            objekt.orte.push_back(*ort);
            ecken.push_back(figur.Punkt[i]);
            objekt.name += verkettet(objekt.name.empty() ? "" : "-", figur.Punkt[i]);
        }
        if (objekt.orte.size() < 3) return;
        objekt.werte.push_back({"Stationen", Wertart::liste, std::move(ecken)});
        for (auto& ring : ohne_kreuzung(objekt.orte)) {
            gegen_die_uhr(ring);
            Objekt teil = objekt;
            teil.orte = std::move(ring);
            m_objekte.push_back(std::move(teil));
        }
    }

    void station(std::string_view art, const OBS& datei, const Punkt& punkt)
    {
        if (art == "TOREL" && !m_stationen.insert(punkt.Punktkennzeichen).second) return;
        const auto ort = ort_von(punkt);
        if (!ort) return;
        Objekt objekt{art, art == "TOREL" ? punkt.Punktkennzeichen : datei.Dateiname, Objektform::punkt, {*ort}, {}};
        text(objekt, "Datei", datei.Dateiname);
        lage(objekt);
        m_objekte.push_back(std::move(objekt));
    }

    void rover(int i)
    {
        const std::string& datei = g.OBS_R[i].Dateiname;
        const auto ergebnis = ergebnis_lesen(g.dateien, g.Arbeitsverzeichnis, datei);
        const auto ort = ergebnis ? ort_von(g, *ergebnis, g.R_Punkt[i]) : ort_von(g.R_Punkt[i]);
        if (!ort) return;
        Objekt objekt{"ROVER", g.OBS_R[i].Punktkennzeichen, Objektform::punkt, {*ort}, {}};
        text(objekt, "Datei", datei);
        text(objekt, "Loesung", ergebnis ? std::string_view(ergebnis->Loesung) : "keine");
        lage(objekt);
        if (ergebnis) {
            zahlen(objekt, {"sE", "sN", "sH"}, {ergebnis->sE, ergebnis->sN, ergebnis->sH}, 2);
            zahl(objekt, "Minuten", ergebnis->Minuten, 1);
            zahl(objekt, "Ambiguitaeten", ergebnis->Ambiguitaeten, 1);
        }
        std::vector<std::string> stationen = stationen_von(i);
        for (const auto& station : stationen) verbindung(objekt, station);
        if (!stationen.empty()) objekt.werte.push_back({"Stationen", Wertart::liste, std::move(stationen)});
        m_objekte.push_back(std::move(objekt));
    }

    std::vector<std::string> stationen_von(int i) const
    {
        std::vector<std::string> namen;
        if (ist_E_oder_S(g) && i <= g.ROVER_TOREL.anzahl())
            for (std::size_t k = 0; k < static_cast<std::size_t>(g.ROVER_TOREL[i].Anzahl_Namen()); ++k)
                namen.push_back(g.ROVER_TOREL[i].TOREL_Dateiname[k]);
        if (ist_F(g) && i <= g.ROVER_VIRT.anzahl() && g.ROVER_VIRT[i].VIRT_Dateiname != "?")
            namen.push_back(g.ROVER_VIRT[i].VIRT_Dateiname);
        return namen;
    }

    void verbindung(const Objekt& rover, const std::string& station)
    {
        const int i = ist_F(g) ? Index_OBS_V(g, station) : Index_OBS_S(g, station);
        const auto& punkte = ist_F(g) ? g.V_Punkt : g.S_Punkt;
        if (i == 0 || i > punkte.anzahl()) return;
        linie("Verbindung", rover.orte.front(), ort_von(punkte[i]), rover.werte.front().texte.front(), station);
    }

    // Nullptr when an end has no place.
    Objekt* linie(std::string_view art, const std::optional<Objektort>& von, const std::optional<Objektort>& nach,
                  const std::string& datei_von, const std::string& datei_nach)
    {
        if (!von || !nach) return nullptr;
        Objekt objekt{art, verkettet(datei_von, "-", datei_nach), Objektform::linie, {*von, *nach}, {}};
        text(objekt, "Von", datei_von);
        text(objekt, "Nach", datei_nach);
        auto& ziel = art == "Verbindung" ? m_verbindungen : m_objekte;
        ziel.push_back(std::move(objekt));
        return &ziel.back();
    }

    // A computed baseline ends where its vector leads to.
    void basislinie(const BASISLINIE_Satz& b)
    {
        const int i = Index_OBS_R(g, b.Datei_von), j = Index_OBS_R(g, b.Datei_nach);
        if (i == 0 || j == 0 || i > g.R_Punkt.anzahl() || j > g.R_Punkt.anzahl()) return;
        const Punkt& von = g.R_Punkt[i];
        Punkt nach = g.R_Punkt[j];
        const auto e = basisergebnis_lesen(g, b);
        if (e) nach.X = von.X + e->d[0], nach.Y = von.Y + e->d[1], nach.Z = von.Z + e->d[2];
        Objekt* objekt = linie("Basislinie", ort_von(von), ort_von(nach), b.Datei_von, b.Datei_nach);
        if (!objekt) return;
        text(*objekt, "Loesung", e ? std::string_view(e->Loesung) : "keine");
        if (!e) return;
        zahlen(*objekt, {"dX", "dY", "dZ"}, e->d, 4);
        zahl(*objekt, "Strecke", e->Strecke, 4);
        zahlen(*objekt, {"sX", "sY", "sZ"}, e->s, 2);
        zahlen(*objekt, {"rXY", "rYZ", "rZX"}, e->r, 3);
        zahl(*objekt, "Sigma", e->Sigma, 2);
        zahl(*objekt, "Ambiguitaeten", e->Ambiguitaeten, 1);
    }

    const Global& g;
    std::vector<Objekt> m_objekte, m_verbindungen;
    std::set<std::string> m_stationen;
};

}  // namespace

std::vector<Objekt> exportobjekte(const Global& g)
{
    return Sammlung(g).alle();
}

}  // namespace jorv
