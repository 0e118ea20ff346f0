#include "auswertung/protokolle.h"

#include <algorithm>
#include <array>

#include "modell/Gemeinsam.h"
#include "modell/Kontextmenue.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

struct Protokollart {
    std::string_view befehl, endung;
    std::string_view ordner_b;  // below the project, in mode B
    std::string_view fehlt;     // empty: the path is named
};

constexpr std::array<Protokollart, 4> arten = {
    {{"m_protkoll_einsehen", ".LIS", "jorv_out\\lis_bas\\", "Es existiert noch keine Protokolldatei!"},
     {"m_protkoll_kurz", ".KRZ", "", "Es existiert noch keine Kurzprotokolldatei!"},
     {"m_protkoll_kurz_aller", ".ALL", "", u8"Es existiert noch keine Kurzprotokolldatei für alle ROVER!"_w},
     {"m_protkoll_fehler", ".ERR", "", ""}}};

const Protokollart* protokollart(std::string_view befehl)
{
    const auto stelle = std::find_if(arten.begin(), arten.end(), [=](const auto& art) { return art.befehl == befehl; });
    return stelle == arten.end() ? nullptr : &*stelle;
}

Fehler im_editor(Global& g, const std::string& pfad, std::string_view fehlt)
{
    if (!g.dateien.ist_datei(pfad)) {
        const std::string mit_pfad = verkettet("Es existiert noch keine Datei: ", pfad);
        g.oberflaeche->meldung(Symbol::info, fehlt.empty() ? std::string_view(mit_pfad) : fehlt);
        return Fehler::gesetzt;
    }
    if (g.oberflaeche->im_editor_oeffnen(pfad)) return Fehler::keiner;
    stop_melden(g, verkettet("FEHLER !!!\nDie Datei: \"", pfad, "\" konnte nicht in den Editor geladen werden!"));
    return Fehler::gesetzt;
}

}  // namespace

std::string protokolldatei(const Global& g, std::string_view befehl, std::string_view knoten)
{
    const Protokollart* art = protokollart(befehl);
    if (!art) return kontextdatei(g, befehl, knoten);
    return im_Verfahren(g, verkettet(ist_B(g) ? art->ordner_b : "", g.Verfahrensnummer, art->endung));
}

Fehler protokoll_oeffnen(Global& g, std::string_view befehl, std::string_view knoten)
{
    const Protokollart* art = protokollart(befehl);
    return im_editor(g, protokolldatei(g, befehl, knoten), art ? art->fehlt : std::string_view{});
}

Fehler datei_editieren(Global& g, std::string_view pfad)
{
    return im_editor(g, std::string(pfad), {});
}

}  // namespace jorv
