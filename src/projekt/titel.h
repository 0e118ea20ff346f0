// What the window says of the open project beside its content: title and logo.
#pragma once

#include <string>

#include "modell/Global.h"

namespace jorv {

/// The window's title, with and without an open project.
std::string Titel(const Global& g);

/// What the logo window and the news window say of the running program.
std::string Logo_Version();
std::string Neuerungen_Titel();

/// The logo of region and mode in the directory of the programs; shown beside the title.
std::string Logo_Datei(const Global& g);

/// The same for a window that shows it: a missing file gives its message and an empty path, which means no picture.
std::string Logo_laden(Global& g);

}  // namespace jorv
