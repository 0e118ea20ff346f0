#include "karte/lichtzeichen.h"

#include <cmath>
#include <numbers>

#include "karte/ansicht.h"

namespace jorv {

namespace {

constexpr Farbe gruen{0, 140, 60}, gelb{255, 200, 0}, rot{205, 30, 30}, grau{130, 130, 130}, dunkel{40, 40, 40};
constexpr double radius = 7, strich = 1.8;

// The shapes of one picture, given about the origin.
class Bild {
public:
    Bild(const Bildort& ort, Ebene ebene, Zeichenliste& ziel) : m_ort(ort), m_ebene(ebene), m_ziel(ziel) {}

    void scheibe(Farbe farbe, double groesse = radius)
    {
        m_ziel.push_back({m_ebene, Kreise{{m_ort}, groesse, rand(), farbe}});
    }
    void ring(Farbe farbe)
    {
        m_ziel.push_back({m_ebene, Kreise{{m_ort}, radius - 1, {farbe, strich, Strich::voll}, kartenfarbe::weiss}});
    }
    void flaeche(std::vector<Bildort> ecken, Farbe farbe)
    {
        m_ziel.push_back({m_ebene, Vieleck{verschoben(std::move(ecken)), rand(), farbe}});
    }
    void zug(std::vector<Bildort> ecken, Farbe farbe)
    {
        m_ziel.push_back({m_ebene, Linienzug{verschoben(std::move(ecken)), {farbe, strich, Strich::voll}}});
    }

private:
    static Stift rand() { return {kartenfarbe::weiss, 1, Strich::voll}; }
    std::vector<Bildort> verschoben(std::vector<Bildort> orte) const
    {
        for (auto& ort : orte) ort = {ort.x + m_ort.x, ort.y + m_ort.y};
        return orte;
    }
    Bildort m_ort;
    Ebene m_ebene;
    Zeichenliste& m_ziel;
};

std::vector<Bildort> achteck()
{
    std::vector<Bildort> ecken;
    for (int i = 0; i < 8; ++i) {
        const double winkel = (2 * i + 1) * std::numbers::pi / 8;
        ecken.push_back({radius * std::cos(winkel), radius * std::sin(winkel)});
    }
    return ecken;
}

}  // namespace

void lichtzeichen(int bild, const Bildort& ort, Ebene ebene, Zeichenliste& ziel)
{
    Bild b(ort, ebene, ziel);
    switch (bild) {
        case 1:
            b.scheibe(gruen);
            b.zug({{-3, 0}, {-1, 2.5}, {3, -2.5}}, kartenfarbe::weiss);
            break;
        case 2:
            b.scheibe(kartenfarbe::weiss, Ansicht::symbol + 1);  // the symbol below would show beside the tip
            b.flaeche({{0, -7}, {7.5, 6}, {-7.5, 6}}, gelb);
            b.zug({{0, -3}, {0, 1.5}}, dunkel);
            b.zug({{0, 3}, {0, 4.5}}, dunkel);
            break;
        case 9:
            b.ring(grau);
            b.zug({{-3, 0}, {3, 0}}, grau);
            break;
        default:
            b.flaeche(achteck(), rot);
            b.zug({{-2.5, -2.5}, {2.5, 2.5}}, kartenfarbe::weiss);
            b.zug({{-2.5, 2.5}, {2.5, -2.5}}, kartenfarbe::weiss);
    }
}

}  // namespace jorv
