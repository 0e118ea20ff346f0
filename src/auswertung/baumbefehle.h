// What a click on a node of the project tree and each command of its context menu do. Windows and console call these;
// a dialog that only a window can show comes back as data.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// The dialog that the caller opens for the node: frmEinstellungen (einstellungen_oeffnen), frmhandarbeit
/// (handarbeit_oeffnen) or why the rover has its light (begruendung_zeilen).
enum class Baumdialog { keiner, einstellungen, handarbeit, warum };

struct Baumfolge {
    Fehler fehler = Fehler::keiner;  ///< the command failed and has shown its message
    Baumdialog dialog = Baumdialog::keiner;
    bool frmhinweis = false;      ///< show handarbeit_hinweis in front of the dialog
    std::vector<Punkt> Punkte{};  ///< to be marked on the map until it is drawn again
};

/// Left click (or Enter) on a node, given by its text and the text of its top node; both may be empty. Modes E and S:
/// linking by hand for a rover, which ends the drawing of a figure. Mode B: the two points of a baseline. Anything else
/// is a mere selection.
Baumfolge baum_klick(Global& g, std::string_view baum_knoten, std::string_view baum_eltern);

/// A command of the context menu (mnu_tree_loeschen, mnu_tree_stop, mnu_tree_lis_editieren, ...) for a node. A command
/// that the node's menu has off does nothing; those that open a file say themselves that it is missing. The names may
/// be texts of the tree, which a command builds anew. Only deleting saves the project.
Baumfolge baum_befehl(Global& g, std::string_view befehl, std::string_view baum_knoten, std::string_view baum_eltern);

/// Text of the top node, out of those keys, that holds a node of that text; empty when none does.
std::string baum_eltern_von(const Baum& baum, std::initializer_list<std::string_view> schluessel,
                            std::string_view baum_knoten);

/// m_hilfe_handbuch: path of the manual. When it is missing, the message has been shown.
std::optional<std::string> handbuch(Global& g);

}  // namespace jorv
