#include "ui/frmHauptform.h"

#include <QBuffer>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>

#include "app/bilddatei.h"
#include "app/start.h"
#include "auswertung/baumbefehle.h"
#include "daten/katalog.h"
#include "karte/svg.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "planung/einstellungen_rover.h"
#include "plattform/zahl.h"
#include "projekt/titel.h"
#include "projekt/verfahrensliste.h"
#include "ui/Baumansicht.h"
#include "ui/Bilder.h"
#include "ui/Fensterschirm.h"
#include "ui/Fortschrittsfeld.h"
#include "ui/Kartenansicht.h"
#include "ui/Menuebefehle.h"
#include "ui/frmEinstellungen.h"
#include "ui/frmErstStart.h"
#include "ui/frmWarum.h"
#include "ui/frmgesamt.h"
#include "ui/frmhandarbeit.h"
#include "ui/frmhinweis.h"
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

// "R 572341 H 5712004" with thin spaces between groups of three digits.
QString zeigertext_gruppiert(const QString& text)
{
    QStringList worte = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (auto& wort : worte)
        for (qsizetype stelle = wort.size() - 3; stelle > 0 && wort[0].isDigit(); stelle -= 3)
            wort.insert(stelle, QChar(0x2009));
    return worte.join(QLatin1Char(' '));
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
    pic_grafik = new Kartenansicht(g, m_teiler);
    m_teiler->setChildrenCollapsible(false);
    m_teiler->setStretchFactor(1, 1);
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
    karte_verbinden();
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
    jorv::erste_aktivierung(m_g, [this] { frmErstStart(m_g, this).exec(); });
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
    tre_punkte->bei_klick = [this](const std::string& knoten, const std::string& eltern) {
        ausfuehren([&] { baumfolge(baum_klick(m_g, knoten, eltern), knoten); });
    };
    tre_punkte->bei_einstellungen = [this](const std::string& knoten, const std::string& eltern) {
        baumbefehl("mnu_tree_settings", knoten, eltern);
    };
    tre_punkte->bei_kontext = [this](const std::string& knoten, const std::string& eltern, QPoint ort) {
        kontextmenue_zeigen(knoten, eltern, ort);
    };
}

void frmHauptform::karte_verbinden()
{
    pic_grafik->bei_zeiger = [this](const std::string& text) {
        m_zeiger->setText(zeigertext_gruppiert(anzeige(text)));
    };
    pic_grafik->bei_station = [this](int station, QPoint ort) { stationsmenue_zeigen(station, ort); };
}

void frmHauptform::kontextmenue_zeigen(const std::string& knoten, const std::string& eltern, QPoint ort)
{
    QMenu menue;
    const auto eintraege = kontextmenue(m_g, knoten, eltern);
    QStringList texte;
    for (const auto& e : eintraege) texte << anzeige(e.Text);
    texte = eindeutige_tasten(texte);
    for (const auto& e : eintraege) {
        QAction* aktion = menue.addAction(texte.takeFirst());
        aktion->setObjectName(anzeige(e.Name));
        aktion->setEnabled(e.an);
        aktion->setCheckable(e.Name == "mnu_tree_stop");
        aktion->setChecked(e.Haken);
    }
    const QAction* gewaehlt = menue.exec(ort);
    if (gewaehlt) baumbefehl(eingabe(gewaehlt->objectName()), knoten, eltern);
}

void frmHauptform::baumbefehl(const std::string& name, const std::string& knoten, const std::string& eltern)
{
    ausfuehren([&] { baumfolge(baum_befehl(m_g, name, knoten, eltern), knoten); });
}

void frmHauptform::baumfolge(const Baumfolge& folge, const std::string& knoten)
{
    if (folge.frmhinweis) frmhinweis::zeigen(m_g, this);
    if (folge.dialog == Baumdialog::einstellungen) frmEinstellungen::zeigen(m_g, knoten, this);
    if (folge.dialog == Baumdialog::warum) frmWarum::zeigen(m_g, knoten, this);
    if (folge.dialog == Baumdialog::handarbeit) frmhandarbeit::zeigen(m_g, m_dichten, knoten, this);
    if (folge.Punkte.empty()) return;
    pic_grafik->karte().basislinie_markieren(knoten);
    pic_grafik->erneuern();
}

void frmHauptform::zeiten_zeigen(int eintrag)
{
    frmgesamt::zeigen(m_g, m_dichten, eintrag, this);
}

void frmHauptform::stationsmenue_zeigen(int station, QPoint ort)
{
    QMenu menue;
    for (const auto& e : Karte::mnu_hauptgrafik()) menue.addAction(anzeige(e.Text));
    if (menue.exec(ort)) ausfuehren([&] { static_cast<void>(torel_punkt_entfernen(m_g, station)); });
}

void frmHauptform::karte_in_ablage()
{
    QApplication::clipboard()->clear();
    QApplication::clipboard()->setImage(pic_grafik->bild(devicePixelRatioF()));
}

void frmHauptform::karte_speichern()
{
    QString filter;
    QString pfad = QFileDialog::getSaveFileName(this, QStringLiteral("Karte als Bild speichern"), {},
                                                QStringLiteral("PNG-Bild (*.png);;SVG-Zeichnung (*.svg)"), &filter);
    if (pfad.isEmpty()) return;
    if (QFileInfo(pfad).suffix().isEmpty())
        pfad += filter.contains(QLatin1String("svg")) ? QStringLiteral(".svg") : QStringLiteral(".png");
    QByteArray bytes;
    if (pfad.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        bytes = QByteArray::fromStdString(svg(pic_grafik->karte().bild(), pic_grafik->width(), pic_grafik->height()));
    } else {
        QBuffer puffer(&bytes);
        puffer.open(QIODevice::WriteOnly);
        pic_grafik->bild(2).save(&puffer, "PNG");
    }
    static_cast<void>(Bild_sichern(m_g, pfad.toStdU16String(), bytes.toStdString()));
}

void frmHauptform::leiste_umschalten()
{
    m_leiste->setVisible(!m_leiste->isVisible());
    m_g.Fenster_Werkzeugleiste = m_leiste->isVisible() ? "1" : "0";
}

// A command that is still at work can't be entered a second time from a nested event loop.
void frmHauptform::ausfuehren(const std::function<void()>& tun)
{
    if (m_befehl_laeuft) return;
    m_befehl_laeuft = true;
    tun();
    m_befehl_laeuft = false;
    menue_erneuern();
}

void frmHauptform::befehl(const std::string& name)
{
    ausfuehren([&] { menuebefehl_ausfuehren(*this, name); });
}

void frmHauptform::baum_erneuern()
{
    tre_punkte->zeigen(m_g, [this](std::string_view, std::string_view knoten) { return baumhinweis(m_g, knoten); });
    menue_erneuern();  // what can be run hangs on the tree
}

void frmHauptform::karte_zeichnen(bool neu)
{
    pic_grafik->grafik_zeichnen(neu);
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
    logo_erneuern();
    statuszeile_erneuern();
}

// The picture changes with the title; a missing one is told once a change, not at every call.
void frmHauptform::logo_erneuern()
{
    const std::string gesucht = Logo_Datei(m_g);
    if (gesucht == m_logo_datei) return;
    m_logo_datei = gesucht;
    const std::string pfad = Logo_laden(m_g);
    QPixmap logo;
    if (!pfad.empty()) logo.load(QString::fromStdString(m_g.dateien.host(pfad).string()));
    pic_grafik->logo_setzen(logo);
}

void frmHauptform::statuszeile_erneuern()
{
    pic_grafik->hinweis_setzen(m_g.Verfahren_offen() ? QString()
                                                     : QStringLiteral("Neues Verfahren anlegen: Strg+N  ·  "
                                                                      "Verfahren öffnen: Strg+O"));
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
    m_g.Fenster_Baumbreite = verkettet(m_teiler->sizes().value(0));
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
    const int baum = std::clamp(ganz_streng(m_g.Fenster_Baumbreite).value_or(300), 120, 900);
    m_teiler->setSizes({baum, std::max(1, width() - baum)});
    m_leiste->setVisible(m_g.Fenster_Werkzeugleiste != "0");
    if (m_g.Form_zustand != zustand_normal) {
        setWindowState(m_g.Form_zustand == zustand_gross ? Qt::WindowMaximized : Qt::WindowMinimized);
        return;
    }
    const QRect frei = screen()->availableGeometry();
    const int breite = std::min(std::max<int>(m_g.Form_width, 640), frei.width());
    const int hoehe = std::min(std::max<int>(m_g.Form_height, 480), frei.height());
    // Taken before the new size stores the present place.
    const QPoint ort(std::clamp<int>(m_g.Form_left, frei.left(), frei.right() + 1 - breite),
                     std::clamp<int>(m_g.Form_top, frei.top(), frei.bottom() + 1 - hoehe));
    resize(breite, hoehe);
    move(ort);
}

void frmHauptform::resizeEvent(QResizeEvent* ereignis)
{
    Hauptfenster::resizeEvent(ereignis);
    m_fortschritt->ausrichten();
    lage_merken();
}

void frmHauptform::moveEvent(QMoveEvent* ereignis)
{
    Hauptfenster::moveEvent(ereignis);
    lage_merken();
}

}  // namespace jorv
