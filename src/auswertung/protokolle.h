// The commands that show a result file in the editor: which file each means, and what it says when there is none yet.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The file of a command of the menu "Protokolle" (m_protkoll_einsehen, _kurz, _kurz_aller, _fehler) or of the tree's
/// context menu (mnu_tree_..._editieren; `knoten` is the text of its node). Empty for other commands.
std::string protokolldatei(const Global& g, std::string_view befehl, std::string_view knoten = {});

/// Opens that file in the editor. Failure: there is none yet, or the editor couldn't be started; both are told.
Fehler protokoll_oeffnen(Global& g, std::string_view befehl, std::string_view knoten = {});

/// The same for any file, which the user has chosen (m_protkoll_editieren).
Fehler datei_editieren(Global& g, std::string_view pfad);

}  // namespace jorv
