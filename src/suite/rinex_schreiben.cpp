#include "suite/rinex_schreiben.h"

#include <algorithm>

#include "plattform/text.h"
#include "suite/glonass.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::size_t SATELLITEN_JE_ZEILE = 12;
constexpr std::size_t WERTE_JE_ZEILE = 5;

class Schreiber {
public:
    explicit Schreiber(const RinexBeobachtung& b) : m_b(b)
    {
        for (std::size_t i = 0; i < ARTEN; ++i)
            if (b.kopf.arten[i]) m_arten.push_back(i);
        m_text.reserve(4096 + b.epochen.size() * 64 + b.messungen.size() * 100);
    }

    void kopf(std::string_view programm, const Zeitpunkt& jetzt);
    void epoche(const Epoche& e);
    std::string ergebnis() { return std::move(m_text); }

private:
    void kopfzeile(std::string_view inhalt, std::string_view name);
    void zeitzeile(const GpsZeit& zeit, std::string_view name);
    void messung(const Messung& m);

    const RinexBeobachtung& m_b;
    std::vector<std::size_t> m_arten;
    std::string m_text;
};

void Schreiber::kopfzeile(std::string_view inhalt, std::string_view name)
{
    anhaengen_links(m_text, inhalt, 60);
    m_text.append(name).append("\r\n");
}

void Schreiber::zeitzeile(const GpsZeit& zeit, std::string_view name)
{
    const Kalenderzeit k = kalenderzeit(zeit);
    std::string inhalt;
    for (const int teil : {k.jahr, k.monat, k.tag, k.stunde, k.minute}) anhaengen_fest(inhalt, teil, 6, 0);
    anhaengen_fest(inhalt, k.sekunde, 13, 7);
    kopfzeile(inhalt + "     GPS", name);
}

void Schreiber::kopf(std::string_view programm, const Zeitpunkt& jetzt)
{
    const RinexKopf& k = m_b.kopf;
    std::string zeile;
    const bool gemischt =
        std::any_of(m_b.messungen.begin(), m_b.messungen.end(), [](const Messung& m) { return m.satellit > GLONASS; });
    kopfzeile(verkettet("     2.11           OBSERVATION DATA    ", gemischt ? "M (MIXED)" : "G (GPS)"),
              "RINEX VERSION / TYPE");
    anhaengen_links(zeile, programm, 40);
    kopfzeile(zeile + datum_text(jetzt), "PGM / RUN BY / DATE");
    if (!k.kommentar_virtuell.empty()) kopfzeile(k.kommentar_virtuell, "COMMENT");
    kopfzeile(k.marke, "MARKER NAME");
    kopfzeile("", "OBSERVER / AGENCY");
    kopfzeile(k.empfaenger, "REC # / TYPE / VERS");
    zeile.clear();
    anhaengen_links(zeile, k.antennennummer, 20);
    kopfzeile(zeile + k.antennentyp, "ANT # / TYPE");
    zeile.clear();
    for (const double wert : {k.ort.x, k.ort.y, k.ort.z}) anhaengen_fest(zeile, wert, 14, 4);
    kopfzeile(zeile, "APPROX POSITION XYZ");
    zeile.clear();
    for (const double wert : {k.antennenhoehe, k.antenne_ost, k.antenne_nord}) anhaengen_fest(zeile, wert, 14, 4);
    kopfzeile(zeile, "ANTENNA: DELTA H/E/N");
    kopfzeile(k.wellenlaengen.empty() ? "     1     1" : k.wellenlaengen, "WAVELENGTH FACT L1/2");
    zeile.clear();
    anhaengen_fest(zeile, static_cast<double>(m_arten.size()), 6, 0);
    for (const std::size_t art : m_arten) zeile.append("    ").append(ARTNAMEN[art]);
    kopfzeile(zeile, "# / TYPES OF OBSERV");
    zeile.clear();
    anhaengen_fest(zeile, m_b.intervall(), 10, 3);
    if (m_b.epochen.size() > 1) kopfzeile(zeile, "INTERVAL");
    zeitzeile(m_b.epochen.front().zeit, "TIME OF FIRST OBS");
    zeitzeile(m_b.epochen.back().zeit, "TIME OF LAST OBS");
    kopfzeile("", "END OF HEADER");
}

void Schreiber::epoche(const Epoche& e)
{
    const Kalenderzeit k = kalenderzeit(e.zeit);
    const auto zwei = [&](int zahl) {
        m_text.append({static_cast<char>('0' + zahl / 10), static_cast<char>('0' + zahl % 10)});
    };
    m_text.push_back(' ');
    zwei(k.jahr % 100);
    for (const int teil : {k.monat, k.tag, k.stunde, k.minute}) anhaengen_fest(m_text, teil, 3, 0);
    anhaengen_fest(m_text, k.sekunde, 11, 7);
    anhaengen_fest(m_text, e.kennung, 3, 0);
    anhaengen_fest(m_text, static_cast<double>(e.anzahl), 3, 0);
    for (std::size_t i = 0; i < e.anzahl; ++i) {
        if (i > 0 && i % SATELLITEN_JE_ZEILE == 0) m_text.append("\r\n").append(32, ' ');
        const int satellit = m_b.messungen[e.erste + i].satellit;
        m_text.push_back(satellit > GLONASS ? 'R' : 'G');
        zwei(satellit % GLONASS);
        if (i + 1 == std::min(e.anzahl, SATELLITEN_JE_ZEILE) && !e.uhr.empty()) {
            m_text.append(3 * (SATELLITEN_JE_ZEILE - i - 1), ' ');
            m_text.append(12 - std::min<std::size_t>(12, e.uhr.size()), ' ').append(e.uhr);
        }
    }
    m_text.append("\r\n");
    for (std::size_t i = 0; i < e.anzahl; ++i) messung(m_b.messungen[e.erste + i]);
}

void Schreiber::messung(const Messung& m)
{
    for (std::size_t i = 0; i < m_arten.size(); ++i) {
        const std::size_t art = m_arten[i];
        if (i > 0 && i % WERTE_JE_ZEILE == 0) m_text.append("\r\n");
        if (m.wert[art] == 0.0) {
            m_text.append(16, ' ');
            continue;
        }
        anhaengen_fest(m_text, m.wert[art], 14, 3);
        m_text.push_back(m.schlupf[art]);
        m_text.push_back(m.staerke[art]);
    }
    m_text.append("\r\n");
}

}  // namespace

std::string beobachtung_text(const RinexBeobachtung& beobachtung, std::string_view programm, const Zeitpunkt& jetzt)
{
    if (beobachtung.epochen.empty()) return {};
    Schreiber schreiber(beobachtung);
    schreiber.kopf(programm, jetzt);
    for (const Epoche& e : beobachtung.epochen) schreiber.epoche(e);
    return schreiber.ergebnis();
}

}  // namespace jorv::suite
