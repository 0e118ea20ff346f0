#include "plattform/umgebung.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <string_view>

namespace jorv {

namespace fs = std::filesystem;

namespace {

std::string umgebung(const char* name)
{
    const char* wert = std::getenv(name);
    return wert ? wert : "";
}

}  // namespace

std::vector<std::string> programmworte(int anzahl, const char* const* werte)
{
    return {werte + (anzahl > 0 ? 1 : 0), werte + anzahl};
}

fs::path umgebungsordner(const char* name)
{
    return umgebung(name);
}

long prozess_kennung()
{
    return ::getpid();
}

bool prozess_lebt(long kennung)
{
    if (kennung <= 0) return false;
    return ::kill(static_cast<pid_t>(kennung), 0) == 0 || errno == EPERM;
}

fs::path programm_ordner()
{
    std::error_code fehler;
    return fs::read_symlink("/proc/self/exe", fehler).parent_path();
}

fs::path dokumente_ordner()
{
    const fs::path heim = umgebung("HOME").empty() ? fs::path("/") : fs::path(umgebung("HOME"));
    std::string ziel = umgebung("XDG_DOCUMENTS_DIR");
    if (ziel.empty()) {
        const std::string ort = umgebung("XDG_CONFIG_HOME");
        std::ifstream datei((ort.empty() ? heim / ".config" : fs::path(ort)) / "user-dirs.dirs");
        constexpr std::string_view schluessel = "XDG_DOCUMENTS_DIR=\"";
        for (std::string zeile; std::getline(datei, zeile);)
            if (zeile.starts_with(schluessel))
                ziel = zeile.substr(schluessel.size(), zeile.rfind('"') - schluessel.size());
    }
    if (ziel.starts_with("$HOME")) return heim / fs::path(ziel.substr(5)).relative_path();
    if (ziel.starts_with("/")) return ziel;
    std::error_code fehler;
    return fs::is_directory(heim / "Dokumente", fehler) ? heim / "Dokumente" : heim / "Documents";
}

fs::path system_ordner()
{
    return "/etc/jorvplus";
}

fs::path programm_finden(const std::string& name)
{
    std::string orte = programm_ordner().string() + ":" + umgebung("PATH");
    for (std::string_view rest = orte; !rest.empty();) {
        const auto ende = rest.find(':');
        const fs::path versuch = fs::path(rest.substr(0, ende)) / name;
        rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
        if (::access(versuch.c_str(), X_OK) == 0) return versuch;
    }
    return {};
}

fs::path zwischenordner(std::uintmax_t bytes)
{
    constexpr const char* speicher = "/dev/shm";
    constexpr std::uintmax_t hoechstens = 256 << 20;
    std::error_code fehler;
    const bool hier = umgebung("TMPDIR").empty() && bytes <= hoechstens && ::access(speicher, W_OK | X_OK) == 0 &&
                      fs::space(speicher, fehler).available >= 2 * bytes && !fehler;
    return hier ? fs::path(speicher) : fs::temp_directory_path(fehler);
}

}  // namespace jorv
