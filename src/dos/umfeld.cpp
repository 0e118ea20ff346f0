#include "dos/umfeld.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "plattform/codepage_850.h"
#include "plattform/text.h"

extern char** environ;

namespace jorv::dos {

namespace fs = std::filesystem;

namespace {

std::optional<std::string_view> wert_in(const std::vector<std::string>& umgebung, std::string_view name_utf8)
{
    for (const std::string_view zeile : umgebung) {
        const auto gleich = zeile.find('=');
        if (gleich != std::string_view::npos && gleich_ohne_gross(zeile.substr(0, gleich), name_utf8))
            return zeile.substr(gleich + 1);
    }
    return std::nullopt;
}

}  // namespace

std::string Umfeld::variable(std::string_view name) const
{
    if (gleich_ohne_gross(name, "path")) return suchpfad;
    if (gleich_ohne_gross(name, "cd")) return verzeichnisse.aktuell();
    if (gleich_ohne_gross(name, "errorlevel")) return verkettet(errorlevel);
    return text_aus_utf8_mit_ersatz(wert_in(umgebung, utf8_aus_1252(name)).value_or(""));
}

std::optional<Umfeld> umfeld_des_prozesses(Laufwerke laufwerke)
{
    Dateisystem dateien(std::move(laufwerke));
    std::error_code fehler;
    const fs::path hier = fs::current_path(fehler);
    const auto start = fehler ? std::nullopt : dateien.laufwerke().dos(hier);
    if (!start) return std::nullopt;
    std::vector<std::string> umgebung;
    for (char** zeile = environ; zeile && *zeile; ++zeile) umgebung.emplace_back(*zeile);
    std::string suchpfad = suchpfad_aus_host(dateien.laufwerke(), wert_in(umgebung, "PATH").value_or(""));
    return Umfeld{std::move(dateien), Verzeichnisse(*start), std::move(suchpfad), std::move(umgebung), {}};
}

std::string suchpfad_aus_host(const Laufwerke& laufwerke, std::string_view host_liste)
{
    std::string liste;
    while (!host_liste.empty()) {
        const auto ende = host_liste.find(':');
        const auto eintrag = host_liste.substr(0, ende);
        host_liste.remove_prefix(ende == std::string_view::npos ? host_liste.size() : ende + 1);
        if (eintrag.empty()) continue;
        const auto dos = laufwerke.dos(fs::path(eintrag));
        if (!dos || dos->find('"') != std::string::npos) continue;
        if (!liste.empty()) liste += ';';
        // Quotes keep these signs from cutting the line that the list is put into.
        liste += dos->find_first_of(";&|<>^") == std::string::npos ? *dos : verkettet('"', *dos, '"');
    }
    return liste;
}

std::vector<std::string> suchpfad_ordner(std::string_view dos_liste)
{
    std::vector<std::string> ordner;
    std::string eintrag;
    bool in_quotes = false;
    const auto ablegen = [&] {
        if (const auto text = trimmen(eintrag); !text.empty()) ordner.emplace_back(text);
        eintrag.clear();
    };
    for (const char zeichen : dos_liste) {
        if (zeichen == '"')
            in_quotes = !in_quotes;
        else if (zeichen == ';' && !in_quotes)
            ablegen();
        else
            eintrag += zeichen;
    }
    ablegen();
    return ordner;
}

std::string suchpfad_nach_host(const Umfeld& umfeld)
{
    std::string liste;
    for (const auto& eintrag : suchpfad_ordner(umfeld.suchpfad)) {
        const auto host = umfeld.dateien.laufwerke().host(umfeld.voll(eintrag));
        if (!host || host->string().find(':') != std::string::npos) continue;
        if (!liste.empty()) liste += ':';
        liste += host->string();
    }
    return liste;
}

bool ausgeben(int strom, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = ::write(strom, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

bool text_ausgeben(int strom, std::string_view text)
{
    return ausgeben(strom, ::isatty(strom) ? utf8_aus_1252(text) : nach_850(text));
}

bool melden(const Stroeme& stroeme, std::string_view text, std::string_view name)
{
    text_ausgeben(stroeme.fehler, name.empty() ? verkettet(text, "\r\n") : verkettet(text, ": ", name, "\r\n"));
    return false;
}

}  // namespace jorv::dos
