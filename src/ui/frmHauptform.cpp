#include "ui/frmHauptform.h"

#include <QCloseEvent>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>

#include "app/start.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "planung/einstellungen_rover.h"
#include "projekt/verfahrensliste.h"
#include "ui/Baumansicht.h"
#include "ui/Bilder.h"
#include "ui/Fensterschirm.h"
#include "ui/Fortschrittsfeld.h"
#include "ui/Menuebefehle.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

// The toolbar's commands; an empty name is a line.
constexpr const char* leistenbefehle[] = {"m_datei_neu",
                                          "m_datei_laden",
                                          "m_datei_sichern",
                                          "",
                                          "m_datei_rinex",
                                          "m_datei_antenne",
                                          "",
                                          "m_wasoft_run_n",
                                          "",
                                          "m_grafik_orginal",
                                          "m_grafik_verkleinern",
                                          "m_grafik_grenzen",
                                          "m_grafik_pkz",
                                          "",
                                          "m_grafik_zeiten",
                                          "m_protkoll_einsehen"};

constexpr const char *zustand_normal = "0", *zustand_gross = "2";

// The recent projects stand in the menu "Datei" in front of its last entry.
std::vector<Menueeintrag> mit_liste(const Global& g)
{
    auto menue = menue_setzen(g);
    const auto ende = std::find_if(menue.begin(), menue.end(), [](const auto& e) { return e.Name == "m_datei_ende"; });
    std::vector<Menueeintrag> liste;
    for (int n = 1; n <= g.Anzahl_Liste; ++n) {
        Menueeintrag e;
        e.Name = verkettet("m_dateien_verfahren(", n, ")");
        e.Gruppe = menue.front().Gruppe;
        e.Text = Liste_Eintrag(g, n);
        liste.push_back(std::move(e));
    }
    menue.insert(ende, liste.begin(), liste.end());
    return menue;
}

std::string baumhinweis(const Global& g, std::string_view knoten)
{
    const int rover = Index_Settings(g, knoten);
    if (rover == 0 || rover > g.ROVER_TOREL.anzahl()) return {};
    return ampel_bedeutung(g.ROVER_TOREL[rover].Status, g.ROVER_TOREL[rover].Grund);
}

QString tastenhinweis(const QAction* aktion)
{
    QString text = aktion->text().remove(QLatin1Char('&')).remove(QStringLiteral("..."));
    const QString taste = aktion->shortcut().toString(QKeySequence::NativeText);
    return taste.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, taste);
}

}  // namespace

frmHauptform::frmHauptform(Global& g, Fensterschirm& schirm)
    : m_g(g), m_schirm(schirm), m_menue(*menuBar(), [this](const std::string& name) { befehl(name); })
{
    setObjectName(QStringLiteral("frmHauptform"));
    setWindowIcon(programmbild());
    m_teiler = new QSplitter(Qt::Horizontal, this);
    tre_punkte = new Baumansicht(m_teiler);
    pic_grafik = new QWidget(m_teiler);
    pic_grafik->setObjectName(QStringLiteral("pic_grafik"));
    m_teiler->setChildrenCollapsible(false);
    m_teiler->setStretchFactor(1, 1);
    m_teiler->setSizes({300, 900});
    setCentralWidget(m_teiler);
    m_fortschritt = new Fortschrittsfeld(this);
    m_verfahren = new QLabel(this);
    m_zaehler = new QLabel(this);
    m_zeiger = new QLabel(this);
    statusBar()->addWidget(m_verfahren);
    statusBar()->addWidget(m_zaehler);
    statusBar()->addPermanentWidget(m_zeiger);
    leiste_anlegen();
    baum_verbinden();
    m_schirm.hauptform_setzen(this);
    resize(1280, 800);
}

frmHauptform::~frmHauptform()
{
    m_schirm.hauptform_setzen(nullptr);
}

void frmHauptform::erste_aktivierung()
{
    if (std::exchange(m_aktiviert, true)) return;
    lage_wiederherstellen();
    jorv::erste_aktivierung(m_g);
}

void frmHauptform::leiste_anlegen()
{
    m_leiste = addToolBar(QStringLiteral("Werkzeugleiste"));
    m_leiste->setObjectName(QStringLiteral("m_leiste"));
    m_leiste->setMovable(false);
    m_leiste->setIconSize(QSize(20, 20));
}

// The actions are there as soon as the menu bar was filled for the first time.
void frmHauptform::leiste_fuellen()
{
    if (!m_leiste->actions().isEmpty()) return;
    for (const char* name : leistenbefehle) {
        QAction* aktion = eintrag(QLatin1String(name));
        if (aktion)
            m_leiste->addAction(aktion);
        else
            m_leiste->addSeparator();
    }
}

void frmHauptform::baum_verbinden()
{
    tre_punkte->bei_klappen = [this](const std::string& schluessel, bool offen) {
        knoten_oeffnen(m_g, schluessel, offen);
    };
}

// A command that is still at work can't be entered a second time from a nested event loop.
void frmHauptform::befehl(const std::string& name)
{
    if (m_befehl_laeuft) return;
    m_befehl_laeuft = true;
    menuebefehl_ausfuehren(*this, name);
    m_befehl_laeuft = false;
    menue_erneuern();
}

void frmHauptform::baum_erneuern()
{
    tre_punkte->zeigen(m_g, [this](std::string_view, std::string_view knoten) { return baumhinweis(m_g, knoten); });
    statuszeile_erneuern();
}

void frmHauptform::karte_zeichnen(bool)
{
    pic_grafik->update();
}

void frmHauptform::menue_erneuern()
{
    auto menue = mit_liste(m_g);
    for (auto& e : menue) {
        const bool untermenue =
            std::any_of(menue.begin(), menue.end(), [&](const auto& k) { return k.Eltern == e.Name; });
        if (!untermenue && !menuebefehl_vorhanden(e.Name)) e.an = false;
    }
    m_menue.setzen(menue);
    leiste_fuellen();
    for (QAction* aktion : m_leiste->actions()) aktion->setToolTip(tastenhinweis(aktion));
    statuszeile_erneuern();
}

void frmHauptform::titel_setzen(const QString& titel)
{
    setWindowTitle(titel);
    statuszeile_erneuern();
}

void frmHauptform::statuszeile_erneuern()
{
    if (!m_g.Verfahren_offen()) {
        m_verfahren->setText(QStringLiteral("Kein Verfahren geöffnet"));
        m_zaehler->clear();
        return;
    }
    m_verfahren->setText(anzeige(verkettet("(", Modus_Buchstabe(m_g.Verfahrensmodus), ") ", m_g.Verfahrensname, " (",
                                           m_g.Verfahrensnummer, ")")));
    std::size_t berechnet = 0, hinweis = 0;
    for (const auto& gruppe : m_g.baum.Knoten)
        for (const auto& knoten : gruppe.Kinder) {
            berechnet += knoten.Bild == 11 || gruppe.Schluessel == "BB_Datei" ? 1u : 0u;
            hinweis += knoten.Bild == 2 || knoten.Bild == 3 ? 1u : 0u;
        }
    m_zaehler->setText(QStringLiteral("%1 bereit, %2 berechnet, %3 mit Hinweis")
                           .arg(m_g.berechnete_ROVER)
                           .arg(berechnet)
                           .arg(hinweis));
}

void frmHauptform::closeEvent(QCloseEvent* ereignis)
{
    if (m_befehl_laeuft && m_fortschritt->isVisible()) return ereignis->ignore();
    if (isMinimized() || isMaximized())
        m_g.Form_zustand = zustand_gross;
    else {
        m_g.Form_zustand = zustand_normal;
        lage_merken();
    }
    const auto fenster = QApplication::topLevelWidgets();
    for (auto f = fenster.rbegin(); f != fenster.rend(); ++f)
        if (*f != this && (*f)->isVisible()) (*f)->close();
    static_cast<void>(ende(m_g));
    ereignis->accept();
}

void frmHauptform::lage_merken()
{
    if (!m_aktiviert || !isVisible() || (windowState() & (Qt::WindowMinimized | Qt::WindowMaximized))) return;
    m_g.Form_left = x();
    m_g.Form_top = y();
    m_g.Form_width = width();
    m_g.Form_height = height();
}

// A stored place on a screen that is gone would leave the window out of sight.
void frmHauptform::lage_wiederherstellen()
{
    if (m_g.Form_zustand != zustand_normal) {
        setWindowState(m_g.Form_zustand == zustand_gross ? Qt::WindowMaximized : Qt::WindowMinimized);
        return;
    }
    const QRect frei = screen()->availableGeometry();
    const int breite = std::clamp<int>(m_g.Form_width, 640, frei.width());
    const int hoehe = std::clamp<int>(m_g.Form_height, 480, frei.height());
    resize(breite, hoehe);
    move(std::clamp<int>(m_g.Form_left, frei.left(), frei.right() + 1 - breite),
         std::clamp<int>(m_g.Form_top, frei.top(), frei.bottom() + 1 - hoehe));
}

void frmHauptform::resizeEvent(QResizeEvent* ereignis)
{
    QMainWindow::resizeEvent(ereignis);
    m_fortschritt->ausrichten();
    lage_merken();
}

void frmHauptform::moveEvent(QMoveEvent* ereignis)
{
    QMainWindow::moveEvent(ereignis);
    lage_merken();
}

}  // namespace jorv
