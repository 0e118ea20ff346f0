// Runs after all other tests: every message text that stands in the sources must have been shown by one of them. The
// texts shown lie in the folder JORV_MELDUNGEN (written by the tests' screen).
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "plattform/text.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

// Floors whose literals reach the user as messages.
constexpr std::array ordner = {"modell", "geo", "planung", "projekt", "daten", "auswertung", "app"};

// What makes a literal a message text.
constexpr std::array<std::string_view, 22> kennzeichen = {
    "konnte nicht", "konnt nicht",   " fehlt",         "fehlerhaft", "Konvertierungsfehler",
    "ReDim",        "existiert",     "nicht angelegt", "gefunden",   "bitte",
    "Bitte",        "Fehler ",       "nicht mehr",     "überprüfen", "erforderlich",
    "vorhanden",    "überschreiben", "Achtung",        "versuchen!", "ausführen?",
    "Lesefehler",   "gemischt"};

struct Text {
    std::string datei, text;
};

// Literals that look like messages and are none, or that no way leads to.
struct Ausnahme {
    std::string_view datei, teil, grund;
};
constexpr std::array<Ausnahme, 8> ausnahmen = {
    {{"antennentest.cpp", "Fehler beim Abgleich der Antennen-Daten zwischen:", "line of the short protocol"},
     {"antennentest.cpp", " ist nicht in der Antennendatei vorhanden!", "line of the short protocol"},
     {"antennentest.cpp", "nicht in der Antennendatei vorhanden!", "line of the short protocol"},
     {"antennentest.cpp", "x) in der Antennendatei vorhanden!", "line of the short protocol"},
     {"einstellungen_rover.cpp", "bitte im Handbuch nachlesen.", "text of a label"},
     {"neuerungen.cpp", ">>> Fehler <<<", "text of the news box"},
     {"neuerungen.cpp", "nicht gefunden!", "text of the news box"},
     {"verfahren.cpp", "Verfahren überschreiben?", "a folder that holds the file is not empty and refused before"}}};

bool ist_ausnahme(const Text& text)
{
    return std::any_of(ausnahmen.begin(), ausnahmen.end(), [&](const Ausnahme& a) {
        return text.datei == a.datei && text.text.find(a.teil) != std::string::npos;
    });
}

std::string ganz_lesen(const fs::path& pfad)
{
    std::ifstream strom(pfad, std::ios::binary);
    std::ostringstream text;
    text << strom.rdbuf();
    return text.str();
}

// The string literals of a source, neighbours joined, escapes resolved; comments are passed over.
std::vector<std::string> literale(const std::string& quelle)
{
    std::vector<std::string> alle;
    bool anschluss = false;
    for (std::size_t i = 0; i < quelle.size(); ++i) {
        const char z = quelle[i];
        if (quelle.compare(i, 2, "//") == 0) {
            i = std::min(quelle.find('\n', i), quelle.size());
        } else if (z == '\'' && i + 2 < quelle.size()) {
            i += quelle[i + 1] == '\\' ? 3 : 2;
            anschluss = false;
        } else if (z == '"') {
            if (!anschluss) alle.emplace_back();
            for (++i; i < quelle.size() && quelle[i] != '"'; ++i) {
                if (quelle[i] != '\\') {
                    alle.back() += quelle[i];
                    continue;
                }
                ++i;
                alle.back() += quelle[i] == 'n' ? '\n' : quelle[i] == 'r' ? '\r' : quelle[i];
            }
            anschluss = true;
        } else if (z != ' ' && z != '\n' && z != '\t' && quelle.compare(i, 2, "u8") != 0 && z != '8') {
            anschluss = false;
        }
    }
    return alle;
}

bool ist_meldung(const std::string& text)
{
    if (text.size() < 6 || text.starts_with("REM") || text.starts_with("echo") || text.find(".h") != std::string::npos)
        return false;
    for (const auto merkmal : kennzeichen)
        if (text.find(merkmal) != std::string::npos) return true;
    return text.ends_with("!") && text.find(' ') != std::string::npos;
}

std::vector<Text> meldungstexte()
{
    std::vector<Text> texte;
    for (const auto* name : ordner) {
        const fs::path wurzel = fs::path(JORV_QUELLEN) / "src" / name;
        if (!fs::exists(wurzel)) continue;
        for (const auto& eintrag : fs::directory_iterator(wurzel)) {
            if (eintrag.path().extension() != ".cpp") continue;
            for (const auto& text : literale(ganz_lesen(eintrag.path())))
                if (ist_meldung(text)) texte.push_back({eintrag.path().filename().string(), text});
        }
    }
    return texte;
}

}  // namespace

TEST(Schluss_Meldungen, JederMeldungstextWurdeInEinemTestGezeigt)
{
    const char* gezeigt_in = std::getenv("JORV_MELDUNGEN");
    if (!gezeigt_in || !fs::exists(gezeigt_in))
        GTEST_SKIP() << "JORV_MELDUNGEN is not set: runs behind the whole test run only";
    std::string gezeigt;
    for (const auto& eintrag : fs::directory_iterator(gezeigt_in)) gezeigt += ganz_lesen(eintrag.path()) + '\n';
    const auto texte = meldungstexte();
    ASSERT_GT(texte.size(), 100u) << "the sources hold hardly any message: is the search still right?";
    for (const auto& fund : texte) {
        if (ist_ausnahme(fund)) continue;
        const auto& [datei, text] = fund;
        const auto bytes = text_aus_utf8(text);
        ASSERT_TRUE(bytes) << datei << ": " << text;
        EXPECT_NE(gezeigt.find(*bytes), std::string::npos) << datei << ": no test has shown: " << text;
    }
}

}  // namespace jorv
