// The import dialog as plain data: what a project file says of itself, the verdict on each value, and the buttons that
// mend a bad one. Import is allowed when every verdict is good.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "modell/Global.h"

namespace jorv {

inline constexpr std::string_view import_auswahl_titel = "Auswahl einer Verfahrensdatei:";
inline constexpr std::string_view import_auswahl_filter = "INI-Dateien (*.ini)|*.ini| Alle Dateien (*.*)|*.*";
inline constexpr std::string_view import_auswahl_endung = "*.ini";

/// The text boxes. Both boxes of the version share one verdict.
enum class Importfeld {
    name,
    nummer,
    modus,  ///< as a letter
    verzeichnis,
    anlegedatum,
    letztdatum,
    versionsnummer,
    versionsdatum
};
inline constexpr std::size_t importfelder = 8;

/// Places of the status word, counted from 0.
enum class Importstelle { name, nummer, modus, verzeichnis, anlegedatum, letztdatum, version };
inline constexpr std::size_t importstellen = 7;

/// What stands beside a text box: green when good, else red; `knopf` tells whether the button that mends it is shown.
struct Importurteil {
    std::string_view status;
    bool gut = false;
    bool knopf = false;
};

struct Importdialog {
    std::string Importdatei;
    std::array<std::string, importfelder> alt, neu;  ///< as read, and as they stand in the boxes; by Importfeld
    std::string Antenne = "?";
    std::array<Importurteil, importstellen> urteile;
    std::string statuswort = "0000111";  ///< "0" or "1" for each place
    std::string_view moduszeile;         ///< what the mode means

    const std::string& alter_wert(Importfeld feld) const { return alt[static_cast<std::size_t>(feld)]; }
    const std::string& wert(Importfeld feld) const { return neu[static_cast<std::size_t>(feld)]; }
    const Importurteil& urteil(Importstelle stelle) const { return urteile[static_cast<std::size_t>(stelle)]; }
    /// Whether `cmd_import` is enabled.
    bool importierbar() const { return statuswort == "1111111"; }
};

/// The place that judges a box.
Importstelle importstelle(Importfeld feld);

/// The dialog for a chosen project file, every value judged. A file that can't be read gives empty boxes.
Importdialog import_laden(const Global& g, std::string_view importdatei);

/// The menu command behind its file dialog: nothing when that was cancelled ("*.ini" or no name); else the file's
/// directory becomes Datei_Verzeichnis and the dialog is loaded.
std::optional<Importdialog> m_datei_importieren(Global& g, std::string_view gewaehlt);

/// A box has got a new text: its rule runs.
void import_setzen(const Global& g, Importdialog& d, Importfeld feld, std::string_view text);

/// All rules anew, after the project list has changed.
void import_pruefen(const Global& g, Importdialog& d);

/// The button of a place: next free number, directory of the file, present date and time, running version. Places
/// without a button stay as they are.
void import_knopf(const Global& g, Importdialog& d, Importstelle stelle);

}  // namespace jorv
