#include <array>
#include <nlohmann/json.hpp>

#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "projekt/importieren.h"

namespace jorv {

namespace {

struct Feldname {
    Importfeld feld;
    std::string_view schluessel;  // of the project file, and of the JSON object
};
constexpr std::array<Feldname, importfelder> feldnamen = {{{Importfeld::name, "Name"},
                                                           {Importfeld::nummer, "Nummer"},
                                                           {Importfeld::modus, "Modus"},
                                                           {Importfeld::verzeichnis, "Arbeits-Verzeichnis"},
                                                           {Importfeld::anlegedatum, "ErstDatum"},
                                                           {Importfeld::letztdatum, "LetztDatum"},
                                                           {Importfeld::versionsnummer, "Versionsnummer"},
                                                           {Importfeld::versionsdatum, "Versionsdatum"}}};

// What the command presses by itself: a number taken by another project, a project that has moved.
constexpr std::pair<Importstelle, std::string_view> von_selbst[] = {{Importstelle::nummer, "bereits vergeben"},
                                                                    {Importstelle::verzeichnis, "veraltet"}};

std::string dialog_json(const Importdialog& d, bool importiert)
{
    nlohmann::ordered_json felder = nlohmann::ordered_json::object();
    for (const auto& [feld, schluessel] : feldnamen)
        felder[std::string(schluessel)] = {{"alt", utf8_aus_1252(d.alter_wert(feld))},
                                           {"neu", utf8_aus_1252(d.wert(feld))},
                                           {"Status", utf8_aus_1252(d.urteil(importstelle(feld)).status)},
                                           {"gut", d.urteil(importstelle(feld)).gut}};
    return nlohmann::ordered_json{{"importiert", importiert}, {"Statuswort", d.statuswort}, {"Felder", felder}}.dump(
               2) +
           "\n";
}

Ausgang ablehnen(Lage& lage, const Importdialog& d)
{
    std::string text = "Das Verfahren kann so nicht importiert werden:";
    for (const auto& [feld, schluessel] : feldnamen) {
        if (d.urteil(importstelle(feld)).gut || feld == Importfeld::versionsdatum) continue;
        text += verkettet("\n", schluessel, " >", d.wert(feld), "<: ", d.urteil(importstelle(feld)).status);
    }
    return lage.stop(text);
}

Ausgang angaben_setzen(Lage& lage, Importdialog& d)
{
    if (lage.aufruf.option.contains("--nummer")) {
        const auto nummer = nummer_aus_wort(lage.option("--nummer"));
        if (!nummer) return lage.falsch(verkettet(lage.option("--nummer"), " ist keine Nummer eines Verfahrens."));
        import_setzen(lage.g, d, Importfeld::nummer, *nummer);
    }
    if (lage.aufruf.option.contains("--name")) {
        const auto name = text_aus_utf8(lage.option("--name"));
        if (!name)
            return lage.stop(verkettet("Der Verfahrensname: >", text_aus_utf8_mit_ersatz(lage.option("--name")),
                                       u8"< enthält Zeichen, die nicht verwendet werden können!"_w));
        import_setzen(lage.g, d, Importfeld::name, *name);
    }
    return Ausgang::gut;
}

void knoepfe_druecken(Lage& lage, Importdialog& d)
{
    for (const auto& [stelle, status] : von_selbst) {
        // A number that was asked for isn't replaced by another one.
        if (stelle == Importstelle::nummer && lage.aufruf.option.contains("--nummer")) continue;
        if (d.urteil(stelle).knopf && d.urteil(stelle).status == status) import_knopf(lage.g, d, stelle);
    }
}

Ausgang importieren(Lage& lage)
{
    const auto pfad = pfad_aus_wort(lage.g.dateien.laufwerke(), lage.wort(0));
    if (!pfad) return lage.pfad_nicht_verwendbar(lage.wort(0));
    if (!lage.g.dateien.ist_datei(*pfad)) return lage.stop(verkettet("Die Datei:\n", *pfad, "\nwurde nicht gefunden!"));
    auto d = m_datei_importieren(lage.g, *pfad);
    if (!d) return Ausgang::misslungen;
    if (const Ausgang ausgang = angaben_setzen(lage, *d); ausgang != Ausgang::gut) return ausgang;
    knoepfe_druecken(lage, *d);
    const bool importiert = d->importierbar() && !ist_fehler(cmd_import(lage.g, *d));
    if (lage.aufruf.json)
        lage.aus << dialog_json(*d, importiert);
    else if (importiert)
        lage.aus << lage.g.Verfahrensnummer << '\n';
    if (!d->importierbar()) return ablehnen(lage, *d);
    return importiert ? Ausgang::gut : Ausgang::misslungen;
}

constexpr std::array<std::string_view, 2> optionen_importieren = {"--nummer=", "--name="};

constexpr Befehl befehle[] = {
    {"importieren", "DATEI [--nummer N] [--name T]",
     "nimmt die Verfahrensdatei eines fremden oder verschobenen Verfahrens in die Liste auf und nennt seine Nummer\n"
     "Ein verschobenes Verzeichnis wird auf den neuesten Stand gebracht, eine vergebene Nummer durch die nächste\n"
     "freie ersetzt. Anderes, was nicht stimmt, wird gemeldet, und das Verfahren wird nicht importiert.",
     "jorv importieren ~/von-anna/017/017.INI --name Waldweg-Anna", 1, 1, optionen_importieren, Grundlage::katalog,
     importieren},
};

}  // namespace

std::span<const Befehl> befehle_import()
{
    return befehle;
}

}  // namespace jorv
