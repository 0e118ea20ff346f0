#include "suite/protokoll.h"

#include "plattform/text.h"

namespace jorv::suite {

void Protokoll::zeile(std::string_view text)
{
    m_text.append(text).append("\r\n");
}

void Protokoll::meldung(std::string_view text)
{
    zeile(text);
    m_ausgabe.append(text).append("\r\n");
}

void Protokoll::warnung(std::string_view text)
{
    meldung(verkettet("WARNUNG: ", text));
}

void Protokoll::fehler(std::string_view text)
{
    meldung(verkettet("ERROR: ", text));
}

}  // namespace jorv::suite
