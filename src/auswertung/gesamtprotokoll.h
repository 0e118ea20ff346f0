// The merged computation protocol <Nummer>.LIS of all rovers.
#pragma once

#include "modell/Global.h"

namespace jorv {

/// Joins the protocols below jorv_out\lis_rov, computed rovers first, those without a result behind them; a rover
/// without a protocol is left out. Each of the two parts is put on disk whole. A fault is shown and ends the joining.
void gesamtprotokoll_schreiben(Global& g);

}  // namespace jorv
