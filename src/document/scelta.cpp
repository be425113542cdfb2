#include "document/scelta.h"

#include "archive/errore.h"
#include "shell/consegna.h"
#include "shell/valori.h"

namespace torvi {
namespace {

const QString kAttenzione = QStringLiteral("Attenzione!");

QString NumeroInterno(const QString& linea) { return linea.section(QLatin1Char(' '), 0, 0); }

// Numbers of one archive are not to delete documents of another.
void ControllaArchivio(const StatoGlobale& stato, const SceltaDoc& scelta) {
  const Database& suo = scelta.archivio;
  if (suo.Aperto() && stato.DbArchivio.Aperto() && suo.Name() == stato.DbArchivio.Name()) return;
  throw ErroreEsecuzione::ConDescrizione(
      Errore::OggettoChiuso,
      QStringLiteral("L'elenco è di un archivio che non è più quello aperto: va chiuso e "
                     "riaperto."));
}

void Cancella(const Database& archivio, const QStringList& linee) {
  UnitaDiScrittura unita(archivio);
  for (const QString& linea : linee) {
    archivio.Execute(QStringLiteral("delete from TabDocumento where IDDocumento = ?"),
                     {NumeroInterno(linea).toLongLong()});
  }
  unita.Concludi();
}

}  // namespace

bool CaricaScelta(StatoGlobale& stato, Dialoghi& dialoghi, ModoScelta modo,
                  const std::function<bool()>& carica) {
  const bool edita = modo == ModoScelta::Edita;
  try {
    if (edita) stato.ModoRicerca = false;
    if (carica()) return true;
  } catch (const ErroreEsecuzione&) {
    // Whatever failed, the operator reads the one message below.
  }
  dialoghi.Messaggio(
      edita ? QStringLiteral("Archivio nuovo: inserire un documento nuovo!")
            : QStringLiteral("Archivio nuovo: non è possibile cancellare nessun documento!"));
  return false;
}

void RiempiScelta(StatoGlobale& stato, Dialoghi& dialoghi, SceltaDoc& scelta) {
  LeggiInfoConsegna(stato);
  Recordset documenti = stato.DbArchivio.OpenRecordset(
      QStringLiteral("select * from TabDocumento order by IDDocumento"));
  SceltaDoc nuova;
  nuova.archivio = stato.DbArchivio;
  if (documenti.Eof()) dialoghi.Messaggio(QStringLiteral("Nessun documento presente!"));
  const int colonna = documenti.Colonna("IDDocumento");
  for (qint64 contatore = stato.ContatoreDoc; !documenti.Eof(); documenti.MoveNext()) {
    nuova.lstDocumento +=
        documenti.Fields(colonna).Testo() + QLatin1String(" --> ") + NumeroIntero(stato, contatore);
    ++contatore;
  }
  scelta = std::move(nuova);
}

void CliccaScelta(StatoGlobale& stato, SceltaDoc& scelta, int indice) {
  scelta.indice = indice;
  stato.IDDocumentoScelto = NumeroInterno(scelta.lstDocumento.at(indice));
}

bool EditaScelta(StatoGlobale& stato, Dialoghi& dialoghi, const SceltaDoc& scelta) {
  if (scelta.indice < 0) {
    dialoghi.Messaggio(QStringLiteral("Scegli un documento!"));
    return false;
  }
  stato.DocumentoNuovo = false;
  stato.TestoTraduzione.clear();
  return true;
}

bool CancellaScelte(StatoGlobale& stato, Dialoghi& dialoghi, SceltaDoc& scelta,
                    const QStringList& linee) {
  if (linee.isEmpty()) {
    dialoghi.Messaggio(QStringLiteral("Nessuna selezione effettuata"), kAttenzione);
    return false;
  }
  if (dialoghi.Domanda(QStringLiteral("Confermi cancellazione?"), kAttenzione, Pulsanti::SiNo) !=
      Risposta::Si) {
    return false;
  }
  try {
    ControllaArchivio(stato, scelta);
    Cancella(stato.DbArchivio, linee);
    RiempiScelta(stato, dialoghi, scelta);
    return true;
  } catch (const ErroreEsecuzione& errore) {
    dialoghi.Messaggio(QStringLiteral("Error number: ") + QString::number(errore.Numero()) +
                       QLatin1Char('\r') + errore.Descrizione());
    return false;
  }
}

}  // namespace torvi
