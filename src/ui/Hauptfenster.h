// What screen and menu commands may ask of the main window, without knowing how it is built.
#pragma once

#include <QMainWindow>
#include <string>

#include "modell/Global.h"

namespace jorv {

class Baumansicht;
class Fortschrittsfeld;
class Kartenansicht;

class Hauptfenster : public QMainWindow {
public:
    virtual Global& g() = 0;
    virtual Baumansicht& baum() = 0;
    virtual Fortschrittsfeld& fortschritt() = 0;
    virtual Kartenansicht& karte() = 0;

    // The screen's wishes.
    virtual void baum_erneuern() = 0;
    virtual void karte_zeichnen(bool neu) = 0;
    virtual void menue_erneuern() = 0;
    virtual void titel_setzen(const QString& titel) = 0;

    // Commands that only a window has.
    virtual void karte_in_ablage() = 0;
    virtual void karte_speichern() = 0;
    virtual void leiste_umschalten() = 0;
    /// The time overview of entry `eintrag` of m_grafik_zeiten, 0 for the whole project.
    virtual void zeiten_zeigen(int eintrag) = 0;

    /// The file that m_protkoll_editieren opened last.
    std::string editierte_datei;
};

}  // namespace jorv
