#include "ui/Verzeichnisliste.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>

#include "plattform/pfad.h"
#include "projekt/verzeichniswahl.h"
#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr int rolle_pfad = Qt::UserRole;

// The drive or share that begins a path: the longest one of the list.
int laufwerk_finden(const QComboBox& liste, std::string_view pfad)
{
    int fund = -1;
    for (int i = 0; i < liste.count(); ++i) {
        const QString name = liste.itemText(i);
        const bool laenger = fund < 0 || name.size() > liste.itemText(fund).size();
        if (laenger && anzeige(pfad).startsWith(name, Qt::CaseInsensitive)) fund = i;
    }
    return fund;
}

}  // namespace

Verzeichnisliste::Verzeichnisliste(const Global& g, QWidget* eltern)
    : QTreeWidget(eltern), m_g(g), Drive1(benannt(new QComboBox(eltern), "Drive1"))
{
    setObjectName(QStringLiteral("Dir1"));
    setColumnCount(1);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setIndentation(12);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const auto& name : g.dateien.laufwerke().alle()) Drive1->addItem(anzeige(name));
    connect(Drive1, &QComboBox::activated, this,
            [this](int) { oeffnen(pfad_verbinden(eingabe(Drive1->currentText()), "")); });
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this] { markiertes_oeffnen(); });
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* neu) {
        if (neu && bei_markierung) bei_markierung();
    });
}

void Verzeichnisliste::einbauen(QGridLayout& raster, int zeile)
{
    raster.addWidget(beschriftung(QStringLiteral("&Laufwerk:"), Drive1), zeile, 0);
    raster.addWidget(Drive1, zeile, 1, Qt::AlignLeft);
    QLabel* label = beschriftung(QStringLiteral("&Verzeichnis:"), this);
    label->setAlignment(Qt::AlignRight | Qt::AlignTop);
    raster.addWidget(label, zeile + 1, 0);
    raster.addWidget(this, zeile + 1, 1);
    setTabOrder(Drive1, this);
}

void Verzeichnisliste::oeffnen(std::string_view pfad)
{
    m_verzeichnis = Verzeichnis_Anfang(m_g, pfad);
    Drive1->setCurrentIndex(laufwerk_finden(*Drive1, m_verzeichnis));
    QTreeWidgetItem* ort = nullptr;
    {
        const QSignalBlocker still(this);
        clear();
        ort = weg_anlegen();
        const QIcon zu = style()->standardIcon(QStyle::SP_DirClosedIcon);
        for (const auto& name : Unterverzeichnisse(m_g, m_verzeichnis)) {
            auto* kind = new QTreeWidgetItem(ort, {anzeige(name)});
            kind->setIcon(0, zu);
            kind->setData(0, rolle_pfad, anzeige(pfad_verbinden(m_verzeichnis, name)));
        }
        expandAll();
        setCurrentItem(ort);
    }
    scrollToItem(ort, QAbstractItemView::PositionAtTop);
    if (bei_wechsel) bei_wechsel();
    if (bei_markierung) bei_markierung();
}

// The nodes from the root to the open directory; the last one.
QTreeWidgetItem* Verzeichnisliste::weg_anlegen()
{
    std::string weg = eingabe(Drive1->currentText());
    std::string_view rest = m_verzeichnis;
    rest.remove_prefix(std::min(weg.size(), rest.size()));
    const QIcon offen = style()->standardIcon(QStyle::SP_DirOpenIcon);
    if (!ist_unc(weg)) weg += '\\';
    auto* knoten = new QTreeWidgetItem(this, {anzeige(weg)});
    const auto fertig = [&] {
        knoten->setIcon(0, offen);
        knoten->setData(0, rolle_pfad, anzeige(weg));
    };
    fertig();
    while (!rest.empty()) {
        const auto name = rest.substr(0, rest.find('\\'));
        rest.remove_prefix(std::min(rest.size(), name.size() + 1));
        if (name.empty()) continue;
        weg = pfad_verbinden(weg, name);
        knoten = new QTreeWidgetItem(knoten, {anzeige(name)});
        fertig();
    }
    return knoten;
}

std::string Verzeichnisliste::markiert() const
{
    return currentItem() ? eingabe(currentItem()->data(0, rolle_pfad).toString()) : m_verzeichnis;
}

void Verzeichnisliste::markiertes_oeffnen()
{
    oeffnen(markiert());
}

// Enter belongs to the list here, not to the dialog's default button.
void Verzeichnisliste::keyPressEvent(QKeyEvent* ereignis)
{
    if (ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter)
        markiertes_oeffnen();
    else if (ereignis->key() == Qt::Key_Backspace)
        oeffnen(pfad_ordner(m_verzeichnis));
    else
        QTreeWidget::keyPressEvent(ereignis);
}

}  // namespace jorv
