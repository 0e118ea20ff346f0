// Intake: copies chosen RINEX and antenna files into the project directory, registers them and rebuilds everything
// derived from them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "modell/Global.h"
#include "plattform/oberflaeche.h"

namespace jorv {

/// The menu command for RINEX files. Saves the project and keeps a copy as <Nummer>.BAK before it sets back figures,
/// links by hand and rover settings, which an intake always does. Does nothing without an open project.
void m_datei_rinex(Global& g);

/// The menu command for antenna files.
void m_datei_antenne(Global& g);

/// Whether a file is offered as a RINEX file: not empty, named like one (in mode F also "virt..."), and its first line
/// holds "RINEX VERSION".
bool RINEX_Test(const Global& g, std::string_view verzeichnis, std::string_view name);

/// The whole paths that the dialog offers for a directory, in the order of the names, subdirectories at their place.
/// `weiter` is asked at each file and folder; false ends the walk with what was found.
std::vector<std::string> einfuegbare_Dateien(const Global& g, Dateiart art, std::string_view verzeichnis,
                                             bool mit_Unterverzeichnissen, const std::function<bool()>& weiter = {});

/// Copies the chosen files into the project directory, under their names in lower case, and lists the copies in
/// dateien_liste. The first antenna file settles the project's format. Ends at the first failure, which has shown its
/// message; what was copied stays listed. `kopiert` is called for each copied file with its place (from 0) in `pfade`.
void dateien_kopieren(Global& g, Dateiart art, const std::vector<std::string>& pfade,
                      const std::function<void(std::size_t)>& kopiert = {});

/// What is shown meanwhile.
inline constexpr std::string_view kopieren_text = "Bitte warten (Dateien werden kopiert)";

/// Registers a copied observation or navigation file. In modes E and S a station that the catalogue doesn't know, or
/// knows elsewhere, is asked about first.
void neue_rinex_datei(Global& g, const std::string& name);
void neue_antennen_datei(Global& g, const std::string& name);

}  // namespace jorv
