// A file read from its beginning in pieces, for who looks at each byte once: through one buffer that stays in the
// processor's cache this is several times faster than a mapping, each page of which is first made.
#pragma once

#include <cstddef>
#include <filesystem>
#include <system_error>

#include "plattform/systemaufrufe.h"

namespace jorv {

class Dateistrom {
public:
    Dateistrom() = default;
    /// Opens the regular file; `fehler` tells why not.
    Dateistrom(const Systemaufrufe& aufrufe, const std::filesystem::path& host_pfad, std::error_code& fehler);
    Dateistrom(Dateistrom&& anderer) noexcept;
    Dateistrom& operator=(Dateistrom&& anderer) noexcept;
    Dateistrom(const Dateistrom&) = delete;
    Dateistrom& operator=(const Dateistrom&) = delete;
    ~Dateistrom();

    /// The next bytes, at most `platz`; 0 at the end of the file and after a failure, which `fehler` tells.
    std::size_t lesen(char* ziel, std::size_t platz);
    const std::error_code& fehler() const { return m_fehler; }

private:
    const Systemaufrufe* m_aufrufe = nullptr;
    int m_nummer = -1;
    std::error_code m_fehler;
};

}  // namespace jorv
