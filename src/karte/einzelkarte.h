// The small map pic_einzel of linking by hand: the rover, the stations that are offered and those of the catalogue. It
// has a view of its own.
#pragma once

#include <array>
#include <optional>

#include "karte/karte.h"
#include "planung/handarbeit.h"

namespace jorv {

/// The colour of a row of time bars.
constexpr Farbe zeilenfarbe(Zeilenfarbe farbe)
{
    constexpr std::array<Farbe, 5> farben = {kartenfarbe::grau, kartenfarbe::gelb, kartenfarbe::gruen, kartenfarbe::rot,
                                             kartenfarbe::blau};
    return farben.at(static_cast<std::size_t>(farbe));
}

class Einzelkarte {
public:
    Einzelkarte(const Global& g, const Handarbeit& h) : m_g(g), m_h(h) {}
    Einzelkarte(const Einzelkarte&) = delete;
    Einzelkarte& operator=(const Einzelkarte&) = delete;

    /// The rover and all stations offered fit into the picture, with a margin of 5 per cent.
    void groesse_setzen(double breite, double hoehe);

    /// Stations of the catalogue green and labelled, the rover red, stations offered blue; chosen ones yellow and
    /// joined with the rover by dotted lines. Empty before the first size.
    Zeichenliste bild() const;
    /// The label lbl_pkz at the pointer.
    Zeichenliste ueberlagerung() const;

    void bewegen(const Bildort& ort);
    void verlassen();
    std::optional<Punktmarke> lbl_pkz() const;

    const Ansicht& ansicht() const { return m_ansicht; }

private:
    Bildort ort(const Handzeile& z) const { return m_ansicht.bild({z.Rechtswert, z.Hochwert}); }

    const Global& m_g;
    const Handarbeit& m_h;
    Ansicht m_ansicht;
    std::optional<Bildort> m_zeiger;
};

}  // namespace jorv
