// Defining baselines in a dialog, as plain data: two lists of the same points, a sign that tells how the chosen pair
// stands, and the button that makes its baselines.
#pragma once

#include <string>
#include <vector>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

inline constexpr std::string_view basisdialog_titel = " Jorv+ - Basislinien im Dialog definieren";
inline constexpr std::string_view basisdialog_kopf = "Basisliniendefinition";
inline constexpr std::string_view basisdialog_von = "von:", basisdialog_nach = "nach:";
inline constexpr std::string_view basisdialog_definieren = "Definition", basisdialog_ende = "Ende";

enum class Basiszeichen {
    keines,      ///< nothing to choose
    gleich,      ///< the same point twice
    verbunden,   ///< the pair has a baseline already, in one direction or the other
    unverbunden  ///< the pair is free
};

struct Basisdialog {
    std::vector<std::string> Punkte;  ///< entries of both lists
    int von = -1, nach = -1;          ///< chosen entries from 0 on, -1: the lists are empty
    Basiszeichen zeichen = Basiszeichen::keines;
    bool cmd_definieren_frei = false;  ///< whether the button is enabled
};

/// The distinct points of the rovers in the order of their first files, both lists at the first, the button off.
Basisdialog basisdialog_oeffnen(const Global& g);

/// A change of a list. The same entry in both changes the sign alone, not the button. An entry that doesn't exist
/// changes nothing.
void basisdialog_waehlen(const Global& g, Basisdialog& d, int von, int nach);

/// The button: every two overlapping files of the chosen points become a baseline, whether they are one already or
/// not; only the button's state keeps a pair from coming twice. Renews sign, tree and map. Does nothing while disabled.
Fehler cmd_definieren(Global& g, Basisdialog& d);

}  // namespace jorv
