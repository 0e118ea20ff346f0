// Wildcards in file names, and the sets of files that a command works on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plattform/datei.h"

namespace jorv::dos {

/// Holds "*" or "?".
bool hat_platzhalter(std::string_view name);

/// Whether a whole name fits a pattern, without regard to case (umlauts too). "*" is any run of characters, dots
/// included; "?" one character that is no dot, or nothing at the end or before a dot; a "." ahead of "*" or "?" is a
/// dot or the end of the name.
bool passt(std::string_view muster, std::string_view name);

struct Fund {
    std::string pfad;  ///< full DOS path
    std::string name;  ///< as it stands on the disk
};

/// The files that a full DOS path with or without wildcards in its last part means, ordered by upper-cased name. No
/// folders; a pattern passes over the names that begin with a dot, which are the hidden ones on this system.
std::vector<Fund> dateien_finden(const Dateisystem& dateien, std::string_view pfad);

/// A file or folder of that full path, or a match of the pattern in its last part, is there.
bool etwas_da(const Dateisystem& dateien, std::string_view pfad);

}  // namespace jorv::dos
