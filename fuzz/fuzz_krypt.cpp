// The cipher: both directions undo each other wherever they are defined.
#include "daten/krypt.h"
#include "ziel.h"

using namespace jorv;

JORV_ZIEL(krypt)
{
    for (const auto modus : {Kryptmodus::chiffrieren, Kryptmodus::dechiffrieren}) {
        int fehler = 0, zurueck_fehler = 0;
        const std::string text = krypt(bytes, modus, fehler);
        fuzz::soll(fehler == 0 || text.empty(), "a failure gives nothing");
        if (fehler != 0 || text.size() != bytes.size()) continue;
        const auto zurueck = modus == Kryptmodus::chiffrieren ? Kryptmodus::dechiffrieren : Kryptmodus::chiffrieren;
        const std::string wieder = krypt(text, zurueck, zurueck_fehler);
        if (zurueck_fehler != 0) continue;
        // A plain code of 0 ends the text.
        fuzz::soll(wieder == bytes || bytes.find('\0') < bytes.size() - 1, "there and back is equal");
    }
}
