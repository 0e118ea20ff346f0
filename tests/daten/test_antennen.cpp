#include <gtest/gtest.h>

#include "daten/antennen_datei.h"
#include "modell/Baum.h"
#include "proben.h"
#include "projekt/projektdatei_schreiben.h"

namespace jorv {

using namespace hilfen;

namespace {

std::string atx(std::string_view art, std::string_view referenz, std::string_view typ = "AAA")
{
    std::string zeile(art);
    zeile.resize(20, ' ');
    return kopfzeile("     1.4            M", "ANTEX VERSION / SYST") +
           kopfzeile(zeile + std::string(referenz), "PCV TYPE / REFANT") + antennenblock(typ, "00001");
}

std::string crlf(std::string_view text)
{
    return ersetzt(text, "\n", "\r\n");
}

// A project of the given format with antenna files on the disk; an empty text leaves the file out.
struct Antennenstand : Pruefstand {
    explicit Antennenstand(const std::vector<std::string>& inhalte, const char* format = "ATX")
    {
        g.Verfahren[1].Antenne = format;
        g.Verfahren[1].LetztDatum = "alt";
        for (std::size_t i = 0; i < inhalte.size(); ++i) {
            const std::string name = std::string(1, static_cast<char>('a' + i)) + (format[1] == 'T' ? ".atx" : ".apc");
            if (!inhalte[i].empty()) schreiben(pfad(name), inhalte[i]);
            (void)g.Antennen_Dateien.anfuegen(name);
        }
    }
    std::vector<std::string> liste() const { return {g.Antennen_Dateien.begin(), g.Antennen_Dateien.end()}; }
    std::string dos(std::string_view name) const { return ordner.dos() + "\\" + std::string(name); }
};

using Namen = std::vector<std::string>;

}  // namespace

TEST(AntennenDatei, VerbindetInDerReihenfolgeDerListe)
{
    // Absolute files may differ in the reference field; a last line without end gets one.
    const std::string a = atx("A", "REF1"), b = atx("A", "REF2", "BBB") + "last line";
    Antennenstand s({a, b});
    ASSERT_FALSE(ist_fehler(VerfahrensATX_erzeugen(s.g))) << s.schirm.einzige();
    EXPECT_EQ(lesen(s.pfad("001.ATX")), crlf(a + b) + "\r\n");
    EXPECT_EQ(s.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
}

TEST(AntennenDatei, UnvertraeglicheDateienFallenHeraus)
{
    const auto gemischt = [](const char* art, const char* name) {
        return std::string(
                   "Relativ und absolut kalibrierte Antennen dürfen in einem Verfahren\nnicht gemischt werden!\n"
                   "Die bisher geprüften Antennen waren >") +
               art + "< kalibriert.\n\nDie Antennendatei:\n" + name + "\nwird nicht in das Verfahren integriert!";
    };
    const std::string referenz =
        "Relativ kalibrierte Antennen dürfen in einem Verfahren\nnur auf die gleiche Referenzantenne bezogen "
        "sein!\nDie "
        "bisher geprüften Antennen waren auf >REF1< bezogen.\n\nDie Antennendatei:\nb.atx\nenthält eine andere "
        "Referenzantenne >REF2< und wird\ndeshalb nicht in das Verfahren integriert!";
    struct Fall {
        Namen inhalte;
        std::string meldung;
        Namen rest;
    };
    for (const auto& f :
         std::vector<Fall>{{{atx("A", ""), atx("R", "REF1")}, gemischt("absolut", "b.atx"), {"a.atx"}},
                           {{atx("R", "REF1"), atx("A", "")}, gemischt("relativ", "b.atx"), {"a.atx"}},
                           // The first file has no label, so the next one differs from the empty kind.
                           {{antennenblock("AAA", "1"), atx("A", "")}, gemischt("???", "b.atx"), {"a.atx"}},
                           {{atx("A", "") + atx("R", "")}, gemischt("absolut", "a.atx"), {}},
                           {{atx("R", "REF1"), atx("R", "REF2"), atx("R", "REF1")}, referenz, {"a.atx", "c.atx"}}}) {
        Antennenstand s(f.inhalte);
        schreiben(s.pfad("001.ATX"), "alt");
        EXPECT_TRUE(ist_fehler(VerfahrensATX_erzeugen(s.g)));
        EXPECT_EQ(s.schirm.einzige(), f.meldung);
        EXPECT_EQ(s.liste(), f.rest);
        EXPECT_EQ(lesen(s.pfad("001.ATX")), "alt") << "nothing is written in that run";
        EXPECT_TRUE(fs::exists(s.pfad("a.atx")));
    }
}

TEST(AntennenDatei, LeseUndSchreibfehler)
{
    for (const bool apc : {false, true}) {
        const char* format = apc ? "APC" : "ATX";
        const auto erzeugen = [apc](Global& g) { return apc ? VerfahrensAPC_erzeugen(g) : VerfahrensATX_erzeugen(g); };
        const std::string inhalt(apc ? "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\nANTENNE\n" : atx("A", ""));
        const std::string projektdatei = std::string("001.") + format, name = apc ? "a.apc" : "a.atx";
        Antennenstand s({inhalt, ""}, format);
        schreiben(s.pfad(projektdatei), "alt");
        (void)erzeugen(s.g);
        EXPECT_EQ(s.schirm.einzige(),
                  "Die Antennendatei:\n" + s.dos(apc ? "b.apc" : "b.atx") + "\nkonnte nicht geöffnet werden!");
        EXPECT_EQ(s.liste(), Namen{name});
        schreiben(s.pfad(projektdatei), "alt");

        Bruch bruch(s.g);
        const auto erwarten = [&](const std::string& meldung) {
            s.schirm.gezeigt.clear();
            EXPECT_TRUE(ist_fehler(erzeugen(s.g)));
            EXPECT_EQ(s.schirm.einzige(), meldung);
            EXPECT_EQ(lesen(s.pfad(projektdatei)), "alt");
            EXPECT_EQ(s.liste(), Namen{name});
        };
        Bruch::lesen_bei = 1;
        erwarten("Die Antennendatei:\n" + s.dos(name) + "\nkonnte nicht richtig gelesen werden!");
        Bruch::schreiben_bei = 1;
        erwarten("In die Antennendatei:\n" + s.dos(projektdatei) + "\nkonnte nicht richtig geschreiben werden!");
        Bruch::verboten = projektdatei;
        erwarten("Die Antennendatei:\n" + s.dos(projektdatei) + "\nkonnte nicht angelegt/überschrieben werden!");
    }
}

TEST(AntennenDatei, FesterKopfDerIGSForm)
{
    Antennenstand s({"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\nANTENNE A\n", "x\n"}, "APC");
    EXPECT_TRUE(ist_fehler(VerfahrensAPC_erzeugen(s.g)));
    EXPECT_EQ(s.schirm.einzige(), "Die Antennendatei:\n" + s.dos("b.apc") + "\nhat nicht den richtigen Aufbau!");
    EXPECT_EQ(s.liste(), Namen{"a.apc"});
    ASSERT_FALSE(ist_fehler(VerfahrensAPC_erzeugen(s.g)));
    const std::string text = lesen(s.pfad("001.APC"));
    EXPECT_TRUE(text.starts_with("12345678911234567892"));
    EXPECT_TRUE(text.ends_with("        | Elevation (mm)\r\n\r\nANTENNE A\r\n"));
    EXPECT_EQ(zeichen_zaehlen(text, '\n'), 12);
}

TEST(AntennenDatei, Dimensionierung)
{
    const std::string ende = "\nevtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!";
    struct Fall {
        bool apc;
        Namen inhalte;
        int grenze;
        std::string text;
    };
    for (const auto& f : std::vector<Fall>{
             {false, {}, -1, "(80 in VerfahrensATX_erzeugen)\n    ReDim l_kaputte_antenne(0)"},
             {false, {""}, 0, "(81 in VerfahrensATX_erzeugen)\n    ReDim Preserve l_kaputte_antenne(0)"},
             {false,
              {atx("A", "") + atx("R", "")},
              0,
              "(82 in VerfahrensATX_erzeugen)\n    ReDim Preserve l_kaputte_antenne(0)"},
             {false,
              {atx("R", "X") + atx("R", "Y")},
              0,
              "(83 in VerfahrensATX_erzeugen)\n    ReDim Preserve l_kaputte_antenne(0)"},
             {true, {}, -1, "(51 in VerfahrensAPC_erzeugen)\n    ReDim l_kaputte_antenne(0)"},
             {true, {""}, 0, "(52 in VerfahrensAPC_erzeugen)\n    ReDim Preserve l_kaputte_antenne(0)"},
             {true, {"x\n"}, 0, "(53 in VerfahrensAPC_erzeugen)\n    ReDim Preserve l_kaputte_antenne(0)"}}) {
        Antennenstand s(f.inhalte, f.apc ? "APC" : "ATX");
        Feld<std::string> kaputte;
        kaputte.grenze_setzen(f.grenze);
        EXPECT_TRUE(ist_fehler(f.apc ? VerfahrensAPC_erzeugen(s.g, kaputte) : VerfahrensATX_erzeugen(s.g, kaputte)));
        ASSERT_FALSE(s.schirm.gezeigt.empty());
        EXPECT_EQ(s.schirm.texte().back(), "Dimensionierungsfehler! " + f.text + ende);
    }
    Antennenstand s({"x", "y"});
    s.g.Antennen_Dateien.grenze_setzen(0);
    antennen_loeschen(s.g, "fehlt.atx");
    EXPECT_TRUE(s.schirm.gezeigt.empty());
    antennen_loeschen(s.g, "a.atx");
    EXPECT_EQ(s.schirm.einzige(),
              "Dimensionierungsfehler! (54 in antennen_loeschen)\n    ReDim Preserve Antennen_Dateien(1)" + ende);
    s.schirm.gezeigt.clear();
    s.schirm.antworten = {Antwort::ja};
    EXPECT_TRUE(ist_fehler(Antennen_Datei_loeschen(s.g, "a.atx")));
    EXPECT_EQ(s.schirm.texte().back(),
              "Dimensionierungsfehler! (65 in Antennen_Datei_loeschen)\n    ReDim Preserve "
              "Antennen_Dateien(1)\nevtl. Speicherplatzprobleme!");
}

TEST(AntennenDatei, LoeschenNimmtSieAusProjektUndDateisystem)
{
    Antennenstand s({atx("A", ""), atx("A", "", "BBB")});
    ASSERT_FALSE(ist_fehler(Verfahren_sichern(s.g)));
    s.schirm.antworten = {Antwort::nein};
    EXPECT_FALSE(ist_fehler(Antennen_Datei_loeschen(s.g, "a.atx")));
    EXPECT_EQ(s.schirm.einzige(),
              "Die Antennendatei: a.atx wird aus dem Verfahren entfernt!\nSie wird dabei auch im "
              "Verzeichnis des Verfahrens physikalisch gelöscht!\n\nDie Funktion jetzt ausführen?");
    EXPECT_TRUE(fs::exists(s.pfad("a.atx")));
    s.schirm.antworten = {Antwort::ja, Antwort::ja, Antwort::ja, Antwort::ja};
    EXPECT_FALSE(ist_fehler(Antennen_Datei_loeschen(s.g, "a.atx"))) << s.schirm.texte().back();
    EXPECT_FALSE(fs::exists(s.pfad("a.atx")));
    EXPECT_EQ(lesen(s.pfad("001.ATX")), crlf(atx("A", "", "BBB")));
    const std::string projekt = lesen(s.pfad("001.INI"));
    EXPECT_NE(projekt.find("[ANTENNEN-DATEIEN]\r\n1=b.atx\r\n"), std::string::npos) << projekt;
    EXPECT_EQ(projekt.find("a.atx"), std::string::npos);
    EXPECT_TRUE(ist_fehler(Antennen_Datei_loeschen(s.g, "a.atx")));
    EXPECT_EQ(s.schirm.texte().back(), "Die Antennedatei: a.atx\nist nicht mehr im Verfahrensverzeichnis: " +
                                           s.ordner.dos() + "\nvorhanden! Löschfunktion abgebrochen");
    {
        Bruch bruch(s.g);
        Bruch::verboten = "b.atx";
        EXPECT_TRUE(ist_fehler(Antennen_Datei_loeschen(s.g, "b.atx")));
        EXPECT_EQ(s.schirm.texte().back(),
                  "Die Antennedatei: b.atx\nkonnte nicht gelöscht werden! Löschfunktion abgebrochen");
    }
    // The last one frees the format.
    EXPECT_FALSE(ist_fehler(Antennen_Datei_loeschen(s.g, "b.atx")));
    EXPECT_EQ(s.g.Verfahren[1].Antenne, "?");
}

}  // namespace jorv
