// The notice about the assignment of stations, shown before the first dialog of a rover.
#pragma once

#include <QDialog>

#include "modell/Global.h"

class QCheckBox;

namespace jorv {

class frmhinweis final : public QDialog {
public:
    frmhinweis(Global& g, QWidget* eltern);

    /// Shows the notice while the user wants to see it.
    static void zeigen(Global& g, QWidget* eltern);

protected:
    void accept() override;

private:
    Global& m_g;
    QCheckBox* chk_hinweis;
};

}  // namespace jorv
