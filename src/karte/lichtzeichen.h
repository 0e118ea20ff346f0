// The lights as small pictures whose shape tells them apart even in grey.
#pragma once

#include "karte/zeichenschritt.h"

namespace jorv {

/// The picture of an image number of the tree (1 disc with a tick, 2 triangle with an exclamation mark, 9 ring with a
/// bar, others octagon with a cross) about a place, about 14 logical units wide.
void lichtzeichen(int bild, const Bildort& ort, Ebene ebene, Zeichenliste& ziel);

}  // namespace jorv
