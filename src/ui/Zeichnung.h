// Paints the map's list of drawing steps. Knows shapes and looks, not what they mean.
#pragma once

#include <QPainter>

#include "karte/zeichenschritt.h"

namespace jorv {

/// Paints the steps in their order. The painter's units are the list's logical units.
void malen(QPainter& maler, const Zeichenliste& bild);

QColor qfarbe(const Farbe& farbe);

}  // namespace jorv
