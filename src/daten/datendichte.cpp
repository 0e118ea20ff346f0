#include "daten/datendichte.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr double hoechstens_intervalle = 3;

// The step that occurs most, to the millisecond.
double intervall_von(const std::vector<Epoche>& epochen)
{
    std::unordered_map<std::int64_t, int> haeufig;
    for (std::size_t i = 1; i < epochen.size(); ++i)
        if (const auto ms = std::llround(1000 * (epochen[i].Sekunden - epochen[i - 1].Sekunden)); ms > 0) ++haeufig[ms];
    std::pair<std::int64_t, int> meist{0, 0};
    for (const auto& [ms, anzahl] : haeufig)
        if (anzahl > meist.second || (anzahl == meist.second && ms < meist.first)) meist = {ms, anzahl};
    return static_cast<double>(meist.first) / 1000;
}

Datendichte abtasten(Zeilenstrom& strom)
{
    const std::int32_t typen = kopf_uebergehen(strom);
    std::vector<Epoche> epochen;
    static_cast<void>(epochen_abtasten(strom, typen, &epochen));
    return dichte_aus(epochen);
}

}  // namespace

Datendichte dichte_aus(const std::vector<Epoche>& epochen)
{
    Datendichte dichte;
    dichte.Intervall = intervall_von(epochen);
    for (const auto& epoche : epochen) {
        auto& alle = dichte.Abschnitte;
        if (!alle.empty()) {
            auto& letzter = alle.back();
            const double schritt = epoche.Sekunden - letzter.bis;
            if (schritt < 0) continue;
            const bool luecke = schritt > hoechstens_intervalle * dichte.Intervall;
            if (!luecke) {
                letzter.bis = epoche.Sekunden;
                if (letzter.Satelliten == epoche.Satelliten) continue;
            }
        }
        alle.push_back({epoche.Sekunden, epoche.Sekunden, epoche.Satelliten});
        dichte.meiste_Satelliten = std::max(dichte.meiste_Satelliten, epoche.Satelliten);
    }
    return dichte;
}

void Datendichten::lesen(Global& g, const std::vector<std::string>& namen)
{
    const std::string verfahren = verkettet(g.Verfahrensnummer, "|", g.Arbeitsverzeichnis);
    if (m_verfahren != verfahren) m_dateien.clear();
    m_verfahren = verfahren;
    struct Arbeit {
        const std::string* name;
        Dateikennung kennung;
    };
    std::vector<Arbeit> offen;
    std::uint64_t bytes = 0, gelesen = 0;
    for (const auto& name : namen) {
        const std::string pfad = im_Verfahren(g, name);
        std::error_code fehler;
        const auto host = g.dateien.host(pfad);
        const auto groesse = std::filesystem::file_size(host, fehler);
        if (fehler) continue;
        Dateikennung kennung{pfad, groesse, std::filesystem::last_write_time(host, fehler)};
        const auto fund = m_dateien.find(name);
        if (fund != m_dateien.end() && fund->second.Datei == kennung) continue;
        bytes += groesse;
        offen.push_back({&name, std::move(kennung)});
    }
    const bool warten = bytes > m_wartefeld_ab;
    if (warten) g.oberflaeche->fortschritt_zeigen("Bitte warten (Beobachtungsdaten lesen)");
    for (auto& arbeit : offen) {
        if (warten && g.oberflaeche->ereignisse()) break;
        std::error_code fehler;
        Zeilenstrom strom(g.dateien.stroemen(arbeit.kennung.Pfad, fehler));
        Datendichte dichte = abtasten(strom);
        if (!fehler && !strom.fehler()) m_dateien[*arbeit.name] = {arbeit.kennung, std::move(dichte)};
        gelesen += arbeit.kennung.Groesse;
        if (warten)
            g.oberflaeche->fortschritt_setzen(100.0 * static_cast<double>(gelesen) / static_cast<double>(bytes));
    }
    if (warten) g.oberflaeche->fortschritt_verbergen();
}

const Datendichte* Datendichten::von(std::string_view name) const
{
    const auto fund = m_dateien.find(name);
    return fund == m_dateien.end() ? nullptr : &fund->second.dichte;
}

}  // namespace jorv
