// Finding and starting programs.
#include "dos/programm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "dos/probe.h"
#include "plattform/kind_linux.h"
#include "plattform/prozess.h"
#include "plattform/text.h"

namespace jorv::dos::test {
namespace {

namespace fs = std::filesystem;

// A killed grandchild is reaped by the system's first process, which may take a moment.
bool endet(pid_t nummer)
{
    for (int i = 0; i < 500; ++i) {
        std::ifstream datei(verkettet("/proc/", nummer, "/stat"));
        std::string zustand;
        if (!std::getline(datei, zustand) || zustand.find(") Z") != std::string::npos) return true;
        ::usleep(10000);
    }
    return false;
}

TEST(Programm, argumente_ordner_und_umgebung)
{
    Probe probe;
    probe.anlegen({"unter ü\\"});
    probe.programm("zeig", "printf '<%s>' \"$@\"; pwd; echo \"$PROBE|$PATH\"; cat; echo F >&2; exit 7");
    const auto ausgang = probe.lauf(
        "cd unter ü\npath D:\\Hilfs programme;X:\\fehlt;\"E:\\\"\n"
        "zeig 0384,0585  \"a  b\" +Vvirt,ä.05o >> ..\\aus.txt\necho %errorlevel%\n");
    const std::string wurzel = fs::path(probe.ort("D:\\")).string();
    const std::string e = probe.ort("E:\\").string();
    EXPECT_EQ(probe.inhalt("aus.txt"), verkettet("<0384,0585><a  b><+Vvirt,ä.05o>", wurzel, "/Prüf a b/unter ü\nWert|",
                                                 wurzel, "/Hilfs programme:", e, ":/usr/bin:/bin\n"));
    EXPECT_EQ(ausgang.fehler, "F\n");
    EXPECT_EQ(ausgang.aus, "7\r\n");
}

TEST(Programm, suche)
{
    struct Fall {
        std::string_view wort, findet;
    };
    const Fall faelle[] = {
        {"wa2", "H wa2"},
        {"WA2", "H wa2"},
        {"wa2.exe", "H wa2"},
        {"WATIME", "H WATIME"},
        {"watime.EXE", "H WATIME"},
        {"RUNA.EXE", "H runa.exe"},
        {"runa", "H runa.exe"},
        {"beides", "H beides.com"},
        {"beides.exe", "H beides.exe"},
        {"hier", "A hier"},
        {"nurdaten", ""},
        {"ordner", ""},
        {"fehlt", ""},
        {"fehlt.exe", ""},
        {"\"D:\\Hilfs programme\\wa2\"", "H wa2"},
        {"D:\\wa2", ""},
        {".\\hier", "A hier"},
        {".\\wa2", ""},
        {"\\\\server", ""},
        {"\\\\server\\freigabe\\wa2", "S wa2"},
        {"weit", "E weit"},
    };
    Probe probe;
    for (const auto* name : {"wa2", "WATIME", "runa.exe", "runa", "beides.exe", "beides.com", "beides", "hier"})
        probe.programm(name, verkettet("echo H ", name));
    probe.anlegen({"hier=#!/bin/sh\necho A hier\n", "nurdaten=#!/bin/sh\necho nein\n", "ordner\\",
                   "E:\\weit=#!/bin/sh\necho E weit\n", "E:\\wa2=#!/bin/sh\necho nein\n",
                   "\\\\server\\freigabe\\wa2=#!/bin/sh\necho S wa2\n"});
    for (const auto* name : {"hier", "E:\\weit", "E:\\wa2", "\\\\server\\freigabe\\wa2"})
        fs::permissions(probe.ort(name), fs::perms::owner_all);
    for (const auto& fall : faelle) {
        const auto ausgang = probe.lauf(verkettet("path %path%;E:\\\n", fall.wort));
        EXPECT_EQ(ausgang.aus, fall.findet.empty() ? "" : verkettet(fall.findet, "\n")) << fall.wort;
        EXPECT_EQ(ausgang.meldungen, fall.findet.empty() ? 1 : 0) << fall.wort << ausgang.fehler;
    }
}

// Folders of the search path are read once; what comes or goes while a batch runs must show all the same.
TEST(Programm, suche_waehrend_der_batch_einrichtet)
{
    Probe probe;
    probe.programm("anlegen", "printf '#!/bin/sh\\necho da\\n' > \"$1\" && chmod +x \"$1\"");
    probe.programm("entfernen", "rm \"$1\"");
    const std::string e = probe.ort("E:\\").string();
    const auto ausgang =
        probe.lauf(verkettet("path %path%;E:\\\nspaet\necho %errorlevel%\nanlegen \"", e,
                             "/spaet\"\nspaet\nentfernen \"", e, "/spaet\"\nspaet\necho %errorlevel%"));
    EXPECT_EQ(ausgang.aus, "9009\r\nda\n9009\r\n") << ausgang.fehler;
}

TEST(Programm, nicht_gefunden_ist_9009)
{
    Probe probe;
    EXPECT_EQ(probe.lauf("fehlt\necho %errorlevel%").aus, "9009\r\n");
    probe.anlegen({"kaputt=kein Programm"});
    fs::permissions(probe.ort("kaputt"), fs::perms::owner_all);
    const auto ausgang = probe.lauf("kaputt\necho weiter");
    EXPECT_EQ(ausgang.aus, "weiter\r\n");
    EXPECT_EQ(ausgang.meldungen, 1);
}

TEST(Programm, rohr_und_eingabe)
{
    Probe probe;
    probe.programm("gross", "tr a-z A-Z");
    probe.anlegen({"ein=abc"});
    EXPECT_EQ(probe.lauf("gross < ein\necho xyz|gross\necho a|gross|gross > f").aus, "ABCXYZ\r\n");
    EXPECT_EQ(probe.inhalt("f"), "A\r\n");
    EXPECT_EQ(probe.lauf("gross < fehlt").meldungen, 1);
}

TEST(Programm, frist_beendet_auch_enkel)
{
    Probe probe;
    probe.umfeld.frist = std::chrono::seconds(1);
    probe.programm("haengt", "sleep 1000 & echo $! > enkel.txt; wait");
    const auto ausgang = probe.lauf("haengt\necho weiter");
    EXPECT_EQ(ausgang.aus, "weiter\r\n");
    EXPECT_THAT(ausgang.fehler, testing::HasSubstr("nach 1 Sekunden beendet"));
    EXPECT_TRUE(endet(std::stoi(probe.inhalt("enkel.txt"))));
}

// However the interpreter is ended, the programs of the interpreter that its batch runs end too, with their children.
TEST(Programm, niemand_ueberlebt_den_abbruch)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
        if (signal != SIGKILL) ::signal(signal, SIG_DFL);
        Probe probe;
        probe.programm("haengt", "sleep 1000 & echo $! > neu.txt; mv neu.txt enkel.txt; wait");
        probe.batch("innen.bat", "haengt\n");
        probe.programm("weiter", "exec " JORV_PROGRAMME "/jorv-dos innen.bat");
        probe.batch("aussen.bat", "weiter\n");
        const std::string pfad = verkettet("PATH=", probe.ort("D:\\Hilfs programme").string(), ":/usr/bin:/bin");
        Kind aussen(Prozessaufrufe::echte(),
                    {JORV_PROGRAMME "/jorv-dos", {"aussen.bat"}, probe.ort("D:\\Prüf a b"), {pfad}});
        ASSERT_TRUE(aussen.gestartet());
        for (int i = 0; i < 500 && probe.inhalt("enkel.txt").empty(); ++i) ::usleep(10000);
        const std::string enkel = probe.inhalt("enkel.txt");
        ASSERT_FALSE(enkel.empty());
        ::kill(aussen.nummer(), signal);
        EXPECT_EQ(aussen.einsammeln(), 128 + signal);
        EXPECT_TRUE(endet(std::stoi(enkel))) << signal;
    }
}

TEST(Programm, suchpfad_des_rechners)
{
    Probe probe;
    const auto& laufwerke = probe.umfeld.dateien.laufwerke();
    const std::string d = probe.ort("D:\\").string();
    EXPECT_EQ(suchpfad_aus_host(laufwerke, verkettet("/usr/bin::", d, "/a b:/opt/\xE6\x97\xA5:/x;y:/r&d")),
              "Z:\\usr\\bin;D:\\a b;\"Z:\\x;y\";\"Z:\\r&d\"");
    probe.umfeld.suchpfad = "Z:\\usr\\bin;D:\\a b;;\"Z:\\x;y\"; E:\\ ;";
    EXPECT_EQ(suchpfad_nach_host(probe.umfeld), verkettet("/usr/bin:", d, "/a b:/x;y:", probe.ort("E:\\").string()));
}

TEST(Programm, jorv_dos_aufruf)
{
    struct Fall {
        std::vector<std::string> worte;
        int status;
        std::string_view aus;
    };
    Probe probe;
    probe.batch("zeig.bat", "@echo off\necho %1-%2> aus.txt\ncd>> aus.txt\n");
    const std::string host = probe.ort("zeig.bat").string();
    const std::string voll = verkettet("Z:", ersetzt(host, '/', '\\'));
    const std::string hier = verkettet("Z:", ersetzt(probe.ort("E:\\").string(), '/', '\\'), "\r\n");
    const Fall faelle[] = {
        {{host}, 0, "-"},
        {{voll, "ä b", "c"}, 0, "\x84 b-c"},
        {{"../d/Prüf a b/zeig.bat", "x"}, 0, "x-"},
        {{"..\\d\\PRÜF a b\\Zeig.BAT"}, 0, "-"},
        {{"--frist", "5", host}, 0, "-"},
        {{"fehlt.bat"}, 1, ""},
        {{"Q:\\fehlt.bat"}, 1, ""},
        {{}, 2, ""},
        {{"--frist", "x", host}, 2, ""},
        {{"--frist", "0", host}, 2, ""},
        {{"--anders", host}, 2, ""},
    };
    for (const auto& fall : faelle) {
        std::error_code fehler;
        fs::remove(probe.ort("E:\\aus.txt"), fehler);
        const auto ende = jorv::programm_ausfuehren(JORV_PROGRAMME "/jorv-dos", fall.worte, probe.ort("E:\\"), 20);
        EXPECT_EQ(ende.status, fall.status) << testing::PrintToString(fall.worte);
        EXPECT_EQ(ende.fehlerausgabe.empty(), fall.status == 0);
        EXPECT_EQ(probe.inhalt("E:\\aus.txt"), fall.status == 0 ? verkettet(fall.aus, "\r\n", hier) : "");
    }
}

TEST(Programm, jorv_dos_mit_einem_ordner_an_stelle_des_anderen)
{
    Probe probe;
    probe.anlegen({"hier=alt\r\n", "E:\\hier=neu\r\n", "E:\\unter\\"});
    const std::string ordner = verkettet("Z:", ersetzt(probe.ort("").string(), '/', '\\'));
    probe.batch("E:\\zeig.bat",
                verkettet("@echo off\nZ:\ncd ", ordner, "\ntype hier>> aus.txt\ntype \"", ordner,
                          "\\hier\">> unter\\..\\aus.txt\ncd>> aus.txt\ncopy aus.txt ", "unter\\zwei.txt\n"));
    const std::string statt = probe.ort("E:\\").string();
    const auto ende =
        jorv::programm_ausfuehren(JORV_PROGRAMME "/jorv-dos", {"--statt", statt, ordner + "\\zeig.bat"}, statt, 20);
    EXPECT_EQ(ende.status, 0) << ende.fehlerausgabe;
    EXPECT_EQ(probe.inhalt("E:\\unter\\zwei.txt"),
              verkettet("neu\r\nneu\r\n", ersetzt(ordner, "\xC3\xBC", "\x81"), "\r\n"));
    EXPECT_EQ(probe.inhalt("hier"), "alt\r\n");
    EXPECT_FALSE(fs::exists(probe.ort("aus.txt")));
}

}  // namespace
}  // namespace jorv::dos::test
