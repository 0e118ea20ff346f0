#include "projekt/verfahren.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "projekt/Vollprojekt.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahrensliste.h"
#include "projekt/verzeichniswahl.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

Profil einstellungen(const Pruefstand& p)
{
    return Profil(lesen(p.ordner.wurzel() / "einstellungen" / "JorvPlus.INI"));
}

Profil projektdatei(const Pruefstand& p, const char* name)
{
    return Profil(lesen(p.pfad(name)));
}

bool vier_an(const Global& g)
{
    return g.menue.m_datei_loeschen && g.menue.m_datei_sichern && g.menue.m_grund_zeitfenster_1h &&
           g.menue.m_grund_EinstellungenAlle;
}
bool vier_aus(const Global& g)
{
    return !g.menue.m_datei_loeschen && !g.menue.m_datei_sichern && !g.menue.m_grund_zeitfenster_1h &&
           !g.menue.m_grund_EinstellungenAlle;
}

// Two projects in a work folder each; the first is open and saved.
struct ZweiVerfahren : testing::Test {
    ZweiVerfahren()
    {
        volles_projekt(p.g);
        zweites = im_Verfahren(p.g, "zweites");
        EXPECT_EQ(Verfahren_anlegen(p.g, {"Zweites", zweites, "2"}), Fehler::keiner) << p.schirm.einzige();
        (void)p.g.RINEX_Dateien.anfuegen("zweites.14o");
        p.schirm.fenstertitel.clear();
    }
    Pruefstand p;
    std::string zweites;
};

}  // namespace

TEST(NeuesVerfahren, WirdAngelegtGeoeffnetUndGelistet)
{
    Pruefstand p;
    volles_projekt(p.g);
    p.g.Antennen_Dateien.leeren();
    const std::string ordner = im_Verfahren(p.g, "tief\\neu");
    ASSERT_EQ(Verfahren_anlegen(p.g, {" Neues ", ordner + "\\", "4"}), Fehler::keiner);

    // The old project was saved, the new one is empty and open.
    EXPECT_EQ(projektdatei(p, "001.INI").wert("RINEX-DATEIEN", "1"), "5501001a.14o");
    EXPECT_EQ(p.g.OBS_R.anzahl() + p.g.BASISLINIE.anzahl() + p.g.GEO_Punkt.anzahl(), 0);
    EXPECT_EQ(p.g.Verfahrensname + p.g.Verfahrensnummer + p.g.Verfahrensmodus, "Neues0024");
    EXPECT_EQ(p.g.Arbeitsverzeichnis, ordner);
    EXPECT_EQ(p.g.Zeitfenster_1h + p.g.Auswertemodus, "0L1");
    EXPECT_EQ(p.schirm.fenstertitel, "Verfahren -->Neues<--(002) Modus: >B<   (Jorv+, Version 1.0 vom 01.12.2016)");
    EXPECT_TRUE(vier_an(p.g));
    EXPECT_EQ(p.g.Liste_Name[0], "Neues");
    EXPECT_EQ(lesen(p.pfad("tief") / "neu" / "002.INI"),
              "[VERFAHREN]\r\nName=Neues\r\nNummer=002\r\nModus=4\r\n[GRUNDEINSTELLUNGEN]\r\nArbeits-Verzeichnis=" +
                  ordner + "\r\n");

    // It is in the settings file at once, and can be saved.
    const Profil liste = einstellungen(p);
    EXPECT_EQ(liste.wert("VERFAHREN-Name", "002"), "Neues");
    EXPECT_EQ(liste.wert("VERFAHREN-ErstDatum", "002"), "01.12.2016 12:00:00");
    EXPECT_EQ(liste.wert("VERFAHREN-Antenne", "002"), "?");
    m_datei_sichern(p.g);
    EXPECT_EQ(Profil(lesen(p.pfad("tief") / "neu" / "002.INI")).wert("VERFAHREN", "Name"), "Neues");
    EXPECT_TRUE(p.schirm.gezeigt.empty());
}

TEST(NeuesVerfahren, DerDialogKommtWiederBisDieWahlStimmt)
{
    Pruefstand p;
    schreiben(p.pfad("voll/datei"), "x");
    schreiben(p.pfad("versperrt"), "x");
    const auto unter = [ordner = p.ordner.dos()](const char* name) { return verkettet(ordner, "\\", name); };
    p.schirm.verfahrenswahlen = {Verfahrenswahl{"  ", unter("a"), "1"}, Verfahrenswahl{"Muster", unter("a"), "1"},
                                 Verfahrenswahl{"A", unter("versperrt\\x"), "1"},
                                 Verfahrenswahl{"A", unter("voll"), "1"}, Verfahrenswahl{"A", unter("a"), "3"}};
    ASSERT_EQ(m_datei_neu(p.g), Fehler::keiner);
    EXPECT_EQ(p.schirm.texte(),
              (std::vector<std::string>{
                  "Ein Verfahrensname ist zwingend erforderlich!",
                  "Der Verfahrensname: >Muster< ist bereits für\ndas Verfahren Nr.: 001 vergeben. Bitte einen anderen "
                  "Namen wählen!",
                  "Das Verfahrensverzeichnis:\n" + unter("versperrt\\x") + "\nkonnt nicht angelegt werden!",
                  "Das angegebene Verzeichnis:\n" + unter("voll") +
                      "\nexistiert bereits und ist nicht leer!\nBitte ein anderes Verzeichnis auswählen!"}));
    EXPECT_EQ(p.schirm.vorschlaege[0].verzeichnis, p.g.Datei_Verzeichnis);
    EXPECT_EQ(p.schirm.vorschlaege[0].modus, "1");
    using enum Verfahrensfeld;
    EXPECT_EQ(p.schirm.nachgefragt, (std::vector{name, name, verzeichnis, verzeichnis}));
    EXPECT_EQ(p.g.Verfahrensmodus, "3");

    // Cancelling leaves the open project as it is.
    EXPECT_EQ(m_datei_neu(p.g), Fehler::keiner);
    EXPECT_EQ(p.g.Verfahrensname, "A");
}

TEST(NeuesVerfahren, NimmtEinVerzeichnisWieEsDerBenutzerTippt)
{
    Pruefstand p;
    const std::string host = p.pfad("getippt").string();
    ASSERT_EQ(Verfahren_anlegen(p.g, {"Neues", text_aus_utf8(host + "/").value(), "1"}), Fehler::keiner);
    EXPECT_EQ(p.g.Arbeitsverzeichnis, Laufwerke().dos(host).value());
    EXPECT_EQ(Verfahren_anlegen(p.g, {"Ohne", " ", "1"}), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(), "Das Verfahrensverzeichnis:\n\nkonnt nicht angelegt werden!");
}

TEST(Verzeichniswahl, LegtEinNeuesVerzeichnisAnOderSagtWarumNicht)
{
    Pruefstand p;
    const std::string ordner = p.ordner.dos();
    schreiben(p.pfad("datei"), "x");
    EXPECT_EQ(Verzeichnis_uebernehmen(p.g, ordner, " "), ordner);
    EXPECT_EQ(Verzeichnis_uebernehmen(p.g, ordner + "\\", "neu"), ordner + "\\neu");
    EXPECT_EQ(Verzeichnis_uebernehmen(p.g, ordner.substr(0, 3), ordner.substr(3)), ordner) << "one that is there";
    EXPECT_TRUE(fs::is_directory(p.pfad("neu")));
    EXPECT_TRUE(p.schirm.gezeigt.empty());
    for (const char* name : {"datei", "datei\\x", "a?b", "a\tb"}) {
        p.schirm.gezeigt.clear();
        EXPECT_EQ(Verzeichnis_uebernehmen(p.g, ordner, name), std::nullopt);
        EXPECT_EQ(p.schirm.einzige(), "Das Verzeichnis:\n" + ordner + "\\" + name + "\n konnte nicht angelegt werden!");
        EXPECT_EQ(p.schirm.gezeigt[0].symbol, Symbol::warnung);
    }
}

TEST(Verzeichniswahl, BeginntWoEsDenWegNochGibt)
{
    Pruefstand p;
    const std::string ordner = p.ordner.dos();
    for (const char* name : {"b", "A", ".versteckt"}) fs::create_directory(p.pfad(name));
    schreiben(p.pfad("datei"), "x");
    EXPECT_EQ(Verzeichnis_Anfang(p.g, ordner + "\\weg\\noch weiter"), ordner);
    const std::string erstes = Laufwerke().alle().front() + "\\";
    EXPECT_EQ(Verzeichnis_Anfang(p.g, "Q:\\a"), erstes);
    EXPECT_EQ(Verzeichnis_Anfang(p.g, ""), erstes);
    EXPECT_EQ(Unterverzeichnisse(p.g, ordner), (std::vector<std::string>{"A", "b"}));
}

TEST(NeuesVerfahren, BekommtDieErsteFreieNummerAuchNebenEinemZweitenProgramm)
{
    Pruefstand p;
    Profil datei;
    datei.setzen("VERFAHREN-Name", "002", "Vom anderen Programm");
    ASSERT_FALSE(datei.schreiben(p.g.dateien, p.g.Einstellungsdatei));
    ASSERT_EQ(Verfahren_anlegen(p.g, {"Neues", im_Verfahren(p.g, "neu"), "1"}), Fehler::keiner);
    EXPECT_EQ(p.g.Verfahrensnummer, "003");
    EXPECT_EQ(einstellungen(p).wert("VERFAHREN-Name", "002"), "Vom anderen Programm");
}

TEST(NeuesVerfahren, NachNeunhundertneunundneunzigIstSchluss)
{
    Pruefstand p;
    for (int n = 2; n <= 999; ++n) {
        Verfahren_Satz v;
        v.Nummer = verkettet(n < 100 ? "0" : "", n < 10 ? "0" : "", n);
        v.Name = verkettet("V", n);
        (void)p.g.Verfahren.anfuegen(v);
    }
    EXPECT_EQ(m_datei_neu(p.g), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(),
              "Mehr als 999 Verfahren in der Verfahrensliste!\nBitte zuerst einige Verfahren sichern und löschen");
    EXPECT_TRUE(p.schirm.vorschlaege.empty());
    Verfahren_loeschen(p.g, "017");
    ASSERT_EQ(Verfahren_anlegen(p.g, {"Neues", im_Verfahren(p.g, "neu"), "1"}), Fehler::keiner);
    EXPECT_EQ(p.g.Verfahrensnummer, "017");
}

TEST(NeuesVerfahren, ScheitertAnVollerListeOderUnbeschreibbarerDatei)
{
    Pruefstand p;
    p.g.Verfahren.grenze_setzen(1);
    EXPECT_EQ(Verfahren_anlegen(p.g, {"Neues", im_Verfahren(p.g, "neu"), "1"}), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(),
              "Dimensionierungsfehler! (63 in frmverfahr_OK)\n    ReDim Preserve Verfahren(2)\n"
              "evtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!");
    EXPECT_EQ(p.g.Verfahrensname, "Muster");

    Pruefstand q;
    q.g.Verfahrensname.clear();
    Systemaufrufe aufrufe = Systemaufrufe::echte();
    aufrufe.schreiben = [](int, const void*, std::size_t) { return errno = ENOSPC, -1L; };
    q.g.dateien = Dateisystem(Laufwerke::aus_umgebung(), aufrufe);
    EXPECT_EQ(Verfahren_anlegen(q.g, {"Neues", im_Verfahren(q.g, "neu"), "1"}), Fehler::gesetzt);
    EXPECT_EQ(q.schirm.einzige(), "In die Verfahrensdatei: \n" + im_Verfahren(q.g, "neu\\002.INI") +
                                      "\nkonnt nicht fehlerfrei geschrieben werden!");
    EXPECT_EQ(q.g.Verfahren.anzahl(), 1);
}

TEST_F(ZweiVerfahren, OeffnenSichertDasEineUndLiestDasAndereGanz)
{
    ASSERT_EQ(Verfahren_oeffnen(p.g, "Muster"), Fehler::keiner) << p.schirm.einzige();
    EXPECT_EQ(Profil(lesen(p.pfad("zweites") / "002.INI")).wert("RINEX-DATEIEN", "1"), "zweites.14o");
    EXPECT_EQ(p.g.Verfahrensnummer + p.g.Zeitfenster_1h + p.g.Auswertemodus, "0011L0");
    EXPECT_EQ(p.g.OBS_R.anzahl(), 2);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Schutz, true);
    EXPECT_EQ(p.g.ROVER_TOREL[2].Grund, 1);  // judged by automatik
    EXPECT_EQ(p.g.tage.anzahl(), 2);
    EXPECT_EQ(p.g.Liste_Name[0] + p.g.Liste_Name[1], "MusterZweites");
    EXPECT_EQ(p.schirm.fenstertitel, "Verfahren -->Muster<--(001) Modus: >E<   (Jorv+, Version 1.0 vom 01.12.2016)");
    EXPECT_TRUE(vier_an(p.g));
    EXPECT_TRUE(p.g.vollstaendig_gelesen);
}

TEST_F(ZweiVerfahren, EinGescheitertesOeffnenWirdNieGesichert)
{
    const std::string kaputt = "[VERFAHREN]\r\nName=Muster\r\nNummer=001\r\nModus=1\r\n[ROVER-OBS]\r\n1=halb\r\n";
    schreiben(p.pfad("001.INI"), kaputt);
    EXPECT_EQ(Verfahren_oeffnen(p.g, "Muster"), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(), "Punktkennzeichen fehlerhaft in der Datei:\n" + p.g.Verfahrensdatei +
                                      "\n\nDatei überprüfen und ggf. reparieren!");
    EXPECT_TRUE(vier_aus(p.g));
    EXPECT_EQ(p.g.Verfahrensname, "Muster");
    EXPECT_EQ(p.g.RINEX_Dateien.anzahl() + p.g.BASISLINIE.anzahl(), 0);

    // Neither a save nor the next open nor a new project writes it.
    m_datei_sichern(p.g);
    EXPECT_EQ(Verfahren_oeffnen(p.g, "Zweites"), Fehler::keiner);
    EXPECT_EQ(lesen(p.pfad("001.INI")), kaputt);
    EXPECT_EQ(p.g.RINEX_Dateien[1], "zweites.14o");
    EXPECT_TRUE(vier_an(p.g));
    EXPECT_EQ(p.schirm.gezeigt.size(), 1u);
}

TEST_F(ZweiVerfahren, OeffnenRaeumtResteEinesGetoetetenProgrammsWeg)
{
    schreiben(p.pfad(".001.INI.jorv-999999999-0"), "halb");
    ASSERT_EQ(Verfahren_oeffnen(p.g, "Muster"), Fehler::keiner);
    EXPECT_FALSE(fs::exists(p.pfad(".001.INI.jorv-999999999-0")));
}

TEST_F(ZweiVerfahren, EineUnlesbareDateiLaesstDasOffeneVerfahrenStehen)
{
    fs::remove(p.pfad("001.INI"));
    fs::create_directories(p.pfad("001.INI"));
    EXPECT_EQ(Verfahren_oeffnen(p.g, "Muster"), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(), "In der Verfahrensdatei: \n" + p.g.Verfahren[1].Pfad +
                                      "\\001.INI\n\nkonnt nicht fehlerfrei gelesen werden!");
    EXPECT_EQ(p.g.Verfahrensname, "Zweites");
    EXPECT_EQ(p.g.RINEX_Dateien.anzahl(), 1);
    EXPECT_TRUE(vier_an(p.g));
}

TEST_F(ZweiVerfahren, FehltVerzeichnisOderDateiVerlaesstDasVerfahrenBeideListen)
{
    p.g.Anzahl_Liste = 2;
    p.g.Liste_Name = {"Zweites", "Muster"};
    fs::remove(p.pfad("001.INI"));
    EXPECT_EQ(Verfahren_oeffnen(p.g, "Muster"), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(), "Die Verfahrensdatei:\n" + p.ordner.dos() +
                                      "\\001.INI\nfür das Verfahren >Muster< (001)\nexistiert nicht mehr!");
    EXPECT_EQ(Index_zu_Name(p.g, "Muster"), 0);
    EXPECT_EQ(p.g.Liste_Name[1], "");
    EXPECT_FALSE(einstellungen(p).hat("VERFAHREN-Name", "001"));
    EXPECT_EQ(p.g.Verfahrensname, "Zweites");  // the open one stays

#ifndef _WIN32  // where nobody can take away the directory of an open project
    p.schirm.gezeigt.clear();
    fs::remove_all(p.pfad("zweites"));
    EXPECT_EQ(Verfahren_pruefen(p.g, "Zweites"), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(),
              "Das Verzeichnis:\n" + zweites + "\nfür das Verfahren >Zweites< (002)\nexistiert nicht mehr!");
    EXPECT_FALSE(p.g.Verfahren_offen());
    EXPECT_EQ(p.g.RINEX_Dateien.anzahl() + p.g.Verfahren.anzahl() + p.g.Anzahl_Liste, 0);
    EXPECT_EQ(p.schirm.fenstertitel, "Jorv+, Version 1.0 vom 01.12.2016");
    EXPECT_TRUE(vier_aus(p.g));
#endif
}

TEST_F(ZweiVerfahren, EinUnbekannterNameGibtDenHinweisAufDenImport)
{
    p.g.Anzahl_Liste = 2;
    p.g.Liste_Name = {"Zweites", "Verschollen"};
    EXPECT_EQ(m_dateien_verfahren(p.g, 2), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(),
              "Das Verfahren >Verschollen< wurde mit einer ältern Jorv-Version erstellt!\nBitte das Verfahren "
              "importieren.");
    EXPECT_EQ(p.schirm.gezeigt[0].symbol, Symbol::info);
    EXPECT_EQ(p.g.Anzahl_Liste, 1);
    EXPECT_EQ(m_dateien_verfahren(p.g, 2), Fehler::gesetzt);
    EXPECT_EQ(m_dateien_verfahren(p.g, 1), Fehler::keiner);
    EXPECT_EQ(p.g.Verfahrensname, "Zweites");
}

TEST(AllIni, LeertAllesAusserBasislinienUndMeldetFehlendenPlatz)
{
    Pruefstand p;
    volles_projekt(p.g);
    ASSERT_EQ(all_ini(p.g), Fehler::keiner);
    EXPECT_EQ(p.g.OBS_R.anzahl() + p.g.ROVER_VIRT.anzahl() + p.g.GEO_Punkt.anzahl() + p.g.RINEX_Dateien.anzahl(), 0);
    EXPECT_EQ(p.g.BASISLINIE.anzahl(), 1);

    p.g.V_Punkt.grenze_setzen(-1);
    EXPECT_EQ(Verfahren_anlegen(p.g, {"Neues", im_Verfahren(p.g, "neu"), "1"}), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(),
              "Dimensionierungsfehler! (70 in all_ini)\nevtl. Speicherplatzprobleme\n\n"
              "Offene Anwendungen schließen und erneut versuchen!");
    EXPECT_TRUE(vier_aus(p.g));
}

TEST(Titel, UndLogoFolgenModusUndLand)
{
    struct Fall {
        const char *modus, *land, *logo, buchstabe;
    };
    const Fall faelle[] = {{"1", "KOR", "torel_kor_gelb.bmp", 'E'},
                           {"2", "KOR", "torel_kor_blau.bmp", 'S'},
                           {"3", "MT", "torel_mt_grau.bmp", 'F'},
                           {"4", "KOR", "torel_kor_tinte.bmp", 'B'}};
    for (const auto& fall : faelle) {
        Pruefstand p(fall.modus);
        p.g.Land = fall.land;
        p.g.EXE_Verzeichnis = "Z:\\exe";
        EXPECT_EQ(Titel(p.g), verkettet("Verfahren -->Muster<--(001) Modus: >", fall.buchstabe,
                                        "<   (Jorv+, Version 1.0 vom 01.12.2016)"));
        EXPECT_EQ(Logo_Datei(p.g), verkettet("Z:\\exe\\", fall.logo));
        EXPECT_EQ(Logo_laden(p.g), "");
        EXPECT_EQ(p.schirm.einzige(), verkettet("Die Datei mit dem TOREL-Logo: \nZ:\\exe\\", fall.logo,
                                                "\nwurde nicht gefunden! Bitte neu installieren."));
        p.g.Verfahrensname.clear();
        EXPECT_EQ(Logo_Datei(p.g), verkettet("Z:\\exe\\torel_", fall.land[0] == 'M' ? "mt" : "kor", ".bmp"));
    }
}
