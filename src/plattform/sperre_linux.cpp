#include "plattform/sperre.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "plattform/pfad.h"

namespace jorv {

namespace fs = std::filesystem;

Sperre::Sperre(const Dateisystem& dateien, std::string_view pfad, int millisekunden)
{
    // The folder itself carries the lock: nothing is created, nothing can be left behind.
    const fs::path ordner = dateien.host(pfad_ordner(pfad));
    const int nummer = ::open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nummer < 0) return;
    for (int gewartet = 0; ::flock(nummer, LOCK_EX | LOCK_NB) != 0; gewartet += 20) {
        if (gewartet >= millisekunden) {
            ::close(nummer);
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    m_nummer = nummer;
}

Sperre::~Sperre()
{
    if (m_nummer >= 0) ::close(static_cast<int>(m_nummer));
}

}  // namespace jorv
