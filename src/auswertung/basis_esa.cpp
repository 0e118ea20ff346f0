#include "auswertung/basis_esa.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include "geo/gps_zeit.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/kalender.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr Wertname name_von = {"", "PKZ (VON)", "PKZ (VON)"}, name_nach = {"", "PKZ (NACH)", "PKZ (NACH)"},
                   name_sigma = {"", "Sigma", "Sigma"}, name_ambiguity = {"", "Ambiguity", "Ambiguity"},
                   name_tag = {"", "GPS-Tag", "GPS-Tag"};

struct Feldstelle {
    int wort;
    const Wertname& name;
};

constexpr std::array<Feldstelle, 5> felder = {
    {{1, name_von}, {2, name_nach}, {3, name_sigma}, {7, name_ambiguity}, {8, name_tag}}};

using Felder = std::array<std::string_view, felder.size()>;

constexpr std::size_t breite_wert = 5, laenge_station = 12, spalte_epochen = 25;

using GPS_Tag = std::pair<std::int16_t, std::int16_t>;  // week and day of the week

std::optional<std::string> lesen(Global& g, const std::string& datei)
{
    Gelesen gelesen = g.dateien.lesen_stufenweise(datei);
    if (gelesen.gut()) return std::move(gelesen.text);
    stop_melden(g, gelesen.stufe == Dateistufe::oeffnen
                       ? datei_meldung("Die Datei:", datei, u8"konnte nicht geöffnet werden!"_w)
                       : datei_meldung("Die Ergebnisdatei:", datei, "konnte nicht richtig gelesen werden!"));
    return std::nullopt;
}

// `art` is "SIG", "AMB" or "EPO".
Fehler schreiben(Global& g, std::string_view stamm, std::string_view art, std::string_view text)
{
    const std::string datei = verkettet(stamm, ".", art);
    const Dateistufe stufe = g.dateien.schreiben_stufenweise(datei, text);
    if (stufe == Dateistufe::gut) return Fehler::keiner;
    stop_melden(g, stufe == Dateistufe::oeffnen ? datei_meldung(verkettet("Die ", art, "-Datei:"), datei,
                                                                u8"konnte nicht angelegt/überschrieben werden!"_w)
                                                : datei_meldung(verkettet("In die ", art, "-Datei:"), datei,
                                                                "konnte nicht geschrieben werden!"));
    return Fehler::gesetzt;
}

// "1316/6", or "13166" with the day as the last digit.
std::optional<GPS_Tag> gps_tag(std::string_view wort)
{
    const auto strich = wort.find('/');
    const bool getrennt = strich != std::string_view::npos;
    const auto woche = ganz_streng(getrennt ? wort.substr(0, strich) : ohne_ende(wort, 1));
    const auto tag = ganz_streng(getrennt ? wort.substr(strich + 1) : rechts(wort, 1));
    if (!woche || !tag || *woche < 0 || *woche > std::numeric_limits<std::int16_t>::max() || *tag < 0 || *tag > 6)
        return std::nullopt;
    return GPS_Tag{static_cast<std::int16_t>(*woche), static_cast<std::int16_t>(*tag)};
}

// The dates that WATIME has given; each call of it costs a process.
class Kalenderblatt {
public:
    Fehler datum(Global& g, const GPS_Tag& tag, std::string& text)
    {
        auto stelle = m_daten.find(tag);
        if (stelle == m_daten.end()) {
            Zeitpunkt zeitpunkt;
            if (const Fehler fehler = gps_datum_holen(g, tag.first, tag.second, zeitpunkt); ist_fehler(fehler))
                return fehler;
            stelle = m_daten.emplace(tag, tag_text(zeitpunkt)).first;
        }
        text = stelle->second;
        return Fehler::keiner;
    }

private:
    std::map<GPS_Tag, std::string> m_daten;
};

std::optional<Felder> felder_lesen(Global& g, const std::string& datei, std::string_view zeile, int nummer)
{
    Felder werte;
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const Wort wort = wort_finden(zeile, felder[i].wort);
        if (wort.status != Wortstatus::gefunden) {
            stop_melden(g, wort_meldung(felder[i].name, wortfehler(wort.status), datei, nummer));
            return std::nullopt;
        }
        werte[i] = wort.text;
    }
    return werte;
}

std::string zeile_mit(const Felder& werte, std::string_view datum, std::string_view wert)
{
    const std::string luecke(wert.size() < breite_wert ? breite_wert - wert.size() : 0, ' ');
    return verkettet(werte[0], " ", werte[1], " ", datum, luecke, wert, "\r\n");
}

struct Tagestexte {
    std::string sigma, ambiguity;
};

Fehler tem_auswerten(Global& g, const std::string& datei, std::string_view text, Tagestexte& texte)
{
    Kalenderblatt kalender;
    Zeilenleser leser(text);
    int nummer = 0;
    while (const auto zeile = leser.naechste()) {
        ++nummer;
        if (trimmen(*zeile).empty() || zeile->starts_with("RefS")) continue;
        const auto werte = felder_lesen(g, datei, *zeile, nummer);
        if (!werte) continue;
        const auto tag = gps_tag((*werte)[4]);
        if (!tag) {
            stop_melden(g, wort_meldung(name_tag, Wortfehler::fehlerhaft, datei, nummer));
            continue;
        }
        std::string datum;
        if (const Fehler fehler = kalender.datum(g, *tag, datum); ist_fehler(fehler)) return fehler;
        texte.sigma += zeile_mit(*werte, datum, (*werte)[2]);
        texte.ambiguity += zeile_mit(*werte, datum, (*werte)[3]);
    }
    return Fehler::keiner;
}

Fehler ohne_platz(Global& g, int nummer, std::string_view feld, int anzahl)
{
    stop_melden(g,
                dimensionierung_meldung(nummer, "m_basis_esa_click", verkettet("    ReDim ", feld, "(", anzahl, ")")));
    return Fehler::gesetzt;
}

// An epoch line belongs to the scan line above it; each observation file counts once.
Fehler lis_auswerten(Global& g, std::string_view text, int grenze, std::string& epochen)
{
    Feld<std::string> l_sta_feld, l_epo_feld;
    l_sta_feld.grenze_setzen(grenze);
    std::optional<std::string> station;
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) {
        if (zeile->starts_with("Scan")) station = rechts(*zeile, laenge_station);
        if (!station || !zeile->starts_with("  actual")) continue;
        if (std::find(l_sta_feld.begin(), l_sta_feld.end(), *station) == l_sta_feld.end()) {
            const int anzahl = l_sta_feld.anzahl() + 1;
            if (!l_sta_feld.anfuegen(*station)) return ohne_platz(g, 58, "l_sta_feld", anzahl);
            if (!l_epo_feld.anfuegen(std::string(trimmen(mitte(*zeile, spalte_epochen)))))
                return ohne_platz(g, 59, "l_epo_feld", anzahl);
        }
        station.reset();
    }
    for (int i = 1; i <= l_sta_feld.anzahl(); ++i) epochen += verkettet(l_sta_feld[i], " ", l_epo_feld[i], "\r\n");
    return Fehler::keiner;
}

}  // namespace

Fehler m_basis_esa(Global& g)
{
    return m_basis_esa(g, std::numeric_limits<int>::max());
}

Fehler m_basis_esa(Global& g, int grenze)
{
    const auto pfad = [&g](std::string_view ordner, std::string_view endung) {
        return im_Verfahren(g, verkettet(ist_B(g) ? ordner : "", g.Verfahrensnummer, endung));
    };
    const std::string stamm = pfad("jorv_out\\export\\", ""), tem = stamm + ".TEM";
    if (!g.dateien.vorhanden(tem)) {
        stop_melden(g, datei_meldung("Eine Datei:", tem, "existiert noch nicht!"));
        return Fehler::gesetzt;
    }
    const auto ergebnisse = lesen(g, tem);
    if (!ergebnisse) return Fehler::gesetzt;
    Tagestexte texte;
    if (const Fehler fehler = tem_auswerten(g, tem, *ergebnisse, texte); ist_fehler(fehler)) return fehler;
    if (const Fehler fehler = schreiben(g, stamm, "SIG", texte.sigma); ist_fehler(fehler)) return fehler;
    if (const Fehler fehler = schreiben(g, stamm, "AMB", texte.ambiguity); ist_fehler(fehler)) return fehler;
    const auto protokoll = lesen(g, pfad("jorv_out\\lis_bas\\", ".LIS"));
    if (!protokoll) return Fehler::gesetzt;
    std::string epochen;
    if (const Fehler fehler = lis_auswerten(g, *protokoll, grenze, epochen); ist_fehler(fehler)) return fehler;
    return schreiben(g, stamm, "EPO", epochen);
}

}  // namespace jorv
