// What the directory picker does below its window: joins the choice, makes a new directory, finds where to begin.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modell/Global.h"

namespace jorv {

/// The chosen directory with the typed last part behind it, "\" between them; without one the directory itself.
std::string Verzeichnis_Wahl(std::string_view verzeichnis, std::string_view letzter_teil);

/// The OK button: the chosen path, which is a directory afterwards. Nothing when it couldn't be made; the message was
/// shown.
std::optional<std::string> Verzeichnis_uebernehmen(Global& g, std::string_view verzeichnis,
                                                   std::string_view letzter_teil);

/// The longest beginning of the path that is a directory; the first drive when there is none.
std::string Verzeichnis_Anfang(const Global& g, std::string_view pfad);

/// The names of the subdirectories of a directory that a picker offers, sorted; hidden ones (".name") are left out.
std::vector<std::string> Unterverzeichnisse(const Global& g, std::string_view verzeichnis);

}  // namespace jorv
