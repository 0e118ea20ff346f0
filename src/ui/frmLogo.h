// The logo window in front of the main window: shown for three seconds, or until the user presses start.
#pragma once

#include <QDialog>
#include <chrono>

#include "modell/Global.h"

class QCheckBox;

namespace jorv {

class frmLogo final : public QDialog {
public:
    explicit frmLogo(Global& g);

    /// Shows the window and returns when the main window's turn has come. Events are served meanwhile.
    void zeigen(std::chrono::milliseconds dauer = std::chrono::seconds(3));

private:
    void bild_laden();

    Global& m_g;
    QLabel *m_bild, *lbl_version;
    QCheckBox* chk_start;
    QPushButton* cmd_start;
};

}  // namespace jorv
