#include "ui/Baumansicht.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include "ui/Bilder.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr int rolle_schluessel = Qt::UserRole, rolle_text = Qt::UserRole + 1;

std::string knotentext(const QTreeWidgetItem* knoten)
{
    return knoten ? eingabe(knoten->data(0, rolle_text).toString()) : std::string();
}

struct Ort {
    QString knoten, eltern;
    bool operator==(const Ort&) const = default;
};

Ort ort(const QTreeWidgetItem* knoten)
{
    if (!knoten) return {};
    return {knoten->data(0, rolle_text).toString(),
            knoten->parent() ? knoten->parent()->data(0, rolle_text).toString() : QString()};
}

}  // namespace

Baumansicht::Baumansicht(QWidget* eltern) : QTreeWidget(eltern)
{
    setObjectName(QStringLiteral("tre_punkte"));
    setAccessibleName(QStringLiteral("Inhalt des Verfahrens"));
    setColumnCount(2);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIconSize(QSize(16, 16));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    const auto klappen = [this](QTreeWidgetItem* knoten, bool offen) {
        if (!m_im_aufbau && !knoten->parent() && bei_klappen)
            bei_klappen(eingabe(knoten->data(0, rolle_schluessel).toString()), offen);
    };
    connect(this, &QTreeWidget::itemExpanded, this, [=](QTreeWidgetItem* knoten) { klappen(knoten, true); });
    connect(this, &QTreeWidget::itemCollapsed, this, [=](QTreeWidgetItem* knoten) { klappen(knoten, false); });
}

void Baumansicht::zeigen(const Global& g, const std::function<std::string(std::string_view, std::string_view)>& hinweis)
{
    const Ort gewaehlt = ort(currentItem());
    const int hoehe = verticalScrollBar()->value();
    m_im_aufbau = true;
    m_gedrueckt = nullptr;
    setUpdatesEnabled(false);
    clear();
    QTreeWidgetItem* wieder = nullptr;
    for (const auto& gruppe : g.baum.Knoten) {
        auto* oben = new QTreeWidgetItem({anzeige(gruppe.Text), QString::number(gruppe.Kinder.size())});
        oben->setData(0, rolle_schluessel, anzeige(gruppe.Schluessel));
        oben->setData(0, rolle_text, anzeige(gruppe.Text));
        oben->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        oben->setForeground(1, palette().placeholderText());
        for (const auto& k : gruppe.Kinder) {
            auto* kind = new QTreeWidgetItem(oben, {anzeige(k.Text)});
            kind->setData(0, rolle_text, anzeige(k.Text));
            if (k.Bild) kind->setIcon(0, baumbild(k.Bild));
            kind->setToolTip(0, anzeige(hinweis(gruppe.Text, k.Text)));
            if (ort(kind) == gewaehlt) wieder = kind;
        }
        addTopLevelItem(oben);
        oben->setExpanded(gruppe.offen);
        if (ort(oben) == gewaehlt) wieder = oben;
    }
    if (wieder) setCurrentItem(wieder);
    verticalScrollBar()->setValue(hoehe);
    setUpdatesEnabled(true);
    m_im_aufbau = false;
}

std::string Baumansicht::gewaehlt() const
{
    return knotentext(currentItem());
}

// A click counts when the button goes up on the node that it went down on, not on the sign that opens a group.
void Baumansicht::mouseReleaseEvent(QMouseEvent* ereignis)
{
    QTreeWidget::mouseReleaseEvent(ereignis);
    const QTreeWidgetItem* knoten = itemAt(ereignis->position().toPoint());
    if (ereignis->button() != Qt::LeftButton || !knoten || knoten != currentItem() || !bei_klick) return;
    if (knoten->parent()) bei_klick(knotentext(knoten), knotentext(knoten->parent()));
}

void Baumansicht::keyPressEvent(QKeyEvent* ereignis)
{
    const QTreeWidgetItem* knoten = currentItem();
    const bool kind = knoten && knoten->parent();
    if (kind && (ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter) && bei_klick)
        bei_klick(knotentext(knoten), knotentext(knoten->parent()));
    else if (kind && ereignis->key() == Qt::Key_F2 && bei_einstellungen)
        bei_einstellungen(knotentext(knoten), knotentext(knoten->parent()));
    else
        QTreeWidget::keyPressEvent(ereignis);
}

void Baumansicht::contextMenuEvent(QContextMenuEvent* ereignis)
{
    if (!bei_kontext) return;
    const bool tastatur = ereignis->reason() == QContextMenuEvent::Keyboard;
    QTreeWidgetItem* knoten = tastatur ? currentItem() : itemAt(viewport()->mapFromGlobal(ereignis->globalPos()));
    if (knoten) setCurrentItem(knoten);
    const QPoint stelle =
        tastatur && knoten ? viewport()->mapToGlobal(visualItemRect(knoten).center()) : ereignis->globalPos();
    bei_kontext(knotentext(knoten), knoten ? knotentext(knoten->parent()) : std::string(), stelle);
}

}  // namespace jorv
