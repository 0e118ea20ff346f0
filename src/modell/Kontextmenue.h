// The context menu of a tree node as data: which commands the node's group, the mode and the result files allow.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "modell/Global.h"

namespace jorv {

struct Kontexteintrag {
    std::string Name;  ///< "mnu_tree_loeschen"
    std::string Text;
    bool an = false;
    bool Haken = false;
};

/// The entries for the node of that text below the top node of that text; an empty parent stands for a top node or
/// nothing.
std::vector<Kontexteintrag> kontextmenue(const Global& g, std::string_view baum_knoten, std::string_view baum_eltern);

/// The file that a command opens for a node: mnu_tree_editieren, _lis_, _err_, _dat_, _rover_report_ or
/// _vrs_report_editieren. Empty for other commands.
std::string kontextdatei(const Global& g, std::string_view befehl, std::string_view baum_knoten);

}  // namespace jorv
