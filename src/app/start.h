// From process start to a usable program, and back to its end.
#pragma once

#include <functional>
#include <string>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

struct Startwahl {
    /// A settings file in place of the one in the documents folder (DOS path); older settings files are then not taken
    /// over.
    std::string einstellungen;
    /// The folder that counts as the program's (DOS path); empty: that of the running program.
    std::string programmverzeichnis;
};

/// Defaults, settings folder, takeover of older settings files, settings, coordinate system: in this order, up to the
/// logo window. A failure has shown its message (a failing coordinate system has none) and ends the program.
Fehler start(Global& g, const Startwahl& wahl = {});

/// What the first showing of the main window does besides windows: the tree, the station catalogue, the version of the
/// last start, menus. A failing catalogue has shown its message; the program goes on. `neuerungen` shows the news
/// window; it is called between catalogue and map while the user wants to see it.
void erste_aktivierung(Global& g, const std::function<void()>& neuerungen = {});

/// Saves an open project that was read to its end, then the settings.
Fehler ende(Global& g);

}  // namespace jorv
