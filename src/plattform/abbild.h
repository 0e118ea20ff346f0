// A file mapped into memory for reading. The pages belong to the file, not to the process.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "plattform/systemaufrufe.h"

namespace jorv {

class Abbild {
public:
    Abbild() = default;
    /// Maps the regular file; `fehler` tells why not. A file of length 0 gives an empty text and no error. Windows: the
    /// calls are the system's own whatever the table says.
    Abbild(const Systemaufrufe& aufrufe, const std::filesystem::path& host_pfad, std::error_code& fehler);
    Abbild(const std::filesystem::path& host_pfad, std::error_code& fehler)
        : Abbild(Systemaufrufe::echte(), host_pfad, fehler)
    {
    }
    Abbild(Abbild&& anderes) noexcept;
    Abbild& operator=(Abbild&& anderes) noexcept;
    Abbild(const Abbild&) = delete;
    Abbild& operator=(const Abbild&) = delete;
    ~Abbild();

    std::string_view text() const { return {m_bytes, m_laenge}; }

private:
    const char* m_bytes = nullptr;
    std::size_t m_laenge = 0;
};

}  // namespace jorv
