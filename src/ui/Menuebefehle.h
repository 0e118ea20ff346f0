// Which routine stands behind which entry of the menu bar.
#pragma once

#include <string_view>

namespace jorv {

class Hauptfenster;

/// Runs the command of that name. False when it has no window or routine yet; the bar shows it grey.
bool menuebefehl_ausfuehren(Hauptfenster& form, std::string_view name);

/// Whether menuebefehl_ausfuehren knows the command.
bool menuebefehl_vorhanden(std::string_view name);

}  // namespace jorv
