#include <algorithm>
#include <cstdlib>

#include "plattform/laufwerke.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

bool gibt_es(const fs::path& pfad)
{
    std::error_code fehler;
    return fs::symlink_status(pfad, fehler).type() != fs::file_type::not_found && !fehler;
}

std::string_view ohne_schluss(std::string_view name)
{
    if (name == "." || name == "..") return name;
    while (!name.empty() && (name.back() == '.' || name.back() == ' ')) name.remove_suffix(1);
    return name;
}

std::string_view wort_nehmen(std::string_view& rest)
{
    const auto ende = rest.find_first_of("\\/");
    const auto wort = rest.substr(0, ende);
    rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    return wort;
}

}  // namespace

Laufwerke Laufwerke::aus_umgebung()
{
    Laufwerke laufwerke;
    const char* tabelle = std::getenv("JORV_LAUFWERKE");
    for (std::string_view rest = tabelle ? tabelle : ""; !rest.empty();) {
        const auto ende = rest.find(';');
        const auto zeile = rest.substr(0, ende);
        rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
        const auto gleich = zeile.find('=');
        if (gleich == std::string_view::npos) continue;
        laufwerke.zuordnen(text_aus_utf8_mit_ersatz(zeile.substr(0, gleich)), fs::path(zeile.substr(gleich + 1)));
    }
    return laufwerke;
}

void Laufwerke::zuordnen(std::string_view dos_wurzel, fs::path host_ordner)
{
    while (!dos_wurzel.empty() && dos_wurzel.back() == '\\') dos_wurzel.remove_suffix(1);
    m_tabelle.push_back({klein(dos_wurzel), std::move(host_ordner)});
}

bool Laufwerke::hat_laufwerk(std::string_view laufwerk) const
{
    const std::string name = klein(links(laufwerk, 2));
    return name == "z:" ||
           std::any_of(m_tabelle.begin(), m_tabelle.end(), [&](const auto& z) { return z.dos == name; });
}

std::optional<fs::path> Laufwerke::eintrag(const fs::path& ordner, std::string_view name)
{
    const auto genau = ordner / utf8_aus_1252(name);
    if (gibt_es(genau)) return genau;
    std::optional<std::string> bester;
    std::error_code fehler;
    for (fs::directory_iterator lauf(ordner.empty() ? "." : ordner, fehler), ende; !fehler && lauf != ende;
         lauf.increment(fehler)) {
        const std::string utf8 = lauf->path().filename().string();
        const auto text = text_aus_utf8(utf8);
        if (text && gleich_ohne_gross(*text, name) && (!bester || utf8 < *bester)) bester = utf8;
    }
    if (!bester) return std::nullopt;
    return ordner / *bester;
}

std::optional<fs::path> Laufwerke::host(std::string_view dos_pfad) const
{
    fs::path pfad;
    std::string_view rest = dos_pfad;
    if (ist_unc(rest)) {
        // The longest share of the table that begins the path.
        const Zuordnung* beste = nullptr;
        const std::string kleiner = klein(rest);
        for (const auto& z : m_tabelle) {
            const bool passt =
                kleiner.starts_with(z.dos) && (kleiner.size() == z.dos.size() || kleiner[z.dos.size()] == '\\');
            if (passt && (!beste || z.dos.size() > beste->dos.size())) beste = &z;
        }
        if (!beste) return std::nullopt;
        pfad = beste->host;
        rest.remove_prefix(beste->dos.size());
    } else if (ist_dos_pfad(rest)) {
        const std::string laufwerk = klein(links(rest, 2));
        const auto fund =
            std::find_if(m_tabelle.begin(), m_tabelle.end(), [&](const auto& z) { return z.dos == laufwerk; });
        if (fund != m_tabelle.end()) {
            pfad = fund->host;
        } else if (laufwerk == "z:") {
            pfad = "/";
        } else {
            return std::nullopt;
        }
        rest.remove_prefix(2);
    } else if (!rest.empty() && (rest.front() == '\\' || rest.front() == '/')) {
        pfad = "/";
    }
    // The usual case: every name stands on the disk as it is written.
    fs::path genau = pfad;
    for (std::string_view r = rest; !r.empty();)
        if (const auto wort = wort_nehmen(r); !wort.empty()) genau /= utf8_aus_1252(wort);
    if (gibt_es(genau)) return genau;
    while (!rest.empty()) {
        const auto wort = wort_nehmen(rest);
        if (wort.empty()) continue;
        auto fund = eintrag(pfad, wort);
        if (!fund && ohne_schluss(wort) != wort) fund = eintrag(pfad, ohne_schluss(wort));
        pfad = fund ? *fund : pfad / utf8_aus_1252(ohne_schluss(wort));
    }
    return pfad;
}

std::optional<std::string> Laufwerke::dos(const fs::path& host_pfad) const
{
    std::error_code fehler;
    const fs::path voll = fs::absolute(host_pfad, fehler).lexically_normal();
    if (fehler) return std::nullopt;
    std::string beginn = "Z:";
    fs::path wurzel = "/";
    std::size_t laenge = 0;
    for (const auto& z : m_tabelle) {
        const fs::path ordner = z.host.lexically_normal();
        const auto [a, b] = std::mismatch(ordner.begin(), ordner.end(), voll.begin(), voll.end());
        const bool passt = a == ordner.end() || (std::next(a) == ordner.end() && a->empty());
        if (passt && ordner.native().size() > laenge) {
            beginn = ist_unc(z.dos) ? z.dos : gross(z.dos);
            wurzel = ordner;
            laenge = ordner.native().size();
        }
    }
    std::string dos = beginn;
    for (const auto& teil : voll.lexically_relative(wurzel)) {
        if (teil.empty() || teil == ".") continue;
        const auto text = text_aus_utf8(teil.string());
        if (!text || text->find('\\') != std::string::npos) return std::nullopt;
        dos += '\\';
        dos += *text;
    }
    if (dos.size() == 2) dos += '\\';
    return dos;
}

}  // namespace jorv
