#include "export/tabelle_di_codici.h"

namespace torvi {
namespace {

// Not only codes are sought: a free text that might be one is, too, and there is no end of those.
constexpr std::size_t kRicordate = 4096;

Recordset CercaPerChiave(const Database& archivio, const std::string& tabella,
                         const std::string& indice, const Campo& chiave) {
  Recordset riga = archivio.OpenRecordset(QString::fromStdString(tabella));
  riga.Index(indice);
  riga.Seek(chiave);
  return riga;
}

}  // namespace

std::size_t TabelleDiCodici::Impronta::operator()(const Campo::Valore& chiave) const {
  if (const auto* testo = std::get_if<QString>(&chiave)) return qHash(*testo);
  const auto* numero = std::get_if<qint64>(&chiave);
  return numero == nullptr ? 0 : static_cast<std::size_t>(*numero);
}

TabelleDiCodici::Tabella& TabelleDiCodici::Trova(std::string_view nome, std::string_view indice) {
  for (Tabella& tabella : tabelle_) {
    if (tabella.nome == nome && tabella.indice == indice) return tabella;
  }
  return tabelle_.emplace_back(Tabella{std::string(nome), std::string(indice), Righe()});
}

const Recordset& TabelleDiCodici::Cerca(std::string_view nome, const Campo& chiave,
                                        std::string_view indice) {
  Tabella& tabella = Trova(nome, indice);
  const auto nota = tabella.righe.find(chiave.Grezzo());
  if (nota != tabella.righe.end()) return nota->second;
  if (tabella.righe.size() >= kRicordate) tabella.righe.clear();
  Recordset riga = CercaPerChiave(archivio_, tabella.nome, tabella.indice, chiave);
  return tabella.righe.emplace(chiave.Grezzo(), std::move(riga)).first->second;
}

}  // namespace torvi
