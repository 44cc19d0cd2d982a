// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/lebenszyklus/projektdatei.h"

#include "planes/Eingabeflaechen.h"
#include "project/Dialogs.h"
#include "project/Listeneingabe.h"
#include "project/Zahltext.h"
#include "project/c_glob.h"

std::string versionsfehler_text(const std::string& sprache) {
    if (sprache == "e") {
        return "This is not a valid Velmaris data file.\r\n\r\nData could not be read.!";
    }
    if (sprache == "d") {
        return "Dies ist keine gültige Velmaris-Datendatei.\r\n\r\nDaten konnten nicht geladen "
               "werden!";
    }
    return std::string();
}

std::string datei_schreiben(const Projekt& p) {
    std::string aus;
    auto zeile = [&aus](const std::string& text) { aus += text + "\r\n"; };
    auto zahl = [&zeile](double wert) { zeile(zahl_str(wert)); };
    zeile(VERSION_32);
    for (float f : {p.l, p.b, p.h, p.ag, p.lw, p.WRG}) {
        zahl(f);
    }
    zahl(p.orient);
    for (float f : {p.intg, p.Troom, p.Tueber}) {
        zahl(f);
    }
    // The wall flags run north, west, south, east; everything of the windows n, s, o, w.
    for (int16_t i : {p.awn, p.aww, p.aws, p.awo, p.fenstern_typ, p.fensters_typ, p.fenstero_typ,
                      p.fensterw_typ}) {
        zahl(i);
    }
    for (float f : {p.kwn, p.kws, p.kwo, p.kww, p.kd, p.kk, p.ft, p.kt}) {
        zahl(f);
    }
    zahl(p.Dachraum_typ);
    zahl(p.ugd_typ);
    zahl(p.absfaktor);
    zahl(p.cbk_hDach);
    for (int16_t i : {p.fn, p.fs, p.fo, p.fw}) {
        zahl(i);
    }
    for (float f : {p.verschn, p.verschs, p.verscho, p.verschw, p.ran,  p.ras,  p.rao,
                    p.raw,     p.kfgn,    p.kfgs,    p.kfgo,    p.kfgw, p.kfrn, p.kfrs,
                    p.kfro,    p.kfrw,    p.gfn,     p.gfs,     p.gfo,  p.gfw}) {
        zahl(f);
    }
    zeile(text_in_datei(p.Klimadatei));
    zahl(p.Innenwandart);
    zahl(p.Aussenwandart);
    zahl(p.Dachgeschoss ? 1 : 0);
    zeile(p.Dachfirst == 1 ? "1" : "2");
    zahl(p.hd);
    zeile(p.Fenstermodus == 0 ? "0" : "1");
    zahl(p.Klimaeffizienz);
    for (int16_t i : {p.Klimaauswahl, p.Heizsystem, p.Uebergabe, p.Energietraeger}) {
        zahl(i);
    }
    zahl(p.infiltration);
    zahl(p.Waermebruecken);
    return aus;
}

bool datei_lesen(Projekt& p, Eingabeflaechen& e, Dialogs& dialogs, std::string_view text) {
    Listeneingabe ein(text.substr(0, PROJEKTDATEI_MAX));
    const std::string version = ein.text();
    if (version != VERSION_32 && version != VERSION_30) {
        dialogs.nachricht(versionsfehler_text(p.Sprache), "Fehler", Dialogs::Symbol::Ausrufezeichen,
                          Dialogs::Knoepfe::OK);
        p.Datei = "default.vel";
        return false;
    }
    // Each value is stored as soon as it is read: a fault later in the file leaves the earlier
    // lines in the record.
    for (float* f : {&p.l, &p.b, &p.h, &p.ag, &p.lw, &p.WRG}) {
        *f = ein.f32();
    }
    p.orient = ein.i16();
    for (float* f : {&p.intg, &p.Troom, &p.Tueber}) {
        *f = ein.f32();
    }
    for (int16_t* i : {&p.awn, &p.aww, &p.aws, &p.awo, &p.fenstern_typ, &p.fensters_typ,
                       &p.fenstero_typ, &p.fensterw_typ}) {
        *i = ein.i16();
    }
    for (float* f : {&p.kwn, &p.kws, &p.kwo, &p.kww, &p.kd, &p.kk, &p.ft, &p.kt}) {
        *f = ein.f32();
    }
    p.Dachraum_typ = ein.i16();
    p.ugd_typ = ein.i16();
    p.absfaktor = ein.f32();
    p.cbk_hDach = ein.i16();
    for (int16_t* i : {&p.fn, &p.fs, &p.fo, &p.fw}) {
        *i = ein.i16();
    }
    for (float* f : {&p.verschn, &p.verschs, &p.verscho, &p.verschw, &p.ran,  &p.ras,  &p.rao,
                     &p.raw,     &p.kfgn,    &p.kfgs,    &p.kfgo,    &p.kfgw, &p.kfrn, &p.kfrs,
                     &p.kfro,    &p.kfrw,    &p.gfn,     &p.gfs,     &p.gfo,  &p.gfw}) {
        *f = ein.f32();
    }
    p.Klimadatei = text_aus_datei(ein.text());

    // The construction lists, the roof check and the two option groups are the planes' state:
    // they are set on the planes, whose handlers write the record.
    e.gebaeude.Innenwandart.setze_index(ein.i16());
    e.gebaeude.Aussenwandart.setze_index(ein.i16());
    e.geometrie.Check_Dachgeschoss.setze(ein.i16());
    e.geometrie.Check_Dachgeschoss_Click();

    const int16_t first = ein.i16();
    for (int index : {1, 2}) {
        if (first == index) {
            e.geometrie.Option_Dachfirst.setzen(index);
        } else {
            e.geometrie.Option_Dachfirst.loeschen(index);
        }
    }
    e.geometrie.Option_Dachfirst_Click(first);
    p.hd = ein.f32();

    // Unlike the ridge, a window mode other than 0 or 1 leaves both options as they stand.
    const int16_t modus = ein.i16();
    if (modus == 0 || modus == 1) {
        e.fenster.Option1.setzen(modus);
    }
    e.fenster.Option1_Click(modus);

    p.Klimaeffizienz = ein.f32();
    for (int16_t* i : {&p.Klimaauswahl, &p.Heizsystem, &p.Uebergabe, &p.Energietraeger}) {
        *i = ein.i16();
    }
    if (version == VERSION_32) {
        p.infiltration = ein.f32();
        p.Waermebruecken = ein.f32();
    } else {
        p.infiltration = 0;
        p.Waermebruecken = 0.1f;
    }
    return true;
}
