// The news window: what is new in this version, and whether to show it at the next start.
#pragma once

#include <QDialog>

#include "modell/Global.h"

class QCheckBox;

namespace jorv {

class frmErstStart final : public QDialog {
public:
    frmErstStart(Global& g, QWidget* eltern);

protected:
    void accept() override;

private:
    Global& m_g;
    QCheckBox* chk_hinweis;
};

}  // namespace jorv
