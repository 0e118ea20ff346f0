#include "karte/svg.h"

#include <array>

#include "karte/schriftmass.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

std::string zahl(double wert)
{
    std::string text = fest(wert, 2);
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string hex(Farbe farbe)
{
    constexpr std::string_view ziffern = "0123456789abcdef";
    std::string text = "#";
    for (const std::uint8_t anteil : {farbe.rot, farbe.gruen, farbe.blau}) {
        text += ziffern[anteil / 16u];
        text += ziffern[anteil % 16u];
    }
    return text;
}

std::string xml(std::string_view text)
{
    std::string aus;
    for (const char zeichen : utf8_aus_1252(text)) {
        if (zeichen == '&')
            aus += "&amp;";
        else if (zeichen == '<')
            aus += "&lt;";
        else if (zeichen == '"')
            aus += "&quot;";
        else if (static_cast<unsigned char>(zeichen) >= ' ')
            aus += zeichen;
    }
    return aus;
}

std::string strich(const Stift& stift)
{
    std::string text = verkettet(" stroke=\"", hex(stift.farbe), "\" stroke-width=\"", zahl(stift.breite), "\"");
    if (stift.strich == Strich::gepunktet) text += " stroke-dasharray=\"2 3\"";
    return text;
}

std::string fuellung(const std::optional<Farbe>& farbe)
{
    return verkettet(" fill=\"", farbe ? hex(*farbe) : "none", "\"");
}

std::string orte(const std::vector<Bildort>& ecken)
{
    std::string text;
    for (const auto& ort : ecken) text += verkettet(text.empty() ? "" : " ", zahl(ort.x), ",", zahl(ort.y));
    return text;
}

// Where the anchor lies in the text's box, in the words of SVG; the box reaches from -0.95 to 0.25 about the base line.
struct Ankerwort {
    std::string_view waagrecht;
    double grundlinie;  ///< below the anchor, in heights of the letters
};
constexpr std::array<Ankerwort, 5> anker = {
    {{"start", 0.95}, {"start", 0.35}, {"end", 0.35}, {"middle", -0.25}, {"middle", 0.95}}};

// The coloured box behind a text whose anchor is its upper left corner.
std::string hintergrund(const Schrift& s)
{
    if (!s.hintergrund) return {};
    return verkettet("<rect x=\"", zahl(s.ort.x + s.abstand.x), "\" y=\"", zahl(s.ort.y + s.abstand.y), "\" width=\"",
                     zahl(schriftbreite(s.text, s.groesse) + 2 * textrand), "\" height=\"",
                     zahl(schrifthoehe(s.groesse) + 2), "\"", fuellung(s.hintergrund), "/>\n");
}

struct Svg {
    std::string operator()(const Linie& l) const
    {
        return verkettet("<line x1=\"", zahl(l.von.x), "\" y1=\"", zahl(l.von.y), "\" x2=\"", zahl(l.bis.x), "\" y2=\"",
                         zahl(l.bis.y), "\"", strich(l.stift), "/>\n");
    }
    std::string operator()(const Linienzug& l) const
    {
        return verkettet("<polyline points=\"", orte(l.orte), "\" fill=\"none\" stroke-linejoin=\"round\"",
                         strich(l.stift), "/>\n");
    }
    std::string operator()(const Vieleck& v) const
    {
        return verkettet("<polygon points=\"", orte(v.orte), "\"", fuellung(v.fuellung), strich(v.stift), "/>\n");
    }
    std::string operator()(const Rechteck& r) const
    {
        return verkettet("<rect x=\"", zahl(r.ecke.x), "\" y=\"", zahl(r.ecke.y), "\" width=\"", zahl(r.breite),
                         "\" height=\"", zahl(r.hoehe), "\"", fuellung(r.fuellung), r.stift ? strich(*r.stift) : "",
                         "/>\n");
    }
    std::string operator()(const Kreise& k) const
    {
        std::string text = verkettet("<g", fuellung(k.fuellung), strich(k.stift), ">\n");
        for (const auto& ort : k.orte)
            text +=
                verkettet("<circle cx=\"", zahl(ort.x), "\" cy=\"", zahl(ort.y), "\" r=\"", zahl(k.radius), "\"/>\n");
        return text + "</g>\n";
    }
    std::string operator()(const Schrift& s) const
    {
        const auto& wort = anker[static_cast<std::size_t>(s.anker)];
        std::string text = hintergrund(s);
        text += verkettet("<text x=\"", zahl(s.ort.x + s.abstand.x + (s.hintergrund ? textrand : 0)), "\" y=\"",
                          zahl(s.ort.y + s.abstand.y + wort.grundlinie * s.groesse), "\" text-anchor=\"",
                          wort.waagrecht, "\" font-size=\"", zahl(s.groesse), "\"", fuellung(s.farbe));
        if (s.hof) text += " stroke=\"#ffffff\" stroke-width=\"2.5\" stroke-linejoin=\"round\" paint-order=\"stroke\"";
        return verkettet(text, ">", xml(trimmen(s.text)), "</text>\n");
    }
};

std::string aussehen(const Stift& stift)
{
    return verkettet(" strich=", hex(stift.farbe), ",", zahl(stift.breite),
                     stift.strich == Strich::gepunktet ? ",gepunktet" : "");
}

std::string aussehen(const std::optional<Farbe>& farbe)
{
    return farbe ? verkettet(" fuellung=", hex(*farbe)) : "";
}

std::string stelle(const Bildort& ort)
{
    return verkettet(" ", fest(ort.x, 2), ",", fest(ort.y, 2));
}

// The lines of a step, each behind the name of its layer.
struct Zeilen {
    std::string ebene;

    std::string zeile(std::string_view art, const std::vector<Bildort>& ecken, const std::string& look) const
    {
        std::string text = verkettet(ebene, " ", art);
        for (const auto& ort : ecken) text += stelle(ort);
        return text + look + "\n";
    }
    std::string operator()(const Linie& l) const { return zeile("linie", {l.von, l.bis}, aussehen(l.stift)); }
    std::string operator()(const Linienzug& l) const { return zeile("linienzug", l.orte, aussehen(l.stift)); }
    std::string operator()(const Vieleck& v) const
    {
        return zeile("vieleck", v.orte, aussehen(v.fuellung) + aussehen(v.stift));
    }
    std::string operator()(const Rechteck& r) const
    {
        return zeile("rechteck", {r.ecke, {r.ecke.x + r.breite, r.ecke.y + r.hoehe}},
                     aussehen(r.fuellung) + (r.stift ? aussehen(*r.stift) : ""));
    }
    std::string operator()(const Kreise& k) const
    {
        const std::string look = verkettet(" radius=", zahl(k.radius), aussehen(k.fuellung), aussehen(k.stift));
        std::string text;
        for (const auto& ort : k.orte) text += zeile("kreis", {ort}, look);
        return text;
    }
    std::string operator()(const Schrift& s) const
    {
        return zeile("text", {s.ort}, verkettet(" \"", utf8_aus_1252(s.text), "\" farbe=", hex(s.farbe)));
    }
};

}  // namespace

std::string svg(const Zeichenliste& bild, double breite, double hoehe)
{
    std::string text =
        verkettet("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"",
                  zahl(breite), "\" height=\"", zahl(hoehe), "\" viewBox=\"0 0 ", zahl(breite), " ", zahl(hoehe),
                  "\" font-family=\"'Segoe UI', 'DejaVu Sans', Arial, sans-serif\">\n");
    for (const auto& schritt : bild) text += std::visit(Svg{}, schritt.form);
    return text + "</svg>\n";
}

std::string zeichenliste_text(const Zeichenliste& bild)
{
    std::string text;
    for (const auto& schritt : bild) text += std::visit(Zeilen{std::string(name(schritt.ebene))}, schritt.form);
    return text;
}

}  // namespace jorv
