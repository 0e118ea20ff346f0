// The whole way from the command to the solver, with stand-ins for the solver that misbehave: no hang, no number, a
// line in the protocol that says why, and nothing that goes on behind an ended program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>

#include "ganz/Beispielplatz.h"
#include "plattform/kind_linux.h"

namespace jorv {
namespace {

using hilfen::Beispielplatz;
using hilfen::lesen;
using hilfen::schreiben;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

const std::string rover = "55041670.16o";

// One rover that can be computed, and a folder in front of the search path for the stand-in.
struct Loeserplatz : Beispielplatz {
    Loeserplatz()
    {
        gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
        std::vector<std::string> dateien = {"rinex", "1", "beispiel/rinex/" + rover};
        for (const char* station : {"0590", "0591", "0593"})
            for (const char* art : {"o", "n"}) dateien.push_back(verkettet("beispiel/rinex/", station, "1670.16", art));
        gut(dateien);
        gut({"figur", "1", "0590", "0591", "0593"});
    }
    ~Loeserplatz()
    {
        ::setenv("PATH", m_suchpfad.c_str(), 1);
        ::unsetenv("JORV_FRIST");
    }
    Loeserplatz(const Loeserplatz&) = delete;
    Loeserplatz& operator=(const Loeserplatz&) = delete;

    // An empty script: there is no solver at all.
    void loeser(const std::string& skript, const char* frist) const
    {
        fs::remove_all(host("feind"));
        fs::create_directories(host("feind"));
        if (!skript.empty()) {
            schreiben(host("feind/rnx2rtkp"), "#!/bin/sh\n" + skript + "\n");
            fs::permissions(host("feind/rnx2rtkp"), fs::perms::owner_all);
        }
        ::setenv("PATH", (host("feind").string() + (skript.empty() ? "" : ":/usr/bin:/bin")).c_str(), 1);
        ::setenv("JORV_FRIST", frist, 1);
    }

private:
    std::string m_suchpfad = std::getenv("PATH");
};

TEST(Ganz_FeindlicherLoeser, GibtKeineZahlUndEineZeileImProtokoll)
{
    const Loeserplatz platz;
    const struct {
        const char* was;
        std::string skript;
        const char* meldung;
    } faelle[] = {{"missing", "", "nicht gefunden"},
                  {"hangs and can't be asked to end", "trap '' TERM; sleep 100 & wait", "abgebrochen"},
                  {"crashes", "kill -SEGV $$", "Status 139"},
                  {"status", "exit 3", "Status 3"},
                  {"writes errors without end", "yes >&2", "abgebrochen"},
                  {"rubbish", "head -c 100000 /bin/sh > o.pos; cp o.pos o.pos.stat", "lieferte keine"},
                  {"half a file", "printf '2016/06/15 10:00:00.000  3783000.12' > o.pos", "lieferte keine"},
                  {"the centre of the earth",
                   "for i in 1 2 3 4 5 6 7 8 9; do printf "
                   "'2016/06/15 10:00:0'$i'.000 0 0 0 1 9 .001 .001 .001 0 0 0 0 99\\n'; done > o.pos",
                   "ERROR: "}};
    for (const auto& fall : faelle) {
        platz.loeser(fall.skript, "3");
        const auto beginn = std::chrono::steady_clock::now();
        const auto lauf = platz.jorv({"auswerten", "1"});
        EXPECT_EQ(lauf.status, 1) << fall.was << lauf.err;
        EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(20)) << fall.was;
        EXPECT_THAT(lauf.aus, HasSubstr("keine Lösung")) << fall.was;
        const std::string protokoll = lesen(platz.host("verfahren/jorv_out/lis_rov/" + rover + ".LIS"));
        EXPECT_THAT(protokoll, HasSubstr("ERROR: ")) << fall.was;
        EXPECT_THAT(protokoll, HasSubstr(fall.meldung)) << fall.was;
        EXPECT_FALSE(fs::exists(platz.host("verfahren/jorv_out/dat_rov/" + rover + ".UTM"))) << fall.was;
    }
}

// Of folder and files: the batch and the solver's call must take them as they are.
TEST(Ganz_FeindlicherLoeser, NamenVollerSonderzeichen)
{
    const Loeserplatz platz;
    const std::string ort = "beispiel/rinex/";
    const std::string name = "5&%41670.16o";
    fs::copy_file(platz.host(ort + rover), platz.host(ort + name));
    int nummer = 1;
    for (const char* ordner : {"50% fest; \u00e4&b (x) ^y! #z", "mit %PATH% und 'x'", "Stra\u00dfe%1,%%;=~"}) {
        const std::string nr = std::to_string(++nummer);
        platz.gut({"neu", "Verfahren" + nr, "--modus", "E", "--verzeichnis", ordner});
        platz.gut({"antennen", nr, "beispiel/antennen/antennen.atx"});
        platz.gut({"rinex", nr, ort + name, ort + rover, ort + "05901670.16o", ort + "05901670.16n",
                   ort + "05911670.16o", ort + "05931670.16o"});
        platz.gut({"figur", nr, "0590", "0591", "0593"});
        const auto lauf = platz.jorv({"auswerten", nr});
        EXPECT_EQ(lauf.status, 0) << ordner << lauf.err;
        for (const std::string& einer : {name, rover}) EXPECT_THAT(lauf.aus, HasSubstr(einer + "  FixedL1")) << ordner;
    }
}

bool endet(pid_t nummer)
{
    for (int i = 0; i < 500; ++i) {
        const std::string zustand = lesen("/proc/" + std::to_string(nummer) + "/stat");
        if (zustand.empty() || zustand.find(") Z") != std::string::npos) return true;
        ::usleep(10'000);
    }
    return false;
}

TEST(Ganz_FeindlicherLoeser, EndetMitDemProgrammDasDenLaufBegonnenHat)
{
    const Loeserplatz platz;
    for (const int signal : {SIGTERM, SIGKILL, SIGINT}) {
        if (signal != SIGKILL) ::signal(signal, SIG_DFL);
        platz.loeser(
            "sleep 1000 & echo $$ $! > neu; mv neu " + platz.host("nummern").string().insert(0, "'") + "'; wait",
            "100");
        fs::remove(platz.host("nummern"));
        Kind jorv(Prozessaufrufe::echte(), {JORV_PROGRAMME "/jorv",
                                            {"--einstellungen", platz.host("JorvPlus.INI").string(), "auswerten", "1"},
                                            platz.host("")});
        ASSERT_TRUE(jorv.gestartet());
        for (int i = 0; i < 1000 && lesen(platz.host("nummern")).empty(); ++i) ::usleep(10'000);
        std::istringstream nummern(lesen(platz.host("nummern")));
        pid_t loeser = 0, enkel = 0;
        ASSERT_TRUE(nummern >> loeser >> enkel);
        ::kill(jorv.nummer(), signal);
        ::usleep(50'000);
        if (signal == SIGINT) ::kill(jorv.nummer(), signal);  // the first one only asks to stop behind this rover
        EXPECT_EQ(jorv.einsammeln(), 128 + signal);
        EXPECT_TRUE(endet(loeser) && endet(enkel)) << signal;
    }
}

}  // namespace
}  // namespace jorv
