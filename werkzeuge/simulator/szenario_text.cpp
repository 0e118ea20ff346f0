#include "simulator/szenario_text.h"

#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "simulator/text.h"

namespace jorv::simulator {

namespace {

using Worte = std::vector<std::string_view>;

std::string_view gestutzt(std::string_view t)
{
    const auto von = t.find_first_not_of(" \t\r");
    if (von == std::string_view::npos) return {};
    return t.substr(von, t.find_last_not_of(" \t\r") - von + 1);
}

Worte worte(std::string_view t)
{
    Worte alle;
    for (t = gestutzt(t); !t.empty(); t = gestutzt(t)) {
        const auto ende = t.find_first_of(" \t");
        alle.push_back(t.substr(0, ende));
        t = ende == std::string_view::npos ? std::string_view{} : t.substr(ende);
    }
    return alle;
}

/// `hh:mm:ss` or `hh:mm` as seconds; hours above 23 belong to the next day.
std::optional<double> uhrzeit(std::string_view t)
{
    double summe = 0, einheit = 3600;
    for (; einheit >= 1; einheit /= 60) {
        const auto ende = t.find(':');
        const auto teil = zahl(t.substr(0, ende));
        if (!teil || *teil < 0) return {};
        summe += einheit * *teil;
        if (ende == std::string_view::npos) return einheit == 3600 ? std::nullopt : std::optional(summe);
        t = t.substr(ende + 1);
    }
    return {};
}

/// Fills the numbers in order; `mindestens` of them must be there, more than given are faulty.
bool zahlen(std::string_view text, std::initializer_list<double*> ziele, std::size_t mindestens)
{
    const Worte w = worte(text);
    if (w.size() < mindestens || w.size() > ziele.size()) return false;
    for (std::size_t i = 0; i < w.size(); ++i) {
        const auto wert = zahl(w[i]);
        if (!wert) return false;
        *ziele.begin()[i] = *wert;
    }
    return true;
}

bool zahlen(std::string_view text, std::initializer_list<double*> ziele)
{
    return zahlen(text, ziele, ziele.size());
}

bool ja_nein(std::string_view text, bool& ziel)
{
    ziel = text == "ja";
    return ziel || text == "nein";
}

bool ganze(std::string_view text, std::uint64_t& ziel)
{
    double wert = 0;
    if (!zahlen(text, {&wert}) || wert < 0 || wert > 9e15 || wert != std::floor(wert)) return false;
    ziel = static_cast<std::uint64_t>(wert);
    return true;
}

bool zeitpunkt(std::string_view text, double& ziel)
{
    const auto t = uhrzeit(text);
    if (t) ziel = *t;
    return t.has_value();
}

bool tag_lesen(std::string_view text, Kalendertag& tag)
{
    if (text.size() != 10 || text[2] != '.' || text[5] != '.') return false;
    const auto t = zahl(text.substr(0, 2)), m = zahl(text.substr(3, 2)), j = zahl(text.substr(6));
    if (!t || !m || !j || *m < 1 || *m > 12 || *t < 1 || *t > 31) return false;
    tag = {static_cast<int>(*j), static_cast<int>(*m), static_cast<int>(*t)};
    return true;
}

/// The millimetres of an antenna as they stand in the file.
struct Antennenangaben {
    std::string typ;
    Vektor l1, l2;
    double gang1 = 0, gang2 = 0;
};

/// What the lines are read into: the scenario and the record that the last section line began.
struct Stand {
    Szenario& s;
    Antennenangaben antenne;
    std::string antennennummer;
    Punkt& punkt() { return s.punkte.back(); }
};

struct Schluessel {
    std::string_view abschnitt, name, erklaerung;
    bool (*lesen)(Stand&, std::string_view);
};

bool xyz_lesen(Stand& st, std::string_view t)
{
    Vektor& o = st.punkt().ort;
    return zahlen(t, {&o.x, &o.y, &o.z});
}

bool blh_lesen(Stand& st, std::string_view t)
{
    Geographisch g;
    if (!zahlen(t, {&g.breite, &g.laenge, &g.hoehe})) return false;
    g.breite *= grad;
    g.laenge *= grad;
    Vektor o = nach_xyz(g);
    // The file head holds tenths of a millimetre; the truth shall be the same number.
    for (double* wert : {&o.x, &o.y, &o.z}) *wert = std::round(*wert * 1e4) / 1e4;
    st.punkt().ort = o;
    return true;
}

bool luecke_lesen(Stand& st, std::string_view t)
{
    const Worte w = worte(t);
    Luecke l;
    if (w.size() != 2 || !zeitpunkt(w[0], l.von) || !zeitpunkt(w[1], l.bis)) return false;
    st.punkt().luecken.push_back(l);
    return true;
}

bool welle_lesen(Stand& st, std::string_view t)
{
    Ionosphaere& i = st.s.wirkungen.ionosphaere;
    return zahlen(t, {&i.welle, &i.wellenlaenge, &i.periode, &i.richtung}, 1) && i.wellenlaenge > 0 && i.periode > 0;
}

bool troposphaere_lesen(Stand& st, std::string_view t)
{
    Troposphaere& a = st.s.wirkungen.troposphaere;
    a.an = t != "nein";
    return !a.an || zahlen(t, {&a.feucht, &a.gradient_nord, &a.gradient_ost}, 1);
}

bool millimeter(std::string_view t, double& ziel)
{
    if (!zahlen(t, {&ziel})) return false;
    ziel /= 1000;
    return true;
}

bool anzahl_lesen(Stand& st, std::string_view t)
{
    std::uint64_t wert = 0;
    if (!ganze(t, wert) || wert > 99) return false;
    st.s.satelliten = static_cast<int>(wert);
    return true;
}

constexpr std::string_view allgemein = "Allgemein", wirkungen = "Wirkungen", antenne = "Antenne", punkt = "Punkt";

constexpr auto schluessel = std::to_array<Schluessel>({
    {allgemein, "Tag", "tt.mm.jjjj (GPS-Zeit)", [](Stand& st, std::string_view t) { return tag_lesen(t, st.s.tag); }},
    {allgemein, "Saat", "ganze Zahl für alles Zufällige", [](Stand& st, std::string_view t) { return ganze(t, st.s.saat); }},
    {allgemein, "Konstellation", "ganze Zahl für die Bahnen",
     [](Stand& st, std::string_view t) { return ganze(t, st.s.konstellation); }},
    {allgemein, "Satelliten", "24 bis 32", anzahl_lesen},
    {allgemein, "Maske", "Grad", [](Stand& st, std::string_view t) { return zahlen(t, {&st.s.maske}); }},
    {allgemein, "Signalstaerke", "ja|nein", [](Stand& st, std::string_view t) { return ja_nein(t, st.s.signalstaerke); }},
    {allgemein, "Glonass", "ja|nein", [](Stand& st, std::string_view t) { return ja_nein(t, st.s.glonass); }},
    {wirkungen, "Empfaengeruhr", "Versatz s, Gang s/s",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.s.wirkungen.uhr_versatz, &st.s.wirkungen.uhr_gang}, 1); }},
    {wirkungen, "Satellitenuhren", "ja|nein",
     [](Stand& st, std::string_view t) { return ja_nein(t, st.s.wirkungen.satellitenuhren); }},
    {wirkungen, "Ionosphaere", "VTEC in TECU, Gradient Nord, Ost in TECU/km",
     [](Stand& st, std::string_view t) {
         Ionosphaere& i = st.s.wirkungen.ionosphaere;
         return zahlen(t, {&i.vtec, &i.gradient_nord, &i.gradient_ost}, 1);
     }},
    {wirkungen, "Ionosphaerenwelle", "Amplitude TECU, Wellenlänge km, Periode min, Azimut Grad", welle_lesen},
    {wirkungen, "Troposphaere", "Feuchtanteil im Zenit m, Gradient Nord, Ost mm/km; oder nein", troposphaere_lesen},
    {wirkungen, "Mehrdeutigkeiten", "ja|nein",
     [](Stand& st, std::string_view t) { return ja_nein(t, st.s.wirkungen.mehrdeutigkeiten); }},
    {wirkungen, "Phasenspruenge", "je Satellit und Stunde",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.s.wirkungen.spruenge}); }},
    {wirkungen, "Coderauschen", "m im Zenit",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.s.wirkungen.coderauschen}); }},
    {wirkungen, "Phasenrauschen", "mm im Zenit",
     [](Stand& st, std::string_view t) { return millimeter(t, st.s.wirkungen.phasenrauschen); }},
    {wirkungen, "Mehrweg", "Anteil der Bodenreflexion am Horizont, 0 bis 1",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.s.wirkungen.mehrweg}); }},
    {wirkungen, "Bahnfehler", "m je Achse",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.s.wirkungen.bahnfehler}); }},
    {wirkungen, "Antennenzentrum", "ja|nein",
     [](Stand& st, std::string_view t) { return ja_nein(t, st.s.wirkungen.antennenzentrum); }},
    {antenne, "Typ", "Typ und Haube, höchstens 20 Zeichen",
     [](Stand& st, std::string_view t) {
         st.antenne.typ = t;
         return t.size() <= 20;
     }},
    {antenne, "L1", "Nord, Ost, Oben in mm",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.antenne.l1.x, &st.antenne.l1.y, &st.antenne.l1.z}); }},
    {antenne, "L2", "Nord, Ost, Oben in mm",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.antenne.l2.x, &st.antenne.l2.y, &st.antenne.l2.z}); }},
    {antenne, "Gang", "am Horizont, L1 und L2 in mm",
     [](Stand& st, std::string_view t) { return zahlen(t, {&st.antenne.gang1, &st.antenne.gang2}); }},
    {punkt, "Name", "MARKER NAME",
     [](Stand& st, std::string_view t) {
         st.punkt().name = t;
         return true;
     }},
    {punkt, "XYZ", "m", xyz_lesen},
    {punkt, "BLh", "Grad, Grad, m (GRS80)", blh_lesen},
    {punkt, "Naeherung", "Zuschlag zur Kopfkoordinate dX dY dZ in m",
     [](Stand& st, std::string_view t) {
         Vektor& v = st.punkt().naeherung;
         return zahlen(t, {&v.x, &v.y, &v.z});
     }},
    {punkt, "Antenne", "Nummer einer Antenne",
     [](Stand& st, std::string_view t) {
         st.punkt().antenne = t;
         return true;
     }},
    {punkt, "Antennenhoehe", "m", [](Stand& st, std::string_view t) { return zahlen(t, {&st.punkt().antennenhoehe}); }},
    {punkt, "Von", "hh:mm:ss, über 24 h: Folgetag",
     [](Stand& st, std::string_view t) { return zeitpunkt(t, st.punkt().von); }},
    {punkt, "Bis", "hh:mm:ss", [](Stand& st, std::string_view t) { return zeitpunkt(t, st.punkt().bis); }},
    {punkt, "Takt", "s", [](Stand& st, std::string_view t) { return zahlen(t, {&st.punkt().takt}); }},
    {punkt, "Sitzung", "ein Zeichen",
     [](Stand& st, std::string_view t) {
         if (t.size() != 1) return false;
         st.punkt().sitzung = t[0];
         return true;
     }},
    {punkt, "Luecke", "von bis, hh:mm:ss; mehrfach erlaubt", luecke_lesen},
    {punkt, "Endzeit", "ja|nein: TIME OF LAST OBS im Kopf",
     [](Stand& st, std::string_view t) { return ja_nein(t, st.punkt().endzeit_im_kopf); }},
    {punkt, "Navigation", "ja|nein: Navigationsdatei dazu",
     [](Stand& st, std::string_view t) { return ja_nein(t, st.punkt().navigation); }},
});

Vektor in_metern(Vektor mm)
{
    return 1e-3 * mm;
}

void antenne_abschliessen(Stand& st)
{
    if (st.antennennummer.empty()) return;
    const Antennenangaben& a = st.antenne;
    st.s.antennen.push_back(
        antenne_machen(st.antennennummer, a.typ, in_metern(a.l1), in_metern(a.l2), a.gang1 / 1000, a.gang2 / 1000));
    st.antennennummer.clear();
    st.antenne = {};
}

bool abschnitt_beginnen(Stand& st, std::string_view kopf, std::string_view& abschnitt)
{
    antenne_abschliessen(st);
    const auto blank = kopf.find(' ');
    abschnitt = kopf.substr(0, blank);
    const std::string_view rest = blank == std::string_view::npos ? std::string_view{} : gestutzt(kopf.substr(blank));
    if (abschnitt == allgemein || abschnitt == wirkungen) return rest.empty();
    if (abschnitt == antenne) {
        st.antennennummer = rest;
        return !rest.empty() && rest.size() <= 20;
    }
    if (abschnitt != punkt || rest.size() != 4) return false;
    st.s.punkte.emplace_back().pkz = rest;
    return true;
}

bool zeile_lesen(Stand& st, std::string_view zeile, std::string_view& abschnitt)
{
    if (zeile.front() == '[') {
        return zeile.back() == ']' && abschnitt_beginnen(st, gestutzt(zeile.substr(1, zeile.size() - 2)), abschnitt);
    }
    const auto gleich = zeile.find('=');
    if (gleich == std::string_view::npos) return false;
    const std::string_view name = gestutzt(zeile.substr(0, gleich)), wert = gestutzt(zeile.substr(gleich + 1));
    for (const Schluessel& s : schluessel) {
        if (s.abschnitt == abschnitt && s.name == name) return s.lesen(st, wert);
    }
    return false;
}

}  // namespace

bool szenario_lesen(std::string_view text, Szenario& szenario, std::string& meldung)
{
    szenario = {};
    Stand stand{szenario, {}, {}};
    std::string_view abschnitt;
    for (int nummer = 1; !text.empty(); ++nummer) {
        const auto ende = text.find('\n');
        const std::string_view zeile = gestutzt(text.substr(0, ende).substr(0, text.substr(0, ende).find('#')));
        text = ende == std::string_view::npos ? std::string_view{} : text.substr(ende + 1);
        if (!zeile.empty() && !zeile_lesen(stand, zeile, abschnitt)) {
            meldung = "Die Zeile " + std::to_string(nummer) + " ist fehlerhaft: " + std::string(zeile);
            return false;
        }
    }
    antenne_abschliessen(stand);
    return true;
}

std::string hilfe_szenario()
{
    std::string aus;
    std::string_view abschnitt;
    for (const Schluessel& s : schluessel) {
        if (s.abschnitt != abschnitt) {
            abschnitt = s.abschnitt;
            aus += "[" + std::string(abschnitt) +
                   (abschnitt == antenne ? " NUMMER"
                    : abschnitt == punkt ? " PKZ"
                                         : "") +
                   "]\n";
        }
        aus += "  ";
        links(aus, s.name, 18);
        aus += s.erklaerung;
        aus += '\n';
    }
    return aus;
}

}  // namespace jorv::simulator
