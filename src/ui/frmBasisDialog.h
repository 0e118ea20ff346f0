// Defining baselines: two lists of the same points, a sign that shows how the chosen pair stands, and the button.
#pragma once

#include <QDialog>

#include "planung/basisdialog.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace jorv {

class Basiszeichenbild;

class frmBasisDialog final : public QDialog {
public:
    frmBasisDialog(Global& g, QWidget* eltern);
    ~frmBasisDialog() override;

private:
    QComboBox* liste(const char* name);
    void zeigen();

    Global& m_g;
    Basisdialog m_basis;
    QComboBox *cbo_von, *cbo_nach;
    Basiszeichenbild* m_zeichen;
    QLabel* lbl_zeichen;
    QPushButton* cmd_definieren;
};

}  // namespace jorv
