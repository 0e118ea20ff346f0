#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "plattform/abbild.h"
#include "plattform/wiederholen.h"

namespace jorv {

Abbild::Abbild(const Systemaufrufe& aufrufe, const std::filesystem::path& host_pfad, std::error_code& fehler)
{
    fehler.clear();
    // O_NONBLOCK: a pipe in the place of the file must not hang the program.
    const int nummer = ungestoert([&] { return aufrufe.oeffnen(host_pfad.c_str(), O_RDONLY | O_NONBLOCK, 0); });
    struct stat zustand {};
    if (nummer < 0 || ::fstat(nummer, &zustand) != 0) {
        fehler.assign(errno, std::generic_category());
    } else if (!S_ISREG(zustand.st_mode)) {
        fehler =
            std::make_error_code(S_ISDIR(zustand.st_mode) ? std::errc::is_a_directory : std::errc::invalid_argument);
    } else if (zustand.st_size > 0) {
        const auto laenge = static_cast<std::size_t>(zustand.st_size);
        void* ort = nullptr;
        do ort = aufrufe.einblenden(nummer, laenge);
        while (!ort && errno == EINTR);
        if (!ort) {
            fehler.assign(errno, std::generic_category());
        } else {
            ::madvise(ort, laenge, MADV_SEQUENTIAL);
            m_bytes = static_cast<const char*>(ort);
            m_laenge = laenge;
        }
    }
    if (nummer >= 0) ::close(nummer);
}

Abbild::Abbild(Abbild&& anderes) noexcept
    : m_bytes(std::exchange(anderes.m_bytes, nullptr)), m_laenge(std::exchange(anderes.m_laenge, 0))
{
}

Abbild& Abbild::operator=(Abbild&& anderes) noexcept
{
    std::swap(m_bytes, anderes.m_bytes);
    std::swap(m_laenge, anderes.m_laenge);
    return *this;
}

Abbild::~Abbild()
{
    if (m_bytes) ::munmap(const_cast<char*>(m_bytes), m_laenge);
}

}  // namespace jorv
