#include "dos/befehle.h"

#include <unistd.h>

#include <cerrno>

#include "plattform/text.h"

namespace jorv::dos {

namespace {

struct Tabellenzeile {
    std::string_view wort;
    Befehl befehl;
};

constexpr Tabellenzeile tabelle[] = {
    {"cd", befehl_cd},         {"chdir", befehl_cd},    {"copy", befehl_copy}, {"del", befehl_del},
    {"echo", befehl_echo},     {"erase", befehl_del},   {"md", befehl_mkdir},  {"mkdir", befehl_mkdir},
    {"path", befehl_path},     {"pause", befehl_pause}, {"rd", befehl_rmdir},  {"ren", befehl_rename},
    {"rename", befehl_rename}, {"rmdir", befehl_rmdir}, {"type", befehl_type},
};

}  // namespace

Befehl interner_befehl(std::string_view wort)
{
    for (const auto& zeile : tabelle)
        if (zeile.wort == wort) return zeile.befehl;
    return nullptr;
}

bool bestaetigt(const Stroeme& stroeme, std::string_view frage)
{
    text_ausgeben(stroeme.aus, verkettet(frage, " (J/N)? "));
    std::string antwort;
    for (char byte = 0; byte != '\n';) {
        const ssize_t n = ::read(stroeme.ein, &byte, 1);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        antwort += byte;
    }
    text_ausgeben(stroeme.aus, "\r\n");
    const auto wort = trimmen(antwort);
    return !wort.empty() && gross(wort.front()) == 'J';
}

}  // namespace jorv::dos
