// What is read out of the texts of antenna files, of the ANTEX and of the IGS form.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jorv {

/// An antenna as its file names it, 20 characters each; the IGS form has names only, which stand in Nummer.
struct Antennenname {
    std::string Nummer, Typ;
};

/// The antennas of a project file, in order.
std::vector<Antennenname> antennennamen_atx(std::string_view text);
std::vector<Antennenname> antennennamen_apc(std::string_view text);

/// The head of a file of the IGS form.
extern const std::array<std::string_view, 11> apc_kopf;

/// What a file of the IGS form adds to a joined one: all behind its head, lines ended by CR LF; nothing when it is
/// shorter than that.
std::optional<std::string> apc_inhalt(std::string_view text);

/// What the ANTEX files checked so far agree on.
struct Kalibrierung {
    std::string Art;              ///< "A" absolute, "R" relative
    std::string Referenzantenne;  ///< 20 characters
};

enum class Kalibrierurteil { passt, andere_art, andere_referenz };

/// Compares the lines of calibration of a file with `bisher`, which the first file fills. Up to the first line that
/// doesn't fit, which `zeile` receives.
Kalibrierurteil kalibrierung_pruefen(std::string_view text, bool erste_datei, Kalibrierung& bisher,
                                     std::string_view& zeile);

/// The lines with CR LF behind each.
std::string zeilen_mit_umbruch(std::string_view text);

}  // namespace jorv
