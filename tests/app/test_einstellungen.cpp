#include "app/einstellungen.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "hilfen/Projekt.h"
#include "plattform/profil.h"

namespace jorv {

using hilfen::Pruefstand;
namespace fs = std::filesystem;

namespace {

fs::path host(const Pruefstand& p)
{
    return p.g.dateien.host(p.g.Einstellungsdatei);
}

std::string kurz(const Feld<KOR_ANTENNEN_Satz>& bereiche)
{
    std::string text;
    for (const auto& b : bereiche) text += b.von + "-" + b.bis + " ";
    return text;
}

}  // namespace

TEST(Einstellungen, EinNeuerBenutzerHatDieVorgabenUndDerErsteAbschlussSchreibtStart)
{
    Pruefstand p;
    p.g.KOR_ANTENNEN.leeren();
    EXPECT_FALSE(ist_fehler(ini_lesen_START(p.g)));
    EXPECT_EQ(p.g.Editor, "Notepad.exe");
    EXPECT_EQ(kurz(p.g.KOR_ANTENNEN), "0000-3999 ");
    EXPECT_EQ(p.g.Tem_Stationen[3], "0596");
    EXPECT_FALSE(ist_fehler(ini_schreiben_START(p.g)));
    const Profil profil(hilfen::lesen(host(p)));
    const std::vector<std::string> erwartet = {"Bestaetigung", "Form_top",     "Form_left", "Form_height",
                                               "Form_width",   "Form_zustand", "Editor",    "Hinweis",
                                               "Hinweis1",     "Grenzen",      "ErstStart", "PKZ"};
    EXPECT_EQ(profil.schluessel("START"), erwartet);
    EXPECT_EQ(profil.schluessel("GRUNDEINSTELLUNGEN"), std::vector<std::string>{"Datei-Verzeichnis"});
    EXPECT_EQ(profil.schluessel("MODUS").size(), 8u);
}

TEST(Einstellungen, GeleseneWerteErsetzenVorgabenLeereNicht)
{
    Pruefstand p;
    hilfen::schreiben(
        host(p),
        hilfen::t1252(
            "[start]\r\nEDITOR = joe \r\nForm_width=900\r\nForm_left=x\r\nHinweis=\r\nGrenzen=0\r\n"
            "[GRUNDEINSTELLUNGEN]\r\nDatei-Verzeichnis=D:\\Süd\r\nEXE-Verzeichnis=C:\\Suite\r\n"
            "Nummernbereich KOR-Antennen=0100-0200 0583\r\nTem-Stationen=0001 0002\r\n"
            "UTM-Zone=33\r\nMARKER-Info=N\r\nLand=MT\r\nTypkalibrierung=J\r\nGesamtbatch=J\r\n"
            "[VERFAHREN]\r\n1=Alt\r\n2=\r\n3=verloren\r\n[PFADE]\r\n1=D:\\a\r\n2=D:\\b\r\n[MODUS]\r\n1=3\r\n"));
    p.g.Form_left = 77;
    EXPECT_FALSE(ist_fehler(ini_lesen_START(p.g)));
    EXPECT_EQ(p.g.Editor, "joe");
    EXPECT_EQ(p.g.Form_width, 900);
    EXPECT_EQ(p.g.Form_left, 77);
    EXPECT_EQ(p.g.Hinweis, "1");
    EXPECT_EQ(p.g.Grenzen, "0");
    EXPECT_EQ(p.g.Datei_Verzeichnis, hilfen::t1252("D:\\Süd"));
    EXPECT_EQ(p.g.EXE_Verzeichnis, "C:\\Suite");
    EXPECT_EQ(kurz(p.g.KOR_ANTENNEN), "0100-0200 0583-0583 ");
    EXPECT_EQ(p.g.Tem_Stationen, (std::array<std::string, 4>{"0001", "0002", "", ""}));
    EXPECT_EQ(p.g.UTM_Zone + p.g.MARKER_Info + p.g.Land + p.g.Typkalibrierung + p.g.Gesamtbatch, "33NMTJJ");
    EXPECT_EQ(p.g.Anzahl_Liste, 1);
    EXPECT_EQ(p.g.Liste_Name[0] + p.g.Liste_Pfad[1] + p.g.Liste_Modus[0], "AltD:\\b3");

    // What only the user changes and what the program doesn't know stays to the byte.
    EXPECT_FALSE(ist_fehler(ini_schreiben_START(p.g)));
    const Profil danach(hilfen::lesen(host(p)));
    EXPECT_EQ(danach.wert("GRUNDEINSTELLUNGEN", "Tem-Stationen"), "0001 0002");
    EXPECT_EQ(danach.wert("VERFAHREN", "3"), "");
    EXPECT_EQ(danach.wert("VERFAHREN", "1"), "Alt");
}

TEST(Einstellungen, FehlschlaegeMeldenUndLassenDieDateiGanz)
{
    {
        Pruefstand p;
        p.g.KOR_ANTENNEN.leeren();
        p.g.KOR_ANTENNEN.grenze_setzen(0);
        EXPECT_TRUE(ist_fehler(ini_lesen_START(p.g)));
        EXPECT_NE(p.schirm.einzige().find("    ReDim Preserve KOR_ANTENNEN(1)"), std::string::npos);
    }
    Pruefstand p;
    fs::create_directory(host(p));
    EXPECT_TRUE(ist_fehler(ini_lesen_START(p.g)));
    EXPECT_TRUE(ist_fehler(ini_schreiben_START(p.g)));
    const std::string pfad = utf8_aus_1252(p.g.Einstellungsdatei);
    EXPECT_EQ(p.schirm.texte(),
              (std::vector<std::string>{
                  "Die Einstellungsdatei:\n" + pfad + "\nkonnte nicht gelesen werden!",
                  "In die Einstellungsdatei: \n" + pfad + "\nkonnt nicht fehlerfrei geschrieben werden!"}));
}

TEST(Einstellungen, MischenBehaeltVorhandenesUndUebergehtKommentare)
{
    Pruefstand p;
    const fs::path quelle = p.ordner.host() / "alt.ini";
    const std::string dos = p.ordner.dos() + "\\alt.ini";
    EXPECT_EQ(ini_mischen(p.g, dos, p.g.Einstellungsdatei, true, true), 0);
    EXPECT_FALSE(fs::exists(host(p)));
    hilfen::schreiben(quelle, "; alt\n\n[START]\nEditor=joe\nBestaetigung=N\nGleich=a=b\n");
    hilfen::schreiben(host(p), "[START]\r\nEditor=vi\r\nBestaetigung=\r\n");
    EXPECT_EQ(ini_mischen(p.g, dos, p.g.Einstellungsdatei, true, true), 0);
    const Profil profil(hilfen::lesen(host(p)));
    EXPECT_EQ(profil.wert("START", "Editor"), "vi");
    EXPECT_EQ(profil.wert("START", "Bestaetigung"), "N");
    EXPECT_EQ(profil.wert("START", "Gleich"), "a=b");
    EXPECT_FALSE(fs::exists(quelle));
    EXPECT_TRUE(p.schirm.gezeigt.empty());
}

namespace {

int scheitern_lassen = 0;  // 1 read, 2 close, 3 unlink
const Systemaufrufe kaputt = [] {
    Systemaufrufe tafel = Systemaufrufe::echte();
    tafel.lesen = [](int n, void* b, std::size_t a) {
        return scheitern_lassen == 1 ? (errno = EIO, -1L) : Systemaufrufe::echte().lesen(n, b, a);
    };
    tafel.schliessen = [](int n) {
        const int ergebnis = Systemaufrufe::echte().schliessen(n);
        return scheitern_lassen == 2 ? (errno = EIO, -1) : ergebnis;
    };
    tafel.loeschen = [](const char* pfad) {
        return scheitern_lassen == 3 ? (errno = EACCES, -1) : Systemaufrufe::echte().loeschen(pfad);
    };
    return tafel;
}();

}  // namespace

TEST(Einstellungen, JederSchrittDesMischensHatSeineNummerUndMeldung)
{
    struct Fall {
        int kaputt;
        std::string inhalt;
        int schritt;
        std::string meldung;
    };
    const std::string gut = "[A]\nx=1\n";
    const Fall faelle[] = {
        {0, "(Ordner)", 1, "Die angegebene Quelldatei:\n%\nkonnte nicht geöffnet werden!"},
        {2, "", 2, "Die angegebene Quelldatei:\n%\nkonnte nicht geschlossen werden!"},
        {3, gut, 3, "Die angegebene Quelldatei:\n%\nkonnte nicht gelöscht werden!"},
        {1, gut, 4, "In der angegebenen Quelldatei:\n%\nkonnte nicht gelesen werden!"},
        {0, "[A]\nx=1\nohne\n", 5,
         "Ein Schlüsselname in der Zeile:\nohne\naus der Quelldatei:\n%\nkonnte nicht gelesen werden!"},
        {0, "=leer\n", 5,
         "Ein Schlüsselname in der Zeile:\n=leer\naus der Quelldatei:\n%\nkonnte nicht gelesen werden!"},
    };
    for (const auto& fall : faelle) {
        Pruefstand p;
        p.g.dateien = Dateisystem({}, kaputt);
        const std::string dos = p.ordner.dos() + "\\alt.ini";
        if (fall.inhalt == "(Ordner)")
            fs::create_directory(p.ordner.host() / "alt.ini");
        else
            hilfen::schreiben(p.ordner.host() / "alt.ini", fall.inhalt);
        scheitern_lassen = fall.kaputt;
        EXPECT_EQ(ini_mischen(p.g, dos, p.g.Einstellungsdatei, true, true), fall.schritt);
        scheitern_lassen = 0;
        EXPECT_EQ(p.schirm.einzige(), ersetzt(fall.meldung, "%", utf8_aus_1252(dos)));
        EXPECT_TRUE(fs::exists(p.ordner.host() / "alt.ini"));
    }
}

}  // namespace jorv
