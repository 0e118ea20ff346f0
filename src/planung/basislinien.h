// Baselines between two points of a project: one for every two observation files of the points that overlap in time.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Who pairs two points: what an array that can't grow reports, and whether pairs of files that a record already holds
/// are left out.
struct Basispaarung {
    int nummer;
    std::string_view routine;
    bool nur_neue;
};

/// The later of the two first epochs lies before the earlier of the two last ones; equal instants don't count.
bool bilden_basislinie(const OBS& a, const OBS& b);

/// Both files stand in one record, in either order.
bool dateien_verbunden(const Global& g, std::string_view datei_a, std::string_view datei_b);
/// The two points stand in one record, in either order.
bool punkte_verbunden(const Global& g, std::string_view punkt_a, std::string_view punkt_b);

/// Appends a BASISLINIE record for each file of VON with each file of NACH that form a baseline. A failure to grow
/// shows its message; the records made so far stay.
Fehler basislinien_bilden(Global& g, const Basispaarung& art, std::string_view von, std::string_view nach);

/// "<Datei_von>-<Datei_nach>", the name in the tree.
std::string basislinie_name(const BASISLINIE_Satz& basislinie);

/// First record of that name, 0 if unknown.
int Index_BASISLINIE(const Global& g, std::string_view name);

}  // namespace jorv
