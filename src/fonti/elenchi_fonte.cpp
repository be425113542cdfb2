#include "fonti/elenchi_fonte.h"

#include "shell/valori.h"

namespace torvi {

QStringList RipartizioniArticolo() {
  static const QStringList avverbi = {
      "bis",           "ter",          "quater",       "quinquies",       "sexies",
      "septies",       "octies",       "novies",       "decies",          "undecies",
      "duodecies",     "terdecies",    "quaterdecies", "quinquiesdecies", "sexiesdecies",
      "septiesdecies", "octiesdecies", "vices",        "vicessemel",      "vicesbis",
      "vicester"};
  return avverbi;
}

QStringList RipartizioniComma() {
  const QStringList avverbi = RipartizioniArticolo();
  return avverbi.first(avverbi.indexOf("octiesdecies") + 1);
}

QStringList RipartizioniAltroDiritto() {
  const QStringList avverbi = RipartizioniArticolo();
  return avverbi.first(avverbi.indexOf("quinquiesdecies") + 1);
}

QStringList NomiMesi() {
  QStringList mesi;
  for (int numero = 1; numero <= 12; ++numero) {
    QString mese = QString::number(numero);
    mesi += NomeMese(mese);
  }
  return mesi;
}

QStringList Regioni() {
  static const QStringList regioni = {"AB - Abruzzo",
                                      "BA - Basilicata",
                                      "CL - Calabria",
                                      "CM - Campania",
                                      "ER - Emilia Romagna",
                                      "FV - Friuli Venezia Giulia",
                                      "LA - Lazio",
                                      "LI - Liguria",
                                      "LO - Lombardia",
                                      "MA - Marche",
                                      "MO - Molise",
                                      "PI - Piemonte",
                                      "PU - Puglia",
                                      "SA - Sardegna",
                                      "SI - Sicilia",
                                      "TO - Toscana",
                                      "TA - Trentino Alto Adige",
                                      "UM - Umbria",
                                      "VA - Valle d'Aosta",
                                      "VE - Veneto"};
  return regioni;
}

}  // namespace torvi
