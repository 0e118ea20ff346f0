// The export of a project for maps and tables of other programs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

enum class Exportformat { geojson, csv, kml };

/// "geojson", "csv" or "kml" in any case; nothing for another word.
std::optional<Exportformat> exportformat(std::string_view wort);

/// Points, baselines and figures of the open project, each with solution type, standard deviations (mm) and station
/// links, in geographic coordinates (degrees, ellipsoidal metres) and in zone 32. UTF-8. GeoJSON after RFC 7946, a
/// feature a line; CSV after RFC 4180 with a head line, decimal points and the geometry as WKT; KML 2.2 with a folder
/// for each kind.
std::string exporttext(const Global& g, Exportformat format);

/// The same into a file (DOS path), written whole. A failure has been shown.
Fehler export_schreiben(Global& g, Exportformat format, std::string_view datei);

}  // namespace jorv
