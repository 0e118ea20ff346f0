// What a virtual station is worth on real observations: every station of a network in turn as a rover against the
// others, in pieces of some lengths, computed straight from the nearest station, from that station moved to the rover,
// from the network of the two nearest and from that of all. Prints one table row for each.
// With the variable JORV_EINZELN each solution too.
//   bench_netz_daten FOLDER [minutes of the pieces, 60,180] [names of networks or rovers...]
// FOLDER holds a folder for each network (observation and navigation files) and the calibrations in `antennen`.
#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <numeric>

#include "hilfen/Projekt.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/basislinie.h"
#include "suite/ergebnistext.h"
#include "suite/rinex_schreiben.h"
#include "suite/virtuelle_station.h"

using namespace jorv;
namespace fs = std::filesystem;

namespace {

constexpr double FALSCH_LAGE = 50.0;             // mm; a solution said to be fixed must be better
constexpr double KUERZESTES = 300.0;             // s; a shorter rest of a file is no piece
constexpr suite::Enu NAEHERUNG{3.1, -2.4, 4.2};  // metres by which a rover's header lies beside its place

// What is known of a point beyond its header.
struct Soll {
    std::string_view name;
    double hoeher = 0.0;          // metres on the header's height, from the network's own day-long solutions
    std::string_view bezug = {};  // the header is too coarse: the place is what this station gives for the whole span
    bool hoehe_bekannt = true;
    std::string_view nachbar = {};  // a point some metres away; both then share what the reference's way errs by
};
constexpr std::array<Soll, 6> SOLL = {{{"MATA", 0.042},
                                       {"CREU", 0.008},
                                       {"EBRE", 0.078},
                                       {"UPC1", 0.0, "MATA", false, "UPC2"},
                                       {"UPC2", 0.0, "MATA", false, "UPC1"},
                                       {"0759", 0.0, "3040", true}}};

struct Station {
    std::string name, datei;  // four characters in capitals; the file's name
    suite::RinexBeobachtung daten;
    suite::Xyz ort;
    const Soll* soll = nullptr;
    bool nur_rover() const { return soll && !soll->bezug.empty(); }
};

struct Zeile {
    std::vector<double> lage, hoehe;  // mm, of the fixed
    int stuecke = 0, l1 = 0, l0 = 0, offen = 0, ohne = 0, falsch = 0;
};

double quantil(std::vector<double> werte, double anteil)
{
    if (werte.empty()) return 0.0;
    std::sort(werte.begin(), werte.end());
    return werte[static_cast<std::size_t>(anteil * static_cast<double>(werte.size() - 1) + 0.5)];
}

suite::Xyz verlegt(const suite::Xyz& p, const suite::Enu& um)
{
    const suite::Ort ort(p);
    const auto& h = ort.horizont;
    const auto teil = [&](std::size_t i) { return um.e * h[0][i] + um.n * h[1][i] + um.u * h[2][i]; };
    return p + suite::Xyz{teil(0), teil(1), teil(2)};
}

std::string grossgeschrieben(std::string_view text)
{
    std::string gross(text);
    for (char& c : gross) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return gross;
}

std::vector<Station> stationen_lesen(const fs::path& ordner)
{
    std::vector<Station> alle;
    for (const auto& eintrag : fs::directory_iterator(ordner)) {
        const std::string datei = eintrag.path().filename().string();
        if (datei.size() != 12 || std::tolower(datei.back()) != 'o') continue;
        std::string grund;
        auto daten = suite::beobachtung_lesen(hilfen::lesen(eintrag.path()), suite::Umfang::alles, grund);
        if (!daten || daten->epochen.size() < 10) continue;
        Station s{grossgeschrieben(datei.substr(0, 4)), datei, std::move(*daten), {}};
        const auto soll = std::find_if(SOLL.begin(), SOLL.end(), [&](const Soll& x) { return x.name == s.name; });
        if (soll != SOLL.end()) s.soll = &*soll;
        s.ort = verlegt(s.daten.kopf.ort, {0, 0, s.soll ? s.soll->hoeher : 0.0});
        s.daten.kopf.ort = s.ort;
        alle.push_back(std::move(s));
    }
    std::sort(alle.begin(), alle.end(), [](const Station& a, const Station& b) { return a.name < b.name; });
    return alle;
}

class Netzlauf {
public:
    Netzlauf(const fs::path& daten, std::string netz, std::vector<Station> stationen)
        : m_netz(std::move(netz)), m_stationen(std::move(stationen))
    {
        std::string antex;
        for (const auto& eintrag : fs::directory_iterator(daten / "antennen"))
            if (eintrag.path().extension() == ".atx") m_antex[eintrag.path().filename().string()] = eintrag.path();
        // The younger calibrations last in the alphabet come first.
        for (auto i = m_antex.rbegin(); i != m_antex.rend(); ++i) antex += hilfen::lesen(i->second);
        hilfen::schreiben(m_temp.host() / "001.ATX", antex);
        for (const auto& eintrag : fs::directory_iterator(daten / m_netz)) {
            const std::string name = eintrag.path().filename().string();
            if (name.back() == 'n') fs::copy_file(eintrag.path(), m_temp.host() / name);
        }
        for (const Station& s : m_stationen) beobachtung_schreiben(s.datei, s.daten);
    }
    void rover(Station& r, const std::vector<double>& laengen);

private:
    struct Weg {
        std::string name;
        std::size_t stationen;  // 0: no virtual station
    };
    void beobachtung_schreiben(const std::string& datei, const suite::RinexBeobachtung& daten)
    {
        hilfen::schreiben(m_temp.host() / datei, suite::beobachtung_text(daten, "netz_daten", {2016, 12, 1, 12, 0, 0}));
    }
    std::vector<const Station*> nachbarn(const Station& r) const;
    std::optional<suite::Ergebnis> rechnen(const std::string& datei, const std::vector<const Station*>& um,
                                           std::size_t anzahl, const std::string& wie);
    void stueck(const Station& r, const std::vector<const Station*>& um, const Weg& weg, Zeile& zeile);
    std::optional<suite::Xyz> sollort(const Station& r, const Station& bezug);

    std::string m_netz;
    std::vector<Station> m_stationen;
    std::map<std::string, fs::path> m_antex;
    hilfen::Arbeitsordner m_temp;
    Festuhr m_uhr{{2016, 12, 1, 12, 0, 0}};

public:
    std::vector<Station>& stationen() { return m_stationen; }
};

std::vector<const Station*> Netzlauf::nachbarn(const Station& r) const
{
    std::vector<const Station*> um;
    for (const Station& s : m_stationen)
        if (&s != &r && !s.nur_rover()) um.push_back(&s);
    const auto weit = [&](const Station* s) { return suite::laenge(s->ort - r.ort); };
    std::sort(um.begin(), um.end(), [&](const Station* a, const Station* b) { return weit(a) < weit(b); });
    return um;
}

std::optional<suite::Ergebnis> Netzlauf::rechnen(const std::string& datei, const std::vector<const Station*>& um,
                                                 std::size_t anzahl, const std::string& wie)
{
    const suite::Arbeitsordner ordner(m_temp.dos());
    std::string basis = um.front()->datei, grund;
    suite::Protokoll protokoll;
    if (anzahl > 0) {
        std::string namen;
        for (std::size_t i = 0; i < anzahl; ++i) namen += (i > 0 ? "," : "") + um[i]->name;
        const auto aufruf = suite::wav2_aufruf({datei, namen, "+A001.ATX"}, grund);
        if (suite::wav2(*aufruf, ordner, m_uhr, protokoll) != 0) return {};
        basis = aufruf->virt + datei.substr(datei.size() - 4);
    }
    suite::Worte worte = {basis, datei, "+ACF001.ATX"};
    if (!wie.empty()) worte.push_back(wie);
    const auto aufruf = suite::wa2_aufruf(worte, grund);
    if (suite::wa2(*aufruf, ordner, {programm_finden("rnx2rtkp")}, m_uhr, protokoll) != 0) {
        std::printf("# %s: %s\n", datei.c_str(), protokoll.ausgabe().c_str());
        return {};
    }
    if (std::getenv("JORV_EINZELN")) {
        Zeilenleser leser(protokoll.text());
        while (const auto text = leser.naechste())
            if (text->starts_with("Lauf") || text->starts_with("  ") || text->starts_with("Netz"))
                std::puts(std::string(*text).c_str());
    }
    return suite::loesung_lesen(hilfen::lesen(m_temp.host() / "wa2sol.txt"));
}

void Netzlauf::stueck(const Station& r, const std::vector<const Station*>& um, const Weg& weg, Zeile& zeile)
{
    ++zeile.stuecke;
    const auto e = rechnen(r.datei, um, weg.stationen, "");
    if (!e) {
        ++zeile.ohne;
        return;
    }
    const suite::Enu d = suite::enu(suite::Ort(r.ort), e->rover - r.ort);
    const double lage = 1000 * std::hypot(d.e, d.n);
    const bool ist_fest = e->loesungstyp.starts_with("Fixed");
    (e->loesungstyp == "FixedL1" ? zeile.l1 : ist_fest ? zeile.l0 : zeile.offen) += 1;
    if (ist_fest) {
        zeile.lage.push_back(lage);
        zeile.hoehe.push_back(1000 * d.u);
        zeile.falsch += lage > FALSCH_LAGE;
    }
    if (std::getenv("JORV_EINZELN") || (ist_fest && lage > FALSCH_LAGE))
        std::printf("# %s %s %s %s: E %s N %s U %s mm\n", r.name.c_str(), suite::zeittext(e->beginn).c_str(),
                    weg.name.c_str(), e->loesungstyp.c_str(), fest(1000 * d.e, 1).c_str(), fest(1000 * d.n, 1).c_str(),
                    fest(1000 * d.u, 1).c_str());
}

void ausgeben(const std::string& wer, const std::string& weg, const Zeile& z, bool hoehe)
{
    std::string text = verkettet(wer, " | ", weg, " | ", z.stuecke, " | ", z.l1, " | ", z.l0, " | ", z.offen, " | ",
                                 z.ohne, " | ", z.falsch, " | ", z.lage.empty() ? "-" : fest(quantil(z.lage, 0.5), 1),
                                 " | ", z.lage.empty() ? "-" : fest(quantil(z.lage, 1.0), 1));
    const auto anzahl = static_cast<double>(z.hoehe.size());
    double mittel = 0, quadrate = 0;
    for (const double h : z.hoehe) mittel += h / anzahl;
    for (const double h : z.hoehe) quadrate += (h - mittel) * (h - mittel);
    if (hoehe && anzahl > 0)
        text +=
            verkettet(" | ", fest(mittel, 1), " | ", anzahl > 1 ? fest(std::sqrt(quadrate / (anzahl - 1)), 1) : "-");
    else
        text += " | - | -";
    std::puts(text.c_str());
    std::fflush(stdout);
}

// Two points side by side get places that differ by what is measured between them: the long ways' mean serves both.
std::optional<suite::Xyz> Netzlauf::sollort(const Station& r, const Station& bezug)
{
    const auto fest = [](const auto& e) { return e && e->loesungstyp.starts_with("Fixed"); };
    const auto eigener = rechnen(r.datei, {&bezug}, 0, "+TL0");
    if (!fest(eigener)) return {};
    const auto nachbar = std::find_if(m_stationen.begin(), m_stationen.end(),
                                      [&](const Station& s) { return s.name == r.soll->nachbar; });
    if (nachbar == m_stationen.end()) return eigener->rover;
    const auto seiner = rechnen(nachbar->datei, {&bezug}, 0, "+TL0"), weg = rechnen(r.datei, {&*nachbar}, 0, "+TL1");
    if (!fest(seiner) || !fest(weg)) return {};
    const suite::Xyz unterschied = seiner->rover + (weg->rover - weg->basis) - eigener->rover;
    std::printf("# %s: zwei Wege zum Sollort, %s mm verschieden\n", r.name.c_str(),
                jorv::fest(1000 * suite::laenge(unterschied), 1).c_str());
    return eigener->rover + suite::Xyz{unterschied.x / 2, unterschied.y / 2, unterschied.z / 2};
}

void Netzlauf::rover(Station& r, const std::vector<double>& laengen)
{
    const std::vector<const Station*> um = nachbarn(r);
    if (um.empty()) return;
    if (r.soll && !r.soll->bezug.empty()) {
        const auto bezug =
            std::find_if(um.begin(), um.end(), [&](const Station* s) { return s->name == r.soll->bezug; });
        if (bezug == um.end()) return;
        const auto ort = sollort(r, **bezug);
        if (!ort) return;
        r.ort = *ort;
    }
    std::vector<Weg> wege = {{"direkt", 0}, {"verschoben", 1}};
    if (um.size() > 1) wege.push_back({"Netz 2", 2});
    if (um.size() > 2) wege.push_back({verkettet("Netz ", std::min<std::size_t>(um.size(), 4)), um.size()});
    for (const double minuten : laengen) {
        std::vector<Zeile> zeilen(wege.size());
        const auto& epochen = r.daten.epochen;
        const double dauer = minuten * 60, spanne = suite::abstand(epochen.back().zeit, epochen.front().zeit);
        const double rest = spanne + r.daten.intervall() + 0.1;
        for (double von = 0; von + KUERZESTES <= rest && (von == 0 || von + dauer <= rest); von += dauer) {
            suite::RinexBeobachtung teil = r.daten;
            teil.kopf.ort = verlegt(r.ort, NAEHERUNG);
            std::erase_if(teil.epochen, [&](const suite::Epoche& e) {
                const double t = suite::abstand(e.zeit, epochen.front().zeit);
                return t < von - 0.1 || t >= von + dauer - 0.1;
            });
            if (teil.epochen.size() < 5) continue;
            beobachtung_schreiben(r.datei, teil);
            for (std::size_t i = 0; i < wege.size(); ++i) stueck(r, um, wege[i], zeilen[i]);
        }
        beobachtung_schreiben(r.datei, r.daten);
        const std::string wer =
            verkettet(m_netz, " | ", r.name, " | ", fest(suite::laenge(um.front()->ort - r.ort) / 1000, 1), " | ",
                      fest(std::min(minuten, rest / 60), 0));
        for (std::size_t i = 0; i < wege.size(); ++i)
            ausgeben(wer, wege[i].name, zeilen[i], !r.soll || r.soll->hoehe_bekannt);
    }
}

}  // namespace

int main(int anzahl, char** worte)
{
    if (anzahl < 2) {
        std::puts("bench_netz_daten FOLDER [minutes, 60,180] [networks or rovers...]");
        return 1;
    }
    const fs::path daten = worte[1];
    std::vector<double> laengen;
    for (const std::string& wort : suite::liste_zerlegt(anzahl > 2 ? worte[2] : "60,180"))
        laengen.push_back(zahl_lesen(wort));
    const std::vector<std::string> wahl(worte + std::min(anzahl, 3), worte + anzahl);
    const auto gewaehlt = [&](const std::string& name) {
        return std::find(wahl.begin(), wahl.end(), name) != wahl.end();
    };
    std::puts(
        "Netz | Rover | naechste km | Minuten | Weg | Stuecke | L1 | L0 | offen | ohne | falsch fest | "
        "Lage Median | groesste | Hoehe Mittel | Streuung");
    std::vector<fs::path> netze;
    for (const auto& eintrag : fs::directory_iterator(daten))
        if (eintrag.is_directory()) netze.push_back(eintrag.path().filename());
    std::sort(netze.begin(), netze.end());
    for (const fs::path& netz : netze) {
        if (netz == "antennen" || netz == "lesetests") continue;
        std::vector<Station> stationen = stationen_lesen(daten / netz);
        if (stationen.size() < 2) continue;
        Netzlauf lauf(daten, netz.string(), std::move(stationen));
        for (Station& r : lauf.stationen())
            if (wahl.empty() || gewaehlt(netz.string()) || gewaehlt(r.name)) lauf.rover(r, laengen);
    }
    return 0;
}
