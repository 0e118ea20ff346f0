// What the start shows and asks besides the project: the news of this version, the editor for text files.
#pragma once

#include <filesystem>
#include <string>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

struct Neuerungen {
    std::string text;    ///< what the news window shows
    bool fehlt = false;  ///< there is no such file; the text says so
};

/// The file Jorv-Neuerungen.txt of the programs' directory, lines parted by "\n". A file that can't be read to its end
/// has shown its message and gives what was read.
Neuerungen Neuerungen_lesen(Global& g);

/// Makes a program (host path) the editor. A name that Windows-1252 can't hold is refused with a message.
Fehler Editor_setzen(Global& g, const std::filesystem::path& programm);

}  // namespace jorv
