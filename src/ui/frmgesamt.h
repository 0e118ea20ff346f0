// The time overview of a project or of one of its days. It changes nothing.
#pragma once

#include <QDialog>

#include "daten/datendichte.h"
#include "modell/Global.h"
#include "planung/gesamtuebersicht.h"

class QLabel;

namespace jorv {

class Zeitbalken;

class frmgesamt final : public QDialog {
public:
    frmgesamt(const Gesamtuebersicht& u, const Datendichten& dichten, QWidget* eltern);

    /// The command of m_grafik_zeiten (entry 0) and m_grafik_zeiten(eintrag): scans the files and shows the window.
    static void zeigen(Global& g, Datendichten& dichten, int eintrag, QWidget* eltern);

private:
    void zeilen_setzen(const Gesamtuebersicht& u, const Datendichten& dichten);
    void drucken();

    Zeitbalken* pic_zeiten;
    QLabel* lbl_zeile;
};

}  // namespace jorv
