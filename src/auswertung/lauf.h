// The run: rover by rover the batch is written, started and waited for, its results are filed, then the reports follow.
#pragma once

#include <functional>
#include <string_view>

#include "auswertung/gleichzeitig.h"
#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/prozess.h"

namespace jorv {

/// What a run needs of the world outside the state; tests put a child of their own in its place.
struct Lauf_Umgebung {
    /// Runs a batch file and returns when it has ended; nobody reads what it returns.
    std::function<bool(const Dateisystem&, std::string_view, const std::function<void()>&)> prozess = prozess_warten;
    /// Rovers that are computed at once; 1 keeps every batch in the project folder and with `prozess`.
    std::function<int(const Global&)> gleichzeitig = gleichzeitige_rover;
};

/// The command "WaSoft ausführen" for the open project. Success: the walk and its reports came to their end, also after
/// an abort by the user. Failure: the run was left early (told on the screen); then neither tree nor reports are
/// renewed.
Fehler m_wasoft_run_n(Global& g, const Lauf_Umgebung& umgebung = {});

}  // namespace jorv
