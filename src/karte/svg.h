// A list of drawing steps as text: an SVG picture, or one line a step to read and compare.
#pragma once

#include <string>

#include "karte/zeichenschritt.h"

namespace jorv {

/// An SVG file of that size, UTF-8.
std::string svg(const Zeichenliste& bild, double breite, double hoehe);

/// One line a shape, UTF-8, places with two decimals: its layer, its kind, its places and its look.
std::string zeichenliste_text(const Zeichenliste& bild);

}  // namespace jorv
