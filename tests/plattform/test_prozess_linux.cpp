#include "plattform/prozess.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>

#include "hilfen/Projekt.h"
#include "plattform/fensterstart.h"
#include "plattform/pfad.h"
#include "plattform/prozess_linux.h"
#include "plattform/umgebung.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {
// That sanitizer makes a fork of each vfork, and a failed start can't be told from a program that ends.
#ifdef __SANITIZE_THREAD__
constexpr bool start_kann_scheitern = false;
#else
constexpr bool start_kann_scheitern = true;
#endif

fs::path skript(const hilfen::Arbeitsordner& ordner, const std::string& inhalt)
{
    const fs::path pfad = ordner.host() / "kind";
    hilfen::schreiben(pfad, "#!/bin/sh\n" + inhalt + "\n");
    fs::permissions(pfad, fs::perms::owner_all);
    return pfad;
}
}  // namespace

TEST(Prozess, StatusFehlerausgabeUndOrdnerKommenZurueck)
{
    const hilfen::Arbeitsordner ordner;
    const auto ende =
        programm_ausfuehren(skript(ordner, "pwd >&2; echo \"$1|$2\" >&2; exit 7"), {"a b", "c\"d"}, ordner.host(), 10);
    EXPECT_TRUE(ende.gestartet);
    EXPECT_EQ(ende.status, 7);
    EXPECT_EQ(ende.fehlerausgabe, ordner.host().string() + "\na b|c\"d\n");
    EXPECT_EQ(programm_ausfuehren(ordner.host() / "fehlt", {}, ordner.host(), 10).gestartet, !start_kann_scheitern);
    EXPECT_EQ(programm_ausfuehren(skript(ordner, "kill -9 $$"), {}, ordner.host(), 10).status, 128 + SIGKILL);
}

TEST(Prozess, EinHaengendesKindEndetMitSeinerGanzenGruppe)
{
    const hilfen::Arbeitsordner ordner;
    const auto ende = programm_ausfuehren(skript(ordner, "sleep 100 & echo $! >&2; wait"), {}, ordner.host(), 1);
    EXPECT_TRUE(ende.zeit_abgelaufen);
    const long enkel = std::atol(ende.fehlerausgabe.c_str());
    for (int i = 0; i < 100 && prozess_lebt(enkel); ++i) ::usleep(20000);
    // A grandchild that nobody has collected yet counts as alive by its number alone.
    const std::string zustand = hilfen::lesen("/proc/" + std::to_string(enkel) + "/stat");
    EXPECT_TRUE(zustand.empty() || zustand.find(") Z ") != std::string::npos) << zustand;
}

TEST(Prozess, EinKindDasRohreOffenLaesstHaeltNichtAuf)
{
    const hilfen::Arbeitsordner ordner;
    const auto beginn = std::chrono::steady_clock::now();
    const auto ende = programm_ausfuehren(skript(ordner, "sleep 30 & exit 3"), {}, ordner.host(), 20);
    EXPECT_EQ(ende.status, 3);
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(15));
}

namespace {

// The real calls, each of which fails on demand.
int scheitert_mit = 0, unterbrechungen = 0;

int gescheitert()
{
    errno = scheitert_mit;
    return -1;
}

Prozessaufrufe echte_bis_auf(void (*aendern)(Prozessaufrufe&))
{
    Prozessaufrufe aufrufe = Prozessaufrufe::echte();
    aendern(aufrufe);
    return aufrufe;
}

const Prozessaufrufe kein_start = echte_bis_auf([](auto& a) { a.starten = [](const auto&) { return gescheitert(); }; });

}  // namespace

TEST(Prozess, EinStartDerScheitertIstKeinKind)
{
    const hilfen::Arbeitsordner ordner;
    for (const int grund : {EAGAIN, ENOENT, ENOMEM}) {
        scheitert_mit = grund;
        EXPECT_FALSE(programm_ausfuehren(kein_start, "/bin/true", {}, ordner.host(), 10).gestartet) << grund;
        EXPECT_FALSE(prozess_warten(kein_start, Dateisystem(), ordner.dos() + "\\a.bat")) << grund;
    }
    if (!start_kann_scheitern) return;
    // Before the program runs: its folder is missing, it is no program, it may not be run.
    EXPECT_FALSE(programm_ausfuehren("/bin/true", {}, ordner.host() / "fehlt", 10).gestartet);
    const fs::path datei = skript(ordner, "exit 0");
    fs::permissions(datei, fs::perms::owner_read);
    EXPECT_FALSE(programm_ausfuehren(datei, {}, ordner.host(), 10).gestartet);
}

TEST(Prozess, GescheiterteAufrufeHaltenNichtAuf)
{
    const hilfen::Arbeitsordner ordner;
    const struct {
        const char* was;
        Prozessaufrufe aufrufe;
        std::string kind;
        int status;
    } faelle[] = {
        {"no descriptor", echte_bis_auf([](auto& a) { a.melder = [](pid_t) { return gescheitert(); }; }), "exit 7", 7},
        {"wait interrupted", echte_bis_auf([](auto& a) {
             a.warten = [](pid_t kind, int* status, int arten) {
                 return ++unterbrechungen < 5 ? gescheitert() : Prozessaufrufe::echte().warten(kind, status, arten);
             };
         }),
         "exit 7", 7},
        {"collected by another",
         echte_bis_auf([](auto& a) { a.warten = [](pid_t, int*, int) { return errno = ECHILD, -1; }; }), "exit 7", -1},
        {"can't be ended", echte_bis_auf([](auto& a) { a.beenden = [](pid_t, int) { return gescheitert(); }; }),
         "exec sleep 5", -1},
        {"its group can't be ended", echte_bis_auf([](auto& a) {
             a.beenden = [](pid_t wer, int signal) {
                 return wer < 0 ? gescheitert() : Prozessaufrufe::echte().beenden(wer, signal);
             };
         }),
         "exec sleep 60", 128 + SIGKILL}};
    scheitert_mit = EINTR;
    for (const auto& fall : faelle) {
        const auto beginn = std::chrono::steady_clock::now();
        const auto ende = programm_ausfuehren(fall.aufrufe, skript(ordner, fall.kind), {}, ordner.host(), 1);
        EXPECT_TRUE(ende.gestartet) << fall.was;
        EXPECT_EQ(ende.status, fall.status) << fall.was;
        EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(4)) << fall.was;
    }
}

TEST(Fensterstart, DerEditorIstDerEigeneEinPfadOderEinName)
{
    const hilfen::Arbeitsordner ordner;
    const Dateisystem dateien;
    const fs::path programm = skript(ordner, "cp \"$1\" gelesen");
    const std::string dos = dateien.laufwerke().dos(programm).value();
    const std::string datei = ordner.dos() + "\\kind";
    EXPECT_FALSE(editor_start(dateien, "notepad.EXE", datei));
    EXPECT_EQ(editor_start(dateien, "sh", datei)->programm.filename(), "sh");
    EXPECT_TRUE(editor_start(dateien, "gibt-es-nicht", datei)->programm.empty());
    EXPECT_EQ(editor_start(dateien, programm.string(), datei)->programm, programm);
    const auto start = editor_start(dateien, dos, datei);
    ASSERT_FALSE(fenster_starten(*start, Fensterausgabe::fenster).fehler);
    for (int i = 0; i < 500 && !fs::exists(ordner.host() / "gelesen"); ++i) ::usleep(10'000);
    EXPECT_TRUE(fs::exists(ordner.host() / "gelesen"));
}

TEST(Fensterstart, EinKindInEineDateiNenntSeinenStatusUndLaesstSichBeenden)
{
    const hilfen::Arbeitsordner ordner;
    const fs::path ausgabe = ordner.host() / "ausgabe";
    hilfen::schreiben(ausgabe, "");
    for (const auto& [inhalt, beenden, status] :
         {std::tuple{"echo da; exit 3", false, 3}, {"sleep 100 & wait", true, 128 + SIGTERM}}) {
        const auto lauf = fenster_starten({skript(ordner, inhalt), {}, ordner.host()}, Fensterausgabe::datei, ausgabe);
        ASSERT_FALSE(lauf.fehler);
        EXPECT_TRUE(!beenden || !lauf.status());
        if (beenden) lauf.beenden();
        for (int i = 0; i < 500 && !lauf.status(); ++i) ::usleep(10'000);
        EXPECT_EQ(lauf.status(), status);
    }
    EXPECT_EQ(hilfen::lesen(ausgabe), "da\n");
}

}  // namespace jorv
