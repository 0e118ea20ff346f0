// Lines, labels, conditions, redirection: what a batch prints and leaves.
#include <gtest/gtest.h>

#include "dos/probe.h"
#include "plattform/text.h"

namespace jorv::dos::test {
namespace {

TEST(Ablauf, was_gedruckt_wird)
{
    struct Fall {
        std::string_view zeilen, aus;
        int meldungen = 0;
    };
    const Fall faelle[] = {
        {"echo !\necho 1(3)\necho   a  b \n", "!\r\n1(3)\r\n  a  b \r\n"},
        {"echo.\necho.x\n@echo y\n", "\r\nx\r\ny\r\n"},
        {"echo -- I95-Auswertung...", "-- I95-Auswertung...\r\n"},
        {"echo läuft\necho schließt\n", "läuft\r\nschließt\r\n"},
        {"echo a&echo b\necho \"a&b\"\necho a^&b\n", "a\r\nb\r\n\"a&b\"\r\na&b\r\n"},
        {"REM echo a & echo b > f\nREM\nrem x\necho c", "c\r\n"},
        {"\n   \n\t\necho a\n\n", "a\r\n"},
        {"echo %PROBE% %probe% %nichts%x 5%% %1 %2", "Wert Wert x 5% eins zwei drei\r\n"},
        {"echo %JORV_A%", "ä\r\n"},
        {"  :marke\necho a\n:b echo nein\n", "a\r\n"},
        {"goto :ende\necho nein\n:ende2\necho nein\n:ende Kommentar\necho ja\n", "ja\r\n"},
        {"goto ENDE\n:ende2\necho nein\n:Ende\necho ja", "ja\r\n"},
        {"goto a\n:b\necho b\ngoto :eof\n:a\necho a\ngoto :b\n", "a\r\nb\r\n"},
        {":a\nif exist f goto :ende\necho b > f\ngoto a\n:a\necho hinten\n:ende\necho ende", "hinten\r\nende\r\n"},
        {":a\nif exist f goto eof\necho 1 > f\ngoto a\necho nein\n:eof\necho ende", "ende\r\n"},
        {"echo a\ngoto :fehlt\necho nein\n", "a\r\n", 1},
        {"echo a\ngoto :eof\necho nein\n", "a\r\n"},
        {"goto a & echo nein\n:a\necho ja\n", "ja\r\n"},
        {"pause\necho a\n", "Weiter mit einer beliebigen Taste . . .\r\na\r\n"},
        {"echo a | type f\n", "", 1},
        {"gibtesnicht x\necho weiter\n", "weiter\r\n", 1},
        {"echo a && echo b\ntype f && echo nein\ntype f || echo c\n", "a \r\nb\r\nc\r\n", 2},
        {"@echo on\n@echo off\nECHO a\n", "a\r\n"},
        {"echo on\necho a\n@echo off\nREM still\n", "\r\nD:\\Prüf a b>echo a\r\na\r\n"},
    };
    for (const auto& fall : faelle) {
        Probe probe;
        const auto ausgang = probe.lauf(fall.zeilen, {"eins", "zwei drei"});
        EXPECT_TRUE(ausgang.gelesen);
        EXPECT_EQ(ausgang.aus, fall.aus) << fall.zeilen;
        EXPECT_EQ(ausgang.meldungen, fall.meldungen) << fall.zeilen << "\n" << ausgang.fehler;
    }
}

TEST(Ablauf, zeilenenden)
{
    for (const std::string_view bytes : {"echo a\necho b", "echo a\r\necho b\r\n", "echo a\r\n\r\n\necho b"}) {
        Probe probe;
        probe.anlegen({verkettet("L.BAT=", bytes)});
        EXPECT_EQ(probe.lauf("L.BAT").aus, "a\r\nb\r\n");
    }
}

TEST(Ablauf, fehlende_batchdatei)
{
    Probe probe;
    EXPECT_FALSE(Stapel(probe.umfeld).ausfuehren("D:\\fehlt.bat"));
}

TEST(Ablauf, wenn_vorhanden)
{
    struct Fall {
        std::string_view bedingung;
        bool wahr;
    };
    const Fall faelle[] = {
        {"exist 001.LIS", true},
        {"EXIST \"001.lis\"", true},
        {"exist jorv_out", true},
        {"exist jorv_out\\", true},
        {"exist jorv_out\\pro_vrs", false},
        {"exist fehlt\\a.txt", false},
        {"exist fehlt\\*.*", false},
        {"exist virt*.*", true},
        {"exist VIRT092.??o", true},
        {"exist virt092.??n", false},
        {"exist jorv_*", true},
        {"exist \"mit blank.txt\"", true},
        {"exist müll.TXT", true},
        {"exist D:\\Prüf\" a b\"\\001.LIS", true},
        {"exist E:\\*", false},
        {"exist X:\\a", false},
        {"exist \\\\server\\freigabe", true},
    };
    for (const auto& fall : faelle) {
        Probe probe;
        probe.anlegen({"001.LIS=", "jorv_out\\", "virt092.05o=", "mit blank.txt=", "Müll.txt="});
        const auto zeilen = verkettet("if ", fall.bedingung, " echo ja\nif not ", fall.bedingung, " echo nein\n");
        const auto ausgang = probe.lauf(zeilen);
        EXPECT_EQ(ausgang.aus, fall.wahr ? "ja\r\n" : "nein\r\n") << fall.bedingung;
        EXPECT_EQ(ausgang.meldungen, 0);
    }
}

TEST(Ablauf, umlenkung)
{
    baumfaelle_pruefen({
        {{}, "echo a > f\necho b>> f\necho c >f2", {"f=a \r\nb\r\n", "f2=c \r\n"}},
        {{"F.txt=alt"}, "echo a > f.TXT", {"F.txt=a \r\n"}},
        {{"f=alt"}, "gibtesnicht > f", {"f="}, 1},
        {{}, "gibtesnicht >> f\nREM > g", {"f="}, 1},
        {{}, "echo a > fehlt\\f\necho b > f", {"f=b \r\n"}, 1},
        {{"b="}, "if exist a type a >> c\nif exist b type b >> d", {"b=", "d="}},
        {{},
         "type fehlt > f 2> g\nif exist g copy g h > nul",
         {"f=", "g=Die Datei ist nicht vorhanden: fehlt\r\n", "h=Die Datei ist nicht vorhanden: fehlt\r\n"}},
        {{}, "type fehlt > f 2>&1", {"f=Die Datei ist nicht vorhanden: fehlt\r\n"}},
        {{"d\\"}, "echo a > d", {"d\\"}, 1},
        {{}, "echo ä > \"ü b.txt\"", {"ü b.txt=\x84 \r\n"}},
        {{}, "echo a > f. ", {"f=a  \r\n"}},
        {{}, "echo a > X:\\f", {}, 1},
        {{}, "echo Text|type nichts > f", {"f="}, 1},
    });
}

TEST(Ablauf, geschuetzte_und_besondere_ziele)
{
    Probe probe;
    probe.anlegen({"f=alt"});
    std::filesystem::permissions(probe.ort("f"), std::filesystem::perms::owner_read);
    std::filesystem::create_symlink("/dev/zero", probe.ort(".") / "zero");
    const auto ausgang = probe.lauf("echo a >> f\necho a > zero\ntype zero\ncopy zero g\n");
    EXPECT_EQ(ausgang.meldungen, 4) << ausgang.fehler;
    EXPECT_EQ(probe.inhalt("f"), "alt");
    EXPECT_FALSE(std::filesystem::exists(probe.ort("g")));
}

TEST(Ablauf, eine_schleife_endet_an_der_grenze)
{
    Probe probe;
    probe.umfeld.zeilen_hoechstens = 6;
    EXPECT_EQ(probe.lauf(":a\necho x\ngoto a\n").aus, "x\r\nx\r\nx\r\n");
}

TEST(Ablauf, andere_batchdatei_ersetzt)
{
    Probe probe;
    probe.batch("zweite datei.BAT", "echo zwei %1 %0\n");
    probe.batch("drei.cmd", "echo drei\n");
    EXPECT_EQ(probe.lauf("echo eins\n\"D:\\Prüf a b\\zweite datei.BAT\" \"x y\"\necho nein\n").aus,
              "eins\r\nzwei x y D:\\Prüf a b\\zweite datei.BAT\r\n");
    EXPECT_EQ(probe.lauf("drei & echo nein\necho nein").aus, "drei\r\n");
    const auto ausgang = probe.lauf("\"D:\\Prüf a b\\fehlt.BAT\"\necho weiter\n");
    EXPECT_EQ(ausgang.aus, "weiter\r\n");
    EXPECT_EQ(ausgang.meldungen, 1);
    // The switched-off display and the current directory stay.
    probe.batch("D:\\vier.bat", "cd\nREM\n");
    EXPECT_EQ(probe.lauf("cd \\\nvier\n").aus, "D:\\\r\n");
}

}  // namespace
}  // namespace jorv::dos::test
