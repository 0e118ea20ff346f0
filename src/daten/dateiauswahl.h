// What a file dialog gave, as the program holds it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "modell/Global.h"

namespace jorv {

/// DOS path of a chosen file. Nothing, with a message, when a name in it has characters outside Windows-1252.
std::optional<std::string> gewaehlte_datei(Global& g, const std::filesystem::path& datei);

}  // namespace jorv
