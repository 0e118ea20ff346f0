// A file written beside the one that it shall replace: nobody sees it before it takes that one's place, whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "plattform/systemaufrufe.h"

namespace jorv {

/// Whether a written file must outlive a power failure. Fluechtig is for what a run makes anew anyway: whole or not at
/// all for every program that looks, but not flushed to the disk.
enum class Dauer { fest, fluechtig };

/// Its steps, in this order: anlegen, schreiben, sichern (unless fluechtig), schliessen, einsetzen. A step that fails
/// ends it; what hasn't taken its place when the object goes is removed.
class Ersatzdatei {
public:
    /// `ziel` is the host path of the file to replace or create; a symbolic link must be resolved before.
    Ersatzdatei(const Systemaufrufe& aufrufe, std::filesystem::path ziel);
    Ersatzdatei(Ersatzdatei&& andere) noexcept;
    Ersatzdatei& operator=(Ersatzdatei&&) = delete;
    Ersatzdatei(const Ersatzdatei&) = delete;
    Ersatzdatei& operator=(const Ersatzdatei&) = delete;
    ~Ersatzdatei();

    /// Refuses a target that is no regular file or mustn't be written.
    [[nodiscard]] std::error_code anlegen();
    [[nodiscard]] std::error_code schreiben(std::string_view bytes);
    /// For who writes more files before he flushes this one.
    void ausschreiben_beginnen() const { jorv::ausschreiben_beginnen(m_nummer); }
    [[nodiscard]] std::error_code sichern();
    [[nodiscard]] std::error_code schliessen();
    /// With the permissions of the file that it replaces. The folder isn't flushed.
    [[nodiscard]] std::error_code einsetzen();

    /// The folder that it lies in.
    std::filesystem::path ordner() const;

private:
    const Systemaufrufe* m_aufrufe;
    std::filesystem::path m_ziel;
    std::filesystem::file_status m_altes;
    std::string m_name;  // UTF-8; empty: nothing lies there (any more)
    int m_nummer = -1;
};

/// Writes all bytes to the open file.
[[nodiscard]] std::error_code alles_schreiben(const Systemaufrufe& aufrufe, int nummer, std::string_view bytes);

/// Path (UTF-8) of a hidden entry beside `ziel` that bears the mark of this process.
std::string temporaerer_name(const std::filesystem::path& ziel, int versuch);
/// True for a name (UTF-8) of such an entry whose process has ended.
bool ist_ueberrest(std::string_view name);

}  // namespace jorv
