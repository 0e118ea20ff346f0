// A rover with three stations round it, everything about them drawn from a seed: cases by the hundred for measuring and
// the odd one for a test.
#pragma once

#include "simulator/simulator.h"

namespace jorv::simulator {

struct Unruhe {
    const char* name;
    Ionosphaere ionosphaere;
};

/// One of "ruhig", "mittel", "stark", by the seed in turn.
const Unruhe& unruhe(std::uint64_t saat);

/// The rover 5501 and the stations 0001 (the nearest, 1 to 35 km away), 0002, 0003 in an hour at 30 s. The wave of the
/// ionosphere travels where the seed says.
Szenario zufallsnetz(std::uint64_t saat, const Unruhe& unruhe);

}  // namespace jorv::simulator
