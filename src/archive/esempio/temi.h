// What the sample documents are about: subjects by field of law, each with the kinds of source that
// a writer on it cites.
#pragma once

#include <QStringView>
#include <span>

namespace torvi::esempio {

enum class Genere {
  Codice,
  Bancarie,
  Costituzionale,
  Statale,
  Regionale,
  RegolamentoRegionale,
  Provinciale,
  RegolamentoProvinciale,
  Camera,
  Senato,
  Ministeriale,
  Amministrazione,
  Autorita,
  Collettivo,
  CorteCostituzionale,
  GiurisdizioneCamera,
  Cassazione,
  Ordinaria,
  Tributaria,
  CorteConti,
  Amministrativa,
  Acque,
  Brevetti,
  Speciale,
  Arbitrato,
  Sportiva,
  Trattato,
  AttoInternazionale,
  CorteInternazionale,
  TrattatoUe,
  DerivatoUe,
  ConvenzioneUe,
  CorteUe,
  NormaStraniera,
  SentenzaStraniera,
  CodiceCanonico,
  NormaCanonica,
  SentenzaCanonica,
  Storica
};

// A subject with its article, in the languages in which documents are written.
struct Tema {
  QStringView italiano;
  QStringView inglese;
  QStringView francese;
  QStringView tedesco;
};

struct Area {
  QStringView sigla;  // of its systematic codes, where the master has them
  std::span<const Tema> temi;
  std::span<const Genere> generi;  // cited in turn
  int fonti;                       // how many sources a document has about
};

[[nodiscard]] std::span<const Area> Aree();

}  // namespace torvi::esempio
