// The current drive and each drive's current directory. The process itself never changes its directory.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "plattform/datei.h"

namespace jorv::dos {

enum class Wechsel { gut, kein_laufwerk, kein_ordner };

class Verzeichnisse {
public:
    /// Starts in a full DOS path, which may lie on a share ("\\server\share\dir").
    explicit Verzeichnisse(std::string_view start);

    /// Full DOS path of the current directory, "\" at its end only for the root of a drive.
    const std::string& aktuell() const { return m_aktuell; }
    /// The current directory of a drive ("D:").
    std::string aktuell_auf(std::string_view laufwerk) const;

    /// Full DOS path of a name as a command gives it: "." and ".." are worked out, at a root ".." stays there.
    std::string voll(std::string_view name) const;

    /// Makes a drive ("D:") current, in its own current directory.
    Wechsel laufwerk(const Dateisystem& dateien, std::string_view laufwerk);
    /// Changes the directory of the drive that the name means; another drive becomes current only with `mit_laufwerk`.
    /// A failure leaves everything as it is.
    Wechsel ordner(const Dateisystem& dateien, std::string_view name, bool mit_laufwerk);

private:
    std::string m_aktuell;
    std::map<std::string, std::string> m_ordner;  // by upper-case drive, the current one excepted
};

/// A full path is the root of a drive or of a share.
bool ist_wurzel(std::string_view voller_pfad);

}  // namespace jorv::dos
