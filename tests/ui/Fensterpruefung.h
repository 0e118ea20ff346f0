// What every window must keep: no access key twice, no text wider than its control, no control without a name that is
// read out.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QTreeView>
#include <string>

#include "ui/Menueleiste.h"

namespace jorv::hilfen {

inline std::string wer(const QWidget& w)
{
    return w.window()->objectName().toStdString() + "." + w.objectName().toStdString() + " ";
}

/// No access key twice among the visible controls of a window.
inline void tasten_pruefen(const QWidget& fenster)
{
    QMap<QChar, QString> vergeben;
    const auto nehmen = [&](const QString& text) {
        const QChar taste = zugriffstaste(text);
        if (taste.isNull()) return;
        EXPECT_FALSE(vergeben.contains(taste)) << fenster.objectName().toStdString() << ": " << text.toStdString()
                                               << " and " << vergeben.value(taste).toStdString();
        vergeben.insert(taste, text);
    };
    for (const auto* knopf : fenster.findChildren<QAbstractButton*>())
        if (!knopf->isHidden()) nehmen(knopf->text());
    for (const auto* label : fenster.findChildren<QLabel*>())
        if (label->buddy() && !label->isHidden()) nehmen(label->text());
    for (const auto* rahmen : fenster.findChildren<QGroupBox*>()) nehmen(rahmen->title());
}

/// No text of a visible control is wider (or, wrapped, higher) than the control.
inline void breiten_pruefen(const QWidget& fenster)
{
    for (const auto* knopf : fenster.findChildren<QAbstractButton*>()) {
        if (!knopf->isVisible() || knopf->text().isEmpty()) continue;
        EXPECT_GE(knopf->width(), knopf->sizeHint().width()) << wer(*knopf) << knopf->text().toStdString();
        EXPECT_GE(knopf->height(), knopf->minimumSizeHint().height()) << wer(*knopf);
    }
    for (const auto* label : fenster.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty()) continue;
        const int breite = label->contentsRect().width();
        const int noetig = label->fontMetrics().size(Qt::TextShowMnemonic, label->text()).width();
        if (label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << wer(*label);
        } else {
            EXPECT_GE(breite, noetig) << wer(*label) << label->text().toStdString();
        }
    }
    for (const auto* rahmen : fenster.findChildren<QGroupBox*>()) {
        EXPECT_GE(rahmen->width(), rahmen->fontMetrics().horizontalAdvance(rahmen->title())) << wer(*rahmen);
    }
    for (const auto* kopf : fenster.findChildren<QHeaderView*>()) {
        if (!kopf->isVisible()) continue;
        for (int s = 0; s < kopf->count(); ++s) {
            EXPECT_GE(kopf->sectionSize(s), kopf->fontMetrics().horizontalAdvance(
                                                kopf->model()->headerData(s, kopf->orientation()).toString()))
                << wer(*kopf->parentWidget()) << s;
        }
    }
}

/// Every field that takes input is named by a label's access key or by a text for the reader of the screen; no text is
/// in English.
inline void namen_pruefen(const QWidget& fenster)
{
    QSet<const QWidget*> benannt;
    for (const auto* label : fenster.findChildren<QLabel*>()) benannt.insert(label->buddy());
    for (const auto* w : fenster.findChildren<QWidget*>()) {
        const bool eingabefeld = qobject_cast<const QLineEdit*>(w) || qobject_cast<const QComboBox*>(w) ||
                                 qobject_cast<const QAbstractItemView*>(w) || qobject_cast<const QPlainTextEdit*>(w);
        if (!eingabefeld || w->objectName().isEmpty() || w->objectName().startsWith(QLatin1String("qt_"))) continue;
        EXPECT_TRUE(benannt.contains(w) || !w->accessibleName().isEmpty()) << wer(*w);
    }
    for (const auto* knopf : fenster.findChildren<QAbstractButton*>())
        for (const char* fremd : {"Cancel", "Close", "Open", "Yes", "No", "Apply", "Save"})
            EXPECT_NE(knopf->text().remove(QLatin1Char('&')), QLatin1String(fremd)) << wer(*knopf);
}

/// All of it, on a window that is shown.
inline void fenster_pruefen(const QWidget& fenster)
{
    tasten_pruefen(fenster);
    breiten_pruefen(fenster);
    namen_pruefen(fenster);
}

/// A control of a window with its caption, for tables.
struct Steuerelement {
    const char* name;
    const char* text;  ///< of a button, its label or its own; nullptr: any
};

/// The window holds these controls, with these captions.
template <std::size_t N>
void elemente_pruefen(const QWidget& fenster, const Steuerelement (&tabelle)[N])
{
    for (const auto& soll : tabelle) {
        const auto* w = fenster.findChild<QWidget*>(QLatin1String(soll.name));
        ASSERT_TRUE(w) << fenster.objectName().toStdString() << "." << soll.name;
        if (!soll.text) continue;
        QString text = w->property("text").toString();
        if (const auto* rahmen = qobject_cast<const QGroupBox*>(w)) text = rahmen->title();
        for (const auto* label : fenster.findChildren<QLabel*>())
            if (label->buddy() == w) text = label->text();
        EXPECT_EQ(text.toStdString(), soll.text) << fenster.objectName().toStdString() << "." << soll.name;
    }
}

}  // namespace jorv::hilfen
