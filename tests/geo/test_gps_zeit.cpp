#include "geo/gps_zeit.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "hilfen/Projekt.h"

namespace jorv {

using hilfen::Pruefstand;

namespace fs = std::filesystem;

namespace {

// Stands in for the command interpreter: leaves the given bytes as the answer of every batch, or nothing at all.
class Antwortgeber {
public:
    explicit Antwortgeber(const std::string& befehl)
    {
        const fs::path skript = m_ordner.host() / "jorv-dos";
        hilfen::schreiben(skript, "#!/bin/sh\n" + befehl + "\n");
        fs::permissions(skript, fs::perms::owner_all);
        ::setenv("PATH", (m_ordner.host().string() + ":/usr/bin:/bin").c_str(), 1);
    }

private:
    hilfen::Arbeitsordner m_ordner;
};

}  // namespace

TEST(GpsZeit, AufrufdateiFuehrtInDenOrdnerUndRuftWATIME)
{
    Pruefstand p("1", "Süd 1");
    p.g.EXE_Verzeichnis = "C:\\gibt\\es nicht";
    std::string zeit;
    EXPECT_TRUE(ist_fehler(gps_zeit_holen(p.g, 2016, 12, 1, 12, 0, 0, zeit)));
    const std::string vdir = p.g.Arbeitsverzeichnis;
    EXPECT_EQ(hilfen::lesen(p.pfad("Jorv.BAT")), "@echo off\r\npath %path%;C:\\gibt\\es nicht\r\nZ:\r\n" +
                                                     dos_text("cd " + vdir.substr(2)) +
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
        std::string befehl, meldung;
        bool datum;
    };
    const Fall faelle[] = {
        {"true", "Die Datumsdatei:\n%\nkonnte nicht geöffnet werden!", false},
        {"mkdir Jorv.tmp", "Die Datumsdatei:\n%\nkonnte nicht richtig gelesen werden!", false},
        {": > Jorv.tmp", "Die Datumsdatei:\n%\nhat keine Informationen!", false},
        {"echo 01.12.2016 12:00:00 > Jorv.tmp", "(GPS-Zeit) fehlt in der Datums-Datei:\n%\n\n", false},
        {"echo kein Datum > Jorv.tmp", "GPS-Datum fehlt in der Datums-Datei:\n%\n\n", true},
    };
    for (const auto& fall : faelle) {
        const Antwortgeber geber(fall.befehl);
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
    const Antwortgeber geber("printf '01.12.2016 12:00:00 336.50 1925/4 388800\\r\\nmehr' > Jorv.tmp");
    Pruefstand p;
    std::string zeit;
    EXPECT_FALSE(ist_fehler(gps_zeit_holen(p.g, 2016, 12, 1, 12, 0, 0, zeit)));
    EXPECT_EQ(zeit, "336");
    Zeitpunkt datum;
    EXPECT_FALSE(ist_fehler(gps_datum_holen(p.g, 1925, 4, datum)));
    EXPECT_EQ(datum_text(datum), "01.12.2016");
}

}  // namespace jorv
