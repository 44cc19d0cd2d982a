// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ZoomFenster.h"

#include "charts/A_Uebersicht.h"
#include "charts/Ebenenlage.h"
#include "project/c_glob.h"
#include "ui/Bau.h"
#include "ui/ChartWidget.h"
#include "ui/Massstab.h"

#include <QScreen>

#include <algorithm>

namespace {

// The row of month buttons above the chart.
constexpr int KNOPF_HOEHE = 22;

} // namespace

ZoomFenster::ZoomFenster(Projekt& p, const Diagrammeinstellung& e, QWidget* eltern, int breite,
                         int hoehe)
    : QDialog(eltern), p_(p), e_(e), entwurf_(breite, hoehe) {
    setObjectName(QStringLiteral("A_Zoom"));
    setFixedSize(breite, hoehe);
    const ZoomLage lage = zoom_lage(breite, hoehe);
    for (std::size_t i = 0; i < Monatsbutton.size(); ++i) {
        const std::string name = "Monatsbutton(" + std::to_string(i + 1) + ")";
        const int m = static_cast<int>(i) + 1;
        Monatsbutton[i] =
            bau::knopf(this, name.c_str(), p.Monat[m].Kurz.c_str(), lage.Monatsbutton_Left[i], 0,
                       lage.Monatsbutton_Width[i], KNOPF_HOEHE);
        connect(Monatsbutton[i], &QPushButton::clicked, this, [this, m] { Monatsbutton_Click(m); });
    }
    Temperaturen = new ChartWidget(lage.Temperaturen_Width, lage.Temperaturen_Height, this);
    Temperaturen->setObjectName(QStringLiteral("Temperaturen"));
    Temperaturen->move(8, KNOPF_HOEHE);
    Temperaturen->zeichnen = [this] {
        Temperaturen->flaeche().Cls();
        TemperaturDiagrammZeichnen(p_, Temperaturen->flaeche(), e_);
    };
    Command_Schliessen = bau::knopf(this, "Command_Schliessen", "Schließen", lage.Schliessen_Left,
                                    lage.Schliessen_Top, 128, 26);
    Command_Schliessen->setProperty("zeile", 0);
    connect(Command_Schliessen, &QPushButton::clicked, this, &QDialog::close);
}

void ZoomFenster::massstab_setzen(double s) {
    if (const QScreen* schirm = screen()) {
        // Room for the title bar and the frame, which the platform adds.
        const QSize frei = schirm->availableGeometry().size() - QSize(16, 48);
        s = std::min({s, static_cast<double>(frei.width()) / entwurf_.width(),
                      static_cast<double>(frei.height()) / entwurf_.height()});
    }
    s = std::max(s, 1.0);
    if (massstab_ == nullptr) {
        massstab_ = new Massstab(*this, entwurf_, false);
    }
    setFixedSize(massstab::skaliert(QRect(QPoint(), entwurf_), s).size());
    massstab_->setzen(s);
}

void ZoomFenster::Monatsbutton_Click(int m) {
    p_.Monat_Uebersicht = static_cast<int16_t>(m);
    Temperaturen->zeichnen();
    Temperaturen->update();
    if (monat_gewaehlt) {
        monat_gewaehlt(m);
    }
}
