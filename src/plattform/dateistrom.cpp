#include "plattform/dateistrom.h"

#include <fcntl.h>

#include <cerrno>
#include <string>
#include <utility>

#include "plattform/hostpfad.h"
#include "plattform/wiederholen.h"

namespace jorv {

namespace fs = std::filesystem;

Dateistrom::Dateistrom(const Systemaufrufe& aufrufe, const fs::path& host_pfad, std::error_code& fehler)
    : m_aufrufe(&aufrufe)
{
    const auto zustand = fs::status(host_pfad, fehler);
    if (fehler) return;
    if (!fs::is_regular_file(zustand)) {
        fehler =
            std::make_error_code(fs::is_directory(zustand) ? std::errc::is_a_directory : std::errc::invalid_argument);
        return;
    }
    const std::string pfad = utf8(host_pfad);
    m_nummer = ungestoert([&] { return aufrufe.oeffnen(pfad.c_str(), O_RDONLY, 0); });
    if (m_nummer < 0) fehler.assign(errno, std::generic_category());
}

Dateistrom::Dateistrom(Dateistrom&& anderer) noexcept
    : m_aufrufe(anderer.m_aufrufe), m_nummer(std::exchange(anderer.m_nummer, -1)), m_fehler(anderer.m_fehler)
{
}

Dateistrom& Dateistrom::operator=(Dateistrom&& anderer) noexcept
{
    std::swap(m_aufrufe, anderer.m_aufrufe);
    std::swap(m_nummer, anderer.m_nummer);
    std::swap(m_fehler, anderer.m_fehler);
    return *this;
}

Dateistrom::~Dateistrom()
{
    // What was only read has nothing to lose by a close that fails.
    if (m_nummer >= 0) m_aufrufe->schliessen(m_nummer);
}

std::size_t Dateistrom::lesen(char* ziel, std::size_t platz)
{
    if (m_nummer < 0 || m_fehler) return 0;
    const long n = ungestoert([&] { return m_aufrufe->lesen(m_nummer, ziel, platz); });
    if (n < 0) m_fehler.assign(errno, std::generic_category());
    return n < 0 ? 0 : static_cast<std::size_t>(n);
}

}  // namespace jorv
