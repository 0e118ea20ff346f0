#include "modell/Kontextmenue.h"

#include <algorithm>
#include <array>

#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// Result files by command: folder below the project and extension, for rovers and for baselines; `stamm` drops the
// name's last four characters.
struct Ergebnisdatei {
    std::string_view befehl, ordner, endung;
    bool stamm;
    std::string_view ordner_b, endung_b;
};
constexpr std::array<Ergebnisdatei, 6> ergebnisdateien = {
    {{"mnu_tree_editieren", "", "", false, "", ""},
     {"mnu_tree_lis_editieren", "jorv_out\\lis_rov\\", ".LIS", false, "jorv_out\\lis_bas\\", ".lis"},
     {"mnu_tree_err_editieren", "jorv_out\\error_rov\\", ".ERR", false, "jorv_out\\error_rov\\", ".ERR"},
     {"mnu_tree_dat_editieren", "jorv_out\\dat_rov\\", ".UTM", false, "jorv_out\\dat_bas\\", ".BAL"},
     {"mnu_tree_rover_report_editieren", "jorv_out\\prot_rov\\", ".PRT", true, "jorv_out\\prot_bas\\", ".prt"},
     {"mnu_tree_vrs_report_editieren", "jorv_out\\prot_vrs\\", ".VRT", true, "jorv_out\\prot_vrs\\", ".VRT"}}};

// A baseline's files bear the two stems, its result the two eights in front.
std::string basislinien_stamm(const Global& g, std::string_view knoten, std::string_view befehl)
{
    for (const auto& b : g.BASISLINIE) {
        if (verkettet(b.Datei_von, "-", b.Datei_nach) != knoten) continue;
        if (befehl == "mnu_tree_dat_editieren") return verkettet(links(b.Datei_von, 8), "-", links(b.Datei_nach, 8));
        return verkettet(ohne_ende(b.Datei_von, 4), "-", ohne_ende(b.Datei_nach, 4));
    }
    return std::string(knoten);
}

constexpr std::array<std::pair<std::string_view, std::string_view>, 11> befehle = {
    {{"mnu_tree_settings", "&Einstellungen/Infos..."},
     {"mnu_tree_stop", "an der Berechnung &teilnehmen"},
     {"mnu_tree_nichtfertig", "&ROVER erneut berechnen"},
     {"mnu_tree_editieren", "&Datei editieren/anzeigen"},
     {"mnu_tree_dat_editieren", "Berechnungs&ergebnis anzeigen"},
     {"mnu_tree_lis_editieren", "&Berechnungsprotokoll anzeigen"},
     {"mnu_tree_rover_report_editieren", "Report des &ROVER anzeigen"},
     {"mnu_tree_vrs_report_editieren", "Report der &VRS anzeigen"},
     {"mnu_tree_err_editieren", "&Fehlerprotokoll anzeigen"},
     {"mnu_tree_loeschen", u8"Datei &löschen"_w},
     {"mnu_tree_warum", "&Warum diese Ampel?"}}};

class Kontext {
public:
    Kontext(const Global& g, std::string_view knoten) : m_g(g), m_knoten(knoten)
    {
        for (const auto& [name, text] : befehle)
            m_menue.push_back({std::string(name), std::string(text), false, false});
    }

    void an(std::initializer_list<std::string_view> namen)
    {
        for (const auto name : namen) eintrag(name).an = true;
    }
    void aus(std::string_view name) { eintrag(name).an = false; }
    void text(std::string_view name, std::string_view neu) { eintrag(name).Text = neu; }
    void haken(std::string_view name, bool gesetzt) { eintrag(name).Haken = gesetzt; }
    // On exactly when the command's file is there.
    void wenn_datei(std::initializer_list<std::string_view> namen)
    {
        for (const auto name : namen) eintrag(name).an = m_g.dateien.vorhanden(kontextdatei(m_g, name, m_knoten));
    }
    std::vector<Kontexteintrag> fertig() { return std::move(m_menue); }

private:
    Kontexteintrag& eintrag(std::string_view name)
    {
        return *std::find_if(m_menue.begin(), m_menue.end(), [&](const auto& e) { return e.Name == name; });
    }
    const Global& m_g;
    std::string_view m_knoten;
    std::vector<Kontexteintrag> m_menue;
};

}  // namespace

std::string kontextdatei(const Global& g, std::string_view befehl, std::string_view baum_knoten)
{
    for (const auto& d : ergebnisdateien) {
        if (d.befehl != befehl) continue;
        if (ist_B(g) && !d.ordner_b.empty() && baum_knoten.find('-') != std::string_view::npos)
            return im_Verfahren(g, verkettet(d.ordner_b, basislinien_stamm(g, baum_knoten, befehl), d.endung_b));
        return im_Verfahren(g, verkettet(d.ordner, d.stamm ? ohne_ende(baum_knoten, 4) : baum_knoten, d.endung));
    }
    return {};
}

std::vector<Kontexteintrag> kontextmenue(const Global& g, std::string_view baum_knoten, std::string_view baum_eltern)
{
    Kontext menue(g, baum_knoten);
    const int rover = Index_Settings(g, baum_knoten);
    menue.haken("mnu_tree_stop", rover != 0 && g.ROVER_Settings[rover].Ein_Ausschalterkennung == 1);
    if (baum_knoten.empty() || baum_eltern.empty()) return menue.fertig();
    menue.an({"mnu_tree_editieren", "mnu_tree_loeschen", "mnu_tree_stop", "mnu_tree_settings"});
    const bool wartet = baum_eltern == "ROVER-Dateien", berechnet = baum_eltern == "Berechnete ROVER-Dateien";
    if (!ist_B(g) && (wartet || berechnet)) menue.an({"mnu_tree_warum"});
    if (wartet) {
        menue.wenn_datei({"mnu_tree_lis_editieren", "mnu_tree_err_editieren", "mnu_tree_dat_editieren"});
        if (ist_B(g)) menue.aus("mnu_tree_stop");
    } else if (berechnet) {
        menue.an({"mnu_tree_nichtfertig"});
        menue.wenn_datei({"mnu_tree_lis_editieren", "mnu_tree_rover_report_editieren", "mnu_tree_vrs_report_editieren",
                          "mnu_tree_err_editieren", "mnu_tree_dat_editieren"});
    } else {
        if (baum_eltern == "Virtuelle Referenzstationen" || baum_eltern == "TOREL-Dateien")
            menue.aus("mnu_tree_loeschen");
        if (baum_eltern == "Basislinien" || baum_eltern == "Berechnete Basislinien") {
            for (const auto name : {"mnu_tree_editieren", "mnu_tree_stop", "mnu_tree_settings"}) menue.aus(name);
            menue.text("mnu_tree_loeschen", u8"Basislinie &löschen"_w);
        }
        if (baum_eltern == "Berechnete Basislinien") {
            menue.text("mnu_tree_rover_report_editieren", "Report der &Basislinie anzeigen");
            menue.wenn_datei({"mnu_tree_lis_editieren", "mnu_tree_rover_report_editieren", "mnu_tree_dat_editieren"});
        }
    }
    return menue.fertig();
}

}  // namespace jorv
