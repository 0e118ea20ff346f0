// What the command line asks for: the options of the program and the words of the command, UTF-8 as given.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "konsole/Befehl.h"
#include "plattform/laufwerke.h"
#include "plattform/oberflaeche.h"

namespace jorv {

struct Aufruf {
    std::string einstellungen;  ///< settings file; empty: the one in the documents folder
    std::optional<Antwort> antwort;
    bool json = false;
    const Befehl* befehl = nullptr;
    std::vector<std::string> worte;                          ///< behind the command's name
    std::map<std::string, std::string, std::less<>> option;  ///< "--modus" and its value, "" for a switch
};

struct Aufrufergebnis {
    Aufruf aufruf;
    std::string fehler;  ///< what is wrong with the call, German UTF-8; empty when it can be carried out
};

/// Options of the program may stand anywhere, "--" ends them all.
Aufrufergebnis aufruf_lesen(std::span<const std::string> worte, std::span<const Befehl* const> befehle);

/// A path of the command line as DOS path: host form ("daten/a.16o") or DOS form ("Z:\daten\a.16o", "daten\a.16o"),
/// relative ones from the current directory. Nothing when Windows-1252 can't hold it or there is no such drive.
std::optional<std::string> pfad_aus_wort(const Laufwerke& laufwerke, std::string_view utf8);

/// "7" and "007" as "007"; nothing when it is no number from 1 to 999.
std::optional<std::string> nummer_aus_wort(std::string_view wort);

}  // namespace jorv
