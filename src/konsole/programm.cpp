#include "konsole/programm.h"

#include "app/einstellungen.h"
#include "app/start.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "modell/Gemeinsam.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahren.h"

namespace jorv {

namespace {

int falscher_aufruf(const Konsole& konsole, const Aufruf& aufruf, std::string_view fehler)
{
    konsole.err << fehler << '\n';
    if (aufruf.befehl)
        konsole.err << "Aufruf: " << befehl_zeile(*aufruf.befehl) << '\n';
    else
        konsole.err << hilfe_uebersicht();
    return static_cast<int>(Ausgang::falscher_aufruf);
}

Ausgang starten(Lage& lage)
{
    Startwahl wahl;
    if (const auto& wort = lage.aufruf.einstellungen; !wort.empty()) {
        const auto pfad = pfad_aus_wort(lage.g.dateien.laufwerke(), wort);
        if (!pfad) return lage.pfad_nicht_verwendbar(wort);
        wahl.einstellungen = *pfad;
    }
    return ist_fehler(start(lage.g, wahl)) ? Ausgang::misslungen : Ausgang::gut;
}

// The name in the list of the number that the command was given.
Ausgang verfahren_finden(Lage& lage, std::string& name)
{
    const auto nummer = nummer_aus_wort(lage.wort(0));
    if (!nummer) return lage.falsch(verkettet(lage.wort(0), " ist keine Nummer eines Verfahrens."));
    name = Name_zu_Nummer(lage.g, *nummer);
    if (name.empty()) return lage.stop(verkettet("Ein Verfahren mit der Nummer ", *nummer, " gibt es nicht!"));
    return Ausgang::gut;
}

// The command itself. Its own word counts, and any stop message that it showed.
Ausgang ausfuehren(Lage& lage)
{
    lage.schirm.fortschritt_erlauben();
    const int vorher = lage.schirm.stopmeldungen();
    Ausgang ausgang = lage.aufruf.befehl->ausfuehren(lage);
    lage.schirm.fenster_abwarten();
    const bool sichern = lage.geaendert && lage.g.Verfahren_offen() && lage.g.vollstaendig_gelesen;
    if (sichern && ist_fehler(Verfahren_sichern(lage.g))) ausgang = Ausgang::misslungen;
    if (ausgang == Ausgang::gut && lage.schirm.stopmeldungen() > vorher) ausgang = Ausgang::misslungen;
    return ausgang;
}

Ausgang mit_einstellungen(Lage& lage)
{
    if (const Ausgang ausgang = starten(lage); ausgang != Ausgang::gut) return ausgang;
    const Grundlage grundlage = lage.aufruf.befehl->grundlage;
    std::string name;
    const bool mit_verfahren = grundlage >= Grundlage::nur_lesen;
    if (mit_verfahren)
        if (const Ausgang ausgang = verfahren_finden(lage, name); ausgang != Ausgang::gut) return ausgang;
    if (grundlage >= Grundlage::katalog) erste_aktivierung(lage.g);
    Ausgang ausgang = Ausgang::gut;
    const Zugriff zugriff = grundlage == Grundlage::nur_lesen ? Zugriff::lesen : Zugriff::aendern;
    if (mit_verfahren && ist_fehler(Verfahren_oeffnen(lage.g, name, zugriff))) ausgang = Ausgang::misslungen;
    if (ausgang == Ausgang::gut) ausgang = ausfuehren(lage);
    if (ausgang == Ausgang::falscher_aufruf) return ausgang;
    return ist_fehler(ini_schreiben_START(lage.g)) ? Ausgang::misslungen : ausgang;
}

}  // namespace

int programm(const Konsole& konsole, std::span<const std::string> worte)
{
    const auto [aufruf, fehler] = aufruf_lesen(worte, alle_befehle());
    if (!fehler.empty()) return falscher_aufruf(konsole, aufruf, fehler);
    Konsolenschirm schirm(konsole.aus, konsole.err, {aufruf.antwort, konsole.terminal}, konsole.abbruch);
    const Systemuhr uhr;
    Global g(schirm, uhr, Dateisystem(Laufwerke::aus_umgebung(), *konsole.aufrufe));
    Lage lage{aufruf, schirm, g, konsole.aus, konsole.err};
    const bool ohne = aufruf.befehl->grundlage == Grundlage::nichts;
    return static_cast<int>(ohne ? aufruf.befehl->ausfuehren(lage) : mit_einstellungen(lage));
}

}  // namespace jorv
