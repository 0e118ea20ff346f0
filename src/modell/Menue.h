// The menu bar as data: which entries there are, how they read, and what the state and the files on disk allow.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "modell/Global.h"

namespace jorv {

struct Menueeintrag {
    std::string Name;    ///< "m_datei_neu"
    std::string Gruppe;  ///< caption of the menu that holds it
    std::string Text;    ///< caption with "&" before the access key
    std::string Eltern;  ///< name of the entry whose submenu holds it; empty: it stands in the menu itself
    bool an = true;
    bool sichtbar = true;
    bool Haken = false;
};

/// All entries in the order of the bar, with their present states; the recent projects, which only have a window's
/// menu, are not among them. m_geo is the whole menu of its name. A pure function of the state and the project's files.
std::vector<Menueeintrag> menue_setzen(const Global& g);

/// The entry of that name; nullptr when there is none.
const Menueeintrag* menueeintrag(const std::vector<Menueeintrag>& menue, std::string_view name);

}  // namespace jorv
