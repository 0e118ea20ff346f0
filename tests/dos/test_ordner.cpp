// Drives and directories.
#include <gtest/gtest.h>

#include "dos/probe.h"

namespace jorv::dos::test {
namespace {

TEST(Ordner, wechseln)
{
    struct Fall {
        std::string_view zeilen, ende;
        int meldungen = 0;
    };
    const Fall faelle[] = {
        {"cd Unter Ordner ", "D:\\Prüf a b\\Unter Ordner"},
        {"cd \"Unter Ordner\"", "D:\\Prüf a b\\Unter Ordner"},
        {"cd \\Prüf a b\\unter ORDNER\\Ö", "D:\\Prüf a b\\unter ORDNER\\Ö"},
        {"cd\\\ncd PRÜF a b", "D:\\PRÜF a b"},
        {"cd Unter Ordner\\Ö\ncd ..", "D:\\Prüf a b\\Unter Ordner"},
        {"cd..\ncd..\ncd ..", "D:\\"},
        {"cd Unter Ordner\\..\\.", "D:\\Prüf a b"},
        {"cd fehlt", "D:\\Prüf a b", 1},
        {"cd \\fehlt\\x\ncd Unter Ordner", "D:\\Prüf a b\\Unter Ordner", 1},
        {"cd datei.txt", "D:\\Prüf a b", 1},
        {"E:", "E:\\"},
        {"e:\\", "D:\\Prüf a b", 1},
        {"X:", "D:\\Prüf a b", 1},
        {"cd E:\\e1", "D:\\Prüf a b"},
        {"cd E:\\e1\nE:", "E:\\e1"},
        {"cd E:\\e1\nE:\ncd ..\nD:\ncd Unter Ordner\nE:\nD:", "D:\\Prüf a b\\Unter Ordner"},
        {"cd /d E:\\e1", "E:\\e1"},
        {"cd E:e1\nE:", "E:\\e1"},
        {"cd X:\\a", "D:\\Prüf a b", 1},
        {"\\\\server\ncd \\freigabe\\x", "D:\\Prüf a b", 2},
        {"cd \\\\server\\freigabe", "D:\\Prüf a b", 1},
    };
    for (const auto& fall : faelle) {
        Probe probe;
        probe.anlegen({"Unter Ordner\\Ö\\", "datei.txt=", "E:\\e1\\"});
        const auto ausgang = probe.lauf(std::string(fall.zeilen) + "\necho .>hier.txt\ncd");
        EXPECT_EQ(ausgang.aus, std::string(fall.ende) + "\r\n") << fall.zeilen;
        EXPECT_EQ(ausgang.meldungen, fall.meldungen) << fall.zeilen << ausgang.fehler;
        EXPECT_EQ(probe.inhalt(std::string(fall.ende) + "\\hier.txt"), ".\r\n") << fall.zeilen;
    }
}

TEST(Ordner, auf_einer_freigabe)
{
    Probe probe("\\\\server\\freigabe\\Prüf ä");
    probe.anlegen({"sub\\", "\\\\server\\freigabe\\neben\\"});
    const auto ausgang =
        probe.lauf("\\\\server\ncd \\freigabe\\Prüf ä\ncd\ncd sub\ncd\ncd \\neben\ncd\ncd ..\ncd ..\ncd\nD:\ncd\n");
    EXPECT_EQ(ausgang.aus,
              "\\\\server\\freigabe\\Prüf ä\r\n\\\\server\\freigabe\\Prüf ä\\sub\r\n\\\\server\\freigabe\\neben\r\n"
              "\\\\server\\freigabe\r\nD:\\\r\n");
    EXPECT_EQ(ausgang.meldungen, 2) << ausgang.fehler;
}

TEST(Ordner, anlegen_und_entfernen)
{
    baumfaelle_pruefen({
        {{}, "mkdir a\\b\\c\nmkdir d e", {"a\\b\\c\\", "d\\", "e\\"}},
        {{}, "mkdir \"a b\"\nmd ü", {"a b\\", "ü\\"}},
        {{"a\\x=1", "f="}, "mkdir A\nmkdir f\nmkdir f\\g", {"a\\x=1", "f="}, 3},
        {{}, "mkdir X:\\a\nmkdir", {}, 2},
        {{"a\\b\\c=1", "a\\d="}, "rmdir a /s/q", {}},
        {{"a\\b\\c=1"}, "rmdir /Q /S A", {}},
        {{"a b\\c=1", "c\\d="}, "rmdir /s/q \"a b\" c", {}},
        {{"a\\b=1"}, "rmdir a", {"a\\b=1"}, 1},
        {{"a\\"}, "rmdir a", {}},
        {{"a=1"}, "rmdir a /s/q\nrmdir b /s/q", {"a=1"}, 2},
        // Nobody is there to answer the question.
        {{"a\\b=1"}, "rmdir a /s", {"a\\b=1"}},
        // The directory that is in use, and a whole drive, stay.
        {{"a\\b=1"}, "cd a\nrmdir ..\\a /s/q\nrmdir .. /s/q\nrmdir \\ /s/q\ncd ..\nrmdir . /s/q", {"a\\b=1"}, 4},
    });
}

TEST(Ordner, ein_name_mit_nul_meint_keinen_anderen)
{
    Probe probe;
    probe.anlegen({"a\\b=1"});
    probe.lauf(std::string_view("rmdir /s/q \"..\0x\"\ndel /q a\0\\b\necho x > a\\b\0\nrmdir /s/q a\0\n", 58));
    EXPECT_EQ(probe.baum(), (std::vector<std::string>{"a\\b=1"}));
}

TEST(Ordner, schreibgeschuetztes_wird_mit_entfernt)
{
    Probe probe;
    probe.anlegen({"a\\b\\c=1"});
    std::filesystem::permissions(probe.ort("a\\b\\c"), std::filesystem::perms::owner_read);
    EXPECT_EQ(probe.lauf("if exist a rmdir a /s/q").meldungen, 0);
    EXPECT_TRUE(probe.baum().empty());
}

TEST(Ordner, hinter_einer_verknuepfung_bleibt_alles)
{
    Probe probe;
    probe.anlegen({"E:\\fremd=1", "a\\b=2"});
    std::filesystem::create_directory_symlink(probe.ort("E:\\"), probe.ort("a") / "nach_e");
    EXPECT_EQ(probe.lauf("rmdir a /s/q").meldungen, 0);
    EXPECT_TRUE(probe.baum().empty());
    EXPECT_EQ(probe.inhalt("E:\\fremd"), "1");
}

}  // namespace
}  // namespace jorv::dos::test
