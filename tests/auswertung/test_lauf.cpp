#include "auswertung/lauf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;
using testing::ElementsAre;

namespace {

// A project that is ready to run, and a child that leaves what the suite would leave.
struct Laufstand : Beispiel {
    explicit Laufstand(std::initializer_list<const char*> rover = {"5501092a.05o", "5502092a.05o", "5503092a.05o"},
                       std::string_view modus = "1")
        : Beispiel(rover, modus)
    {
        legen("001.ATX", "TRM22020.00+GP  NONE00220020                                TYPE / SERIAL NO    \r\n");
        umgebung.gleichzeitig = [](const Global&) { return 1; };
        umgebung.prozess = [this](const Dateisystem&, std::string_view kommandozeile, const std::function<void()>&) {
            kommandozeilen.emplace_back(kommandozeile);
            const std::string batch = datei("001.BAT");
            // The first word behind `wav2`, the second behind `wa2`.
            const auto stelle =
                ist_F(g) ? batch.find(' ', batch.find("\r\nwa2 ") + 6) + 1 : batch.find("\r\nwav2 ") + 7;
            const std::string rover_name = batch.substr(stelle, batch.find(' ', stelle) - stelle);
            gerechnet.push_back(rover_name);
            for (const char* ordnername : {"dat_rov", "krz_rov", "lis_rov", "dat_ext"})
                (void)g.dateien.ordner_anlegen(im_Verfahren(g, std::string("jorv_out\\") + ordnername));
            const auto eigenes = kind.find(rover_name);
            eigenes != kind.end() ? eigenes->second() : gute_rechnung(rover_name, "FixedL1");
            return true;
        };
    }
    void gute_rechnung(const std::string& rover, const std::string& loesung)
    {
        std::string zeile = rover.substr(0, 4) + std::string(97, 'k') + rover.substr(0, 4) + " " + loesung;
        zeile.resize(201, '.');
        legen(rover.substr(0, 8) + ".ext", zeile + "\r\n");
        legen("jorv_out\\lis_rov\\" + rover + ".LIS", "Protokoll " + rover + "\r\n");
    }
    Fehler laufen() { return m_wasoft_run_n(g, umgebung); }
    std::vector<std::string> berechnet() const
    {
        std::vector<std::string> namen;
        for (const auto& knoten : g.baum.finden("E_Datei")->Kinder) namen.push_back(knoten.Text);
        return namen;
    }

    Lauf_Umgebung umgebung;
    std::map<std::string, std::function<void()>> kind;  ///< by rover; the others compute well
    std::vector<std::string> kommandozeilen, gerechnet;
};

TEST(Lauf, rechnet_die_bereiten_rover_und_raeumt_auf)
{
    Laufstand l({"5501092a.05o", "5502092a.05o", "5503092a.05o", "5504092a.05o", "5505092a.05o"});
    l.g.ROVER_Settings[2].Ein_Ausschalterkennung = 0;
    l.g.ROVER_TOREL[4].Status = 3;
    baum_aufbauen(l.g);
    for (const char* alt : {"001.KRZ", "001.ALL", "001.LIS"}) l.legen(alt, "alt\r\n");
    l.g.Verfahren[1].LetztDatum = "";
    ASSERT_EQ(l.laufen(), Fehler::keiner);
    EXPECT_TRUE(l.schirm.gezeigt.empty()) << l.schirm.einzige();
    EXPECT_THAT(l.gerechnet, ElementsAre("5501092a.05o", "5503092a.05o", "5505092a.05o"));
    EXPECT_THAT(l.berechnet(), ElementsAre("5501092a.05o", "5503092a.05o", "5505092a.05o"));
    for (const auto& zeile : l.kommandozeilen) EXPECT_EQ(zeile, "\"" + im_Verfahren(l.g, "Jorv.BAT") + "\"");
    EXPECT_THAT(l.schirm.fortschritt,
                ElementsAre(t1252("Auswertung läuft - bitte warten "), "Auswertung (1/3) - bitte warten",
                            "Auswertung (2/3) - bitte warten", "Auswertung (3/3) - bitte warten", "(verborgen)"));
    EXPECT_THAT(l.schirm.prozente, ElementsAre(0.0001, 33, 67, 100));
    EXPECT_EQ(l.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
    EXPECT_NE(l.datei("001.KRZ").find("Anzahl Berechnungen:3\r\n" + t1252("Anzahl Lösungen:    3\r\n")),
              std::string::npos);
    EXPECT_NE(l.datei("001.ALL").find(t1252("Anzahl Lösungen:    3 *** 2 fehlen! ***\r\n")), std::string::npos);
    EXPECT_EQ(l.datei("001.LIS").find("alt"), std::string::npos);
    EXPECT_NE(l.datei("001.LIS").find("\r\nProtokoll 5503092a.05o\r\n"), std::string::npos);
    EXPECT_EQ(l.datei("jorv_out\\dat_rov\\5505092a.05o.UTM"), "5505" + std::string(97, 'k') + "\r\n");
    EXPECT_FALSE(l.hat("5505092a.ext"));
    EXPECT_GE(l.schirm.menue_erneuert, 1);
    // The computed rovers aren't computed again.
    EXPECT_EQ(l.laufen(), Fehler::gesetzt);
    EXPECT_EQ(l.schirm.einzige(), "Es kann keine ROVER-Datei ausgewertet werden!");
}

TEST(Lauf, rechnet_mit_fremden_stationen_was_verknuepft_und_an_ist)
{
    Laufstand l({"5501092a.05o", "5502092a.05o", "5503092a.05o", "5504092a.05o"}, "3");
    l.g.ROVER_Settings[1].Ein_Ausschalterkennung = 0;
    l.g.ROVER_VIRT[3].VIRT_Dateiname = "?";
    baum_aufbauen(l.g);
    ASSERT_EQ(l.laufen(), Fehler::keiner);
    EXPECT_TRUE(l.schirm.gezeigt.empty()) << l.schirm.einzige();
    EXPECT_THAT(l.berechnet(), ElementsAre("5502092a.05o", "5504092a.05o"));
}

TEST(Lauf, ohne_etwas_zu_rechnen_bleibt_alles_stehen)
{
    struct {
        std::function<void(Laufstand&)> vorher;
        const char* text;
    } const tafel[] = {
        {[](Laufstand& l) { l.g.OBS_R.leeren(); }, "Es sind keine ROVER-Dateien im aktuellen Verfahren vorhanden!"},
        {[](Laufstand& l) {
             for (auto& satz : l.g.ROVER_Settings) satz.Ein_Ausschalterkennung = 0;
         },
         "Es kann keine ROVER-Datei ausgewertet werden!"},
        {[](Laufstand& l) {
             for (auto& satz : l.g.ROVER_TOREL) satz.Status = 2;
         },
         "Es kann keine ROVER-Datei ausgewertet werden!"}};
    for (const auto& fall : tafel) {
        Laufstand l;
        fall.vorher(l);
        baum_aufbauen(l.g);
        l.legen("001.KRZ", "alt");
        EXPECT_EQ(l.laufen(), Fehler::gesetzt);
        EXPECT_EQ(l.schirm.einzige(), fall.text);
        EXPECT_EQ(l.schirm.gezeigt[0].symbol, Symbol::info);
        EXPECT_EQ(l.datei("001.KRZ"), "alt");
        EXPECT_TRUE(l.gerechnet.empty());
    }
}

TEST(Lauf, was_vor_dem_ersten_rover_scheitert_startet_kein_kind)
{
    struct {
        std::function<void(Laufstand&)> vorher;
        const char* anfang;
    } const tafel[] = {
        {[](Laufstand& l) { (void)l.g.dateien.loeschen(im_Verfahren(l.g, "001.ATX")); }, "Die Antennendatei:\n"},
        {[](Laufstand& l) {
             l.g.Verfahren[1].Antenne = "APC";
             l.versperren("001.COO");
         },
         "Die Datei:\n"},
        {[](Laufstand& l) {  // mode F tests before each rover
             l.g.Verfahrensmodus = "3";
             fremde_anfuegen(l.g, "5501092a.05o");
             (void)l.g.dateien.loeschen(im_Verfahren(l.g, "001.ATX"));
         },
         "Die Antennendatei:\n"},
        {[](Laufstand& l) { l.versperren("001.BAT"); }, "Die Batchdatei:\n"},
        {[](Laufstand& l) { l.g.Verfahrensmodus = "5"; }, "Verfahren dieses Modus können nicht ausgewertet werden!"}};
    for (const auto& fall : tafel) {
        Laufstand l;
        fall.vorher(l);
        EXPECT_EQ(l.laufen(), Fehler::gesetzt);
        EXPECT_EQ(l.schirm.einzige().rfind(fall.anfang, 0), 0u) << l.schirm.einzige();
        EXPECT_TRUE(l.gerechnet.empty());
        EXPECT_FALSE(l.hat("001.ALL"));
    }
}

TEST(Lauf, ohne_batch_oder_aufrufdatei_wird_gewarnt)
{
    Laufstand batch;
    {
        const Bruch bruch(batch.g);
        Bruch::umbenennen_luegt = true;
        EXPECT_EQ(batch.laufen(), Fehler::gesetzt);
    }
    EXPECT_EQ(batch.schirm.einzige(), "Eine Batchdatei für das Verfahren existiert noch nicht!");
    EXPECT_EQ(batch.schirm.gezeigt[0].symbol, Symbol::warnung);
    Laufstand aufruf;
    {
        const Bruch bruch(aufruf.g);
        Bruch::schreiben_bei = 2;  // the batch comes first
        EXPECT_EQ(aufruf.laufen(), Fehler::gesetzt);
    }
    ASSERT_EQ(aufruf.schirm.gezeigt.size(), 2u);
    EXPECT_EQ(aufruf.schirm.texte()[1], "Eine Aufrufdatei für die Batchdatei des Verfahrens existiert noch nicht!");
    EXPECT_EQ(aufruf.schirm.gezeigt[1].symbol, Symbol::warnung);
}

TEST(Lauf, das_ergebnis_eines_frueheren_laufs_gilt_nicht)
{
    Laufstand l;
    l.gute_rechnung("5502092a.05o", "FixedL1");
    l.kind["5502092a.05o"] = [] {};
    EXPECT_EQ(l.laufen(), Fehler::gesetzt);
    EXPECT_EQ(
        l.schirm.einzige().rfind(
            "Die Extraktionsdatei:\n" + l.pfad8("5502092a.ext") + "\nkonnte nicht geöffnet werden!\n\nEventuell", 0),
        0u);
    // Left early: the third rover isn't tried, no closing report is made, the tree isn't renewed.
    EXPECT_THAT(l.gerechnet, ElementsAre("5501092a.05o", "5502092a.05o"));
    EXPECT_TRUE(l.berechnet().empty());
    EXPECT_FALSE(l.hat("001.ALL"));
    EXPECT_EQ(l.schirm.fortschritt.back(), "(verborgen)");
    Laufstand gesperrt;
    gesperrt.gute_rechnung("5501092a.05o", "FixedL1");
    const Bruch bruch(gesperrt.g);
    Bruch::loeschen_endung = ".ext";
    EXPECT_EQ(gesperrt.laufen(), Fehler::gesetzt);
    EXPECT_EQ(gesperrt.schirm.einzige(),
              "Die Extraktionsdatei:\n" + gesperrt.pfad8("5501092a.ext") + "\nkonnte nicht gelöscht werden!");
    EXPECT_TRUE(gesperrt.gerechnet.empty());
}

TEST(Lauf, sagt_am_ende_was_fehlt)
{
    const std::string schluss = "Unbedingt die Kurzprotokolldatei einsehen!";
    const std::string fehlt = "Es wurden nur 2 von 3 Punkte berechnet.\n\n";
    const std::string float_ = "Es wurden 2 Punkte mit \"Float-Lösung\" berechnet.\n\n";
    for (const int fall : {1, 2, 3}) {  // bit 1: an empty extraction file, bit 2: float solutions
        Laufstand l;
        if (fall & 1) l.kind["5501092a.05o"] = [&] { l.legen("5501092a.ext", ""); };
        if (fall & 2)
            for (const std::string rover : {"5502092a.05o", "5503092a.05o"})
                l.kind[rover] = [&l, rover] { l.gute_rechnung(rover, "FloatDGNSS"); };
        EXPECT_EQ(l.laufen(), Fehler::keiner);
        EXPECT_EQ(l.schirm.gezeigt.size(), fall & 1 ? 2u : 1u);
        EXPECT_EQ(l.schirm.texte().back(),
                  "Achtung!\n\n" + (fall & 2 ? float_ : "") + (fall & 1 ? fehlt : "") + schluss);
        EXPECT_EQ(l.schirm.gezeigt.back().symbol, Symbol::warnung);
        EXPECT_EQ(l.berechnet().size(), fall & 1 ? 2u : 3u);
        EXPECT_FALSE(l.hat("5501092a.05o.UTM"));
    }
}

TEST(Lauf, nennt_nicht_kalibrierte_antennen_einmal_am_ende)
{
    const auto warnung = [](const std::string& antenne, const std::string& datei) {
        return "WARNUNG: Antenne " + antenne + " der Datei " + datei + " fehlt in 001.ATX: keine Korrektur.\r\n";
    };
    const std::string kopf =
                          "Achtung!\n\nFür diese Antennen wurde keine Kalibrierung gefunden. An ihren Punkten wurde "
                          "ohne Antennenkorrektur gerechnet:\n\n",
                      schluss = "\nUnbedingt die Berechnungsprotokolle einsehen!";
    struct {
        std::string lis_1, lis_3;
        std::string text;  // between head and end; empty: no message
    } const tafel[] = {
        {"", "", ""},
        {"WARNUNG: Antenne \"7\" \"T\" der Datei x: nur ohne Haube kalibriert (T).\r\n", "", ""},
        {warnung("\"\" \"TYP A\"", "virt092.05o") + warnung("\"\" \"TYP A\"", "virt092.05o"),
         warnung("\"\" \"TYP A\"", "virt092.05o") + warnung("\"8 der Datei\" \"\"", "5503092a.05o"),
         "\"\" \"TYP A\"\n   bei 5501092a.05o, 5503092a.05o\n\"8 der Datei\" \"\"\n   bei 5503092a.05o\n"}};
    for (const auto& fall : tafel) {
        Laufstand l;
        const auto rechnen = [&l](const std::string& rover, const std::string& lis) {
            l.kind[rover] = [&l, rover, lis] {
                l.gute_rechnung(rover, "FixedL1");
                l.legen("jorv_out\\lis_rov\\" + rover + ".LIS", lis);
            };
        };
        rechnen("5501092a.05o", fall.lis_1);
        rechnen("5503092a.05o", fall.lis_3);
        EXPECT_EQ(l.laufen(), Fehler::keiner);
        ASSERT_EQ(l.schirm.gezeigt.size(), fall.text.empty() ? 0u : 1u);
        if (fall.text.empty()) continue;
        EXPECT_EQ(l.schirm.einzige(), kopf + fall.text + schluss);
        EXPECT_EQ(l.schirm.gezeigt[0].symbol, Symbol::warnung);
    }
}

TEST(Lauf, ohne_eine_loesung_gibt_es_kein_kurzprotokoll)
{
    Laufstand l({"5501092a.05o"});
    l.legen("001.KRZ", "alt\r\n");
    l.kind["5501092a.05o"] = [&] { l.legen("5501092a.ext", ""); };
    EXPECT_EQ(l.laufen(), Fehler::keiner);
    EXPECT_FALSE(l.hat("001.KRZ"));
    EXPECT_EQ(l.schirm.einzige(),
              "Die Extraktionsdatei:\n" + l.pfad8("5501092a.ext") + "\nkonnte nicht richtig gelesen werden!");
    EXPECT_TRUE(l.berechnet().empty());
}

TEST(Lauf, ein_abbruch_laesst_den_rover_zu_ende_rechnen)
{
    struct {
        const char* waehrend;
        std::size_t gerechnet;
    } const tafel[] = {{"5501092a.05o", 1}, {"5502092a.05o", 2}, {"5503092a.05o", 3}};
    for (const auto& fall : tafel) {
        Laufstand l;
        l.kind[fall.waehrend] = [&] {
            l.gute_rechnung(fall.waehrend, "FixedL1");
            l.schirm.abbruch_nach = 1;
        };
        EXPECT_EQ(l.laufen(), Fehler::keiner);
        EXPECT_EQ(l.berechnet().size(), fall.gerechnet);
        EXPECT_TRUE(l.hat("001.ALL"));
        EXPECT_EQ(l.schirm.prozente.back(), 100);
        if (fall.gerechnet == 3) {
            EXPECT_TRUE(l.schirm.gezeigt.empty());
        } else {
            EXPECT_EQ(l.schirm.einzige(), "Achtung!\n\nEs wurden nur " + std::to_string(fall.gerechnet) +
                                              " von 3 Punkte berechnet.\n\nUnbedingt die Kurzprotokolldatei einsehen!");
        }
        // A new run forgets the abort.
        l.schirm.abbruch_nach = 0;
        l.schirm.gezeigt.clear();
        EXPECT_EQ(l.laufen(), fall.gerechnet == 3 ? Fehler::gesetzt : Fehler::keiner);
        EXPECT_EQ(l.berechnet().size(), 3u);
    }
}

TEST(Lauf, legt_die_ausgaben_des_rovers_ab)
{
    Laufstand l;
    l.kind["5501092a.05o"] = [&] {
        l.gute_rechnung("5501092a.05o", "FixedL1");
        l.legen("001.ERR", "ein Fehler\r\n");
        l.legen("001.LIS", "Liste\r\n");
        l.legen("001.UTM", "Punkt\r\n");
    };
    l.kind["5502092a.05o"] = [&] {
        l.gute_rechnung("5502092a.05o", "FixedL1");
        l.legen("001.ERR", "");
    };
    EXPECT_EQ(l.laufen(), Fehler::keiner);
    EXPECT_TRUE(l.schirm.gezeigt.empty()) << l.schirm.einzige();
    EXPECT_EQ(l.datei("jorv_out\\error_rov\\5501092a.05o.ERR"), "ein Fehler\r\n");
    EXPECT_EQ(l.datei("jorv_out\\lis_rov\\5501092a.05o.LIS"), "Liste\r\n");
    EXPECT_EQ(l.datei("jorv_out\\dat_rov\\5501092a.05o.UTM"), "Punkt\r\n");
    EXPECT_FALSE(l.hat("jorv_out\\error_rov\\5502092a.05o.ERR"));
    for (const char* quelle : {"001.ERR", "001.UTM"}) EXPECT_FALSE(l.hat(quelle)) << quelle;
    EXPECT_EQ(l.schirm.fortschritt[3], "Auswertung (3/3) - bitte warten (1 Fehler)");
}

TEST(Lauf, jede_stoerung_der_ablage_sagt_ihr_wort_und_geht_weiter)
{
    struct {
        const char* quelle;
        const char* inhalt;
        const char* versperrt;  // target that can't be written, or nullptr: the source can't be deleted
        const char* text;
        const char* endung;
    } const tafel[] = {
        {"001.LIS", "x", "jorv_out\\lis_rov\\5501092a.05o.LIS",
         "Berechnungsprotokoll der Datei: \n%\nkonnte nicht kopiert werden!", ""},
        {"001.UTM", "x", "jorv_out\\dat_rov\\5501092a.05o.UTM",
         "Ergebnisprotokoll der Datei: \n%\nkonnte nicht kopiert werden!", ""},
        {"001.ERR", "x", "jorv_out\\error_rov\\5501092a.05o.ERR",
         "Fehlerprotokoll der Datei: \n%\nkonnte nicht kopiert werden!", ""},
        {"001.LIS", "x", nullptr, "Berechnungsprotokoll: 001.LIS konnte nicht gelöscht werden!", "/001.LIS"},
        {"001.UTM", "x", nullptr, "Ergebnisprotokoll: 001.UTM konnte nicht gelöscht werden!", "/001.UTM"},
        {"001.ERR", "x", nullptr, "Fehlerprotokoll: 001.ERR konnte nicht gelöscht werden!", "/001.ERR"},
        {"001.ERR", "", nullptr, "Leeres Fehlerprotokoll: 001.ERR konnte nicht gelöscht werden!", "/001.ERR"}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.text);
        Laufstand l({"5501092a.05o"});
        const Bruch bruch(l.g);
        Bruch::loeschen_endung = fall.endung;
        bool lag_noch = false;
        l.kind["5501092a.05o"] = [&] {
            l.gute_rechnung("5501092a.05o", "FixedL1");
            l.legen(fall.quelle, fall.inhalt);
            if (!fall.versperrt) return;
            (void)l.g.dateien.loeschen(im_Verfahren(l.g, fall.versperrt));
            l.versperren(fall.versperrt);
        };
        (void)l.laufen();
        lag_noch = l.hat(fall.quelle);
        EXPECT_TRUE(lag_noch);
        const auto texte = l.schirm.texte();
        EXPECT_THAT(
            texte, testing::Contains("Achtung!\n\n" + ersetzt(std::string_view(fall.text), "%", l.pfad8(fall.quelle))));
        EXPECT_TRUE(l.hat("001.ALL"));
    }
}

TEST(Lauf, alte_berichte_die_bleiben_halten_den_lauf_nicht_auf)
{
    struct {
        const char* datei;
        const char* gegenstand;
    } const tafel[] = {{"001.KRZ", "Das veraltete Kurzprotokoll: "},
                       {"001.ALL", "Das veraltete Kurzprotokoll aller ROVER: "},
                       {"001.LIS", "Das veraltete Berechnungsprotokoll aller ROVER/Basislinien: "}};
    for (const auto& fall : tafel) {
        Laufstand l({"5501092a.05o"});
        l.legen(fall.datei, "alt\r\n");
        const Bruch bruch(l.g);
        Bruch::loeschen_endung = std::string("/") + fall.datei;
        EXPECT_EQ(l.laufen(), Fehler::keiner);
        EXPECT_EQ(l.schirm.texte()[0], std::string("Achtung!\n\n") + fall.gegenstand + "\n" + l.pfad8(fall.datei) +
                                           "\nkonnte nicht gelöscht werden!");
        EXPECT_EQ(l.schirm.gezeigt[0].symbol, Symbol::stop);
        EXPECT_EQ(l.gerechnet.size(), 1u);
    }
}

TEST(Lauf, die_emd_datei_weicht_nur_wenn_sie_neu_entsteht)
{
    for (const bool an : {false, true}) {
        Laufstand l({"5501092a.05o"});
        l.legen("jorv_out\\export\\001.EMD", "alt");
        l.g.emds_ausgabe = an;
        EXPECT_EQ(l.laufen(), Fehler::keiner);
        EXPECT_EQ(l.hat("jorv_out\\export\\001.EMD"), !an);
    }
}

}  // namespace
