#include "auswertung/berichtstext.h"

#include <array>

#include "modell/Gemeinsam.h"
#include "modell/Version.h"

namespace jorv {

namespace {

// The third line is one character longer than the others: a blank stands before its eighth "+".
constexpr std::array<std::string_view, 3> spaltenkopf = {
    u8"Site|DoY S| Sigma 0 | %Amb| #SV|   best  |%re-w|Lösungstyp|BeoZeit|AntHöhe| Rover-Antennentyp  |Start"_w,
    " ID |     |         |     |    |   PDOP  | Obs.|          | [Min.]|       |                    | Zeit",
    "----+-----+---------+-----+----+---------+-----+--------- +-------+-------+--------------------+------"};

}  // namespace

void Berichtstext::anhaengen(std::string_view zeile)
{
    m_text += zeile;
    m_text += "\r\n";
}

void Berichtstext::leerzeilen(int anzahl)
{
    for (int i = 0; i < anzahl; ++i) anhaengen("");
}

void Berichtstext::kopf(const Global& g, std::string_view titel, std::string_view datum)
{
    const Zeitpunkt jetzt = g.uhr->jetzt();
    zeile("Jorv V", programm_version, " vom ", programm_datum, "  , Amtshaus Tornby");
    leerzeilen(1);
    zeile(titel);
    leerzeilen(1);
    zeile("Verfahren:          ");
    zeile("Aktennummer:        ");
    zeile("Auswerter:          ");
    zeile("Dienststelle:       ");
    zeile(datum, tag_text(jetzt), " ", uhrzeit_text(jetzt));
    zeile("Arbeitsverzeichnis: ", g.Arbeitsverzeichnis);
    zeile("Besonderheiten:     ");
    zeile(u8"(z.B. Begründung"_w);
    zeile(u8"für fehlende Lösungen)"_w);
    leerzeilen(2);
}

void Berichtstext::tabellenkopf()
{
    for (const auto spalten : spaltenkopf) zeile(spalten);
}

void Berichtstext::loesungen(int anzahl, int erwartet)
{
    const std::string text = verkettet(u8"Anzahl Lösungen:    "_w, anzahl);
    if (anzahl == erwartet)
        zeile(text);
    else
        zeile(text, " *** ", erwartet - anzahl, " fehlen! ***");
}

void Berichtstext::antennendatei(const Global& g, std::string_view ueberschrift)
{
    leerzeilen(3);
    zeile("Verwendete Antennenparameterdatei: ", Verfahrens_Datei(g, verkettet(".", Antennenformat(g))));
    leerzeilen(1);
    zeile(ueberschrift);
}

void Berichtstext::antennen(const Global& g)
{
    for (const auto& antenne : g.antennenliste) zeile(antenne);
}

void Loesungszahl::zaehlen(std::string_view zeile, std::string_view wort_L0)
{
    const auto enthaelt = [&](std::string_view wort) { return zeile.find(wort) != std::string_view::npos ? 1 : 0; };
    L1 += enthaelt("FixedL1");
    L0 += enthaelt(wort_L0);
    float_ += enthaelt("FloatDGNSS");
}

void Loesungszahl::schreiben(Berichtstext& bericht) const
{
    bericht.zeile("Anzahl L1 fixed:    ", L1);
    bericht.zeile("Anzahl L0 fixed:    ", L0);
    bericht.zeile("Anzahl float:       ", float_);
}

}  // namespace jorv
