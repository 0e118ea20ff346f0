// The batch file of a project that gets a new number, name or directory: the old text line by line with the places
// that name the project put right.
#pragma once

#include <string>
#include <string_view>

namespace jorv {

struct Batchumschrift {
    std::string alte_Nummer, alter_Name, altes_Verzeichnis;  ///< empty ones are not looked for
    std::string neue_Nummer, neuer_Name, neues_Verzeichnis;
    std::string EXE_Verzeichnis;
    std::string Zeitpunkt;  ///< date, a blank and the time
};

/// Both head comments get a line behind them, the lines of drive, folder and search path are written anew, and the
/// result files "<number>.UTM" and so on (also those under the project's name) carry the new number. Lines end in
/// CR LF.
std::string batch_umschreiben(std::string_view text, const Batchumschrift& u);

}  // namespace jorv
