#include "export/giro_documenti.h"

#include "archive/errore.h"
#include "shell/consegna.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int kPasso = 100;  // documents between two signs of progress

// A failure ends the run; the operator has to know on which document.
ErroreEsecuzione NelDocumento(const ErroreEsecuzione& errore, const Recordset& documenti,
                              const StatoGlobale& stato) {
  return ErroreEsecuzione::ConDescrizione(
      static_cast<Errore>(errore.Numero()),
      QStringLiteral("%1 (documento %2, %3)")
          .arg(errore.Descrizione(), documenti.Fields("IDDocumento").Testo(),
               stato.PrefissoDoc + NumeroDoc(stato)));
}

}  // namespace

int GiraDocumenti(const StatoGlobale& stato, Dialoghi& dialoghi, const QString& cosa,
                  const QString& origine, const std::function<void(const Recordset&)>& azione) {
  const int totale = stato.DbArchivio.Conta(origine);
  Recordset documenti =
      stato.DbArchivio.OpenRecordset("select * "_L1 + origine + " order by IDDocumento"_L1);
  int fatti = 0;
  for (; !documenti.Eof(); documenti.MoveNext(), ++fatti) {
    if (fatti % kPasso == 0) dialoghi.Avanzamento(cosa, fatti, totale);
    try {
      azione(documenti);
    } catch (const ErroreEsecuzione& errore) {
      throw NelDocumento(errore, documenti, stato);
    }
  }
  return fatti;
}

}  // namespace torvi
