// The code tables of a master archive, as far as the sample documents draw on them.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "archive/database.h"

namespace torvi::esempio {

// A row by its key, the name under which it is cited and what tells it from others of its table.
struct Voce {
  qint64 id = 0;
  QString nome;
  QString dettaglio;  // of a systematic code its `sigla`, of a treaty its `descrizione`
  QString data;       // of a treaty
  QString urn;
  QString liv1;
  QString liv2;
  int tipo = 0;
};
using Voci = std::vector<Voce>;

struct Rivista {
  qint64 id = 0;
  QString titolo;
  int periodicita = 0;
};

// An act that the norm catalogue knows, and that was there when the delivery was made.
struct AttoNoto {
  QString nome;
  QString giorno;
  QString mese;
  QString anno;
  QString numero;
};

struct Coppia {
  qint64 sistematico = 0;
  qint64 descrittore = 0;  // 0: `libero` or none
  QString libero;
  QString sigla;
};

struct Tavole {
  Voci interne, comunitarie, internazionali, canoniche, trattati;
  Voci regioni, province, citta, sezioni, ministeri, amministrazioni, autorita, stati;
  std::vector<Rivista> riviste;
  std::vector<AttoNoto> atti;
  std::vector<Coppia> coppie, coppieAsterisco;  // the valid ones
  Voci sistematici, descrittori;                // `nome` is the code, `dettaglio` the sigla
  std::vector<qint64> classi1999;               // those that can be decoded
};

// An empty table, or an act missing from it that the system names itself: error 3011.
[[nodiscard]] Tavole LeggiTavole(const Database& archivio);

// The rows for which `condizione` holds; none: error 3011 with `cosa`.
[[nodiscard]] Voci Filtra(const Voci& voci, const QString& cosa,
                          const std::function<bool(const Voce&)>& condizione);
// The row of that name; none: error 3011.
[[nodiscard]] const Voce& Trova(const Voci& voci, QStringView nome);

}  // namespace torvi::esempio
