#include "suite/antenne.h"

#include <algorithm>
#include <array>

#include "plattform/text.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::size_t NAMENSBREITE = 20;
constexpr int ANDERER_TYP = 1, KEIN_FUND = 99;

struct Typname {
    std::string_view modell, haube;
};

// Model in columns 1-15, dome in 17-20; no dome is written NONE or left blank.
Typname zerlegt(std::string_view typ)
{
    Typname t{spalten(typ, 0, 16), spalten(typ, 16, 4)};
    if (t.haube.empty()) t.haube = "NONE";
    return t;
}

// The lower the better; the order of Antennenfund in tens, so that a finer order fits between.
int rang(std::string_view blocktyp, std::string_view blocknummer, std::string_view nummer, std::string_view typ)
{
    const Typname a = zerlegt(blocktyp), b = zerlegt(typ);
    const bool modell = !typ.empty() && gleich_ohne_gross(a.modell, b.modell);
    const bool haube = gleich_ohne_gross(a.haube, b.haube);
    if (!nummer.empty() && gleich_ohne_gross(blocknummer, nummer)) return modell ? 0 : ANDERER_TYP;
    if (!modell) return KEIN_FUND;
    if (blocknummer.empty()) return haube ? 10 : gleich_ohne_gross(a.haube, "NONE") ? 20 : KEIN_FUND;
    return haube ? 30 : KEIN_FUND;
}

// The date of a VALID line.
std::optional<GpsZeit> gueltig(std::string_view zeile)
{
    std::array<int, 5> feld{};
    for (std::size_t i = 0; i < feld.size(); ++i) feld[i] = spaltenganz(spalten(zeile, 6 * i, 6)).value_or(-1);
    return gps_zeit({feld[0], feld[1], feld[2], feld[3], feld[4], spaltenzahl(spalten(zeile, 30, 13)).value_or(0.0)});
}

std::string umbenannt(const Antennenblock& block, std::string_view name)
{
    std::string text;
    Zeilenleser leser(block.text);
    while (const auto zeile = leser.naechste()) {
        if (spalten(*zeile, 60, 20) == "TYPE / SERIAL NO") {
            anhaengen_links(text, name, 60);
            text.append("TYPE / SERIAL NO");
        } else {
            text.append(*zeile);
        }
        text.push_back('\n');
    }
    return text;
}

}  // namespace

std::optional<Antennenblock> antenne_suchen(std::string_view antex, std::string_view nummer, std::string_view typ,
                                            const GpsZeit& zeit)
{
    std::optional<Antennenblock> bester;
    std::string_view blockname;
    int bester_rang = KEIN_FUND, blockrang = KEIN_FUND;
    std::size_t anfang = 0, nummer_der_zeile = 0, blockzeile = 0;
    for (std::size_t stelle = 0; stelle < antex.size();) {
        const std::size_t zeilenanfang = stelle;
        const auto ende = std::min(antex.find('\n', stelle), antex.size());
        std::string_view zeile = antex.substr(stelle, ende - stelle);
        if (zeile.ends_with('\r')) zeile.remove_suffix(1);
        stelle = ende + 1;
        ++nummer_der_zeile;
        const std::string_view marke = spalten(zeile, 60, 20);
        if (marke == "START OF ANTENNA") {
            anfang = zeilenanfang;
            blockrang = KEIN_FUND;
        } else if (marke == "TYPE / SERIAL NO") {
            blockname = spalten(zeile, 0, 2 * NAMENSBREITE);
            blockzeile = nummer_der_zeile;
            blockrang = rang(spalten(zeile, 0, NAMENSBREITE), spalten(zeile, NAMENSBREITE, NAMENSBREITE), nummer, typ);
        } else if (marke == "VALID FROM" || marke == "VALID UNTIL") {
            const auto grenze = gueltig(zeile);
            if (grenze && (marke == "VALID FROM" ? zeit < *grenze : *grenze < zeit)) blockrang = KEIN_FUND;
        } else if (marke == "END OF ANTENNA" && blockrang < bester_rang) {
            bester_rang = blockrang;
            const std::string_view text = antex.substr(anfang, std::min(stelle, antex.size()) - anfang);
            bester = Antennenblock{std::string(text), static_cast<Antennenfund>(blockrang / 10), std::string(blockname),
                                   blockzeile, blockrang == ANDERER_TYP && !typ.empty()};
        }
    }
    return bester;
}

std::string antex_fuer_loeser(const std::optional<Antennenblock>& rover, const std::optional<Antennenblock>& basis)
{
    const auto zeile = [](std::string& text, std::string_view inhalt, std::string_view marke) {
        anhaengen_links(text, inhalt, 60);
        text.append(marke).append("\n");
    };
    std::string text;
    zeile(text, "     1.4            G", "ANTEX VERSION / SYST");
    zeile(text, "A", "PCV TYPE / REFANT");
    zeile(text, "", "END OF HEADER");
    if (rover) text += umbenannt(*rover, ROVERANTENNE);
    if (basis) text += umbenannt(*basis, BASISANTENNE);
    return text;
}

}  // namespace jorv::suite
