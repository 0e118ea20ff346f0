#include "karte/grenzzug.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace jorv {

namespace {

constexpr double strichbreite = 3, rand = 8;
constexpr std::uint8_t setzt_fort = 1, geschlossen = 0;
constexpr Stift stift = {kartenfarbe::grenze, strichbreite, Strich::voll};

void abgeben(std::vector<Bildort>& lauf, Zeichenliste& bild)
{
    if (lauf.size() > 1) bild.push_back({Ebene::grenze, Linienzug{lauf, stift}});
    lauf.clear();
}

bool nahe(const Bildort& a, const Bildort& b)
{
    return std::abs(a.x - b.x) < 1 && std::abs(a.y - b.y) < 1;
}

// The runs of a line that cross the picture. Corners nearer than a logical unit to the one before are passed over, but
// for the last.
void sichtbares_zeichnen(const std::vector<Bildort>& ecken, const Ansicht& ansicht, Zeichenliste& bild)
{
    std::vector<Bildort> lauf;
    Bildort stand = ecken.front();
    for (std::size_t i = 1; i < ecken.size(); ++i) {
        if (i + 1 < ecken.size() && nahe(stand, ecken[i])) continue;
        Bildort von = std::exchange(stand, ecken[i]), bis = ecken[i];
        if (!beschneiden(ansicht, von, bis)) continue;
        if (lauf.empty() || lauf.back() != von) {
            abgeben(lauf, bild);
            lauf.push_back(von);
        }
        lauf.push_back(bis);
    }
    abgeben(lauf, bild);
}

}  // namespace

bool beschneiden(const Ansicht& ansicht, Bildort& von, Bildort& bis)
{
    const double dx = bis.x - von.x, dy = bis.y - von.y;
    // Each border as "step along the stretch, room up to the border".
    const std::array<std::pair<double, double>, 4> raender = {{{-dx, von.x + rand},
                                                               {dx, ansicht.breite() + rand - von.x},
                                                               {-dy, von.y + rand},
                                                               {dy, ansicht.hoehe() + rand - von.y}}};
    double anfang = 0, ende = 1;
    for (const auto& [schritt, platz] : raender) {
        if (!std::isfinite(schritt)) return false;
        if (schritt == 0 && platz < 0) return false;
        if (schritt < 0) anfang = std::max(anfang, platz / schritt);
        if (schritt > 0) ende = std::min(ende, platz / schritt);
    }
    if (anfang > ende) return false;
    const Bildort start = von;
    if (anfang > 0) von = {start.x + anfang * dx, start.y + anfang * dy};
    if (ende < 1) bis = {start.x + ende * dx, start.y + ende * dy};
    return true;
}

void grenze_zeichnen(const Global& g, const Ansicht& ansicht, Umfang umfang, Zeichenliste& bild)
{
    std::vector<Bildort> ecken;
    std::uint8_t typ = setzt_fort;
    const auto linie_beenden = [&] {
        if (ecken.empty()) return;
        if (typ == geschlossen) ecken.push_back(Bildort(ecken.front()));
        if (umfang == Umfang::sichtbar)
            sichtbares_zeichnen(ecken, ansicht, bild);
        else
            abgeben(ecken, bild);
        ecken.clear();
    };
    for (const auto& punkt : g.Lnd) {
        if (punkt.Typ != setzt_fort) linie_beenden();
        if (ecken.empty()) typ = punkt.Typ;
        ecken.push_back(ansicht.bild({punkt.Rechtswert, punkt.Hochwert}));
    }
    linie_beenden();
}

}  // namespace jorv
