// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/Eingabeflaechen.h"

#include "project/c_glob.h"

Eingabeflaechen::Eingabeflaechen(Projekt& p, char dezimal_zeichen)
    : dezimal(dezimal_zeichen), daemmung(p, dezimal), fenster(p, dezimal),
      geometrie(p, daemmung, dezimal), gebaeude(p, fenster, dezimal), energie(p, dezimal),
      beobachtung_(p.beobachter, *this) {
    E_Klima_erstellen(klima, p);
}

void Eingabeflaechen::geometrie_berechnet(Projekt& p) {
    ++laeufe;
    // Every run follows a station's read, also one that the load guard cuts short.
    klima_jahreswerte_zeigen(klima, p, dezimal);
    geometrie.anzeigen();
    fenster.anzeigen();
}

void Eingabeflaechen::alles_berechnet(Projekt&) {
    ++ganze_laeufe;
    gebaeude.speicher_anzeigen();
    energie.felder_zeigen();
    energie.ergebnisse_zeigen();
    if (geometrie.Visible) {
        geometrie.AV_diagramm();
    }
}
