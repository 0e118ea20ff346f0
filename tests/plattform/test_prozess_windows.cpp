#include "plattform/prozess.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <cstdio>

#include "hilfen/Projekt.h"
#include "hilfen/Umgebung.h"
#include "plattform/umgebung.h"

namespace jorv {

namespace fs = std::filesystem;
using hilfen::Arbeitsordner;

namespace {

fs::path batch(const Arbeitsordner& ordner, const std::string& name, const std::string& zeilen)
{
    const fs::path pfad = ordner.host() / name;
    hilfen::schreiben(pfad, "@echo off\r\n" + zeilen + "\r\n");
    return pfad;
}

fs::path dieses_programm()
{
    return programm_ordner() / "test_plattform.exe";
}

// Whether nobody appends to the file any more.
bool ruht(const fs::path& datei)
{
    const auto vorher = fs::file_size(datei);
    Sleep(500);
    return fs::file_size(datei) == vorher;
}

const std::string endlos = ":a\r\necho x>> wachs.txt\r\ngoto a";

}  // namespace

TEST(Prozess, StatusFehlerausgabeUndOrdnerKommenZurueck)
{
    const Arbeitsordner ordner;
    const auto ende = programm_ausfuehren(batch(ordner, "kind.bat", "cd>&2\r\necho %1>&2\r\necho weg\r\nexit 7"),
                                          {"a b"}, ordner.host(), 10);
    EXPECT_TRUE(ende.gestartet);
    EXPECT_EQ(ende.status, 7);
    EXPECT_EQ(ende.fehlerausgabe, ordner.dos() + "\r\n\"a b\"\r\n");
    EXPECT_FALSE(programm_ausfuehren(ordner.host() / "fehlt.exe", {}, ordner.host(), 10).gestartet);
    EXPECT_FALSE(programm_ausfuehren(ordner.host() / "kind.bat", {}, ordner.host() / "fehlt", 10).gestartet);
}

TEST(Prozess, WorteKommenUnveraendertAn)
{
    const Arbeitsordner ordner;
    const std::vector<std::string> worte = {"--gtest_filter=Prozess.DISABLED_worte_zeigen",
                                            "--gtest_also_run_disabled_tests",
                                            "c\"d",
                                            "a\\",
                                            "a b\\",
                                            "a\\\"b",
                                            "",
                                            "ä ö",
                                            "a b\\\\",
                                            "*",
                                            "\u4e2d"};
    std::string erwartet;
    for (const auto& wort : worte) erwartet += wort + "|";
    EXPECT_EQ(programm_ausfuehren(dieses_programm(), worte, ordner.host(), 20).fehlerausgabe, erwartet);
}

// The program that the test above starts.
TEST(Prozess, DISABLED_worte_zeigen)
{
    for (const auto& wort : programmworte(0, nullptr)) std::fprintf(stderr, "%s|", wort.c_str());
}

TEST(Prozess, EinHaengendesKindEndetMitAllemWasEsStartet)
{
    const Arbeitsordner ordner;
    batch(ordner, "enkel.bat", endlos);
    const auto beginn = std::chrono::steady_clock::now();
    const auto ende = programm_ausfuehren(batch(ordner, "kind.bat", "cmd /c enkel.bat"), {}, ordner.host(), 6);
    EXPECT_TRUE(ende.zeit_abgelaufen);
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(12));
    ASSERT_TRUE(fs::exists(ordner.host() / "wachs.txt"));
    EXPECT_TRUE(ruht(ordner.host() / "wachs.txt"));
}

// Whoever ends the program ends the batch, also one that can't be asked.
TEST(Prozess, EinBatchEndetMitDemProgrammDasIhnStartet)
{
    const Arbeitsordner ordner;
    batch(ordner, "lauf.bat", endlos);
    const hilfen::Umgebungswert auftrag("JORV_TEST_BATCH", ordner.host().string() + "\\lauf.bat");
    std::wstring zeile = L"\"" + dieses_programm().wstring() +
                         L"\" --gtest_filter=Prozess.DISABLED_batch_starten "
                         L"--gtest_also_run_disabled_tests";
    STARTUPINFOW auskunft{};
    auskunft.cb = sizeof auskunft;
    PROCESS_INFORMATION kind{};
    ASSERT_TRUE(CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &auskunft, &kind));
    const fs::path zeichen = ordner.host() / "wachs.txt";
    for (int i = 0; i < 1000 && !fs::exists(zeichen); ++i) Sleep(10);
    TerminateProcess(kind.hProcess, 1);
    WaitForSingleObject(kind.hProcess, INFINITE);
    CloseHandle(kind.hThread);
    CloseHandle(kind.hProcess);
    ASSERT_TRUE(fs::exists(zeichen));
    Sleep(200);
    EXPECT_TRUE(ruht(zeichen));
}

// The program that the test above ends.
TEST(Prozess, DISABLED_batch_starten)
{
    const auto batch = umgebungsordner("JORV_TEST_BATCH");
    (void)prozess_warten(Dateisystem(), Laufwerke().dos(batch).value());
}

TEST(Prozess, EinKindDasStroemeOffenLaesstHaeltNichtAuf)
{
    const Arbeitsordner ordner;
    batch(ordner, "enkel.bat", endlos);
    const auto beginn = std::chrono::steady_clock::now();
    const auto ende =
        programm_ausfuehren(batch(ordner, "kind.bat", "start /b cmd /c enkel.bat\r\nexit 3"), {}, ordner.host(), 20);
    EXPECT_EQ(ende.status, 3);
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(15));
}

// Nobody sits before a batch: a `pause` finds the end of its input.
TEST(Prozess, EinBatchLaeuftInSeinemOrdnerUndWartetAufKeineTaste)
{
    const Arbeitsordner ordner("Süd (1) & Nord");
    batch(ordner, "lauf.bat", "pause\r\necho fertig> da.txt");
    int atemzuege = 0;
    EXPECT_TRUE(prozess_warten(Dateisystem(), "\"" + ordner.dos() + "\\lauf.bat\"", [&] { ++atemzuege; }));
    EXPECT_EQ(hilfen::lesen(ordner.host() / "da.txt"), "fertig\r\n");
    EXPECT_GT(atemzuege, 0);
    EXPECT_FALSE(prozess_warten(Dateisystem(), "\"" + ordner.dos() + "\\fehlt.exe\""));
}

}  // namespace jorv
