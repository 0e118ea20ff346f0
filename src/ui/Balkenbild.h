// Rows of time bars on one axis as a picture, the same on the screen and on paper.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QString>
#include <optional>
#include <vector>

#include "daten/datendichte.h"
#include "planung/zeitachse.h"

namespace jorv {

struct Balkenzeile {
    QString name, hinweis;
    Zeitpunkt von, bis;
    QColor farbe;
    QIcon bild;                           ///< in front of the name; null for none
    std::optional<bool> haken;            ///< a box in front of the name, for rows that can be chosen
    const Datendichte* dichte = nullptr;  ///< gaps and numbers of satellites; nullptr when they aren't known
};

class Balkenbild {
public:
    static constexpr int zeilenhoehe = 18, kopfhoehe = 24;

    /// `schrift` measures the column of names.
    void setzen(std::vector<Balkenzeile> zeilen, const QFontMetrics& schrift);

    const std::vector<Balkenzeile>& zeilen() const { return m_zeilen; }
    Balkenzeile& zeile(int i) { return m_zeilen.at(static_cast<std::size_t>(i)); }
    int anzahl() const { return static_cast<int>(m_zeilen.size()); }
    int namensbreite() const { return m_namensbreite; }

    Zeitachse achse;
    int leitzeile = -1;  ///< begin and end of this row are drawn through all rows; -1 for none

    /// The labels of the axis, in a box that begins with the column of names.
    void kopf_malen(QPainter& maler, const QRectF& kasten) const;
    void zeile_malen(QPainter& maler, const QRectF& kasten, int zeile) const;
    /// Where on the axis a place in such a box lies.
    double anteil(double x, double breite) const;

private:
    QRectF zeitflaeche(const QRectF& kasten) const;
    void raster_malen(QPainter& maler, const QRectF& flaeche) const;
    void balken_malen(QPainter& maler, const QRectF& flaeche, const Balkenzeile& z) const;
    void dichte_malen(QPainter& maler, const QRectF& flaeche, const QRectF& balken, const Balkenzeile& z) const;
    int namen_einzug(const Balkenzeile& z) const;

    std::vector<Balkenzeile> m_zeilen;
    int m_namensbreite = 0;
    std::int32_t m_meiste_Satelliten = 0;
};

}  // namespace jorv
