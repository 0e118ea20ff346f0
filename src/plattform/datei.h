// Everything that the system does with files: DOS paths in, whole files or nothing out.
// A file is written to a temporary one in the same folder, flushed to the disk and renamed over the old one, each
// call's result checked; a crash at any instant leaves the old or the new text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "plattform/abbild.h"
#include "plattform/dateistrom.h"
#include "plattform/ersatzdatei.h"
#include "plattform/laufwerke.h"
#include "plattform/systemaufrufe.h"

namespace jorv {

/// The step of reading or writing a file that failed; messages tell them apart.
enum class Dateistufe { gut, oeffnen, lesen, schreiben, schliessen };

struct Gelesen {
    std::string text;
    Dateistufe stufe = Dateistufe::oeffnen;
    bool gut() const { return stufe == Dateistufe::gut; }
};

struct Kopie {
    std::string von, nach;
};

struct Ordnereintrag {
    std::string name;  ///< Windows-1252
    bool ordner = false;
};

/// All paths are DOS paths in Windows-1252, or relative to the current directory. A returned error code that is false
/// means success.
class Dateisystem {
public:
    explicit Dateisystem(Laufwerke laufwerke = Laufwerke::aus_umgebung(),
                         const Systemaufrufe& aufrufe = Systemaufrufe::echte())
        : m_laufwerke(std::move(laufwerke)), m_aufrufe(&aufrufe)
    {
    }

    const Laufwerke& laufwerke() const { return m_laufwerke; }
    /// Host path; empty when the drive doesn't exist.
    std::filesystem::path host(std::string_view pfad) const
    {
        return m_laufwerke.host(pfad).value_or(std::filesystem::path{});
    }

    bool ist_datei(std::string_view pfad) const;   ///< a regular file is there
    bool ist_ordner(std::string_view pfad) const;  ///< a folder is there
    bool vorhanden(std::string_view pfad) const;   ///< anything is there
    std::optional<std::uint64_t> groesse(std::string_view pfad) const;

    /// The whole file; nothing when it can't be read (then `fehler` says why).
    std::optional<std::string> lesen(std::string_view pfad) const;
    std::optional<std::string> lesen(std::string_view pfad, std::error_code& fehler) const;
    /// The whole file, with the step that failed.
    Gelesen lesen_stufenweise(std::string_view pfad, std::size_t hoechstens = std::string::npos) const;
    /// The first bytes of a file, as many as there are.
    std::optional<std::string> anfang_lesen(std::string_view pfad, std::size_t anzahl) const;
    /// The file, to be read from its beginning in pieces.
    Dateistrom stroemen(std::string_view pfad, std::error_code& fehler) const;
    /// The file mapped into memory.
    Abbild abbilden(std::string_view pfad, std::error_code& fehler) const;

    /// Replaces or creates the file whole. A target that is no regular file is refused, a symbolic link is followed.
    [[nodiscard]] std::error_code schreiben(std::string_view pfad, std::string_view bytes,
                                            Dauer dauer = Dauer::fest) const;
    /// The same, with the step that failed: oeffnen (it couldn't be created), schreiben, schliessen.
    [[nodiscard]] Dateistufe schreiben_stufenweise(std::string_view pfad, std::string_view bytes) const;
    /// Appends (creating the file) and flushes to the disk. A failed append takes the bytes back.
    [[nodiscard]] std::error_code anhaengen(std::string_view pfad, std::string_view bytes,
                                            Dauer dauer = Dauer::fest) const;
    /// Copies a file, replacing the target whole. A file copied onto itself stays as it is.
    [[nodiscard]] std::error_code kopieren(std::string_view von, std::string_view nach,
                                           Dauer dauer = Dauer::fest) const;
    /// The same for paths of the host that `host` has given.
    [[nodiscard]] std::error_code host_kopieren(const std::filesystem::path& von, const std::filesystem::path& nach,
                                                Dauer dauer = Dauer::fest) const;
    /// Copies several files in their order, each as `kopieren` would, but flushes their folder once for all: that is
    /// what many small ones wait for. Returns how many of the first are copied; `fehler` tells why not all of them.
    [[nodiscard]] std::size_t gemeinsam_kopieren(std::span<const Kopie> kopien, std::error_code& fehler) const;
    /// Deletes a file, also a read-only one.
    [[nodiscard]] std::error_code loeschen(std::string_view pfad) const;

    /// Moves a file of the host to a place on the same disk, replacing what is there; not flushed to the disk.
    [[nodiscard]] std::error_code host_verschieben(const std::filesystem::path& von, std::string_view nach) const;

    /// Creates the folder and missing parents; an existing one is no error.
    [[nodiscard]] std::error_code ordner_anlegen(std::string_view pfad) const;
    /// Removes a folder with all its content.
    [[nodiscard]] std::error_code ordner_loeschen(std::string_view pfad) const;
    /// Files and folders of a folder, sorted by name; names that Windows-1252 can't hold are left out. Empty when it
    /// can't be read.
    std::vector<Ordnereintrag> ordner_lesen(std::string_view pfad) const;

    /// Removes temporary files and folders that a killed program left in the folder.
    void reste_wegraeumen(std::string_view ordner) const;
    /// Host path of a hidden entry of a folder that is swept away as this process's temporary files are.
    std::filesystem::path temporaer(std::string_view ordner, std::string_view name, int zaehler) const;

private:
    std::error_code ersetzen(const std::filesystem::path& ziel, std::string_view bytes, Dauer dauer,
                             Dateistufe& stufe) const;
    std::error_code einsetzen(Ersatzdatei& ersatz, Dauer dauer, Dateistufe& stufe) const;
    std::error_code kopie_anlegen(const std::filesystem::path& quelle, const std::filesystem::path& ziel,
                                  Ersatzdatei& ersatz, bool& noetig) const;
    std::error_code ordner_sichern(const std::filesystem::path& ordner) const;
    std::error_code ordner_und_eltern(const std::filesystem::path& ordner) const;

    Laufwerke m_laufwerke;
    const Systemaufrufe* m_aufrufe;
};

}  // namespace jorv
