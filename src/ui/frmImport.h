// Taking a project file into the list: what it says of itself, the verdict on each value, buttons that mend a bad one.
#pragma once

#include <QDialog>
#include <array>

#include "projekt/import_felder.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace jorv {

class frmImport final : public QDialog {
public:
    frmImport(Global& g, Importdialog import, QWidget* eltern);

protected:
    void accept() override;

private:
    void felder_anlegen(QGridLayout& raster);
    void urteil_anlegen(QGridLayout& raster, int zeile, Importstelle stelle);
    void zeigen();

    Global& m_g;
    Importdialog m_import;
    std::array<QLineEdit*, importfelder> m_felder{};
    std::array<QLineEdit*, importstellen> m_urteile{};
    std::array<QPushButton*, importstellen> m_knoepfe{};  // null where nothing can be mended
    QLabel* lbl_modus;
    QPushButton* cmd_importieren;
};

}  // namespace jorv
