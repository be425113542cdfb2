// A sample document before it is written.
#pragma once

#include <QString>
#include <array>
#include <vector>

#include "archive/esempio/tavole.h"

namespace torvi::esempio {

struct FonteCitata {
  QString tp;
  QString testo;
  QString articolo, comma, lettera, allegato, ripa, ripc, numero, numeroP;
  QString giorno, anno, altro;
  QString mese = QStringLiteral("0");
  bool ordinanza = false;
  bool decreto = false;
  qint64 fonte = 0;
  qint64 regione = 0, provincia = 0, citta = 0, ministero = 0, amministrazione = 0, autorita = 0,
         sezione = 0, stato = 0;
};

struct Persona {
  QString cognome;
  QString nome;  // empty: a collective author
  bool autore = true;
};

struct Riferimento {
  qint64 rivista = 0;
  QString fascicolo, annata, volume, parte, serie, supplemento, sezione;
  QString data;  // dd/mm/yyyy, 00 for what is not known
};

struct Classe {
  Coppia coppia;
  char check = '0';
};

struct Documento {
  Riferimento riferimento;
  QString pagine;
  QString lingua = QStringLiteral("00");
  QString altraLingua = QStringLiteral("00");
  QString bib, td, tabs;
  std::vector<Persona> persone;
  std::array<QString, 9> testi;  // by `Tipo`; empty: none
  std::vector<Classe> classi;
  std::vector<qint64> classi1999;
  std::vector<FonteCitata> fonti;

  [[nodiscard]] QString Anno() const { return riferimento.data.right(4); }
};

}  // namespace torvi::esempio
