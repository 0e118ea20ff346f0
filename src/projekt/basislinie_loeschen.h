// Taking one baseline out of the open project, with its result files and its rows in the collected results.
#pragma once

#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Asks, then removes the baseline of that name ("<Datei_von>-<Datei_nach>"); in mode B only. "No" is no failure, an
/// unknown name is one. A result file that can't be deleted or rewritten shows its message and the record stays, so
/// that the command can be given again. Nothing is saved.
Fehler BASISLINIE_loeschen(Global& g, std::string_view name);

}  // namespace jorv
