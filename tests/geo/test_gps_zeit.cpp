#include "geo/gps_zeit.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "hilfen/Umgebung.h"

namespace jorv {

using hilfen::Pruefstand;

namespace fs = std::filesystem;

namespace {

// What answers in the place of WATIME, once as a script for the interpreter that Linux has, once as a batch file.
struct Ersatz {
    const char* skript;
    const char* batch;
};

// Stands in front on the search path.
class Antwortgeber {
public:
    explicit Antwortgeber(const Ersatz& ersatz)
    {
#ifdef _WIN32
        hilfen::schreiben(m_ordner.host() / "WATIME.bat", std::string("@echo off\r\n") + ersatz.batch + "\r\n");
        m_pfad.setzen(hilfen::suchpfad_hinter(m_ordner.host()));
#else
        const fs::path skript = m_ordner.host() / "jorv-dos";
        hilfen::schreiben(skript, std::string("#!/bin/sh\n") + ersatz.skript + "\n");
        fs::permissions(skript, fs::perms::owner_all);
        m_pfad.setzen(m_ordner.host().string() + ":/usr/bin:/bin");
#endif
    }

private:
    hilfen::Arbeitsordner m_ordner;
    hilfen::Umgebungswert m_pfad{"PATH", ""};
};

}  // namespace

TEST(GpsZeit, AufrufdateiFuehrtInDenOrdnerUndRuftWATIME)
{
    Pruefstand p("1", "Süd 1");
    p.g.EXE_Verzeichnis = "C:\\gibt\\es nicht";
    std::string zeit;
    EXPECT_TRUE(ist_fehler(gps_zeit_holen(p.g, 2016, 12, 1, 12, 0, 0, zeit)));
    const std::string vdir = p.g.Arbeitsverzeichnis;
    EXPECT_EQ(hilfen::lesen(p.pfad("Jorv.BAT")), "@echo off\r\npath %path%;C:\\gibt\\es nicht\r\n" + vdir.substr(0, 2) +
                                                     "\r\n" + dos_text("cd " + vdir.substr(2)) +
                                                     "\r\nWATIME 2016 12 1 12 0 0 > Jorv.tmp\r\n");
    Zeitpunkt datum;
    EXPECT_TRUE(ist_fehler(gps_datum_holen(p.g, 1925, 4, datum)));
    EXPECT_NE(hilfen::lesen(p.pfad("Jorv.BAT")).find("\r\nWATIME 1925/4 > Jorv.tmp\r\n"), std::string::npos);
}

TEST(GpsZeit, JederFehlschlagHatSeineMeldung)
{
    {
        Pruefstand p;
        fs::create_directory(p.pfad("Jorv.BAT"));
        std::string zeit;
        EXPECT_TRUE(ist_fehler(gps_zeit_holen(p.g, 2016, 12, 1, 12, 0, 0, zeit)));
        EXPECT_EQ(p.schirm.einzige(), "Die Aufrufdatei:\n" + utf8_aus_1252(p.g.Arbeitsverzeichnis) +
                                          "\\Jorv.BAT\nder Batchdatei konnte nicht angelegt/überschrieben werden!");
    }
    struct Fall {
        Ersatz ersatz;  // no batch: the system's interpreter leaves the file whatever happens
        std::string meldung;
        bool datum;
    };
    const Fall faelle[] = {
        {{"true", nullptr}, "Die Datumsdatei:\n%\nkonnte nicht geöffnet werden!", false},
        {{"mkdir Jorv.tmp", nullptr}, "Die Datumsdatei:\n%\nkonnte nicht richtig gelesen werden!", false},
        {{": > Jorv.tmp", "rem"}, "Die Datumsdatei:\n%\nhat keine Informationen!", false},
        {{"echo 01.12.2016 12:00:00 > Jorv.tmp", "echo 01.12.2016 12:00:00"},
         "(GPS-Zeit) fehlt in der Datums-Datei:\n%\n\n",
         false},
        {{"echo kein Datum > Jorv.tmp", "echo kein Datum"}, "GPS-Datum fehlt in der Datums-Datei:\n%\n\n", true},
    };
    for (const auto& fall : faelle) {
#ifdef _WIN32
        if (!fall.ersatz.batch) continue;
#endif
        const Antwortgeber geber(fall.ersatz);
        Pruefstand p;
        hilfen::schreiben(p.pfad("Jorv.tmp"), "01.12.2016 12:00:00 336.50 1925/4 388800\r\n");  // of an earlier call
        std::string zeit = "unverändert";
        Zeitpunkt datum;
        EXPECT_TRUE(ist_fehler(fall.datum ? gps_datum_holen(p.g, 1925, 4, datum)
                                          : gps_zeit_holen(p.g, 2016, 12, 1, 12, 0, 0, zeit)));
        EXPECT_EQ(p.schirm.einzige(), ersetzt(fall.meldung, "%", utf8_aus_1252(p.g.Arbeitsverzeichnis) + "\\Jorv.tmp"));
        EXPECT_EQ(zeit, "unverändert");
    }
}

TEST(GpsZeit, NurDieErsteZeileZaehlt)
{
    const Antwortgeber geber({"printf '01.12.2016 12:00:00 336.50 1925/4 388800\\r\\nmehr' > Jorv.tmp",
                              "echo 01.12.2016 12:00:00 336.50 1925/4 388800\r\necho mehr"});
    Pruefstand p;
    std::string zeit;
    EXPECT_FALSE(ist_fehler(gps_zeit_holen(p.g, 2016, 12, 1, 12, 0, 0, zeit)));
    EXPECT_EQ(zeit, "336");
    Zeitpunkt datum;
    EXPECT_FALSE(ist_fehler(gps_datum_holen(p.g, 1925, 4, datum)));
    EXPECT_EQ(datum_text(datum), "01.12.2016");
}

}  // namespace jorv
