// The internal commands that work on files, folders and the screen. Each prints its own message and returns whether it
// did what it was asked.
#pragma once

#include <string_view>

#include "dos/umfeld.h"

namespace jorv::dos {

/// A command gets the text behind its word, redirections taken out.
using Befehl = bool (*)(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text);

/// The command of a word in lower case; null when there is none.
Befehl interner_befehl(std::string_view wort);

bool befehl_echo(Umfeld&, const Stroeme&, std::string_view text);
bool befehl_pause(Umfeld&, const Stroeme&, std::string_view text);
bool befehl_path(Umfeld&, const Stroeme&, std::string_view text);

bool befehl_cd(Umfeld&, const Stroeme&, std::string_view text);
bool befehl_mkdir(Umfeld&, const Stroeme&, std::string_view text);
bool befehl_rmdir(Umfeld&, const Stroeme&, std::string_view text);

bool befehl_copy(Umfeld&, const Stroeme&, std::string_view text);
bool befehl_del(Umfeld&, const Stroeme&, std::string_view text);
bool befehl_rename(Umfeld&, const Stroeme&, std::string_view text);
bool befehl_type(Umfeld&, const Stroeme&, std::string_view text);

/// Makes a drive ("D:") current.
bool laufwerk_wechseln(Umfeld& umfeld, const Stroeme& stroeme, std::string_view laufwerk);

/// Asks for a yes; the end of the input is a no.
bool bestaetigt(const Stroeme& stroeme, std::string_view frage);

}  // namespace jorv::dos
