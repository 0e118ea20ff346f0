// What runs in a window of its own: the batches that nobody waits for and the outside programs that go on with results.
#include <gtest/gtest.h>

#include <functional>

#include "auswertung/basis_ausfuehren.h"
#include "auswertung/basis_i95.h"
#include "auswertung/folgeprogramme.h"
#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

struct Folgestand : Beispiel {
    explicit Folgestand(std::string_view modus = "4") : Beispiel({"5501092a.05o", "5502092b.05o"}, modus)
    {
        g.EXE_Verzeichnis = "C:\\WaSoft";
        verlegen("D:", "D:\\Projekte\\Muster");
        g.Einstellungsdatei = "D:\\Doku\\JorvPlus.INI";
        (void)g.dateien.ordner_anlegen("D:\\Doku");
    }
    // An outside program in C:\WaSoft under that host name.
    void programm(const std::string& name)
    {
        auto laufwerke = g.dateien.laufwerke();
        laufwerke.zuordnen("C:", ordner.wurzel() / "c");
        g.dateien = Dateisystem(laufwerke);
        hilfen::schreiben(ordner.wurzel() / "c/WaSoft" / name, "x");
    }
    const Suite_im_Pfad suite{g};
    const Fensterstart& letzter() const { return schirm.gestartet.back(); }
};

TEST(I95, kopiert_die_datei_schreibt_die_batch_und_startet_sie)
{
    struct {
        const char* probe;
        const char* datei;
        const char* kopie;
        std::function<void(Global&)> aendern;
    } const tafel[] = {{"i95_einfach.BAT", "0583092a.05o", "5830092a.05o", [](Global&) {}},
                       {"i95_apc.BAT", "0583092.05o", "58303092.05o", [](Global& g) {
                            g.Verfahren[1].Antenne = "APC";
                            g.Tem_Stationen = {"0600", "0591", "0593", "0601"};
                        }}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.probe);
        Folgestand f;
        fall.aendern(f.g);
        for (const char* name : {"0583092a.05n", "5501092a.05o", fall.datei, "0583093a.05o"})
            (void)f.g.RINEX_Dateien.anfuegen(name);
        f.legen(fall.datei, "Beobachtungen");
        f.legen("Jorv.BAT", "WATIME");
        EXPECT_EQ(m_basis_i95(f.g), Fehler::keiner) << f.schirm.einzige();
        EXPECT_EQ(f.datei(fall.kopie), "Beobachtungen");
        EXPECT_EQ(f.datei("001.BAT"), probe(fall.probe));
        EXPECT_EQ(f.datei("Jorv.BAT"), probe("aufruf.BAT"));
        const std::string aufruf = "D:\\Projekte\\Muster\\Jorv.BAT";
#ifdef _WIN32
        EXPECT_EQ(f.letzter().programm, f.g.dateien.host(aufruf));
#else
        EXPECT_EQ(f.letzter().argumente, std::vector{aufruf});
#endif
        EXPECT_EQ(f.letzter().ordner, f.g.dateien.host("D:\\Projekte\\Muster"));
    }
}

TEST(I95, sagt_woran_es_liegt)
{
    struct {
        const char* meldung;
        std::function<void(Folgestand&)> aendern;
    } const tafel[] = {
        {"Die RINEX-Datei für Larsund (0583):\nexistiert nicht!", [](Folgestand& f) { f.g.RINEX_Dateien.leeren(); }},
        {"Die RINEX-Datei für Larsund (0583):\nkonnte nicht in (5830) umkopiert werden!", [](Folgestand&) {}},
        {"Die angegebene Batchdatei:\nD:\\Projekte\\Muster\\001.BAT\nkonnte nicht angelegt/überschrieben werden!",
         [](Folgestand& f) { f.legen("0583092a.05o", "x"), f.versperren("001.BAT"); }}};
    for (const auto& fall : tafel) {
        Folgestand f;
        (void)f.g.RINEX_Dateien.anfuegen("0583092a.05o");
        fall.aendern(f);
        EXPECT_EQ(m_basis_i95(f.g), Fehler::gesetzt);
        EXPECT_EQ(f.schirm.einzige(), fall.meldung);
        EXPECT_TRUE(f.schirm.gestartet.empty());
    }
}

TEST(BasisAusfuehren, startet_die_aufrufdatei_neu_geschrieben_und_wartet_nicht)
{
    Folgestand f;
    EXPECT_EQ(m_basis_batch(f.g), Fehler::gesetzt);
    EXPECT_EQ(f.schirm.einzige(), "Eine Batchdatei für das Verfahren existiert noch nicht!");
    f.legen("Jorv.BAT", "WATIME");
    EXPECT_EQ(m_basis_run(f.g), Fehler::keiner);
    EXPECT_EQ(f.datei("Jorv.BAT"), probe("aufruf.BAT"));
    EXPECT_EQ(m_basis_run(f.g), Fehler::gesetzt);  // the question's default is "no"
    EXPECT_EQ(f.schirm.gestartet.size(), 1u);
    Folgestand gesperrt;
    gesperrt.versperren("Jorv.BAT");
    EXPECT_EQ(m_basis_run(gesperrt.g), Fehler::gesetzt);
    EXPECT_EQ(gesperrt.schirm.texte().back(), "FEHLER !!!\n2 Datei nicht gefunden beim Aufruf der Batchdatei");
}

const std::string titel = "Verfahren -->Muster<--(001)  ";

TEST(Mittelung, sammelt_die_ergebnisse_und_laesst_die_werte_des_benutzers_stehen)
{
    Folgestand f("1");
#ifdef _WIN32
    const std::string runa = "RUNA.EXE";
#else
    const std::string runa = "runa";  // in place of RUNA.EXE
#endif
    f.programm(runa);
    f.legen("jorv_out\\dat_rov\\5501092a.05o.UTM", "eins\r\n");
    f.legen("jorv_out\\dat_rov\\5502092b.05o.UTM", "zwei");
    f.legen("001.UTM", "alt");
    f.legen("001.INI",
            "[VERFAHREN]\r\nName=Muster\r\n[runa]\r\nTitel=alt\r\n[RUNA-VERFAHREN NR 1]\r\n"
            "Protokolldatei=mein.MIT\r\nTIRSO-Datei=\r\n");
    f.g.Verfahren[1].LetztDatum = "alt";
    baum_aufbauen(f.g);
    EXPECT_EQ(m_wasoft_runa(f.g), Fehler::keiner) << f.schirm.einzige();
    EXPECT_EQ(f.datei("001.UTM"), "eins\r\nzwei\r\n");
    EXPECT_EQ(utf8_aus_1252(f.datei("001.INI")),
              "[VERFAHREN]\r\nName=Muster\r\n[runa]\r\nTitel=" + titel +
                  "MITTELUNG (Jorv, Version 1.0 vom 01.12.2016)\r\nIcon=D:\\Projekte\\Muster\\Jorv.ICO\r\n"
                  "[RUNA-VERFAHREN NR 1]\r\nProtokolldatei=mein.MIT\r\nTIRSO-Datei=D:\\Projekte\\Muster\\001.TIR\r\n"
                  "Identität=Muster\r\nKoordinatendatei=D:\\Projekte\\Muster\\001.UTM\r\n"
                  "HOLBEK-Datei=D:\\Projekte\\Muster\\HB001.DAT\r\nFortführungsdatei=D:\\Projekte\\Muster\\001.PIFF\r\n"
                  "PELIDE-Datei=D:\\Projekte\\Muster\\AU001.DAT\r\n[RUNA-START]\r\nEditor=Notepad.exe\r\n"
                  "[RUNA-GRUNDEINSTELLUNGEN]\r\nDateiverzeichnis=D:\\Projekte\\Muster\r\n");
    EXPECT_EQ(f.letzter().programm.filename(), runa);
    EXPECT_EQ(f.letzter().argumente, std::vector<std::string>{"D:\\Projekte\\Muster\\001.INI"});
    EXPECT_EQ(f.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
}

TEST(Mittelung, sagt_was_fehlt)
{
    const std::string eins = "jorv_out\\dat_rov\\5501092a.05o.UTM", zwei = "jorv_out\\dat_rov\\5502092b.05o.UTM";
    const std::string ordner = "D:\\Projekte\\Muster\\";
    const auto keine = "Es sind keine Ergebnis-Dateien im aktuellen Verfahren vorhanden!",
               kein_runa = "FEHLER !!!\n2 Datei nicht gefunden beim Start von RUNA",
               kein_utm = "Eine Koordinatendatei für das RUNA existiert noch nicht!";
    struct {
        const char* modus;
        std::vector<std::string> meldungen;
        std::function<void(Folgestand&)> vorher, nachher;  // before and behind the tree
    } const tafel[] = {
        {"1", {keine, kein_utm}, {}, {}},
        {"4", {kein_utm}, {}, {}},
        {"1", {keine, kein_runa}, [](Folgestand& f) { f.legen("001.UTM", "alt"); }, {}},
        {"3",
         {"Eine Ergebnisdatei für die ROVER-Datei:\n5501092a.05o\nexistiert noch nicht!", kein_runa},
         [&](Folgestand& f) { f.legen(eins, "x"), f.legen(zwei, "y"); },
         [&](Folgestand& f) { (void)f.g.dateien.loeschen(im_Verfahren(f.g, eins)); }},
        {"1",
         {"Die Ergebnisdatei:\n" + ordner + eins + "\nkonnte nicht geöffnet werden!"},
         [&](Folgestand& f) { f.legen(eins, "x"); },
         [&](Folgestand& f) { (void)f.g.dateien.loeschen(im_Verfahren(f.g, eins)), f.versperren(eins); }},
        {"1",
         {"Die RuNA-Eingabedatei:\n" + ordner + "001.UTM\nkonnte nicht angelegt werden!"},
         [&](Folgestand& f) { f.legen(eins, "x"), f.versperren("001.UTM"); },
         {}},
        {"1",
         {"In die Aufrufdatei:\n" + ordner + "001.INI\nkonnte nicht richtig geschrieben werden!"},
         [&](Folgestand& f) { f.legen(eins, "x"), f.versperren("001.INI"); },
         {}}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.meldungen[0]);
        Folgestand f(fall.modus);
        if (fall.vorher) fall.vorher(f);
        baum_aufbauen(f.g);
        if (fall.nachher) fall.nachher(f);
        EXPECT_EQ(m_wasoft_runa(f.g), Fehler::gesetzt);
        EXPECT_EQ(f.schirm.texte(), fall.meldungen);
    }
}

TEST(Mittelung, nennt_jede_stufe_eines_kranken_datentraegers)
{
    for (const int lesen_bei : {0, 1}) {
        Folgestand f("1");
        f.legen("jorv_out\\dat_rov\\5501092a.05o.UTM", "x");
        baum_aufbauen(f.g);
        const Bruch bruch(f.g);
        Bruch::lesen_bei = lesen_bei;
        Bruch::schreiben_bei = 1 - lesen_bei;
        EXPECT_EQ(m_wasoft_runa(f.g), Fehler::gesetzt);
        EXPECT_EQ(f.schirm.einzige(), lesen_bei == 1
                                          ? "Die Ergebnisdatei:\n" + f.pfad8("jorv_out\\dat_rov\\5501092a.05o.UTM") +
                                                "\nkonnte nicht richtig gelesen werden!"
                                          : "In die RuNA-Eingabedatei::\n" + f.pfad8("001.UTM") +
                                                "\nkonnte nicht richtig geschrieben werden!");
    }
}

TEST(Graphik, nennt_die_zeichnung_in_den_einstellungen)
{
    Folgestand f("2");
    EXPECT_EQ(m_wasoft_holbek(f.g), Fehler::gesetzt);
    f.legen("HB001.DAT", "x");
    (void)f.g.dateien.schreiben(f.g.Einstellungsdatei, "[START]\r\nEditor=vi\r\n");
    EXPECT_EQ(m_wasoft_holbek(f.g), Fehler::gesetzt);
    f.programm("HOLBEK.EXE");
    EXPECT_EQ(m_wasoft_holbek(f.g), Fehler::keiner);
    EXPECT_EQ(f.schirm.texte(), (std::vector<std::string>{"Eine Zeichendatei für HOLBEK existiert noch nicht!",
                                                          "FEHLER !!!\n2 Datei nicht gefunden beim Start von HOLBEK"}));
    EXPECT_EQ(f.g.dateien.lesen(f.g.Einstellungsdatei),
              "[START]\r\nEditor=vi\r\n[HOLBEK]\r\nIcon=D:\\Projekte\\Muster\\Jorv.ICO\r\nTitel=" + titel +
                  "GRAPHIK (Jorv, Version 1.0 vom 01.12.2016)\r\nGraphikdatei=D:\\Projekte\\Muster\\HB001.DAT\r\n");
    EXPECT_EQ(f.letzter().programm.filename(), "HOLBEK.EXE");
    EXPECT_EQ(f.letzter().argumente, std::vector<std::string>{"JorvPlus.INI"});
    EXPECT_EQ(f.letzter().ordner, f.g.dateien.host("D:\\Doku"));
}

}  // namespace
