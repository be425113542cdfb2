#include <algorithm>

#include "archive/errore.h"
#include "document/carica.h"
#include "document/comandi.h"
#include "shell/valori.h"

namespace torvi {
namespace {

void Avanza(Recordset& documenti, Verso verso) {
  if (verso == Verso::Avanti) {
    documenti.MoveNext();
    if (documenti.Eof()) documenti.MoveFirst();
  } else {
    documenti.MovePrevious();
    if (documenti.Bof()) documenti.MoveLast();
  }
}

bool Trovato(const StatoGlobale& stato, qint64 numero) {
  return std::ranges::any_of(stato.ListaRicerca,
                             [numero](qint16 trovato) { return trovato == numero; });
}

// Walks from the shown document to the one to show. The result of a search may have been forgotten
// while its mode is still on: then no document ends the walk, and one round is enough to know.
qint64 Prossimo(const StatoGlobale& stato, Recordset& documenti, Verso verso) {
  Avanza(documenti, verso);
  const qint64 primo = documenti.Fields("IDDocumento").Intero();
  qint64 numero = primo;
  while (stato.ModoRicerca && !Trovato(stato, numero)) {
    Avanza(documenti, verso);
    numero = documenti.Fields("IDDocumento").Intero();
    if (numero == primo) throw ErroreEsecuzione(Errore::StackEsaurito);
  }
  return numero;
}

}  // namespace

void ComandoSposta(Documento& documento, Verso verso) {
  Recordset& documenti = documento.Documenti();
  documenti.Index("PrimaryKey");
  documenti.Seek(static_cast<qint64>(Val(documento.campi.txtID)));
  const QString numero = QString::number(Prossimo(documento.stato, documenti, verso));
  documento.stato.IDDocumentoScelto = numero;
  documento.campi.txtID = numero;
  SvuotaDocumento(documento);
  CaricaIntero(documento);
}

}  // namespace torvi
