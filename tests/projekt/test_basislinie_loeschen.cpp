#include "projekt/basislinie_loeschen.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <utility>
#include <vector>

#include "hilfen/Projekt.h"
#include "modell/Meldungen.h"
#include "projekt/Vollprojekt.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

// Two sessions between the same points, told apart by their values only, and the first one turned round.
constexpr std::string_view namen[] = {"0001001a.14o-0 02001a.14o", "0001001b.14o-0 02001a.14o",
                                      "0 02001a.14o-0001001a.14o"};
constexpr std::string_view korrelationen[] = {" -0.641 0.380 -0.620", " -0.642 0.380 -0.620", " -0.641 0.380 -0.620"};

std::string zeilen(std::string_view art, std::string_view ziffern)
{
    std::string text = art == ".BAL" ? "von  nach           dx          dy\r\n" : "";
    for (const char ziffer : ziffern) {
        const auto i = static_cast<std::size_t>(ziffer - '0');
        text += verkettet(links(namen[i], 4), " ", mitte(namen[i], 14, 4), art == ".TEM" ? "  3.41" : "  1.0 2.0 3.0",
                          art == ".BAL" ? " 4.0" : "", art == ".TEM" ? "" : " 1.04 0.95 1.28", korrelationen[i],
                          art == ".BAL" ? "\r\n" : " 001 a\r\n");
    }
    return text;
}

constexpr std::string_view sammel[] = {"jorv_out/export/001.MRK", "jorv_out/export/001.TEM",
                                       "jorv_out/dat_bas/001.BAL"};
constexpr std::string_view eigene[] = {"prot_bas/0001001a-0 02001a.prt", "lis_bas/0001001a-0 02001a.lis",
                                       "dat_bas/0001001a-0 02001a.BAL"};

void anlegen(Pruefstand& p)
{
    for (const auto name : namen) basislinie(p.g, links(name, 12), mitte(name, 14));
    for (const auto datei : eigene) schreiben(p.pfad(verkettet("jorv_out/", datei)), zeilen(".BAL", "0"));
    for (const auto datei : sammel) schreiben(p.pfad(datei), zeilen(rechts(datei, 4), "012"));
}

}  // namespace

TEST(BasislinieLoeschen, NimmtErgebnisseUndGenauSeineZeilenHeraus)
{
    Pruefstand p("4");
    anlegen(p);
    p.schirm.antworten = {Antwort::ja, Antwort::ja};
    for (const auto& [name, bleiben] : {std::pair{namen[0], "12"}, {namen[2], "1"}}) {
        EXPECT_EQ(BASISLINIE_loeschen(p.g, name), Fehler::keiner);
        for (const auto datei : sammel) EXPECT_EQ(lesen(p.pfad(datei)), zeilen(rechts(datei, 4), bleiben));
        for (const auto datei : eigene) EXPECT_FALSE(fs::exists(p.pfad(verkettet("jorv_out/", datei))));
    }
    EXPECT_EQ(p.g.BASISLINIE.anzahl(), 1);
    EXPECT_EQ(BASISLINIE_loeschen(p.g, namen[0]), Fehler::gesetzt);
}

TEST(BasislinieLoeschen, BleibtWennEtwasScheitert)
{
    struct Fall {
        std::string_view im_weg;  // a folder stands in place of that file
        std::string meldung;      // # is the project's result folder
        std::size_t voll = 9;     // the disk is full and this many collected files are missing
    };
    std::vector<Fall> faelle = {
        {"prot_bas/0001001a-0 02001a.prt",
         "Achtung!\n\nDas Basislinienergebnis: \n#prot_bas\\0001001a-0 02001a.PRT\nkonnte nicht gelöscht werden!"},
        {"nein",
         verkettet("Die Basislinie: ", namen[0], " wird aus dem Verfahren entfernt!\n\nDie Funktion jetzt ausführen?")},
        {"grenze", utf8_aus_1252(dimensionierung_meldung(86, "BASISLINIE_loeschen", "    ReDim Preserve BASISLINIE(2)",
                                                         " ", "!"))}};
    for (const std::size_t i : {0u, 1u, 2u}) {
        const std::string wessen[] = {"für LOVENA", "für Tem", "der Basislinie"};
        const std::string datei =
            "ie Ergebnisdatei " + wessen[i] + ":\n#" + ersetzt(std::string(mitte(sammel[i], 10)), '/', '\\');
        faelle.push_back({mitte(sammel[i], 10), "D" + datei + "\nkonnte nicht geöffnet werden!"});
        faelle.push_back({"voll", "In d" + datei + "\nkonnte nicht richtig geschrieben werden!", i});
    }
    auto voll = Systemaufrufe::echte();
    voll.schreiben = [](int, const void*, std::size_t) { return errno = ENOSPC, -1L; };
    for (const auto& f : faelle) {
        Pruefstand p("4");
        anlegen(p);
        if (f.im_weg == "grenze") p.g.BASISLINIE.grenze_setzen(1);
        if (f.voll < 9) p.g.dateien = Dateisystem(Laufwerke::aus_umgebung(), voll);
        for (std::size_t i = 0; f.voll < 9 && i < f.voll; ++i) fs::remove(p.pfad(sammel[i]));
        fs::remove(p.pfad(verkettet("jorv_out/", f.im_weg)));
        fs::create_directories(p.pfad(verkettet("jorv_out/", f.im_weg, "/voll")));
        p.schirm.antworten = {f.im_weg == "nein" ? Antwort::nein : Antwort::ja};
        EXPECT_EQ(ist_fehler(BASISLINIE_loeschen(p.g, namen[0])), f.im_weg != "nein");
        EXPECT_EQ(p.schirm.texte().back(), ersetzt(f.meldung, "#", p.g.Arbeitsverzeichnis + "\\jorv_out\\"));
        EXPECT_EQ(p.g.BASISLINIE.anzahl() - p.schirm.karte_gezeichnet, 3);
    }
}
