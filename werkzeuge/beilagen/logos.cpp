#include "beilagen/logos.h"

#include <QPainter>
#include <QPainterPath>

namespace jorv::beilagen {

namespace {

constexpr int breite = 160, hoehe = 60;
const QColor schrift(45, 52, 60);

struct Farbe {
    const char* zusatz;
    QColor farbe;
};
const Farbe farben[] = {{"", QColor(0, 122, 94)},
                        {"_gelb", QColor(232, 168, 0)},
                        {"_blau", QColor(20, 100, 200)},
                        {"_grau", QColor(128, 134, 140)},
                        {"_tinte", QColor(30, 34, 92)}};

// A letter is drawn with strokes in a box of its width and the height 1, so that no font of the building machine shows.
QPainterPath buchstabe(char zeichen)
{
    QPainterPath p;
    const auto linie = [&p](std::initializer_list<QPointF> ecken) {
        p.moveTo(*ecken.begin());
        for (auto ecke = ecken.begin() + 1; ecke != ecken.end(); ++ecke) p.lineTo(*ecke);
    };
    switch (zeichen) {
        case 'T':
            linie({{0, 0}, {0.7, 0}});
            linie({{0.35, 0}, {0.35, 1}});
            break;
        case 'O':
            p.addEllipse(QRectF(0, 0, 0.9, 1));
            break;
        case 'R':
            p.moveTo(0, 1);
            p.lineTo(0, 0);
            p.lineTo(0.36, 0);
            p.arcTo(QRectF(0.08, 0, 0.54, 0.54), 90, -180);
            p.lineTo(0, 0.54);
            linie({{0.34, 0.54}, {0.66, 1}});
            break;
        case 'E':
            linie({{0.6, 0}, {0, 0}, {0, 1}, {0.6, 1}});
            linie({{0, 0.49}, {0.5, 0.49}});
            break;
        case 'L':
            linie({{0, 0}, {0, 1}, {0.55, 1}});
            break;
        case 'K':
            linie({{0, 0}, {0, 1}});
            linie({{0.62, 0}, {0, 0.58}});
            linie({{0.2, 0.4}, {0.66, 1}});
            break;
        case 'M':
            linie({{0, 1}, {0, 0}, {0.42, 0.7}, {0.84, 0}, {0.84, 1}});
            break;
        default:
            break;
    }
    return p;
}

void schreiben(QPainter& maler, QPointF links_oben, double groesse, double strich, const QColor& farbe,
               const char* text, double abstand)
{
    maler.setPen(QPen(farbe, strich, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    maler.setBrush(Qt::NoBrush);
    for (; *text; ++text) {
        const QPainterPath zeichen = buchstabe(*text);
        const QTransform ort(groesse, 0, 0, groesse, links_oben.x(), links_oben.y());
        maler.drawPath(ort.map(zeichen));
        links_oben.rx() += (zeichen.boundingRect().width() + abstand) * groesse;
    }
}

void netz_malen(QPainter& maler, const QColor& farbe)
{
    const QPointF stationen[] = {{9, 48}, {30, 9}, {51, 48}};
    const QPointF punkt(30, 35);
    maler.setPen(QPen(farbe, 1.2));
    for (const auto& station : stationen) maler.drawLine(station, punkt);
    maler.setPen(QPen(farbe, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    maler.drawPolygon(stationen, 3);
    maler.setPen(QPen(Qt::white, 1.5));
    maler.setBrush(farbe);
    for (const auto& station : stationen) maler.drawEllipse(station, 6, 6);
    maler.setBrush(schrift);
    maler.drawEllipse(punkt, 5, 5);
}

QImage logo(const QColor& farbe, const char* region)
{
    QImage bild(breite, hoehe, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    netz_malen(maler, farbe);
    schreiben(maler, {67, 13}, 19, 3.4, schrift, "TOREL", 0.27);
    maler.setPen(QPen(farbe, 2.6, Qt::SolidLine, Qt::RoundCap));
    const double text_links = *region == 'K' ? 125 : 131.5;
    maler.drawLine(QPointF(67, 46.5), QPointF(text_links - 8, 46.5));
    schreiben(maler, {text_links, 42}, 9, 1.7, schrift, region, 0.35);
    return bild;
}

}  // namespace

std::vector<Logo> logos()
{
    std::vector<Logo> alle;
    for (const auto& [kuerzel, region] : {std::pair("kor", "KOR"), std::pair("mt", "MT")})
        for (const auto& farbe : farben)
            alle.push_back({QStringLiteral("torel_%1%2").arg(QLatin1String(kuerzel), QLatin1String(farbe.zusatz)),
                            logo(farbe.farbe, region)});
    return alle;
}

}  // namespace jorv::beilagen
