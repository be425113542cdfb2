#include "export/coppie_decodificate.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr qsizetype kCodice = 5;  // characters of a systematic code and of a descriptor's
constexpr qsizetype kRicordate = 4096;

// What is no code of a descriptor is free text.
QString Descrittore(TabelleDiCodici& codici, const QString& coppia) {
  if (coppia.mid(kCodice, 1) != ";"_L1) return {};
  const RigaCodice& riga =
      codici.Cerca(TavolaCodici::CodiceDescrittore, coppia.mid(kCodice + 1, kCodice));
  return "; "_L1 + (riga.NoMatch() ? coppia.mid(kCodice + 1) : riga.Fields("descrizione").Testo());
}

}  // namespace

const CoppiaDecodificata& CoppieDecodificate::Cerca(TabelleDiCodici& codici,
                                                    const QString& coppia) {
  const auto nota = note_.constFind(coppia);
  if (nota != note_.constEnd()) return *nota;
  if (note_.size() >= kRicordate) note_.clear();
  const QString codice = coppia.left(kCodice);
  const RigaCodice& riga = codici.Cerca(TavolaCodici::CodiceSistematico, codice);
  return *note_.insert(coppia, {.codice = codice,
                                .sigla = riga.Fields("sigla").Testo(),
                                .descrizione = riga.Fields("descrizione").Testo(),
                                .descrittore = Descrittore(codici, coppia)});
}

}  // namespace torvi
