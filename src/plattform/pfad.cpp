#include "plattform/pfad.h"

namespace jorv {

std::string pfad_verbinden(std::string_view ordner, std::string_view name)
{
    std::string pfad(ordner);
    if (!pfad.empty() && pfad.back() != '\\') pfad += '\\';
    while (!pfad.empty() && !name.empty() && name.front() == '\\') name.remove_prefix(1);
    return pfad.append(name);
}

std::string_view pfad_name(std::string_view pfad)
{
    const auto stelle = pfad.find_last_of("\\:");
    return stelle == std::string_view::npos ? pfad : pfad.substr(stelle + 1);
}

std::string_view pfad_ordner(std::string_view pfad)
{
    const auto stelle = pfad.find_last_of('\\');
    if (stelle == std::string_view::npos)
        return pfad.size() >= 2 && pfad[1] == ':' ? pfad.substr(0, 2) : std::string_view{};
    const bool wurzel = stelle == 0 || pfad[stelle - 1] == ':';
    return pfad.substr(0, wurzel ? stelle + 1 : stelle);
}

std::size_t pfad_wurzel_laenge(std::string_view pfad)
{
    if (!ist_unc(pfad)) return 3;
    const auto stelle = pfad.find('\\', 2);
    return stelle == std::string_view::npos ? pfad.size() : stelle + 1;
}

}  // namespace jorv
