#include "fonti/carica_fonti.h"

#include "fonti/righe_fonte.h"
#include "fonti/tavole_fonte.h"
#include "shell/valori.h"

namespace torvi {
namespace {

bool Indica(const Campo& chiave) { return !chiave.Nullo() && chiave.Intero() != 0; }

Recordset Cerca(const Database& archivio, const char* tabella, const Campo& chiave) {
  Recordset righe = archivio.OpenRecordset(QLatin1String(tabella));
  righe.Index("PrimaryKey");
  righe.Seek(chiave);
  return righe;
}

QString NomeCatalogo(const Database& archivio, const TavoleFonte& tavole, const Riga& fonte,
                     bool deveEsserci) {
  if (tavole.catalogo == nullptr) return {};
  const Recordset righe = Cerca(archivio, tavole.catalogo->tabella, fonte.Fields("fonte"));
  if (righe.NoMatch() && !deveEsserci) return {};
  return righe.Fields(tavole.catalogo->nome).TestoOVuoto();
}

void LeggiColonne(RigaFonte& riga, const Riga& fonte) {
  riga.IDFonte = fonte.Fields("IDFonte").Intero();
  riga.TP = fonte.Fields("TP").TestoOVuoto();
  riga.Testo = SenzaCodice(fonte.Fields("testo").TestoOVuoto());
  for (const auto& [colonna, campo] : ColonneFonte()) {
    riga.*campo = fonte.Fields(colonna).TestoOVuoto();
  }
  riga.Altro = fonte.Fields("altro").TestoOVuoto();
  QString mese = fonte.Fields("mese").TestoOVuoto();
  riga.Mese = NomeMese(mese);
  riga.Ordinanza = fonte.Fields("ordinanza").Logico();
  riga.Decreto = fonte.Fields("decreto").Logico();
}

void LeggiNomi(RigaFonte& riga, const Database& archivio, const Riga& fonte) {
  const TavoleFonte tavole = TavoleDaLeggere(riga.TP);
  riga.FonteNorm = NomeCatalogo(archivio, tavole, fonte, FonteInterna(riga.TP));
  for (const TavolaNomi* tavola : tavole.nomi) {
    const Campo& chiave = fonte.Fields(tavola->colonna);
    if (!Indica(chiave)) continue;
    riga.*tavola->campo =
        Cerca(archivio, tavola->tabella, chiave).Fields(tavola->nome).TestoOVuoto();
  }
}

}  // namespace

QStringList CaricaFonti(StatoGlobale& stato, qint64 idDocumento) {
  // A load that fails half way must leave no rows: a save would take them for all there are.
  stato.RigheFonte.clear();
  std::vector<RigaFonte> righe;
  for (const Riga& fonte : stato.DbArchivio.LeggiRighe(
           QStringLiteral("SELECT * FROM LegameDocFonte, TabFonte WHERE LegameDocFonte.IDFnt = "
                          "TabFonte.IDFonte and LegameDocFonte.IDDoc = ?"),
           {idDocumento})) {
    RigaFonte& riga = righe.emplace_back();
    LeggiColonne(riga, fonte);
    LeggiNomi(riga, stato.DbArchivio, fonte);
  }
  stato.RigheFonte = std::move(righe);
  return RigheLista(stato.RigheFonte);
}

}  // namespace torvi
