#include "export/tabelle_di_codici.h"

namespace torvi {
namespace {

Recordset CercaPerChiave(const Database& archivio, const std::string& tabella,
                         const Campo& chiave) {
  Recordset riga = archivio.OpenRecordset(QString::fromStdString(tabella));
  riga.Index("PrimaryKey");
  riga.Seek(chiave);
  return riga;
}

}  // namespace

const Recordset& TabelleDiCodici::Cerca(std::string_view tabella, const Campo& chiave) {
  auto nota = tabelle_.find(tabella);
  if (nota == tabelle_.end()) nota = tabelle_.emplace(std::string(tabella), Righe()).first;
  const QString numero = chiave.TestoOVuoto();
  auto riga = nota->second.find(numero);
  if (riga == nota->second.end()) {
    riga = nota->second.emplace(numero, CercaPerChiave(archivio_, nota->first, chiave)).first;
  }
  return riga->second;
}

}  // namespace torvi
