// Baselines: their batches to the byte, their run, and the files that follow from it.
#include <gtest/gtest.h>

#include <functional>

#include "auswertung/basis_batch.h"
#include "auswertung/basis_gesamt.h"
#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

const std::string linie = "5501092a.05o-5502092b.05o";

struct Basisstand : Beispiel {
    Basisstand() : Beispiel({"5501092a.05o", "5502092b.05o", "5503092a.05o"}, "4")
    {
        verlegen("D:", "D:\\Projekte\\Muster");
        for (auto& satz : g.ROVER_Settings) satz.Elevation = 10, satz.EpochRate = 1;
        (void)g.BASISLINIE.anfuegen({"5501", "5501092a.05o", "5502", "5502092b.05o"});
        (void)g.BASISLINIE.anfuegen({"5502", "5502092b.05o", "5503", "5503092a.05o"});
        baum_aufbauen(g);
    }
    ROVER_Settings_Satz& von() { return g.ROVER_Settings[1]; }
    ROVER_Settings_Satz& nach() { return g.ROVER_Settings[2]; }
};

void aus(ROVER_Settings_Satz& satz, std::initializer_list<const char*> satelliten)
{
    for (const char* name : satelliten)
        satz.DelSatelliteName[static_cast<std::size_t>(++satz.AnzahlDelSatellite)] = name;
}

TEST(BasisBatch, schreibt_jede_zeile_auf_das_byte)
{
    const auto apc = [](Basisstand& b) { b.g.Verfahren[1].Antenne = "APC"; };
    struct {
        const char* probe;
        bool alle;
        Fehler ergebnis;
        std::function<void(Basisstand&)> aendern;
    } const tafel[] = {{"basis_einfach", false, Fehler::keiner, [](Basisstand&) {}},
                       {"basis_emds", false, Fehler::keiner,
                        [](Basisstand& b) {
                            b.g.emds_ausgabe = true;
                            b.g.UTM_Zone = "32";
                            b.von().Solution = 1, b.nach().Solution = 0;
                            b.nach().EpochRate = 30;
                            b.von().Elevation = 15;
                            b.von().DelFirstMinutes = b.nach().DelFirstMinutes = 3;
                            b.nach().DelLastMinutes = 12;
                            aus(b.von(), {"G05", "G31"}), aus(b.nach(), {"G31", "R12"});
                        }},
                       {"basis_apc", false, Fehler::gesetzt, apc},
                       {"basis_alle", true, Fehler::keiner, [](Basisstand&) {}},
                       {"basis_alle_apc", true, Fehler::keiner, apc}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.probe);
        Basisstand b;
        fall.aendern(b);
        EXPECT_EQ(fall.alle ? m_basis_erstellen(b.g) : basis_batch_einzeln(b.g, linie), fall.ergebnis);
        EXPECT_EQ(b.datei("001.BAT"), probe(std::string(fall.probe) + ".BAT"));
        EXPECT_EQ(b.datei("Jorv.BAT"), fall.ergebnis == Fehler::keiner ? probe("aufruf.BAT") : "(keine)");
    }
}

TEST(BasisBatch, vereint_die_einstellungen_beider_enden)
{
    struct {
        int loesung_von, loesung_nach;
        const char* nach;
        const char* optionen;
    } const tafel[] = {{0, 2, "5502092b.05o", " +TL0 +L2"},
                       {2, 1, "5502092b.05o", " +TL1 +L2"},
                       {0, 0, "5502092b.05o", " +TL0 +L2"},
                       {2, 2, "9999092a.05o", " +TL0 +R1 -e10 +L2"}};  // an end without settings: zeros
    for (const auto& fall : tafel) {
        Basisstand b;
        b.von().Solution = fall.loesung_von, b.nach().Solution = fall.loesung_nach;
        ASSERT_EQ(basis_batch_einzeln(b.g, "5501092a.05o-" + std::string(fall.nach)), Fehler::keiner);
        const std::string optionen = fall.nach + std::string(" +ACF001.ATX") + fall.optionen;
        EXPECT_NE(b.datei("001.BAT").find(optionen), std::string::npos) << b.datei("001.BAT");
    }
}

TEST(BasisBatch, sagt_was_nicht_geschrieben_werden_kann)
{
    Basisstand b;
    b.versperren("Jorv.BAT");
    EXPECT_EQ(basis_batch_einzeln(b.g, linie), Fehler::keiner);
    EXPECT_EQ(b.schirm.einzige(), "Die Aufrufdatei:\n" + b.pfad8("Jorv.BAT") +
                                      "\ndie Batchdatei konnte nicht angelegt/überschrieben werden!");
    b.schirm.gezeigt.clear();
    EXPECT_EQ(m_basis_erstellen(b.g), Fehler::gesetzt);  // the question's default is "no"
    EXPECT_EQ(b.schirm.einzige(),
              "Die Batchdatei:\n" + b.pfad8("001.BAT") + "\nist ist bereits vorhanden!\n\nDie Datei überschreiben?");
}

}  // namespace
