#include <algorithm>
#include <array>

#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/zeigen.h"
#include "modell/Gemeinsam.h"
#include "planung/begruendung.h"
#include "projekt/verfahren.h"
#include "projekt/verfahren_loeschen.h"

namespace jorv {

namespace {

Ausgang liste(Lage& lage)
{
    lage.aus << (lage.aufruf.json ? verfahrensliste_json(lage.g) : utf8_aus_1252(verfahrensliste_text(lage.g)));
    return Ausgang::gut;
}

Ausgang neu(Lage& lage)
{
    const std::string modus(Modus_Ziffer(gross(lage.option("--modus"))));
    if (modus.empty()) return lage.falsch("Der Modus ist E, S, F oder B.");
    if (lage.option("--verzeichnis").empty()) return lage.falsch("Es fehlt --verzeichnis V.");
    const auto verzeichnis = pfad_aus_wort(lage.g.dateien.laufwerke(), lage.option("--verzeichnis"));
    if (!verzeichnis) return lage.pfad_nicht_verwendbar(lage.option("--verzeichnis"));
    const auto name = text_aus_utf8(lage.wort(0));
    if (!name)
        return lage.stop(verkettet("Der Verfahrensname: >", text_aus_utf8_mit_ersatz(lage.wort(0)),
                                   u8"< enthält Zeichen, die nicht verwendet werden können!"_w));
    lage.schirm.verfahrenswahl = Verfahrenswahl{*name, *verzeichnis, modus};
    if (ist_fehler(m_datei_neu(lage.g))) return Ausgang::misslungen;
    lage.aus << lage.g.Verfahrensnummer << '\n';
    return Ausgang::gut;
}

Ausgang zeigen(Lage& lage)
{
    std::optional<Teil> teil;
    if (!lage.wort(1).empty()) {
        teil = teil_aus_wort(lage.wort(1));
        if (!teil) return lage.falsch(verkettet("Den Teil ", lage.wort(1), " gibt es nicht."));
    }
    if (const auto rover = lage.option("--warum"); !rover.empty()) {
        const int i = lage.rover_index(rover);
        if (i == 0) return lage.rover_unbekannt(rover);
        lage.aus << (lage.aufruf.json ? begruendung_json(lage.g, i) : utf8_aus_1252(begruendung_text(lage.g, i)));
        return Ausgang::gut;
    }
    if (lage.aufruf.json)
        lage.aus << verfahren_json(lage.g, teil);
    else
        lage.aus << utf8_aus_1252(teil ? teil_text(lage.g, *teil) : verfahren_text(lage.g));
    return Ausgang::gut;
}

Ausgang sichern(Lage& lage)
{
    lage.geaendert = true;
    return Ausgang::gut;
}

Ausgang loeschen(Lage& lage)
{
    return ist_fehler(m_datei_loeschen(lage.g)) ? Ausgang::misslungen : Ausgang::gut;
}

constexpr std::array<std::string_view, 2> optionen_neu = {"--modus=", "--verzeichnis="};
constexpr std::array<std::string_view, 1> optionen_zeigen = {"--warum="};

constexpr Befehl befehle[] = {
    {"liste", "", "zeigt alle Verfahren", "jorv liste", 0, 0, {}, Grundlage::einstellungen, liste},
    {"neu", "NAME --modus E|S|F|B --verzeichnis V",
     "legt ein Verfahren an und nennt seine Nummer\n"
     "E: je eine virtuelle Referenzstation pro ROVER, S: einzelne für mehrere ROVER,\n"
     "F: fremde virtuelle Referenzstationen, B: Basislinien. Das Verzeichnis ist neu oder leer.",
     "jorv neu Waldweg --modus E --verzeichnis ~/verfahren/waldweg", 1, 1, optionen_neu, Grundlage::einstellungen, neu},
    {"zeigen", "NR [TEIL] [--warum ROVER]",
     "zeigt ein Verfahren: Kopf, ROVER mit Ampel und Grund, Stationen, Antennen, Figuren\n"
     "TEIL: kopf, rover, stationen, antennen, figuren, basislinien, baum, menue, katalog.\n"
     "--warum sagt, wie die Zuordnung zu ihrem Urteil über einen ROVER kam.\n"
     "Mit --json stehen alle Felder unter ihrem Namen, der Baum als Baum, die Menüs als Menue.",
     "jorv zeigen 1 rover\n  jorv zeigen 1 --warum 5501167j.16o", 1, 2, optionen_zeigen, Grundlage::nur_lesen, zeigen},
    {"sichern",
     "NR",
     "öffnet ein Verfahren und schreibt seine Datei neu, sonst nichts",
     "jorv sichern 1",
     1,
     1,
     {},
     Grundlage::verfahren,
     sichern},
    {"loeschen",
     "NR",
     "nimmt ein Verfahren nach einer Frage aus der Liste und gibt seine Nummer frei\n"
     "Die Dateien bleiben erhalten (nur im Land MT werden sie gelöscht).",
     "jorv loeschen 1 --ja",
     1,
     1,
     {},
     Grundlage::verfahren,
     loeschen},
};

}  // namespace

std::span<const Befehl> befehle_verfahren()
{
    return befehle;
}

}  // namespace jorv
