// What a batch has left: the one line of the extraction file is cut by fixed lengths into the result files.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"

namespace jorv {

/// The extraction file of a rover in the project's folder: the first eight characters of its name and ".ext".
std::string extraktionsdatei(const Global& g, std::string_view rover);

/// Modes E and S. Appends the head of the line (101 characters, 117 with long point names) to <ROVER>.UTM and its last
/// 100 characters to <ROVER>.KRZ and <Nummer>.KRZ, files the first two below jorv_out and removes the sources.
/// `status` becomes 99 when the extraction file can't be opened, else it stays; every fault has been shown. After a
/// fault before the filing no file that this call created stays behind.
void rover_auswerten_vrs(Global& g, const std::string& rover, int& status);

/// Mode F: the same, but the head is always cut at 101 characters, also where the batch asks for long point names.
void rover_auswerten_fremd(Global& g, const std::string& rover, int& status);

/// Mode B. Appends the three lists of the line to jorv_out\dat_bas\<Nummer>.BAL (columns 1 to 103, under a head),
/// jorv_out\export\<Nummer>.MRK (105 to 200) and .TEM (202 to 288), files head and row of this baseline as
/// <first 8>-<first 8>.BAL and removes the sources. `status` and faults as above; a missing extraction file names the
/// protocol of the baseline.
void basis_auswerten(Global& g, const std::string& basislinie, int& status);

}  // namespace jorv
