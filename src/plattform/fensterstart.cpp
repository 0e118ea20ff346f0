#include "plattform/fensterstart.h"

#include "plattform/oberflaeche.h"
#include "plattform/text.h"

namespace jorv {

namespace {

struct Grund {
    std::errc fehler;
    std::string_view text;
};
constexpr Grund gruende[] = {{std::errc::no_such_file_or_directory, "Datei nicht gefunden"},
                             {std::errc::permission_denied, "Zugriff verweigert"},
                             {std::errc::executable_format_error, u8"Die Datei ist kein ausführbares Programm"_w},
                             {std::errc::not_enough_memory, "Nicht genug Speicher"}};

}  // namespace

std::string startfehler_text(std::error_code fehler)
{
    for (const auto& grund : gruende)
        if (fehler == grund.fehler) return verkettet(fehler.value(), " ", grund.text);
    return verkettet(fehler.value(), " ", text_aus_utf8_mit_ersatz(fehler.message()));
}

std::error_code Oberflaeche::im_fenster_starten(const Fensterstart& start)
{
    return fenster_starten(start, Fensterausgabe::fenster).fehler;
}

}  // namespace jorv
