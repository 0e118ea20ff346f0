// Drives and shares: turns the DOS paths of the inside into paths of the host and back.
// Linux: drive Z: is the root directory, further drives and shares stand in a table; each name is found without regard
// to case (an existing entry wins, a new file takes the case asked for). Windows: the turn is the identity.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jorv {

class Laufwerke {
public:
    /// Drive Z: only.
    Laufwerke() = default;

    /// Z: and the table in the environment variable JORV_LAUFWERKE: "D:=/mnt/daten;\\server\freigabe=/mnt/f" (UTF-8).
    /// Child programs inherit it, so the command interpreter sees the same drives.
    static Laufwerke aus_umgebung();

    /// Adds a drive ("D:") or a share ("\\server\freigabe"). Windows: for tests.
    void zuordnen(std::string_view dos_wurzel, std::filesystem::path host_ordner);

    /// Stands a folder of the host in the place of a folder ("Z:\\daten\\netz"), which keeps its DOS path. Linux only.
    void vertreten(std::string_view dos_ordner, std::filesystem::path host_ordner);

    /// Host path of a DOS path; a path without root counts from the current directory. Nothing when there is no such
    /// drive or when the path holds a NUL.
    std::optional<std::filesystem::path> host(std::string_view dos_pfad) const;

    /// DOS path of a host path (made absolute). Nothing when a name can't be held in Windows-1252.
    std::optional<std::string> dos(const std::filesystem::path& host_pfad) const;

    /// The drives ("Z:") and shares of this host, as they begin a path; in alphabetical order, drives first.
    std::vector<std::string> alle() const;

    /// True for a drive ("D:", with or without "\") that exists.
    bool hat_laufwerk(std::string_view laufwerk) const;

    /// The real name of an entry of a folder that equals `name` (Windows-1252) without regard to case, exact match
    /// first.
    static std::optional<std::filesystem::path> eintrag(const std::filesystem::path& ordner, std::string_view name);

    struct Inhalt {
        std::string name;  ///< UTF-8
        bool ordner = false;
    };
    /// What lies in a folder of the host ("" is the current one), in no order; a link counts as what it leads to.
    static std::vector<Inhalt> inhalt(const std::filesystem::path& ordner);

private:
    struct Zuordnung {
        std::string dos;  // lower case, no "\" at the end
        std::filesystem::path host;
        std::string name;      // as it is told
        bool wurzel = true;    // a drive or a share, not a folder on one
    };
    const Zuordnung* laengste(std::string_view dos_pfad) const;
    std::vector<Zuordnung> m_tabelle;
};

}  // namespace jorv
