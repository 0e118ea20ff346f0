// The satellite inventory of a rover.
#pragma once

#include <string>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Puts every GPS and GLONASS satellite of the file into the rover's settings record: names ascending, flag 1. Names
/// that are there keep their flags. Follows punkt_info_lesen of the same file without reading it again. Failure has
/// shown its message.
Fehler satelliten_lesen(Global& g, const std::string& name);

}  // namespace jorv
