// How densely a file is observed: the number of satellites along the time, and the gaps. For the bars of the dialogs.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "daten/rinex_abtastung.h"
#include "modell/Global.h"

namespace jorv {

/// A stretch without gap and with one number of satellites.
struct Dichteabschnitt {
    double von = 0, bis = 0;  ///< seconds since 1970
    std::int32_t Satelliten = 0;
};

struct Datendichte {
    double Intervall = 0;                     ///< seconds between two epochs as it occurs most; 0 without two epochs
    std::vector<Dichteabschnitt> Abschnitte;  ///< ascending; where one begins later than the last one ended is a gap
    std::int32_t meiste_Satelliten = 0;
};

/// A distance of more than three intervals between two epochs is a gap. Epochs that step back in time are left out.
Datendichte dichte_aus(const std::vector<Epoche>& epochen);

/// What was scanned so far of the open project's files. A file that changed since is scanned again.
class Datendichten {
public:
    /// Above that many bytes to read the wait panel is shown.
    explicit Datendichten(std::uint64_t wartefeld_ab = 64u << 20) : m_wartefeld_ab(wartefeld_ab) {}

    /// Scans those of the files that it doesn't know yet, with the wait panel when there is much to read; the abort
    /// button leaves the rest out. A file that can't be read has no density, which is no failure here.
    void lesen(Global& g, const std::vector<std::string>& namen);

    /// Nothing for a file that was not scanned.
    const Datendichte* von(std::string_view name) const;

private:
    struct Eintrag {
        Dateikennung Datei;
        Datendichte dichte;
    };
    std::uint64_t m_wartefeld_ab;
    std::string m_verfahren;  // whose files these are
    std::map<std::string, Eintrag, std::less<>> m_dateien;
};

}  // namespace jorv
