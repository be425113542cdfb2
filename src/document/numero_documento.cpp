#include "document/numero_documento.h"

#include "document/carica_parti.h"

namespace torvi {
namespace {

const QString kSalvataggio = QStringLiteral("Salvataggio");

void RichiediNumero(const QString& txtID) {
  bool numero = false;
  if (txtID.trimmed().toLongLong(&numero) > 0 && numero) return;
  throw ErroreEsecuzione::ConDescrizione(
      Errore::TipoNonCorrispondente,
      QStringLiteral("\"%1\" non è il numero di un documento: correggere ID Documento.")
          .arg(txtID));
}

bool Esiste(const Documento& documento, qint64 numero) {
  return !documento.stato.DbArchivio
              .OpenRecordset(
                  QStringLiteral("select IDDocumento from TabDocumento where IDDocumento = ?"),
                  {numero})
              .Eof();
}

qint64 NumeroSeguente(const Documento& documento) {
  const Recordset ultimo = documento.stato.DbArchivio.OpenRecordset(
      QStringLiteral("select max(IDDocumento) as ultimo from TabDocumento"));
  const Campo numero = ultimo.Fields("ultimo");
  return numero.Nullo() ? 1 : numero.Intero() + 1;
}

bool Chiede(const Documento& documento, const QString& domanda) {
  return documento.dialoghi.Domanda(domanda, kSalvataggio, Pulsanti::SiNo) == Risposta::Si;
}

// Its links name the number shown: they must not go to a document that is not its own.
bool ConfermaNuovo(Documento& documento, qint64 numero, bool cambiato) {
  const bool altrui = numero != documento.numeroSuo && Esiste(documento, numero);
  const qint64 seguente = NumeroSeguente(documento);
  if (!altrui && (!cambiato || numero == seguente)) return true;
  const QString perche = altrui ? QStringLiteral("Il numero %1 è già di un altro documento.")
                                : QStringLiteral("Il numero %1 non è quello che segue l'ultimo.");
  if (!Chiede(documento,
              perche.arg(numero) + QStringLiteral(" Salvare con il numero %1?").arg(seguente))) {
    return false;
  }
  documento.campi.txtID = QString::number(seguente);
  return true;
}

bool ConfermaEsistente(const Documento& documento, qint64 numero, bool cambiato) {
  if (!Esiste(documento, numero)) {
    throw ErroreEsecuzione::ConDescrizione(
        Errore::NessunRecordCorrente,
        QStringLiteral("il documento %1 non è nell'archivio: non è stato salvato niente. F2 lo "
                       "salva come documento nuovo.")
            .arg(numero));
  }
  return !cambiato || Chiede(documento, QStringLiteral("Il numero è stato cambiato da %1 a %2. "
                                                       "Salvare al posto del documento %2?")
                                            .arg(documento.numeroMostrato)
                                            .arg(numero));
}

}  // namespace

bool ConfermaNumero(Documento& documento) {
  RichiediNumero(documento.campi.txtID);
  const qint64 numero = NumeroDocumento(documento);
  const bool cambiato = documento.numeroMostrato != 0 && numero != documento.numeroMostrato;
  return documento.SalvaComeNuovo ? ConfermaNuovo(documento, numero, cambiato)
                                  : ConfermaEsistente(documento, numero, cambiato);
}

}  // namespace torvi
