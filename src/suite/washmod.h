#pragma once
// Program washmod: hourly index of the ionosphere from the model file of a network.

#include "suite/aufruf.h"
#include "suite/protokoll.h"

namespace jorv::suite {

/// washmod FILE +Si. The model files can't be computed yet, so there is nothing to evaluate: the protocol says so and
/// the exit status is 1.
int washmod(const Worte& worte, Protokoll& protokoll);

}  // namespace jorv::suite
