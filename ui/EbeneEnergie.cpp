// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/ChartTheme.h"
#include "charts/Ebenenlage.h"
#include "charts/Tooltiptexte.h"
#include "planes/E_Energie.h"
#include "project/c_glob.h"
#include "ui/Bau.h"
#include "ui/Bindungen.h"
#include "ui/ChartWidget.h"
#include "ui/Ebenen.h"
#include "ui/Massstab.h"
#include "ui/Tooltiprahmen.h"

#include <QMouseEvent>

using namespace bau;
using Art = Bindungen::Art;

namespace {

// A label that answers a press of the left button, as the list's entries and its panel do.
template <class W> class Klickbar : public W {
public:
    using W::W;
    std::function<void()> klick;

protected:
    void mousePressEvent(QMouseEvent* e) override {
        if (e->button() == Qt::LeftButton && klick) {
            klick();
        }
        W::mousePressEvent(e);
    }
};

// The three choices: caption, the field with the chosen text and its button. The field's place
// goes to the model in twips, so that the list panel opens under it.
constexpr int FELD_BREITE = 306;
constexpr int LISTE_BREITE = 330;

QLabel* auswahlfeld(QWidget& e, const char* name, int y, int hoehe, Label& modell) {
    QLabel* f = text(&e, name, "", 8, y, FELD_BREITE, hoehe);
    f->setWordWrap(true);
    f->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    f->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    modell.Left = 8 * TWIPS_JE_PIXEL;
    modell.Top = y * TWIPS_JE_PIXEL;
    modell.Height = hoehe * TWIPS_JE_PIXEL;
    return f;
}

// The window colour of the platform, the background of the pictograms and the monthly chart.
Rgb fensterfarbe(const QWidget& w) {
    const QColor f = w.palette().color(QPalette::Window);
    return {static_cast<uint8_t>(f.red()), static_cast<uint8_t>(f.green()),
            static_cast<uint8_t>(f.blue())};
}

} // namespace

EnergieDiagramme energie_bauen(QWidget& e, E_Energie& g, const Projekt& p,
                               const Diagrammeinstellung& einst, Ebenenbau& bau) {
    EnergieDiagramme d;
    text(&e, "Label1", "Heizungssystem:", 8, 4);
    QLabel* system = auswahlfeld(e, "Label_System", 20, 40, g.Label_System);
    QPushButton* c1 = knopf(&e, "Command1", "▼", 318, 20, 22, 22);
    text(&e, "Label3", "Wärmeübergabe / Systemtemperatur:", 8, 62);
    QLabel* uebergabe = auswahlfeld(e, "Label_Übergabe", 78, 40, g.Label_Uebergabe);
    QPushButton* c2 = knopf(&e, "Command2", "▼", 318, 78, 22, 22);
    text(&e, "Label2", "Energieträger", 8, 120);
    QLabel* traeger = auswahlfeld(e, "Label_Energieträger", 136, 22, g.Label_Energietraeger);
    QPushButton* c3 = knopf(&e, "Command3", "▼", 318, 136, 22, 22);

    // The results: caption, value and unit per row.
    QLabel* einheit = nullptr;
    auto zeile = [&einheit](QWidget* eltern, const char* name, const char* titel, int y,
                            bool mit_einheit) {
        text(eltern, name, titel, 8, y, 220, 16);
        QLabel* wert = anzeige(eltern, 230, y - 1, 50);
        wert->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        einheit = mit_einheit ? text(eltern, nullptr, "kWh/(m² a)", 284, y) : nullptr;
        return wert;
    };
    QLabel* qhs = zeile(&e, "Label11", "Heizwärmebedarf:", 164, true);
    qhs->setObjectName(QStringLiteral("anz_qhs_sum"));
    // The caption's double ampersand is the design's way of writing one.
    QLabel* verlust = zeile(&e, "Label30", "Verluste Verteilung & Speicherung:", 182, true);
    verlust->setObjectName(QStringLiteral("anz_q_verlust"));
    QLabel* e_g = zeile(&e, "Label16", "Aufwandszahl Wärmeerzeugung:", 200, false);
    e_g->setObjectName(QStringLiteral("anz_e_g"));

    QGroupBox* frame1 = rahmen(&e, "Frame1", "Endenergiebedarf", 2, 218, 346, 58);
    QLabel* he_t = zeile(frame1, "Label8", "", 16, true);
    he_t->setObjectName(QStringLiteral("anz_q_HE_Energieträger"));
    QLabel* label8 = frame1->findChild<QLabel*>(QStringLiteral("Label8"));
    label8->setProperty("zeile", 7);
    QLabel* he_s = zeile(frame1, "Label33", "Hilfsenergiebedarf (Strom):", 34, true);
    he_s->setObjectName(QStringLiteral("anz_q_HE_Strom"));
    QLabel* pe_t = zeile(&e, "Label21", "", 280, true);
    pe_t->setObjectName(QStringLiteral("anz_q_PE_Energieträger"));
    QLabel* label21 = e.findChild<QLabel*>(QStringLiteral("Label21"));
    label21->setProperty("zeile", 9);
    QLabel* pe_s = zeile(&e, "Label14", "Primärenergiebedarf (Strom):", 298, true);
    pe_s->setObjectName(QStringLiteral("anz_q_PE_Strom"));
    QLabel* label14 = e.findChild<QLabel*>(QStringLiteral("Label14"));
    QLabel* label6 = einheit;
    label6->setObjectName(QStringLiteral("Label6"));

    QGroupBox* frame8 = rahmen(&e, "Frame8", "Primärenergiefaktoren", 2, 316, 172, 56);
    QLabel* label27 = text(frame8, "Label27", "", 8, 18, 100);
    QLabel* fp_t = anzeige(frame8, 110, 17, 50);
    fp_t->setObjectName(QStringLiteral("anz_Primärenergiefaktor_Energieträger"));
    QLabel* label34 = text(frame8, "Label34", "Strom:", 8, 36, 100);
    QLabel* fp_s = anzeige(frame8, 110, 35, 50);
    fp_s->setObjectName(QStringLiteral("anz_Primärenergiefaktor_Strom"));
    for (QLabel* w : {fp_t, fp_s}) {
        w->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }

    // The supply's parts never show; the report reads them.
    const std::array<std::pair<const char*, const Label*>, 6> teile{
        {{"anz_q_ce", &g.anz_q_ce},
         {"anz_q_d", &g.anz_q_d},
         {"anz_q_s", &g.anz_q_s},
         {"anz_q_d_he", &g.anz_q_d_he},
         {"anz_q_s_he", &g.anz_q_s_he},
         {"anz_q_g_he", &g.anz_q_g_he}}};
    std::array<QLabel*, 6> verborgen{};
    for (std::size_t i = 0; i < teile.size(); ++i) {
        verborgen[i] = anzeige(&e, 0, 0);
        verborgen[i]->setObjectName(QString::fromUtf8(teile[i].first));
        verborgen[i]->hide();
    }

    // The column test of the tooltip compares with the pictogram's background: the chart shares
    // it.
    const Rgb hintergrund = fensterfarbe(e);
    d.Picture2 = new ChartWidget(80, 52, &e, hintergrund);
    d.Picture2->move(180, 318);
    d.Picture3 = new ChartWidget(80, 52, &e, hintergrund);
    d.Picture3->move(266, 318);
    text(&e, "Monatsverbrauch", "Monatlicher End- und Primärenergiebedarf in kWh/(m² Monat)", 8,
         374);
    d.Monatsuebersicht = new ChartWidget(330, 112, &e, hintergrund);
    d.Monatsuebersicht->move(10, 390);
    for (ChartWidget* c : {d.Monatsuebersicht, d.Picture2, d.Picture3}) {
        c->flaeche().Cls();
        bau.diagramme.push_back(c);
    }

    // The list panel over everything else, with its nine entries.
    auto* frame = new Klickbar<QFrame>(&e);
    frame->setObjectName(QStringLiteral("Frame_Auswahl"));
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setAutoFillBackground(true);
    frame->hide();
    d.Frame_Auswahl = frame;
    for (std::size_t i = 0; i < d.Label_Auswahl.size(); ++i) {
        auto* l = new Klickbar<QLabel>(frame);
        l->setObjectName(QStringLiteral("Label_Auswahl(%1)").arg(i + 1));
        l->setWordWrap(true);
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        l->setCursor(Qt::PointingHandCursor);
        d.Label_Auswahl[i] = l;
    }
    constexpr int EINTRAG_BREITE = LISTE_BREITE - 16;
    QLabel* muster = d.Label_Auswahl[0];
    g.Texthoehe = [muster](const std::string& t) {
        QLabel probe(QString::fromStdString(t));
        probe.setFont(muster->font());
        probe.setWordWrap(true);
        return probe.heightForWidth(EINTRAG_BREITE) * TWIPS_JE_PIXEL;
    };

    d.tooltip = new Tooltiprahmen(e);
    ChartWidget* chart = d.Monatsuebersicht;
    ChartWidget* bild2 = d.Picture2;
    const std::string sprache = einst.Sprache;
    const char dez = einst.dezimal;
    d.tooltip->beobachten(
        chart,
        [&p, sprache, dez](double x) {
            return tooltip_Monatsverbrauch(p, tooltip_monat_energie(x), sprache, dez);
        },
        [chart, bild2](double x, double y) {
            return auf_saeule_energie(chart->flaeche(), bild2->flaeche(), x, y);
        });

    // The frame stands left of the pointer and moves up where it would end below the plane.
    QFrame* tip = d.tooltip->Frame_ToolTip;
    d.tooltip->lage = [tip, &e](QPoint zeiger) {
        const Lagepunkt ort =
            tooltip_lage_energie({zeiger.x(), zeiger.y()}, tip->width(), tip->height(), e.height());
        return QPoint(ort.x, ort.y);
    };

    bau.binden.push_back([=, &g](Bindungen& bd) {
        QObject::connect(c1, &QPushButton::clicked, frame,
                         [&bd, &g] { bd.ausfuehren([&g] { g.Command1_Click(); }); });
        QObject::connect(c2, &QPushButton::clicked, frame,
                         [&bd, &g] { bd.ausfuehren([&g] { g.Command2_Click(); }); });
        QObject::connect(c3, &QPushButton::clicked, frame,
                         [&bd, &g] { bd.ausfuehren([&g] { g.Command3_Click(); }); });
        frame->klick = [&bd, &g] { bd.ausfuehren([&g] { g.Frame_Auswahl_Click(); }); };
        for (std::size_t i = 0; i < d.Label_Auswahl.size(); ++i) {
            static_cast<Klickbar<QLabel>*>(d.Label_Auswahl[i])->klick = [&bd, &g, i] {
                bd.ausfuehren([&g, i] { g.Label_Auswahl_Click(static_cast<int>(i) + 1); });
            };
            bd.label(*d.Label_Auswahl[i], g.Label_Auswahl[i]);
        }
        bd.label(*system, g.Label_System);
        bd.label(*uebergabe, g.Label_Uebergabe);
        bd.label(*traeger, g.Label_Energietraeger);
        for (const auto& [l, m] : std::initializer_list<std::pair<QLabel*, const Label*>>{
                 {label8, &g.Label8}, {label21, &g.Label21}, {label27, &g.Label27}}) {
            bd.label(*l, *m);
        }
        // The electricity lines' captions keep the design's text; the model only hides them.
        for (const auto& [l, m] : std::initializer_list<std::pair<QLabel*, const Label*>>{
                 {label14, &g.Label14}, {label6, &g.Label6}, {label34, &g.Label34}}) {
            bd.label(*l, *m, Art::Entwurf);
        }
        for (const auto& [l, m] : std::initializer_list<std::pair<QLabel*, const Label*>>{
                 {qhs, &g.anz_qhs_sum},
                 {verlust, &g.anz_q_verlust},
                 {e_g, &g.anz_e_g},
                 {he_t, &g.anz_q_HE_Energietraeger},
                 {he_s, &g.anz_q_HE_Strom},
                 {pe_t, &g.anz_q_PE_Energietraeger},
                 {pe_s, &g.anz_q_PE_Strom},
                 {fp_t, &g.anz_Primaerenergiefaktor_Energietraeger},
                 {fp_s, &g.anz_Primaerenergiefaktor_Strom}}) {
            bd.label(*l, *m, Art::Ergebnis);
        }
        for (std::size_t i = 0; i < teile.size(); ++i) {
            bd.label(*verborgen[i], *teile[i].second);
        }
        bd.folgen([=, &g] {
            // The panel and its stacked entries, twips of the model.
            for (std::size_t i = 0; i < d.Label_Auswahl.size(); ++i) {
                const Label& m = g.Label_Auswahl[i];
                massstab::setzen(
                    *d.Label_Auswahl[i],
                    QRect(8, m.Top / TWIPS_JE_PIXEL, EINTRAG_BREITE, m.Height / TWIPS_JE_PIXEL));
            }
            massstab::setzen(*frame, QRect(g.Frame_Auswahl_Left / TWIPS_JE_PIXEL,
                                           g.Frame_Auswahl_Top / TWIPS_JE_PIXEL, LISTE_BREITE,
                                           g.Frame_Auswahl_Height / TWIPS_JE_PIXEL));
            frame->setVisible(g.Frame_Auswahl_Visible);
            if (g.Frame_Auswahl_Visible) {
                frame->raise();
            }
        });
    });
    return d;
}
