// The ionosphere index of a day: a batch makes a virtual station at the reference point in Larsund from the four fixed
// stations and hands the model of its network to `washmod`.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The command "I95-Auswertung". Copies the project's file of point 0583 to point 5830, writes <Nummer>.BAT and
/// Jorv.BAT and starts them in a window of its own, without waiting. Failure, told on the screen: no such file, the
/// copy or the batch can't be written, the start failed. A call file that can't be written is shown but is no failure.
Fehler m_basis_i95(Global& g);

}  // namespace jorv
