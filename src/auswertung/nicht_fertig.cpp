#include "auswertung/nicht_fertig.h"

#include <array>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

struct Rest {
    std::string_view ordner, endung, gegenstand;
};

constexpr std::array<Rest, 3> reste = {{{"lis_rov", ".LIS", "Die Protokolldatei:"},
                                        {"error_rov", ".ERR", "Die Fehlerprotokolldatei:"},
                                        {"dat_rov", ".UTM", "Die Ergebnisdateidatei:"}}};

}  // namespace

void mnu_tree_nichtfertig(Global& g, std::string_view rover)
{
    for (const auto& rest : reste) {
        const std::string datei = im_Verfahren(g, verkettet("jorv_out\\", rest.ordner, "\\", rover, rest.endung));
        if (g.dateien.vorhanden(datei) && g.dateien.loeschen(datei))
            stop_melden(g, datei_meldung(rest.gegenstand, datei, u8"konnte nicht gelöscht werden!"_w));
    }
    baum_aufbauen(g);
}

}  // namespace jorv
