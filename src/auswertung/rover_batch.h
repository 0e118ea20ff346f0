// The batch of one rover: what the processing suite is told to compute, and where its files go.
#pragma once

#include <string>
#include <vector>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Modes E and S: `wav2` makes the virtual reference station from the linked stations, `wa2` computes the rover.
/// Writes <Nummer>.BAT and Jorv.BAT whole. Failure: the rover has no record, the batch can't be written, or the
/// project's antenna file is of the format "APC" (then the lines in front of the `wav2` call are written and Jorv.BAT
/// stays). A call file that can't be written is shown but is no failure.
Fehler rover_batch_vrs(Global& g, const std::string& rover);

/// Mode F: the virtual reference station was made elsewhere, `wa2` computes the rover from it. Files and failures as
/// above; a rover without a linked station is a failure too.
Fehler rover_batch_fremd(Global& g, const std::string& rover);

/// The files of earlier runs that the batch of a rover begins by deleting, as paths below the project's folder.
std::vector<std::string> alte_ergebnisse(const Global& g, const std::string& rover);

}  // namespace jorv
