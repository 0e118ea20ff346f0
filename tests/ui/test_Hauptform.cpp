// The main window as a surveyor uses it: menus, tree, map, and the whole way from a new project to the report.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QMenuBar>
#include <QProgressBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <QWheelEvent>
#include <cmath>
#include <set>

#include "app/einstellungen.h"
#include "app/start.h"
#include "ganz/Beispielplatz.h"
#include "modell/Baum.h"
#include "planung/automatik.h"
#include "projekt/verfahren.h"
#include "ui/Baumansicht.h"
#include "ui/Betrachter.h"
#include "ui/Fensterprobe.h"
#include "ui/Fensterpruefung.h"
#include "ui/Kartenansicht.h"
#include "ui/Menuebefehle.h"

namespace jorv {

using namespace hilfen;
using testing::HasSubstr;

namespace {

std::string menuetext(const std::string& text)
{
    return anzeige(text).remove(QLatin1Char('&')).trimmed().toStdString();
}

// The example's network with the program's window over it, nothing open yet.
struct Beispielfenster : Arbeitsplatz {
    Beispielfenster() : g(schirm, uhr, Dateisystem()), form(g, schirm)
    {
        // The interpreter of the batches is looked for beside the program, then in PATH.
        qputenv("PATH", QByteArray(JORV_PROGRAMME ":") + qgetenv("PATH"));
        for (const auto& eintrag : fs::directory_iterator(JORV_PROGRAMME))
            if (eintrag.path().extension() == ".bmp")
                fs::create_symlink(eintrag.path(), host("programme") / eintrag.path().filename());
        std::string meldung;
        EXPECT_TRUE(simulator::beispiel_schreiben(host("beispiel"), meldung)) << meldung;
        EXPECT_EQ(jorv({"katalog", "machen", "beispiel/katalog.txt"}).status, 0);
        EXPECT_EQ(jorv({"grenzen", "machen", "beispiel/grenzen.txt"}).status, 0);
        neu_starten();
    }
    void neu_starten()
    {
        EXPECT_FALSE(ist_fehler(start(g, {dos("JorvPlus.INI"), {}})));
        g.Hinweis.assign(1, '0');
        g.Hinweis1.assign(1, '0');
        form.show();
        form.erste_aktivierung();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
    }
    std::string dos(std::string_view name) const { return Laufwerke().dos(host(name)).value(); }
    void befehl(const char* name)
    {
        QAction* aktion = form.eintrag(QLatin1String(name));
        ASSERT_TRUE(aktion && aktion->isEnabled()) << name;
        aktion->trigger();
    }
    QPoint auf_karte(double Rechtswert, double Hochwert)
    {
        const auto ort = form.karte().karte().ansicht().bild({Rechtswert, Hochwert});
        return {static_cast<int>(std::lround(ort.x)), static_cast<int>(std::lround(ort.y))};
    }
    // A click on a project station, as the hand does it: move, press, release.
    void station_klicken(const std::string& pkz)
    {
        for (int i = 1; i <= g.OBS_S.anzahl(); ++i)
            if (g.OBS_S[i].Punktkennzeichen == pkz) {
                const QPoint ort = auf_karte(g.S_Punkt[i].Rechtswert, g.S_Punkt[i].Hochwert);
                QTest::mouseMove(&form.karte(), ort);
                QTest::mouseClick(&form.karte(), Qt::LeftButton, {}, ort);
                return;
            }
        ADD_FAILURE() << "no station " << pkz;
    }
    void neues_verfahren(const char* modus, const std::string& ordner)
    {
        Drehbuch buch;
        buch.im("frmverfahr", [&](QWidget& dialog) {
            klick(dialog, modus);
            teil<QLineEdit>(dialog, "txt_name").setText("Waldweg");
            teil<QLineEdit>(dialog, "txt_arbeit").setText(anzeige(dos(ordner)));
            klick(dialog, "cmd_ok");
        });
        befehl("m_datei_neu");
        EXPECT_EQ(g.Verfahrensname, "Waldweg");
        EXPECT_THAT(form.windowTitle().toStdString(), HasSubstr("Waldweg"));
    }
    // A folder with the files of these points, to be taken in as a whole.
    std::string auswahl(std::initializer_list<const char*> punkte) const
    {
        fs::create_directories(host("auswahl"));
        for (const std::string punkt : punkte)
            for (const char* art : {"1670.16o", "1670.16n"})
                fs::copy_file(host("beispiel/rinex/" + punkt + art), host("auswahl/" + punkt + art),
                              fs::copy_options::overwrite_existing);
        return "auswahl";
    }
    void figur_klicken(const std::vector<std::string>& ecken)
    {
        for (const auto& pkz : ecken) station_klicken(pkz);
        EXPECT_FALSE(g.geo_fertig);
        station_klicken(ecken.front());
        EXPECT_TRUE(g.geo_fertig) << ecken.front();
    }
    void dateien_aufnehmen(const char* befehlsname, const std::string& ordner)
    {
        g.Datei_Verzeichnis = dos(ordner);
        Drehbuch buch;
        buch.im("Dateien", [](QWidget& dialog) {
            klick(dialog, "cmd_alle");
            klick(dialog, "Command1");
            klick(dialog, "Command2");
        });
        befehl(befehlsname);
    }

    Fensterschirm schirm;
    Systemuhr uhr;
    Global g;
    frmHauptform form;
};

std::vector<std::string> knotentexte(const Global& g, std::string_view schluessel)
{
    std::vector<std::string> texte;
    if (const auto* gruppe = g.baum.finden(schluessel))
        for (const auto& k : gruppe->Kinder) texte.push_back(k.Text);
    return texte;
}

}  // namespace

TEST(Hauptform, MenueleisteZeigtJedenEintragMitZustandUndEigenerTaste)
{
    for (const char* modus : {"", "1", "2", "3", "4"}) {
        Fensterprobe p(modus);
        if (!*modus) p.ohne_verfahren();
        p.g.menue.m_datei_sichern = p.g.menue.m_datei_loeschen = *modus != '\0';
        p.g.Gesamtbatch.assign(1, 'J');
        EXPECT_TRUE(p.g.tage.anfuegen(92));
        p.form.menue_erneuern();
        std::set<std::string> ohne_text;
        for (const auto& e : menue_setzen(p.g)) {
            const QAction* aktion = p.form.eintrag(anzeige(e.Name));
            ASSERT_TRUE(aktion) << e.Name;
            EXPECT_EQ(aktion->isVisible(), e.sichtbar) << e.Name << " in " << modus;
            if (e.sichtbar) {
                EXPECT_EQ(menuetext(eingabe(aktion->text())), menuetext(e.Text));
            }
            if (!aktion->menu()) {
                EXPECT_EQ(aktion->isEnabled(), e.an && menuebefehl_vorhanden(e.Name)) << e.Name;
            }
            if (aktion->isCheckable()) {
                EXPECT_EQ(aktion->isChecked(), e.Haken) << e.Name;
            }
        }
        std::set<QKeySequence> kuerzel;
        for (const QAction* gruppe : p.form.menuBar()->actions()) {
            std::set<QChar> tasten;
            for (const QAction* aktion : gruppe->menu()->actions()) {
                if (aktion->isSeparator() || !aktion->isVisible()) continue;
                const QChar taste = zugriffstaste(aktion->text());
                EXPECT_TRUE(tasten.insert(taste).second) << aktion->text().toStdString() << " in " << modus;
                if (!aktion->shortcut().isEmpty()) {
                    EXPECT_TRUE(kuerzel.insert(aktion->shortcut()).second) << aktion->text().toStdString();
                }
            }
        }
    }
}

TEST(Hauptform, BaumBehaeltAuswahlStelleUndOffeneGruppen)
{
    Fensterprobe p;
    for (int i = 100; i < 300; ++i) {
        OBS obs;
        obs.Dateiname = verkettet("5", i, "092a.05o");
        obs.Punktkennzeichen = verkettet("5", i);
        ROVER_TOREL_Satz torel;
        torel.Status = static_cast<std::uint8_t>(i % 3 + 1);
        torel.Grund = 1;
        ROVER_Settings_Satz einstellung;
        einstellung.ROVER_Dateiname = obs.Dateiname;
        ASSERT_TRUE(p.g.OBS_R.anfuegen(obs) && p.g.ROVER_TOREL.anfuegen(torel) &&
                    p.g.ROVER_Settings.anfuegen(einstellung));
    }
    p.form.show();
    baum_aufbauen(p.g);
    auto& baum = p.form.baum();
    QTreeWidgetItem* rover = baum.topLevelItem(0);
    EXPECT_EQ(rover->text(1), "200");
    EXPECT_FALSE(rover->child(0)->toolTip(0).isEmpty());
    baum.setCurrentItem(rover->child(150));
    baum.scrollToItem(rover->child(150), QAbstractItemView::PositionAtCenter);
    const int stelle = baum.verticalScrollBar()->value();
    EXPECT_GT(stelle, 0);
    baum.topLevelItem(1)->setExpanded(false);
    EXPECT_EQ(p.g.KNOTEN[2], "0");
    baum_aufbauen(p.g);
    ASSERT_TRUE(baum.currentItem());
    EXPECT_EQ(baum.currentItem()->text(0), "5250092a.05o");
    EXPECT_EQ(baum.verticalScrollBar()->value(), stelle);
    EXPECT_FALSE(baum.topLevelItem(1)->isExpanded());
}

TEST(Hauptform, KarteZoomtUmDenZeigerUndFolgtMausUndTastatur)
{
    Beispielfenster p;
    auto& karte = p.form.karte();
    const QPointF zeiger(200, 150);
    const auto ort = [&] { return karte.karte().ansicht().welt({zeiger.x(), zeiger.y()}); };
    const auto vorher = ort();
    const double massstab = karte.karte().ansicht().Faktor();
    QWheelEvent rad(zeiger, karte.mapToGlobal(zeiger), {}, {0, 240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
    QApplication::sendEvent(&karte, &rad);
    EXPECT_NEAR(karte.karte().ansicht().Faktor() * 1.25 * 1.25, massstab, massstab * 1e-9);
    EXPECT_NEAR(ort().Rechtswert, vorher.Rechtswert, 0.001);
    EXPECT_NEAR(ort().Hochwert, vorher.Hochwert, 0.001);

    // The middle button drags the content along.
    QTest::mousePress(&karte, Qt::MiddleButton, {}, {100, 100});
    QTest::mouseMove(&karte, {140, 70});
    QTest::mouseRelease(&karte, Qt::MiddleButton, {}, {140, 70});
    const auto bild = karte.karte().ansicht().bild(vorher);
    EXPECT_NEAR(bild.x, zeiger.x() + 40, 0.5);
    EXPECT_NEAR(bild.y, zeiger.y() - 30, 0.5);
    EXPECT_THAT(p.form.statusBar()->findChildren<QLabel*>().last()->text().toStdString(), testing::StartsWith("R "));

    // A drawn box fills the picture, Escape drops one.
    const double vor_box = karte.karte().ansicht().Faktor();
    QTest::mousePress(&karte, Qt::LeftButton, {}, {100, 100});
    QTest::mouseMove(&karte, {200, 160});
    QTest::keyClick(&karte, Qt::Key_Escape);
    QTest::mouseRelease(&karte, Qt::LeftButton, {}, {200, 160});
    EXPECT_DOUBLE_EQ(karte.karte().ansicht().Faktor(), vor_box);
    QTest::mousePress(&karte, Qt::LeftButton, {}, {100, 100});
    QTest::mouseMove(&karte, {200, 160});
    QTest::mouseRelease(&karte, Qt::LeftButton, {}, {200, 160});
    EXPECT_LT(karte.karte().ansicht().Faktor(), vor_box / 3);
    EXPECT_TRUE(p.form.eintrag("m_grafik_verkleinern")->isEnabled());

    QTest::keyClick(&karte, Qt::Key_Minus);
    p.befehl("m_grafik_orginal");
    EXPECT_NEAR(karte.karte().ansicht().Faktor(), massstab, massstab * 1e-9);
    // A resize keeps scale and middle.
    const auto mitte = karte.karte().ansicht().fenster().mitte();
    p.form.resize(p.form.width() - 180, p.form.height() - 120);
    QCoreApplication::processEvents();
    EXPECT_NEAR(karte.karte().ansicht().fenster().mitte().Rechtswert, mitte.Rechtswert, 1);
    EXPECT_NEAR(karte.karte().ansicht().Faktor(), massstab, massstab * 1e-9);
}

TEST(Hauptform, DerGanzeWegMitDerMaus)
{
    Beispielfenster p;
    p.neues_verfahren("opt_modus1", "verfahren");
    p.dateien_aufnehmen("m_datei_rinex", "beispiel/rinex");
    p.dateien_aufnehmen("m_datei_antenne", "beispiel/antennen");
    EXPECT_EQ(p.g.OBS_R.anzahl(), 8);
    EXPECT_EQ(p.g.OBS_S.anzahl(), 6);
    EXPECT_FALSE(p.form.eintrag("m_wasoft_run_n")->isEnabled());

    p.befehl("m_grafik_orginal");
    std::istringstream figuren(lesen(p.host("beispiel/figuren.txt")));
    for (std::string zeile; std::getline(figuren, zeile);) {
        std::istringstream worte(zeile);
        p.figur_klicken({std::istream_iterator<std::string>(worte), {}});
    }
    EXPECT_EQ(p.g.berechnete_ROVER, 6);
    EXPECT_TRUE(p.form.eintrag("m_wasoft_run_n")->isEnabled());

    // The window lives while the children work: its own timer goes on, and no other command can be given.
    int schlaege = 0;
    std::set<std::string> texte;
    QTimer puls;
    QObject::connect(&puls, &QTimer::timeout, [&] {
        const auto* feld = p.form.findChild<QWidget*>("pic_fortschritt");
        if (!feld->isVisible()) return;
        ++schlaege;
        texte.insert(feld->findChild<QLabel*>("lbl_fortschritt")->text().toStdString());
        QTest::keyClick(&p.form, Qt::Key_N, Qt::ControlModifier);
        EXPECT_FALSE(QApplication::activeModalWidget());
    });
    puls.start(10);
    p.befehl("m_wasoft_run_n");
    puls.stop();
    EXPECT_GT(schlaege, 6);
    EXPECT_TRUE(texte.contains("Auswertung (6/6) - bitte warten"));
    EXPECT_EQ(knotentexte(p.g, "E_Datei").size(), 6u);
    EXPECT_THAT(lesen(p.host("verfahren/001.KRZ")), HasSubstr("Anzahl L1 fixed:    6"));

    p.befehl("m_protkoll_kurz");
    bool bericht = false;
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (auto* betrachter = dynamic_cast<Betrachter*>(fenster); betrachter && betrachter->isVisible())
            bericht = betrachter->windowTitle().contains("001.KRZ");
    EXPECT_TRUE(bericht);

    p.form.setGeometry(30, 40, 700, 640);
    p.form.close();
    for (QWidget* fenster : QApplication::topLevelWidgets()) EXPECT_FALSE(fenster->isVisible());
    Fensterschirm schirm;
    Global g(schirm, p.uhr, Dateisystem());
    ASSERT_FALSE(ist_fehler(start(g, {p.dos("JorvPlus.INI"), {}})));
    frmHauptform form(g, schirm);
    form.show();
    form.erste_aktivierung();
    EXPECT_EQ(form.size(), QSize(700, 640));
    EXPECT_EQ(g.Liste_Name[0], "Waldweg");
    form.eintrag("m_dateien_verfahren(1)")->trigger();
    EXPECT_EQ(g.Verfahrensname, "Waldweg");
    EXPECT_EQ(knotentexte(g, "E_Datei").size(), 6u);
}

namespace {

// A project made and opened beforehand, with rovers ready for a run.
struct Bereites_Verfahren : Beispielfenster {
    Bereites_Verfahren()
    {
        jorv({"neu", "Waldweg", "--modus", "E", "--verzeichnis", "verfahren"});
        jorv({"antennen", "1", "beispiel/antennen/antennen.atx"});
        jorv({"rinex", "1", "beispiel/rinex"});
        jorv({"figur", "1", "0590", "0591", "0593"});
        EXPECT_FALSE(ist_fehler(ini_lesen_START(g)));
        EXPECT_FALSE(ist_fehler(Verfahren_oeffnen(g, "Waldweg")));
        EXPECT_GT(g.berechnete_ROVER, 1);
    }
};

}  // namespace

TEST(Hauptform, DerGanzeWegInModusS)
{
    Beispielfenster p;
    p.neues_verfahren("opt_modus2", "verfahren");
    p.dateien_aufnehmen("m_datei_rinex", p.auswahl({"5501", "5504", "0590", "0591", "0593"}));
    p.dateien_aufnehmen("m_datei_antenne", "beispiel/antennen");
    p.befehl("m_grafik_orginal");
    // The first corner by the keyboard: from station to station, Enter clicks.
    auto& karte = p.form.karte();
    QTest::keyClick(&karte, Qt::Key_PageUp);
    QTest::keyClick(&karte, Qt::Key_PageDown);
    QTest::keyClick(&karte, Qt::Key_Return);
    for (const char* pkz : {"0591", "0593", "0590"}) p.station_klicken(pkz);
    EXPECT_EQ(p.g.GEO_Punkt.anzahl(), 1);
    EXPECT_TRUE(p.g.geo_fertig);
    p.befehl("m_wasoft_run_n");
    EXPECT_EQ(knotentexte(p.g, "E_Datei").size(), 2u);
}

TEST(Hauptform, DerGanzeWegInModusF)
{
    Beispielfenster p;
    const std::string rover = p.auswahl({"5501", "5504", "0590", "0591", "0593"});
    for (const std::vector<std::string>& worte :
         {std::vector<std::string>{"neu", "Quelle", "--modus", "E", "--verzeichnis", "quelle"},
          {"rinex", "1", rover},
          {"antennen", "1", "beispiel/antennen/antennen.atx"},
          {"figur", "1", "0590", "0591", "0593"},
          {"zeitfenster", "1", "an"},
          {"auswerten", "1"}})
        EXPECT_EQ(p.jorv(worte).status, 0) << worte[0];
    EXPECT_FALSE(ist_fehler(ini_lesen_START(p.g)));
    fs::remove_all(p.host(rover));
    p.neues_verfahren("opt_modus3", "verfahren");
    p.dateien_aufnehmen("m_datei_rinex", p.auswahl({"5501", "5504"}));
    p.dateien_aufnehmen("m_datei_rinex", "quelle/jorv_out/rin_vrs");
    p.dateien_aufnehmen("m_datei_antenne", "beispiel/antennen");
    EXPECT_EQ(p.g.berechnete_ROVER, 2);
    p.befehl("m_wasoft_run_n");
    EXPECT_EQ(knotentexte(p.g, "E_Datei").size(), 2u);
}

TEST(Hauptform, DerGanzeWegInModusB)
{
    Beispielfenster p;
    p.neues_verfahren("opt_modus4", "verfahren");
    // 5502 and 5505 overlap 5501, which begins at nine, by more than half an hour.
    p.dateien_aufnehmen("m_datei_rinex", p.auswahl({"5501", "5502", "5505"}));
    p.dateien_aufnehmen("m_datei_antenne", "beispiel/antennen");
    {
        Drehbuch buch;
        buch.im("frmBasisDialog", [](QWidget& dialog) {
            for (const int nach : {1, 2}) {
                teil<QComboBox>(dialog, "cbo_nach").setCurrentIndex(nach);
                klick(dialog, "cmd_definieren");
            }
            klick(dialog, "Ende");
        });
        p.befehl("m_datei_basis_dialog");
    }
    EXPECT_EQ(knotentexte(p.g, "B_Datei").size(), 2u);
    p.befehl("m_wasoft_run_n");
    EXPECT_EQ(knotentexte(p.g, "BB_Datei").size(), 2u);
    EXPECT_TRUE(fs::exists(p.host("verfahren/jorv_out/export/001.SIG")));
}

TEST(Hauptform, AbbruchEndetNachDemLaufendenROVER)
{
    Bereites_Verfahren p;
    Drehbuch buch;
    buch.meldung();
    QTimer::singleShot(50, [&] { klick(p.form, "cmd_abbrechen"); });
    p.befehl("m_wasoft_run_n");
    EXPECT_EQ(knotentexte(p.g, "E_Datei").size(), 1u);
    EXPECT_THAT(buch.meldungen.at(0), HasSubstr("Es wurden nur 1 von"));
}

// On a machine that has something else to do too, the best of three runs counts.
TEST(Lang_Hauptform, KeinStillstandUeberHundertMillisekundenWaehrendEinKindRechnet)
{
    double beste = 1e9;
    for (int versuch = 0; versuch < 3 && beste >= 100; ++versuch) {
        Bereites_Verfahren p;
        double laengste = 0;
        QElapsedTimer uhr;
        QTimer puls;
        QObject::connect(&puls, &QTimer::timeout, [&] {
            const bool laeuft = p.form.findChild<QWidget*>("pic_fortschritt")->isVisible();
            if (laeuft && uhr.isValid()) laengste = std::max(laengste, static_cast<double>(uhr.elapsed()));
            uhr.start();
        });
        puls.start(5);
        p.befehl("m_wasoft_run_n");
        EXPECT_GT(laengste, 0);
        std::printf("longest standstill %.0f ms\n", laengste);
        beste = std::min(beste, laengste);
    }
    EXPECT_LT(beste, 100);
}

}  // namespace jorv
