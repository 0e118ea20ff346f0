// The small map pic_einzel: paints the list of drawing steps and tells the map where the pointer is.
#pragma once

#include <QWidget>

#include "karte/einzelkarte.h"

namespace jorv {

class Einzelansicht final : public QWidget {
public:
    Einzelansicht(const Global& g, const Handarbeit& h, QWidget* eltern);

    const Einzelkarte& karte() const { return m_karte; }
    QSize sizeHint() const override { return {320, 320}; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;

private:
    Einzelkarte m_karte;
};

}  // namespace jorv
