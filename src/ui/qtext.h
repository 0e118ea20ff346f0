// The border between the texts of the program (Windows-1252) and those of the windows.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "plattform/text.h"

namespace jorv {

/// A text of the program for the screen.
inline QString anzeige(std::string_view text)
{
    return QString::fromUtf8(utf8_aus_1252(text));
}

/// What the user typed, as the program holds it; a character that Windows-1252 lacks becomes "?".
inline std::string eingabe(const QString& text)
{
    return text_aus_utf8_mit_ersatz(text.toUtf8().toStdString());
}

/// A text for a widget that would take "&" for the mark of an access key.
inline QString anzeige_ohne_taste(std::string_view text)
{
    return anzeige(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace jorv
