// Saves a picture where the user has chosen, outside of any project.
#pragma once

#include <filesystem>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Writes the bytes of a picture whole under a host path. A failure has shown its message.
Fehler Bild_sichern(Global& g, const std::filesystem::path& datei, std::string_view bytes);

}  // namespace jorv
