#include "suite/rinex_beobachtung.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "plattform/speicher.h"
#include "plattform/stueckpuffer.h"
#include "plattform/text.h"
#include "suite/glonass.h"
#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::size_t SATELLITEN_JE_ZEILE = 12;
constexpr std::size_t WERTE_JE_ZEILE = 5;
constexpr int HOECHSTENS_SATELLITEN = 999;

struct Epochenzeile {
    GpsZeit zeit;
    bool zeit_da = false;
    int kennung = 0;
    int anzahl = 0;  // satellites, or lines of an event
};

// Two columns: "07", " 7", "7 "; negative when they hold no number.
int satellitennummer(char zehner, char einer)
{
    if (einer == ' ') std::swap(zehner, einer);
    const bool gut = einer >= '0' && einer <= '9' && (zehner == ' ' || (zehner >= '0' && zehner <= '9'));
    return gut ? (zehner == ' ' ? 0 : 10 * (zehner - '0')) + (einer - '0') : -1;
}

// A number as almost every file writes it, right-aligned with three decimals (F14.3); false for any other text. The
// whole number below 10^15 and one division give the nearest double, as the general way does.
bool festwert(const char* feld, double& wert)
{
    const auto ist_ziffer = [](char zeichen) { return zeichen >= '0' && zeichen <= '9'; };
    if (feld[10] != '.' || !ist_ziffer(feld[11]) || !ist_ziffer(feld[12]) || !ist_ziffer(feld[13])) return false;
    int i = 0;
    while (feld[i] == ' ') ++i;
    const bool minus = feld[i] == '-';
    i += minus ? 1 : 0;
    std::int64_t zahl = 0;
    for (; i < 10; ++i) {
        if (!ist_ziffer(feld[i])) return false;
        zahl = 10 * zahl + (feld[i] - '0');
    }
    zahl = 1000 * zahl + 100 * (feld[11] - '0') + 10 * (feld[12] - '0') + (feld[13] - '0');
    wert = static_cast<double>(minus ? -zahl : zahl) / 1000.0;
    return true;
}

class Leser {
public:
    Leser(std::string_view text, Umfang umfang, const std::optional<Zeitspanne>& fenster, Systeme systeme)
        : m_rest(text),
          m_bytes(text.size()),
          m_umfang(umfang),
          m_fenster(fenster),
          m_glonass(systeme == Systeme::gps_glonass)
    {
    }
    Leser(Beobachtungsstrom strom, Umfang umfang, const std::optional<Zeitspanne>& fenster, Systeme systeme)
        : Leser(std::string_view(), umfang, fenster, systeme)
    {
        m_bytes = strom.groesse;
        m_puffer = Stueckpuffer(std::move(strom.datei), strom.stueck, strom.groesse + 1);
    }

    bool kopf(std::string& grund);
    void daten();
    RinexBeobachtung ergebnis() { return std::move(m_ziel); }
    bool gestoert() const { return static_cast<bool>(m_puffer.fehler()); }

private:
    bool zeile(std::string_view& ziel);
    bool nachladen();
    void kopfzeile(std::string_view z);
    void arten_lesen(std::string_view z);
    std::optional<Epochenzeile> epochenzeile(std::string_view z) const;
    bool ereignis(const Epochenzeile& e);
    bool epoche(std::string_view z, const Epochenzeile& e);
    bool satelliten_lesen(std::string_view z, int anzahl);
    bool messung_lesen(Messung& ziel);
    bool ueberspringen(std::size_t zeilen);
    void wert_lesen(std::string_view z, std::size_t platz, std::size_t art, Messung& ziel) const;
    void hinweise_sammeln();

    std::string_view m_rest;         // of the text, or of what is in memory of the file
    const char* m_umkehr = nullptr;  // where the reading goes on when the present epoch turns out damaged
    std::size_t m_bytes;
    Stueckpuffer m_puffer;
    Umfang m_umfang;
    std::optional<Zeitspanne> m_fenster;
    bool m_glonass;
    RinexBeobachtung m_ziel;
    std::vector<int> m_spalten;  // place of each column's kind in ARTNAMEN, -1 for other kinds
    std::size_t m_arten_angesagt = 0;
    std::vector<int> m_satelliten;  // of the present epoch, 0 for systems that nobody wants
    char m_leeres_system = 'G';
    int m_unlesbar = 0, m_rueckwaerts = 0;
    bool m_abgebrochen = false;
};

// False at the end of the file.
bool Leser::nachladen()
{
    const char* const anfang = m_umkehr ? m_umkehr : m_rest.data();
    const auto gelesen = static_cast<std::size_t>(m_rest.data() - anfang), bleibt = gelesen + m_rest.size();
    const std::string_view text = m_puffer.nachladen({anfang, bleibt});
    if (m_umkehr) m_umkehr = text.data();
    m_rest = text.substr(gelesen);
    return text.size() > bleibt;
}

// The line stands until the next one is asked for.
bool Leser::zeile(std::string_view& ziel)
{
    auto ende = m_rest.find('\n');
    while (ende == std::string_view::npos) {
        const std::size_t gesucht = m_rest.size();
        if (!nachladen()) break;
        ende = m_rest.find('\n', gesucht);
    }
    if (m_rest.empty()) return false;
    ziel = m_rest.substr(0, ende);
    m_rest.remove_prefix(ende == std::string_view::npos ? m_rest.size() : ende + 1);
    if (!ziel.empty() && ziel.back() == '\r') ziel.remove_suffix(1);
    return true;
}

bool Leser::kopf(std::string& grund)
{
    std::string_view z;
    if (!zeile(z) || spalten(z, 60, 20) != "RINEX VERSION / TYPE") {
        grund = "ist keine RINEX-Datei";
        return false;
    }
    const auto version = spaltenzahl(spalten(z, 0, 9));
    const std::string_view art = spalten(z, 20, 20), system = spalten(z, 40, 20);
    if (!version || *version < 1 || *version >= 3 || art.empty() || (art.front() != 'O' && art.front() != 'o')) {
        grund = "ist keine RINEX-2-Beobachtungsdatei";
        return false;
    }
    if (!system.empty() && system.front() != 'M') m_leeres_system = system.front();
    while (zeile(z)) {
        if (spalten(z, 60, 20) == "END OF HEADER") {
            if (!m_spalten.empty()) return true;
            grund = "nennt keine Beobachtungsarten";
            return false;
        }
        kopfzeile(z);
    }
    grund = "hat kein Ende des Kopfes";
    return false;
}

void Leser::kopfzeile(std::string_view z)
{
    RinexKopf& k = m_ziel.kopf;
    const std::string_view name = spalten(z, 60, 20);
    const auto drei = [&](double& a, double& b, double& c) {
        a = spaltenzahl(spalten(z, 0, 14)).value_or(0.0);
        b = spaltenzahl(spalten(z, 14, 14)).value_or(0.0);
        c = spaltenzahl(spalten(z, 28, 14)).value_or(0.0);
    };
    if (name == "MARKER NAME") k.marke = spalten(z, 0, 60);
    if (name == "REC # / TYPE / VERS") k.empfaenger = z.substr(0, 60);
    if (name == "ANT # / TYPE") {
        k.antennennummer = spalten(z, 0, 20);
        k.antennentyp = spalten(z, 20, 20);
    }
    if (name == "APPROX POSITION XYZ") drei(k.ort.x, k.ort.y, k.ort.z);
    if (name == "ANTENNA: DELTA H/E/N") drei(k.antennenhoehe, k.antenne_ost, k.antenne_nord);
    if (name == "WAVELENGTH FACT L1/2" && spalten(z, 12, 6).empty()) k.wellenlaengen = z.substr(0, 60);
    if (name == "COMMENT" && z.substr(0, 9) == "VIRTUELLE") k.kommentar_virtuell = spalten(z, 0, 60);
    if (name == "# / TYPES OF OBSERV") arten_lesen(z);
}

void Leser::arten_lesen(std::string_view z)
{
    if (const auto anzahl = spaltenganz(spalten(z, 0, 6)); anzahl && *anzahl > 0) {
        m_arten_angesagt = static_cast<std::size_t>(*anzahl);
        m_spalten.clear();
    }
    for (std::size_t i = 0; i < 9 && m_spalten.size() < m_arten_angesagt; ++i) {
        const auto name = std::find(ARTNAMEN.begin(), ARTNAMEN.end(), spalten(z, 6 + 6 * i, 6));
        const bool bekannt = name != ARTNAMEN.end();
        m_spalten.push_back(bekannt ? static_cast<int>(name - ARTNAMEN.begin()) : -1);
        if (bekannt) m_ziel.kopf.arten[static_cast<std::size_t>(m_spalten.back())] = true;
    }
}

// Strict, because after a damaged epoch the next good one is found by it.
std::optional<Epochenzeile> Leser::epochenzeile(std::string_view z) const
{
    const auto kennung = spaltenganz(spalten(z, 26, 3));
    const auto anzahl = spaltenganz(spalten(z, 29, 3));
    if (!kennung || *kennung < 0 || *kennung > 6 || !anzahl || *anzahl < 0 || *anzahl > HOECHSTENS_SATELLITEN)
        return {};
    Epochenzeile e{{}, false, *kennung, *anzahl};
    if (spalten(z, 0, 26).empty()) return e.kennung > 1 ? std::optional(e) : std::nullopt;
    std::array<int, 5> feld{};
    for (std::size_t i = 0; i < feld.size(); ++i) {
        const auto zahl = z[3 * i] == ' ' ? spaltenganz(spalten(z, 3 * i + 1, 2)) : std::nullopt;
        if (!zahl) return {};
        feld[i] = *zahl;
    }
    const auto sekunde = spaltenzahl(spalten(z, 15, 11));
    if (!sekunde) return {};
    const auto zeit = gps_zeit({volles_jahr(feld[0]), feld[1], feld[2], feld[3], feld[4], *sekunde});
    if (!zeit) return {};
    e.zeit = *zeit;
    e.zeit_da = true;
    return e;
}

void Leser::daten()
{
    // About one observation a line of its columns; growing step by step would copy a large file's values many times.
    if (m_umfang == Umfang::alles) {
        m_ziel.messungen.reserve(m_bytes / (16 * m_spalten.size()));
        grosse_seiten(m_ziel.messungen.data(), m_ziel.messungen.capacity() * sizeof(Messung));
        m_ziel.epochen.reserve(m_ziel.messungen.capacity() / SATELLITEN_JE_ZEILE);
    }
    std::string_view z;
    while (!m_abgebrochen && zeile(z)) {
        const auto e = epochenzeile(z);
        if (!e) {
            m_unlesbar += spalten(z, 0, z.size()).empty() ? 0 : 1;
            continue;
        }
        m_umkehr = m_rest.data();
        const bool gut = e->kennung <= 1 || e->kennung == 6 ? epoche(z, *e) : ereignis(*e);
        const char* const umkehr = std::exchange(m_umkehr, nullptr);
        if (gut) continue;
        ++m_unlesbar;
        m_rest = {umkehr, static_cast<std::size_t>(m_rest.data() + m_rest.size() - umkehr)};
    }
    hinweise_sammeln();
}

bool Leser::ereignis(const Epochenzeile& e)
{
    if ((e.kennung == 2 || e.kennung == 3) && !m_ziel.epochen.empty()) {
        m_ziel.hinweise.emplace_back(
            u8"Die Antenne wird bewegt oder wechselt den Standort: der Rest bleibt unbenutzt."_w);
        m_abgebrochen = true;
        return true;
    }
    std::string_view z;
    for (int i = 0; i < e.anzahl && zeile(z); ++i) {
        // Only what the columns of the data depend on is taken from a header inside the data.
        if (spalten(z, 60, 20) == "# / TYPES OF OBSERV") arten_lesen(z);
    }
    return true;
}

bool Leser::satelliten_lesen(std::string_view z, int anzahl)
{
    m_satelliten.clear();
    for (std::size_t i = 0; i < static_cast<std::size_t>(anzahl); ++i) {
        const std::size_t platz = i % SATELLITEN_JE_ZEILE;
        if (i > 0 && platz == 0 && (!zeile(z) || !spalten(z, 0, 32).empty())) return false;
        const std::size_t spalte = 32 + 3 * platz;
        if (z.size() < spalte + 3) return false;
        const char system = z[spalte] == ' ' ? m_leeres_system : z[spalte];
        const int nummer = satellitennummer(z[spalte + 1], z[spalte + 2]);
        if (nummer < 0) return false;
        m_satelliten.push_back(system == 'G' ? nummer : system == 'R' && m_glonass ? GLONASS + nummer : 0);
    }
    return true;
}

void Leser::wert_lesen(std::string_view z, std::size_t platz, std::size_t art, Messung& ziel) const
{
    const std::size_t spalte = 16 * platz;
    if (z.size() <= spalte) return;
    double wert = 0.0;
    if (z.size() < spalte + 14 || !festwert(z.data() + spalte, wert))
        wert = spaltenzahl(spalten(z, spalte, 14)).value_or(0.0);
    if (wert == 0.0) return;
    ziel.wert[art] = wert;
    if (z.size() > spalte + 14) ziel.schlupf[art] = z[spalte + 14];
    if (z.size() > spalte + 15) ziel.staerke[art] = z[spalte + 15];
}

bool Leser::messung_lesen(Messung& ziel)
{
    std::string_view z;
    for (std::size_t i = 0; i < m_spalten.size(); ++i) {
        const std::size_t platz = i % WERTE_JE_ZEILE;
        if (platz == 0 && !zeile(z)) return false;
        if (m_spalten[i] >= 0) wert_lesen(z, platz, static_cast<std::size_t>(m_spalten[i]), ziel);
    }
    return true;
}

bool Leser::ueberspringen(std::size_t zeilen)
{
    std::string_view z;
    for (; zeilen > 0; --zeilen)
        if (!zeile(z)) return false;
    return true;
}

bool Leser::epoche(std::string_view z, const Epochenzeile& e)
{
    std::string uhr(spalten(z, 68, 12));
    if (!satelliten_lesen(z, e.anzahl)) return false;
    const std::size_t erste = m_ziel.messungen.size();
    const bool doppelt = !m_ziel.epochen.empty() && e.zeit <= m_ziel.epochen.back().zeit;
    const bool benutzt = e.kennung <= 1 && !doppelt;
    const bool gewollt =
        benutzt && m_umfang == Umfang::alles && (!m_fenster || (m_fenster->von <= e.zeit && e.zeit <= m_fenster->bis));
    const std::size_t zeilen = (m_spalten.size() + WERTE_JE_ZEILE - 1) / WERTE_JE_ZEILE;
    bool ganz = gewollt || ueberspringen(zeilen * m_satelliten.size());
    for (std::size_t i = 0; gewollt && ganz && i < m_satelliten.size(); ++i) {
        if (m_satelliten[i] == 0) {
            ganz = ueberspringen(zeilen);
            continue;
        }
        Messung& messung = m_ziel.messungen.emplace_back();
        messung.satellit = m_satelliten[i];
        messung.schlupf.fill(' ');
        messung.staerke.fill(' ');
        ganz = messung_lesen(messung);
    }
    if (!ganz) {
        m_ziel.messungen.resize(erste);
        return false;
    }
    if (e.kennung <= 1 && doppelt) ++m_rueckwaerts;
    if (!benutzt || m_satelliten.empty()) return true;
    m_ziel.epochen.push_back({e.zeit, e.kennung, erste, m_ziel.messungen.size() - erste, std::move(uhr)});
    // What comes behind the window is not wanted, and a step back in time would be passed over.
    m_abgebrochen = m_fenster && m_fenster->bis < e.zeit;
    return true;
}

void Leser::hinweise_sammeln()
{
    if (m_unlesbar > 0) m_ziel.hinweise.push_back(verkettet(m_unlesbar, u8" unlesbare Zeilen übergangen."_w));
    if (m_rueckwaerts > 0)
        m_ziel.hinweise.push_back(verkettet(m_rueckwaerts, u8" Epochen mit rückwärts laufender Zeit übergangen."_w));
}

std::optional<RinexBeobachtung> lesen(Leser leser, Umfang umfang, std::string& grund)
{
    const bool gut = leser.kopf(grund);
    if (gut && umfang != Umfang::kopf) leser.daten();
    if (leser.gestoert()) grund = "konnte nicht fehlerfrei gelesen werden";
    return gut && !leser.gestoert() ? std::optional(leser.ergebnis()) : std::nullopt;
}

}  // namespace

double RinexBeobachtung::intervall() const
{
    if (epochen.size() < 2) return 0.0;
    std::vector<double> abstaende;
    for (std::size_t i = 1; i < epochen.size(); ++i) abstaende.push_back(abstand(epochen[i].zeit, epochen[i - 1].zeit));
    const auto mitte = abstaende.begin() + static_cast<std::ptrdiff_t>(abstaende.size() / 2);
    std::nth_element(abstaende.begin(), mitte, abstaende.end());
    return std::round(*mitte * 1000.0) / 1000.0;
}

std::optional<RinexBeobachtung> beobachtung_lesen(std::string_view text, Umfang umfang, std::string& grund,
                                                  const std::optional<Zeitspanne>& fenster, Systeme systeme)
{
    return lesen(Leser(text, umfang, fenster, systeme), umfang, grund);
}

std::optional<RinexBeobachtung> beobachtung_lesen(Beobachtungsstrom strom, Umfang umfang, std::string& grund,
                                                  const std::optional<Zeitspanne>& fenster, Systeme systeme)
{
    return lesen(Leser(std::move(strom), umfang, fenster, systeme), umfang, grund);
}

}  // namespace jorv::suite
