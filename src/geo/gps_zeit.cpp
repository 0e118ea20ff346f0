#include "geo/gps_zeit.h"

#include "modell/Batchzeilen.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/prozess.h"
#include "plattform/text.h"
#include "plattform/wort.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// Runs one WATIME line and gives the first line of its answer.
Fehler watime(Global& g, std::string_view watime_zeile, std::string& antwort)
{
    const std::string aufruf = im_Verfahren(g, "Jorv.BAT"), datum = im_Verfahren(g, "Jorv.tmp");
    const std::string batch =
        verkettet("@echo off\r\n", batch_path(g.EXE_Verzeichnis), "\r\n", batch_laufwerk(g.Arbeitsverzeichnis), "\r\n",
                  batch_cd(g.Arbeitsverzeichnis), "\r\n", dos_text(watime_zeile), "\r\n");
    if (g.dateien.schreiben(aufruf, batch, Dauer::fluechtig)) {
        stop_melden(g, datei_meldung("Die Aufrufdatei:", aufruf,
                                     u8"der Batchdatei konnte nicht angelegt/überschrieben werden!"_w));
        return Fehler::gesetzt;
    }
    // An answer of an earlier call must not be taken for this one.
    if (g.dateien.ist_datei(datum)) (void)g.dateien.loeschen(datum);
    prozess_warten(g.dateien, verkettet("\"", aufruf, "\""));
    if (!g.dateien.vorhanden(datum)) {
        stop_melden(g, datei_meldung("Die Datumsdatei:", datum, u8"konnte nicht geöffnet werden!"_w));
        return Fehler::gesetzt;
    }
    const auto text = g.dateien.lesen(datum);
    if (!text) {
        stop_melden(g, datei_meldung("Die Datumsdatei:", datum, "konnte nicht richtig gelesen werden!"));
        return Fehler::gesetzt;
    }
    const auto zeile = Zeilenleser(*text).naechste();
    if (!zeile) {
        stop_melden(g, datei_meldung("Die Datumsdatei:", datum, "hat keine Informationen!"));
        return Fehler::gesetzt;
    }
    antwort = *zeile;
    return Fehler::keiner;
}

Fehler wort_fehlt(Global& g, std::string_view kopf)
{
    stop_melden(g, verkettet(kopf, "\n", im_Verfahren(g, "Jorv.tmp"), "\n\n"));
    return Fehler::gesetzt;
}

}  // namespace

std::optional<std::string_view> watime_tag(std::string_view antwort)
{
    const Wort wort = wort_finden(antwort, 3);
    if (wort.status != Wortstatus::gefunden) return std::nullopt;
    return ohne_ende(wort.text, 3);
}

std::optional<Zeitpunkt> watime_datum(std::string_view antwort)
{
    const Wort wort = wort_finden(antwort, 1);
    return wort.status == Wortstatus::gefunden ? datum_lesen(wort.text) : std::nullopt;
}

Fehler gps_zeit_holen(Global& g, std::int16_t jahr, std::int16_t monat, std::int16_t tag, std::int16_t stunde,
                      std::int16_t minute, std::int16_t sekunde, std::string& gps_zeit)
{
    std::string zeile = "WATIME", antwort;
    for (const std::int16_t wert : {jahr, monat, tag, stunde, minute, sekunde}) zeile += zahl_text_blank(wert);
    if (const Fehler fehler = watime(g, zeile + " > Jorv.tmp", antwort); ist_fehler(fehler)) return fehler;
    const auto gelesen = watime_tag(antwort);
    if (!gelesen) return wort_fehlt(g, "(GPS-Zeit) fehlt in der Datums-Datei:");
    gps_zeit = *gelesen;
    return Fehler::keiner;
}

Fehler gps_datum_holen(Global& g, std::int16_t gps_woche, std::int16_t gps_tag, Zeitpunkt& datum)
{
    std::string antwort;
    const std::string zeile = verkettet("WATIME ", int{gps_woche}, "/", int{gps_tag}, " > Jorv.tmp");
    if (const Fehler fehler = watime(g, zeile, antwort); ist_fehler(fehler)) return fehler;
    const auto gelesen = watime_datum(antwort);
    if (!gelesen) return wort_fehlt(g, "GPS-Datum fehlt in der Datums-Datei:");
    datum = *gelesen;
    return Fehler::keiner;
}

}  // namespace jorv
