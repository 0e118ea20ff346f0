#include "app/start.h"

#include <gtest/gtest.h>

#include "app/bilddatei.h"
#include "app/neuerungen.h"
#include "hilfen/Projekt.h"
#include "hilfen/Umgebung.h"
#include "plattform/profil.h"

namespace jorv {

using hilfen::Arbeitsordner;
namespace fs = std::filesystem;

namespace {

// A fresh user: the home folder is empty, the program state too.
struct Benutzer {
    Benutzer() : uhr({2016, 12, 1, 12, 0, 0}), g(schirm, uhr, Dateisystem()) {}
    fs::path einstellungen(const std::string& dokumente) const
    {
        return heim.host() / dokumente / "Melvikon.kor" / "JorvPlus.INI";
    }

    Arbeitsordner heim;
    hilfen::Umgebungswert home{"HOME", heim.host().string()};
    hilfen::Umgebungswert dokumenteort{"XDG_DOCUMENTS_DIR"}, einstellungsort{"XDG_CONFIG_HOME"};
    hilfen::Pruefschirm schirm;
    Festuhr uhr;
    Global g;
};

// Windows tells the documents folder of whoever runs the test, whatever the environment says.
#ifdef _WIN32
#define NUR_MIT_EIGENEM_DOKUMENTEORDNER GTEST_SKIP() << "The documents folder is this user's own."
#else
#define NUR_MIT_EIGENEM_DOKUMENTEORDNER (void)0
#endif

}  // namespace

TEST(Start, EinNeuerBenutzerBekommtOrdnerUndVorgaben)
{
    NUR_MIT_EIGENEM_DOKUMENTEORDNER;
    Benutzer b;
    ASSERT_FALSE(ist_fehler(start(b.g)));
    EXPECT_TRUE(fs::is_directory(b.einstellungen("Documents").parent_path()));
    EXPECT_EQ(b.g.EXE_Verzeichnis, b.g.Programmverzeichnis);
    EXPECT_EQ(b.g.Datei_Verzeichnis, b.g.Programmverzeichnis);
    EXPECT_FALSE(ist_fehler(ende(b.g)));
    EXPECT_TRUE(Profil(hilfen::lesen(b.einstellungen("Documents"))).hat("START", "PKZ"));
    EXPECT_TRUE(b.schirm.gezeigt.empty()) << b.schirm.einzige();
}

TEST(Start, NeuerungenStehenInEinerDateiDerProgramme)
{
    Benutzer b;
    b.g.EXE_Verzeichnis = b.heim.dos();
    const std::string pfad = utf8_aus_1252(b.heim.dos()) + "\\Jorv-Neuerungen.txt";
    EXPECT_EQ(utf8_aus_1252(Neuerungen_lesen(b.g).text), "    >>> Fehler <<<\n    " + pfad + "\n    nicht gefunden!");
    hilfen::schreiben(b.heim.host() / "Jorv-Neuerungen.txt", "eins\r\nzwei");
    EXPECT_EQ(Neuerungen_lesen(b.g).text, "eins\nzwei");
    EXPECT_FALSE(Neuerungen_lesen(b.g).fehlt);
    fs::remove(b.heim.host() / "Jorv-Neuerungen.txt");
    fs::create_directory(b.heim.host() / "Jorv-Neuerungen.txt");
    EXPECT_EQ(Neuerungen_lesen(b.g).text, "");
    EXPECT_EQ(b.schirm.einzige(), "Die Datei:\n" + pfad + "\nkonnte nicht richtig gelesen werden!");
}

TEST(Start, NeuerungenKommenZwischenKatalogUndKarteSolangeSieGewuenschtSind)
{
    Benutzer b;
    int gezeigt = 0;
    for (const char* hinweis : {"1", " 1,0", "0", "", "2"}) {
        b.g.Hinweis1 = hinweis;
        b.g.ErstStart = "0.9";
        erste_aktivierung(b.g, [&] {
            ++gezeigt;
            EXPECT_EQ(b.g.ErstStart, "0.9");
        });
        EXPECT_EQ(b.g.ErstStart, "1.0");
    }
    EXPECT_EQ(gezeigt, 2);
}

TEST(Start, EinEditorDenDieDateienNichtNennenKoennenWirdAbgelehnt)
{
    Benutzer b;
    EXPECT_FALSE(ist_fehler(Editor_setzen(b.g, b.heim.host() / "kate")));
    EXPECT_EQ(b.g.Editor, b.heim.dos() + "\\kate");
    EXPECT_TRUE(ist_fehler(Editor_setzen(b.g, hilfen::p8("/opt/\u0416/kate"))));
    EXPECT_EQ(b.schirm.einzige(),
              "Das Programm:\n/opt/?/kate\nkann in JorvPlus nicht verwendet werden (Zeichen im Namen)!");
    EXPECT_EQ(b.g.Editor, b.heim.dos() + "\\kate");
}

TEST(Start, EinBildWirdGanzGesichertOderGarNicht)
{
    Benutzer b;
    EXPECT_FALSE(ist_fehler(Bild_sichern(b.g, b.heim.host() / "karte.svg", "<svg/>")));
    EXPECT_EQ(hilfen::lesen(b.heim.host() / "karte.svg"), "<svg/>");
    EXPECT_TRUE(ist_fehler(Bild_sichern(b.g, b.heim.host(), "<svg/>")));
    EXPECT_EQ(b.schirm.einzige(), "Das Bild:\n" + b.heim.host().string() + "\nkonnte nicht gespeichert werden!");
}

TEST(Start, DerDokumenteordnerFolgtDemSchreibtisch)
{
    NUR_MIT_EIGENEM_DOKUMENTEORDNER;
    Benutzer deutsch;
    fs::create_directory(deutsch.heim.host() / "Dokumente");
    ASSERT_FALSE(ist_fehler(start(deutsch.g)));
    EXPECT_TRUE(fs::exists(deutsch.einstellungen("Dokumente").parent_path()));

    Benutzer eigener;
    hilfen::schreiben(eigener.heim.host() / ".config" / "user-dirs.dirs", "# x\nXDG_DOCUMENTS_DIR=\"$HOME/Büro\"\n");
    ASSERT_FALSE(ist_fehler(start(eigener.g)));
    EXPECT_TRUE(fs::exists(eigener.einstellungen("Büro").parent_path()));
}

TEST(Start, EinOrdnerDerNichtAnzulegenIstBeendetDenStart)
{
    NUR_MIT_EIGENEM_DOKUMENTEORDNER;
    Benutzer b;
    hilfen::schreiben(b.heim.host() / "Documents", "eine Datei steht im Weg");
    EXPECT_TRUE(ist_fehler(start(b.g)));
    EXPECT_EQ(b.schirm.einzige(), "Fehlendes Verzeichnis für die Datei JorvPlus.INI:\n" +
                                      utf8_aus_1252(Laufwerke().dos(b.heim.host()).value()) +
                                      "\\Documents\\Melvikon.kor\nkonnte nicht angelegt werden!\n\n"
                                      "Evtl. fehlender Speicherplatz oder mangelnde Rechte!");
}

TEST(Start, EineAltedateiImProgrammordnerWirdEinmalUebernommen)
{
    NUR_MIT_EIGENEM_DOKUMENTEORDNER;
    Benutzer b;
    const Arbeitsordner programm;
    const fs::path alt = programm.host() / "JorvPlus.INI";
    hilfen::schreiben(alt, "[START]\r\nEditor=joe\r\n");
    ASSERT_FALSE(ist_fehler(start(b.g, {"", programm.dos()})));
    EXPECT_EQ(b.g.Editor, "joe");
    EXPECT_FALSE(fs::exists(alt));
}

TEST(Start, EineGenannteEinstellungsdateiGiltAlleinUndNamenAusFremdenSchriftenWerdenAbgelehnt)
{
    Benutzer b;
    const Arbeitsordner programm;
    const fs::path alt = programm.host() / "JorvPlus.INI";
    hilfen::schreiben(alt, "[START]\r\nEditor=joe\r\n");
    const std::string datei = b.heim.dos() + "\\neu\\eigene.ini";
    ASSERT_FALSE(ist_fehler(start(b.g, {datei, programm.dos()})));
    EXPECT_EQ(b.g.Einstellungsdatei, datei);
    EXPECT_EQ(b.g.Editor, "Notepad.exe");
    EXPECT_TRUE(fs::exists(alt));

#ifndef _WIN32  // which tells the documents folder of whoever runs the test
    Benutzer fremd;
    fremd.home.setzen((fremd.heim.host() / "\xE4\xB8\xAD").string());
    EXPECT_TRUE(ist_fehler(start(fremd.g)));
    EXPECT_NE(fremd.schirm.einzige().find("kann in JorvPlus nicht verwendet werden (Zeichen im Namen)!"),
              std::string::npos);
#endif
}

TEST(Start, EinAbgestuerztesProgrammHinterlaesstNichts)
{
    NUR_MIT_EIGENEM_DOKUMENTEORDNER;
    Benutzer b;
    const fs::path rest = b.einstellungen("Documents").parent_path() / ".JorvPlus.INI.jorv-999999999-0";
    hilfen::schreiben(rest, "halb");
    ASSERT_FALSE(ist_fehler(start(b.g)));
    EXPECT_FALSE(fs::exists(rest));
}

}  // namespace jorv
