// Taking a project file into the list: its files get the new number, batch and call file are put right, the header is
// rewritten, and the project is opened.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "projekt/import_felder.h"

namespace jorv {

/// What `cmd_import` does. The open project is saved first. The project list is read again under the lock of the
/// settings file and the dialog is judged anew: when a value has become red meanwhile, nothing happens and the dialog
/// shows it. Files that can't be copied, deleted or rewritten are reported and left; a failure from the project file on
/// ends the import and leaves the list entry in place. Baselines and points of foreign stations are read at the next
/// opening; until then a save leaves them alone.
Fehler cmd_import(Global& g, Importdialog& d);

}  // namespace jorv
