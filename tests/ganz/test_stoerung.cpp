// Every command meets failing system calls, its own death, a full disk and another program on the same project. After
// each, every file is the old or the new one, the exit status and a message say so, and the next start works.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <random>

#include "ganz/Kleine_Platte.h"
#include "ganz/Stoerplatz.h"
#include "plattform/sperre.h"

namespace jorv {
namespace {

using hilfen::Befehlsfall;
using hilfen::Gestoert;
using hilfen::Kleine_Platte;
using hilfen::Stand;
using hilfen::Stoerplatz;
using hilfen::Stoerung;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string zeile(const std::vector<std::string>& worte)
{
    std::string text;
    for (const auto& wort : worte) text += wort + " ";
    return text;
}

bool hat_meldung(const std::string& err)
{
    return err.find("STOP ") != std::string::npos || err.find("WARNUNG ") != std::string::npos ||
           err.find("INFO ") != std::string::npos;
}

// One command on the place: what an undisturbed run makes of it, and whether a disturbed one keeps to that.
class Pruefling {
public:
    Pruefling(const Stoerplatz& platz, const Befehlsfall& fall)
        : m_platz(platz), m_fall(fall), m_moegliche(platz.moegliche(fall.worte)), m_neu(platz.stand())
    {
        platz.zuruecksetzen();
        m_alt = platz.stand();
        m_ungestoert = platz.ausfuehren(fall.worte);
        EXPECT_EQ(m_ungestoert.status, 0) << zeile(fall.worte) << m_ungestoert.err;
        EXPECT_GT(m_ungestoert.aufrufe, 10) << zeile(fall.worte);
    }
    int aufrufe() const { return m_ungestoert.aufrufe; }
    bool rechnet() const { return m_fall.rechnet; }

    Gestoert pruefen(const Stoerung& stoerung, const std::string& was) const
    {
        const testing::ScopedTrace spur(__FILE__, __LINE__, zeile(m_fall.worte) + was);
        m_platz.zuruecksetzen();
        const Gestoert lauf = m_platz.ausfuehren(m_fall.worte, stoerung);
        const Stand danach = m_platz.stand();
        alt_oder_neu(danach, lauf.status == 1);
        EXPECT_TRUE(lauf.status != 0 || abweichend(danach, m_neu).empty()) << abweichend(danach, m_neu) << lauf.err;
        EXPECT_TRUE(lauf.status != 1 || hat_meldung(lauf.err)) << lauf.err;
        EXPECT_LT(lauf.status, 2) << lauf.err;
        naechster_start(danach == m_alt);
        return lauf;
    }

    // By the program itself, at any moment; the next start is tried now and then only.
    bool toeten(unsigned mikrosekunden, bool mit_start) const
    {
        const testing::ScopedTrace spur(__FILE__, __LINE__,
                                        verkettet(zeile(m_fall.worte), "killed after ", mikrosekunden, " us"));
        m_platz.zuruecksetzen();
        const bool getoetet = m_platz.toeten(m_fall.worte, mikrosekunden);
        const Stand danach = m_platz.stand();
        alt_oder_neu(danach, false);
        EXPECT_TRUE(getoetet || abweichend(danach, m_neu).empty());
        if (mit_start) naechster_start(danach == m_alt);
        return getoetet;
    }

private:
    // `teils`: the command has told that it did only a part. Its file is then another whole one, which a further save
    // leaves as it is.
    void alt_oder_neu(const Stand& danach, bool teils) const
    {
        for (const auto& [name, texte] : m_moegliche) {
            const auto fund = danach.find(name);
            const std::string text = fund == danach.end() ? "" : fund->second;
            if (texte.contains(text)) continue;
            const bool ganz = teils && fund != danach.end() && gesichert().at(name) == text;
            EXPECT_TRUE(ganz) << name << ": neither old nor new\n" << text;
        }
        for (const auto& [name, text] : danach) EXPECT_TRUE(m_moegliche.contains(name)) << name;
    }
    Stand gesichert() const
    {
        for (const char* nummer : {"1", "2"}) m_platz.ausfuehren({"sichern", nummer});
        return m_platz.stand();
    }
    static std::string abweichend(const Stand& a, const Stand& b)
    {
        std::string namen;
        for (const auto& [name, text] : b) {
            const auto fund = a.find(name);
            if (fund == a.end() || fund->second != text) namen += name + " ";
        }
        return namen;
    }
    void naechster_start(bool nichts_geschehen) const
    {
        // Where nothing has happened yet the command must work; else it may find its work done.
        const Gestoert noch_einmal = m_platz.ausfuehren(m_fall.worte);
        const std::string anders = abweichend(m_platz.stand(), m_neu);
        EXPECT_TRUE(noch_einmal.status == 0 || hat_meldung(noch_einmal.err));
        EXPECT_TRUE(noch_einmal.status == 0 || !nichts_geschehen || m_alt == m_neu) << noch_einmal.err;
        EXPECT_TRUE(noch_einmal.status != 0 || !nichts_geschehen || anders.empty()) << anders << noch_einmal.err;
        for (const char* nummer : {"1", "2"}) {
            const Gestoert gesichert = m_platz.ausfuehren({"sichern", nummer});
            EXPECT_TRUE(gesichert.status == 0 || zeile(m_fall.worte).find("loeschen 1") != std::string::npos)
                << gesichert.err;
        }
        EXPECT_THAT(m_platz.reste(noch_einmal.status == 0 ? "" : m_fall.ordner), IsEmpty());
    }

    const Stoerplatz& m_platz;
    const Befehlsfall& m_fall;
    std::map<std::string, std::set<std::string>> m_moegliche;
    Stand m_alt, m_neu;
    Gestoert m_ungestoert;
};

std::vector<Befehlsfall> alle_befehlsfaelle()
{
    auto alle = hilfen::sichernde_befehle();
    const auto& lesende = hilfen::lesende_befehle();
    alle.insert(alle.end(), lesende.begin(), lesende.end());
    return alle;
}

constexpr int gruende[] = {EIO, ENOSPC, EACCES};

std::string beschreibung(int n, int grund, bool von_da_an)
{
    return verkettet("call ", n, ", errno ", grund, von_da_an ? " from there on" : " once");
}

// `schritt`: every so manieth call only; the errno and whether it lasts change from call to call then.
void fehlerschleife(int schritt)
{
    const Stoerplatz platz;
    int versatz = 0;
    for (const auto& fall : alle_befehlsfaelle()) {
        const Pruefling p(platz, fall);
        const int weit = p.rechnet() ? schritt * 5 : schritt;
        if (schritt > 1 && p.rechnet()) continue;
        for (int n = 1 + versatz++ % weit; n <= p.aufrufe(); n += weit)
            for (int i = 0; i < 6; ++i)
                if (schritt == 1 || i == (n / schritt) % 6)
                    p.pruefen({n, gruende[i % 3], i >= 3}, beschreibung(n, gruende[i % 3], i >= 3));
    }
}

TEST(Ganz_Stoerung, GescheiterteAufrufeLassenAltOderNeu)
{
    fehlerschleife(29);
}

TEST(Lang_Stoerung, JederGescheiterteAufrufLaesstAltOderNeu)
{
    fehlerschleife(1);
}

TEST(Ganz_Stoerung, UnterbrocheneAufrufeWerdenWiederholt)
{
    const Stoerplatz platz;
    for (const auto& fall : alle_befehlsfaelle()) {
        const Pruefling p(platz, fall);
        if (p.rechnet()) continue;
        for (int n = 2; n <= p.aufrufe(); n += 29)
            EXPECT_EQ(p.pruefen({n, EINTR, false}, beschreibung(n, EINTR, false)).status, 0);
    }
}

// `schritt` as above.
void todesschleife(int schritt)
{
    const Stoerplatz platz;
    int versatz = 0;
    for (const auto& fall : hilfen::sichernde_befehle()) {
        const Pruefling p(platz, fall);
        if (schritt > 1 && p.rechnet()) continue;
        for (int n = 1 + versatz++ % schritt; n <= p.aufrufe(); n += schritt)
            EXPECT_EQ(p.pruefen({n, 0, false}, verkettet("killed at call ", n)).status, -1);
    }
}

TEST(Ganz_Stoerung, DerTodBeiEinemAufrufLaesstAltOderNeu)
{
    todesschleife(23);
}

TEST(Lang_Stoerung, DerTodBeiJedemAufrufLaesstAltOderNeu)
{
    todesschleife(1);
}

class Toetung : public testing::TestWithParam<std::size_t> {};

// The moments are spread over the time that the command takes, and some beyond.
TEST_P(Toetung, FuenfhundertMalLaesstAltOderNeu)
{
    const Stoerplatz platz;
    const Befehlsfall& fall = hilfen::sichernde_befehle()[GetParam()];
    const Pruefling p(platz, fall);
    const auto beginn = std::chrono::steady_clock::now();
    constexpr int proben = 5, tode = 500;
    for (int i = 0; i < proben; ++i) {
        platz.zuruecksetzen();
        EXPECT_EQ(platz.platz().jorv(fall.worte).status, 0);
    }
    const auto dauer = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - beginn);
    std::mt19937 zufall(20161201);
    std::uniform_int_distribution<unsigned> moment(0, static_cast<unsigned>(dauer.count() / proben * 11 / 10));
    int getoetet = 0;
    for (int i = 0; i < tode; ++i) getoetet += p.toeten(moment(zufall), i % 10 == 0);
    EXPECT_GT(getoetet, tode / 5) << zeile(fall.worte);
}

INSTANTIATE_TEST_SUITE_P(Lang_Stoerung, Toetung, testing::Range<std::size_t>(0, hilfen::sichernde_befehle().size()));

// A limit on the length of files is a full disk for whoever may not mount one.
TEST(Ganz_Stoerung, ZuLangeDateienLassenAltOderNeu)
{
    const Stoerplatz platz;
    for (const auto& fall : hilfen::sichernde_befehle()) {
        const Pruefling p(platz, fall);
        if (p.rechnet()) continue;
        for (const rlim_t laenge : {0u, 100u, 1000u})
            p.pruefen({.vorher =
                           [laenge] {
                               ::signal(SIGXFSZ, SIG_IGN);
                               const rlimit grenze{laenge, RLIM_INFINITY};
                               ::setrlimit(RLIMIT_FSIZE, &grenze);
                           }},
                      verkettet("files of at most ", static_cast<int>(laenge), " bytes"));
    }
}

void volle_platte(std::initializer_list<std::uintmax_t> freie_seiten, bool auch_rechnende)
{
    const Stoerplatz platz;
    const Kleine_Platte platte(platz.host(""), "24m");
    if (!platte.da()) GTEST_SKIP() << "A disk of its own needs the rights to mount one.";
    platz.zuruecksetzen();
    constexpr std::uintmax_t seite = 4096;
    int misslungen = 0;
    for (const auto& fall : hilfen::sichernde_befehle()) {
        if (fall.rechnet && !auch_rechnende) continue;
        const Pruefling p(platz, fall);
        for (const std::uintmax_t frei : freie_seiten) {
            const Stoerung voll{.vorher = [&] { platte.fuellen(frei * seite); }, .nachher = [&] { platte.leeren(); }};
            misslungen += p.pruefen(voll, verkettet("with ", static_cast<int>(frei), " pages left")).status;
        }
    }
    EXPECT_GT(misslungen, 10);
}

TEST(Ganz_Stoerung, EineVollePlatteLaesstAltOderNeu)
{
    volle_platte({0}, false);
}

TEST(Lang_Stoerung, EineVollePlatteLaesstAltOderNeu)
{
    volle_platte({0, 1, 2, 3, 5, 8, 20}, true);
}

// A program that has the project open keeps every other one from changing it; who only reads works beside it.
TEST(Ganz_Stoerung, EinZweitesProgrammAendertNichts)
{
    const Stoerplatz platz;
    const Dateisystem dateien;
    const auto dos = [&](const char* name) { return dateien.laufwerke().dos(platz.host(name)).value(); };
    const auto verfahren = [&] {
        Stand stand = platz.stand();
        stand.erase("JorvPlus.INI");
        return stand;
    };
    const Stand vorher = verfahren();
    {
        const Sperre eins(dateien, dos("verfahren/001.INI"), 0), zwei(dateien, dos("linien/002.INI"), 0),
            drei(dateien, dos("fremd/003.INI"), 0);
        ASSERT_TRUE(eins.gehalten() && zwei.gehalten() && drei.gehalten());
        for (const auto& fall : hilfen::sichernde_befehle()) {
            const std::string& name = fall.worte[0];
            if (name == "katalog" || name == "grenzen" || name == "neu") continue;
            const Gestoert lauf = platz.ausfuehren(fall.worte);
            EXPECT_EQ(lauf.status, 1) << zeile(fall.worte);
            EXPECT_THAT(lauf.err, HasSubstr("in einem anderen Programm")) << zeile(fall.worte);
            EXPECT_EQ(verfahren(), vorher) << zeile(fall.worte);
        }
        for (const auto& fall : hilfen::lesende_befehle()) EXPECT_EQ(platz.ausfuehren(fall.worte).status, 0);
    }
    EXPECT_EQ(platz.ausfuehren({"sichern", "1"}).status, 0);
    EXPECT_THAT(platz.reste(), IsEmpty());
}

}  // namespace
}  // namespace jorv
