#include "plattform/kalender.h"

#include <array>

#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

std::string zweistellig(int wert)
{
    return zahl_format_fuell(wert, "00", "0");
}

// The whole text must be numbers between the marks; returns how many there were, 0 when it isn't so.
template <std::size_t N>
std::size_t zahlen(std::string_view text, char marke, std::array<int, N>& werte)
{
    std::size_t n = 0;
    for (;;) {
        const auto ende = text.find(marke);
        const auto teil = text.substr(0, ende);
        const auto wert = teil.empty() || teil.front() < '0' || teil.front() > '9' ? std::nullopt : ganz_streng(teil);
        if (!wert || n == N) return 0;
        werte[n++] = *wert;
        if (ende == std::string_view::npos) return n;
        text.remove_prefix(ende + 1);
    }
}

}  // namespace

std::int64_t tage_seit_1970(int jahr, int monat, int tag)
{
    // Days from civil, counted in 400 year eras that begin on 1 March.
    const std::int64_t j = static_cast<std::int64_t>(jahr) - (monat <= 2 ? 1 : 0);
    const std::int64_t era = (j >= 0 ? j : j - 399) / 400;
    const std::int64_t jahr_der_era = j - era * 400;
    const std::int64_t tag_im_jahr = (153 * (monat + (monat > 2 ? -3 : 9)) + 2) / 5 + tag - 1;
    return era * 146097 + jahr_der_era * 365 + jahr_der_era / 4 - jahr_der_era / 100 + tag_im_jahr - 719468;
}

Zeitpunkt datum_aus_tagen(std::int64_t tage)
{
    tage += 719468;
    const std::int64_t era = (tage >= 0 ? tage : tage - 146096) / 146097;
    const std::int64_t tag_der_era = tage - era * 146097;
    const std::int64_t jahr_der_era =
        (tag_der_era - tag_der_era / 1460 + tag_der_era / 36524 - tag_der_era / 146096) / 365;
    const std::int64_t tag_im_jahr = tag_der_era - (365 * jahr_der_era + jahr_der_era / 4 - jahr_der_era / 100);
    const std::int64_t m = (5 * tag_im_jahr + 2) / 153;
    Zeitpunkt zeit;
    zeit.tag = static_cast<int>(tag_im_jahr - (153 * m + 2) / 5 + 1);
    zeit.monat = static_cast<int>(m < 10 ? m + 3 : m - 9);
    zeit.jahr = static_cast<int>(jahr_der_era + era * 400 + (zeit.monat <= 2 ? 1 : 0));
    return zeit;
}

std::int64_t sekunden_seit_1970(const Zeitpunkt& zeit)
{
    return tage_seit_1970(zeit.jahr, zeit.monat, zeit.tag) * 86400 + zeit.stunde * 3600 + zeit.minute * 60 +
           zeit.sekunde;
}

Zeitpunkt zeitpunkt_aus_sekunden(std::int64_t sekunden)
{
    const std::int64_t tage = sekunden >= 0 ? sekunden / 86400 : -((-sekunden + 86399) / 86400);
    const auto rest = static_cast<int>(sekunden - tage * 86400);
    Zeitpunkt zeit = datum_aus_tagen(tage);
    zeit.stunde = rest / 3600;
    zeit.minute = rest / 60 % 60;
    zeit.sekunde = rest % 60;
    return zeit;
}

bool ist_datum(int jahr, int monat, int tag)
{
    if (monat < 1 || monat > 12 || tag < 1 || tag > 31 || jahr < 1 || jahr > 9999) return false;
    const Zeitpunkt zeit = datum_aus_tagen(tage_seit_1970(jahr, monat, tag));
    return zeit.monat == monat && zeit.tag == tag;
}

int tag_des_jahres(int jahr, int monat, int tag)
{
    return static_cast<int>(tage_seit_1970(jahr, monat, tag) - tage_seit_1970(jahr, 1, 1)) + 1;
}

std::int64_t minuten_zwischen(const Zeitpunkt& von, const Zeitpunkt& bis)
{
    const auto minute = [](const Zeitpunkt& z) {
        const std::int64_t s = sekunden_seit_1970(z);
        return (s >= 0 ? s : s - 59) / 60;
    };
    return minute(bis) - minute(von);
}

std::strong_ordering operator<=>(const Zeitpunkt& a, const Zeitpunkt& b)
{
    return sekunden_seit_1970(a) <=> sekunden_seit_1970(b);
}

bool operator==(const Zeitpunkt& a, const Zeitpunkt& b)
{
    return (a <=> b) == std::strong_ordering::equal;
}

std::string tag_text(const Zeitpunkt& zeit)
{
    return verkettet(zweistellig(zeit.tag), ".", zweistellig(zeit.monat), ".",
                     zahl_format_fuell(zeit.jahr, "0000", "0"));
}

std::string uhrzeit_text(const Zeitpunkt& zeit)
{
    return verkettet(zweistellig(zeit.stunde), ":", zweistellig(zeit.minute), ":", zweistellig(zeit.sekunde));
}

std::string datum_text(const Zeitpunkt& zeit)
{
    if (zeit.stunde == 0 && zeit.minute == 0 && zeit.sekunde == 0) return tag_text(zeit);
    return verkettet(tag_text(zeit), " ", uhrzeit_text(zeit));
}

std::optional<Zeitpunkt> datum_lesen(std::string_view text)
{
    text = trimmen(text);
    const auto blank = text.find(' ');
    std::array<int, 3> t{}, u{};
    if (zahlen(text.substr(0, blank), '.', t) != 3 || !ist_datum(t[2], t[1], t[0])) return std::nullopt;
    if (blank != std::string_view::npos) {
        const auto n = zahlen(trimmen(text.substr(blank)), ':', u);
        if (n < 2 || u[0] > 23 || u[1] > 59 || u[2] > 59) return std::nullopt;
    }
    return Zeitpunkt{t[2], t[1], t[0], u[0], u[1], u[2]};
}

}  // namespace jorv
