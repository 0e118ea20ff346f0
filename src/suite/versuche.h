#pragma once
// Runs the solver in the order of a plan until a solution is believed; each run happens once, however often it is asked
// for, and leaves its line in the protocol.

#include <map>
#include <optional>
#include <vector>

#include "suite/entscheidung.h"
#include "suite/protokoll.h"

namespace jorv::suite {

/// The run that is believed; `ausgabe` lives as long as the series.
struct Fund {
    const Loeserausgabe* ausgabe = nullptr;
    Urteil urteil;
    std::string_view typ;
    Position position;  // the result
};

class Versuchsreihe {
public:
    /// `kalibriert`: the antennas don't set L1 and L2 apart.
    Versuchsreihe(const Loeser& loeser, Protokoll& protokoll, bool kalibriert)
        : m_loeser(loeser), m_protokoll(protokoll), m_kalibriert(kalibriert)
    {
    }

    /// The first fixed run that is accepted and, where it has a witness, confirmed by it.
    std::optional<Fund> fest_loesen(const std::vector<Versuch>& versuche);
    /// The first float or code run that is accepted.
    std::optional<Fund> offen_loesen(const std::vector<Laufart>& arten);

private:
    const Loeserlauf& lauf(Laufart art);
    const Position* bestaetigt(const Versuch& versuch, const Position& position);
    void nachausgleichen(const Versuch& versuch, const Position& ende, Fund& fund);
    void zeile(Laufart art, const Loeserlauf& lauf, const Urteil& urteil, std::string_view ausgang);

    const Loeser& m_loeser;
    Protokoll& m_protokoll;
    bool m_kalibriert;
    std::map<Laufart, Loeserlauf> m_laeufe;
    bool m_version_geprueft = false;
    std::optional<Laufart> m_widersprochen;  // said another place than the run that it was to confirm: neither counts
    bool m_haengt = false;                   // the solver reached its time limit: no further run
};

}  // namespace jorv::suite
