#include "dos/umlenkung.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos {

namespace fs = std::filesystem;

namespace {

// Only a regular file is opened: a pipe would wait for its other end, a device is none of the batch's files.
bool erlaubt(const fs::path& ort, bool schreiben)
{
    std::error_code fehler;
    const auto zustand = fs::status(ort, fehler);
    if (!fs::exists(zustand)) return true;
    if (!fs::is_regular_file(zustand)) return false;
    return !schreiben || (zustand.permissions() & fs::perms::owner_write) != fs::perms::none;
}

bool ist_nul(std::string_view name)
{
    return gleich_ohne_gross(pfad_name(name), "nul");
}

constexpr int oeffnungsart(Umlenkungsart art)
{
    return art == Umlenkungsart::lesen    ? O_RDONLY
           : art == Umlenkungsart::leeren ? O_WRONLY | O_CREAT | O_TRUNC
                                          : O_WRONLY | O_CREAT | O_APPEND;
}

}  // namespace

Umlenkung::~Umlenkung()
{
    for (const int nummer : m_offen) ::close(nummer);
}

int Umlenkung::datei_oeffnen(const Umfeld& umfeld, const Umlenkungsangabe& angabe)
{
    if (angabe.ziel.empty()) return -1;
    const auto host = umfeld.dateien.laufwerke().host(umfeld.voll(angabe.ziel));
    const fs::path ort = ist_nul(angabe.ziel) ? fs::path("/dev/null") : host.value_or(fs::path{});
    if (ort.empty() || (!ist_nul(angabe.ziel) && !erlaubt(ort, angabe.art != Umlenkungsart::lesen))) return -1;
    int nummer = -1;
    do nummer = ::open(ort.c_str(), oeffnungsart(angabe.art) | O_CLOEXEC | O_NOCTTY, 0666);
    while (nummer < 0 && errno == EINTR);
    return nummer;
}

bool Umlenkung::oeffnen(const Umfeld& umfeld, const std::vector<Umlenkungsangabe>& angaben)
{
    const auto strom = [this](int nummer) -> int* {
        return nummer == 0 ? &m_stroeme.ein : nummer == 1 ? &m_stroeme.aus : nummer == 2 ? &m_stroeme.fehler : nullptr;
    };
    for (const auto& angabe : angaben) {
        int* ziel = strom(angabe.strom);
        int neu = -1;
        if (angabe.art == Umlenkungsart::verdoppeln) {
            const int* quelle = strom(angabe.ziel.front() - '0');
            neu = quelle ? *quelle : -1;
        } else {
            neu = datei_oeffnen(umfeld, angabe);
            if (neu >= 0) m_offen.push_back(neu);
        }
        if (neu < 0) return melden(umfeld.stroeme, u8"Umlenkung nicht möglich"_w, angabe.ziel);
        if (ziel) *ziel = neu;
    }
    return true;
}

}  // namespace jorv::dos
