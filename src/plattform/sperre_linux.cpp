#include "plattform/sperre.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

namespace jorv {

namespace fs = std::filesystem;

namespace {

constexpr int schritt = 20;  // milliseconds

int oeffnen(const fs::path& datei)
{
    // For writing, as network file systems ask of whoever wants to be alone, and by everybody.
    constexpr mode_t alle = 0666;
    int nummer = ::open(datei.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, alle);
    if (nummer >= 0) (void)::fchmod(nummer, alle);
    // What another user's crash has left may be only readable.
    if (nummer < 0 && errno == EACCES) nummer = ::open(datei.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    return nummer;
}

// The file that was locked is still the one of that name: its last holder may have removed it meanwhile.
bool steht_noch_da(int nummer, const fs::path& datei)
{
    struct stat offen {
    }, dort{};
    return ::fstat(nummer, &offen) == 0 && ::stat(datei.c_str(), &dort) == 0 && offen.st_dev == dort.st_dev &&
           offen.st_ino == dort.st_ino;
}

}  // namespace

Sperre::Sperre(const Dateisystem& dateien, std::string_view pfad, int millisekunden)
{
    const fs::path datei = dateien.host(pfad);
    m_datei = datei.parent_path() / ("." + datei.filename().string() + ".sperre");
    for (int gewartet = 0;;) {
        const int nummer = oeffnen(m_datei);
        if (nummer < 0) return;
        const bool allein = ::flock(nummer, LOCK_EX | LOCK_NB) == 0;
        m_besetzt = !allein && errno == EWOULDBLOCK;
        if (allein && steht_noch_da(nummer, m_datei)) {
            m_nummer = nummer;
            return;
        }
        ::close(nummer);
        if (allein) continue;
        if (!m_besetzt || gewartet >= millisekunden) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(schritt));
        gewartet += schritt;
    }
}

Sperre::~Sperre()
{
    if (m_nummer < 0) return;
    ::unlink(m_datei.c_str());
    ::close(static_cast<int>(m_nummer));
}

}  // namespace jorv
