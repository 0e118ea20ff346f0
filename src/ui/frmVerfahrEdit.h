// The list of all projects: a grid sorted by a click on a column's header; the chosen project is opened.
#pragma once

#include <QDialog>
#include <string>

#include "projekt/verfahrenstabelle.h"

class QTableWidget;

namespace jorv {

class frmVerfahrEdit final : public QDialog {
public:
    frmVerfahrEdit(const Global& g, QWidget* eltern);

    /// The name of the project of the selected row; empty without one.
    std::string name() const;

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void fuellen();
    void sortieren(int spalte);
    void breite_anpassen(int spalte);
    void waehlen(std::string_view name);

    Verfahrenstabelle m_tabelle;
    QTableWidget* grd_verfahren;
};

}  // namespace jorv
