// The tokenizer of all file readers: blank-separated words, double quotes hold a word together.
#pragma once

#include <cstddef>
#include <string_view>

namespace jorv {

enum class Wortstatus {
    gefunden = 0,
    fehlt = 1,      ///< there is no such word
    leer = 2,       ///< the word is an empty pair of quotes
    fehlerhaft = 3  ///< the word number was less than 1
};

struct Wort {
    std::size_t beginn = 0;  ///< place of the first byte, counted from 1; the quotes don't belong to the word
    std::size_t laenge = 0;
    Wortstatus status = Wortstatus::fehlerhaft;
    std::string_view text;  ///< the word itself, empty unless found
};

/// The word of the given number (from 1). Several delimiters in a row count as one, NUL counts as a delimiter;
/// an unclosed quote gives the rest of the text less one character.
Wort wort_finden(std::string_view text, int nummer, char trenner = ' ');

/// Takes the words of one text one after the other in a single pass; same words and states as wort_finden.
class Wortfolge {
public:
    explicit Wortfolge(std::string_view text, char trenner = ' ') : m_text(text), m_trenner(trenner) {}
    Wort naechstes();

private:
    std::string_view m_text;
    char m_trenner;
    std::size_t m_stelle = 0;
};

}  // namespace jorv
