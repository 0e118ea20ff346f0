// The windows show what the floors below say: they open no file and word no message.
#include <gtest/gtest.h>

#include <array>
#include <set>

#include "hilfen/Projekt.h"

namespace jorv {

using namespace hilfen;

namespace {

struct Quelle {
    std::string name, text;
};

std::vector<Quelle> quellen(const char* etage)
{
    std::vector<Quelle> alle;
    for (const auto& e : fs::directory_iterator(fs::path(JORV_QUELLEN) / "src" / etage))
        if (e.path().extension() == ".cpp" || e.path().extension() == ".h")
            alle.push_back({e.path().filename().string(), lesen(e.path())});
    return alle;
}

// String literals of a source, neighbours joined, without comments and includes.
std::set<std::string> literale(const std::string& quelle)
{
    std::set<std::string> alle;
    std::string text;
    bool offen = false;
    for (std::size_t i = 0; i < quelle.size(); ++i) {
        if (quelle.compare(i, 2, "//") == 0 || quelle.compare(i, 8, "#include") == 0) {
            i = quelle.find('\n', i);
            if (i == std::string::npos) break;
        } else if (quelle[i] == '"') {
            for (++i; i < quelle.size() && quelle[i] != '"'; ++i) {
                text += quelle[i];
                if (quelle[i] == '\\') text += quelle[++i];
            }
            offen = true;
        } else if (offen && !std::isspace(static_cast<unsigned char>(quelle[i])) && quelle.compare(i, 2, "u8") != 0) {
            alle.insert(std::exchange(text, {}));
            offen = false;
        }
    }
    return alle;
}

}  // namespace

TEST(Fensterquellen, OeffnenKeineDatei)
{
    // The picture of the map is saved where the user says; everything else goes through the floors below.
    constexpr std::array verboten = {"fopen",       "fstream",   "QFile ", "QFile(",    "QFile::",
                                     "QTextStream", "QSettings", "QDir",   "QSaveFile", "filesystem::"};
    const std::set<std::string> erlaubt = {
        "Ausgabefenster.cpp filesystem::",  // a child's output on its way to the window
    };
    for (const auto& q : quellen("ui"))
        for (const char* wort : verboten) {
            if (erlaubt.contains(q.name + " " + wort)) continue;
            EXPECT_EQ(q.text.find(wort), std::string::npos) << q.name << ": " << wort;
        }
}

TEST(Fensterquellen, EnthaltenKeineMeldungDesKerns)
{
    std::set<std::string> kern;
    for (const char* etage : {"modell", "geo", "planung", "projekt", "daten", "auswertung", "app"})
        for (const auto& q : quellen(etage))
            for (const auto& text : literale(q.text))
                if (text.size() > 14 && text.find(' ') != std::string::npos) kern.insert(text);
    ASSERT_GT(kern.size(), 300u);
    // Captions that a window shares with a record of the core.
    for (const auto& q : quellen("ui"))
        for (const auto& text : literale(q.text)) {
            EXPECT_FALSE(kern.contains(text)) << q.name << ": " << text;
            EXPECT_EQ(text.find("konnte nicht"), std::string::npos) << q.name << ": " << text;
            EXPECT_EQ(text.find("Dimensionierung"), std::string::npos) << q.name << ": " << text;
        }
}

}  // namespace jorv
