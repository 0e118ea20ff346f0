// One pass over the bytes of a RINEX 2 observation file: header lines one by one, then the last epoch line and
// the satellite inventory together. Two readers need the data section, and each walks it by its own rules (only one
// follows continuation lines); both walks are driven in step over the same lines, so the file is touched once.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modell/Abtastung.h"
#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/stueckpuffer.h"

namespace jorv {

/// The lines of a text or of a file, counted from 1. A line ends at LF, a CR before it is dropped.
class Zeilenstrom {
public:
    explicit Zeilenstrom(std::string_view text) : m_stelle(text.data()), m_ende(text.data() + text.size()) {}
    /// Of a file read in pieces of that many bytes; a longer line makes them longer.
    explicit Zeilenstrom(Dateistrom datei, std::size_t stueck = std::size_t{256} << 10);

    /// The next line, or nothing behind the last one. A file's line stands until the next call.
    std::optional<std::string_view> naechste();
    /// Passes over that many lines, fewer where the text ends.
    void ueberspringen(std::int64_t anzahl);
    /// Number of the line read last.
    int nummer() const { return m_nummer; }
    /// Why the file ended early.
    const std::error_code& fehler() const { return m_puffer.fehler(); }

private:
    bool nachladen();
    void vorhandene_ueberspringen(std::int64_t& anzahl);

    const char* m_stelle = nullptr;  // of what is in memory, which begins with the next line
    const char* m_ende = nullptr;
    int m_nummer = 0;
    Stueckpuffer m_puffer;
};

/// Whether the header label stands at column 61; what follows it doesn't matter.
bool ist_kopfzeile(std::string_view zeile, std::string_view marke);

/// The count of observation types of a "# / TYPES OF OBSERV" line; 0 when it holds no usable number.
std::int32_t typen_lesen(std::string_view zeile);

/// Passes over the header and gives the count of observation types that it states.
std::int32_t kopf_uebergehen(Zeilenstrom& strom);

struct Epochen {
    std::string letzte_Zeile;             ///< of the last epoch, as it stands in the file; empty when there is none
    std::vector<std::string> Satelliten;  ///< distinct, in the order of their appearance, at most 70
};

/// One epoch of the data section.
struct Epoche {
    double Sekunden = 0;  ///< since 1970 in the file's time scale
    std::int32_t Satelliten = 0;
};

/// Walks the data section from the stream's place to the end of the file. With `folge` every epoch whose time can be
/// read is put there, in file order.
Epochen epochen_abtasten(Zeilenstrom& strom, std::int32_t typen, std::vector<Epoche>* folge = nullptr);

/// An observation file of the project directory.
struct Beobachtungsdatei {
    Zeilenstrom strom;
    Dateikennung kennung;
};

/// Opens a file of the project, or of the path given when it is a whole one. `kopf` begins the message of a file that
/// can't be opened ("Die Beobachtungsdatei:"); nothing after a message.
/// A read that fails later is told by `lesefehler_melden`.
std::optional<Beobachtungsdatei> beobachtungsdatei_oeffnen(Global& g, const std::string& name, std::string_view kopf);

/// Shows the message of a file whose reading has failed; false when it hasn't.
bool lesefehler_melden(Global& g, const Beobachtungsdatei& datei);

}  // namespace jorv
