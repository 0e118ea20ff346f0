// The program's own viewer of text files: protocols, reports and data, read only, in a fixed pitch.
#pragma once

#include <QMainWindow>
#include <optional>
#include <string>

#include "plattform/datei.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPrinter;

namespace jorv {

class Betrachter final : public QMainWindow {
public:
    /// The file (DOS path) in a window of its own, that is, in the one that shows it already, read anew. Where a dialog
    /// holds the others up, the window belongs to it. False when the file can't be read. `dateien` outlives the window.
    static bool zeigen(const Dateisystem& dateien, const std::string& pfad);

    /// Puts the text on pages of the printer, in letters so small that the lines fit as long as they can be read.
    void drucken_auf(QPrinter& drucker) const;

private:
    Betrachter(const Dateisystem& dateien, std::string pfad, QWidget* eltern);
    void anlegen();
    void menue_anlegen();
    bool laden();
    void suche_zeigen();
    void suche_verbergen();
    void suchen(bool rueckwaerts);
    void drucken();
    void abbrechen();

    const Dateisystem& m_dateien;
    const std::string m_pfad;
    QPlainTextEdit* txt_datei;
    QWidget* m_suche;
    QLineEdit* txt_suchen;
    QLabel *m_fund, *m_zeilen;
};

}  // namespace jorv
