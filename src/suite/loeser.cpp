#include "suite/loeser.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <system_error>

#include "plattform/prozess.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"
#include "plattform/zahl.h"

namespace jorv::suite {

namespace fs = std::filesystem;

namespace {

// The solver prints positions to 0.1 mm, too coarse for correlations. All sigmas are scaled up together, which leaves
// the coordinates alone; whoever reads the deviations divides by it.
constexpr double SIGMA_FAKTOR = 10.0;
constexpr double BEZUGSLAENGE = 1.0e4;  // metres, the length for which the solver's ionosphere sigmas are meant

struct Laufwerte {
    Laufart art;
    std::string_view name;
    int frequenzen;
    bool ionosphaere;  // slant delays estimated
    bool festsetzen;   // integer ambiguities
};

constexpr std::array<Laufwerte, 7> LAEUFE = {{{Laufart::l1, "L1", 1, false, true},
                                              {Laufart::l1_l2, "L1+L2", 2, false, true},
                                              {Laufart::l0, "L0", 2, true, true},
                                              {Laufart::offen, "L1+L2 offen", 2, false, false},
                                              {Laufart::offen_l0, "L0 offen", 2, true, false},
                                              {Laufart::offen_l1, "L1 offen", 1, false, false},
                                              {Laufart::code, "Code", 1, false, false}}};

const Laufwerte& werte(Laufart art)
{
    return *std::find_if(LAEUFE.begin(), LAEUFE.end(), [&](const Laufwerte& w) { return w.art == art; });
}

class Optionen {
public:
    void setzen(std::string_view name, std::string_view wert)
    {
        m_text.append(name).append("=").append(wert).append("\n");
    }
    void setzen(std::string_view name, double wert, int stellen) { setzen(name, fest(wert, stellen)); }
    void setzen(std::string_view name, int wert) { setzen(name, verkettet(wert)); }
    std::string text() { return std::move(m_text); }

private:
    std::string m_text;
};

void antenne_setzen(Optionen& o, std::string_view nummer, const RinexKopf& kopf, bool kalibriert, std::string_view name)
{
    const std::string vor = verkettet("ant", nummer, "-ant");
    o.setzen(vor + "type", kalibriert ? name : "");
    o.setzen(vor + "dele", kopf.antenne_ost, 4);
    o.setzen(vor + "deln", kopf.antenne_nord, 4);
    o.setzen(vor + "delu", kopf.antennenhoehe, 4);
}

void rauschen_setzen(Optionen& o, const Loeserauftrag& auftrag, const Laufwerte& w)
{
    const double iono = w.ionosphaere ? SIGMA_FAKTOR * BEZUGSLAENGE / auftrag.solverlaenge : 1.0;
    o.setzen("stats-eratio1", 100);
    o.setzen("stats-eratio2", 100);
    o.setzen("stats-errphase", 0.003 * SIGMA_FAKTOR, 3);
    o.setzen("stats-errphaseel", 0.003 * SIGMA_FAKTOR, 3);
    o.setzen("stats-stdbias", 30.0 * SIGMA_FAKTOR, 1);
    o.setzen("stats-prnbias", 1e-4 * SIGMA_FAKTOR, 4);
    o.setzen("stats-stdiono", iono * (w.ionosphaere ? 0.5 : 0.3), 6);
    o.setzen("stats-prniono", iono * 0.01, 6);
    o.setzen("stats-stdtrop", auftrag.zenit_sigma * SIGMA_FAKTOR, 3);
    o.setzen("stats-prntrop", auftrag.zenit_gang * SIGMA_FAKTOR, 5);
}

std::string zeitwort(const GpsZeit& zeit, double rand)
{
    const Kalenderzeit k = kalenderzeit(verschoben(zeit, rand));
    return verkettet(k.stunde, ":", k.minute, ":", fest(k.sekunde, 3));
}

std::string datumswort(const GpsZeit& zeit, double rand)
{
    const Kalenderzeit k = kalenderzeit(verschoben(zeit, rand));
    return verkettet(k.jahr, "/", k.monat, "/", k.tag);
}

// The progress lines, which end in CR alone, are no message.
std::string letzte_meldung(std::string_view fehlerausgabe)
{
    std::string text;
    for (std::size_t stelle = 0; stelle < fehlerausgabe.size();) {
        const auto ende = std::min(fehlerausgabe.find_first_of("\r\n", stelle), fehlerausgabe.size());
        const std::string_view zeile = trimmen(fehlerausgabe.substr(stelle, ende - stelle));
        if (!zeile.empty() && !zeile.starts_with("processing") && !zeile.starts_with("reading"))
            text = zeile.substr(0, 200);
        stelle = ende + 1;
    }
    return text;
}

constexpr std::string_view ORDNERNAME = "jorv-wa2-";

// Folders of programs that were killed: they may lie in the memory.
void reste_wegraeumen(const fs::path& wo)
{
    std::error_code fehler;
    for (const auto& eintrag : fs::directory_iterator(wo, fehler)) {
        const std::string name = eintrag.path().filename().string();
        if (!name.starts_with(ORDNERNAME)) continue;
        const auto kennung =
            ganz_streng(name.substr(ORDNERNAME.size(), name.find('-', ORDNERNAME.size()) - ORDNERNAME.size()));
        if (kennung && !prozess_lebt(*kennung)) fs::remove_all(eintrag.path(), fehler);
    }
}

fs::path neuer_ordner(const fs::path& wo)
{
    reste_wegraeumen(wo);
    std::random_device zufall;
    std::error_code fehler;
    for (int versuch = 0; versuch < 100; ++versuch) {
        const fs::path pfad = wo / verkettet(ORDNERNAME, prozess_kennung(), "-", static_cast<long long>(zufall()));
        if (!fs::create_directory(pfad, fehler)) continue;
        fs::permissions(pfad, fs::perms::owner_all, fehler);
        return pfad;
    }
    return {};
}

}  // namespace

std::string_view laufname(Laufart art)
{
    return werte(art).name;
}

std::string optionsdatei(const Loeserauftrag& auftrag, Laufart art)
{
    const Laufwerte& w = werte(art);
    Optionen o;
    // Numbers in place of words: the words of an enumeration differ between versions and an unknown one is ignored.
    o.setzen("pos1-posmode", art == Laufart::code ? "dgps" : "static");
    o.setzen("pos1-frequency", w.frequenzen);
    o.setzen("pos1-soltype", "forward");
    o.setzen("pos1-elmask", auftrag.elevation);
    o.setzen("pos1-ionoopt", w.ionosphaere ? "est-stec" : "brdc");
    o.setzen("pos1-tropopt", w.ionosphaere && auftrag.zenit_schaetzen ? "est-ztd" : "saas");
    o.setzen("pos1-sateph", "brdc");
    o.setzen("pos1-posopt2", "on");  // without it the elevation dependent part of the antennas is left out
    o.setzen("pos1-navsys", 1);
    std::string ohne;
    for (const std::string& satellit : auftrag.ohne_satelliten) ohne.append(ohne.empty() ? "" : " ").append(satellit);
    o.setzen("pos1-exclsats", ohne);
    o.setzen("pos2-armode", w.festsetzen ? "continuous" : "off");
    o.setzen("pos2-arthres", 3);
    o.setzen("pos2-arelmask", 15);
    o.setzen("pos2-arlockcnt", 0);
    o.setzen("pos2-slipthres", "0.05");
    o.setzen("pos2-maxage", 30);
    o.setzen("pos2-rejionno", 30);
    o.setzen("pos2-rejgdop", 100);
    o.setzen("pos2-niter", 3);
    o.setzen("misc-timeinterp", "on");
    o.setzen("out-solformat", "xyz");
    o.setzen("out-timesys", "gpst");
    o.setzen("out-timeform", "hms");
    o.setzen("out-timendec", 3);
    o.setzen("out-solstatic", "all");
    o.setzen("out-outstat", "residual");
    rauschen_setzen(o, auftrag, w);
    o.setzen("file-rcvantfile", "antex.atx");
    antenne_setzen(o, "1", auftrag.rover, auftrag.rover_antenne.has_value(), ROVERANTENNE);
    antenne_setzen(o, "2", auftrag.basis, auftrag.basis_antenne.has_value(), BASISANTENNE);
    o.setzen("ant2-postype", "xyz");
    o.setzen("ant2-pos1", auftrag.basis.ort.x, 4);
    o.setzen("ant2-pos2", auftrag.basis.ort.y, 4);
    o.setzen("ant2-pos3", auftrag.basis.ort.z, 4);
    return o.text();
}

Loeser::Loeser(const Loeserumgebung& umgebung, const Loeserauftrag& auftrag)
    : m_umgebung(umgebung),
      m_auftrag(auftrag),
      m_schluss(std::chrono::steady_clock::now() + std::chrono::seconds(umgebung.sekunden))
{
    if (umgebung.programm.empty()) {
        m_hindernis = "Das Rechenprogramm rnx2rtkp wurde nicht gefunden (Debian-Paket rtklib)!";
        return;
    }
    // The solver writes about three times what it reads.
    const auto gelesen = auftrag.rover_text.text().size() + auftrag.basis_text.text().size();
    const bool gegeben = !umgebung.zwischenordner.empty();
    m_ordner = neuer_ordner(gegeben ? umgebung.zwischenordner : zwischenordner(8 * gelesen + (8u << 20)));
    const bool gut = !m_ordner.empty() && bereitlegen("rover.obs", auftrag.rover_text, auftrag.rover_datei) &&
                     bereitlegen("base.obs", auftrag.basis_text, auftrag.basis_datei) &&
                     ablegen("brdc.nav", auftrag.navigation_text) &&
                     ablegen("antex.atx", antex_fuer_loeser(auftrag.rover_antenne, auftrag.basis_antenne));
    if (!gut) m_hindernis = u8"Der Zwischenordner für das Rechenprogramm konnte nicht angelegt werden!"_w;
}

Loeser::~Loeser()
{
    std::error_code fehler;
    if (!m_ordner.empty()) fs::remove_all(m_ordner, fehler);
}

// With line ends of LF alone.
bool Loeser::ablegen(const char* name, std::string_view text) const
{
    std::string ohne;
    ohne.reserve(text.size());
    while (!text.empty()) {
        const auto stelle = std::min(text.find('\r'), text.size());
        ohne.append(text.substr(0, stelle));
        text.remove_prefix(std::min(stelle + 1, text.size()));
    }
    std::ofstream datei(m_ordner / name, std::ios::binary);
    datei.write(ohne.data(), static_cast<std::streamsize>(ohne.size()));
    return static_cast<bool>(datei.flush());
}

// A file whose lines end in LF already is only linked to.
bool Loeser::bereitlegen(const char* name, const Abbild& bild, const fs::path& datei) const
{
    std::error_code fehler;
    const bool verweis = bild.text().find('\r') == std::string_view::npos;
    if (verweis) fs::create_symlink(fs::absolute(datei, fehler), m_ordner / name, fehler);
    return (verweis && !fehler) || ablegen(name, bild.text());
}

Loeserlauf Loeser::rechnen(Laufart art) const
{
    Loeserlauf lauf;
    std::error_code fehler;
    for (const char* alt : {"o.pos", "o.pos.stat"}) fs::remove(m_ordner / alt, fehler);
    if (!ablegen("o.conf", optionsdatei(m_auftrag, art))) {
        lauf.fehler = "Die Vorgaben konnten nicht geschrieben werden";
        return lauf;
    }
    // Time tags lie some milliseconds beside the full second.
    std::vector<std::string> worte = {"-k",
                                      "o.conf",
                                      "-ts",
                                      datumswort(m_auftrag.von, -0.02),
                                      zeitwort(m_auftrag.von, -0.02),
                                      "-te",
                                      datumswort(m_auftrag.bis, 0.02),
                                      zeitwort(m_auftrag.bis, 0.02)};
    if (m_auftrag.takt > 0) worte.insert(worte.end(), {"-ti", fest(m_auftrag.takt, 3)});
    worte.insert(worte.end(), {"-o", "o.pos", "rover.obs", "base.obs", "brdc.nav"});
    const auto rest = std::chrono::ceil<std::chrono::seconds>(m_schluss - std::chrono::steady_clock::now()).count();
    const int sekunden = static_cast<int>(std::max<std::int64_t>(1, rest));
    const Prozessende ende = programm_ausfuehren(m_umgebung.programm, worte, m_ordner, sekunden);
    lauf.fehlerausgabe = letzte_meldung(ende.fehlerausgabe);
    lauf.zeit_abgelaufen = ende.zeit_abgelaufen;
    if (!ende.gestartet)
        lauf.fehler = "Das Rechenprogramm konnte nicht gestartet werden";
    else if (ende.zeit_abgelaufen)
        lauf.fehler = verkettet("Das Rechenprogramm wurde nach ", sekunden, " s abgebrochen");
    else if (ende.status != 0)
        lauf.fehler = verkettet("Das Rechenprogramm endete mit Status ", ende.status);
    if (!lauf.fehler.empty()) return lauf;
    // Files that are missing are empty ones here: no solution.
    const Abbild positionen(m_ordner / "o.pos", fehler), statistik(m_ordner / "o.pos.stat", fehler);
    lauf.ausgabe = loeserausgabe_lesen(positionen.text(), statistik.text());
    for (Position& p : lauf.ausgabe.positionen) {
        p.sigma = {p.sigma.x / SIGMA_FAKTOR, p.sigma.y / SIGMA_FAKTOR, p.sigma.z / SIGMA_FAKTOR};
        for (double& wert : p.gemischt) wert /= SIGMA_FAKTOR;
    }
    if (lauf.ausgabe.positionen.empty()) lauf.fehler = u8"Das Rechenprogramm lieferte keine Lösung"_w;
    return lauf;
}

}  // namespace jorv::suite
