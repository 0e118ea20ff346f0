// The part of the world that a map shows, and the way between world and picture. Rechtswert runs to the right,
// Hochwert upward, both with one scale.
#pragma once

#include "karte/zeichenschritt.h"

namespace jorv {

/// A place in the world, metres.
struct Weltort {
    double Rechtswert = 0, Hochwert = 0;
};

/// A rectangle of the world, metres.
struct Ausschnitt {
    double links = 0, rechts = 100, unten = 0, oben = 100;

    double breite() const { return rechts - links; }
    double hoehe() const { return oben - unten; }
    Weltort mitte() const { return {(links + rechts) / 2, (unten + oben) / 2}; }
    /// The same centre, each side multiplied.
    Ausschnitt vergroessert(double faktor) const;
    bool operator==(const Ausschnitt&) const = default;
};

/// The rectangle of two opposite corners.
Ausschnitt ausschnitt_aus_ecken(const Weltort& a, const Weltort& b);

class Ansicht {
public:
    /// Picture units to a logical unit: the scale factor that projects keep counts in the finer unit.
    static constexpr double einheiten = 15;
    static constexpr double symbol_einheiten = 60;
    /// Radius of a symbol in the picture.
    static constexpr double symbol = symbol_einheiten / einheiten;

    /// New size of the picture. Scale and centre stay; the wanted extent is left for the next einpassen.
    void groesse_setzen(double breite, double hoehe);
    double breite() const { return m_breite; }
    double hoehe() const { return m_hoehe; }

    /// The extent that the next einpassen shows as a whole.
    void wunsch_setzen(const Ausschnitt& wunsch) { m_wunsch = wunsch; }
    const Ausschnitt& wunsch() const { return m_wunsch; }

    /// Fits the wanted extent into the picture without distortion. False, and nothing changed, for an extent or a
    /// picture that gives no scale.
    [[nodiscard]] bool einpassen();
    /// Twice the shown extent about its centre, which becomes the wanted one. False, and nothing changed, when it would
    /// leave the range.
    [[nodiscard]] bool verkleinern();
    /// Enlarges by a factor about a place of the picture, which stays where it is. False as above.
    [[nodiscard]] bool zoomen(const Bildort& fest, double faktor);
    /// Moves the picture's content.
    [[nodiscard]] bool verschieben(double dx, double dy);

    const Ausschnitt& fenster() const { return m_fenster; }  ///< shown extent
    double Faktor() const { return m_Faktor; }               ///< metres to a picture unit; 0 before the first scale
    bool skaliert() const { return m_Faktor > 0; }
    double symbol_radius() const { return symbol_einheiten * m_Faktor; }  ///< metres
    double je_meter() const { return 1 / (m_Faktor * einheiten); }        ///< logical units to a metre

    Bildort bild(const Weltort& ort) const
    {
        return {(ort.Rechtswert - m_fenster.links) * je_meter(), (m_fenster.oben - ort.Hochwert) * je_meter()};
    }
    Weltort welt(const Bildort& ort) const
    {
        return {m_fenster.links + ort.x / je_meter(), m_fenster.oben - ort.y / je_meter()};
    }

private:
    bool setzen(const Ausschnitt& fenster, double faktor);

    double m_breite = 0, m_hoehe = 0, m_Faktor = 0;
    Ausschnitt m_wunsch, m_fenster;
};

}  // namespace jorv
