// What of a project lies on a map, for the export: points, baselines and figures with what is known of them.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "geo/geographisch.h"
#include "modell/Global.h"

namespace jorv {

enum class Objektform { punkt, linie, flaeche };
enum class Wertart { text, zahl, liste };

struct Objektort {
    Geographisch geographisch;
    bool mit_hoehe = false;
    double Rechtswert = 0, Hochwert = 0;  ///< zone 32
};

/// A property: one text, one number as it is printed (decimal point), or several texts. Windows-1252.
struct Objektwert {
    std::string_view name;
    Wertart art = Wertart::text;
    std::vector<std::string> texte;
};

struct Objekt {
    std::string_view art;  ///< "ROVER", "TOREL", "VRS", "Verbindung", "Basislinie", "Figur"
    std::string name;
    Objektform form = Objektform::punkt;
    std::vector<Objektort> orte;  ///< a figure's corners once each, counter-clockwise
    std::vector<Objektwert> werte;
};

/// Names of all properties in the order of the columns.
inline constexpr std::array<std::string_view, 26> objektspalten = {
    "Datei",    "Loesung", "Rechtswert", "Hochwert", "Hoehe",
    "Breite",   "Laenge",  "sE",         "sN",       "sH",
    "Minuten",  "Von",     "Nach",       "dX",       "dY",
    "dZ",       "Strecke", "sX",         "sY",       "sZ",
    "rXY",      "rYZ",     "rZX",        "Sigma",    "Ambiguitaeten",
    "Stationen"};

/// Figures (one clicked crosswise as its two triangles), stations (one point for all files of a station), rovers, links
/// from rovers to their stations, baselines. Computed rovers and baselines carry their result, solution type and
/// standard deviations (mm); the others lie where the header of their file says, and "Loesung" is "keine". What has no
/// place on the earth is left out.
std::vector<Objekt> exportobjekte(const Global& g);

}  // namespace jorv
