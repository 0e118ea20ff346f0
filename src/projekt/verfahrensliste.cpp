#include "projekt/verfahrensliste.h"

#include <algorithm>
#include <array>
#include <set>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr int sperre_ms = 5000;
constexpr std::string_view sektion_name = "VERFAHREN-Name";

struct Listensektion {
    std::string_view sektion;
    std::string Verfahren_Satz::*feld;
};

constexpr std::array<Listensektion, 6> listensektionen = {{{sektion_name, &Verfahren_Satz::Name},
                                                           {"VERFAHREN-Pfad", &Verfahren_Satz::Pfad},
                                                           {"VERFAHREN-Modus", &Verfahren_Satz::Modus},
                                                           {"VERFAHREN-ErstDatum", &Verfahren_Satz::ErstDatum},
                                                           {"VERFAHREN-LetztDatum", &Verfahren_Satz::LetztDatum},
                                                           {"VERFAHREN-Antenne", &Verfahren_Satz::Antenne}}};

// Ascending; a number without a name is none.
std::set<std::string> vergebene_nummern(const Profil& einstellungen)
{
    auto namen = einstellungen.schluessel(sektion_name);
    std::erase_if(namen, [&](const std::string& nummer) {
        return !ist_Nummer(nummer) || einstellungen.wert(sektion_name, nummer).empty();
    });
    return {namen.begin(), namen.end()};
}

Verfahren_Satz eintrag_lesen(const Profil& einstellungen, const std::string& nummer)
{
    Verfahren_Satz v;
    v.Nummer = nummer;
    for (const auto& s : listensektionen) v.*s.feld = einstellungen.wert(s.sektion, nummer);
    return v;
}

// The number belongs to another project since another program gave it out.
bool fremd_vergeben(const Profil& einstellungen, const Verfahren_Satz& v)
{
    const auto name = einstellungen.wert(sektion_name, v.Nummer);
    return !name.empty() && name != trimmen(v.Name);
}

int Index_zu_Nummer(const Global& g, std::string_view nummer)
{
    for (int i = 1; i <= g.Verfahren.anzahl(); ++i)
        if (g.Verfahren[i].Nummer == nummer) return i;
    return 0;
}

bool eintrag_anfuegen(Global& g, Verfahren_Satz v)
{
    if (g.Verfahren.anfuegen(std::move(v))) return true;
    stop_melden(g, dimensionierung_meldung(62, "AlleVerfahernLaden",
                                           verkettet("    ReDim Preserve Verfahren(", g.Verfahren.anzahl() + 1, ")")));
    return false;
}

void aus_datei_entfernen(Global& g, const Verfahren_Satz& v)
{
    Einstellungen_gesperrt einstellungen(g);
    Profil& profil = einstellungen.profil();
    // What can't be read may hold it: that is told like a failed write.
    if (einstellungen.gelesen() && (!profil.hat(sektion_name, v.Nummer) || fremd_vergeben(profil, v))) return;
    for (const auto& s : listensektionen) profil.entfernen(s.sektion, v.Nummer);
    (void)einstellungen.schreiben();
}

struct Platz {
    std::string name, pfad, modus;
};

Platz platz_holen(const Global& g, std::size_t i)
{
    return {g.Liste_Name[i], g.Liste_Pfad[i], g.Liste_Modus[i]};
}

void platz_setzen(Global& g, std::size_t i, Platz platz)
{
    g.Liste_Name[i] = std::move(platz.name);
    g.Liste_Pfad[i] = std::move(platz.pfad);
    g.Liste_Modus[i] = std::move(platz.modus);
}

// Slot of a name counted from 0; the count of slots in use when it is in none.
std::size_t platz_von(const Global& g, std::string_view name)
{
    const auto ende = g.Liste_Name.begin() + g.Anzahl_Liste;
    return static_cast<std::size_t>(std::find(g.Liste_Name.begin(), ende, name) - g.Liste_Name.begin());
}

}  // namespace

Einstellungen_gesperrt::Einstellungen_gesperrt(Global& g)
    : m_g(g),
      m_sperre(g.dateien, g.Einstellungsdatei, sperre_ms),
      m_profil(Profil::aus_datei(g.dateien, g.Einstellungsdatei, m_fehler))
{
    // Another program is just writing: nothing may be written then.
    if (!m_fehler && m_sperre.besetzt()) m_fehler = std::make_error_code(std::errc::resource_unavailable_try_again);
}

Fehler Einstellungen_gesperrt::schreiben()
{
    if (!m_fehler) m_fehler = m_profil.schreiben(m_g.dateien, m_g.Einstellungsdatei);
    if (!m_fehler) return Fehler::keiner;
    stop_melden(m_g, datei_meldung("In die Einstellungsdatei: ", m_g.Einstellungsdatei,
                                   "konnt nicht fehlerfrei geschrieben werden!"));
    return Fehler::gesetzt;
}

bool ist_Nummer(std::string_view text)
{
    return text.size() == 3 && text != "000" && text.find_first_not_of("0123456789") == std::string_view::npos;
}

void AlleVerfahernLaden(Global& g, const Profil& einstellungen)
{
    g.Verfahren.leeren();
    for (const auto& nummer : vergebene_nummern(einstellungen))
        if (!eintrag_anfuegen(g, eintrag_lesen(einstellungen, nummer))) return;
}

void Verfahrensliste_eintragen(const Global& g, Profil& einstellungen)
{
    for (const auto& v : g.Verfahren) {
        if (fremd_vergeben(einstellungen, v)) continue;
        for (const auto& s : listensektionen) einstellungen.setzen(s.sektion, v.Nummer, v.*s.feld);
    }
}

Fehler Verfahrensliste_sichern(Global& g)
{
    Einstellungen_gesperrt einstellungen(g);
    Verfahrensliste_eintragen(g, einstellungen.profil());
    return einstellungen.schreiben();
}

void Verfahrensliste_auffrischen(Global& g, const Profil& einstellungen)
{
    for (const auto& nummer : vergebene_nummern(einstellungen)) {
        const int i = Index_zu_Nummer(g, nummer);
        if (i == 0) {
            if (!eintrag_anfuegen(g, eintrag_lesen(einstellungen, nummer))) return;
        } else if (fremd_vergeben(einstellungen, g.Verfahren[i])) {
            g.Verfahren[i] = eintrag_lesen(einstellungen, nummer);
        }
    }
}

void Verfahren_loeschen(Global& g, std::string_view nummer)
{
    const int stelle = Index_zu_Nummer(g, nummer);
    if (stelle == 0) return;
    aus_datei_entfernen(g, g.Verfahren[stelle]);
    const int rest = g.Verfahren.anzahl() - 1;
    for (int i = stelle; i <= rest; ++i) g.Verfahren[i] = g.Verfahren[i + 1];
    if (!g.Verfahren.groesse_setzen(rest))
        stop_melden(g, dimensionierung_meldung(61, "Verfahren_loeschen",
                                               verkettet("    ReDim Preserve Verfahren(", rest, ")")));
}

void Liste_aufnehmen(Global& g)
{
    std::size_t platz = platz_von(g, g.Verfahrensname);
    if (platz == static_cast<std::size_t>(g.Anzahl_Liste)) {
        if (platz < g.Liste_Name.size())
            ++g.Anzahl_Liste;
        else
            --platz;
    }
    for (; platz > 0; --platz) platz_setzen(g, platz, platz_holen(g, platz - 1));
    platz_setzen(g, 0, {g.Verfahrensname, g.Arbeitsverzeichnis, g.Verfahrensmodus});
    g.oberflaeche->liste_erneuern();
}

void Liste_entfernen(Global& g, std::string_view name)
{
    std::size_t platz = platz_von(g, name);
    const auto anzahl = static_cast<std::size_t>(g.Anzahl_Liste);
    if (platz == anzahl) return;
    for (; platz + 1 < anzahl; ++platz) platz_setzen(g, platz, platz_holen(g, platz + 1));
    platz_setzen(g, platz, {});
    --g.Anzahl_Liste;
    g.oberflaeche->liste_erneuern();
}

std::string Liste_Eintrag(const Global& g, int n)
{
    if (n < 1 || n > g.Anzahl_Liste) return {};
    const std::string& name = g.Liste_Name[static_cast<std::size_t>(n - 1)];
    const int i = Index_zu_Name(g, name);
    return verkettet("&", n, " (", i == 0 ? "?" : Modus_Buchstabe(g.Verfahren[i].Modus), ") ", name);
}

}  // namespace jorv
