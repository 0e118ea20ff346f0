#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "plattform/laufwerke.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

bool gibt_es(const std::string& pfad)
{
    struct stat zustand {};
    return ::lstat(pfad.empty() ? "." : pfad.c_str(), &zustand) == 0;
}

std::string verbunden(std::string ordner, std::string_view name_1252)
{
    if (!ordner.empty() && ordner.back() != '/') ordner += '/';
    return ordner += utf8_aus_1252(name_1252);
}

std::string_view ohne_schluss(std::string_view name)
{
    if (name == "." || name == "..") return name;
    while (!name.empty() && (name.back() == '.' || name.back() == ' ')) name.remove_suffix(1);
    return name;
}

std::string_view ohne_schluss_strich(std::string_view pfad)
{
    while (!pfad.empty() && pfad.back() == '\\') pfad.remove_suffix(1);
    return pfad;
}

std::string_view wort_nehmen(std::string_view& rest)
{
    const auto ende = rest.find_first_of("\\/");
    const auto wort = rest.substr(0, ende);
    rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    return wort;
}

using Ordner = std::unique_ptr<DIR, int (*)(DIR*)>;

Ordner ordner_oeffnen(const std::string& ordner)
{
    return {::opendir(ordner.empty() ? "." : ordner.c_str()), ::closedir};
}

// The entry of a folder that equals the name without regard to case, the first in order; empty when there is none. Most
// entries are dismissed by their first letter, before anything is converted.
std::string aehnlicher(const std::string& ordner, std::string_view name)
{
    std::string bester;
    if (name.empty()) return bester;
    const Ordner offen = ordner_oeffnen(ordner);
    const char erstes = klein(name.front());
    for (const dirent* e = offen ? ::readdir(offen.get()) : nullptr; e; e = ::readdir(offen.get())) {
        const std::string_view utf8 = e->d_name;
        const bool ascii = static_cast<unsigned char>(utf8.front()) < 0x80;
        if (utf8.size() < name.size() || (ascii && klein(utf8.front()) != erstes)) continue;
        const auto text = text_aus_utf8(utf8);
        if (text && gleich_ohne_gross(*text, name) && (bester.empty() || utf8 < bester)) bester = utf8;
    }
    return bester;
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
    const std::string name(ohne_schluss_strich(dos_wurzel));
    m_tabelle.push_back({klein(name), std::move(host_ordner), ist_unc(name) ? klein(name) : gross(name)});
}

void Laufwerke::vertreten(std::string_view dos_ordner, fs::path host_ordner)
{
    const std::string name(ohne_schluss_strich(dos_ordner));
    m_tabelle.push_back({klein(name), std::move(host_ordner), name, false});
}

// The longest entry of the table that begins the path.
const Laufwerke::Zuordnung* Laufwerke::laengste(std::string_view dos_pfad) const
{
    const Zuordnung* beste = nullptr;
    if (m_tabelle.empty()) return beste;
    const std::string kleiner = klein(dos_pfad);
    for (const auto& z : m_tabelle) {
        const bool passt = kleiner.starts_with(z.dos) &&
                           (kleiner.size() == z.dos.size() || kleiner[z.dos.size()] == '\\' || z.dos.ends_with(':'));
        if (passt && (!beste || z.dos.size() > beste->dos.size())) beste = &z;
    }
    return beste;
}

bool Laufwerke::hat_laufwerk(std::string_view laufwerk) const
{
    const std::string name = klein(links(laufwerk, 2));
    return name == "z:" ||
           std::any_of(m_tabelle.begin(), m_tabelle.end(), [&](const auto& z) { return z.dos == name; });
}

std::vector<std::string> Laufwerke::alle() const
{
    std::vector<std::string> namen = {"Z:"};
    for (const auto& z : m_tabelle)
        if (z.wurzel) namen.push_back(z.name);
    std::sort(namen.begin(), namen.end(),
              [](const auto& a, const auto& b) { return ist_unc(a) != ist_unc(b) ? ist_unc(b) : a < b; });
    namen.erase(std::unique(namen.begin(), namen.end()), namen.end());
    return namen;
}

std::optional<fs::path> Laufwerke::eintrag(const fs::path& ordner, std::string_view name)
{
    const std::string genau = verbunden(ordner.native(), name);
    if (gibt_es(genau)) return genau;
    const std::string anderer = aehnlicher(ordner.native(), name);
    if (anderer.empty()) return std::nullopt;
    return ordner / anderer;
}

std::vector<Laufwerke::Inhalt> Laufwerke::inhalt(const fs::path& ordner)
{
    std::vector<Inhalt> liste;
    const Ordner offen = ordner_oeffnen(ordner.native());
    for (const dirent* e = offen ? ::readdir(offen.get()) : nullptr; e; e = ::readdir(offen.get())) {
        const std::string_view name = e->d_name;
        if (name == "." || name == "..") continue;
        bool ist_ordner = e->d_type == DT_DIR;
        if (e->d_type == DT_LNK || e->d_type == DT_UNKNOWN) {
            struct stat zustand {};
            ist_ordner = ::fstatat(::dirfd(offen.get()), e->d_name, &zustand, 0) == 0 && S_ISDIR(zustand.st_mode);
        }
        liste.push_back({std::string(name), ist_ordner});
    }
    return liste;
}

std::optional<fs::path> Laufwerke::host(std::string_view dos_pfad) const
{
    // To the system a NUL ends the name: what stands behind it would be lost, and with it the folder that was meant.
    if (dos_pfad.find('\0') != std::string_view::npos) return std::nullopt;
    fs::path pfad;
    std::string_view rest = dos_pfad;
    if (const Zuordnung* zuordnung = laengste(rest)) {
        pfad = zuordnung->host;
        rest.remove_prefix(zuordnung->dos.size());
    } else if (ist_unc(rest)) {
        return std::nullopt;
    } else if (ist_dos_pfad(rest)) {
        if (klein(links(rest, 2)) != "z:") return std::nullopt;
        pfad = "/";
        rest.remove_prefix(2);
    } else if (!rest.empty() && (rest.front() == '\\' || rest.front() == '/')) {
        pfad = "/";
    }
    // The usual case: every name stands on the disk as it is written, or only the last one is new.
    std::string genau = pfad.native(), ordner;
    std::string_view letztes;
    for (std::string_view r = rest; !r.empty();) {
        const auto wort = wort_nehmen(r);
        if (wort.empty()) continue;
        ordner = genau;
        letztes = wort;
        genau = verbunden(std::move(genau), wort);
    }
    if (gibt_es(genau)) return genau;
    const bool nur_letztes = ohne_schluss(letztes) == letztes && gibt_es(ordner);
    if (nur_letztes) {
        const std::string anderer = aehnlicher(ordner, letztes);
        return anderer.empty() ? fs::path(std::move(genau)) : fs::path(std::move(ordner)) / anderer;
    }
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
            beginn = z.name;
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
