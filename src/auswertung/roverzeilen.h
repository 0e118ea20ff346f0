// What the batches of rovers have in common: the parts of a rover's file name, its stations, its time window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "auswertung/batchtext.h"
#include "modell/Global.h"

namespace jorv {

/// Gives the batch the parts of a RINEX short name that its lines use: ROVER, DDD (day of year), SES (session, empty
/// when there is none), EXT4, ROV8, ROV-1, ROV-3, ROV-4. Columns are taken literally whatever the name.
void rover_namen(Batchtext& batch, std::string_view rover);

/// The first four characters of the linked station files, joined by commas.
std::string stationsliste(const ROVER_TOREL_Satz& zuordnung);

/// The options that leave out the satellites which are switched off, in the order of the record.
std::vector<std::string> satelliten_optionen(const ROVER_Settings_Satz& einstellung);

/// True when the one-hour window is on and every linked station observed through the whole of it (times of day as
/// HHMMSS).
bool fenster_nutzbar(const Global& g, const ROVER_TOREL_Satz& zuordnung);

}  // namespace jorv
