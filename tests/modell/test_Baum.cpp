#include "modell/Baum.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"

namespace jorv {

using hilfen::Pruefstand;

namespace {

void rover(Global& g, const std::string& name, std::uint8_t status, const std::string& virt = "?")
{
    OBS obs;
    obs.Dateiname = name;
    obs.Punktkennzeichen = name.substr(0, name.empty() ? 0 : 4);
    ROVER_Settings_Satz einstellung;
    einstellung.ROVER_Dateiname = name;
    ROVER_TOREL_Satz torel;
    torel.ROVER_Dateiname = name;
    torel.Status = status;
    ROVER_VIRT_Satz v;
    v.ROVER_Dateiname = name;
    v.VIRT_Dateiname = virt;
    ASSERT_TRUE(g.OBS_R.anfuegen(obs) && g.R_Punkt.anfuegen() && g.ROVER_Settings.anfuegen(einstellung) &&
                g.ROVER_TOREL.anfuegen(torel) && g.ROVER_VIRT.anfuegen(v));
}

std::string umriss(const Baum& baum)
{
    std::string text;
    for (const auto& k : baum.Knoten) {
        text += k.Schluessel + (k.offen ? "+" : "-") + ":";
        for (const auto& kind : k.Kinder) text += " " + kind.Text + "(" + std::to_string(kind.Bild) + ")";
        text += "; ";
    }
    return text;
}

}  // namespace

TEST(Baum, JederModusHatSeineHauptknoten)
{
    const std::pair<const char*, const char*> faelle[] = {
        {"", "R_Datei+:; A_Datei+:; "},
        {"1", "R_Datei+:; S_Datei-:; A_Datei+:; E_Datei+:; "},
        {"2", "R_Datei+:; S_Datei-:; A_Datei+:; E_Datei+:; V_Datei+:; "},
        {"3", "R_Datei+:; A_Datei+:; E_Datei+:; V_Datei+:; "},
        {"4", "R_Datei+:; A_Datei+:; B_Datei+:; BB_Datei+:; "}};
    for (const auto& [modus, erwartet] : faelle) {
        Pruefstand p(modus);
        p.g.KNOTEN[2] = "0";
        baum_aufbauen(p.g);
        EXPECT_EQ(umriss(p.g.baum), erwartet);
        EXPECT_EQ(p.schirm.baum_erneuert, 1);
    }
    Pruefstand p("3");
    baum_aufbauen(p.g);
    for (const char* zu : {"V_Datei", "S_Datei"}) knoten_oeffnen(p.g, zu, false);  // mode F lacks the second
    EXPECT_EQ(p.g.KNOTEN[5] + p.g.KNOTEN[2], "01");
    baum_aufbauen(p.g);
    EXPECT_EQ(umriss(p.g.baum), "R_Datei+:; A_Datei+:; E_Datei+:; V_Datei-:; ");
}

TEST(Baum, BilderFolgenDerAmpelDemSchalterUndDenErgebnissen)
{
    Pruefstand p("1");
    rover(p.g, "5501092a.05o", 1);
    rover(p.g, "5502092a.05o", 2);
    rover(p.g, "5503092a.05o", 0);
    rover(p.g, "5504092a.05o", 1);
    rover(p.g, "5505092a.05o", 1);
    rover(p.g, "5506092a.05o", 1);
    p.g.ROVER_Settings[4].Ein_Ausschalterkennung = 0;
    p.g.OBS_R[5].Punktkennzeichen.clear();
    p.g.ROVER_TOREL.entfernen(6);
    hilfen::schreiben(p.pfad("jorv_out") / "dat_rov" / "5502092A.05o.utm", "x");
    baum_aufbauen(p.g);
    EXPECT_EQ(umriss(p.g.baum),
              "R_Datei+: 5501092a.05o(1) 5503092a.05o(3) 5504092a.05o(9) 5505092a.05o(9) 5506092a.05o(3); S_Datei+:; "
              "A_Datei+:; E_Datei+: 5502092a.05o(11); ");
    EXPECT_EQ(p.g.berechnete_ROVER, 1);
}

TEST(Baum, ModusFZeigtVerknuepfungUndModusBDieBasislinien)
{
    Pruefstand f("3");
    rover(f.g, "5501092a.05o", 0, "virt092.05o");
    rover(f.g, "5502092a.05o", 0);
    baum_aufbauen(f.g);
    EXPECT_EQ(f.g.baum.finden("R_Datei")->Kinder[0].Bild, 1);
    EXPECT_EQ(f.g.baum.finden("R_Datei")->Kinder[1].Bild, 3);

    Pruefstand b("4");
    rover(b.g, "5501092a.05o", 0);
    EXPECT_TRUE(b.g.BASISLINIE.anfuegen({"5501", "5501092a.05o", "5502", "5502092a.05o"}));
    EXPECT_TRUE(b.g.BASISLINIE.anfuegen({"5501", "5501092a.05o", "5503", "5503092a.05o"}));
    hilfen::schreiben(b.pfad("jorv_out") / "prot_bas" / "5501092a-5503092a.PRT", "x");
    hilfen::schreiben(b.pfad("jorv_out") / "dat_rov" / "5501092a.05o.UTM", "x");
    baum_aufbauen(b.g);
    EXPECT_EQ(umriss(b.g.baum),
              "R_Datei+: 5501092a.05o(3); A_Datei+:; B_Datei+: 5501092a.05o-5502092a.05o(0); "
              "BB_Datei+: 5501092a.05o-5503092a.05o(0); ");
}

}  // namespace jorv
