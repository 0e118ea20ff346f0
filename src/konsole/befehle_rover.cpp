#include <array>
#include <vector>

#include "auswertung/baumbefehle.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/zeigen.h"
#include "modell/Gemeinsam.h"
#include "planung/begruendung.h"
#include "planung/handarbeit.h"

namespace jorv {

namespace {

// Takes the present choice back, so that the words alone are chosen.
void auswahl_leeren(Global& g, Handarbeit& h)
{
    for (int i = 1; i <= h.Detail.anzahl(); ++i)
        if (h.Detail[i].farbe == Zeilenfarbe::gelb) handarbeit_klick(g, h, i);
}

int angebotene_zeile(const Handarbeit& h, std::string_view datei)
{
    for (int i = 1; i <= h.Detail.anzahl(); ++i)
        if (gleich_ohne_gross(h.Detail[i].Dateiname, datei)) return i;
    return 0;
}

Ausgang stationen_waehlen(Lage& lage, Handarbeit& h)
{
    for (std::size_t i = 2; i < lage.aufruf.worte.size(); ++i) {
        const std::string datei = text_aus_utf8_mit_ersatz(lage.wort(i));
        const int zeile = angebotene_zeile(h, datei);
        if (zeile == 0)
            return lage.stop(verkettet("Die Datei ", datei, " hat mit dem ROVER ", h.ROVER.Dateiname,
                                       " keine gemeinsame Beobachtungszeit im Verfahren!"));
        if (h.Detail[zeile].farbe == Zeilenfarbe::gelb)
            return lage.falsch(verkettet("Die Datei ", lage.wort(i), " steht mehrmals im Aufruf."));
        handarbeit_klick(lage.g, h, zeile);
        if (h.Detail[zeile].farbe != Zeilenfarbe::gelb) return Ausgang::misslungen;
    }
    return Ausgang::gut;
}

Ausgang zuordnen(Lage& lage)
{
    if (!ist_E_oder_S(lage.g)) return lage.nicht_in_diesem_modus();
    const int rover = lage.rover_index(lage.wort(1));
    if (rover == 0) return lage.rover_unbekannt(lage.wort(1));
    Handarbeit h;
    if (ist_fehler(handarbeit_oeffnen(lage.g, lage.g.OBS_R[rover].Dateiname, h))) return Ausgang::misslungen;
    auswahl_leeren(lage.g, h);
    if (const Ausgang ausgang = stationen_waehlen(lage, h); ausgang != Ausgang::gut) return ausgang;
    h.Schutz = lage.aufruf.option.contains("--schutz");
    handarbeit_ok(lage.g, h);
    lage.geaendert = true;
    lage.aus << (lage.aufruf.json ? zuordnung_json(lage.g, rover) : utf8_aus_1252(zuordnung_text(lage.g, rover)));
    return Ausgang::gut;
}

Ausgang baum_ausfuehren(Lage& lage, std::string_view befehl, const std::string& name, std::string_view eltern)
{
    return ist_fehler(baum_befehl(lage.g, befehl, name, eltern).fehler) ? Ausgang::misslungen : Ausgang::gut;
}

Ausgang nicht_fertig(Lage& lage)
{
    const int rover = lage.rover_index(lage.wort(1));
    if (rover == 0) return lage.rover_unbekannt(lage.wort(1));
    const std::string name = lage.g.OBS_R[rover].Dateiname;
    const std::string eltern = baum_eltern_von(lage.g.baum, {"E_Datei"}, name);
    if (eltern.empty()) return lage.stop(verkettet("Der ROVER ", name, " ist nicht berechnet!"));
    return baum_ausfuehren(lage, "mnu_tree_nichtfertig", name, eltern);
}

Ausgang rover_loeschen(Lage& lage)
{
    const int rover = lage.rover_index(lage.wort(1));
    if (rover == 0) return lage.rover_unbekannt(lage.wort(1));
    const std::string name = lage.g.OBS_R[rover].Dateiname;
    return baum_ausfuehren(lage, "mnu_tree_loeschen", name, baum_eltern_von(lage.g.baum, {"R_Datei", "E_Datei"}, name));
}

Ausgang antenne_loeschen(Lage& lage)
{
    const std::string gesucht = text_aus_utf8_mit_ersatz(lage.wort(1));
    for (const std::string& datei : lage.g.Antennen_Dateien)
        if (gleich_ohne_gross(datei, gesucht))
            return baum_ausfuehren(lage, "mnu_tree_loeschen", datei, baum_eltern_von(lage.g.baum, {"A_Datei"}, datei));
    return lage.stop(verkettet("Die Antennen-Datei ", gesucht, " gibt es im Verfahren nicht!"));
}

constexpr std::array<std::string_view, 1> optionen_zuordnen = {"--schutz"};

constexpr Befehl befehle[] = {
    {"zuordnen", "NR ROVER DATEI... [--schutz]",
     "ordnet einem ROVER von Hand Stationsdateien zu, höchstens vier\n"
     "Die Dateien ersetzen die bisherige Zuordnung; alle sind von einem Tag und einer Session. Ampel und Grund werden\n"
     "gezeigt. Mit --schutz bleibt die Zuordnung, wenn Figuren oder Dateien dazukommen.",
     "jorv zuordnen 1 5501167j.16o 0590167j.16o 0591167j.16o 0593167j.16o --schutz", 3, beliebig_viele,
     optionen_zuordnen, Grundlage::verfahren, zuordnen},
    {"nicht-fertig",
     "NR ROVER",
     "löscht Protokoll und Ergebnis eines berechneten ROVER, damit er neu berechnet wird",
     "jorv nicht-fertig 1 5501167j.16o",
     2,
     2,
     {},
     Grundlage::verfahren,
     nicht_fertig},
    {"rover-loeschen",
     "NR ROVER",
     "nimmt nach einer Frage einen ROVER mit seinen Dateien und Ergebnissen aus dem Verfahren",
     "jorv rover-loeschen 1 5501167j.16o --ja",
     2,
     2,
     {},
     Grundlage::verfahren,
     rover_loeschen},
    {"antenne-loeschen",
     "NR DATEI",
     "löscht nach einer Frage eine Antennen-Datei des Verfahrens",
     "jorv antenne-loeschen 1 antennen.atx --ja",
     2,
     2,
     {},
     Grundlage::verfahren,
     antenne_loeschen},
};

}  // namespace

std::span<const Befehl> befehle_rover()
{
    return befehle;
}

}  // namespace jorv
