#include "suite/aufruf.h"

#include <algorithm>
#include <span>

#include "plattform/text.h"
#include "plattform/zahl.h"
#include "suite/arbeitsordner.h"
#include "suite/felder.h"

namespace jorv::suite {

namespace {

// One option: how it begins and what its rest does. False: the rest is no value of it.
template <typename Aufruf>
struct Option {
    std::string_view anfang;
    bool (*setzen)(Aufruf& ziel, std::string_view rest);
};

bool ganze_zahl(int& ziel, std::string_view rest, int von, int bis)
{
    const auto zahl = ganz_streng(rest);
    if (rest.empty() || !zahl || *zahl < von || *zahl > bis) return false;
    ziel = *zahl;
    return true;
}

bool uhrzeit(std::optional<int>& ziel, std::string_view rest)
{
    int zahl = 0;
    if (!ganze_zahl(zahl, rest, 0, 235959) || zahl / 100 % 100 > 59 || zahl % 100 > 59) return false;
    ziel = zahl;
    return true;
}

bool dateiname(std::string& ziel, std::string_view rest)
{
    ziel = rest;
    return !rest.empty();
}

template <typename Aufruf>
bool ohne_wirkung(Aufruf&, std::string_view rest)
{
    return rest.empty();
}

constexpr std::array<Option<Wav2Aufruf>, 6> WAV2_OPTIONEN = {{
    {"+PRO", ohne_wirkung<Wav2Aufruf>},
    {"+E", ohne_wirkung<Wav2Aufruf>},
    {"+A", [](Wav2Aufruf& z, std::string_view r) { return dateiname(z.antennendatei, r); }},
    {"-e", [](Wav2Aufruf& z, std::string_view r) { return ganze_zahl(z.elevation, r, 0, 89); }},
    {"+b", [](Wav2Aufruf& z, std::string_view r) { return uhrzeit(z.beginn, r); }},
    {"+e", [](Wav2Aufruf& z, std::string_view r) { return uhrzeit(z.ende, r); }},
}};

bool loesungsart(Wa2Aufruf& ziel, std::string_view rest)
{
    int zahl = 0;
    if (!ganze_zahl(zahl, rest, 0, 2)) return false;
    ziel.art = zahl == 0 ? Loesungsart::l0 : zahl == 1 ? Loesungsart::l1 : Loesungsart::automatisch;
    return true;
}

bool satellit(Wa2Aufruf& ziel, std::string_view rest)
{
    const auto name = satellitenname(rest);
    if (name &&
        std::find(ziel.ohne_satelliten.begin(), ziel.ohne_satelliten.end(), *name) == ziel.ohne_satelliten.end())
        ziel.ohne_satelliten.push_back(*name);
    return name.has_value();
}

bool feldliste(Wa2Aufruf& ziel, std::string_view rest)
{
    ziel.felder = liste_zerlegt(rest);
    return !ziel.felder.empty() && std::all_of(ziel.felder.begin(), ziel.felder.end(), feld_bekannt);
}

// Longer beginnings before shorter ones.
constexpr std::array<Option<Wa2Aufruf>, 15> WA2_OPTIONEN = {{
    {"+ACF", [](Wa2Aufruf& z, std::string_view r) { return dateiname(z.antennendatei, r); }},
    {"+TL", loesungsart},
    {"+FE", [](Wa2Aufruf& z, std::string_view r) { return dateiname(z.ext_datei, r); }},
    {"+FL", [](Wa2Aufruf& z, std::string_view r) { return dateiname(z.protokoll_datei, r); }},
    {"+FS", [](Wa2Aufruf& z, std::string_view r) { return dateiname(z.loesung_datei, r); }},
    {"+SE", [](Wa2Aufruf& z, std::string_view r) { return z.nur_basislinie = true, r.empty(); }},
    {"+L1", ohne_wirkung<Wa2Aufruf>},
    {"+L2", ohne_wirkung<Wa2Aufruf>},
    {"+E-", feldliste},
    {"-SV", satellit},
    {"+R", [](Wa2Aufruf& z, std::string_view r) { return ganze_zahl(z.takt, r, 1, 86400); }},
    {"+U", [](Wa2Aufruf& z, std::string_view r) { return ganze_zahl(z.zone, r, 1, 60); }},
    {"-e", [](Wa2Aufruf& z, std::string_view r) { return ganze_zahl(z.elevation, r, 0, 89); }},
    {"-M", [](Wa2Aufruf& z, std::string_view r) { return ganze_zahl(z.ohne_anfang, r, 0, 100000); }},
    {"-N", [](Wa2Aufruf& z, std::string_view r) { return ganze_zahl(z.ohne_ende, r, 0, 100000); }},
}};

bool virtuelle_namen(Wav2Aufruf& ziel, std::string_view rest)
{
    const Worte namen = liste_zerlegt(rest);
    if (namen.size() != 2) return false;
    ziel.virt = namen[0];
    ziel.rover = namen[1];
    return true;
}

constexpr std::string_view MODELLDATEI = "model.wam";

constexpr std::array<Option<Wav2Aufruf>, 7> WASOFT_VIRTUELL = {{
    {"+k", [](Wav2Aufruf& z, std::string_view r) { return z.modelldatei = MODELLDATEI, r.empty(); }},
    {"+V", virtuelle_namen},
    {"+A", [](Wav2Aufruf& z, std::string_view r) { return dateiname(z.antennendatei, r); }},
    {"+C", [](Wav2Aufruf& z, std::string_view r) { return dateiname(z.koordinatendatei, r); }},
    {"-e", [](Wav2Aufruf& z, std::string_view r) { return ganze_zahl(z.elevation, r, 0, 89); }},
    {"+b", [](Wav2Aufruf& z, std::string_view r) { return uhrzeit(z.beginn, r); }},
    {"+e", [](Wav2Aufruf& z, std::string_view r) { return uhrzeit(z.ende, r); }},
}};

constexpr std::array<Option<Wa2Aufruf>, 5> WASOFT_BASISLINIE = {{
    {"+A", [](Wa2Aufruf& z, std::string_view r) { return dateiname(z.antennendatei, r); }},
    {"+C", [](Wa2Aufruf& z, std::string_view r) { return dateiname(z.koordinatendatei, r); }},
    {"-0", [](Wa2Aufruf& z, std::string_view r) { return z.art = Loesungsart::l0, r.empty(); }},
    {"+R", [](Wa2Aufruf& z, std::string_view r) { return ganze_zahl(z.takt, r, 1, 86400); }},
    {"-e", [](Wa2Aufruf& z, std::string_view r) { return ganze_zahl(z.elevation, r, 0, 89); }},
}};

template <typename Aufruf>
bool optionen_lesen(Aufruf& ziel, std::span<const std::string> worte, std::span<const Option<Aufruf>> optionen,
                    std::string& grund)
{
    for (std::size_t i = 0; i < worte.size(); ++i) {
        const std::string_view wort = worte[i];
        const auto option =
            std::find_if(optionen.begin(), optionen.end(), [&](const auto& o) { return wort.starts_with(o.anfang); });
        if (option == optionen.end()) {
            grund = verkettet("unbekannte Angabe ", wort);
            return false;
        }
        std::string_view rest = wort.substr(option->anfang.size());
        // "-SV 5": a satellite name that began with a blank stands as a word of its own.
        if (option->anfang == "-SV" && rest.empty() && i + 1 < worte.size()) rest = worte[++i];
        if (option->setzen(ziel, rest)) continue;
        grund = verkettet("fehlerhafte Angabe ", wort);
        return false;
    }
    return true;
}

bool stationen_lesen(Wav2Aufruf& ziel, std::string_view liste, std::string& grund)
{
    for (const std::string& station : liste_zerlegt(liste)) ziel.stationen.push_back(station.substr(0, 4));
    if (ziel.stationen.empty()) grund = "keine Referenzstation angegeben";
    return !ziel.stationen.empty();
}

}  // namespace

Worte liste_zerlegt(std::string_view liste)
{
    Worte teile;
    while (!liste.empty()) {
        const auto komma = std::min(liste.find(','), liste.size());
        if (komma > 0) teile.emplace_back(liste.substr(0, komma));
        liste.remove_prefix(std::min(komma + 1, liste.size()));
    }
    return teile;
}

std::optional<std::string> satellitenname(std::string_view wort)
{
    wort = trimmen(wort);
    char system = 'G';
    if (!wort.empty() && (wort.front() < '0' || wort.front() > '9')) {
        system = gross(wort.front());
        wort.remove_prefix(1);
    }
    int nummer = 0;
    const bool bekannt = std::string_view("GRECJS").find(system) != std::string_view::npos;
    if (!bekannt || !ganze_zahl(nummer, trimmen(wort), 1, 99)) return {};
    return verkettet(system, nummer < 10 ? "0" : "", nummer);
}

std::optional<Wav2Aufruf> wav2_aufruf(const Worte& worte, std::string& grund)
{
    Wav2Aufruf aufruf;
    if (worte.size() < 2) {
        grund = "wav2 ROVER STATION,STATION,... +PRO +E +A<Antennendatei> -e<Grad> +b<HHMMSS> +e<HHMMSS>";
        return {};
    }
    aufruf.rover = worte[0];
    aufruf.virt = verkettet("virt", mitte(aufruf.rover, 5, 3));
    if (!stationen_lesen(aufruf, worte[1], grund)) return {};
    const std::span rest = std::span(worte).subspan(2);
    if (!optionen_lesen<Wav2Aufruf>(aufruf, rest, WAV2_OPTIONEN, grund)) return {};
    return aufruf;
}

std::optional<Wa2Aufruf> wa2_aufruf(const Worte& worte, std::string& grund)
{
    Wa2Aufruf aufruf;
    if (worte.size() < 2) {
        grund =
            "wa2 BASIS ROVER +ACF<Antennendatei> +TL<Art> +R<s> -e<Grad> -M<min> -N<min> -SV<Satellit> +U<Zone> "
            "+E-<Felder> +FE<Datei> +FL<Datei> +FS<Datei>";
        return {};
    }
    aufruf.basis = worte[0];
    aufruf.rover = worte[1];
    const std::span rest = std::span(worte).subspan(2);
    if (!optionen_lesen<Wa2Aufruf>(aufruf, rest, WA2_OPTIONEN, grund)) return {};
    return aufruf;
}

std::optional<WasoftAufruf> wasoft_aufruf(const Worte& worte, std::string& grund)
{
    if (worte.size() < 3) {
        grund =
            "wasoft TAGSITZUNG STATION,STATION,... +V<Name>,<Rover> +A<Antennendatei> +C<Koordinatendatei> +b<HHMMSS> "
            "+e<HHMMSS> +k, wasoft BASIS ROVER +A<Antennendatei> +C<Koordinatendatei> -0 +R<s> -e<Grad>";
        return {};
    }
    const std::span rest = std::span(worte).subspan(2);
    if (std::any_of(rest.begin(), rest.end(), [](const std::string& wort) { return wort.starts_with("+V"); })) {
        Wav2Aufruf aufruf;
        if (!stationen_lesen(aufruf, worte[1], grund)) return {};
        if (!optionen_lesen<Wav2Aufruf>(aufruf, rest, WASOFT_VIRTUELL, grund)) return {};
        aufruf.virt += worte[0];
        aufruf.protokoll_datei = aufruf.virt + ".vrt";
        return aufruf;
    }
    Wa2Aufruf aufruf;
    aufruf.basis = worte[0];
    aufruf.rover = worte[1];
    if (!optionen_lesen<Wa2Aufruf>(aufruf, rest, WASOFT_BASISLINIE, grund)) return {};
    aufruf.ext_datei.clear();
    aufruf.protokoll_datei.clear();
    aufruf.loesung_datei = verkettet(stamm(aufruf.rover), ".prt");
    return aufruf;
}

}  // namespace jorv::suite
