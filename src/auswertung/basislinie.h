// A baseline as the tree names it: the file names of its two end points, and those of the files that belong to it.
#pragma once

#include <string>
#include <string_view>

#include "auswertung/batchtext.h"
#include "modell/Global.h"

namespace jorv {

struct Basislinie {
    std::string_view von, nach;  ///< observation files of the end points
};

/// Splits "<von>-<nach>" at its first "-". The parts point into the text.
Basislinie basislinie_teilen(std::string_view text);

/// The extraction file of the baseline under computation, <Nummer>.ext; it is the same for all of them.
std::string extraktionsdatei_basis(const Global& g, std::string_view basislinie);

/// Gives the batch the names that its lines use: FROM and TO, FR4 and TO4 (less ".yyo"), FR3 and TO3 (with the dot).
void basislinien_namen(Batchtext& batch, const Basislinie& basislinie);

}  // namespace jorv
