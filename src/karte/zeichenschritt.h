// A picture as an ordered list of drawing steps: plain values in logical units (a pixel at 100 per cent, origin at the
// top left, y down). Whoever paints them, a window or a file writer, needs to know no rule of the map.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace jorv {

struct Farbe {
    std::uint8_t rot = 0, gruen = 0, blau = 0;
    bool operator==(const Farbe&) const = default;
};

/// A place in the picture.
struct Bildort {
    double x = 0, y = 0;
    bool operator==(const Bildort&) const = default;
};

enum class Strich { voll, gepunktet };

struct Stift {
    Farbe farbe;
    double breite = 1;
    Strich strich = Strich::voll;
};

struct Linie {
    Bildort von, bis;
    Stift stift;
};

struct Linienzug {
    std::vector<Bildort> orte;
    Stift stift;
};

struct Vieleck {
    std::vector<Bildort> orte;
    Stift stift;
    Farbe fuellung;
};

struct Rechteck {
    Bildort ecke;  ///< top left
    double breite = 0, hoehe = 0;
    std::optional<Stift> stift;
    std::optional<Farbe> fuellung;
};

/// Filled circles of one look, in the order of painting. One step for all of them, so that a painter makes the symbol
/// once and copies it.
struct Kreise {
    std::vector<Bildort> orte;
    double radius = 0;
    Stift stift;
    std::optional<Farbe> fuellung;
};

/// Which point of the text's box lies at its place.
enum class Anker { links_oben, links_mitte, rechts_mitte, mitte_unten, mitte_oben };

struct Schrift {
    Bildort ort;       ///< what the text speaks of
    Bildort abstand;   ///< from there to the anchor
    std::string text;  ///< Windows-1252
    Anker anker = Anker::links_oben;
    double groesse = 0;  ///< height of the letters' box
    Farbe farbe;
    bool hof = false;                  ///< a thin white halo around the letters
    std::optional<Farbe> hintergrund;  ///< of the text's box
};

/// What a step belongs to, in the order of painting.
enum class Ebene : std::uint8_t {
    hintergrund,
    massstab,
    grenze,
    katalog,
    figur,
    rover,
    station,
    fremde,
    ecke,
    pkz,
    zuordnung,
    basislinie,
    ueberlagerung
};

std::string_view name(Ebene ebene);

struct Zeichenschritt {
    Ebene ebene;
    std::variant<Linie, Linienzug, Vieleck, Rechteck, Kreise, Schrift> form;
};

using Zeichenliste = std::vector<Zeichenschritt>;

namespace kartenfarbe {
inline constexpr Farbe gelb{255, 255, 0}, grau{200, 200, 200}, rot{255, 0, 0}, blau{0, 0, 255}, gruen{0, 255, 0},
    grenze{244, 201, 248}, rover_hinweis{255, 192, 192}, schwarz{0, 0, 0}, weiss{255, 255, 255};
}  // namespace kartenfarbe

}  // namespace jorv
