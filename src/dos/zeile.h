// How a line of a batch file is taken apart: variables, then commands and redirections, then words.
// Text only; nothing here touches the disk.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jorv::dos {

/// What separates the words of a command: blank, tab, ",", ";", "=".
constexpr bool ist_trenner(char zeichen)
{
    return zeichen == ' ' || zeichen == '\t' || zeichen == ',' || zeichen == ';' || zeichen == '=';
}

/// The text less the separators (or only the blanks and tabs) at its beginning.
std::string_view ohne_trenner(std::string_view text);
std::string_view ohne_blanks(std::string_view text);

/// Puts in the values of %name%, %0 to %9 and %*; "%%" becomes "%", a lone "%" vanishes. Quotes don't protect.
/// `argumente` begins with the name of the batch file; what is missing is empty.
std::string ausdehnen(std::string_view zeile, const std::function<std::string(std::string_view)>& variable,
                      const std::vector<std::string>& argumente);

enum class Umlenkungsart { lesen, leeren, anhaengen, verdoppeln };

struct Umlenkungsangabe {
    int strom = 1;  ///< 0 input, 1 output, 2 errors
    Umlenkungsart art = Umlenkungsart::leeren;
    std::string ziel;  ///< file name, or the digit of the stream to double
};

/// What stands between a command and the next one of the line.
enum class Verknuepfung { ende, immer, bei_erfolg, bei_fehler, rohr };

struct Befehlstext {
    std::string text;  ///< redirections and "^" are taken out, quotes stay; no blanks at the beginning
    std::vector<Umlenkungsangabe> umlenkungen;
    Verknuepfung danach = Verknuepfung::ende;
};

/// Takes the first command off the rest of a line, with the sign behind it.
Befehlstext befehl_nehmen(std::string_view& rest);

/// The command word as internal commands are known by: lower case, ends before a separator or one of . \ / :
std::string befehlswort(std::string_view text);

/// Takes one word off the text: separators ahead are passed over, quotes hold together and are removed. Ends also
/// before < > | and &.
std::string wort_nehmen(std::string_view& rest);

struct Bedingung {
    bool nicht = false;
    std::string name;  ///< may hold wildcards in its last part
};

/// Takes "[not] exist NAME" off the text behind "if"; nothing when it reads otherwise.
std::optional<Bedingung> bedingung_nehmen(std::string_view& rest);

struct Parameter {
    std::vector<std::string> namen;
    std::vector<std::string> schalter;  ///< lower case, without "/"

    bool hat(std::string_view name) const;
};

/// Words and switches of copy, del, rename, type, mkdir and rmdir. A "/" outside quotes begins a switch.
Parameter parameter(std::string_view text);

/// The arguments of a program: split at blanks and tabs outside quotes, the quotes removed.
std::vector<std::string> argumente(std::string_view text);

/// The name of the label of a line, lower case; nothing when the line is none. The first character that isn't blank
/// must be ":"; the name ends at a blank, tab or one of : , ; = +
std::optional<std::string> marke(std::string_view zeile);

}  // namespace jorv::dos
