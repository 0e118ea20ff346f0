#include "projekt/import_felder.h"

#include "modell/Gemeinsam.h"
#include "modell/Version.h"
#include "plattform/kalender.h"
#include "plattform/pfad.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "projekt/verfahrensliste.h"

namespace jorv {

namespace {

using Regel = Importurteil (*)(const Global&, Importdialog&);

constexpr std::string_view fehlt = "fehlt", vergeben = "bereits vergeben", ok = "OK";

constexpr std::array<std::string_view, 4> moduszeilen = {
    u8" Berechnung von Koordinaten der ROVER über virtuelle Referenzstationen für jeden ROVER "_w,
    u8" Berechnung von Koordinaten der ROVER über eine oder einige verteilte virtuelle Referenzstationen "_w,
    " Berechnung von Koordinaten der ROVER unter Verwendung von virtuellen Referenzstationen, die nicht von Jorv "
    "erzeugt wurden ",
    " Berechnung von Basislinien zwischen verschiedenen Punkten "};

std::string& box(Importdialog& d, Importfeld feld)
{
    return d.neu[static_cast<std::size_t>(feld)];
}

// Directories are the same without regard to case and to a "\" at the end.
bool selber_ordner(std::string_view a, std::string_view b)
{
    const auto knapp = [](std::string_view pfad) {
        return pfad.ends_with('\\') && !pfad.ends_with(":\\") ? ohne_ende(pfad, 1) : pfad;
    };
    return gleich_ohne_gross(knapp(a), knapp(b));
}

Importurteil name_urteilen(const Global& g, Importdialog& d)
{
    const std::string& name = d.wert(Importfeld::name);
    if (name.empty()) return {fehlt, false, false};
    return Index_zu_Name(g, name) != 0 ? Importurteil{vergeben, false, false} : Importurteil{ok, true, false};
}

Importurteil nummer_urteilen(const Global& g, Importdialog& d)
{
    const std::string& nummer = d.wert(Importfeld::nummer);
    if (!ist_Nummer(nummer)) return {fehlt, false, true};
    for (const auto& v : g.Verfahren)
        if (v.Nummer == nummer) return {vergeben, false, true};
    return {ok, true, false};
}

Importurteil modus_urteilen(const Global&, Importdialog& d)
{
    std::string& buchstabe = box(d, Importfeld::modus);
    const bool leer = buchstabe.empty();
    if (leer) buchstabe = Modus_Buchstabe("1");
    const std::string_view ziffer = Modus_Ziffer(buchstabe);
    if (ziffer.empty()) {
        d.moduszeile = " Unbekannter Verfahren-Modus ";
        return {u8"ungültiger Wert"_w, false, false};
    }
    d.moduszeile = moduszeilen[static_cast<std::size_t>(ziffer[0] - '1')];
    return {leer ? "automatisch" : ok, true, false};
}

Importurteil verzeichnis_urteilen(const Global& g, Importdialog& d)
{
    const std::string& verzeichnis = d.wert(Importfeld::verzeichnis);
    if (verzeichnis.empty()) return {fehlt, false, true};
    if (!selber_ordner(verzeichnis, pfad_ordner(d.Importdatei))) return {"veraltet", false, true};
    for (const auto& v : g.Verfahren)
        if (selber_ordner(v.Pfad, verzeichnis)) return {vergeben, false, false};
    return {ok, true, false};
}

Importurteil datum_urteilen(std::string_view text)
{
    if (text.empty()) return {"fehlt, aber OK", true, true};
    return datum_lesen(text) ? Importurteil{ok, true, false} : Importurteil{u8"ungültige Werte"_w, false, true};
}

Importurteil anlegedatum_urteilen(const Global&, Importdialog& d)
{
    return datum_urteilen(d.wert(Importfeld::anlegedatum));
}

Importurteil letztdatum_urteilen(const Global&, Importdialog& d)
{
    return datum_urteilen(d.wert(Importfeld::letztdatum));
}

Importurteil version_urteilen(const Global&, Importdialog& d)
{
    constexpr Importurteil neuer = {"Verfahren neuer als Jorv+", false, true};
    const std::string &nummer = d.wert(Importfeld::versionsnummer), &datum = d.wert(Importfeld::versionsdatum);
    if (nummer.empty() && datum.empty()) return {"Werte fehlen, aber OK", true, true};
    if (zahl_lesen(programm_version) < zahl_lesen(ersetzt(nummer, ',', '.'))) return neuer;
    const auto tag = datum_lesen(datum);
    if (!tag) return {"Versionsdatum?", false, true};
    if (*tag > *datum_lesen(programm_datum)) return neuer;
    if (nummer == programm_version && datum == programm_datum) return {ok, true, false};
    return {"veraltet, aber OK", true, true};
}

constexpr std::array<Regel, importstellen> regeln = {name_urteilen,        nummer_urteilen,      modus_urteilen,
                                                     verzeichnis_urteilen, anlegedatum_urteilen, letztdatum_urteilen,
                                                     version_urteilen};

void urteilen(const Global& g, Importdialog& d, Importstelle stelle)
{
    const auto i = static_cast<std::size_t>(stelle);
    d.urteile[i] = regeln[i](g, d);
    d.statuswort[i] = d.urteile[i].gut ? '1' : '0';
}

struct Feldquelle {
    Importfeld feld;
    std::string_view sektion, schluessel;
};

constexpr std::array<Feldquelle, importfelder> quellen = {
    {{Importfeld::name, "VERFAHREN", "Name"},
     {Importfeld::nummer, "VERFAHREN", "Nummer"},
     {Importfeld::modus, "VERFAHREN", "Modus"},
     {Importfeld::verzeichnis, "GRUNDEINSTELLUNGEN", "Arbeits-Verzeichnis"},
     {Importfeld::anlegedatum, "VERFAHREN", "ErstDatum"},
     {Importfeld::letztdatum, "VERFAHREN", "LetztDatum"},
     {Importfeld::versionsnummer, "VERFAHREN", "Versionsnummer"},
     {Importfeld::versionsdatum, "VERFAHREN", "Versionsdatum"}}};

}  // namespace

Importstelle importstelle(Importfeld feld)
{
    return feld == Importfeld::versionsdatum ? Importstelle::version : static_cast<Importstelle>(feld);
}

Importdialog import_laden(const Global& g, std::string_view importdatei)
{
    Importdialog d;
    d.Importdatei = importdatei;
    std::error_code fehler;
    const Profil profil = Profil::aus_datei(g.dateien, importdatei, fehler);
    for (const auto& q : quellen) box(d, q.feld) = profil.wert(q.sektion, q.schluessel);
    if (std::string& modus = box(d, Importfeld::modus); !modus.empty()) modus = Modus_Buchstabe(modus);
    if (const auto antenne = profil.wert("VERFAHREN", "Antenne"); !antenne.empty()) d.Antenne = antenne;
    d.alt = d.neu;
    import_pruefen(g, d);
    return d;
}

std::optional<Importdialog> m_datei_importieren(Global& g, std::string_view gewaehlt)
{
    if (gewaehlt.empty() || pfad_name(gewaehlt) == import_auswahl_endung) return std::nullopt;
    g.Datei_Verzeichnis = pfad_ordner(gewaehlt);
    return import_laden(g, gewaehlt);
}

void import_setzen(const Global& g, Importdialog& d, Importfeld feld, std::string_view text)
{
    box(d, feld) = std::string(text);
    urteilen(g, d, importstelle(feld));
}

void import_pruefen(const Global& g, Importdialog& d)
{
    const bool modus_war_leer =
        d.wert(Importfeld::modus).empty() || d.urteil(Importstelle::modus).status == "automatisch";
    if (modus_war_leer) box(d, Importfeld::modus).clear();
    for (std::size_t i = 0; i < importstellen; ++i) urteilen(g, d, static_cast<Importstelle>(i));
}

void import_knopf(const Global& g, Importdialog& d, Importstelle stelle)
{
    switch (stelle) {
        case Importstelle::nummer:
            return import_setzen(g, d, Importfeld::nummer, naechste_Nummer(g));
        case Importstelle::verzeichnis:
            return import_setzen(g, d, Importfeld::verzeichnis, pfad_ordner(d.Importdatei));
        case Importstelle::anlegedatum:
            return import_setzen(g, d, Importfeld::anlegedatum, datum_text(g.uhr->jetzt()));
        case Importstelle::letztdatum:
            return import_setzen(g, d, Importfeld::letztdatum, datum_text(g.uhr->jetzt()));
        case Importstelle::version:
            import_setzen(g, d, Importfeld::versionsnummer, programm_version);
            return import_setzen(g, d, Importfeld::versionsdatum, programm_datum);
        case Importstelle::name:
        case Importstelle::modus:
            return;
    }
}

}  // namespace jorv
