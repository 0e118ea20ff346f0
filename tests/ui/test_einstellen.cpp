// Settings, import and baselines in their windows, driven as a user does it.
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QToolButton>

#include "modell/Baum.h"
#include "planung/Beobachtungen.h"
#include "projekt/verfahren.h"
#include "ui/Baumansicht.h"
#include "ui/Fensterprobe.h"
#include "ui/Fensterpruefung.h"
#include "ui/Menuebefehle.h"

namespace jorv {

using namespace hilfen;

namespace {

constexpr const char *rover_1 = "5501001a.14o", *rover_2 = "5502001a.14o";

// Two rovers of different satellites.
struct Einstellprobe : Fensterprobe {
    explicit Einstellprobe(std::string_view modus = "1") : Fensterprobe(modus)
    {
        rover(g, beobachtung(rover_1, "10:00:00", "11:30:00"), 0, 0);
        rover(g, beobachtung(rover_2, "10:30:00", "12:00:00"), 0, 0);
        for (int i = 1; i <= 2; ++i) {
            ROVER_TOREL_Satz t;
            t.ROVER_Dateiname = g.OBS_R[i].Dateiname;
            t.Status = 1;
            EXPECT_TRUE(g.ROVER_TOREL.anfuegen(t));
            auto& s = g.ROVER_Settings[i];
            s.StartTime = g.OBS_R[i].Startzeit_GPS_Sekunde;
            s.EndTime = g.OBS_R[i].Endzeit_GPS_Sekunde;
            s.AnzahlDelSatellite = 2;
            s.DelSatelliteName[1] = "G09";
            s.DelSatelliteName[2] = i == 1 ? "R01" : "G02";
            s.DelSatellite[1] = s.DelSatellite[2] = 1;
        }
        g.ROVER_Settings[1].EpochRate = 0;
        g.menue.m_grund_EinstellungenAlle = true;
        baum_aufbauen(g);
        zeigen();
        g.Verfahren[1].LetztDatum = "01.01.2014";
    }
    void einstellungen(const std::string& rover) { form.baumbefehl("mnu_tree_settings", rover, "ROVER-Dateien"); }
    bool gestempelt() const { return g.Verfahren[1].LetztDatum == "01.12.2016 12:00:00"; }
};

std::string inhalt(const QWidget& fenster, const char* name)
{
    return teil(fenster, name).property("text").toString().toStdString();
}

void eintragen(const QWidget& fenster, const char* name, const char* text)
{
    auto& feld = teil<QLineEdit>(fenster, name);
    feld.setFocus();
    feld.selectAll();
    if (*text)
        tippen(text);
    else
        taste(Qt::Key_Backspace);
}

bool haken(const QWidget& fenster, const char* name)
{
    return teil<QAbstractButton>(fenster, name).isChecked();
}

// What the user does in a file dialog.
void datei_nehmen(QWidget& fenster, const fs::path& datei)
{
    auto& wahl = static_cast<QFileDialog&>(fenster);
    wahl.setDirectory(QString::fromStdString(datei.parent_path().string()));
    QTest::qWait(50);
    teil<QLineEdit>(fenster, "fileNameEdit").setText(QString::fromStdString(datei.filename().string()));
    QTest::keyClick(&teil(fenster, "fileNameEdit"), Qt::Key_Return);
}

}  // namespace

// ---- numeric boxes

TEST(Zahlenbox, NimmtNurZiffernUndGibtDenFokusErstMitGutemWertHer)
{
    Einstellprobe p;
    Drehbuch b;
    b.im("frmEinstellungen", [&](QWidget& fenster) {
        auto& box = teil<QLineEdit>(fenster, "txt_elevation");
        klick(fenster, "txt_elevation");
        EXPECT_EQ(box.selectedText(), box.text());
        tippen("4a-1,x");
        taste(Qt::Key_Backspace);
        tippen("12");
        QApplication::clipboard()->setText(QStringLiteral("7"));
        taste(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.text().toStdString(), "412");
        b.meldung();
        taste(Qt::Key_Tab);
        QTest::qWait(60);
        EXPECT_EQ(fokus(), "txt_elevation");
        EXPECT_EQ(box.selectedText().toStdString(), "412");
        // A click elsewhere is told once, and doesn't go through.
        for (const int haltezeit : {0, 60}) {
            b.meldung();
            QTest::mousePress(&teil(fenster, "cmd_ok"), Qt::LeftButton);
            if (haltezeit) QTest::qWait(haltezeit);
            QTest::mouseRelease(&teil(fenster, "cmd_ok"), Qt::LeftButton);
            QTest::qWait(60);
            EXPECT_EQ(fokus(), "txt_elevation");
        }
        taste(Qt::Key_Escape);  // within the limits, and the window stays
        EXPECT_EQ(box.text().toStdString(), "90");
        const auto pfeile = teil(fenster, "upd_elevation").findChildren<QToolButton*>();
        QTest::mouseClick(pfeile[0], Qt::LeftButton);
        EXPECT_EQ(box.text().toStdString(), "90");
        QTest::mouseClick(pfeile[1], Qt::LeftButton);
        EXPECT_EQ(box.text().toStdString(), "89");
        eintragen(fenster, "txt_elevation", "");
        taste(Qt::Key_Tab);
        QTest::qWait(20);
        EXPECT_EQ(box.text().toStdString(), "0");
        EXPECT_EQ(fokus(), "txt_firstminutes");
        // Nothing is asked of a box on the way out.
        tippen("99");
        klick(fenster, "cmd_abbrechen");
    });
    p.einstellungen(rover_1);
    EXPECT_EQ(b.meldungen, std::vector<std::string>(3, "Der zulässige Maximal-Wert von 90 wurde überschritten!"));
    EXPECT_FALSE(p.gestempelt());
}

// ---- settings of one rover

TEST(Einstellungsfenster, NimmtMitOkAllesAusserZeitenUndIntervall)
{
    Einstellprobe p;
    Drehbuch b;
    b.im("frmEinstellungen", [&](QWidget& fenster) {
        EXPECT_EQ(fokus(), "txt_starttime");
        for (const auto& [name, text] : {std::pair("txt_starttime", "100000"),
                                         {"txt_endtime", "113000"},
                                         {"txt_epochrate", ""},
                                         {"txt_elevation", "5"}})
            EXPECT_EQ(inhalt(fenster, name), text) << name;
        eintragen(fenster, "txt_starttime", "101500");
        eintragen(fenster, "txt_epochrate", "7");
        eintragen(fenster, "txt_elevation", "12");
        eintragen(fenster, "txt_firstminutes", "3");
        eintragen(fenster, "txt_lastminutes", "4");
        taste(Qt::Key_1, Qt::AltModifier);
        taste(Qt::Key_N, Qt::AltModifier);
        klick(fenster, "chk_satelliten2");
        taste(Qt::Key_Return);
    });
    // F2 on the node in the tree.
    p.form.baum().setCurrentItem(p.form.baum().topLevelItem(0)->child(0));
    p.form.baum().setFocus();
    QTest::keyClick(&p.form.baum(), Qt::Key_F2);
    const auto& s = p.g.ROVER_Settings[1];
    EXPECT_EQ(verkettet(s.Elevation, " ", s.DelFirstMinutes, " ", s.DelLastMinutes, " ", s.Solution, " ", s.EpochRate,
                        " ", s.DelSatellite[1], " ", s.DelSatellite[2]),
              "12 3 4 1 0 1 0");
    EXPECT_EQ(s.Ein_Ausschalterkennung, 0);
    EXPECT_EQ(p.g.baum.finden("R_Datei")->Kinder[0].Bild, 9);
    EXPECT_EQ(p.g.berechnete_ROVER, 1);
    EXPECT_TRUE(p.gestempelt());
}

TEST(Einstellungsfenster, PasstUndZeigtDieAmpelNurInEUndS)
{
    Einstellprobe p;
    Drehbuch b;
    const auto ansehen = [&](bool ampel) {
        b.im("frmEinstellungen", [ampel](QWidget& fenster) {
            EXPECT_EQ(fenster.windowTitle().toStdString(), "Einstellungen/Infos zu: 5501001a.14o");
            elemente_pruefen(fenster,
                             {{"txt_starttime", "&Startzeit der RINEX-Daten in GPS-Sekunden"},
                              {"txt_endtime", "En&dzeit der RINEX-Daten in GPS-Sekunden"},
                              {"txt_epochrate", "Auswerte&interval in Sekunden"},
                              {"txt_elevation", "Elevations-&Maske"},
                              {"txt_firstminutes", "Anzahl  der zu ignorienden Minuten zu &Beginn der Beobachtungen"},
                              {"txt_lastminutes", "Anzahl der zu ignorienden Minuten am &Ende der Beobachtungen"},
                              {"chk_einaus", " &nimmt an der nächsten Berechnung teil"},
                              {"fra_frequenz", "Koordinatenergebnis"},
                              {"opt_frequenz0", "iono.-frei L&0"},
                              {"opt_frequenz1", "L&1"},
                              {"opt_frequenz2", "a&utomatisch"},
                              {"lbl_ueb_ampelinfo", "Bedeutung der aktuellen Ampelschaltung:"},
                              {"lbl_ampelinfo", ampel ? "Alles OK.\nZur Zeit keine Probleme identifiziert." : nullptr},
                              {"chk_satelliten1", "G09. . . "},
                              {"chk_satelliten70", ". . . "},
                              {"upd_lastminutes", nullptr},
                              {"cmd_ok", "OK"},
                              {"cmd_abbrechen", "Abbrechen"}});
            EXPECT_EQ(teil(fenster, "lbl_ampelinfo").isVisible(), ampel);
            EXPECT_EQ(teil(fenster, "lbl_ueb_ampelinfo").isVisible(), ampel);
            EXPECT_TRUE(haken(fenster, "chk_satelliten2") && teil(fenster, "chk_satelliten2").isEnabled());
            EXPECT_FALSE(haken(fenster, "chk_satelliten3") || teil(fenster, "chk_satelliten3").isEnabled());
            EXPECT_EQ(teil(fenster, "chk_satelliten1").toolTip().toStdString(), "Teilnahme an den Berechnungen");
            fenster_pruefen(fenster);
            fenster.close();
        });
        p.einstellungen(rover_1);
    };
    ansehen(true);
    p.g.Verfahrensmodus = "3";
    ansehen(false);
}

// ---- settings of all rovers

TEST(EinstellungenAlleFenster, JederKnopfWirktSofortAufAlle)
{
    Einstellprobe p;
    Drehbuch b;
    p.g.ROVER_Settings[2].Solution = 0;
    p.form.baum().setCurrentItem(p.form.baum().topLevelItem(0)->child(1));
    b.im("frmEinstellungenAlle", [&](QWidget& fenster) {
        EXPECT_EQ(
            inhalt(fenster, "txt_firstminutes") + inhalt(fenster, "txt_lastminutes") + inhalt(fenster, "txt_elevation"),
            "005");
        EXPECT_TRUE(haken(fenster, "opt_frequenz0")) << "that of the selected rover";
        for (const char* name : {"cmd_start", "cmd_ende", "cmd_elevation", "cmd_frequenz", "cmd_satellit"})
            EXPECT_FALSE(teil(fenster, name).isEnabled()) << name;
        EXPECT_EQ(fokus(), "txt_firstminutes");
        tippen("2");
        taste(Qt::Key_Return);  // as the button behind it
        EXPECT_EQ(p.g.ROVER_Settings[1].DelFirstMinutes + p.g.ROVER_Settings[2].DelFirstMinutes, 4);
        EXPECT_TRUE(p.gestempelt());
        eintragen(fenster, "txt_lastminutes", "90");  // more than the other window allows
        klick(fenster, "cmd_ende");
        eintragen(fenster, "txt_elevation", "61");
        b.meldung();
        klick(fenster, "cmd_elevation");
        QTest::qWait(20);
        EXPECT_EQ(fokus(), "txt_elevation");
        tippen("60");
        klick(fenster, "cmd_elevation");
        taste(Qt::Key_1, Qt::AltModifier);
        klick(fenster, "cmd_frequenz");
        EXPECT_EQ(inhalt(fenster, "chk_satelliten1") + inhalt(fenster, "chk_satelliten3"), "G02. . . R01. . . ");
        klick(fenster, "chk_satelliten1");
        klick(fenster, "cmd_satellit");
        klick(fenster, "cmd_schliessen");
    });
    p.befehl("m_grund_EinstellungenAlle");
    EXPECT_EQ(b.meldungen, std::vector<std::string>{"Der zulässige Maximal-Wert von 60 wurde überschritten!"});
    for (const auto& s : p.g.ROVER_Settings)
        EXPECT_EQ(
            verkettet(s.DelLastMinutes, " ", s.Elevation, " ", s.Solution, " ", s.DelSatellite[1], s.DelSatellite[2]),
            verkettet("90 60 1 1", s.ROVER_Dateiname == rover_1 ? 1 : 0));
}

TEST(EinstellungenAlleFenster, PasstUndEmdsGibtEsNurFuerBasislinien)
{
    Einstellprobe p("4");
    Drehbuch b;
    b.im("frmEinstellungenAlle", [](QWidget& fenster) {
        EXPECT_EQ(fenster.windowTitle().toStdString(), "Einstellungen für alle ROVER");
        elemente_pruefen(fenster,
                         {{"txt_firstminutes", "Anzahl  der zu ignorienden Minuten zu &Beginn der Beobachtungen"},
                          {"txt_lastminutes", "Anzahl der zu ignorienden Minuten am &Ende der Beobachtungen"},
                          {"txt_elevation", "Elevations-&Maske"},
                          {"fra_frequenz", "Koordinatenergebnis"},
                          {"chk_emds", "EM&DS-Ausgabedatei erzeugen"},
                          {"cmd_schliessen", "S&chließen"}});
        EXPECT_TRUE(teil(fenster, "chk_emds").isEnabled());
        fenster_pruefen(fenster);
        taste(Qt::Key_D, Qt::AltModifier);
        fenster.close();
    });
    p.befehl("m_grund_EinstellungenAlle");
    EXPECT_TRUE(p.g.emds_ausgabe);
    p.g.Verfahrensmodus = "1";
    b.im("frmEinstellungenAlle", [](QWidget& fenster) {
        EXPECT_FALSE(teil(fenster, "chk_emds").isEnabled() || haken(fenster, "chk_emds"));
        fenster.close();
    });
    p.befehl("m_grund_EinstellungenAlle");
    p.g.OBS_R.leeren();
    baum_aufbauen(p.g);
    b.meldung();
    p.befehl("m_grund_EinstellungenAlle");
    EXPECT_EQ(b.meldungen, std::vector<std::string>{
                               "Es sind keine zu berechnenden ROVER-Dateien im aktuellen Verfahren vorhanden!"});
}

// ---- import

TEST(Importfenster, PasstNenntWasNichtStimmtBietetAbhilfeUndImportiert)
{
    Fensterprobe p;
    ASSERT_EQ(Verfahren_anlegen(p.g, {"Nord", p.ordner.dos() + "\\nord", "1"}), Fehler::keiner);
    p.ohne_verfahren();
    fs::rename(p.pfad("nord"), p.pfad("umgezogen"));
    p.zeigen();
    Drehbuch b;
    b.im("importdatei", [&](QWidget& fenster) {
        EXPECT_EQ(fenster.windowTitle().toStdString(), "Auswahl einer Verfahrensdatei:");
        EXPECT_EQ(static_cast<QFileDialog&>(fenster).nameFilters(),
                  (QStringList{QStringLiteral("INI-Dateien (*.ini)"), QStringLiteral("Alle Dateien (*)")}));
        datei_nehmen(fenster, p.pfad("umgezogen/002.INI"));
    });
    b.im("frmImport", [&](QWidget& fenster) {
        elemente_pruefen(fenster, {{"txt_name", "&Name:"},
                                   {"txt_verf_nummer", "N&ummer:"},
                                   {"txt_verf_modus", "&Modus:"},
                                   {"txt_arb_verz", "&Arbeitsverzeichnis:"},
                                   {"txt_anlegedatum", "an&gelegt am:"},
                                   {"txt_letztdatum", "zuletzt &bearbeitet am:"},
                                   {"txt_vers_nummer", "&Version:"},
                                   {"txt_vers_datum", "Ver&sion vom:"},
                                   {"cmd_import", "&Importieren"},
                                   {"cmd_abbrechen", "Abbrechen"}});
        EXPECT_EQ(fokus(), "txt_name");
        const auto stand = [&](const char* name) {
            const QColor farbe = teil(fenster, name).palette().color(QPalette::Base);
            return inhalt(fenster, name) + (farbe == QColor(0, 255, 0)   ? " gruen"
                                            : farbe == QColor(255, 0, 0) ? " rot"
                                                                         : " ?");
        };
        EXPECT_FALSE(teil(fenster, "cmd_import").isEnabled());
        const struct {
            const char *steuerelement, *text;  // what is typed there; nullptr: it is clicked
            const char *urteil, *soll, *feld, *inhalt;
        } schritte[] = {
            {"txt_name", "Nord", "txt_sta_name", "bereits vergeben rot", "txt_verf_modus", "E"},
            {"txt_name", "Süd", "txt_sta_name", "OK gruen", "txt_sta_verf_nummer", "bereits vergeben"},
            {"cmd_freie_nummer", nullptr, "txt_sta_verf_nummer", "OK gruen", "txt_verf_nummer", "003"},
            {"txt_verf_modus", "X", "txt_sta_verf_modus", "ungültiger Wert rot", "lbl_modus",
             "Unbekannter Verfahren-Modus"},
            {"txt_verf_modus", "", "txt_sta_verf_modus", "automatisch gruen", "txt_verf_modus", "E"},
            {"txt_vers_nummer", "9", "txt_sta_version", "Verfahren neuer als Jorv+ rot", "txt_sta_arb_verz",
             "veraltet"},
            {"txt_letztdatum", "", "txt_sta_letztdatum", "fehlt, aber OK gruen", "txt_letztdatum", ""},
            {"txt_anlegedatum", "gestern", "txt_sta_anlegedatum", "ungültige Werte rot", "txt_anlegedatum", "gestern"},
            {"cmd_akt_anlegedatum", nullptr, "txt_sta_anlegedatum", "OK gruen", "txt_anlegedatum",
             "01.12.2016 12:00:00"},
            {"cmd_akt_letztdatum", nullptr, "txt_sta_letztdatum", "OK gruen", "txt_letztdatum", "01.12.2016 12:00:00"},
            {"cmd_akt_version", nullptr, "txt_sta_version", "OK gruen", "txt_vers_datum", "01.12.2016"},
            {"cmd_pfad_aktualisieren", nullptr, "txt_sta_arb_verz", "OK gruen", "txt_sta_version", "OK"}};
        for (const auto& s : schritte) {
            EXPECT_FALSE(teil(fenster, "cmd_import").isEnabled());
            if (s.text) {
                eintragen(fenster, s.steuerelement, s.text);
            } else {
                fenster_pruefen(fenster);
                klick(fenster, s.steuerelement);
                EXPECT_FALSE(teil(fenster, s.steuerelement).isVisible()) << "nothing is left to mend";
            }
            EXPECT_EQ(stand(s.urteil) + " " + inhalt(fenster, s.feld), std::string(s.soll) + " " + s.inhalt);
        }
        klick(fenster, "cmd_import");
    });
    p.befehl("m_datei_importieren");
    EXPECT_EQ(b.meldungen, std::vector<std::string>{});
    EXPECT_EQ(utf8_aus_1252(p.g.Verfahrensname) + p.g.Verfahrensnummer, "Süd003");
    EXPECT_TRUE(fs::exists(p.pfad("umgezogen/003.INI")));
    EXPECT_TRUE(p.form.windowTitle().startsWith(QStringLiteral("Verfahren -->Süd<--(003)")));
}

// ---- baselines

TEST(Basislinienfenster, PasstUndZeichenUndKnopfFolgenDerWahl)
{
    Einstellprobe p("4");
    Drehbuch b;
    b.im("frmBasisDialog", [&](QWidget& fenster) {
        EXPECT_EQ(fenster.windowTitle().toStdString(), " Jorv+ - Basislinien im Dialog definieren");
        elemente_pruefen(fenster, {{"fra_basis", "Basisliniendefinition"},
                                   {"cbo_von", "&von:"},
                                   {"cbo_nach", "&nach:"},
                                   {"lbl_zeichen", "zweimal derselbe Punkt"},
                                   {"cmd_definieren", "&Definition"},
                                   {"Ende", "&Ende"}});
        fenster_pruefen(fenster);
        EXPECT_EQ(fokus(), "cbo_von");
        EXPECT_FALSE(teil(fenster, "cmd_definieren").isEnabled());
        const QImage gleich = teil(fenster, "zeichen").grab().toImage();
        taste(Qt::Key_Down);
        EXPECT_EQ(inhalt(fenster, "lbl_zeichen"), "noch nicht definiert");
        const QImage frei = teil(fenster, "zeichen").grab().toImage();
        taste(Qt::Key_Return);
        EXPECT_EQ(inhalt(fenster, "lbl_zeichen"), "bereits definiert");
        const QImage verbunden = teil(fenster, "zeichen").grab().toImage();
        EXPECT_TRUE(gleich != frei && frei != verbunden && verbunden != gleich);
        EXPECT_FALSE(teil(fenster, "cmd_definieren").isEnabled());
        taste(Qt::Key_E, Qt::AltModifier);
    });
    p.befehl("m_datei_basis_dialog");
    ASSERT_EQ(p.g.BASISLINIE.anzahl(), 1);
    EXPECT_EQ(p.g.BASISLINIE[1].PKK_von + p.g.BASISLINIE[1].PKK_nach, "55025501");
}

TEST(Basislinienfenster, LiestEineBeziehungsliste)
{
    Einstellprobe p("4");
    for (const char* name : {rover_1, rover_2}) ASSERT_TRUE(p.g.RINEX_Dateien.anfuegen(name));
    schreiben(p.pfad("BEZIEHUNGEN"), "5501 5502\r\n5501 5501\r\n");
    Drehbuch b;
    b.im("basisliste", [](QWidget&) { taste(Qt::Key_Escape); });
    p.befehl("m_datei_basis_liste");
    schreiben(p.pfad("Ωmega"), "5501 5502\r\n");
    b.im("basisliste", [&](QWidget& fenster) { datei_nehmen(fenster, p.pfad("Ωmega")); });
    b.meldung();  // a name that can't be held
    p.befehl("m_datei_basis_liste");
    EXPECT_EQ(p.g.BASISLINIE.anzahl(), 0);
    b.im("basisliste", [&](QWidget& fenster) {
        EXPECT_EQ(fenster.windowTitle().toStdString(), "Datei mit Basisliniendefinitionen:");
        datei_nehmen(fenster, p.pfad("BEZIEHUNGEN"));
    });
    b.meldung();
    p.befehl("m_datei_basis_liste");
    ASSERT_EQ(b.meldungen.size(), 2u);
    EXPECT_TRUE(b.meldungen[0].starts_with("Die Datei:\n"));
    EXPECT_EQ(b.meldungen[1], "Von Punkt: \"5501\" zu \"5501\" kann keine Basislinie gebildet werden!");
    EXPECT_EQ(p.g.BASISLINIE.anzahl(), 1);
}

// ---- further commands

TEST(Editieren, MerktSichDasVerzeichnis)
{
    Fensterprobe p;
    schreiben(p.pfad("tief/notiz.txt"), "Text\r\n");
    p.zeigen();
    Drehbuch b;
    for (const char* ordner : {".", "tief"}) {
        b.im("editieren", [&](QWidget& fenster) {
            auto& wahl = static_cast<QFileDialog&>(fenster);
            EXPECT_EQ(wahl.windowTitle().toStdString(), "beliebige Datei editieren");
            EXPECT_TRUE(fs::equivalent(wahl.directory().absolutePath().toStdString(), p.pfad(ordner)));
            datei_nehmen(fenster, p.pfad("tief/notiz.txt"));
        });
        p.befehl("m_protkoll_editieren");
    }
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (fenster != &p.form && fenster->isVisible()) fenster->close();
}

TEST(Menuebefehle, FragtBevorEineBatchdateiUeberschriebenWird)
{
    Einstellprobe p("4");
    Drehbuch b;
    p.befehl("m_basis_erstellen");
    schreiben(p.pfad("001.BAT"), "alt");
    b.meldung(Qt::Key_Escape);
    p.befehl("m_basis_erstellen");
    EXPECT_EQ(lesen(p.pfad("001.BAT")), "alt");
    EXPECT_EQ(b.symbole, std::vector<QMessageBox::Icon>{QMessageBox::Question});
}

TEST(Menuebefehle, JederEintragDerMenuesDateiUndProgrammeIstGebunden)
{
    Pruefstand p("4");
    p.g.Gesamtbatch = "J";
    for (const auto& e : menue_setzen(p.g))
        if ((e.Gruppe == "&Datei" || e.Gruppe == "&Programme") && e.Name != "m_datei_basis") {
            EXPECT_TRUE(menuebefehl_vorhanden(e.Name)) << e.Name;
        }
}

}  // namespace jorv
