#include "konsole/Aufruf.h"

#include <algorithm>
#include <filesystem>

#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

// Words and options apart; options of the command are checked when the command is known.
struct Zerlegung {
    std::vector<std::string> worte;
    std::vector<std::pair<std::string, std::optional<std::string>>> optionen;  // value only with "--name=wert"
    std::vector<std::size_t> stelle;                                           // words in front of that option
};

Zerlegung zerlegen(std::span<const std::string> worte)
{
    Zerlegung z;
    bool nur_worte = false;
    for (const auto& wort : worte) {
        if (nur_worte || !wort.starts_with("--")) {
            z.worte.push_back(wort);
        } else if (wort == "--") {
            nur_worte = true;
        } else {
            const auto gleich = wort.find('=');
            z.optionen.emplace_back(wort.substr(0, gleich), gleich == std::string::npos
                                                                ? std::nullopt
                                                                : std::optional(wort.substr(gleich + 1)));
            z.stelle.push_back(z.worte.size());
        }
    }
    return z;
}

constexpr std::string_view programm_optionen[] = {"--einstellungen=", "--ja", "--nein", "--json"};

// Whether the option is known, and whether it takes a value.
std::optional<bool> mit_wert(std::string_view name, std::span<const std::string_view> bekannte)
{
    for (const auto bekannt : bekannte) {
        if (bekannt == name) return false;
        if (bekannt.ends_with('=') && bekannt.substr(0, bekannt.size() - 1) == name) return true;
    }
    return std::nullopt;
}

// Values that follow their option as a word of their own go from the words to the option. Later places first, so that
// the earlier ones stay right.
std::string werte_zuordnen(Zerlegung& z, std::span<const std::string_view> bekannte)
{
    for (std::size_t i = z.optionen.size(); i-- > 0;) {
        auto& [name, wert] = z.optionen[i];
        const auto art = mit_wert(name, bekannte);
        if (!art) continue;
        if (!*art && wert) return "Die Option " + name + " hat keinen Wert.";
        if (!*art || wert) continue;
        if (z.stelle[i] >= z.worte.size()) return "Der Option " + name + " fehlt ihr Wert.";
        const auto ort = z.worte.begin() + static_cast<std::ptrdiff_t>(z.stelle[i]);
        wert = *ort;
        z.worte.erase(ort);
        for (std::size_t k = i + 1; k < z.stelle.size(); ++k) --z.stelle[k];
    }
    return {};
}

void programm_optionen_setzen(const Zerlegung& z, Aufruf& aufruf)
{
    for (const auto& [name, wert] : z.optionen) {
        if (name == "--einstellungen") aufruf.einstellungen = *wert;
        if (name == "--ja") aufruf.antwort = Antwort::ja;
        if (name == "--nein") aufruf.antwort = Antwort::nein;
        if (name == "--json") aufruf.json = true;
    }
}

// The longest command name that the words begin with.
const Befehl* befehl_finden(const std::vector<std::string>& worte, std::span<const Befehl* const> befehle)
{
    const auto passt = [&](std::string_view name) {
        const auto luecke = name.find(' ');
        if (luecke == std::string_view::npos) return worte[0] == name;
        return worte.size() > 1 && worte[0] == name.substr(0, luecke) && worte[1] == name.substr(luecke + 1);
    };
    for (const Befehl* befehl : befehle)
        if (passt(befehl->name)) return befehl;
    return nullptr;
}

std::string befehl_zuordnen(Zerlegung& z, std::span<const Befehl* const> befehle, Aufruf& aufruf)
{
    if (z.worte.empty()) return "Es fehlt der Befehl.";
    aufruf.befehl = befehl_finden(z.worte, befehle);
    if (!aufruf.befehl) return "Den Befehl " + z.worte[0] + (z.worte.size() > 1 ? " ..." : "") + " gibt es nicht.";
    if (auto fehler = werte_zuordnen(z, aufruf.befehl->optionen); !fehler.empty()) return fehler;
    for (const auto& [name, wert] : z.optionen) {
        if (mit_wert(name, programm_optionen)) continue;
        if (!mit_wert(name, aufruf.befehl->optionen)) return "Die Option " + name + " gibt es hier nicht.";
        aufruf.option[name] = wert.value_or("");
    }
    const auto teile = 1 + std::ranges::count(aufruf.befehl->name, ' ');
    aufruf.worte.assign(z.worte.begin() + teile, z.worte.end());
    const int anzahl = static_cast<int>(aufruf.worte.size());
    if (anzahl < aufruf.befehl->mindestens) return "Der Befehl braucht mehr Angaben.";
    if (anzahl > aufruf.befehl->hoechstens) return "Der Befehl hat zu viele Angaben.";
    return {};
}

}  // namespace

Aufrufergebnis aufruf_lesen(std::span<const std::string> worte, std::span<const Befehl* const> befehle)
{
    Aufrufergebnis ergebnis;
    Zerlegung z = zerlegen(worte);
    ergebnis.fehler = werte_zuordnen(z, programm_optionen);
    if (!ergebnis.fehler.empty()) return ergebnis;
    programm_optionen_setzen(z, ergebnis.aufruf);
    ergebnis.fehler = befehl_zuordnen(z, befehle, ergebnis.aufruf);
    return ergebnis;
}

std::optional<std::string> pfad_aus_wort(const Laufwerke& laufwerke, std::string_view utf8)
{
    auto text = text_aus_utf8(utf8);
    if (!text || text->empty()) return std::nullopt;
    if (ist_dos_pfad(*text)) {
        auto dos = ersetzt(*text, '/', '\\');
        while (dos.size() > 3 && dos.ends_with('\\')) dos.pop_back();
        if (!laufwerke.host(dos) || (!ist_unc(dos) && !laufwerke.hat_laufwerk(dos))) return std::nullopt;
        return dos;
    }
    std::error_code fehler;
    const auto als_pfad = [](const std::string& wort) {
        return fs::path(reinterpret_cast<const char8_t*>(wort.c_str()));
    };
    fs::path host = als_pfad(std::string(utf8));
    if (!fs::exists(host, fehler)) host = als_pfad(ersetzt(std::string(utf8), '\\', '/'));
    host = fs::absolute(host, fehler).lexically_normal();
    if (!host.has_filename()) host = host.parent_path();
    return laufwerke.dos(host);
}

std::optional<std::string> nummer_aus_wort(std::string_view wort)
{
    const auto nummer = ganz_streng(wort);
    if (!nummer || *nummer < 1 || *nummer > 999) return std::nullopt;
    return zahl_format_fuell(*nummer, "000", "0");
}

}  // namespace jorv
