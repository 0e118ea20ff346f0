// Why a rover has its light: the decision of the assignment step by step, and the nearest way to green.
#pragma once

#include <QDialog>
#include <string>

#include "modell/Global.h"

namespace jorv {

class frmWarum final : public QDialog {
public:
    frmWarum(const Global& g, int rover, QWidget* eltern);

    /// For the rover of that file name; nothing happens when there is none.
    static void zeigen(const Global& g, const std::string& rover, QWidget* eltern);
};

}  // namespace jorv
