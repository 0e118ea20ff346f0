// All commands, in the order of the help. Each group stands beside its functions.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "konsole/Befehl.h"

namespace jorv {

std::span<const Befehl> befehle_verfahren();
std::span<const Befehl> befehle_import();
std::span<const Befehl> befehle_dateien();
std::span<const Befehl> befehle_planung();
std::span<const Befehl> befehle_einstellen();
std::span<const Befehl> befehle_rover();
std::span<const Befehl> befehle_zeiten();
std::span<const Befehl> befehle_karte();
std::span<const Befehl> befehle_auswertung();
std::span<const Befehl> befehle_basis();
std::span<const Befehl> befehle_folge();
std::span<const Befehl> befehle_katalog();
std::span<const Befehl> befehle_hilfe();

/// Every command once.
std::span<const Befehl* const> alle_befehle();

/// The line of a command: "jorv neu NAME ...".
std::string befehl_zeile(const Befehl& befehl);

/// Overview of all commands, UTF-8.
std::string hilfe_uebersicht();

}  // namespace jorv
