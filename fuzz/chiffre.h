// Plain lines of a fuzzed text as the enciphered file that a reader gets.
#pragma once

#include <string>
#include <string_view>

#include "daten/krypt.h"
#include "plattform/text.h"
#include "ziel.h"

namespace jorv::fuzz {

/// The lines enciphered, ended by CR LF; a line that can't be is left out. Each is checked to come back.
inline std::string chiffriert(std::string_view klartext)
{
    std::string bytes;
    Zeilenleser zeilen(klartext);
    while (const auto zeile = zeilen.naechste()) {
        int fehler = 0;
        const std::string chiffre = krypt(*zeile, Kryptmodus::chiffrieren, fehler);
        if (fehler != 0) continue;
        soll(chiffre.find('\n') == std::string::npos, "a cipher line holds no line end");
        const auto ende = zeile->find('\0');
        const auto klar = ende == std::string_view::npos ? *zeile : zeile->substr(0, ende + 1);
        soll(krypt(chiffre, Kryptmodus::dechiffrieren, fehler) == klar && fehler == 0, "deciphered is the plain line");
        bytes.append(chiffre).append("\r\n");
    }
    return bytes;
}

}  // namespace jorv::fuzz
