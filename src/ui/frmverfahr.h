// The dialog for a new project: number, name, work directory, mode.
#pragma once

#include <QDialog>
#include <array>

#include "modell/Global.h"
#include "plattform/oberflaeche.h"

class QLineEdit;
class QRadioButton;

namespace jorv {

class frmverfahr final : public QDialog {
public:
    /// OK hands the choice to `ok` and closes when that has taken it.
    frmverfahr(Global& g, const Verfahrenswahl& vorschlag, std::string_view nummer, Verfahrensanlage ok,
               QWidget* eltern);

protected:
    void accept() override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void aufbauen();
    void verzeichnis_waehlen();
    void bemaengeln(QLineEdit& feld);
    Verfahrenswahl wahl() const;

    Global& m_g;
    Verfahrensanlage m_ok;
    QLineEdit *txt_nummer, *txt_name, *txt_arbeit;
    QPushButton* cmd_arbeit;
    std::array<QRadioButton*, 4> opt_modus{};
};

}  // namespace jorv
