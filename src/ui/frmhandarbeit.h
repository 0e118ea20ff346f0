// Linking a rover with station files by hand: bars on one time axis, a small map, the protection.
#pragma once

#include <QDialog>

#include "daten/datendichte.h"
#include "modell/Global.h"
#include "planung/handarbeit.h"

class QCheckBox;
class QLabel;

namespace jorv {

class Einzelansicht;
class Zeitbalken;

class frmhandarbeit final : public QDialog {
public:
    /// Without rows (an array that couldn't grow) there is nothing to accept.
    frmhandarbeit(Global& g, Handarbeit h, const Datendichten& dichten, QWidget* eltern);

    /// Opens the dialog for the rover of a tree node, scans its files, and stores what OK says.
    static void zeigen(Global& g, Datendichten& dichten, const std::string& rover, QWidget* eltern);

protected:
    void accept() override;

private:
    void zeilen_setzen(const Datendichten& dichten);
    void farben_zeigen();

    Global& m_g;
    Handarbeit m_h;
    Zeitbalken* pic_zeiten;
    Einzelansicht* pic_einzel;
    QLabel* lbl_zeile;
    QCheckBox* chk_schutz;
};

}  // namespace jorv
