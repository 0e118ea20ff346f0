// The life of thirty projects as a user lives it: made, filled, opened, changed, taken into a second settings folder,
// deleted. After each step an independent reader looks at the files on the disk.
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <map>
#include <sstream>

#include "app/start.h"
#include "hilfen/Projekt.h"
#include "projekt/import_felder.h"
#include "projekt/importieren.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahren.h"
#include "projekt/verfahren_loeschen.h"

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace jorv {

namespace fs = std::filesystem;
using hilfen::Arbeitsordner;

namespace {

// Sections and keys by plain standard means, nothing shared with the program.
using Inhalt = std::map<std::string, std::map<std::string, std::string>>;
Inhalt ini(const fs::path& datei)
{
    std::istringstream strom(hilfen::lesen(datei));
    Inhalt inhalt;
    std::string sektion;
    for (std::string zeile; std::getline(strom, zeile);) {
        while (!zeile.empty() && zeile.back() == '\r') zeile.pop_back();
        if (zeile.starts_with("["))
            sektion = zeile.substr(1, zeile.find(']') - 1);
        else if (const auto gleich = zeile.find('='); gleich != std::string::npos)
            inhalt[sektion].emplace(zeile.substr(0, gleich), zeile.substr(gleich + 1));
    }
    return inhalt;
}

struct Programm {
    Programm(const Arbeitsordner& ordner, const std::string& einstellungen)
        : uhr({2016, 12, 1, 12, 0, 0}), g(schirm, uhr, Dateisystem())
    {
        EXPECT_FALSE(ist_fehler(start(g, {ordner.dos() + "\\" + einstellungen + "\\JorvPlus.INI", ordner.dos()})));
    }
    Inhalt einstellungen() const { return ini(g.dateien.host(g.Einstellungsdatei)); }
    Inhalt projekt(const Verfahren_Satz& v) const { return ini(g.dateien.host(v.Pfad + "\\" + v.Nummer + ".INI")); }

    hilfen::Pruefschirm schirm;
    Festuhr uhr;
    Global g;
};

void liste_stimmt(const Programm& p)
{
    auto inhalt = p.einstellungen();
    std::size_t namen = 0;
    for (const auto& v : p.g.Verfahren) {
        ++namen;
        EXPECT_EQ(inhalt["VERFAHREN-Name"][v.Nummer], v.Name);
        EXPECT_EQ(inhalt["VERFAHREN-Pfad"][v.Nummer], v.Pfad);
        EXPECT_EQ(inhalt["VERFAHREN-Modus"][v.Nummer], v.Modus);
        EXPECT_TRUE(fs::exists(p.g.dateien.host(v.Pfad + "\\" + v.Nummer + ".INI"))) << v.Nummer;
    }
    EXPECT_EQ(inhalt["VERFAHREN-Name"].size(), namen);
}

void projekt_stimmt(const Programm& p)
{
    const Verfahren_Satz& v = *aktuelles_Verfahren(p.g);
    auto inhalt = p.projekt(v);
    EXPECT_EQ(inhalt["VERFAHREN"]["Name"], v.Name);
    EXPECT_EQ(inhalt["VERFAHREN"]["Nummer"], v.Nummer);
    EXPECT_EQ(inhalt["VERFAHREN"]["Modus"], v.Modus);
    EXPECT_EQ(inhalt["GRUNDEINSTELLUNGEN"]["Arbeits-Verzeichnis"], v.Pfad);
    for (int i = 1; i <= p.g.OBS_R.anzahl(); ++i) {
        const std::string schluessel = std::to_string(i);
        EXPECT_EQ(inhalt["ROVER-OBS"][schluessel].substr(0, 12), p.g.OBS_R[i].Dateiname);
        EXPECT_EQ(inhalt["ROVER-SETTINGS"][schluessel].substr(0, 14),
                  p.g.OBS_R[i].Dateiname + " " + std::to_string(p.g.ROVER_Settings[i].Ein_Ausschalterkennung));
        EXPECT_EQ(inhalt["GRAPHIK-ROVER"][schluessel].substr(0, 4), p.g.R_Punkt[i].Punktkennzeichen);
    }
    EXPECT_EQ(inhalt["ROVER-OBS"][std::to_string(p.g.OBS_R.anzahl() + 1)], "");
}

void rover_dazu(Global& g, int n)
{
    OBS obs;
    obs.Dateiname = std::to_string(5500 + n) + "092a.05o";
    obs.Punktkennzeichen = obs.Dateiname.substr(0, 4);
    obs.Tag = 92;
    obs.Antenne = "ANT 1               TYP";
    obs.Startzeit_Jahr = obs.Endzeit_Jahr = 2005;
    obs.Startzeit_Monat = obs.Endzeit_Monat = 4;
    obs.Startzeit_Tag = obs.Endzeit_Tag = 2;
    obs.Endzeit_Stunde = 2;
    obs.Endzeit_GPS_Sekunde = 20000;
    Punkt punkt{obs.Punktkennzeichen, 500000.5 + n, 5700000.25, 3780000.125, 900000, 5038000};
    ROVER_Settings_Satz einstellung;
    einstellung.ROVER_Dateiname = obs.Dateiname;
    ASSERT_TRUE(g.OBS_R.anfuegen(obs) && g.R_Punkt.anfuegen(punkt) && g.ROVER_Settings.anfuegen(einstellung) &&
                g.RINEX_Dateien.anfuegen(obs.Dateiname));
}

constexpr int verfahren_zahl = 30;
std::string name(int i)
{
    return hilfen::t1252("Straße " + std::to_string(i));
}

}  // namespace

TEST(Lebenslauf, DreissigVerfahrenInZweiEinstellungsordnern)
{
    const Arbeitsordner ordner;
    Programm a(ordner, "a");
    for (int i = 1; i <= verfahren_zahl; ++i) {
        const std::string modus(1, static_cast<char>('1' + i % 4));
        ASSERT_FALSE(ist_fehler(Verfahren_anlegen(a.g, {name(i), ordner.dos() + "\\v" + std::to_string(i), modus})));
        for (int n = 1; n <= i % 5; ++n) rover_dazu(a.g, n);
        m_datei_sichern(a.g);
        liste_stimmt(a);
        projekt_stimmt(a);
    }
    for (int i = verfahren_zahl; i >= 1; --i) {
        ASSERT_FALSE(ist_fehler(Verfahren_oeffnen(a.g, name(i))));
        EXPECT_EQ(a.g.OBS_R.anzahl(), i % 5);
        if (a.g.OBS_R.anzahl() > 0) a.g.ROVER_Settings[1].Ein_Ausschalterkennung = 0;
        m_datei_sichern(a.g);
        projekt_stimmt(a);
    }
    EXPECT_EQ(a.g.Liste_Name[0], name(1));
    ASSERT_FALSE(ist_fehler(ende(a.g)));
    EXPECT_TRUE(a.schirm.gezeigt.empty()) << a.schirm.einzige();

    // A second user takes all of them over; his own first project shifts every number by one.
    Programm b(ordner, "b");
    ASSERT_FALSE(ist_fehler(Verfahren_anlegen(b.g, {"eigenes", ordner.dos() + "\\eigenes", "1"})));
    for (int i = 1; i <= verfahren_zahl; ++i) {
        const Verfahren_Satz alt = a.g.Verfahren[i];
        Importdialog dialog = import_laden(b.g, alt.Pfad + "\\" + alt.Nummer + ".INI");
        import_knopf(b.g, dialog, Importstelle::nummer);
        ASSERT_TRUE(dialog.importierbar()) << dialog.statuswort;
        ASSERT_FALSE(ist_fehler(cmd_import(b.g, dialog)));
        EXPECT_EQ(b.g.OBS_R.anzahl(), i % 5);
        m_datei_sichern(b.g);
        liste_stimmt(b);
        projekt_stimmt(b);
        EXPECT_FALSE(fs::exists(b.g.dateien.host(alt.Pfad + "\\" + alt.Nummer + ".INI")));
    }
    EXPECT_EQ(b.g.Verfahren[verfahren_zahl + 1].Nummer, "031");

    b.schirm.antworten.assign(10, Antwort::ja);
    for (int i = 3; i <= 30; i += 3) {
        ASSERT_FALSE(ist_fehler(Verfahren_oeffnen(b.g, name(i))));
        ASSERT_FALSE(ist_fehler(m_datei_loeschen(b.g)));
        EXPECT_FALSE(b.g.Verfahren_offen());
        liste_stimmt(b);
    }
    EXPECT_EQ(naechste_Nummer(b.g), "004");
    ASSERT_FALSE(ist_fehler(ende(b.g)));

    // The first user finds his files gone under their old numbers: the project leaves his lists.
    EXPECT_TRUE(ist_fehler(Verfahren_oeffnen(a.g, name(2))));
    EXPECT_EQ(Index_zu_Name(a.g, name(2)), 0);
    EXPECT_EQ(a.einstellungen()["VERFAHREN-Name"].contains("002"), false);
}

// By processes of their own.
#ifndef _WIN32
namespace {

// At one call of the system the program is killed, or the call fails that once.
int zaehler = 0, stoerung_bei = 0;
bool tod = false;
bool gestoert()
{
    if (++zaehler != stoerung_bei) return false;
    if (tod) ::raise(SIGKILL);
    errno = EIO;
    return true;
}
const Systemaufrufe stoerend{
    [](const char* p, int a, unsigned r) { return gestoert() ? -1 : Systemaufrufe::echte().oeffnen(p, a, r); },
    [](int n, void* b, std::size_t a) { return gestoert() ? -1 : Systemaufrufe::echte().lesen(n, b, a); },
    [](int n, const void* b, std::size_t a) {
        return gestoert() ? -1 : Systemaufrufe::echte().schreiben(n, b, a < 300 ? a : 300);
    },
    [](int n) { return gestoert() ? -1 : Systemaufrufe::echte().sichern(n); },
    [](int n) {
        return gestoert() ? (Systemaufrufe::echte().schliessen(n), -1) : Systemaufrufe::echte().schliessen(n);
    },
    [](const char* a, const char* b) { return gestoert() ? -1 : Systemaufrufe::echte().umbenennen(a, b); },
    [](const char* p) { return gestoert() ? -1 : Systemaufrufe::echte().loeschen(p); },
    [](const char* p) { return gestoert() ? -1 : Systemaufrufe::echte().ordner_sichern(p); },
    [](const char* p) { return gestoert() ? -1 : Systemaufrufe::echte().ordner_anlegen(p); },
    [](int n, std::size_t l) { return gestoert() ? nullptr : Systemaufrufe::echte().einblenden(n, l); }};

struct Handlung {
    const char* was;
    const char* einstellungen;
    bool offen;  // works on the open project "Fest"
    Fehler (*tun)(Programm&, const std::string& ordner);
};

Fehler importieren(Programm& p, const std::string& projektdatei)
{
    Importdialog dialog = import_laden(p.g, projektdatei);
    import_knopf(p.g, dialog, Importstelle::nummer);
    // The dialog shows in red what it couldn't read, and nothing happens.
    return dialog.importierbar() ? cmd_import(p.g, dialog) : Fehler::keiner;
}

const Handlung handlungen[] = {
    {"save and end", "a", true,
     [](Programm& p, const std::string&) {
         p.g.ROVER_Settings[2].Elevation = 10;
         return ende(p.g);
     }},
    {"import", "b", false,
     [](Programm& p, const std::string& ordner) { return importieren(p, ordner + "\\v\\002.INI"); }},
    {"new project", "a", true,
     [](Programm& p, const std::string& ordner) {
         return Verfahren_anlegen(p.g, {"Neu", ordner + "\\neu", "2"});
     }},
    {"delete", "a", true, [](Programm& p, const std::string&) {
         p.schirm.antworten = {Antwort::ja};
         return m_datei_loeschen(p.g);
     }}};

// Two users with a project each, the first with a second one, "Fest", of three rovers.
void zwei_benutzer(const Arbeitsordner& ordner)
{
    for (const std::string wer : {"a", "b"}) {
        Programm p(ordner, wer);
        ASSERT_FALSE(ist_fehler(Verfahren_anlegen(p.g, {"Eigenes", ordner.dos() + "\\eigen-" + wer, "1"})));
        if (wer == "a") {
            ASSERT_FALSE(ist_fehler(Verfahren_anlegen(p.g, {"Fest", ordner.dos() + "\\v", "1"})));
            for (int n = 1; n <= 3; ++n) rover_dazu(p.g, n);
        }
        ASSERT_FALSE(ist_fehler(ende(p.g)));
    }
    hilfen::schreiben(ordner.host() / "v/002.KRZ", "kurz");
}

// True when the disturbance no longer came to pass.
bool stoeren(const Arbeitsordner& ordner, const Handlung& handlung, int n)
{
    constexpr int unerreicht = 9;
    const pid_t kind = ::fork();
    if (kind == 0) {
        Programm p(ordner, handlung.einstellungen);
        if (handlung.offen && ist_fehler(Verfahren_oeffnen(p.g, "Fest"))) ::_exit(2);
        p.g.dateien = Dateisystem({}, stoerend);
        stoerung_bei = n;
        const bool fehler = ist_fehler(handlung.tun(p, ordner.dos()));
        const bool gemeldet = !p.schirm.gezeigt.empty();
        ::_exit(zaehler >= n ? (fehler && !gemeldet ? 3 : 0) : (fehler ? 4 : unerreicht));
    }
    int status = 0;
    ::waitpid(kind, &status, 0);
    EXPECT_EQ(WIFSIGNALED(status), tod && WIFSIGNALED(status));
    const int ende = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
    EXPECT_TRUE(ende == 0 || ende == unerreicht) << "status " << ende;
    return ende != 0;
}

// The list names projects that are there; "Fest" opens or, where it is in no list, can be taken in again, whole.
void alles_da(const Arbeitsordner& ordner, const std::string& einstellungen)
{
    Programm p(ordner, einstellungen);
    liste_stimmt(p);
    ASSERT_FALSE(ist_fehler(Verfahren_oeffnen(p.g, "Eigenes")));
    if (Index_zu_Name(p.g, "Fest") != 0) {
        ASSERT_FALSE(ist_fehler(Verfahren_oeffnen(p.g, "Fest")));
    } else {
        const std::string projektdatei = fs::exists(ordner.host() / "v/003.INI") ? "\\v\\003.INI" : "\\v\\002.INI";
        ASSERT_FALSE(ist_fehler(importieren(p, ordner.dos() + projektdatei))) << p.schirm.einzige();
    }
    EXPECT_EQ(p.g.OBS_R.anzahl(), 3);
    const int elevation = p.g.ROVER_Settings[2].Elevation;
    EXPECT_TRUE(elevation == 5 || elevation == 10) << elevation;
    EXPECT_TRUE(fs::exists(p.g.dateien.host(Verfahrens_Datei(p.g, ".KRZ"))));
    projekt_stimmt(p);
}

}  // namespace

TEST(Lebenslauf, TodUndFehlschlagInJedemAugenblickLassenEinVerfahrenDasAufgeht)
{
    const Arbeitsordner ordner;
    zwei_benutzer(ordner);
    fs::copy(ordner.host(), ordner.wurzel() / "vorlage", fs::copy_options::recursive);
    for (const Handlung& handlung : handlungen)
        for (const bool toeten : {true, false}) {
            tod = toeten;
            bool ungestoert = false;
            int n = 0;
            while (!ungestoert && n < 1000 && !HasFailure()) {
                SCOPED_TRACE(handlung.was + std::string(tod ? ", killed" : ", failure") + " at call " +
                             std::to_string(++n));
                fs::remove_all(ordner.host());
                fs::copy(ordner.wurzel() / "vorlage", ordner.host(), fs::copy_options::recursive);
                ungestoert = stoeren(ordner, handlung, n);
                alles_da(ordner, handlung.einstellungen);
            }
            EXPECT_TRUE(ungestoert);
            EXPECT_GT(n, 10) << handlung.was;
        }
}
#endif

}  // namespace jorv
