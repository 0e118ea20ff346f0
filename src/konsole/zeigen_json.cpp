#include <array>
#include <nlohmann/json.hpp>

#include "konsole/zeigen.h"
#include "modell/Menue.h"
#include "planung/begruendung.h"
#include "plattform/text.h"

namespace jorv {

using Json = nlohmann::ordered_json;

// Static and not in an unnamed namespace: the template below finds each by the type of its argument.

static Json als_json(std::string_view text)
{
    return utf8_aus_1252(text);
}
static Json als_json(const std::string& text)
{
    return utf8_aus_1252(text);
}
// A flag of two states as the stored word has it.
static Json flagge(bool an)
{
    return an ? -1 : 0;
}

template <typename Reihe>
static Json reihe(const Reihe& werte)
{
    Json liste = Json::array();
    for (const auto& wert : werte) liste.push_back(als_json(wert));
    return liste;
}

template <typename T, std::size_t N>
static Json zahlen(const std::array<T, N>& werte, int anzahl)
{
    return Json(std::vector<T>(werte.begin(), werte.begin() + anzahl));
}

static Json als_json(const OBS& o)
{
    return {{"Dateiname", als_json(o.Dateiname)},
            {"Punktkennzeichen", als_json(o.Punktkennzeichen)},
            {"Tag", o.Tag},
            {"Antenne", als_json(o.Antenne)},
            {"Startzeit_Jahr", o.Startzeit_Jahr},
            {"Startzeit_Monat", o.Startzeit_Monat},
            {"Startzeit_Tag", o.Startzeit_Tag},
            {"Startzeit_Stunde", o.Startzeit_Stunde},
            {"Startzeit_Minute", o.Startzeit_Minute},
            {"Startzeit_Sekunde", o.Startzeit_Sekunde},
            {"Startzeit_GPS_Sekunde", o.Startzeit_GPS_Sekunde},
            {"Endzeit_Jahr", o.Endzeit_Jahr},
            {"Endzeit_Monat", o.Endzeit_Monat},
            {"Endzeit_Tag", o.Endzeit_Tag},
            {"Endzeit_Stunde", o.Endzeit_Stunde},
            {"Endzeit_Minute", o.Endzeit_Minute},
            {"Endzeit_Sekunde", o.Endzeit_Sekunde},
            {"Endzeit_GPS_Sekunde", o.Endzeit_GPS_Sekunde}};
}

static Json als_json(const Punkt& p)
{
    return {{"Punktkennzeichen", als_json(p.Punktkennzeichen)},
            {"Rechtswert", p.Rechtswert},
            {"Hochwert", p.Hochwert},
            {"X", p.X},
            {"Y", p.Y},
            {"Z", p.Z}};
}

static Json als_json(const ROVER_TOREL_Satz& s)
{
    return {{"ROVER-Dateiname", als_json(s.ROVER_Dateiname)},
            {"Anzahl", s.Anzahl},
            {"TOREL-Dateiname", reihe(s.TOREL_Dateiname)},
            {"Status", s.Status},
            {"Grund", s.Grund},
            {"Schutz", s.Schutz},
            {"Zeitfenster-Startzeit", als_json(s.Zeitfenster_Startzeit)},
            {"Zeitfenster-Endzeit", als_json(s.Zeitfenster_Endzeit)}};
}

static Json als_json(const ROVER_VIRT_Satz& s)
{
    return {{"ROVER-Dateiname", als_json(s.ROVER_Dateiname)},
            {"VIRT-Dateiname", als_json(s.VIRT_Dateiname)},
            {"VIRT-Index", s.VIRT_Index},
            {"Strecke", s.Strecke}};
}

static Json als_json(const ROVER_Settings_Satz& s)
{
    Json satelliten = Json::array(), namen = Json::array();
    for (int i = 1; i <= s.AnzahlDelSatellite; ++i) {
        satelliten.push_back(s.DelSatellite[static_cast<std::size_t>(i)]);
        namen.push_back(als_json(s.DelSatelliteName[static_cast<std::size_t>(i)]));
    }
    return {{"ROVER-Dateiname", als_json(s.ROVER_Dateiname)},
            {"Ein-/Ausschalterkennung", s.Ein_Ausschalterkennung},
            {"StartTime", s.StartTime},
            {"EndTime", s.EndTime},
            {"Elevation", s.Elevation},
            {"EpochRate", s.EpochRate},
            {"DelFirstMinutes", s.DelFirstMinutes},
            {"DelLastMinutes", s.DelLastMinutes},
            {"DelSatellite", satelliten},
            {"DelSatelliteName", namen},
            {"AnzahlDelSatellite", s.AnzahlDelSatellite},
            {"Solution", s.Solution}};
}

static Json als_json(const BASISLINIE_Satz& s)
{
    return {{"PKK_von", als_json(s.PKK_von)},
            {"Datei_von", als_json(s.Datei_von)},
            {"PKK_nach", als_json(s.PKK_nach)},
            {"Datei_nach", als_json(s.Datei_nach)}};
}

static Json als_json(const GEO_Punkt_Satz& s)
{
    Json punkte = Json::array();
    for (int i = 0; i < s.Anzahl; ++i) punkte.push_back(als_json(s.Punkt[static_cast<std::size_t>(i)]));
    return {{"Anzahl", s.Anzahl},
            {"Punkt", punkte},
            {"Rechtswert", zahlen(s.Rechtswert, s.Anzahl)},
            {"Hochwert", zahlen(s.Hochwert, s.Anzahl)}};
}

static Json als_json(const Verfahren_Satz& s)
{
    return {{"Nummer", als_json(s.Nummer)},
            {"Name", als_json(s.Name)},
            {"Pfad", als_json(s.Pfad)},
            {"ErstDatum", als_json(s.ErstDatum)},
            {"LetztDatum", als_json(s.LetztDatum)},
            {"Modus", als_json(s.Modus)},
            {"Antenne", als_json(s.Antenne)}};
}

static Json als_json(const KOR_ANTENNEN_Satz& s)
{
    return {{"von", als_json(s.von)}, {"bis", als_json(s.bis)}};
}

static Json als_json(const TOREL_Punkt_Satz& s)
{
    return {{"PKZ", als_json(s.PKZ)},
            {"Name", als_json(s.Name)},
            {"Rechtswert", s.Rechtswert},
            {"Hochwert", s.Hochwert},
            {"X", s.X},
            {"Y", s.Y},
            {"Z", s.Z}};
}

static Json als_json(const Lnd_Satz& s)
{
    return {{"Typ", s.Typ}, {"Rechtswert", s.Rechtswert}, {"Hochwert", s.Hochwert}};
}

static Json als_json(const Knoten& k)
{
    return {{"Text", als_json(k.Text)}, {"Bild", k.Bild}};
}

static Json als_json(const Hauptknoten& k)
{
    return {{"Schluessel", als_json(k.Schluessel)},
            {"Text", als_json(k.Text)},
            {"KNOTEN", k.KNOTEN},
            {"offen", k.offen},
            {"Kinder", reihe(k.Kinder)}};
}

static Json als_json(const Dateiurteil& u)
{
    return {{"TOREL-Dateiname", als_json(u.TOREL_Dateiname)},
            {"Punktkennzeichen", als_json(u.Punktkennzeichen)},
            {"genommen", u.genommen},
            {"Minuten_vorher", u.Minuten_vorher},
            {"Minuten_nachher", u.Minuten_nachher},
            {"Sekunden_vorher", u.Sekunden_vorher},
            {"Sekunden_nachher", u.Sekunden_nachher},
            {"Minuten_Laenge", u.Minuten_Laenge},
            {"Strecke", u.Strecke}};
}

static Json als_json(const Begruendung& b)
{
    Json schritte = Json::array();
    for (const Pruefung schritt : b.Schritte) schritte.push_back(als_json(pruefung_text(schritt)));
    return {{"Figur", b.Figur},
            {"Ecken", b.Ecken},
            {"Dateien", reihe(b.Dateien)},
            {"Schritte", schritte},
            {"abweichende_Datei", als_json(b.abweichende_Datei)},
            {"Minuten_ROVER", b.Minuten_ROVER},
            {"Minuten_Spanne", b.Minuten_Spanne}};
}

static Json als_json(const Stationsbedarf& b)
{
    return {{"Punktkennzeichen", als_json(b.Punktkennzeichen)},
            {"TOREL-Dateiname", als_json(b.TOREL_Dateiname)},
            {"von", datum_text(b.von)},
            {"bis", datum_text(b.bis)}};
}

static Json als_json(const Weg& w)
{
    Json punkte = Json::array();
    for (const auto& punkt : w.Punkte) punkte.push_back(als_json(punkt));
    return {{"Text", als_json(weg_text(w))},
            {"Punkte", punkte},
            {"Dateien", reihe(w.Dateien)},
            {"Bedarf", reihe(w.Bedarf)}};
}

static Json menue(const Global& g)
{
    Json alle = Json::object();
    for (const auto& eintrag : menue_setzen(g))
        alle[eintrag.Name] = {{"Gruppe", als_json(eintrag.Gruppe)},
                              {"Text", als_json(eintrag.Text)},
                              {"an", eintrag.an},
                              {"sichtbar", eintrag.sichtbar},
                              {"Haken", eintrag.Haken}};
    return alle;
}

namespace {

struct Eintrag {
    std::string_view name;
    Teil teil;
    Json (*wert)(const Global&);
};

// Every array and singleton by its name. Element 0 of `KNOTEN` is not in use.
constexpr Eintrag eintraege[] = {
    {"Verfahrensname", Teil::kopf, [](const Global& g) { return als_json(g.Verfahrensname); }},
    {"Verfahrensnummer", Teil::kopf, [](const Global& g) { return als_json(g.Verfahrensnummer); }},
    {"Verfahrensmodus", Teil::kopf, [](const Global& g) { return als_json(g.Verfahrensmodus); }},
    {"Arbeitsverzeichnis", Teil::kopf, [](const Global& g) { return als_json(g.Arbeitsverzeichnis); }},
    {"Versionsnummer", Teil::kopf, [](const Global& g) { return als_json(g.Versionsnummer); }},
    {"Versionsdatum", Teil::kopf, [](const Global& g) { return als_json(g.Versionsdatum); }},
    {"Verfahrensdatei", Teil::kopf, [](const Global& g) { return als_json(g.Verfahrensdatei); }},
    {"Zeitfenster_1h", Teil::kopf, [](const Global& g) { return als_json(g.Zeitfenster_1h); }},
    {"Auswertemodus", Teil::kopf, [](const Global& g) { return als_json(g.Auswertemodus); }},
    {"Y_min", Teil::kopf, [](const Global& g) { return Json(g.Y_min); }},
    {"Y_max", Teil::kopf, [](const Global& g) { return Json(g.Y_max); }},
    {"X_min", Teil::kopf, [](const Global& g) { return Json(g.X_min); }},
    {"X_max", Teil::kopf, [](const Global& g) { return Json(g.X_max); }},
    {"Faktor", Teil::kopf, [](const Global& g) { return Json(g.Faktor); }},
    {"Grafik_Fenster_gelesen", Teil::kopf, [](const Global& g) { return Json(g.Grafik_Fenster_gelesen); }},
    {"vergroessert", Teil::kopf, [](const Global& g) { return flagge(g.vergroessert); }},
    {"vollstaendig_gelesen", Teil::kopf, [](const Global& g) { return Json(g.vollstaendig_gelesen); }},
    {"ungelesene_Sektionen", Teil::kopf, [](const Global& g) { return reihe(g.ungelesene_Sektionen); }},
    {"geo_fertig", Teil::kopf, [](const Global& g) { return flagge(g.geo_fertig); }},
    {"emds_ausgabe", Teil::kopf, [](const Global& g) { return flagge(g.emds_ausgabe); }},
    {"berechnete_ROVER", Teil::kopf, [](const Global& g) { return Json(g.berechnete_ROVER); }},
    {"tage", Teil::kopf, [](const Global& g) { return Json(std::vector(g.tage.begin(), g.tage.end())); }},
    {"zeit_tag", Teil::kopf, [](const Global& g) { return Json(g.zeit_tag); }},
    {"OBS_R", Teil::rover, [](const Global& g) { return reihe(g.OBS_R); }},
    {"R_Punkt", Teil::rover, [](const Global& g) { return reihe(g.R_Punkt); }},
    {"ROVER_TOREL", Teil::rover, [](const Global& g) { return reihe(g.ROVER_TOREL); }},
    {"ROVER_VIRT", Teil::rover, [](const Global& g) { return reihe(g.ROVER_VIRT); }},
    {"ROVER_Settings", Teil::rover, [](const Global& g) { return reihe(g.ROVER_Settings); }},
    {"Begruendungen", Teil::rover, [](const Global& g) { return reihe(g.Begruendungen); }},
    {"OBS_S", Teil::stationen, [](const Global& g) { return reihe(g.OBS_S); }},
    {"S_Punkt", Teil::stationen, [](const Global& g) { return reihe(g.S_Punkt); }},
    {"OBS_V", Teil::stationen, [](const Global& g) { return reihe(g.OBS_V); }},
    {"V_Punkt", Teil::stationen, [](const Global& g) { return reihe(g.V_Punkt); }},
    {"RINEX_Dateien", Teil::stationen, [](const Global& g) { return reihe(g.RINEX_Dateien); }},
    {"dateien_liste", Teil::stationen, [](const Global& g) { return reihe(g.dateien_liste); }},
    {"Antennen_Dateien", Teil::antennen, [](const Global& g) { return reihe(g.Antennen_Dateien); }},
    {"antennenliste", Teil::antennen, [](const Global& g) { return reihe(g.antennenliste); }},
    {"KOR_ANTENNEN", Teil::antennen, [](const Global& g) { return reihe(g.KOR_ANTENNEN); }},
    {"Typkalibrierung", Teil::antennen, [](const Global& g) { return als_json(g.Typkalibrierung); }},
    {"GEO_Punkt", Teil::figuren, [](const Global& g) { return reihe(g.GEO_Punkt); }},
    {"BASISLINIE", Teil::basislinien, [](const Global& g) { return reihe(g.BASISLINIE); }},
    {"KNOTEN", Teil::baum, [](const Global& g) { return reihe(std::vector(g.KNOTEN.begin() + 1, g.KNOTEN.end())); }},
    {"Baum", Teil::baum, [](const Global& g) { return reihe(g.baum.Knoten); }},
    {"Menue", Teil::menue, menue},
    {"TOREL_Punkt", Teil::katalog, [](const Global& g) { return reihe(g.TOREL_Punkt); }},
    {"Lnd", Teil::katalog, [](const Global& g) { return reihe(g.Lnd); }},
    {"Tem_Stationen", Teil::katalog, [](const Global& g) { return reihe(g.Tem_Stationen); }},
};

// Settings and lists of the running program, with the whole only.
Json programm_json(const Global& g)
{
    return {{"Verfahren", reihe(g.Verfahren)},
            {"Anzahl_Liste", g.Anzahl_Liste},
            {"Liste_Name", reihe(g.Liste_Name)},
            {"Liste_Pfad", reihe(g.Liste_Pfad)},
            {"Liste_Modus", reihe(g.Liste_Modus)},
            {"abbruch", g.abbruch},
            {"Programmverzeichnis", als_json(g.Programmverzeichnis)},
            {"Einstellungsdatei", als_json(g.Einstellungsdatei)},
            {"Windowsverzeichnis", als_json(g.Windowsverzeichnis)},
            {"Datei_Verzeichnis", als_json(g.Datei_Verzeichnis)},
            {"EXE_Verzeichnis", als_json(g.EXE_Verzeichnis)},
            {"Bestaetigung", als_json(g.Bestaetigung)},
            {"Editor", als_json(g.Editor)},
            {"Form_top", g.Form_top},
            {"Form_left", g.Form_left},
            {"Form_height", g.Form_height},
            {"Form_width", g.Form_width},
            {"Form_zustand", als_json(g.Form_zustand)},
            {"Fenster_Baumbreite", als_json(g.Fenster_Baumbreite)},
            {"Fenster_Werkzeugleiste", als_json(g.Fenster_Werkzeugleiste)},
            {"UTM_Zone", als_json(g.UTM_Zone)},
            {"Land", als_json(g.Land)},
            {"MARKER_Info", als_json(g.MARKER_Info)},
            {"Gesamtbatch", als_json(g.Gesamtbatch)},
            {"Hinweis", als_json(g.Hinweis)},
            {"Hinweis1", als_json(g.Hinweis1)},
            {"Grenzen", als_json(g.Grenzen)},
            {"PKZ", als_json(g.PKZ)},
            {"ErstStart", als_json(g.ErstStart)}};
}

std::string gedruckt(const Json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string verfahren_json(const Global& g, std::optional<Teil> teil)
{
    Json alles = Json::object();
    for (const auto& eintrag : eintraege)
        if (!teil || *teil == eintrag.teil) alles[std::string(eintrag.name)] = eintrag.wert(g);
    if (!teil) alles.update(programm_json(g));
    return gedruckt(alles);
}

std::string verfahrensliste_json(const Global& g)
{
    return gedruckt({{"Verfahren", reihe(g.Verfahren)}});
}

std::string zuordnung_json(const Global& g, int i)
{
    return gedruckt(i <= g.ROVER_TOREL.anzahl() ? als_json(g.ROVER_TOREL[i]) : Json::object());
}

std::string einstellungen_json(const Global& g, int i)
{
    Json liste = Json::array();
    for (const auto& satz : g.ROVER_Settings)
        if (i == 0 || satz.ROVER_Dateiname == g.OBS_R[i].Dateiname) liste.push_back(als_json(satz));
    return gedruckt({{"ROVER_Settings", liste}});
}

std::string begruendung_json(const Global& g, int i)
{
    Json json = {{"ROVER-Dateiname", als_json(g.OBS_R[i].Dateiname)}};
    if (static_cast<std::size_t>(i) <= g.Begruendungen.size())
        json.update(als_json(g.Begruendungen[static_cast<std::size_t>(i - 1)]));
    if (const auto weg = weg_zu_gruen(g, i)) json["Weg"] = als_json(*weg);
    return gedruckt(json);
}

}  // namespace jorv
