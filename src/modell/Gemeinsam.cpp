#include "modell/Gemeinsam.h"

#include <algorithm>
#include <array>

#include "modell/Meldungen.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr std::array<std::string_view, 4> modus_buchstaben = {"E", "S", "F", "B"};

struct Umsetzung {
    std::string_view von;
    int nach;
};
constexpr std::array<Umsetzung, 10> seite_850 = {{{u8"ä"_w, 132},
                                                  {u8"Ä"_w, 142},
                                                  {u8"ö"_w, 148},
                                                  {u8"Ö"_w, 153},
                                                  {u8"ü"_w, 129},
                                                  {u8"Ü"_w, 154},
                                                  {u8"ß"_w, 225},
                                                  {u8"§"_w, 245},
                                                  {u8"°"_w, 248},
                                                  {u8"´"_w, 239}}};

template <typename T, typename Name>
int index_von(const Feld<T>& feld, std::string_view gesucht, Name name)
{
    for (int i = 1; i <= feld.anzahl(); ++i)
        if (name(feld[i]) == gesucht) return i;
    return 0;
}

}  // namespace

Fehler all_ini(Global& g)
{
    const auto zuruecksetzen = [](auto&... felder) { return (felder.groesse_setzen(0) && ...); };
    if (!zuruecksetzen(g.GEO_Punkt, g.OBS_S, g.OBS_R, g.S_Punkt, g.R_Punkt, g.ROVER_TOREL, g.ROVER_Settings,
                       g.ROVER_VIRT, g.OBS_V, g.V_Punkt, g.RINEX_Dateien, g.Antennen_Dateien, g.dateien_liste)) {
        stop_melden(g, verkettet("Dimensionierungsfehler! (70 in all_ini)\nevtl. Speicherplatzprobleme\n\n",
                                 u8"Offene Anwendungen schließen und erneut versuchen!"_w));
        return Fehler::gesetzt;
    }
    g.Begruendungen.clear();
    g.antennenliste.clear();
    return Fehler::keiner;
}

std::string pfad_kuerzen(std::string_view pfad, int breite, std::string_view fuell)
{
    const auto platz = static_cast<std::size_t>(std::max(breite, 0));
    if (pfad.size() <= platz) {
        std::string text(pfad);
        while (!fuell.empty() && text.size() < platz) text += fuell;
        return text;
    }
    if (platz < 4) return std::string(platz, '.');
    const std::size_t kopf = pfad_wurzel_laenge(pfad);
    for (auto stelle = pfad.find('\\', kopf); stelle != std::string_view::npos; stelle = pfad.find('\\', stelle + 1)) {
        const auto schwanz = pfad.substr(stelle + 1);
        if (kopf + 4 + schwanz.size() <= platz) return verkettet(pfad.substr(0, kopf), "...\\", schwanz);
    }
    return verkettet(links(pfad_name(pfad), platz - 3), "...");
}

int zeichen_zaehlen(std::string_view text, char zeichen)
{
    return static_cast<int>(std::count(text.begin(), text.end(), zeichen));
}

std::string dos_text(std::string_view text)
{
    std::string neu(text);
    for (char& byte : neu)
        for (const auto& umsetzung : seite_850)
            if (byte == umsetzung.von[0]) {
                byte = static_cast<char>(umsetzung.nach);
                break;
            }
    return neu;
}

std::string naechste_Nummer(const Global& g)
{
    for (int n = 1; n <= 999; ++n) {
        std::string nummer = zahl_format_fuell(n, "000", "0");
        if (Name_zu_Nummer(g, nummer).empty() &&
            index_von(
                g.Verfahren, nummer, [](const auto& v) -> const auto& { return v.Nummer; }) == 0)
            return nummer;
    }
    return "000";
}

int Index_zu_Name(const Global& g, std::string_view name)
{
    return index_von(
        g.Verfahren, name, [](const auto& v) -> const auto& { return v.Name; });
}

std::string Nummer_zu_Name(const Global& g, std::string_view name)
{
    const int i = Index_zu_Name(g, name);
    return i == 0 ? "000" : g.Verfahren[i].Nummer;
}

std::string Name_zu_Nummer(const Global& g, std::string_view nummer)
{
    const int i = index_von(
        g.Verfahren, nummer, [](const auto& v) -> const auto& { return v.Nummer; });
    return i == 0 ? "" : g.Verfahren[i].Name;
}

int Index_Settings(const Global& g, std::string_view rover_dateiname)
{
    return index_von(
        g.ROVER_Settings, rover_dateiname, [](const auto& s) -> const auto& { return s.ROVER_Dateiname; });
}

int Index_OBS_R(const Global& g, std::string_view dateiname)
{
    return index_von(
        g.OBS_R, dateiname, [](const auto& o) -> const auto& { return o.Dateiname; });
}

int Index_OBS_S(const Global& g, std::string_view dateiname)
{
    return index_von(
        g.OBS_S, dateiname, [](const auto& o) -> const auto& { return o.Dateiname; });
}

int Index_OBS_V(const Global& g, std::string_view dateiname)
{
    return index_von(
        g.OBS_V, dateiname, [](const auto& o) -> const auto& { return o.Dateiname; });
}

int Index_ROVER_TOREL(const Global& g, std::string_view rover_dateiname)
{
    return index_von(
        g.ROVER_TOREL, rover_dateiname, [](const auto& r) -> const auto& { return r.ROVER_Dateiname; });
}

int Index_ROVER_VIRT(const Global& g, std::string_view rover_dateiname)
{
    return index_von(
        g.ROVER_VIRT, rover_dateiname, [](const auto& r) -> const auto& { return r.ROVER_Dateiname; });
}

Verfahren_Satz* aktuelles_Verfahren(Global& g)
{
    const int i = g.Verfahren_offen() ? Index_zu_Name(g, g.Verfahrensname) : 0;
    return i == 0 ? nullptr : &g.Verfahren[i];
}

const Verfahren_Satz* aktuelles_Verfahren(const Global& g)
{
    return aktuelles_Verfahren(const_cast<Global&>(g));
}

std::string Antennenformat(const Global& g)
{
    const Verfahren_Satz* verfahren = aktuelles_Verfahren(g);
    if (!verfahren) return "?";
    return verfahren->Antenne == "AXT" ? "ATX" : verfahren->Antenne;
}

void Datum_setzen(Global& g)
{
    if (Verfahren_Satz* verfahren = aktuelles_Verfahren(g)) verfahren->LetztDatum = datum_text(g.uhr->jetzt());
}

namespace {
int zaehlen(Global& g, std::string_view ordner, bool ordner_zaehlen)
{
    int anzahl = 0;
    for (const auto& eintrag : g.dateien.ordner_lesen(ordner)) {
        if (eintrag.ordner == ordner_zaehlen) ++anzahl;
        g.oberflaeche->ereignisse();
    }
    return anzahl;
}
}  // namespace

int Anzahl_Dateien(Global& g, std::string_view ordner)
{
    return zaehlen(g, ordner, false);
}
int Anzahl_Ordner(Global& g, std::string_view ordner)
{
    return zaehlen(g, ordner, true);
}

std::string im_Verfahren(const Global& g, std::string_view name)
{
    return verkettet(g.Arbeitsverzeichnis, "\\", name);
}

std::string Verfahrens_Datei(const Global& g, std::string_view endung)
{
    return verkettet(g.Arbeitsverzeichnis, "\\", g.Verfahrensnummer, endung);
}

std::string_view Modus_Buchstabe(std::string_view modus)
{
    if (modus.size() != 1 || modus[0] < '1' || modus[0] > '4') return "?";
    return modus_buchstaben[static_cast<std::size_t>(modus[0] - '1')];
}

std::string_view Modus_Ziffer(std::string_view buchstabe)
{
    constexpr std::string_view ziffern = "1234";
    for (std::size_t i = 0; i < modus_buchstaben.size(); ++i)
        if (modus_buchstaben[i] == buchstabe) return ziffern.substr(i, 1);
    return {};
}

bool rover_zaehlt(const Global& g, int i)
{
    if (i < 1 || i > g.ROVER_Settings.anzahl() || g.ROVER_Settings[i].Ein_Ausschalterkennung != 1) return false;
    if (ist_E_oder_S(g)) return i <= g.ROVER_TOREL.anzahl() && g.ROVER_TOREL[i].Status == 1;
    return ist_F(g) && i <= g.ROVER_VIRT.anzahl() && g.ROVER_VIRT[i].VIRT_Dateiname != "?";
}

}  // namespace jorv
