#include "fonti/voci_nuove.h"

namespace torvi {
namespace {

// The questions have accents.
QString Testo(const char* utf8) { return QString::fromUtf8(utf8); }

void Aggiungi(StatoGlobale& stato, Dialoghi& dialoghi, const TavolaNomi& tavola,
              const QString& nome, Recordset& righe) {
  const DomandaVoce& domanda = tavola.domanda;
  righe.AddNew();
  righe.Assegna(tavola.nome, nome);
  if (domanda.estesa != nullptr) {
    stato.TestoEsteso = dialoghi.ChiediTestoEsteso(Testo(domanda.etichetta) + nome);
    righe.Assegna(domanda.estesa, stato.TestoEsteso);
  }
  righe.Assegna("nuovo", 1);
  righe.Update();
  righe.Bookmark(righe.LastModified());
}

}  // namespace

std::optional<qint64> ChiaveNome(StatoGlobale& stato, Dialoghi& dialoghi, const TavolaNomi& tavola,
                                 const QString& nome) {
  Recordset righe = stato.DbArchivio.OpenRecordset(QLatin1String(tavola.tabella));
  righe.Index(tavola.nome);
  righe.Seek(nome);
  if (righe.NoMatch() && tavola.domanda.testo != nullptr) {
    if (dialoghi.Domanda(Testo(tavola.domanda.testo), QStringLiteral("Attenzione"),
                         Pulsanti::SiNo) != Risposta::Si) {
      return {};
    }
    Aggiungi(stato, dialoghi, tavola, nome, righe);
  }
  return righe.Fields(tavola.chiave).Intero();
}

}  // namespace torvi
