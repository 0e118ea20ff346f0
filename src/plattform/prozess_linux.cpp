#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>

#include "plattform/pfad.h"
#include "plattform/prozess.h"
#include "plattform/prozess_linux.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

using Millisekunden = std::chrono::milliseconds;

constexpr off_t groesste_ausgabe = 64 << 20;  // a child that writes without end must not fill the memory

off_t ausgabe_laenge(int ausgabe)
{
    struct stat zustand {};
    return ::fstat(ausgabe, &zustand) == 0 ? zustand.st_size : 0;
}

std::string ausgabe_anfang(int ausgabe)
{
    constexpr off_t hoechstens = 1 << 20;
    std::string text(static_cast<std::size_t>(std::min(ausgabe_laenge(ausgabe), hoechstens)), '\0');
    const ssize_t n = ::pread(ausgabe, text.data(), text.size(), 0);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
    return text;
}

// At most a second, so that what the child writes is looked at now and then.
Millisekunden rest_bis(std::chrono::steady_clock::time_point schluss)
{
    const auto rest = std::chrono::ceil<Millisekunden>(schluss - std::chrono::steady_clock::now());
    return std::clamp(rest, Millisekunden(0), Millisekunden(1000));
}

}  // namespace

bool prozess_warten(const Dateisystem& dateien, std::string_view kommandozeile, const std::function<void()>& atmen)
{
    return prozess_warten(Prozessaufrufe::echte(), dateien, kommandozeile, atmen);
}

bool prozess_warten(const Prozessaufrufe& aufrufe, const Dateisystem& dateien, std::string_view kommandozeile,
                    const std::function<void()>& atmen)
{
    std::string_view pfad = trimmen(kommandozeile);
    if (pfad.starts_with('"')) pfad = pfad.substr(1, pfad.find('"', 1) - 1);
    Batchlauf lauf(dateien, pfad, {}, &aufrufe);
    Batchlauf* const einer = &lauf;
    while (lauf.laeuft()) {
        Batchlauf::abwarten({&einer, 1}, Millisekunden(20));
        if (atmen) atmen();
    }
    return lauf.gestartet();
}

Batchlauf::Batchlauf(const Dateisystem& dateien, std::string_view pfad, const fs::path& statt,
                     const Prozessaufrufe* aufrufe)
{
    Kindauftrag auftrag{programm_finden("jorv-dos"), {utf8_aus_1252(pfad)}};
    if (auftrag.programm.empty()) return;
    if (!statt.empty()) auftrag.argumente.insert(auftrag.argumente.begin(), {"--statt", statt.string()});
    auftrag.ordner = statt.empty() ? dateien.host(pfad_ordner(pfad)) : statt;
    m_kind = std::make_shared<Kind>(aufrufe ? *aufrufe : Prozessaufrufe::echte(), auftrag);
    m_gestartet = m_kind->gestartet();
    if (!m_gestartet) m_kind.reset();
}

Batchlauf::Batchlauf(Batchlauf&&) noexcept = default;

Batchlauf::~Batchlauf()
{
    constexpr Millisekunden gnade(1500);  // the interpreter ends its program first
    if (laeuft() && m_kind->gruppe_beenden(gnade)) m_kind->einsammeln();
}

void Batchlauf::abwarten(std::span<Batchlauf* const> laeufe, Millisekunden hoechstens)
{
    std::vector<pollfd> fragen;
    for (const Batchlauf* lauf : laeufe) {
        if (!lauf->m_kind) return;
        if (lauf->m_kind->melder() >= 0) fragen.push_back({lauf->m_kind->melder(), POLLIN, 0});
    }
    // Without a descriptor for each the end shows only by asking again and again.
    if (fragen.size() < laeufe.size()) hoechstens = std::min(hoechstens, Millisekunden(2));
    ::poll(fragen.data(), fragen.size(), static_cast<int>(hoechstens.count()));
}

bool Batchlauf::laeuft()
{
    if (!m_kind) return false;
    if (!m_kind->warten(Millisekunden(0))) return true;
    m_kind->einsammeln();
    m_kind.reset();
    return false;
}

Prozessende programm_ausfuehren(const fs::path& programm, const std::vector<std::string>& argumente,
                                const fs::path& ordner, int sekunden)
{
    return programm_ausfuehren(Prozessaufrufe::echte(), programm, argumente, ordner, sekunden);
}

Prozessende programm_ausfuehren(const Prozessaufrufe& aufrufe, const fs::path& programm,
                                const std::vector<std::string>& argumente, const fs::path& ordner, int sekunden)
{
    Prozessende ende;
    // Memory in place of a pipe: a child that writes hundreds of progress lines wakes nobody, one that leaves it open
    // holds nobody up.
    const int ausgabe = ::memfd_create("fehlerausgabe", MFD_CLOEXEC);
    if (ausgabe < 0) return ende;
    const Signalwache wache;
    const sigset_t vorher = wache.vorher();
    Kind kind(aufrufe, {programm, argumente, ordner, {}, {-1, -1, ausgabe}, &vorher, SIGKILL});
    if (kind.gestartet()) {
        ende.gestartet = true;
        const auto schluss = std::chrono::steady_clock::now() + std::chrono::seconds(sekunden);
        while (!kind.warten(rest_bis(schluss), &wache)) {
            ende.zeit_abgelaufen = std::chrono::steady_clock::now() >= schluss;
            if (ende.zeit_abgelaufen || wache.eines_wartet()) break;
            if (ausgabe_laenge(ausgabe) > groesste_ausgabe) (void)!::ftruncate(ausgabe, 0);
        }
        if (kind.gruppe_beenden()) ende.status = kind.einsammeln();
        ende.fehlerausgabe = ausgabe_anfang(ausgabe);
    }
    ::close(ausgabe);
    return ende;
}

}  // namespace jorv
