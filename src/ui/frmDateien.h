// The file picker "Dateien" for RINEX and antenna files: the marked files are copied into the project while it stays
// open.
#pragma once

#include <QDialog>
#include <optional>

#include "modell/Global.h"
#include "plattform/oberflaeche.h"

class QCheckBox;
class QListWidget;
class QProgressBar;

namespace jorv {

class Verzeichnisliste;

class frmDateien final : public QDialog {
public:
    /// Opens on a directory (DOS path).
    frmDateien(Global& g, Dateiart art, std::string_view verzeichnis, QWidget* eltern);

    /// Shows the dialog. The answer names no files, since they are copied already; nothing when none was copied and the
    /// user left without taking over the directory.
    std::optional<Dateiwahl> waehlen();

protected:
    void reject() override;
    void closeEvent(QCloseEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;

private:
    QLayout* linke_seite();
    QLayout* rechte_seite();
    void verbinden();
    void liste_fuellen();
    void liste_einmal_fuellen();
    void kopieren();
    void warten(const QString& text, bool mit_balken);
    void bedienbar(bool an);
    void stand_zeigen();

    Global& m_g;
    Dateiart m_art;
    std::string m_beginn;
    Verzeichnisliste* Dir1;
    QCheckBox* Check1;
    QListWidget* List1;
    QPushButton *cmd_alle, *cmd_keine, *Command1, *Command2;
    QProgressBar* prg_fortschritt;
    QLabel *lbl_fortschritt, *m_stand;
    bool m_gezeigt = false, m_fuellt = false, m_neu_fuellen = false, m_kopiert_gerade = false;
};

}  // namespace jorv
