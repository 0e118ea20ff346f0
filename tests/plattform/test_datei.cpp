#include "plattform/datei.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "hilfen/Projekt.h"
#include "plattform/sperre.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace jorv {

namespace fs = std::filesystem;
using hilfen::Arbeitsordner;

namespace {

// A table whose n-th call fails; what each call would do comes from the real one.
int zaehler = 0, scheitert_bei = 0, grund_des_scheiterns = EIO;
bool sterben = false;

bool scheitert()
{
    if (++zaehler != scheitert_bei) return false;
    if (sterben) std::_Exit(1);  // nothing more is written or cleared away, as at a kill
    errno = grund_des_scheiterns;
    return true;
}

const Systemaufrufe kaputte_tabelle{
    [](const char* p, int a, unsigned r) { return scheitert() ? -1 : Systemaufrufe::echte().oeffnen(p, a, r); },
    [](int n, void* b, std::size_t a) { return scheitert() ? -1L : Systemaufrufe::echte().lesen(n, b, a); },
    [](int n, const void* b, std::size_t a) {
        // Never more than 7 bytes at once: a short write is no error.
        return scheitert() ? -1L : Systemaufrufe::echte().schreiben(n, b, a < 7 ? a : 7);
    },
    [](int n) { return scheitert() ? -1 : Systemaufrufe::echte().sichern(n); },
    [](int n) {
        const int ergebnis = Systemaufrufe::echte().schliessen(n);
        return scheitert() ? -1 : ergebnis;
    },
    [](const char* a, const char* b) { return scheitert() ? -1 : Systemaufrufe::echte().umbenennen(a, b); },
    [](const char* p) { return Systemaufrufe::echte().loeschen(p); },
    [](const char* p) { return scheitert() ? -1 : Systemaufrufe::echte().ordner_sichern(p); },
    [](const char* p) { return scheitert() ? -1 : Systemaufrufe::echte().ordner_anlegen(p); },
    [](int n, std::size_t l) { return scheitert() ? nullptr : Systemaufrufe::echte().einblenden(n, l); }};

void fehler_bei(int n, int grund = EIO)
{
    zaehler = 0;
    scheitert_bei = n;
    grund_des_scheiterns = grund;
    sterben = false;
}

const std::string alt = "[A]\r\nalter Text=1\r\n", neu = "[A]\r\nneuer, laengerer Text=2\r\n";

}  // namespace

TEST(Datei, OrdnerUndAbbildSagenJedenFehlschlag)
{
    const Arbeitsordner ordner;
    const Dateisystem dateien({}, kaputte_tabelle);
    hilfen::schreiben(ordner.host() / "a.txt", alt);
    for (int n = 1; n <= 2; ++n)
        for (const int grund : {EIO, EINTR}) {
            fs::remove_all(ordner.host() / "neu");
            fehler_bei(n, grund);
            const auto fehler = dateien.ordner_anlegen(ordner.dos() + "\\neu\\darin");
            EXPECT_EQ(!fehler, grund == EINTR);
            EXPECT_EQ(fs::is_directory(ordner.host() / "neu" / "darin"), grund == EINTR);
#ifndef _WIN32
            fehler_bei(n, grund);
            std::error_code warum;
            const auto bild = dateien.abbilden(ordner.dos() + "\\a.txt", warum);
            EXPECT_EQ(!warum && bild.text() == alt, grund == EINTR) << n;
#endif
        }
    fehler_bei(0);
    EXPECT_EQ(dateien.ordner_anlegen(ordner.dos() + "\\a.txt\\darin"), std::errc::not_a_directory);
}

TEST(Datei, JederEinzelneFehlschlagLaesstAltOderNeuGanz)
{
    const Arbeitsordner ordner;
    const fs::path ziel = ordner.host() / "001.INI";
    const Dateisystem dateien({}, kaputte_tabelle);
    for (const int grund : {EIO, ENOSPC, EACCES, EINTR}) {
        for (int n = 1; n < 60; ++n) {
            hilfen::schreiben(ziel, alt);
            fehler_bei(n, grund);
            const auto fehler = dateien.schreiben(ordner.dos() + "\\001.INI", neu);
            const std::string danach = hilfen::lesen(ziel);
            EXPECT_TRUE(danach == alt || danach == neu) << n;
            EXPECT_TRUE(fehler || danach == neu) << n;
            EXPECT_EQ(std::distance(fs::directory_iterator(ordner.host()), {}), 1) << "left-over file, call " << n;
            if (zaehler < n) {
                EXPECT_FALSE(fehler);
                break;
            }
        }
    }
}

TEST(Datei, BeimGemeinsamenKopierenKommenDieErstenGanzUndKeinRestBleibt)
{
    const Arbeitsordner ordner;
    const Dateisystem dateien({}, kaputte_tabelle);
    const std::vector<std::string> namen = {"eins", "zwei", "drei"};
    std::vector<Kopie> kopien;
    for (const auto& name : namen) {
        hilfen::schreiben(ordner.host() / "her" / name, neu + name);
        kopien.push_back({ordner.dos() + "\\her\\" + name, ordner.dos() + "\\hin\\" + name});
    }
    // The second stands where it shall be copied to: it counts, and nothing is done to it.
    hilfen::schreiben(ordner.host() / "hin" / "zwei", neu + "zwei");
    kopien[1].von = kopien[1].nach;
    std::vector<std::size_t> zahlen;
    for (const int grund : {ENOSPC, EINTR}) {
        for (int n = 1; n < 200; ++n) {
            hilfen::schreiben(ordner.host() / "hin" / "eins", alt);
            fs::remove(ordner.host() / "hin" / "drei");
            fehler_bei(n, grund);
            std::error_code fehler;
            const std::size_t zahl = dateien.gemeinsam_kopieren(kopien, fehler);
            ASSERT_EQ(!fehler, zahl == 3) << n;
            if (grund == ENOSPC) zahlen.push_back(zahl);
            for (std::size_t i = 0; i < namen.size(); ++i) {
                const fs::path ziel = ordner.host() / "hin" / namen[i];
                const std::string text = fs::exists(ziel) ? hilfen::lesen(ziel) : "";
                EXPECT_TRUE(text == neu + namen[i] || (i >= zahl && text == (i == 0 ? alt : ""))) << n << text;
            }
            const auto dateien_da = std::distance(fs::directory_iterator(ordner.host() / "hin"), {});
            EXPECT_EQ(dateien_da, fs::exists(ordner.host() / "hin" / "drei") ? 3 : 2) << "left-over file, call " << n;
            if (zaehler < n) break;
        }
        EXPECT_LT(zaehler, scheitert_bei) << "every call has failed once";
    }
    for (const std::size_t zahl : {0, 2, 3})
        EXPECT_NE(std::count(zahlen.begin(), zahlen.end(), zahl), 0) << "no failing call leaves " << zahl;
}

// By processes of their own, a small disk and a pipe.
#ifndef _WIN32
TEST(Datei, JederMomentDesTodesLaesstAltOderNeuGanzUndDerRestWirdWeggeraeumt)
{
    const Arbeitsordner ordner;
    const fs::path ziel = ordner.host() / "001.INI";
    const Dateisystem dateien({}, kaputte_tabelle);
    bool gelungen = false;
    for (int n = 1; n < 60 && !gelungen; ++n) {
        hilfen::schreiben(ziel, alt);
        const pid_t kind = ::fork();
        if (kind == 0) {
            fehler_bei(n);
            sterben = true;
            ::_exit(dateien.schreiben(ordner.dos() + "\\001.INI", neu) ? 2 : 0);
        }
        int status = 0;
        ::waitpid(kind, &status, 0);
        gelungen = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        const std::string danach = hilfen::lesen(ziel);
        EXPECT_TRUE(danach == alt || danach == neu) << n;
        dateien.reste_wegraeumen(ordner.dos());
        EXPECT_EQ(std::distance(fs::directory_iterator(ordner.host()), {}), 1) << "left-over file, call " << n;
    }
    EXPECT_TRUE(gelungen);
}

TEST(Datei, EinVollerDatentraegerBehaeltDenAltenText)
{
    const Arbeitsordner ordner;
    const std::string einhaengen = "mount -t tmpfs -o size=64k tmpfs " + ordner.host().string() + " 2>/dev/null";
    if (std::system(einhaengen.c_str()) != 0) GTEST_SKIP() << "a small tmpfs needs root";
    const Dateisystem dateien;
    const std::string pfad = ordner.dos() + "\\001.INI";
    EXPECT_FALSE(dateien.schreiben(pfad, alt));
    EXPECT_EQ(dateien.schreiben(pfad, std::string(100000, 'x')), std::errc::no_space_on_device);
    EXPECT_EQ(dateien.lesen(pfad), alt);
    EXPECT_EQ(dateien.anhaengen(pfad, std::string(100000, 'x')), std::errc::no_space_on_device);
    EXPECT_EQ(dateien.lesen(pfad), alt);
    EXPECT_EQ(std::system(("umount " + ordner.host().string()).c_str()), 0);
}

TEST(Datei, ZieleDieKeineDateiSindWerdenAbgelehntVerweiseVerfolgt)
{
    const Arbeitsordner ordner;
    const Dateisystem dateien;
    fs::create_directory(ordner.host() / "ordner");
    ASSERT_EQ(::mkfifo((ordner.host() / "rohr").c_str(), 0600), 0);
    hilfen::schreiben(ordner.host() / "ziel.txt", alt);
    fs::create_symlink("ziel.txt", ordner.host() / "verweis.txt");
    EXPECT_TRUE(dateien.schreiben(ordner.dos() + "\\ordner", neu));
    EXPECT_TRUE(dateien.schreiben(ordner.dos() + "\\rohr", neu));
    EXPECT_FALSE(dateien.lesen(ordner.dos() + "\\rohr"));
    EXPECT_FALSE(dateien.schreiben(ordner.dos() + "\\verweis.txt", neu));
    EXPECT_TRUE(fs::is_symlink(ordner.host() / "verweis.txt"));
    EXPECT_EQ(hilfen::lesen(ordner.host() / "ziel.txt"), neu);
}
#endif

TEST(Datei, NamenWerdenOhneGrossUndKleinGefundenUndBehalten)
{
    const Arbeitsordner ordner("Verfahren Süd");
    const Dateisystem dateien;
    const std::string wurzel = ordner.dos();
    EXPECT_FALSE(dateien.schreiben(wurzel + "\\Pr" + std::string(u8"ü"_w) + "f.Txt", alt));
    EXPECT_FALSE(dateien.schreiben(gross(wurzel) + "\\PR" + std::string(u8"Ü"_w) + "F.TXT", neu));
    const auto eintraege = dateien.ordner_lesen(wurzel);
    ASSERT_EQ(eintraege.size(), 1u);
    EXPECT_EQ(eintraege[0].name, u8"Prüf.Txt"_w);
    EXPECT_EQ(dateien.lesen(wurzel + "\\" + eintraege[0].name), neu);
}

TEST(Datei, LaufwerkeUndFreigabenStehenInDerTabelle)
{
    const Arbeitsordner ordner;
    Laufwerke laufwerke;
    laufwerke.zuordnen("D:", ordner.host());
    laufwerke.zuordnen("\\\\srv\\netz", ordner.wurzel());
    const Dateisystem dateien(laufwerke);
    EXPECT_FALSE(dateien.schreiben("d:\\a.txt", alt));
    EXPECT_EQ(dateien.lesen("\\\\SRV\\Netz\\p\\A.TXT"), alt);
    EXPECT_EQ(laufwerke.dos(ordner.host() / "a.txt"), "D:\\a.txt");
    EXPECT_EQ(laufwerke.dos(ordner.wurzel() / "q"), "\\\\srv\\netz\\q");
    EXPECT_TRUE(dateien.schreiben("E:\\a.txt", alt));
    EXPECT_FALSE(dateien.vorhanden("\\\\srv\\anderes\\a"));
    // Cut at the NUL this would be the folder itself.
    EXPECT_FALSE(laufwerke.host(std::string_view("D:\\\0a", 5)));
#ifndef _WIN32
    EXPECT_EQ(laufwerke.alle(), (std::vector<std::string>{"D:", "Z:", "\\\\srv\\netz"}));
    EXPECT_EQ(Laufwerke().dos("/"), "Z:\\");
#endif
    EXPECT_FALSE(Laufwerke().dos(hilfen::p8("/tmp/\xE4\xB8\xAD")));
}

TEST(Datei, AnhaengenKopierenLoeschen)
{
    const Arbeitsordner ordner;
    const Dateisystem dateien;
    const std::string a = ordner.dos() + "\\a", b = ordner.dos() + "\\b";
    EXPECT_FALSE(dateien.anhaengen(a, "eins"));
    EXPECT_FALSE(dateien.anhaengen(a, "zwei"));
    EXPECT_EQ(dateien.lesen(a), "einszwei");
    EXPECT_FALSE(dateien.kopieren(a, b));
    EXPECT_FALSE(dateien.kopieren(a, a));
    EXPECT_EQ(dateien.lesen(b), "einszwei");
    EXPECT_EQ(dateien.lesen(a), "einszwei");
    fs::permissions(ordner.host() / "b", fs::perms::owner_read);
    EXPECT_FALSE(dateien.loeschen(b));
    EXPECT_TRUE(dateien.loeschen(b));
    EXPECT_EQ(dateien.lesen_stufenweise(b).stufe, Dateistufe::oeffnen);
}

TEST(Datei, EinOrdnerVerschwindetMitSeinenSchreibgeschuetztenDateien)
{
    const Arbeitsordner ordner;
    const fs::path datei = ordner.host() / "weg" / "darin" / "a.txt";
    hilfen::schreiben(datei, alt);
    fs::permissions(datei, fs::perms::owner_read);
    EXPECT_FALSE(Dateisystem().ordner_loeschen(ordner.dos() + "\\weg"));
    EXPECT_TRUE(fs::is_empty(ordner.host()));
    EXPECT_FALSE(Dateisystem().ordner_loeschen(ordner.dos() + "\\weg")) << "nothing to do";
}

TEST(Datei, EineSperreSchliesstAndereAusUndVerschwindetMitIhremProgramm)
{
    const Arbeitsordner ordner;
    const Dateisystem dateien;
    const std::string pfad = ordner.dos() + "\\JorvPlus.INI";
    {
        const Sperre erste(dateien, pfad, 0);
        EXPECT_TRUE(erste.gehalten());
        EXPECT_FALSE(Sperre(dateien, pfad, 30).gehalten());
    }
    EXPECT_TRUE(Sperre(dateien, pfad, 0).gehalten());
    EXPECT_TRUE(fs::is_empty(ordner.host()));
}

}  // namespace jorv
