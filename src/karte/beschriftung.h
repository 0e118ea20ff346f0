// Labels of points, kept apart from each other.
#pragma once

#include <string>
#include <vector>

#include "karte/ausduennung.h"
#include "modell/Global.h"

namespace jorv {

/// Where labels may go: symbols and labels so far take their room.
class Beschriftung {
public:
    Beschriftung(const Ansicht& ansicht, Umfang umfang);

    /// Very many symbols are passed over: there is no going round them.
    void symbole_freihalten(const std::vector<Bildort>& orte);
    void linie_freihalten(Bildort von, Bildort bis);
    void freihalten(const Bildort& ecke, double breite, double hoehe);

    /// The label beside its point where it covers nothing, else where it covers lines alone. Where there is no such
    /// place it is left out, with Umfang::alles put at the usual one.
    void schreiben(const Bildort& ort, const std::string& text, Zeichenliste& bild);

private:
    struct Kasten {
        double links, oben, rechts, unten;
    };
    bool frei(const Kasten& kasten, std::uint8_t hoechstens) const;
    void belegen(const Kasten& kasten, std::uint8_t womit);
    template <typename Tun>
    void zellen(const Kasten& kasten, Tun tun) const;

    const Ansicht& m_ansicht;
    Umfang m_umfang;
    int m_spalten, m_zeilen;
    std::vector<std::uint8_t> m_raster;
};

}  // namespace jorv
