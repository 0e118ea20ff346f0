#include "auswertung/vorauslauf.h"

#include <algorithm>
#include <array>

#include "auswertung/aufrufdatei.h"
#include "auswertung/rover_batch.h"
#include "modell/Gemeinsam.h"
#include "plattform/pfad.h"
#include "plattform/stumme_oberflaeche.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// Stands for the screen while a batch is written ahead: what there is to tell is told at the item's turn.
class Stumm final : public StummeOberflaeche {
public:
    explicit Stumm(Global& zustand) : g(zustand), m_schirm(zustand.oberflaeche) { g.oberflaeche = this; }
    Stumm(const Stumm&) = delete;
    Stumm& operator=(const Stumm&) = delete;
    ~Stumm() override { g.oberflaeche = m_schirm; }

private:
    Global& g;
    Oberflaeche* m_schirm;
};

// What a batch makes, by the end of the name or its beginning: it must not meet what others have made, or write
// through a link into it.
constexpr std::array<std::string_view, 11> entstehende_endungen = {".vrt", ".ext", ".LIS", ".prt", ".log", ".sol",
                                                                   ".UTM", ".ERR", ".KRZ", ".ALL", ".BAT"};
constexpr std::array<std::string_view, 2> entstehende_anfaenge = {"wav2", "wa2"};

bool ist_eingabe(const Global& g, std::string_view name)
{
    const auto endet = [&](std::string_view e) { return gleich_ohne_gross(rechts(name, e.size()), e); };
    const auto beginnt = [&](std::string_view a) { return gleich_ohne_gross(links(name, a.size()), a); };
    // A foreign virtual station is an input; one of our own is made anew for each rover.
    return std::none_of(entstehende_endungen.begin(), entstehende_endungen.end(), endet) &&
           std::none_of(entstehende_anfaenge.begin(), entstehende_anfaenge.end(), beginnt) &&
           (ist_F(g) || !beginnt("virt"));
}

}  // namespace

Vorauslauf::Vorauslauf(Global& zustand, const Laufart& art, std::vector<std::string> stuecke, int gleichzeitig)
    : g(zustand), m_art(art), m_stuecke(std::move(stuecke)), m_gleichzeitig(gleichzeitig)
{
}

void Vorauslauf::daneben_starten(const std::string& stueck)
{
    const auto dieses = std::find(m_stuecke.begin(), m_stuecke.end(), stueck) - m_stuecke.begin();
    m_naechstes = std::max(m_naechstes, static_cast<std::size_t>(dieses) + 1);
    // One more than may run: while this one runs nobody starts another in the place of one that ends before it.
    nachlegen(m_gleichzeitig);
}

bool Vorauslauf::hat(const std::string& stueck) const
{
    return std::any_of(m_plaetze.begin(), m_plaetze.end(), [&](const Platz& p) { return p.stueck == stueck; });
}

Vorauslauf::Platz* Vorauslauf::platz_von(const std::string& stueck)
{
    const auto fund =
        std::find_if(m_plaetze.begin(), m_plaetze.end(), [&](const Platz& p) { return p.stueck == stueck; });
    return fund == m_plaetze.end() ? nullptr : &*fund;
}

bool Vorauslauf::abholen(const std::string& stueck, const std::function<void()>& atmen)
{
    Platz* platz = platz_von(stueck);
    if (!platz) return false;
    for (nachlegen(m_gleichzeitig); platz->lauf->laeuft(); nachlegen(m_gleichzeitig)) {
        std::vector<Batchlauf*> laeufe;
        for (auto& anderer : m_plaetze)
            if (anderer.lauf && anderer.lauf->laeuft()) laeufe.push_back(anderer.lauf.get());
        Batchlauf::abwarten(laeufe, std::chrono::milliseconds(20));
        atmen();
    }
    alte_ergebnisse_loeschen(stueck);
    const bool gut = !platz->ordner.abliefern();
    platz->lauf.reset();
    platz->stueck.clear();
    return gut;
}

void Vorauslauf::alte_ergebnisse_loeschen(const std::string& stueck)
{
    for (const auto& name : alte_ergebnisse(g, stueck))
        if (const std::string pfad = im_Verfahren(g, name); g.dateien.vorhanden(pfad)) (void)g.dateien.loeschen(pfad);
}

int Vorauslauf::laufende()
{
    return static_cast<int>(
        std::count_if(m_plaetze.begin(), m_plaetze.end(), [](Platz& p) { return p.lauf && p.lauf->laeuft(); }));
}

// A rover that takes long holds up the filing of those behind it, not their computing, but their folders are counted.
void Vorauslauf::nachlegen(int gleichzeitig)
{
    const auto belegt = [&] {
        return std::count_if(m_plaetze.begin(), m_plaetze.end(), [](const Platz& p) { return !p.stueck.empty(); });
    };
    while (m_naechstes < m_stuecke.size() && laufende() < gleichzeitig && belegt() < 4 * m_gleichzeitig) {
        const std::string& stueck = m_stuecke[m_naechstes++];
        if (!m_art.zaehlt(g, stueck) || starten(stueck)) continue;
        m_naechstes = m_stuecke.size();  // whatever it is, the usual way will tell
    }
}

Vorauslauf::Platz* Vorauslauf::freier_platz()
{
    if (Platz* platz = platz_von("")) return platz;
    Platz& neu = m_plaetze.emplace_back(g, static_cast<int>(m_plaetze.size()));
    const bool gut =
        !neu.ordner.ort().empty() && !neu.ordner.zeigen([this](std::string_view name) { return ist_eingabe(g, name); });
    if (gut) return &neu;
    m_plaetze.pop_back();
    return nullptr;
}

bool Vorauslauf::starten(const std::string& stueck)
{
    {
        const Stumm stumm(g);
        if (ist_fehler(m_art.batch(g, stueck)) || stumm.gesagt() > 0) return false;
    }
    Platz* platz = freier_platz();
    if (!platz) return false;
    for (const auto& datei : {batchdatei(g), aufrufdatei(g)}) {
        std::error_code fehler;
        std::filesystem::rename(g.dateien.host(datei), platz->ordner.ort() / g.dateien.host(datei).filename(), fehler);
        if (fehler) return false;
    }
    auto lauf = std::make_unique<Batchlauf>(g.dateien, aufrufdatei(g), platz->ordner.ort());
    if (!lauf->gestartet()) return false;
    platz->lauf = std::move(lauf);
    platz->stueck = stueck;
    return true;
}

}  // namespace jorv
