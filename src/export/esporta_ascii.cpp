#include "export/esporta_ascii.h"

#include <exception>

#include "archive/errore.h"
#include "export/catalogo_norme.h"
#include "export/contesto.h"
#include "export/esporta_documento.h"
#include "export/giro_documenti.h"
#include "export/registro_uscite.h"
#include "export/uscita_accodata.h"
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

// The four files of a run, which take their places together, also where the run fails. Where one
// of them cannot be opened all stay as they were.
class FileEsportazione {
 public:
  FileEsportazione(const StatoGlobale& stato, const Destinazione& destinazione)
      : registro_(CartellaUscite(stato.CartellaApplicazione)),
        uscita_(destinazione.uscita, destinazione.apertura, &registro_),
        errori_(FileErrori(stato, kErrori, destinazione.estensione), destinazione.apertura,
                &registro_),
        errClasse_(FileErrori(stato, kErrClasse, destinazione.estensione), destinazione.apertura,
                   &registro_),
        errFonte_(FileErrori(stato, kErrFonte, destinazione.estensione), destinazione.apertura,
                  &registro_) {
    if (destinazione.apertura != Apertura::Aggiunta) return;
    for (FileTesto* file : {&errori_, &errClasse_, &errFonte_}) {
      file->Print("Consegna "_L1 + stato.SiglaConsegna);
    }
  }
  FileEsportazione(const FileEsportazione&) = delete;
  FileEsportazione& operator=(const FileEsportazione&) = delete;
  ~FileEsportazione() {
    try {
      Consegna();
    } catch (const ErroreEsecuzione&) {
      // The run has already failed, and told why.
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
    Consegna();
  }

 private:
  void Consegna() {
    if (consegnati_) return;
    consegnati_ = true;
    std::exception_ptr guasto;
    for (FileTesto* file : {&errori_, &uscita_, &errClasse_, &errFonte_}) {
      try {
        file->Close();
      } catch (const ErroreEsecuzione&) {
        if (!guasto) guasto = std::current_exception();
      }
    }
    registro_.Completo();
    for (FileTesto* file : {&uscita_, &errori_, &errClasse_, &errFonte_}) file->VaAlPosto();
    if (guasto) std::rethrow_exception(guasto);
  }

  RegistroUscite registro_;
  FileTesto uscita_;
  FileTesto errori_;
  FileTesto errClasse_;
  FileTesto errFonte_;
  bool consegnati_ = false;
};

QString NomeUscita(const FlagEsportazione& flag) {
  if (flag.flagIsis) return QStringLiteral("lexxdump isis.");
  return flag.flagCassazione ? QStringLiteral("lexxdump cassazione.")
                             : QStringLiteral("lexxdump storico.");
}

Destinazione Accodata(const StatoGlobale& stato) {
  RichiediUscita(stato.FileBatch);
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
    RichiediLexxdump(stato.FileBatch);
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
