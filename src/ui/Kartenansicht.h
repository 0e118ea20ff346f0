// The map pic_grafik: paints the kept picture and what moves above it, and hands the events of mouse and keyboard on.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "karte/karte.h"

namespace jorv {

class Kartenansicht final : public QWidget {
public:
    Kartenansicht(Global& g, QWidget* eltern);

    Karte& karte() { return m_karte; }
    /// The port's wish: `neu` with a new scale.
    void grafik_zeichnen(bool neu);
    /// Enlarges about the middle.
    void vergroessern();
    /// Paints anew what the map shows.
    void erneuern();
    /// The picture alone, for clipboard and files, at that many pixels to a logical unit.
    QImage bild(qreal dichte);
    /// A line in the middle while there is nothing to do on the map; empty for none.
    void hinweis_setzen(const QString& text);
    void logo_setzen(const QPixmap& logo);

    /// The pointer has moved; the text of its place, empty when it left.
    std::function<void(const std::string&)> bei_zeiger;
    /// The right button went up over a station of the catalogue, at a place on the screen.
    std::function<void(int station, QPoint ort)> bei_station;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void keyReleaseEvent(QKeyEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;

private:
    void zeigen(bool neu);
    void station_waehlen(int schritt);
    void station_klicken();
    void hinweis_malen(QPainter& maler) const;

    Global& m_g;
    Karte m_karte;
    int m_station = 0;       // project station that the keyboard has gone to
    QPixmap m_bild, m_logo;  // the kept picture; null when it has to be painted
    QString m_hinweis;
    bool m_leertaste = false, m_schieben = false;
    QPointF m_zuletzt;
};

}  // namespace jorv
