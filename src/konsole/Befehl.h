// One command of the program: its row of the help, its words, and the function that carries it out.
#pragma once

#include <span>
#include <string_view>

namespace jorv {

struct Lage;

/// What must stand before the function is called.
enum class Grundlage {
    nichts,         ///< not even the settings
    einstellungen,  ///< settings read
    katalog,        ///< settings and station catalogue read
    nur_lesen,      ///< also the project of the first word opened, to be read beside other programs
    verfahren       ///< the same, to be changed: by one program at a time
};

enum class Ausgang { gut = 0, misslungen = 1, falscher_aufruf = 2 };

struct Befehl {
    std::string_view name;    ///< one or two words
    std::string_view aufruf;  ///< its words and options
    std::string_view zweck;   ///< what it does, UTF-8
    std::string_view beispiel;
    int mindestens, hoechstens;                  ///< words behind the name
    std::span<const std::string_view> optionen;  ///< "--schalter", or "--name=" for one with a value
    Grundlage grundlage;
    Ausgang (*ausfuehren)(Lage&);
};

inline constexpr int beliebig_viele = 1 << 20;

}  // namespace jorv
