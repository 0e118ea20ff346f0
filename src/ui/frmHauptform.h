// The main window: menu bar, toolbar, tree on the left, map on the right, status bar. It binds what the program's
// routines do to what the user does; it decides nothing of its own.
#pragma once

#include <functional>
#include <memory>

#include "daten/datendichte.h"
#include "ui/Hauptfenster.h"
#include "ui/Menueleiste.h"

class QLabel;
class QSplitter;
class QToolBar;

namespace jorv {

class Fensterschirm;
struct Baumfolge;

class frmHauptform final : public Hauptfenster {
public:
    /// Both outlive the window. The window becomes the screen's main window.
    frmHauptform(Global& g, Fensterschirm& schirm);
    ~frmHauptform() override;

    /// What the first showing does, once: geometry, tree, catalogue, news, map, menus. Called behind show().
    void erste_aktivierung();

    Global& g() override { return m_g; }
    Fortschrittsfeld& fortschritt() override { return *m_fortschritt; }
    Kartenansicht& karte() override { return *pic_grafik; }
    Baumansicht& baum() override { return *tre_punkte; }
    /// The action of a menu entry; nullptr when there is none of that name.
    QAction* eintrag(const QString& name) const { return m_menue.eintrag(name); }

    void baum_erneuern() override;
    void karte_zeichnen(bool neu) override;
    void menue_erneuern() override;
    void titel_setzen(const QString& titel) override;

    void karte_in_ablage() override;
    void karte_speichern() override;
    void leiste_umschalten() override;
    void zeiten_zeigen(int eintrag) override;
    /// A command of the context menu of a node.
    void baumbefehl(const std::string& name, const std::string& knoten, const std::string& eltern);

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void moveEvent(QMoveEvent* ereignis) override;

private:
    void leiste_anlegen();
    void leiste_fuellen();
    void baum_verbinden();
    void karte_verbinden();
    void befehl(const std::string& name);
    void ausfuehren(const std::function<void()>& tun);
    void baumfolge(const Baumfolge& folge, const std::string& knoten);
    void kontextmenue_zeigen(const std::string& knoten, const std::string& eltern, QPoint ort);
    void stationsmenue_zeigen(int station, QPoint ort);
    void logo_erneuern();
    void lage_wiederherstellen();
    void lage_merken();
    void statuszeile_erneuern();

    Global& m_g;
    Fensterschirm& m_schirm;
    Menueleiste m_menue;
    Fortschrittsfeld* m_fortschritt;
    Baumansicht* tre_punkte;
    Kartenansicht* pic_grafik;
    QSplitter* m_teiler;
    QToolBar* m_leiste;
    QLabel *m_verfahren, *m_zaehler, *m_zeiger;
    Datendichten m_dichten;
    std::string m_logo_datei;
    bool m_aktiviert = false, m_befehl_laeuft = false;
};

}  // namespace jorv
