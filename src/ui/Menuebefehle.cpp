#include "ui/Menuebefehle.h"

#include <QDesktopServices>
#include <QUrl>
#include <algorithm>
#include <array>

#include "auswertung/basis_ausfuehren.h"
#include "auswertung/basis_esa.h"
#include "auswertung/basis_gesamt.h"
#include "auswertung/basis_i95.h"
#include "auswertung/basis_lovena.h"
#include "auswertung/baumbefehle.h"
#include "auswertung/folgeprogramme.h"
#include "auswertung/gesamt_batch.h"
#include "auswertung/gesamtlauf.h"
#include "auswertung/lauf.h"
#include "auswertung/protokolle.h"
#include "daten/einfuegen.h"
#include "daten/grenzen.h"
#include "planung/figuren.h"
#include "planung/zeitfenster.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "projekt/verfahren.h"
#include "projekt/verfahren_loeschen.h"
#include "ui/Baumansicht.h"
#include "ui/Dateibefehle.h"
#include "ui/Handbuchfenster.h"
#include "ui/Hauptfenster.h"
#include "ui/Kartenansicht.h"
#include "ui/frmBasisDialog.h"
#include "ui/frmEinstellungenAlle.h"
#include "ui/frmErstStart.h"
#include "ui/frmVerfahrEdit.h"

namespace jorv {

namespace {

// A routine of the core that needs nothing but the state. What it returns it has shown.
template <auto routine>
void kern(Hauptfenster& form)
{
    static_cast<void>(routine(form.g()));
}

// A command of the map, which has the port paint it.
template <void (Karte::*routine)()>
void karte(Hauptfenster& form)
{
    (form.karte().karte().*routine)();
    form.karte().erneuern();
}

void handbuch_oeffnen(Hauptfenster& form)
{
    const auto pdf = handbuch(form.g());
    if (!pdf) return;
    const Dateisystem& dateien = form.g().dateien;
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(dateien.host(*pdf).string())))) return;
    const auto text = dateien.lesen(verkettet(ohne_ende(*pdf, 3), "md"));
    if (text) handbuch_zeigen(QString::fromStdString(*text));
}

void m_datei_laden(Hauptfenster& form)
{
    frmVerfahrEdit liste(form.g(), &form);
    if (liste.exec() == QDialog::Accepted) static_cast<void>(Verfahren_oeffnen(form.g(), liste.name()));
}

void m_grund_EinstellungenAlle(Hauptfenster& form)
{
    frmEinstellungenAlle::zeigen(form.g(), form.baum().gewaehlt(), &form);
}

struct Befehl {
    std::string_view name;
    void (*ausfuehren)(Hauptfenster&);
};
constexpr std::array befehle = {
    Befehl{"m_datei_neu", kern<m_datei_neu>},
    Befehl{"m_datei_laden", m_datei_laden},
    Befehl{"m_datei_sichern", kern<m_datei_sichern>},
    Befehl{"m_datei_loeschen", kern<m_datei_loeschen>},
    Befehl{"m_datei_rinex", kern<m_datei_rinex>},
    Befehl{"m_datei_antenne", kern<m_datei_antenne>},
    Befehl{"m_datei_ende", [](Hauptfenster& form) { form.close(); }},
    Befehl{"m_grund_zeitfenster_1h", kern<m_grund_zeitfenster_1h>},
    Befehl{"m_grafik_orginal", karte<&Karte::m_grafik_orginal>},
    Befehl{"m_grafik_verkleinern", karte<&Karte::m_grafik_verkleinern>},
    Befehl{"m_grafik_vergroessern", [](Hauptfenster& form) { form.karte().vergroessern(); }},
    Befehl{"m_grafik_alles", karte<&Karte::alles_zeigen>},
    Befehl{"m_grafik_pkz", karte<&Karte::m_grafik_pkz>},
    Befehl{"m_grafik_grenzen", kern<m_grafik_grenzen>},
    Befehl{"m_grafik_ablage", [](Hauptfenster& form) { form.karte_in_ablage(); }},
    Befehl{"m_grafik_speichern", [](Hauptfenster& form) { form.karte_speichern(); }},
    Befehl{"m_grafik_leiste", [](Hauptfenster& form) { form.leiste_umschalten(); }},
    Befehl{"m_grafik_zeiten", [](Hauptfenster& form) { form.zeiten_zeigen(0); }},
    Befehl{"m_geo_definieren", kern<m_geo_definieren>},
    Befehl{"m_geo_loeschen", kern<m_geo_loeschen>},
    Befehl{"m_hilfe_handbuch", handbuch_oeffnen},
    Befehl{"m_grund_editor", [](Hauptfenster& form) { m_grund_editor(form.g(), &form); }},
    Befehl{"m_hilfe_neuerungen", [](Hauptfenster& form) { frmErstStart(form.g(), &form).exec(); }},
    Befehl{"m_datei_importieren", [](Hauptfenster& form) { m_datei_importieren(form.g(), &form); }},
    Befehl{"m_datei_basis_liste", [](Hauptfenster& form) { m_datei_basis_liste(form.g(), &form); }},
    Befehl{"m_datei_basis_dialog", [](Hauptfenster& form) { frmBasisDialog(form.g(), &form).exec(); }},
    Befehl{"m_grund_EinstellungenAlle", m_grund_EinstellungenAlle},
    Befehl{"m_wasoft_run_n", [](Hauptfenster& form) { static_cast<void>(m_wasoft_run_n(form.g())); }},
    Befehl{"m_wasoft_erstellen", kern<m_wasoft_erstellen>},
    Befehl{"m_wasoft_batch", [](Hauptfenster& form) { static_cast<void>(m_wasoft_batch(form.g())); }},
    Befehl{"m_wasoft_run", [](Hauptfenster& form) { static_cast<void>(m_wasoft_run(form.g())); }},
    Befehl{"m_basis_erstellen", kern<m_basis_erstellen>},
    Befehl{"m_basis_batch", kern<m_basis_batch>},
    Befehl{"m_basis_run", kern<m_basis_run>},
    Befehl{"m_basis_esa", [](Hauptfenster& form) { static_cast<void>(m_basis_esa(form.g())); }},
    Befehl{"m_basis_i95", kern<m_basis_i95>},
    Befehl{"m_basis_lovena", kern<m_basis_lovena>},
    Befehl{"m_wasoft_runa", kern<m_wasoft_runa>},
    Befehl{"m_wasoft_holbek", kern<m_wasoft_holbek>},
    Befehl{"m_protkoll_editieren",
           [](Hauptfenster& form) { m_protkoll_editieren(form.g(), form.editierte_datei, &form); }},
};

constexpr std::array protokollbefehle = {std::string_view("m_protkoll_einsehen"), std::string_view("m_protkoll_kurz"),
                                         std::string_view("m_protkoll_kurz_aller"),
                                         std::string_view("m_protkoll_fehler")};

// The number in brackets behind the name of an entry that stands there several times; 0 without one.
int nummer(std::string_view name, std::string_view stamm)
{
    if (!name.starts_with(stamm) || !name.ends_with(')')) return 0;
    name.remove_prefix(stamm.size());
    name.remove_suffix(1);
    return name.starts_with('(') ? ganz_streng(name.substr(1)).value_or(0) : 0;
}

}  // namespace

bool menuebefehl_ausfuehren(Hauptfenster& form, std::string_view name)
{
    for (const auto& befehl : befehle)
        if (befehl.name == name) {
            befehl.ausfuehren(form);
            return true;
        }
    for (const auto befehl : protokollbefehle)
        if (befehl == name) return static_cast<void>(protokoll_oeffnen(form.g(), name)), true;
    if (const int n = nummer(name, "m_dateien_verfahren")) {
        static_cast<void>(m_dateien_verfahren(form.g(), n));
        return true;
    }
    if (const int n = nummer(name, "m_grafik_zeiten")) {
        form.zeiten_zeigen(n);
        return true;
    }
    return false;
}

bool menuebefehl_vorhanden(std::string_view name)
{
    const auto gleich = [=](const auto& befehl) { return befehl.name == name; };
    return std::any_of(befehle.begin(), befehle.end(), gleich) ||
           std::find(protokollbefehle.begin(), protokollbefehle.end(), name) != protokollbefehle.end() ||
           nummer(name, "m_dateien_verfahren") != 0 || nummer(name, "m_grafik_zeiten") != 0;
}

}  // namespace jorv
