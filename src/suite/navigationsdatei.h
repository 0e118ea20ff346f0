#pragma once
// What the navigation files of all systems share in RINEX 2: a header, then sets of as many lines as the system has,
// whose first line begins with the satellite and a time.

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "plattform/text.h"
#include "suite/gps_zeit.h"

namespace jorv::suite {

/// The lines of a set.
using Satzzeilen = std::span<const std::string_view>;

/// The lines that sets came from, of one or more files.
struct Navigationsdatei {
    std::vector<std::string> zeilen;  // those of each set in one text, CR LF
    std::vector<std::string> kopf;    // header lines of the first file, without the one that ends it

    void dazu(Satzzeilen satz);
    /// Header and sets, those first that `vorher` (by their places) puts first.
    std::string text(const std::function<bool(std::size_t, std::size_t)>& vorher) const;
};

/// The lines of a header whose first one has been read, without the one that ends it; nothing when none does.
std::optional<std::vector<std::string>> kopfzeilen(std::string_view erste, Zeilenleser& leser);

/// The next whole set of as many lines as `satz` holds; false at the end. The first line of a set alone has something
/// in front, so a broken set never shifts the ones behind it.
bool naechster_satz(Zeilenleser& leser, std::span<std::string_view> satz);

/// The number in a line's four columns, `spalte` from 0 on.
std::optional<double> satzzahl(Satzzeilen satz, std::size_t zeile, std::size_t spalte);

/// The time in a set's first line, taken as GPS time.
std::optional<GpsZeit> satzzeit(Satzzeilen satz);

}  // namespace jorv::suite
