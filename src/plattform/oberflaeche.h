// The port: all that the core knows of a screen. The core words a message, the port shows it. Windows, console and
// tests implement it. Texts are Windows-1252; line breaks are "\n".
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace jorv {

struct Fensterstart;

enum class Symbol { keins, stop, warnung, info, frage };
enum class Antwort { nein, ja };

/// What the file picker for RINEX and antenna files gives back: paths in list order, and the directory it ended in.
struct Dateiwahl {
    std::vector<std::string> dateien;  ///< whole DOS paths, those marked for copying
    std::string verzeichnis;           ///< becomes the start directory of the next time
};
enum class Dateiart { rinex = 1, antennen = 2 };

/// What the dialog for a new project holds.
struct Verfahrenswahl {
    std::string name;
    std::string verzeichnis;
    std::string modus;  ///< "1" to "4"
};
/// A field of that dialog, for the focus.
enum class Verfahrensfeld { name, verzeichnis };
/// What its OK button does: nothing ends the dialog, a field gets the focus for another try (its message was shown).
using Verfahrensanlage = std::function<std::optional<Verfahrensfeld>(const Verfahrenswahl&)>;

class Oberflaeche {
public:
    virtual ~Oberflaeche() = default;

    /// A message with one OK button.
    virtual void meldung(Symbol symbol, std::string_view text, std::string_view titel) = 0;
    /// A question with Yes and No.
    virtual Antwort frage(Symbol symbol, std::string_view text, Antwort vorgabe, std::string_view titel) = 0;

    void meldung(Symbol symbol, std::string_view text) { meldung(symbol, text, "Jorv+"); }
    Antwort frage(Symbol symbol, std::string_view text, Antwort vorgabe)
    {
        return frage(symbol, text, vorgabe, "Jorv+");
    }

    /// The wait panel with its abort button: shown with a caption, moved (per cent), hidden.
    virtual void fortschritt_zeigen(std::string_view text) = 0;
    virtual void fortschritt_setzen(double prozent) = 0;
    virtual void fortschritt_verbergen() = 0;
    /// Lets events through. True when the abort button has been pressed since the panel was shown.
    virtual bool ereignisse() = 0;

    /// The state has changed: tree, map (neu: with a new scale), menus, the list of recent projects, the window's
    /// title.
    virtual void baum_erneuern() {}
    virtual void karte_zeichnen(bool neu) { (void)neu; }
    virtual void menue_erneuern() {}
    virtual void liste_erneuern() {}
    virtual void titel_setzen(std::string_view titel) { (void)titel; }
    /// Wait pointer on or off.
    virtual void sanduhr(bool an) { (void)an; }
    virtual void piepen() {}

    /// Shows a text file in the editor; false when it couldn't be started.
    virtual bool im_editor_oeffnen(std::string_view pfad) = 0;
    /// Starts a program in a window of its own, which shows what it prints, and returns at once; the error when it
    /// couldn't be started. Unless a front end has a window of its own for it, that of the system does.
    virtual std::error_code im_fenster_starten(const Fensterstart& start);

    /// The modal dialogs that a command needs. Nothing means cancelled. A screen may copy the chosen files itself
    /// while its dialog stays open; then it leaves them out of the answer.
    virtual std::optional<Dateiwahl> dateien_waehlen(Dateiart art, std::string_view verzeichnis) = 0;
    /// Asks until `ok` has taken a choice or the user cancels.
    virtual void neues_verfahren(const Verfahrenswahl& vorschlag, std::string_view nummer,
                                 const Verfahrensanlage& ok) = 0;
};

}  // namespace jorv
