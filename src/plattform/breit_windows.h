// The wide text that the calls of Windows take.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace jorv {

/// UTF-8 as wide text.
inline std::wstring breit(std::string_view utf8)
{
    const int laenge = static_cast<int>(utf8.size());
    std::wstring text(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), laenge, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), laenge, text.data(), static_cast<int>(text.size()));
    return text;
}

/// Wide text as UTF-8.
inline std::string schmal(std::wstring_view breit)
{
    const int laenge = static_cast<int>(breit.size());
    const int n = WideCharToMultiByte(CP_UTF8, 0, breit.data(), laenge, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, breit.data(), laenge, text.data(), n, nullptr, nullptr);
    return text;
}

/// A word of a command line as programs take it apart: a quote, and the "\" directly before one, get a "\" each.
inline std::wstring programmwort(std::wstring_view wort)
{
    std::wstring text = L"\"";
    std::size_t striche = 0;
    for (const wchar_t zeichen : wort) {
        if (zeichen == L'"') text.append(striche + 1, L'\\');
        striche = zeichen == L'\\' ? striche + 1 : 0;
        text += zeichen;
    }
    return text.append(striche, L'\\') + L'"';
}

}  // namespace jorv
