// Only one program at a time has a project open to be changed.
#pragma once

#include <memory>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Takes the lock of a project file; the open project's own is shared. Failure: another program holds it, which has
/// been shown. Success with an empty `sperre`: the folder takes no lock, so that nothing can be saved there either.
Fehler Verfahren_sperren(Global& g, std::string_view projektdatei, std::shared_ptr<const Sperre>& sperre);

/// Removes what a killed program left in a folder: temporary files and locks that nobody holds.
void reste_wegraeumen(const Global& g, std::string_view ordner);

}  // namespace jorv
