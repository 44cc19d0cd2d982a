// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the main window's layout for the browser page: every widget of the desktop's planes
// with its kind, place in its parent, German and English text, and the model a bound control
// follows. `seitenlage FILE` writes FILE; `seitenlage --pruefen FILE` fails when FILE is not
// what the planes build now; `seitenlage --diagramme DIR` saves the overview's charts as PNG.
#include "tools/bildbogen/StillesProgramm.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/Hauptfenster.h"
#include "web/Steuerelemente.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <fstream>
#include <iostream>
#include <iterator>
#include <map>

namespace {

using Bindungsliste = std::map<const QWidget*, Bindungen::Bindung>;

QString art_von(const QWidget* w) {
    if (dynamic_cast<const ChartWidget*>(w)) {
        return QStringLiteral("diagramm");
    }
    if (qobject_cast<const QScrollBar*>(w)) {
        return QStringLiteral("scroll");
    }
    if (qobject_cast<const QComboBox*>(w)) {
        return QStringLiteral("liste");
    }
    if (qobject_cast<const QCheckBox*>(w)) {
        return QStringLiteral("check");
    }
    if (qobject_cast<const QRadioButton*>(w)) {
        return QStringLiteral("option");
    }
    if (qobject_cast<const QPushButton*>(w)) {
        return QStringLiteral("knopf");
    }
    if (qobject_cast<const QGroupBox*>(w)) {
        return QStringLiteral("rahmen");
    }
    if (qobject_cast<const QLineEdit*>(w)) {
        return QStringLiteral("eingabe");
    }
    if (qobject_cast<const QLabel*>(w)) {
        return QStringLiteral("label");
    }
    return QStringLiteral("flaeche");
}

QString text_von(const QWidget* w) {
    if (const auto* l = qobject_cast<const QLabel*>(w)) {
        return l->text();
    }
    if (const auto* b = qobject_cast<const QAbstractButton*>(w)) {
        return b->text();
    }
    if (const auto* g = qobject_cast<const QGroupBox*>(w)) {
        return g->title();
    }
    return QString();
}

// The widgets under `wurzel` in a fixed order, parents before their children.
void sammeln(const QWidget* w, std::vector<const QWidget*>& liste) {
    for (const QObject* o : w->children()) {
        const auto* k = qobject_cast<const QWidget*>(o);
        if (k == nullptr || k->isWindow() || qobject_cast<const QScrollBar*>(w) ||
            qobject_cast<const QComboBox*>(w) || dynamic_cast<const ChartWidget*>(w)) {
            continue;
        }
        liste.push_back(k);
        sammeln(k, liste);
    }
}

struct Lauf {
    StillesProgramm stille;
    Desktopprogramm* programm = &stille.programm;
    Bindungsliste bindungen;
    std::vector<const QWidget*> widgets;

    explicit Lauf(const char* sprache) {
        Bindungen::gebunden = [this](const Bindungen::Bindung& b) { bindungen[b.widget] = b; };
        programm->starten(sprache);
        Bindungen::gebunden = nullptr;
        sammeln(programm->haupt->centralWidget(), widgets);
    }
};

std::map<const QWidget*, QString> diagrammnamen(Desktopprogramm& d) {
    std::map<const QWidget*, QString> n;
    auto setzen = [&n](const ChartWidget* c, const char* name) { n[c] = QString::fromUtf8(name); };
    setzen(d.geometrie_diagramme.AV_Picture, "AV_Picture");
    setzen(d.geometrie_diagramme.Picture1, "Picture1");
    const UebersichtDiagramme& u = d.uebersicht_diagramme;
    setzen(u.Monatsbilanz, "Monatsbilanz");
    setzen(u.JahrBilanz, "JahrBilanz_Uebersicht");
    setzen(u.UeberGrafik, "UeberGrafik");
    setzen(u.UeberJahr, "UeberJahr");
    setzen(u.Temperaturen, "Temperaturen");
    const HeizenDiagramme& h = d.heizen_diagramme;
    setzen(h.Heizbilanz, "Heizbilanz");
    setzen(h.JahrBilanz, "JahrBilanz_Heizen");
    setzen(h.NutzungsgradMonat, "NutzungsgradMonat");
    setzen(h.NutzungsgradJahr, "NutzungsgradJahr");
    setzen(h.Gewinne_N, "Gewinne_N");
    setzen(h.Verluste_N, "Verluste_N");
    setzen(h.Gewinne_S, "Gewinne_S");
    setzen(h.Verluste_S, "Verluste_S");
    setzen(h.Gewinne_O, "Gewinne_O");
    setzen(h.Verluste_O, "Verluste_O");
    setzen(h.Gewinne_W, "Gewinne_W");
    setzen(h.Verluste_W, "Verluste_W");
    const KuehlenDiagramme& k = d.kuehlen_diagramme;
    setzen(k.StundenProTagMonat, "StundenProTagMonat");
    setzen(k.StundenProTagJahr, "StundenProTagJahr");
    setzen(k.KuehlbedarfMonat, "KuehlbedarfMonat");
    setzen(k.KuehlbedarfJahr, "KuehlbedarfJahr");
    setzen(k.KuehlGradStundenMonat, "KuehlGradStundenMonat");
    setzen(k.KuehlGradStundenJahr, "KuehlGradStundenJahr");
    setzen(d.sankey_diagramme.Sankey, "Sankey");
    setzen(d.sankey_diagramme.Sankey_Kuehlen, "Sankey_Kuehlen");
    setzen(d.energie_diagramme.Monatsuebersicht, "Monatsuebersicht");
    setzen(d.energie_diagramme.Picture2, "Picture2");
    setzen(d.energie_diagramme.Picture3, "Picture3");
    // The heating fields are written by the plane, not bound.
    const std::array<std::pair<const QLabel*, const char*>, 10> felder{{
        {h.qsols_anz, "qsols_anz"},
        {h.qis_anz, "qis_anz"},
        {h.qh_s_anz, "qh_s_anz"},
        {h.qinfs_anz, "qinfs_anz"},
        {h.qtrs_anz, "qtrs_anz"},
        {h.qh_anz, "qh_anz"},
        {h.qsol_anz, "qsol_anz"},
        {h.qi_anz, "qi_anz"},
        {h.qinf_anz, "qinf_anz"},
        {h.qtr_anz, "qtr_anz"},
    }};
    for (const auto& [l, name] : felder) {
        n[l] = QString::fromUtf8(name);
    }
    const KlimaFelder& kf = d.klima_felder;
    for (const auto& [l, name] : std::initializer_list<std::pair<const QLabel*, const char*>>{
             {kf.anz_klimaregion, "anz_klimaregion"},
             {kf.anz_MaxJahrTemp, "anz_MaxJahrTemp"},
             {kf.anz_MaxMonatTemp, "anz_MaxMonatTemp"},
             {kf.anz_MaxMonatName, "anz_MaxMonatName"},
             {kf.anz_MittelJahrTemp, "anz_MittelJahrTemp"},
             {kf.anz_MinMonatTemp, "anz_MinMonatTemp"},
             {kf.anz_MinMonatName, "anz_MinMonatName"},
             {kf.anz_MinJahrTemp, "anz_MinJahrTemp"},
             {kf.anz_Heizgradtage, "anz_Heizgradtage"},
             {kf.anz_Umittel, "anz_Umittel"},
             {kf.anz_Tspez, "anz_Tspez"},
             {kf.anz_Vspez, "anz_Vspez"},
             {kf.anz_TVspez, "anz_TVspez"},
             {kf.anz_tau, "anz_tau"},
             {kf.anz_Heizlast, "anz_Heizlast"},
             {kf.anz_heizlast_spez, "anz_heizlast_spez"},
             {kf.anz_kuehllast, "anz_kuehllast"},
             {kf.anz_kuehllast_spez, "anz_kuehllast_spez"},
             {kf.anz_Heizgrenztemp, "anz_Heizgrenztemp"},
             {kf.anz_Heiztage, "anz_Heiztage"},
         }) {
        n[l] = QString::fromUtf8(name);
    }
    return n;
}

QString farbname(const QColor& c) {
    return c.name(QColor::HexRgb);
}

// The menu's entries with their names and both languages' texts, submenus nested.
QJsonArray menue(const QWidget* d, const QWidget* e) {
    QJsonArray liste;
    const QList<QAction*> ad = d->actions(), ae = e->actions();
    for (int i = 0; i < ad.size() && i < ae.size(); ++i) {
        if (ad[i]->isSeparator()) {
            continue;
        }
        QJsonObject o{{QStringLiteral("name"), ad[i]->objectName()},
                      {QStringLiteral("text"), QJsonObject{{QStringLiteral("d"), ad[i]->text()},
                                                           {QStringLiteral("e"), ae[i]->text()}}}};
        if (ad[i]->menu() != nullptr && ae[i]->menu() != nullptr) {
            o[QStringLiteral("eintraege")] = menue(ad[i]->menu(), ae[i]->menu());
        }
        liste.append(o);
    }
    return liste;
}

QByteArray seitenlage() {
    Lauf deutsch("d");
    Lauf englisch("e");
    if (deutsch.widgets.size() != englisch.widgets.size()) {
        throw std::runtime_error("the planes differ between the languages");
    }
    std::map<const void*, QString> modellnamen;
    for (const Steuerelement& s : steuerelemente(*deutsch.programm->ebenen)) {
        modellnamen[s.modell] = QString::fromStdString(s.name);
    }
    const std::map<const QWidget*, QString> namen = diagrammnamen(*deutsch.programm);
    std::map<const QWidget*, int> nummer;
    const QWidget* mitte = deutsch.programm->haupt->centralWidget();
    QJsonArray liste;
    for (std::size_t i = 0; i < deutsch.widgets.size(); ++i) {
        const QWidget* w = deutsch.widgets[i];
        const QWidget* e = englisch.widgets[i];
        nummer[w] = static_cast<int>(i);
        QJsonObject o;
        o[QStringLiteral("art")] = art_von(w);
        if (w->parentWidget() != mitte) {
            o[QStringLiteral("eltern")] = nummer.at(w->parentWidget());
        }
        if (!w->objectName().isEmpty()) {
            o[QStringLiteral("name")] = w->objectName();
        }
        const QRect g = w->geometry();
        o[QStringLiteral("ort")] = QJsonArray{g.x(), g.y(), g.width(), g.height()};
        if (w->isHidden()) {
            o[QStringLiteral("verborgen")] = true;
        }
        const QString td = text_von(w), te = text_von(e);
        if (!td.isEmpty() || !te.isEmpty()) {
            o[QStringLiteral("text")] =
                QJsonObject{{QStringLiteral("d"), td}, {QStringLiteral("e"), te}};
        }
        if (const auto b = deutsch.bindungen.find(w); b != deutsch.bindungen.end()) {
            const auto m = modellnamen.find(b->second.modell);
            if (m != modellnamen.end()) {
                o[QStringLiteral("modell")] = m->second;
                if (qobject_cast<const QRadioButton*>(w)) {
                    o[QStringLiteral("index")] = b->second.index;
                }
                if (b->second.art == Bindungen::Art::Ergebnis) {
                    o[QStringLiteral("ergebnis")] = true;
                }
                if (b->second.art == Bindungen::Art::Entwurf) {
                    o[QStringLiteral("entwurf")] = true;
                }
                if (b->second.massstab > 0) {
                    o[QStringLiteral("massstab")] = b->second.massstab;
                }
            }
        }
        if (const auto* c = dynamic_cast<const ChartWidget*>(w)) {
            const Rgb h = const_cast<ChartWidget*>(c)->flaeche().BackColor();
            o[QStringLiteral("hintergrund")] = farbname(QColor(h.r, h.g, h.b));
        }
        if (const auto n = namen.find(w); n != namen.end()) {
            o[QStringLiteral("feld")] = n->second;
        }
        if (const auto* sb = qobject_cast<const QScrollBar*>(w)) {
            if (sb->orientation() == Qt::Vertical) {
                o[QStringLiteral("senkrecht")] = true;
            }
        }
        if (const auto* f = qobject_cast<const QFrame*>(w)) {
            if (f->frameShadow() == QFrame::Sunken && f->frameShape() != QFrame::NoFrame) {
                o[QStringLiteral("versenkt")] = true;
            }
        }
        if (w->autoFillBackground()) {
            o[QStringLiteral("farbe")] = farbname(w->palette().color(QPalette::Window));
        }
        if (w->font().bold()) {
            o[QStringLiteral("fett")] = true;
        }
        if (const auto* l = qobject_cast<const QLabel*>(w)) {
            if (l->alignment() & Qt::AlignHCenter) {
                o[QStringLiteral("mitte")] = true;
            } else if (l->alignment() & Qt::AlignRight) {
                o[QStringLiteral("rechts")] = true;
            }
            if (l->wordWrap()) {
                o[QStringLiteral("umbruch")] = true;
            }
        }
        const QVariant zeile = w->property("zeile");
        if (zeile.isValid()) {
            o[QStringLiteral("zeile")] = zeile.toInt();
        }
        liste.append(o);
    }
    const QSize groesse = deutsch.programm->haupt->centralWidget()->size();
    QJsonObject wurzel{{QStringLiteral("breite"), groesse.width()},
                       {QStringLiteral("hoehe"), groesse.height()},
                       {QStringLiteral("widgets"), liste},
                       {QStringLiteral("menue"), menue(deutsch.programm->haupt->menuBar(),
                                                       englisch.programm->haupt->menuBar())}};
    return QJsonDocument(wurzel).toJson(QJsonDocument::Indented);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList a = QApplication::arguments();
    // The overview's charts of the new project in German as the desktop draws them, for the
    // browser tests' comparison.
    if (a.size() == 3 && a[1] == QStringLiteral("--diagramme")) {
        Lauf lauf("d");
        const UebersichtDiagramme& u = lauf.programm->uebersicht_diagramme;
        bool gut =
            u.Monatsbilanz->flaeche().bild().save(a[2] + QStringLiteral("/Monatsbilanz.png"));
        gut =
            u.UeberGrafik->flaeche().bild().save(a[2] + QStringLiteral("/UeberGrafik.png")) && gut;
        return gut ? 0 : 1;
    }
    const bool pruefen = a.size() == 3 && a[1] == QStringLiteral("--pruefen");
    if (a.size() != 2 && !pruefen) {
        std::cerr << "usage: seitenlage [--pruefen] FILE | --diagramme DIR\n";
        return 2;
    }
    const std::string datei = a.last().toStdString();
    const QByteArray neu = seitenlage();
    if (pruefen) {
        std::ifstream ein(datei, std::ios::binary);
        const std::string alt((std::istreambuf_iterator<char>(ein)),
                              std::istreambuf_iterator<char>());
        if (alt != neu.toStdString()) {
            std::cerr << datei << " is not the layout the planes build now; regenerate it with\n"
                      << "  build/test/tools/seitenlage/seitenlage web/layout.json\n";
            return 1;
        }
        return 0;
    }
    std::ofstream aus(datei, std::ios::binary);
    aus << neu.toStdString();
    return aus ? 0 : 1;
}
