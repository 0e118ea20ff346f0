#include "konsole/Konsolenschirm.h"

#include <gtest/gtest.h>

#include <sstream>

#include "plattform/text.h"

namespace jorv {
namespace {

struct Pruefling {
    explicit Pruefling(Konsolenschirm::Verhalten verhalten = {}) : schirm(aus, err, verhalten, {})
    {
        schirm.fortschritt_erlauben();
    }
    std::ostringstream aus, err;
    Konsolenschirm schirm;
};

TEST(Konsolenschirm, MeldungenStehenWortgetreuHinterIhremKennwort)
{
    Pruefling p;
    p.schirm.meldung(Symbol::stop, u8"Die Datei:\nZ:\\ä.16o\nkonnte nicht geöffnet werden!"_w);
    p.schirm.meldung(Symbol::warnung, "w");
    p.schirm.meldung(Symbol::info, "i");
    EXPECT_EQ(p.err.str(), "STOP Die Datei:\nZ:\\ä.16o\nkonnte nicht geöffnet werden!\nWARNUNG w\nINFO i\n");
    EXPECT_EQ(p.aus.str(), "");
    EXPECT_EQ(p.schirm.stopmeldungen(), 1);
}

TEST(Konsolenschirm, FragenNehmenDieAntwortDesAufrufsSonstDieVorgabe)
{
    struct Fall {
        std::optional<Antwort> antwort;
        Antwort vorgabe, ergebnis;
    };
    const Fall faelle[] = {{{}, Antwort::ja, Antwort::ja},
                           {{}, Antwort::nein, Antwort::nein},
                           {Antwort::ja, Antwort::nein, Antwort::ja},
                           {Antwort::nein, Antwort::ja, Antwort::nein}};
    for (const auto& fall : faelle) {
        Pruefling p({fall.antwort, false});
        EXPECT_EQ(p.schirm.frage(Symbol::warnung, "Weiter?", fall.vorgabe), fall.ergebnis);
        EXPECT_EQ(p.err.str(), std::string("FRAGE Weiter?\n-> ") + (fall.ergebnis == Antwort::ja ? "Ja\n" : "Nein\n"));
    }
}

TEST(Konsolenschirm, OhneTerminalIstJedeNeueUeberschriftEineZeile)
{
    Pruefling p;
    p.schirm.fortschritt_zeigen("Auswertung (1/2) - bitte warten");
    for (int i = 0; i < 50; ++i) p.schirm.fortschritt_setzen(i);
    p.schirm.fortschritt_zeigen("Auswertung (1/2) - bitte warten");
    p.schirm.fortschritt_zeigen("Auswertung (2/2) - bitte warten");
    p.schirm.fortschritt_verbergen();
    EXPECT_EQ(p.err.str(), "Auswertung (1/2) - bitte warten\nAuswertung (2/2) - bitte warten\n");
}

TEST(Konsolenschirm, AmTerminalRaeumtDerFortschrittDenPlatzFuerMeldungen)
{
    Pruefling p({std::nullopt, true});
    p.schirm.fortschritt_zeigen("Warten");
    p.schirm.meldung(Symbol::info, "fertig");
    EXPECT_EQ(p.err.str(), "\r\x1b[KWarten 0 %\r\x1b[KINFO fertig\n");
}

TEST(Konsolenschirm, DialogeAntwortenEinmalUndBrechenDannAb)
{
    Pruefling p;
    p.schirm.dateiwahl = Dateiwahl{{"Z:\\a.16o"}, "Z:\\"};
    p.schirm.verfahrenswahl = Verfahrenswahl{"Nord", "Z:\\v", "1"};
    EXPECT_EQ(p.schirm.dateien_waehlen(Dateiart::rinex, "")->dateien.size(), 1u);
    EXPECT_FALSE(p.schirm.dateien_waehlen(Dateiart::rinex, ""));
    std::vector<std::string> namen;
    const auto ok = [&](const Verfahrenswahl& wahl) {
        namen.push_back(wahl.name);
        return std::optional(Verfahrensfeld::name);
    };
    p.schirm.neues_verfahren({}, "001", ok);
    p.schirm.neues_verfahren({}, "001", ok);
    EXPECT_EQ(namen, std::vector<std::string>{"Nord"});
}

}  // namespace
}  // namespace jorv
