#include "daten/rinex_abtastung.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstring>

#include "daten/dateistand.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/kalender.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr std::size_t spalte_marke = 61, spalte_zustand = 27, spalte_anzahl = 30, spalte_satelliten = 33;
constexpr std::size_t erstes_stueck = std::size_t{16} << 10;  // holds a header
constexpr std::int32_t satelliten_je_zeile = 12;
constexpr int max_je_epoche = 70;

// A line that bears one of these is no epoch, even where its columns look like one.
constexpr std::array<std::string_view, 19> kopfmarken = {
    "RINEX VERSION / TYPE", "PGM / RUN BY / DATE", "COMMENT",        "MARKER NAME",         "MARKER NUMBER",
    "OBSERVER / AGENCY",    "REC # / TYPE / VERS", "ANT # / TYPE",   "APPROX POSITION XYZ", "ANTENNA: DELTA H/E/N",
    "WAVELENGTH FACT L1/2", "# / TYPES OF OBSERV", "INTERVAL",       "TIME OF FIRST OBS",   "TIME OF LAST OBS",
    "LEAP SECONDS",         "# OF SATELLITES",     "PRN / # OF OBS", "END OF HEADER"};

bool mit_kopfmarke(std::string_view zeile)
{
    return zeile.size() >= spalte_marke && std::any_of(kopfmarken.begin(), kopfmarken.end(),
                                                       [zeile](auto marke) { return ist_kopfzeile(zeile, marke); });
}

bool zustand_null(std::string_view zeile)
{
    return mitte(zeile, spalte_zustand, 3) == "  0";
}

std::int32_t satelliten_zahl(std::string_view zeile)
{
    const auto feld = mitte(zeile, spalte_anzahl, 3);
    std::int32_t zahl = 0;
    for (const char z : feld) {
        if (z == ' ') continue;
        if (z < '0' || z > '9') return ganz32(zahl_lesen(feld)).value_or(0);
        zahl = 10 * zahl + (z - '0');
    }
    return zahl;
}

// Two digits, the first of which may be blank; -1 for anything else.
int zweistellig(std::string_view zeile, std::size_t spalte)
{
    const auto feld = mitte(zeile, spalte, 2);
    const auto ziffer = [](char z) { return z >= '0' && z <= '9'; };
    if (feld.size() != 2 || !ziffer(feld[1]) || !(ziffer(feld[0]) || feld[0] == ' ')) return -1;
    return (feld[0] == ' ' ? 0 : 10 * (feld[0] - '0')) + (feld[1] - '0');
}

// " yy mm dd hh mm ss.sssssss": years from 80 on are of the last century; a second of 60 is allowed.
std::optional<double> epochenzeit(std::string_view zeile)
{
    constexpr int jahrhundertwende = 80;
    const int jahr = zweistellig(zeile, 2), monat = zweistellig(zeile, 5), tag = zweistellig(zeile, 8),
              stunde = zweistellig(zeile, 11), minute = zweistellig(zeile, 14);
    const double sekunde = zahl_lesen(mitte(zeile, 16, 11));
    if (jahr < 0 || monat < 1 || monat > 12 || tag < 1 || tag > 31 || stunde < 0 || minute < 0) return std::nullopt;
    if (!(sekunde >= 0 && sekunde < 61)) return std::nullopt;
    const std::int64_t ganze =
        sekunden_seit_1970({jahr + (jahr < jahrhundertwende ? 2000 : 1900), monat, tag, stunde, minute, 0});
    return static_cast<double>(ganze) + sekunde;
}

// Finds the epoch lines among the lines that it is shown.
class Epochensucher {
public:
    bool ist_epoche(std::string_view zeile)
    {
        if (!m_sucht) {
            if (ist_kopfzeile(zeile, "COMMENT")) return false;
            m_sucht = !zustand_null(zeile);
            return !m_sucht;
        }
        if (!zustand_null(zeile) || mit_kopfmarke(zeile)) return false;
        m_sucht = false;
        return true;
    }

private:
    bool m_sucht = false;  // an unfit line was met: from now on labels count too
};

// The walk that looks for the last epoch: it knows nothing of continuation lines.
class Endzeitgang {
public:
    explicit Endzeitgang(std::int64_t zeilen_je_satellit) : m_je_satellit(zeilen_je_satellit) {}
    void nehmen(std::string_view zeile)
    {
        if (ausstehend > 0) {
            --ausstehend;
        } else if (m_sucher.ist_epoche(zeile)) {
            letzte = zeile;  // a copy: a file's lines don't stay
            ausstehend = std::max<std::int64_t>(m_je_satellit * satelliten_zahl(zeile), 0);
        }
    }
    std::string letzte;
    std::int64_t ausstehend = 0;  // lines that it doesn't look at

private:
    std::int64_t m_je_satellit;
    Epochensucher m_sucher;
};

// The walk that gathers the satellites.
class Satellitengang {
public:
    Satellitengang(std::int64_t zeilen_je_satellit, std::vector<Epoche>* folge)
        : m_je_satellit(zeilen_je_satellit), m_folge(folge)
    {
    }
    void nehmen(std::string_view zeile)
    {
        if (ausstehend > 0) {
            --ausstehend;
        } else if (m_rest > 0) {
            namen_nehmen(zeile);
        } else if (m_sucher.ist_epoche(zeile)) {
            m_anzahl = m_rest = satelliten_zahl(zeile);
            m_in_epoche = 0;
            if (m_folge)
                if (const auto zeit = epochenzeit(zeile)) m_folge->push_back({*zeit, m_anzahl});
            namen_nehmen(zeile);
        }
    }
    std::vector<std::string> satelliten;
    std::int64_t ausstehend = 0;

private:
    void namen_nehmen(std::string_view zeile)
    {
        const auto hier = std::min(m_rest, satelliten_je_zeile);
        for (std::int32_t i = 0; i < hier; ++i)
            name_nehmen(mitte(zeile, spalte_satelliten + 3 * static_cast<std::size_t>(i), 3));
        m_rest -= satelliten_je_zeile;
        if (m_rest <= 0) ausstehend = std::max<std::int64_t>(m_je_satellit * m_anzahl, 0);
    }

    void name_nehmen(std::string_view feld)
    {
        constexpr std::string_view systeme = "GR ";
        const auto system = feld.empty() ? std::string_view::npos : systeme.find(feld[0]);
        if (system == std::string_view::npos || m_in_epoche >= max_je_epoche) return;
        ++m_in_epoche;
        if (feld.size() == 3) {
            const auto byte = [feld](std::size_t i) {
                return static_cast<std::size_t>(static_cast<unsigned char>(feld[i]));
            };
            auto bekannt = m_bekannt[(system * 256 + byte(1)) * 256 + byte(2)];
            if (bekannt) return;
            bekannt = true;
        }
        std::string name(feld);
        if (name.size() > 1 && name[1] == ' ') name[1] = '0';
        if (static_cast<int>(satelliten.size()) < ROVER_Settings_Satz::max_satelliten &&
            std::find(satelliten.begin(), satelliten.end(), name) == satelliten.end())
            satelliten.push_back(std::move(name));
    }

    std::int64_t m_je_satellit;
    std::vector<Epoche>* m_folge;
    std::int32_t m_anzahl = 0, m_rest = 0;
    int m_in_epoche = 0;
    Epochensucher m_sucher;
    std::bitset<3 * 256 * 256> m_bekannt;  // whole three-character fields seen before
};

void gestoert_melden(Global& g, const std::string& pfad)
{
    stop_melden(g, datei_meldung("Lesefehler in der Datei:", pfad,
                                 verkettet("\n", u8"Datei überprüfen und ggf. neu versuchen!"_w)));
}

}  // namespace

Zeilenstrom::Zeilenstrom(Dateistrom datei, std::size_t stueck) : m_puffer(std::move(datei), stueck, erstes_stueck) {}

// False at the end of the file.
bool Zeilenstrom::nachladen()
{
    const auto rest = static_cast<std::size_t>(m_ende - m_stelle);
    const std::string_view text = m_puffer.nachladen({m_stelle, rest});
    m_stelle = text.data();
    m_ende = m_stelle + text.size();
    return text.size() > rest;
}

std::optional<std::string_view> Zeilenstrom::naechste()
{
    const char* umbruch = nullptr;
    for (std::size_t gesucht = 0;;) {
        const auto rest = static_cast<std::size_t>(m_ende - m_stelle);
        if (rest > gesucht) umbruch = static_cast<const char*>(std::memchr(m_stelle + gesucht, '\n', rest - gesucht));
        gesucht = rest;
        if (umbruch || !nachladen()) break;
    }
    // What a failed read has cut off is no line.
    if (m_stelle == m_ende || (!umbruch && m_puffer.fehler())) return std::nullopt;
    std::string_view zeile(m_stelle, static_cast<std::size_t>((umbruch ? umbruch : m_ende) - m_stelle));
    m_stelle = umbruch ? umbruch + 1 : m_ende;
    ++m_nummer;
    if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);
    return zeile;
}

// As far as the lines' ends are in memory; `anzahl` becomes what is left.
void Zeilenstrom::vorhandene_ueberspringen(std::int64_t& anzahl)
{
    // Whole blocks by counting their line ends, which the compiler turns into vector code; the byte behind a block must
    // be there, so that a last line without an end is still met below.
    constexpr std::ptrdiff_t block = 128;
    while (m_ende - m_stelle > block) {
        unsigned char zeilen = 0;
        for (std::ptrdiff_t i = 0; i < block; ++i) zeilen = static_cast<unsigned char>(zeilen + (m_stelle[i] == '\n'));
        if (zeilen >= anzahl) break;
        anzahl -= zeilen;
        m_nummer += zeilen;
        m_stelle += block;
    }
    for (; anzahl > 0 && m_stelle != m_ende; --anzahl) {
        const auto* umbruch =
            static_cast<const char*>(std::memchr(m_stelle, '\n', static_cast<std::size_t>(m_ende - m_stelle)));
        if (!umbruch) return;
        m_stelle = umbruch + 1;
        ++m_nummer;
    }
}

void Zeilenstrom::ueberspringen(std::int64_t anzahl)
{
    while (anzahl > 0) {
        vorhandene_ueberspringen(anzahl);
        if (anzahl <= 0 || nachladen()) continue;
        // The last line may lack its end.
        if (m_stelle != m_ende) ++m_nummer;
        m_stelle = m_ende;
        return;
    }
}

bool ist_kopfzeile(std::string_view zeile, std::string_view marke)
{
    return mitte(zeile, spalte_marke, marke.size()) == marke;
}

std::int32_t typen_lesen(std::string_view zeile)
{
    return ganz32(zahl_lesen(ersetzt(std::string(links(zeile, 6)), ',', '.'))).value_or(0);
}

std::int32_t kopf_uebergehen(Zeilenstrom& strom)
{
    std::int32_t typen = 0;
    while (const auto zeile = strom.naechste()) {
        if (ist_kopfzeile(*zeile, "# / TYPES OF OBSERV") && typen == 0) typen = typen_lesen(*zeile);
        if (ist_kopfzeile(*zeile, "END OF HEADER")) break;
    }
    return typen;
}

Epochen epochen_abtasten(Zeilenstrom& strom, std::int32_t typen, std::vector<Epoche>* folge)
{
    // Rounded down, also for a negative count.
    const std::int64_t vier_mehr = std::int64_t{typen} + 4;
    const std::int64_t je_satellit = vier_mehr >= 0 ? vier_mehr / 5 : -((4 - vier_mehr) / 5);
    Endzeitgang endzeit(je_satellit);
    Satellitengang satelliten(je_satellit, folge);
    while (const auto zeile = strom.naechste()) {
        endzeit.nehmen(*zeile);
        satelliten.nehmen(*zeile);
        const auto ungesehen = std::min(endzeit.ausstehend, satelliten.ausstehend);
        strom.ueberspringen(ungesehen);
        endzeit.ausstehend -= ungesehen;
        satelliten.ausstehend -= ungesehen;
    }
    return {std::move(endzeit.letzte), std::move(satelliten.satelliten)};
}

std::optional<Beobachtungsdatei> beobachtungsdatei_oeffnen(Global& g, const std::string& name, std::string_view kopf)
{
    const std::string pfad = ist_dos_pfad(name) ? name : im_Verfahren(g, name);
    std::error_code fehler;
    Dateistrom strom = g.dateien.stroemen(pfad, fehler);
    switch (dateistand(fehler)) {
        case Dateistand::gut:
            break;
        case Dateistand::nicht_offen:
            stop_melden(g, datei_meldung(kopf, pfad, u8"konnte nicht geöffnet werden!"_w));
            return std::nullopt;
        case Dateistand::gestoert:
            gestoert_melden(g, pfad);
            return std::nullopt;
    }
    const auto ort = g.dateien.host(pfad);
    Dateikennung kennung{pfad, std::filesystem::file_size(ort, fehler), std::filesystem::last_write_time(ort, fehler)};
    return Beobachtungsdatei{Zeilenstrom(std::move(strom)), std::move(kennung)};
}

bool lesefehler_melden(Global& g, const Beobachtungsdatei& datei)
{
    if (!datei.strom.fehler()) return false;
    gestoert_melden(g, datei.kennung.Pfad);
    return true;
}

}  // namespace jorv
