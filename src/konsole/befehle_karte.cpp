#include <nlohmann/json.hpp>

#include "karte/karte.h"
#include "karte/kartenbild.h"
#include "karte/svg.h"
#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr int vorgabe_breite = 1200, vorgabe_hoehe = 800, groesstes_mass = 20000;

// A length of the picture; the default where the option is missing, 0 for a bad word.
int mass(const Lage& lage, std::string_view option, int vorgabe)
{
    const auto wort = lage.option(option);
    if (wort.empty()) return vorgabe;
    const int wert = ganz_streng(wort).value_or(0);
    return wert >= 1 && wert <= groesstes_mass ? wert : 0;
}

using Json = nlohmann::ordered_json;

Json farbe(const Farbe& f)
{
    return {f.rot, f.gruen, f.blau};
}

Json stift(const Stift& s)
{
    return {{"Farbe", farbe(s.farbe)}, {"Breite", s.breite}, {"gepunktet", s.strich == Strich::gepunktet}};
}

Json stelle(const Bildort& ort)
{
    return {ort.x, ort.y};
}

Json stellen(const std::vector<Bildort>& orte)
{
    Json liste = Json::array();
    for (const auto& ort : orte) liste.push_back(stelle(ort));
    return liste;
}

// The members of each form behind its name.
struct Form {
    Json operator()(const Linie& l) const
    {
        return {{"Form", "linie"}, {"Orte", stellen({l.von, l.bis})}, {"Stift", stift(l.stift)}};
    }
    Json operator()(const Linienzug& l) const
    {
        return {{"Form", "linienzug"}, {"Orte", stellen(l.orte)}, {"Stift", stift(l.stift)}};
    }
    Json operator()(const Vieleck& v) const
    {
        return {
            {"Form", "vieleck"}, {"Orte", stellen(v.orte)}, {"Stift", stift(v.stift)}, {"Fuellung", farbe(v.fuellung)}};
    }
    Json operator()(const Rechteck& r) const
    {
        Json j = {{"Form", "rechteck"}, {"Orte", stellen({r.ecke})}, {"Breite", r.breite}, {"Hoehe", r.hoehe}};
        if (r.stift) j["Stift"] = stift(*r.stift);
        if (r.fuellung) j["Fuellung"] = farbe(*r.fuellung);
        return j;
    }
    Json operator()(const Kreise& k) const
    {
        Json j = {{"Form", "kreise"}, {"Orte", stellen(k.orte)}, {"Radius", k.radius}, {"Stift", stift(k.stift)}};
        if (k.fuellung) j["Fuellung"] = farbe(*k.fuellung);
        return j;
    }
    Json operator()(const Schrift& s) const
    {
        return {
            {"Form", "text"}, {"Orte", stellen({s.ort})}, {"Text", utf8_aus_1252(s.text)}, {"Farbe", farbe(s.farbe)}};
    }
};

std::string karte_json(const Zeichenliste& bild, const Ansicht& ansicht)
{
    Json schritte = Json::array();
    for (const auto& schritt : bild) {
        Json j = {{"Ebene", name(schritt.ebene)}};
        j.update(std::visit(Form{}, schritt.form));
        schritte.push_back(std::move(j));
    }
    const Ausschnitt& f = ansicht.fenster();
    return Json{{"Y-min", f.links}, {"Y-max", f.rechts},          {"X-min", f.unten},
                {"X-max", f.oben},  {"Faktor", ansicht.Faktor()}, {"Schritte", schritte}}
               .dump(2) +
           "\n";
}

Ausgang karte(Lage& lage)
{
    const auto ausgabe = lage.option("--ausgabe");
    if (ausgabe != "ops" && ausgabe != "svg") return lage.falsch("Die Ausgabe ist ops oder svg.");
    const int breite = mass(lage, "--breite", vorgabe_breite), hoehe = mass(lage, "--hoehe", vorgabe_hoehe);
    if (breite == 0 || hoehe == 0) return lage.falsch("Breite und Höhe sind Zahlen von 1 bis 20000.");
    Karte karte(lage.g);
    karte.groesse_setzen(breite, hoehe);
    if (lage.aufruf.option.contains("--original")) karte.m_grafik_orginal();
    if (ausgabe == "svg") {
        lage.aus << svg(karte.bild(), breite, hoehe);
        return Ausgang::gut;
    }
    const auto bild = karte_zeichnen(lage.g, karte.ansicht(), Umfang::alles);
    lage.aus << (lage.aufruf.json ? karte_json(bild, karte.ansicht()) : zeichenliste_text(bild));
    return Ausgang::gut;
}

constexpr std::string_view optionen[] = {"--ausgabe=", "--breite=", "--hoehe=", "--original"};

constexpr Befehl befehle[] = {
    {"karte", "NR --ausgabe ops|svg [--breite B] [--hoehe H] [--original]",
     "gibt die Netzkarte als Liste ihrer Zeichenschritte oder als SVG-Bild aus\n"
     "Ohne --original erscheint der Ausschnitt, der im Verfahren gesichert ist. Die Liste nennt in der Reihenfolge "
     "des\n"
     "Zeichnens alle Objekte mit ihren Orten im Bild (Ursprung oben links); das Bild lässt weg, was nicht zu sehen "
     "ist.",
     "jorv karte 1 --ausgabe svg > karte.svg", 1, 1, optionen, Grundlage::nur_lesen, karte},
};

}  // namespace

std::span<const Befehl> befehle_karte()
{
    return befehle;
}

}  // namespace jorv
