// Files that a batch left in the project's folder are moved to their places below jorv_out.
#pragma once

#include <string>

#include "modell/Global.h"

namespace jorv {

/// Moves <Nummer>.LIS and <Nummer>.UTM of a rover to their folders, and <Nummer>.ERR with a content to error_rov
/// (created when missing); an empty .ERR is removed. Missing files are skipped, faults are shown, and a source stays
/// when its copy failed. True when there was an .ERR with a content.
bool ausgaben_ablegen(Global& g, const std::string& rover);

/// Removes the reports of an older run before a new one; `protokolldatei` is the path of the merged protocol. Faults
/// are shown.
void alte_berichte_loeschen(Global& g, const std::string& protokolldatei);

}  // namespace jorv
