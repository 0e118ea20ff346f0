// What is proposed for a rover without a green light, gone as a user goes it.
#include "planung/weg.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"
#include "planung/automatik.h"
#include "planung/begruendung.h"
#include "planung/figuren.h"
#include "planung/handarbeit.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

constexpr std::string_view name = "5501001a.14o";

// Stations and session letters, then begin and end of all these files; several such groups.
struct Fall {
    std::uint8_t Grund;
    Wegart art;
    std::string_view rover, stationen, text;  ///< text: part of the words
    bool in_figur = true, geschuetzt = false;
};

constexpr std::string_view lang = "10:00:00 11:30:00";

const Fall faelle[] = {
    {1, Wegart::figur, lang, "0590 0591 0592 0593 001a 09:00:00 12:00:00", "TOREL-Punkte 0590, 0591, 0593 zu", false},
    {1, Wegart::von_hand, lang, "0590 0591 0593 001a 10:05:00 12:00:00", "0591001a.14o (beginnt zu sp\xe4t um 5 min)"},
    {1, Wegart::einfuegen, lang, "0590 001a 13:00:00 14:00:00", "0593001a.14o (01.01.2014 10:00:00 bis"},
    {1, Wegart::keiner, lang, "", "keiner", false},
    {2, Wegart::von_hand, lang, "0590 0591 0592 001a 09:00:00 12:00:00 0593 001a 10:12:00 12:00:00",
     "mit 0590001a.14o, 0591001a.14o, 0592001a.14o verkn\xfcpfen"},
    {2, Wegart::einfuegen, lang, "0590 0591 001b 09:00:00 12:00:00", "einf\xfcgen: 0593001b.14o ("},
    {2, Wegart::einfuegen, "10:00:00 10:20:00", "0590 0591 001a 09:00:00 12:00:00",
     "(01.01.2014 09:40:00 bis 01.01.2014 10:40:00)"},
    {3, Wegart::von_hand, lang, "0590 0591 0593 002a 09:00:00 12:00:00 0590 0591 0593 001a 09:00:00 11:29:00",
     "0590001a.14o (endet zu fr\xfch um 1 min)"},
    {3, Wegart::schutz_aufheben, lang, "0590 0591 0593 001a 09:00:00 12:00:00", "Schutz", true, true},
    {5, Wegart::von_hand, "10:00:00 10:30:00", "0590 0591 0593 001a 09:50:00 10:40:00", "0591001a.14o, 0593001a.14o"},
    {6, Wegart::von_hand, "10:00:00 10:59:00", "0590 0591 0593 001a 09:00:00 10:59:00", "sch\xfctzen"},
};

Punkt ort(std::string_view kennzeichen)
{
    const bool rechts = kennzeichen == "0591" || kennzeichen == "0592", oben = kennzeichen >= "0592";
    return punkt(kennzeichen, rechts ? 30000 : 20000, oben ? 30000 : 20000);
}

void stationen_anlegen(Global& g, std::string_view text)
{
    std::vector<std::string_view> punkte;
    while (!text.empty()) {
        const auto wort = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(wort.size() + 1, text.size()));
        if (wort.back() <= '9') {
            punkte.push_back(wort);
            continue;
        }
        for (const auto kennzeichen : punkte) {
            const Punkt stelle = ort(kennzeichen);
            station(g, beobachtung(verkettet(kennzeichen, wort, ".14o"), text.substr(0, 8), text.substr(9, 8)),
                    stelle.Rechtswert, stelle.Hochwert);
        }
        punkte.clear();
        text.remove_prefix(std::min<std::size_t>(18, text.size()));
    }
}

void aufbauen(Global& g, const Fall& f)
{
    rover(g, beobachtung(name, f.rover.substr(0, 8), f.rover.substr(9)), 23000, 22000);
    stationen_anlegen(g, f.stationen);
    (void)g.GEO_Punkt.anfuegen(f.in_figur ? figur({ort("0590"), ort("0591"), ort("0593")})
                                          : figur({punkt("1", 0, 0), punkt("2", 1, 0), punkt("3", 0, 1)}));
    if (f.geschuetzt) {
        ROVER_TOREL_Satz t;
        t.Anzahl = 1;
        t.TOREL_Dateiname[0] = "0590009a.14o";
        t.Schutz = true;
        (void)g.ROVER_TOREL.anfuegen(t);
    }
    automatik(g);
}

void verknuepfen(Global& g, const std::vector<Dateiurteil>& dateien, bool schutz)
{
    Handarbeit h;
    ASSERT_EQ(handarbeit_oeffnen(g, name, h), Fehler::keiner);
    for (int i = 1; i <= h.Detail.anzahl(); ++i)
        if (h.Detail[i].farbe == Zeilenfarbe::gelb) handarbeit_klick(g, h, i);
    for (const auto& datei : dateien)
        for (int i = 1; i <= h.Detail.anzahl(); ++i)
            if (h.Detail[i].Dateiname == datei.TOREL_Dateiname) handarbeit_klick(g, h, i);
    h.Schutz = schutz;
    handarbeit_ok(g, h);
}

void gehen(Global& g, const Weg& weg)
{
    if (weg.art == Wegart::figur)
        for (const auto& ecke : {weg.Punkte[0], weg.Punkte[1], weg.Punkte[2], weg.Punkte[0]})
            for (int k = 1; k <= g.S_Punkt.anzahl(); ++k)
                if (g.S_Punkt[k].Punktkennzeichen == ecke) geo_markierung(g, k);
    if (weg.art == Wegart::von_hand || weg.art == Wegart::schutz_aufheben)
        verknuepfen(g, weg.Dateien, weg.art == Wegart::von_hand);
    for (const auto& b : weg.Bedarf) {
        const auto tagessekunde = [](const Zeitpunkt& z) { return z.stunde * 3600 + z.minute * 60 + z.sekunde; };
        station(g, beobachtung(b.TOREL_Dateiname, tagessekunde(b.von), tagessekunde(b.bis)));
    }
    automatik(g);
}

}  // namespace

TEST(WegZuGruen, FuehrtZuGruen)
{
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.stationen);
        Pruefstand p;
        aufbauen(p.g, f);
        const auto& t = p.g.ROVER_TOREL[1];
        EXPECT_EQ(t.Grund, f.Grund);
        const auto weg = weg_zu_gruen(p.g, 1);
        ASSERT_TRUE(weg);
        EXPECT_EQ(weg->art, f.art);
        EXPECT_NE(weg_text(*weg).find(f.text), std::string::npos) << utf8_aus_1252(weg_text(*weg));
        EXPECT_EQ(begruendung_zeilen(p.g, 1).back().art, Zeilenart::weg);
        if (f.art == Wegart::keiner) continue;
        gehen(p.g, *weg);
        EXPECT_EQ(verkettet(p.g.ROVER_TOREL[1].Status, p.g.ROVER_TOREL[1].Grund), "10");
        EXPECT_FALSE(weg_zu_gruen(p.g, 1));
        EXPECT_TRUE(p.schirm.texte().empty());
    }
}
