#include "beilagen/symboldatei.h"

#include <QBuffer>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

namespace jorv::beilagen {

namespace {

constexpr int groessen[] = {16, 32, 48, 256};
constexpr int gepackt_ab = 256;

template <typename Zahl>
void anfuegen(QByteArray& bytes, Zahl zahl)
{
    const Zahl klein = qToLittleEndian(zahl);
    bytes.append(reinterpret_cast<const char*>(&klein), sizeof klein);
}

// Colour rows from the bottom up, then the mask of the old one-bit transparency, which the alpha of the colours
// replaces.
QByteArray als_bitmap(const QImage& bild)
{
    const int seite = bild.width();
    QByteArray bytes;
    anfuegen<quint32>(bytes, 40);
    anfuegen<qint32>(bytes, seite);
    anfuegen<qint32>(bytes, 2 * seite);  // both pictures together
    anfuegen<quint16>(bytes, 1);
    anfuegen<quint16>(bytes, 32);
    for (int i = 0; i < 6; ++i) anfuegen<quint32>(bytes, 0);
    for (int zeile = seite - 1; zeile >= 0; --zeile)
        for (int spalte = 0; spalte < seite; ++spalte) anfuegen<quint32>(bytes, bild.pixel(spalte, zeile));
    bytes.append((seite + 31) / 32 * 4 * seite, '\0');
    return bytes;
}

QByteArray als_png(const QImage& bild)
{
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    bild.save(&puffer, "PNG");
    return bytes;
}

}  // namespace

QByteArray symboldatei(const QIcon& bild)
{
    QByteArray kopf, bilder;
    const auto anzahl = static_cast<quint16>(std::size(groessen));
    anfuegen<quint16>(kopf, 0);
    anfuegen<quint16>(kopf, 1);
    anfuegen<quint16>(kopf, anzahl);
    const quint32 beginn = 6 + 16u * anzahl;
    for (const int seite : groessen) {
        const QImage punkte = bild.pixmap(seite, seite).toImage().convertToFormat(QImage::Format_ARGB32);
        const QByteArray bytes = seite >= gepackt_ab ? als_png(punkte) : als_bitmap(punkte);
        const auto kante = static_cast<quint8>(seite % 256);  // 0 stands for 256
        anfuegen(kopf, kante);
        anfuegen(kopf, kante);
        anfuegen<quint16>(kopf, 0);
        anfuegen<quint16>(kopf, 1);
        anfuegen<quint16>(kopf, 32);
        anfuegen(kopf, static_cast<quint32>(bytes.size()));
        anfuegen(kopf, beginn + static_cast<quint32>(bilder.size()));
        bilder += bytes;
    }
    return kopf + bilder;
}

}  // namespace jorv::beilagen
