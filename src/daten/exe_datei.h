// The data files beside the program (catalogue, borders) and what happens when the user may not write there.
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "modell/Global.h"

namespace jorv {

/// EXE_Verzeichnis, or the folder of the running program when the setting is empty.
std::string exe_verzeichnis(const Global& g);

/// Path of the data file: the user's own copy beside the settings file once there is one, else in EXE_Verzeichnis.
std::string exe_datei(const Global& g, std::string_view name);

/// Replaces the data file whole. Where the user may not write into EXE_Verzeichnis, the file goes beside the settings
/// file, and from then on it is read and written there.
[[nodiscard]] std::error_code exe_datei_schreiben(const Global& g, std::string_view name, std::string_view bytes);

}  // namespace jorv
