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

Ausgang karte(Lage& lage)
{
    const auto ausgabe = lage.option("--ausgabe");
    if (ausgabe != "ops" && ausgabe != "svg") return lage.falsch("Die Ausgabe ist ops oder svg.");
    const int breite = mass(lage, "--breite", vorgabe_breite), hoehe = mass(lage, "--hoehe", vorgabe_hoehe);
    if (breite == 0 || hoehe == 0) return lage.falsch("Breite und Höhe sind Zahlen von 1 bis 20000.");
    Karte karte(lage.g);
    karte.groesse_setzen(breite, hoehe);
    if (lage.aufruf.option.contains("--original")) karte.m_grafik_orginal();
    lage.aus << (ausgabe == "svg" ? svg(karte.bild(), breite, hoehe)
                                  : zeichenliste_text(karte_zeichnen(lage.g, karte.ansicht(), Umfang::alles)));
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
     "jorv karte 1 --ausgabe svg > karte.svg", 1, 1, optionen, Grundlage::verfahren, karte},
};

}  // namespace

std::span<const Befehl> befehle_karte()
{
    return befehle;
}

}  // namespace jorv
