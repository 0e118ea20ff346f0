// The national border as lines of a picture.
#pragma once

#include "karte/ausduennung.h"
#include "modell/Global.h"

namespace jorv {

/// The lines of g.Lnd: a point of type 1 goes on with the line, any other begins one; a line begun with 0 is closed.
/// With Umfang::sichtbar only what crosses the picture, with at most one corner to a logical unit.
void grenze_zeichnen(const Global& g, const Ansicht& ansicht, Umfang umfang, Zeichenliste& bild);

/// The part of a stretch that crosses the picture (with some margin); false when there is none. A dotted line that runs
/// far outside would cost its whole length.
bool beschneiden(const Ansicht& ansicht, Bildort& von, Bildort& bis);

}  // namespace jorv
