// The batch of one baseline: two end points with settings of their own, merged into one call of the suite.
#pragma once

#include <string>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Writes <Nummer>.BAT and Jorv.BAT for the baseline of that tree text. With the switch for the EMD output on, a second
/// call appends to jorv_out\export\<Nummer>.EMD. An end point without a settings record counts as one of zeros.
/// Failure: the batch can't be written, or the project's antenna file is of the format "APC" (then the lines in front
/// of the call are written and Jorv.BAT stays). A call file that can't be written is shown but is no failure.
Fehler basis_batch_einzeln(Global& g, const std::string& basislinie);

}  // namespace jorv
