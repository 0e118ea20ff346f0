#include "dos/zeile.h"

#include <algorithm>

#include "plattform/text.h"

namespace jorv::dos {

namespace {

constexpr bool ist_ziffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

constexpr bool ist_blank(char zeichen)
{
    return zeichen == ' ' || zeichen == '\t';
}

// Signs with a meaning of their own outside quotes.
constexpr bool ist_zeichen_der_zeile(char zeichen)
{
    return zeichen == '<' || zeichen == '>' || zeichen == '|' || zeichen == '&';
}

// The stream that a digit directly before the sign picks; the digit is taken off the text.
int strom_vor_zeichen(std::string& text, int sonst)
{
    const std::size_t n = text.size();
    if (n == 0 || !ist_ziffer(text[n - 1]) || (n > 1 && !ist_trenner(text[n - 2]))) return sonst;
    const int strom = text[n - 1] - '0';
    text.pop_back();
    return strom;
}

Umlenkungsangabe umlenkung_nehmen(std::string_view& rest, std::string& text)
{
    Umlenkungsangabe angabe;
    const bool lesen = rest.front() == '<';
    angabe.strom = strom_vor_zeichen(text, lesen ? 0 : 1);
    rest.remove_prefix(1);
    angabe.art = lesen ? Umlenkungsart::lesen : Umlenkungsart::leeren;
    if (!lesen && rest.starts_with('>')) {
        angabe.art = Umlenkungsart::anhaengen;
        rest.remove_prefix(1);
    }
    if (rest.size() >= 2 && rest[0] == '&' && ist_ziffer(rest[1])) {
        angabe.art = Umlenkungsart::verdoppeln;
        angabe.ziel.assign(1, rest[1]);
        rest.remove_prefix(2);
    } else {
        angabe.ziel = wort_nehmen(rest);
    }
    return angabe;
}

Verknuepfung verknuepfung_nehmen(std::string_view& rest)
{
    const char zeichen = rest.front();
    rest.remove_prefix(1);
    const bool doppelt = rest.starts_with(zeichen);
    if (doppelt) rest.remove_prefix(1);
    if (zeichen == '&') return doppelt ? Verknuepfung::bei_erfolg : Verknuepfung::immer;
    return doppelt ? Verknuepfung::bei_fehler : Verknuepfung::rohr;
}

std::string alle_argumente(const std::vector<std::string>& argumente)
{
    std::string text;
    for (std::size_t i = 1; i < argumente.size(); ++i) {
        if (i > 1) text += ' ';
        text += argumente[i];
    }
    return text;
}

}  // namespace

std::string_view ohne_trenner(std::string_view text)
{
    while (!text.empty() && ist_trenner(text.front())) text.remove_prefix(1);
    return text;
}

std::string_view ohne_blanks(std::string_view text)
{
    while (!text.empty() && ist_blank(text.front())) text.remove_prefix(1);
    return text;
}

std::string ausdehnen(std::string_view zeile, const std::function<std::string(std::string_view)>& variable,
                      const std::vector<std::string>& argumente)
{
    std::string neu;
    for (std::size_t i = 0; i < zeile.size(); ++i) {
        if (zeile[i] != '%') {
            neu += zeile[i];
            continue;
        }
        const char folgt = i + 1 < zeile.size() ? zeile[i + 1] : '\0';
        if (folgt == '%') {
            neu += '%';
            ++i;
        } else if (ist_ziffer(folgt)) {
            const auto nummer = static_cast<std::size_t>(folgt - '0');
            if (nummer < argumente.size()) neu += argumente[nummer];
            ++i;
        } else if (folgt == '*') {
            neu += alle_argumente(argumente);
            ++i;
        } else if (const auto ende = zeile.find('%', i + 1); ende != std::string_view::npos) {
            neu += variable(zeile.substr(i + 1, ende - i - 1));
            i = ende;
        }
    }
    return neu;
}

Befehlstext befehl_nehmen(std::string_view& rest)
{
    Befehlstext befehl;
    bool in_quotes = false;
    while (!rest.empty()) {
        const char zeichen = rest.front();
        if (!in_quotes && (zeichen == '<' || zeichen == '>')) {
            befehl.umlenkungen.push_back(umlenkung_nehmen(rest, befehl.text));
            continue;
        }
        if (!in_quotes && (zeichen == '&' || zeichen == '|')) {
            befehl.danach = verknuepfung_nehmen(rest);
            break;
        }
        rest.remove_prefix(1);
        if (!in_quotes && zeichen == '^') {
            if (rest.empty()) break;
            befehl.text += rest.front();
            rest.remove_prefix(1);
            continue;
        }
        if (zeichen == '"') in_quotes = !in_quotes;
        befehl.text += zeichen;
    }
    befehl.text.erase(0, befehl.text.size() - ohne_trenner(befehl.text).size());
    return befehl;
}

std::string befehlswort(std::string_view text)
{
    const auto ende = std::find_if(text.begin(), text.end(), [](char z) {
        return ist_trenner(z) || ist_zeichen_der_zeile(z) || z == '.' || z == '\\' || z == '/' || z == ':';
    });
    return klein(std::string_view(text.begin(), ende));
}

std::string wort_nehmen(std::string_view& rest)
{
    rest = ohne_trenner(rest);
    std::string wort;
    bool in_quotes = false;
    while (!rest.empty()) {
        const char zeichen = rest.front();
        if (!in_quotes && (ist_trenner(zeichen) || ist_zeichen_der_zeile(zeichen))) break;
        rest.remove_prefix(1);
        if (zeichen == '"')
            in_quotes = !in_quotes;
        else
            wort += zeichen;
    }
    return wort;
}

std::optional<Bedingung> bedingung_nehmen(std::string_view& rest)
{
    Bedingung bedingung;
    std::string wort = klein(wort_nehmen(rest));
    if (wort == "not") {
        bedingung.nicht = true;
        wort = klein(wort_nehmen(rest));
    }
    if (wort != "exist") return std::nullopt;
    bedingung.name = wort_nehmen(rest);
    if (bedingung.name.empty()) return std::nullopt;
    return bedingung;
}

bool Parameter::hat(std::string_view name) const
{
    return std::find(schalter.begin(), schalter.end(), name) != schalter.end();
}

Parameter parameter(std::string_view text)
{
    Parameter ergebnis;
    std::string wort;
    bool in_quotes = false, schalter = false, offen = false;
    const auto ablegen = [&] {
        if (schalter)
            ergebnis.schalter.push_back(klein(wort));
        else if (offen)
            ergebnis.namen.push_back(wort);
        wort.clear();
        schalter = offen = false;
    };
    for (const char zeichen : text) {
        if (zeichen == '"') {
            in_quotes = !in_quotes;
            offen = true;
        } else if (!in_quotes && (ist_trenner(zeichen) || zeichen == '/')) {
            ablegen();
            schalter = zeichen == '/';
        } else {
            wort += zeichen;
            offen = true;
        }
    }
    ablegen();
    std::erase(ergebnis.namen, std::string{});
    return ergebnis;
}

std::vector<std::string> argumente(std::string_view text)
{
    std::vector<std::string> liste;
    std::string wort;
    bool in_quotes = false, offen = false;
    for (const char zeichen : text) {
        if (zeichen == '"') {
            in_quotes = !in_quotes;
            offen = true;
        } else if (!in_quotes && ist_blank(zeichen)) {
            if (offen) liste.push_back(wort);
            wort.clear();
            offen = false;
        } else {
            wort += zeichen;
            offen = true;
        }
    }
    if (offen) liste.push_back(wort);
    return liste;
}

std::optional<std::string> marke(std::string_view zeile)
{
    zeile = ohne_blanks(zeile);
    if (!zeile.starts_with(':')) return std::nullopt;
    zeile.remove_prefix(1);
    return klein(zeile.substr(0, zeile.find_first_of(" \t:,;=+")));
}

}  // namespace jorv::dos
