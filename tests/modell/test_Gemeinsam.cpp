#include "modell/Gemeinsam.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "modell/Batchzeilen.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

using hilfen::Pruefstand;

TEST(Gemeinsam, PfadeWerdenInDerMitteGekuerzt)
{
    struct Fall {
        const char* pfad;
        int breite;
        const char* kurz;
    };
    const Fall faelle[] = {{"D:\\a\\b", 10, "D:\\a\\b"},
                           {"D:\\eins\\zwei\\drei\\vier", 16, "D:\\...\\drei\\vier"},
                           {"D:\\eins\\zwei\\drei\\vier", 15, "D:\\...\\vier"},
                           {"\\\\server\\frei\\lang\\ziel", 20, "\\\\server\\...\\ziel"},
                           {"D:\\x\\einlangername", 9, "einlan..."},
                           {"D:\\x\\einlangername", 3, "..."},
                           {"D:\\x\\einlangername", 0, ""}};
    for (const auto& fall : faelle)
        EXPECT_EQ(pfad_kuerzen(fall.pfad, fall.breite), fall.kurz) << fall.pfad << fall.breite;
}

TEST(Gemeinsam, DosTextNimmtCodepage850)
{
    EXPECT_EQ(dos_text(u8"äÄöÖüÜß§°´ é"_w), "\x84\x8E\x94\x99\x81\x9A\xE1\xF5\xF8\xEF \xE9");
}

TEST(Gemeinsam, NummernWerdenVonVornVergeben)
{
    Pruefstand p;
    for (const char* nummer : {"002", "004"}) {
        Verfahren_Satz v;
        v.Nummer = nummer;
        v.Name = std::string("N") + nummer;
        EXPECT_TRUE(p.g.Verfahren.anfuegen(v));
    }
    EXPECT_EQ(naechste_Nummer(p.g), "003");
    EXPECT_EQ(Nummer_zu_Name(p.g, "N004"), "004");
    EXPECT_EQ(Nummer_zu_Name(p.g, "gibt es nicht"), "000");
    EXPECT_EQ(Name_zu_Nummer(p.g, "002"), "N002");
    for (int n = 1; n <= 999; ++n) {
        Verfahren_Satz v;
        v.Nummer = zahl_format_fuell(n, "000", "0");
        EXPECT_TRUE(p.g.Verfahren.anfuegen(v));
    }
    EXPECT_EQ(naechste_Nummer(p.g), "000");
}

TEST(Gemeinsam, AllIniLeertAllesAusserDenBasislinienUndMeldetEnge)
{
    Pruefstand p;
    EXPECT_TRUE(p.g.OBS_R.anfuegen() && p.g.BASISLINIE.anfuegen() && p.g.RINEX_Dateien.anfuegen("x"));
    EXPECT_FALSE(ist_fehler(all_ini(p.g)));
    EXPECT_EQ(p.g.OBS_R.anzahl() + p.g.RINEX_Dateien.anzahl(), 0);
    EXPECT_EQ(p.g.BASISLINIE.anzahl(), 1);
    p.g.V_Punkt.grenze_setzen(-1);
    EXPECT_TRUE(ist_fehler(all_ini(p.g)));
    EXPECT_EQ(p.schirm.einzige(),
              "Dimensionierungsfehler! (70 in all_ini)\nevtl. Speicherplatzprobleme\n\n"
              "Offene Anwendungen schließen und erneut versuchen!");
}

TEST(Gemeinsam, DatumSetzenStempeltNurDasOffeneVerfahren)
{
    Pruefstand p;
    p.g.Verfahren[1].LetztDatum = "alt";
    p.g.Verfahrensname.clear();
    Datum_setzen(p.g);
    EXPECT_EQ(p.g.Verfahren[1].LetztDatum, "alt");
    p.g.Verfahrensname = "Muster";
    Datum_setzen(p.g);
    EXPECT_EQ(p.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
    p.g.Verfahren[1].Antenne = "AXT";
    EXPECT_EQ(Antennenformat(p.g), "ATX");
}

TEST(Batchzeilen, FuehrenInDenOrdner)
{
    EXPECT_EQ(batch_laufwerk("D:\\a b\\c"), "D:");
    EXPECT_EQ(batch_cd(u8"D:\\a b\\Süd"_w),
              "cd \\a b\\S\x81"
              "d");
    EXPECT_EQ(batch_laufwerk("\\\\srv\\frei\\p"), "\\\\srv");
    EXPECT_EQ(batch_cd("\\\\srv\\frei\\p"), "cd \\frei\\p");
    EXPECT_EQ(batch_path(u8"C:\\Süd"_w),
              "path %path%;C:\\S\x81"
              "d");
    // What the interpreter would take for itself reaches the command as it is.
    EXPECT_EQ(batch_cd("D:\\Wald & Wiese\\50% ^(x)"), "cd \\Wald ^& Wiese\\50%% ^^(x)");
    EXPECT_TRUE(batch_aufruf("D:\\a & 5%\\1.BAT").ends_with("\"D:\\a & 5%%\\1.BAT\"\r\n"));
}

TEST(Meldungen, WortfamilieHatDreiFormen)
{
    const Wertname x{"Konvertierungsfehler beim X-Wert", "X-Wert", "X-Wert"};
    const std::string ende =
        std::string("\na.05o\nin Zeile: 7\n\n") + std::string(u8"Datei überprüfen und ggf. neu versuchen!"_w);
    EXPECT_EQ(wort_meldung(x, Wortfehler::konvertierung, "a.05o", 7),
              "Konvertierungsfehler beim X-Wert in der Datei:" + ende);
    EXPECT_EQ(wort_meldung(x, wortfehler(Wortstatus::leer), "a.05o", 7), "X-Wert fehlt in der Datei:" + ende);
    EXPECT_EQ(wort_meldung(x, wortfehler(Wortstatus::fehlerhaft), "a.05o", 7),
              "X-Wert fehlerhaft in der Datei:" + ende);
}

}  // namespace jorv
