#include "report/consistenza.h"

#include "export/una_riga.h"
#include "report/testo_citato.h"
#include "report/uscita_consegna.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// Stands for an issue without number, also where an issue has these words for its own.
const QString kFascicoloNullo = QStringLiteral("<Null>");

qint16 ContaDocumentiFascicolo(const Database& archivio, const QString& fascicolo,
                               const QString& data, const Campo& idRivista) {
  const QChar apostrofo(u'\'');
  const bool nullo = fascicolo == kFascicoloNullo;
  QList<Campo> parametri = {TestoCitato(data, apostrofo), idRivista};
  if (!nullo) parametri.prepend(TestoCitato(fascicolo, apostrofo));
  const Recordset conto = archivio.OpenRecordset(
      "SELECT count(TabDocumento.IDdocumento) as n FROM TabRifBibl INNER JOIN TabDocumento ON "
      "TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl WHERE TabRifBibl.Fascicolo "_L1 +
          (nullo ? "is null"_L1 : "= ?"_L1) +
          " and TabRifBibl.Data = ? and TabRifBibl.IDRivista = ?"_L1,
      parametri);
  return conto.Fields("n").Intero16();
}

// Result: the documents of all issues, which may not be all there are.
qint64 StampaFascicoli(const Database& archivio, Dialoghi& dialoghi, FileTesto& uscita,
                       qint64 documenti) {
  qint64 totale = 0;
  Recordset riga = archivio.OpenRecordset(QStringLiteral(
      "SELECT DISTINCT TabRifBibl.Fascicolo, TabRifBibl.Data, TabRifBibl.IDRivista, "
      "TabRivista.CPER, TabRivista.IDPeriodicita FROM TabRivista INNER JOIN (TabRifBibl INNER JOIN "
      "TabDocumento ON TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl) ON TabRivista.IDRivista = "
      "TabRifBibl.IDRivista ORDER BY TabRivista.CPER, TabRifBibl.Data, TabRifBibl.Fascicolo"));
  for (int fatto = 0; !riga.Eof(); riga.MoveNext(), ++fatto) {
    const Campo fascicolo = riga.Fields("Fascicolo");
    const QString data = riga.Fields("Data").TestoOVuoto();
    const qint16 n =
        ContaDocumentiFascicolo(archivio, fascicolo.Nullo() ? kFascicoloNullo : fascicolo.Testo(),
                                data, riga.Fields("IDRivista"));
    totale += n;
    uscita.Print(UnaRiga(QString::number(n).rightJustified(7) + "###"_L1 +
                         riga.Fields("CPER").Testo() + QLatin1Char(' ') + data.right(4) +
                         QLatin1Char(' ') + riga.Fields("IDPeriodicita").Testo() +
                         QLatin1Char(' ') + fascicolo.TestoOVuoto()));
    if (fatto % 100 != 0) continue;
    dialoghi.Avanzamento(QStringLiteral("Consistenza"), static_cast<int>(totale),
                         static_cast<int>(documenti));
  }
  return totale;
}

}  // namespace

void StampaConsistenza(StatoGlobale& stato, Dialoghi& dialoghi) {
  Clessidra clessidra(dialoghi);
  LeggiInfoConsegna(stato);
  RegistraUsoFunzione(stato, QStringLiteral("5"));
  const Database& archivio = stato.DbArchivio;
  const int documenti = archivio.Conta(QStringLiteral("from TabDocumento"));
  FileTesto uscita(FileUscita(stato.CartellaApplicazione, "consistenza."_L1 + stato.SiglaConsegna),
                   Apertura::Scrittura);
  const QString totale = QString::number(StampaFascicoli(archivio, dialoghi, uscita, documenti));
  const QString quanti = QString::number(documenti);
  uscita.Print({});
  uscita.Print("Documenti: "_L1 + totale);
  uscita.Print({});
  uscita.Print("Num. iniziale: "_L1 + NumeroIntero(stato, stato.ContatoreDoc) +
               "   Num. finale: "_L1 + NumeroIntero(stato, stato.ContatoreDoc + documenti - 1) +
               "   Num. docc.: "_L1 + quanti);
  dialoghi.Messaggio("TotTAbs: "_L1 + totale + " --- Num. docc.: "_L1 + quanti);
  Concludi(uscita, clessidra, dialoghi, QStringLiteral("Fine stampa consistenza"));
}

}  // namespace torvi
