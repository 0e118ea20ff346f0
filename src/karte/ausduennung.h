// Which of very many points a picture shows: those in it, and of each cell of 4 x 4 logical units the first alone,
// since the symbols of the others would lie beneath it or beside it by less than their radius.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "karte/ansicht.h"
#include "modell/Feld.h"

namespace jorv {

/// A shown point and its index in the array that it comes from.
struct Sichtpunkt {
    Bildort ort;
    int index = 0;
};

/// The cells of a picture that are taken, with a margin as wide as a symbol.
class Zellenraster {
public:
    static constexpr double zelle = 4, rand = Ansicht::symbol;

    Zellenraster(double breite, double hoehe)
        : m_spalten(anzahl(breite)), m_zeilen(anzahl(hoehe)), m_belegt(m_spalten * m_zeilen)
    {
    }

    /// Takes the cell of a place; false when it is taken already or lies outside.
    bool belegen(const Bildort& ort)
    {
        const double spalte = (ort.x + rand) / zelle, zeile = (ort.y + rand) / zelle;
        // Written so that a place that is no number lies outside.
        if (!(spalte >= 0 && zeile >= 0 && spalte < static_cast<double>(m_spalten) &&
              zeile < static_cast<double>(m_zeilen)))
            return false;
        auto& feld = m_belegt[static_cast<std::size_t>(zeile) * m_spalten + static_cast<std::size_t>(spalte)];
        return feld++ == 0 || (feld = 1, false);
    }

private:
    static std::size_t anzahl(double laenge) { return static_cast<std::size_t>((laenge + 2 * rand) / zelle) + 1; }

    std::size_t m_spalten, m_zeilen;
    std::vector<std::uint8_t> m_belegt;
};

/// Whether a picture leaves out what can't be seen, or holds every object of the project.
enum class Umfang { sichtbar, alles };

/// Arrays up to this count are shown point by point.
inline constexpr int ausduennen_ab = 5000;

/// The points of an array that a picture shows, in array order.
template <typename T>
std::vector<Sichtpunkt> sichtpunkte(const Feld<T>& punkte, const Ansicht& ansicht, Umfang umfang)
{
    std::vector<Sichtpunkt> gezeigt;
    const auto alle = static_cast<std::size_t>(punkte.anzahl());
    int index = 0;
    if (umfang == Umfang::alles) {
        gezeigt.reserve(alle);
        for (const T& p : punkte) gezeigt.push_back({ansicht.bild({p.Rechtswert, p.Hochwert}), ++index});
        return gezeigt;
    }
    constexpr double rand = Zellenraster::rand;
    const double rechts = ansicht.breite() + rand, unten = ansicht.hoehe() + rand;
    if (punkte.anzahl() <= ausduennen_ab) {
        for (const T& p : punkte) {
            ++index;
            const Bildort ort = ansicht.bild({p.Rechtswert, p.Hochwert});
            if (ort.x >= -rand && ort.y >= -rand && ort.x <= rechts && ort.y <= unten) gezeigt.push_back({ort, index});
        }
        return gezeigt;
    }
    Zellenraster raster(ansicht.breite(), ansicht.hoehe());
    const double links = ansicht.fenster().links, oben = ansicht.fenster().oben, je_meter = ansicht.je_meter();
    for (const T& p : punkte) {
        ++index;
        const Bildort ort = {(p.Rechtswert - links) * je_meter, (oben - p.Hochwert) * je_meter};
        if (raster.belegen(ort)) gezeigt.push_back({ort, index});
    }
    return gezeigt;
}

}  // namespace jorv
