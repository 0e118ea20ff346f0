// The settings of all rovers: each button carries one value over to every rover at once.
#pragma once

#include <QDialog>

#include "planung/einstellungen_alle.h"

class QGridLayout;
class QPushButton;

namespace jorv {

class Zahlenbox;

class frmEinstellungenAlle final : public QDialog {
public:
    frmEinstellungenAlle(Global& g, EinstellungenAlle einstellungen, QWidget* eltern);

    /// Opens it; without a rover the message has been shown and nothing opens.
    static void zeigen(Global& g, std::string_view gewaehlter_rover, QWidget* eltern);

private:
    void felder_anlegen(QGridLayout& raster);
    QPushButton* knopf(Alleknopf wert, const char* name, const QString& was, Zahlenbox* box = nullptr);
    void geaendert(Alleknopf wert, QPushButton& knopf);

    Global& m_g;
    EinstellungenAlle m_e;
};

}  // namespace jorv
