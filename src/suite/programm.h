#pragma once
// What the mains of the suite share: the words of the command line in Windows-1252 and the output as it stands.

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string_view>

#include "suite/aufruf.h"

namespace jorv::suite {

/// For a program that lives some milliseconds: memory that one step gives back stays for the next one instead of going
/// to the system and coming from there anew.
void speicher_behalten();

/// The words behind the program's name; nothing when one can't be held in Windows-1252.
std::optional<Worte> worte(int anzahl, const char* const* argumente);

/// Bytes to standard output, or to standard error, without any change of line ends.
void ausgeben(std::string_view bytes, std::FILE* wohin = stdout);

/// The solver rnx2rtkp beside our own programs or on the search path; empty when there is none.
std::filesystem::path loeserprogramm();

/// Why `worte` gave nothing.
inline constexpr std::string_view FREMDE_ZEICHEN = "Die Angaben enthalten Zeichen, die Windows-1252 nicht kennt.";

/// Exit status of a wrong command line.
inline constexpr int FALSCHER_AUFRUF = 2;

}  // namespace jorv::suite
