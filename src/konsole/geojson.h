// Border lines from GeoJSON.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace jorv {

/// The lines "Typ Rechtswert Hochwert" of all lines and polygons of a GeoJSON text in geographic coordinates (degrees,
/// longitude first), in zone 32. Points are passed over. Nothing when it is no GeoJSON, holds neither, or a coordinate
/// is no place on the earth.
std::optional<std::string> grenzen_aus_geojson(std::string_view text);

}  // namespace jorv
