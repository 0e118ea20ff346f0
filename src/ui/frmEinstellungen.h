// The settings of one rover, and what its traffic light means.
#pragma once

#include <QDialog>
#include <vector>

#include "planung/einstellungen_rover.h"

class QGridLayout;

namespace jorv {

class Zahlenbox;

class frmEinstellungen final : public QDialog {
public:
    /// The dialog of these settings; OK takes them over.
    frmEinstellungen(Global& g, Rovereinstellungen einstellungen, QWidget* eltern);

    /// Opens it for a rover of the project; nothing happens when it has no settings.
    static void zeigen(Global& g, std::string_view rover, QWidget* eltern);

protected:
    void accept() override;

private:
    void felder_anlegen(QGridLayout& raster);
    QWidget* ampel();

    Global& m_g;
    Rovereinstellungen m_e;
    std::vector<Zahlenbox*> m_boxen;
};

}  // namespace jorv
