// The network map behind its window: what is shown, and what the mouse and the commands of the menu "Grafik" do. The
// window hands on its events, paints the two lists and holds no rule.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "karte/ansicht.h"
#include "karte/vorschau.h"
#include "modell/Global.h"
#include "modell/Kontextmenue.h"

namespace jorv {

/// The label that follows the pointer over a point (lbl_pkz).
struct Punktmarke {
    std::string text;  ///< with its blanks
    Farbe hintergrund;
};

/// Puts the label four symbol radii to the right of the pointer and below it.
void marke_zeichnen(const Punktmarke& marke, const Bildort& zeiger, const Ansicht& ansicht, Zeichenliste& bild);

class Karte {
public:
    explicit Karte(Global& g) : m_g(g) {}
    Karte(const Karte&) = delete;
    Karte& operator=(const Karte&) = delete;

    /// The picture's size in logical units. The first size gives the first scale; later ones keep scale and centre.
    void groesse_setzen(double breite, double hoehe);

    /// What the port asks for by karte_zeichnen. With `neu` the wanted extent is fitted to the picture; a project that
    /// was opened since shows the view that its file keeps, else the original size. The marks of a baseline go.
    void grafik_zeichnen(bool neu);

    /// The picture in the present view.
    Zeichenliste bild() const;
    /// What moves above the picture: rubber band, label at the pointer, figure to be, its rovers' lights, marks.
    Zeichenliste ueberlagerung() const;

    const Ansicht& ansicht() const { return m_ansicht; }

    // Mouse. Places are in the picture.
    void links_druecken(const Bildort& ort);
    void bewegen(const Bildort& ort);
    /// Ends a zoom or is a click. In both cases a project station at the place goes to the figure being drawn.
    void links_loslassen(const Bildort& ort);
    /// Index in TOREL_Punkt of the catalogue station at the place, 0 without one: with one, mnu_hauptgrafik opens.
    int rechts_loslassen(const Bildort& ort) const;
    /// The pointer has left the map.
    void verlassen();
    /// Drops a rubber band (Escape, a lost grab).
    void zoom_abbrechen() { m_zoom.reset(); }
    bool zoom_aktiv() const { return m_zoom.has_value(); }

    /// The wheel: enlarges about the pointer. Dragging with the middle button: moves the content.
    void zoomen(const Bildort& fest, double faktor);
    void verschieben(double dx, double dy);

    // The commands of the menu.
    void m_grafik_orginal();
    void m_grafik_verkleinern();
    void m_grafik_pkz();
    /// Everything that the map shows, not the catalogue alone.
    void alles_zeigen();

    /// The popup over a catalogue station; its one command is torel_punkt_entfernen.
    static std::vector<Kontexteintrag> mnu_hauptgrafik();

    /// Marks the two points of a baseline ("von-nach" by file names) until the next grafik_zeichnen. False when there
    /// is none of that name.
    bool basislinie_markieren(std::string_view knoten);

    std::optional<Punktmarke> lbl_pkz() const { return m_marke; }
    /// "R 572341 H 5712004" of the pointer; empty while it is elsewhere.
    std::string zeigertext() const;
    /// The points of the map as lines "kind, name, Rechtswert, Hochwert" with tabs between, for a table.
    std::string punktliste() const;

private:
    struct Gummiband {
        Bildort von, bis;
        bool bewegt = false;
    };
    bool verfahren_gewechselt() const;
    void wunsch_fuer_verfahren();
    void einpassen();
    void ansicht_geaendert();
    void neu_zeigen();
    bool zoom_ausfuehren(const Gummiband& band);
    std::optional<Punktmarke> marke_an(const Weltort& ort) const;
    void zeiger_setzen(const std::optional<Bildort>& ort);
    void figur_zeichnen(Zeichenliste& bild) const;
    void lichter_zeichnen(Zeichenliste& bild) const;
    void marke_zeichnen(Zeichenliste& bild) const;

    Global& m_g;
    Ansicht m_ansicht;
    std::optional<std::string> m_verfahren;  // whose view is shown
    bool m_original = true;                  // shows the whole catalogue
    std::optional<Gummiband> m_zoom;
    std::optional<Bildort> m_zeiger;
    std::optional<Punktmarke> m_marke;
    int m_station = 0;  // project station under the pointer
    std::vector<Weltort> m_markiert;
    std::vector<Roverlicht> m_lichter;
    std::string m_lichter_stand;  // the figure that m_lichter speaks of
};

}  // namespace jorv
