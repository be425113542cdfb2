#include "export/esporta_ascii.h"

#include "archive/errore.h"
#include "export/catalogo_norme.h"
#include "export/contesto.h"
#include "export/esporta_documento.h"
#include "export/giro_documenti.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// Where a run writes: a new set of files, or the common file of several deliveries.
struct Destinazione {
  QString uscita;
  QString estensione;  // of the error files
  Apertura apertura = Apertura::Scrittura;
};

QString FileErrori(const StatoGlobale& stato, QLatin1StringView nome, const QString& estensione) {
  return FileUscita(stato.CartellaApplicazione, nome + estensione);
}

QString EstensioneAccodata(const StatoGlobale& stato) { return stato.FileBatch.right(3); }

constexpr QLatin1StringView kErrori = "errori."_L1;
constexpr QLatin1StringView kErrClasse = "errClasse."_L1;
constexpr QLatin1StringView kErrFonte = "errFonte."_L1;

class FileEsportazione {
 public:
  FileEsportazione(const StatoGlobale& stato, const Destinazione& destinazione)
      : uscita_(destinazione.uscita, destinazione.apertura),
        errori_(FileErrori(stato, kErrori, destinazione.estensione), destinazione.apertura),
        errClasse_(FileErrori(stato, kErrClasse, destinazione.estensione), destinazione.apertura),
        errFonte_(FileErrori(stato, kErrFonte, destinazione.estensione), destinazione.apertura) {
    if (destinazione.apertura != Apertura::Aggiunta) return;
    for (FileTesto* file : {&errori_, &errClasse_, &errFonte_}) {
      file->Print("Consegna "_L1 + stato.SiglaConsegna);
    }
  }

  [[nodiscard]] FileTesto& Uscita() { return uscita_; }
  [[nodiscard]] ContestoEsportazione Contesto(StatoGlobale& stato, Record& record,
                                              CatalogoNorme& catalogo, TabelleCondivise& condivise,
                                              FontiInAnticipo& fonti) {
    return {stato, record, errori_, errClasse_, errFonte_, catalogo, condivise, fonti};
  }

  // The empty lines stand for a run that came to its end, so all it found must be on disk first.
  void Chiudi() {
    for (FileTesto* file : {&uscita_, &errori_, &errClasse_, &errFonte_}) file->Svuota();
    for (FileTesto* file : {&errori_, &errClasse_, &errFonte_}) file->Print({});
    for (FileTesto* file : {&errori_, &uscita_, &errClasse_, &errFonte_}) file->Close();
  }

 private:
  FileTesto uscita_;
  FileTesto errori_;
  FileTesto errClasse_;
  FileTesto errFonte_;
};

QString NomeUscita(const FlagEsportazione& flag) {
  if (flag.flagIsis) return QStringLiteral("lexxdump isis.");
  return flag.flagCassazione ? QStringLiteral("lexxdump cassazione.")
                             : QStringLiteral("lexxdump storico.");
}

Destinazione Accodata(const StatoGlobale& stato) {
  return {stato.FileBatch, EstensioneAccodata(stato), Apertura::Aggiunta};
}

// What the operator answers before a run from the menu.
Destinazione ChiediDestinazione(StatoGlobale& stato, Dialoghi& dialoghi,
                                const FlagEsportazione& flag) {
  stato.ControlloFonti =
      dialoghi.Domanda(QStringLiteral("Controllo presenza fonti?"),
                       QStringLiteral("Esportazione per ISIS"), Pulsanti::SiNo) == Risposta::Si;
  RegistraUsoFunzione(stato, QStringLiteral("1"));
  if (dialoghi.Domanda(QStringLiteral("Accodare risultato dell'esportazione?"),
                       QStringLiteral("Esportazione"), Pulsanti::SiNo) == Risposta::Si) {
    stato.FileBatch.clear();
    stato.FileBatch = dialoghi.ScegliFileUscita(stato.CartellaApplicazione + "/Dump"_L1,
                                                QStringLiteral("lexxdump*.*"), true);
    return Accodata(stato);
  }
  return {FileUscita(stato.CartellaApplicazione, NomeUscita(flag) + stato.SiglaConsegna),
          stato.SiglaConsegna, Apertura::Scrittura};
}

}  // namespace

QStringList FileErroriAccodati(const StatoGlobale& stato) {
  QStringList file;
  for (const QLatin1StringView nome : {kErrori, kErrClasse, kErrFonte}) {
    file += FileErrori(stato, nome, EstensioneAccodata(stato));
  }
  return file;
}

void EsportaAscii(StatoGlobale& stato, Dialoghi& dialoghi, const FlagEsportazione& flag) {
  CatalogoNorme catalogo(stato.CartellaApplicazione);
  TabelleCondivise condivise(stato.DbArchivio);
  FontiInAnticipo fonti(stato.DbArchivio);
  EsportaAscii(stato, dialoghi, flag, catalogo, condivise, fonti);
}

void EsportaAscii(StatoGlobale& stato, Dialoghi& dialoghi, const FlagEsportazione& flag,
                  CatalogoNorme& catalogo, TabelleCondivise& condivise, FontiInAnticipo& fonti) {
  Clessidra clessidra(dialoghi);
  LeggiInfoConsegna(stato);
  const Destinazione destinazione =
      stato.ModoBatch ? Accodata(stato) : ChiediDestinazione(stato, dialoghi, flag);
  FileEsportazione file(stato, destinazione);
  Record record;
  ContestoEsportazione contesto = file.Contesto(stato, record, catalogo, condivise, fonti);
  const int fatti = GiraDocumenti(
      stato, dialoghi, QStringLiteral("Esportazione"), QStringLiteral("from tabDocumento"),
      [&](const Recordset& riga) { EsportaDocumento(contesto, flag, riga, file.Uscita()); });
  if (fatti == 0) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  file.Chiudi();
  clessidra.Togli();
  dialoghi.FileScritto(file.Uscita().Percorso());
  dialoghi.Messaggio("Fine esportazione della consegna "_L1 + stato.SiglaConsegna);
}

}  // namespace torvi
