// Which of very many points a picture shows: those in it, and of each cell of 4 x 4 logical units the first alone,
// since the symbols of the others would lie beneath it or beside it by less than their radius.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "karte/ansicht.h"
#include "modell/Feld.h"

namespace jorv {

/// The cells of a picture that are taken, with a margin as wide as a symbol.
class Zellenraster {
public:
    static constexpr double zelle = 4, rand = Ansicht::symbol;

    Zellenraster(double breite, double hoehe)
        : m_spalten(anzahl(breite)),
          m_rechts(m_spalten),
          m_unten(anzahl(hoehe)),
          m_belegt(static_cast<std::size_t>(m_spalten) * static_cast<std::size_t>(anzahl(hoehe)))
    {
    }

    /// Takes the cell of a place; false when it is taken already or lies outside.
    bool belegen(const Bildort& ort)
    {
        const double spalte = (ort.x + rand) / zelle, zeile = (ort.y + rand) / zelle;
        // Written so that a place that is no number lies outside.
        if (!(spalte >= 0 && zeile >= 0 && spalte < m_rechts && zeile < m_unten)) return false;
        auto& feld = m_belegt[static_cast<std::size_t>(static_cast<std::int32_t>(zeile) * m_spalten +
                                                       static_cast<std::int32_t>(spalte))];
        return std::exchange(feld, std::uint8_t{1}) == 0;
    }

private:
    static std::int32_t anzahl(double laenge) { return static_cast<std::int32_t>((laenge + 2 * rand) / zelle) + 1; }

    std::int32_t m_spalten;
    double m_rechts, m_unten;
    std::vector<std::uint8_t> m_belegt;
};

/// Whether a picture leaves out what can't be seen, or holds every object of the project.
enum class Umfang { sichtbar, alles };

/// Arrays up to this count are shown point by point.
inline constexpr int ausduennen_ab = 5000;

/// Hands the points of an array that a picture shows to `nimm`, in array order, with their place and their index.
template <typename T, typename Nimm>
void sichtbare_punkte(const Feld<T>& punkte, const Ansicht& ansicht, Umfang umfang, Nimm nimm)
{
    const double links = ansicht.fenster().links, oben = ansicht.fenster().oben, je_meter = ansicht.je_meter();
    const auto alle = [&](auto gezeigt) {
        int index = 0;
        for (const T& p : punkte) {
            ++index;
            const Bildort ort = {(p.Rechtswert - links) * je_meter, (oben - p.Hochwert) * je_meter};
            if (gezeigt(ort)) nimm(ort, index);
        }
    };
    if (umfang == Umfang::alles) return alle([](const Bildort&) { return true; });
    if (punkte.anzahl() <= ausduennen_ab) {
        constexpr double rand = Zellenraster::rand;
        const double rechts = ansicht.breite() + rand, unten = ansicht.hoehe() + rand;
        return alle([=](const Bildort& o) { return o.x >= -rand && o.y >= -rand && o.x <= rechts && o.y <= unten; });
    }
    Zellenraster raster(ansicht.breite(), ansicht.hoehe());
    alle([&](const Bildort& ort) { return raster.belegen(ort); });
}

}  // namespace jorv
