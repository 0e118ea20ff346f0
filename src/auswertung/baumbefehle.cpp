#include "auswertung/baumbefehle.h"

#include <algorithm>
#include <array>

#include "auswertung/nicht_fertig.h"
#include "auswertung/protokolle.h"
#include "daten/antennen_datei.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Kontextmenue.h"
#include "planung/basislinien.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "projekt/basislinie_loeschen.h"
#include "projekt/rover_loeschen.h"

namespace jorv {

namespace {

constexpr int bild_aus = 3;

struct Ziel {
    std::string knoten, eltern;
};
using Befehl = Baumfolge (*)(Global&, std::string_view befehl, const Ziel&);
using Loeschen = Fehler (*)(Global&, const std::string&);

Fehler rover_loeschen(Global& g, const std::string& name)
{
    return ROVER_Datei_loeschen(g, name);
}
Fehler basislinie_loeschen(Global& g, const std::string& name)
{
    return BASISLINIE_loeschen(g, name);
}

constexpr std::array<std::pair<std::string_view, Loeschen>, 5> loeschbar = {
    {{"ROVER-Dateien", rover_loeschen},
     {"Berechnete ROVER-Dateien", rover_loeschen},
     {"Antennen-Dateien", Antennen_Datei_loeschen},
     {"Basislinien", basislinie_loeschen},
     {"Berechnete Basislinien", basislinie_loeschen}}};

Baumfolge loeschen(Global& g, std::string_view, const Ziel& ziel)
{
    for (const auto& [eltern, routine] : loeschbar)
        if (eltern == ziel.eltern) return {.fehler = routine(g, ziel.knoten)};
    return {};
}

// Switched off, the node shows the red image at once; the next building of the tree gives it the one of its state.
Baumfolge ein_aus(Global& g, std::string_view, const Ziel& ziel)
{
    const int satz = Index_Settings(g, ziel.knoten), rover = Index_OBS_R(g, ziel.knoten);
    if (satz == 0 || rover == 0) return {};
    auto& ein = g.ROVER_Settings[satz].Ein_Ausschalterkennung;
    ein = ein == 1 ? 0 : 1;
    rover_bild_setzen(g, ziel.knoten, ein == 1 ? rover_bild(g, rover) : bild_aus);
    Datum_setzen(g);
    return {};
}

Baumfolge einstellungen(Global& g, std::string_view, const Ziel& ziel)
{
    if (Index_Settings(g, ziel.knoten) == 0) return {};
    return {.dialog = Baumdialog::einstellungen};
}

Baumfolge warum(Global& g, std::string_view, const Ziel& ziel)
{
    if (Index_OBS_R(g, ziel.knoten) == 0) return {};
    return {.dialog = Baumdialog::warum};
}

Baumfolge nicht_fertig(Global& g, std::string_view, const Ziel& ziel)
{
    mnu_tree_nichtfertig(g, ziel.knoten);
    return {};
}

Baumfolge oeffnen(Global& g, std::string_view befehl, const Ziel& ziel)
{
    return {.fehler = protokoll_oeffnen(g, befehl, ziel.knoten)};
}

struct Eintrag {
    std::string_view name;
    Befehl befehl;
};
constexpr std::array<Eintrag, 5> aendernde = {{{"mnu_tree_loeschen", loeschen},
                                               {"mnu_tree_stop", ein_aus},
                                               {"mnu_tree_settings", einstellungen},
                                               {"mnu_tree_nichtfertig", nicht_fertig},
                                               {"mnu_tree_warum", warum}}};

bool im_menue_an(const Global& g, std::string_view befehl, const Ziel& ziel)
{
    const auto menue = kontextmenue(g, ziel.knoten, ziel.eltern);
    return std::any_of(menue.begin(), menue.end(), [&](const auto& e) { return e.Name == befehl && e.an; });
}

std::vector<Punkt> punkte_der_basislinie(const Global& g, std::string_view name)
{
    const int i = Index_BASISLINIE(g, name);
    if (i == 0) return {};
    std::vector<Punkt> punkte;
    for (const auto& datei : {g.BASISLINIE[i].Datei_von, g.BASISLINIE[i].Datei_nach})
        if (const int rover = Index_OBS_R(g, datei); rover != 0 && rover <= g.R_Punkt.anzahl())
            punkte.push_back(g.R_Punkt[rover]);
    return punkte;
}

}  // namespace

Baumfolge baum_klick(Global& g, std::string_view baum_knoten, std::string_view baum_eltern)
{
    if (ist_B(g) && (baum_eltern == "Basislinien" || baum_eltern == "Berechnete Basislinien"))
        return {.Punkte = punkte_der_basislinie(g, baum_knoten)};
    const bool wartet = baum_eltern == "ROVER-Dateien";
    if (!ist_E_oder_S(g) || !(wartet || baum_eltern == "Berechnete ROVER-Dateien") || baum_knoten.empty()) return {};
    g.geo_fertig = true;
    return {.dialog = Baumdialog::handarbeit, .frmhinweis = wartet && g.Hinweis == "1"};
}

Baumfolge baum_befehl(Global& g, std::string_view befehl, std::string_view baum_knoten, std::string_view baum_eltern)
{
    const Ziel ziel{std::string(baum_knoten), std::string(baum_eltern)};
    const auto fund =
        std::find_if(aendernde.begin(), aendernde.end(), [&](const Eintrag& e) { return e.name == befehl; });
    if (fund == aendernde.end()) return ziel.eltern.empty() ? Baumfolge{} : oeffnen(g, befehl, ziel);
    if (!im_menue_an(g, befehl, ziel)) return {};
    Baumfolge folge = fund->befehl(g, befehl, ziel);
    g.oberflaeche->menue_erneuern();
    return folge;
}

std::string baum_eltern_von(const Baum& baum, std::initializer_list<std::string_view> schluessel,
                            std::string_view baum_knoten)
{
    for (const auto name : schluessel)
        if (const Hauptknoten* gruppe = baum.finden(name))
            for (const auto& kind : gruppe->Kinder)
                if (kind.Text == baum_knoten) return gruppe->Text;
    return {};
}

std::optional<std::string> handbuch(Global& g)
{
    const std::string pfad = pfad_verbinden(g.EXE_Verzeichnis, "JorvPlus-Handbuch.pdf");
    if (g.dateien.ist_datei(pfad)) return pfad;
    g.oberflaeche->meldung(Symbol::info, "Benutzerhandbuch wurde nicht gefunden!");
    return std::nullopt;
}

}  // namespace jorv
