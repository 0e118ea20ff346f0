#pragma once
// The folder that a program of the suite works in: names found without regard to case, files read whole and written
// whole.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plattform/datei.h"

namespace jorv::suite {

class Arbeitsordner {
public:
    /// The process's current directory.
    Arbeitsordner() = default;
    explicit Arbeitsordner(std::string dos_pfad) : m_pfad(std::move(dos_pfad)) {}

    std::string pfad(std::string_view name) const;
    std::filesystem::path host(std::string_view name) const { return m_dateien.host(pfad(name)); }
    bool vorhanden(std::string_view name) const { return m_dateien.ist_datei(pfad(name)); }

    /// Names of the files, sorted.
    std::vector<std::string> namen() const;

    /// The file in memory; `fehler` tells why not.
    Abbild lesen(std::string_view name, std::error_code& fehler) const;
    /// The file, to be read in pieces.
    Dateistrom stroemen(std::string_view name, std::error_code& fehler) const;
    std::uint64_t groesse(std::string_view name) const;  ///< bytes; 0 when there is no such file

    [[nodiscard]] bool schreiben(std::string_view name, std::string_view bytes) const;
    /// Removes the file; true when it is gone.
    [[nodiscard]] bool loeschen(std::string_view name) const;

private:
    Dateisystem m_dateien;
    std::string m_pfad;
};

/// The names that fit a pattern in which "?" stands for one character and "*" for any.
std::vector<std::string> passende(const std::vector<std::string>& namen, std::string_view muster);

/// The file name without its type: "30400920.05o" gives "30400920".
std::string_view stamm(std::string_view dateiname);

}  // namespace jorv::suite
