// The network map as a list of drawing steps: border, stations, figures, rovers, links, in the order of painting.
#pragma once

#include "karte/ausduennung.h"
#include "modell/Global.h"

namespace jorv {

/// The whole picture of the project in that view, background first. An empty list for a view without a scale.
/// Umfang::sichtbar is what a screen shows; it stays small for any count of points.
Zeichenliste karte_zeichnen(const Global& g, const Ansicht& ansicht, Umfang umfang = Umfang::sichtbar);

/// Whether the stations of the catalogue belong to the map: in modes E and S, and while no project is open.
bool zeigt_katalog(const Global& g);

/// The wanted extent of the original size: all stations of the catalogue with a margin of 5 per cent; 100 m around a
/// single one; 0 to 100 without any.
Ausschnitt grafik_grenzen(const Global& g);

/// The extent of everything that the map shows, with the same margin; that of the catalogue where there is nothing.
Ausschnitt alles_umfassend(const Global& g);

}  // namespace jorv
