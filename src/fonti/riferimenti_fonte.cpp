#include "fonti/riferimenti_fonte.h"

#include "fonti/tavole_fonte.h"
#include "fonti/voci_nuove.h"

namespace torvi {
namespace {

// A treaty's row is found by its whole name, which the citation ends with.
QString NomeTrattato(const RigaFonte& riga) {
  const qsizetype inizio = riga.Testo.indexOf(riga.FonteNorm, 0, Qt::CaseInsensitive);
  return inizio > 0 ? riga.Testo.mid(inizio) : riga.Testo;
}

qint64 ChiaveCatalogo(const Database& archivio, const Catalogo& catalogo, const RigaFonte& riga) {
  const bool trattato = riga.TP == QLatin1String("NIT");
  Recordset righe = archivio.OpenRecordset(QLatin1String(catalogo.tabella));
  righe.Index(trattato ? "Fonte" : catalogo.nome);
  righe.Seek(trattato ? NomeTrattato(riga) : riga.FonteNorm);
  return righe.Fields(catalogo.chiave).Intero();
}

}  // namespace

RiferimentiFonte CercaRiferimenti(StatoGlobale& stato, Dialoghi& dialoghi, const RigaFonte& riga) {
  const TavoleFonte tavole = TavoleDaCercare(riga.TP);
  RiferimentiFonte trovati;
  if (tavole.catalogo != nullptr) {
    trovati.catalogo = ChiaveCatalogo(stato.DbArchivio, *tavole.catalogo, riga);
  }
  for (const TavolaNomi* tavola : tavole.nomi) {
    const QString& nome = riga.*tavola->campo;
    if (nome.isEmpty()) continue;
    const auto chiave = ChiaveNome(stato, dialoghi, *tavola, nome);
    if (chiave) trovati.nomi.emplace_back(tavola->colonna, *chiave);
  }
  return trovati;
}

}  // namespace torvi
