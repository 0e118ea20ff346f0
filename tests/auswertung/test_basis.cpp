// Baselines: their batches to the byte, their run, and the files that follow from it.
#include <gtest/gtest.h>

#include <functional>

#include "auswertung/basis_batch.h"
#include "auswertung/basis_esa.h"
#include "auswertung/basis_gesamt.h"
#include "auswertung/basis_lovena.h"
#include "auswertung/ergebnis.h"
#include "auswertung/lauf.h"
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
}

const std::string kopf_bal =
    "von  nach           dx          dy          dz     distance      sX     sY     sZ     rXY    rYZ    rZX\r\n";
const std::string
    bal =
        "5501 5502    2022771.2   -468630.2   2610287.4    3335388.7    1.04   0.95   1.28  -0.641  0.380 "
        "-0.620",
    mrk = "5501 5502    2022771.2   -468630.2   2610287.4    1.04   0.95   1.28  -0.641  0.380 -0.620 092 a",
    tem = "5501 5502      3.41  -0.641  0.380 -0.620 100.0 1316/6 a  6.7 FixedL1       59.5    2.3";

const char* const ordner[] = {"jorv_out\\export", "jorv_out\\dat_bas", "jorv_out\\lis_bas", "jorv_out\\prot_bas"};

void ordner_anlegen(Beispiel& b)
{
    for (const char* name : ordner) (void)b.g.dateien.ordner_anlegen(im_Verfahren(b.g, name));
}

TEST(BasisErgebnis, verteilt_die_zeile_auf_ihre_vier_dateien)
{
    Basisstand b;
    ordner_anlegen(b);
    b.legen("001.BAL", "of a run that broke off\r\n");
    int status = 0;
    for (int i = 1; i <= 2; ++i) {
        b.legen("001.ext", bal + " " + mrk + " " + tem + "\r\n");
        basis_auswerten(b.g, linie, status);
    }
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(b.schirm.gezeigt.empty()) << b.schirm.einzige();
    EXPECT_EQ(b.datei("jorv_out\\export\\001.MRK"), mrk + "\r\n" + mrk + "\r\n");
    EXPECT_EQ(b.datei("jorv_out\\export\\001.TEM"), tem + "\r\n" + tem + "\r\n");
    EXPECT_EQ(b.datei("jorv_out\\dat_bas\\001.BAL"), kopf_bal + bal + "\r\n" + bal + "\r\n");
    EXPECT_EQ(b.datei("jorv_out\\dat_bas\\5501092a-5502092b.BAL"), kopf_bal + bal + "\r\n");
    EXPECT_FALSE(b.hat("001.BAL"));
    EXPECT_FALSE(b.hat("001.ext"));
}

TEST(BasisErgebnis, nur_eine_fehlende_extraktion_beendet_den_lauf)
{
    Basisstand b;
    int status = 0;
    basis_auswerten(b.g, linie, status);
    EXPECT_EQ(status, 99);
    EXPECT_EQ(b.schirm.einzige(), "Die Extraktionsdatei:\n" + b.pfad8("001.ext") +
                                      "\nkonnte nicht geöffnet werden!\n\nEventuell wurde die WaSoft nicht "
                                      "ordnungsgemäß durchgeführt.\n\nBitte die Protokolldatei:\n" +
                                      b.pfad8("jorv_out\\lis_bas\\5501092a-5502092b.lis") +
                                      " auf ERROR-Meldungen untersuchen!");
    b.schirm.gezeigt.clear();
    status = 0;
    ordner_anlegen(b);
    b.legen("001.ext", "");
    basis_auswerten(b.g, linie, status);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(b.schirm.einzige(),
              "Die Extraktionsdatei:\n" + b.pfad8("001.ext") + "\nkonnte nicht richtig gelesen werden!");
    EXPECT_FALSE(b.hat("jorv_out\\dat_bas\\001.BAL"));
    EXPECT_FALSE(b.hat("jorv_out\\export\\001.TEM"));
}

TEST(BasisLauf, rechnet_jede_basislinie_und_schreibt_die_folgedateien)
{
    Beispiel b({"5501092a.05o", "5502092b.05o", "5503092a.05o"}, "4");
    const Suite_im_Pfad suite(b.g);
    (void)b.g.BASISLINIE.anfuegen({"5501", "5501092a.05o", "5502", "5502092b.05o"});
    (void)b.g.BASISLINIE.anfuegen({"5502", "5502092b.05o", "5503", "5503092a.05o"});
    baum_aufbauen(b.g);
    b.legen("jorv_out\\lis_bas\\001.LIS", "alt\r\n");
    b.legen("001.KRZ", "alt\r\n");
    int laeufe = 0;
    Lauf_Umgebung umgebung;
    umgebung.prozess = [&](const Dateisystem&, std::string_view, const std::function<void()>&) {
        ordner_anlegen(b);
        EXPECT_FALSE(b.hat("001.ext"));  // nothing of an earlier run
        b.legen("001.ext", bal + " " + mrk + " " + tem + "\r\n");
        const char* stamm[] = {"5501092a-5502092b", "5502092b-5503092a"};
        b.legen(std::string("jorv_out\\prot_bas\\") + stamm[laeufe++] + ".prt", "x");
        (void)b.g.dateien.anhaengen(im_Verfahren(b.g, "jorv_out\\lis_bas\\001.LIS"),
                                    "Scan of RINEX file       5501092a.05o\r\n  actual epochs         120\r\n"
                                    "Scan of RINEX file       5502092b.05o\r\n  actual epochs         240\r\n");
        return true;
    };
    b.legen("001.ext", "alt");
    EXPECT_EQ(m_wasoft_run_n(b.g, umgebung), Fehler::keiner);
    EXPECT_TRUE(b.schirm.gezeigt.empty()) << b.schirm.einzige();
    EXPECT_EQ(laeufe, 2);
    EXPECT_EQ(b.g.baum.finden("BB_Datei")->Kinder.size(), 2u);
    EXPECT_EQ(b.datei("jorv_out\\export\\001.SIG"), "5501 5502 02.04.2005 3.41\r\n5501 5502 02.04.2005 3.41\r\n");
    EXPECT_EQ(b.datei("jorv_out\\export\\001.AMB"), "5501 5502 02.04.2005100.0\r\n5501 5502 02.04.2005100.0\r\n");
    EXPECT_EQ(b.datei("jorv_out\\export\\001.EPO"), "5501092a.05o 120\r\n5502092b.05o 240\r\n");
    EXPECT_EQ(m_wasoft_run_n(b.g, umgebung), Fehler::gesetzt);
    EXPECT_EQ(b.schirm.einzige(), "Es sind keine Basislinien im aktuellen Verfahren definiert!");
}

TEST(Esa, laesst_fehlerhafte_zeilen_aus_und_nennt_sie)
{
    Basisstand b;
    EXPECT_EQ(m_basis_esa(b.g), Fehler::gesetzt);
    b.legen("jorv_out\\export\\001.TEM",
            "RefS\r\n \r\n5501 5502 1.0 0 0 0 100.0\r\n5501 5502 1.0 0 0 0 100.0 1316/7\r\n");
    EXPECT_EQ(m_basis_esa(b.g), Fehler::gesetzt);
    b.legen("jorv_out\\lis_bas\\001.LIS",
            "  actual epochs         1\r\nScan a\r\nScan 5501092a.05o\r\n  actual epochs         2\r\n");
    EXPECT_EQ(m_basis_esa(b.g), Fehler::keiner);
    EXPECT_EQ(m_basis_esa(b.g, 0), Fehler::gesetzt);
    const std::string datei = b.pfad8("jorv_out\\export\\001.TEM"),
                      rat = "\n\nDatei überprüfen und ggf. neu versuchen!";
    const std::string eins = "GPS-Tag fehlt in der Datei:\n" + datei + "\nin Zeile: 3" + rat,
                      zwei = "GPS-Tag fehlerhaft in der Datei:\n" + datei + "\nin Zeile: 4" + rat;
    EXPECT_EQ(
        b.schirm.texte(),
        (std::vector<std::string>{
            "Eine Datei:\n" + datei + "\nexistiert noch nicht!", eins, zwei,
            "Die Datei:\n" + b.pfad8("jorv_out\\lis_bas\\001.LIS") + "\nkonnte nicht geöffnet werden!", eins, zwei,
            eins, zwei,
            "Dimensionierungsfehler! (58 in m_basis_esa_click)\n    ReDim l_sta_feld(1)\nevtl. Speicherplatzprobleme"
            "\n\nOffene Anwendungen schließen und erneut versuchen!"}));
    EXPECT_EQ(b.datei("jorv_out\\export\\001.SIG"), "");
    EXPECT_EQ(b.datei("jorv_out\\export\\001.EPO"), "5501092a.05o 2\r\n");
}

TEST(RV, gibt_jeder_basislinie_zwei_zeilen)
{
    Basisstand b;
    const std::string stern = "5501 5502 1 2 3 ******* 5 6 .1 .2 .3 092 a";
    b.legen("jorv_out\\export\\001.MRK",
            mrk + "\r\n" + stern + "\r\n5502 5503 1 2 3\r\n5502 5503 -1500 0 0,5 1 2 3 1 2 3 7\r\n");
    EXPECT_EQ(m_basis_lovena(b.g), Fehler::keiner);
    EXPECT_EQ(b.datei("RV001.DAT"),
              " -99\r\n"
              "       5501       5502   2022.771200 -468.630200 2610.287400  3\r\n"
              "   1.040   0.950   1.280-0.6410-0.6200 0.3800 2016  92\r\n"
              "       5502       5503     -1.500000    0.000000    0.000500  3\r\n"
              "   1.000   2.000   3.000 1.0000 3.0000 2.0000 2016   7\r\n"
              " -99\r\n -99\r\n");
    const std::string datei = "\n" + b.pfad8("jorv_out\\export\\001.MRK") + "\nin Zeile: ",
                      rat = "\n\nDatei überprüfen und ggf. neu versuchen!",
                      rv = "Die LOVENA-Datei:\n" + b.pfad8("RV001.DAT");
    EXPECT_EQ(m_basis_lovena(b.g), Fehler::gesetzt);  // the question's default is "no"
    EXPECT_EQ(b.schirm.texte(),
              (std::vector<std::string>{"sX fehlerhaft in der Datei:" + datei + "2" + rat,
                                        "sX fehlt in der Datei:" + datei + "3" + rat, rv + "\nerfolgreich erstellt!",
                                        rv + "\nist ist bereits vorhanden!\n\nDie Datei überschreiben?"}));
}

TEST(Basis, sagt_was_noch_nicht_geht)
{
    Basisstand b;
    EXPECT_EQ(m_basis_lovena(b.g), Fehler::gesetzt);
    b.legen("jorv_out\\export\\001.TEM", "RefS\r\n");
    b.legen("jorv_out\\lis_bas\\001.LIS", "Scan 5501092a.05o\r\n  actual epochs         2\r\n");
    {
        const Bruch bruch(b.g);
        Bruch::schreiben_bei = 1;  // the other two files are empty
        EXPECT_EQ(m_basis_esa(b.g), Fehler::gesetzt);
    }
    b.g.Verfahrensmodus = "1";
    EXPECT_EQ(m_basis_erstellen(b.g), Fehler::gesetzt);
    EXPECT_EQ(b.schirm.texte(),
              (std::vector<std::string>{
                  "Eine Datei mit Basislinienergebnissen für das Verfahren existiert noch nicht!",
                  "In die EPO-Datei:\n" + b.pfad8("jorv_out\\export\\001.EPO") + "\nkonnte nicht geschrieben werden!",
                  "Eine Batchdatei aller Basislinien gibt es nur im Modus B!"}));
}

}  // namespace
