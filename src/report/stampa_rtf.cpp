#include "report/stampa_rtf.h"

#include "export/giro_documenti.h"
#include "report/rtf.h"
#include "report/stampa_classi.h"
#include "report/stampa_riferimenti.h"
#include "report/stampa_sezioni.h"
#include "report/uscita_consegna.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class Documento {
 public:
  Documento(ContestoStampa& contesto, bool filtro, const Recordset& riga, FileTesto& uscita)
      : contesto_(contesto),
        filtro_(filtro),
        riga_(riga),
        uscita_(uscita),
        idDoc_(riga.Fields("IDDocumento").Intero()),
        numeroDoc_(NumeroDoc(contesto.stato)),
        testi_(contesto.legami.testi, idDoc_) {}

  void Stampa();

 private:
  void Testata();
  void Riferimenti();
  void TraduzioneENota();
  void Classificazione();
  void Testo(QLatin1StringView tipo, QLatin1StringView tag) {
    Scrivi(RigaTesto(testi_, tipo, tag));
  }
  void Scrivi(const QString& sezione) {
    if (!sezione.isEmpty()) uscita_.Print(sezione);
  }

  ContestoStampa& contesto_;
  bool filtro_;
  const Recordset& riga_;
  FileTesto& uscita_;
  qint64 idDoc_;
  QString numeroDoc_;
  TestiDocumento testi_;
};

void Documento::Stampa() {
  Testata();
  Riferimenti();
  Scrivi(RigaResponsabili(contesto_, idDoc_));
  Testo("0"_L1, " 6"_L1);
  TraduzioneENota();
  Testo("1"_L1, "13"_L1);
  Testo("2"_L1, " 9"_L1);
  Testo("7"_L1, "88"_L1);
  Testo("8"_L1, "77"_L1);
  if (!contesto_.completa) return;
  Scrivi(RigaFonti(contesto_, idDoc_));
  Classificazione();
  Testo("6"_L1, " 8"_L1);
  Testo("5"_L1, "99"_L1);
}

void Documento::Testata() {
  const QString& intero = contesto_.stato.PrefissoDoc;
  const QString prefisso = rtf::Valore(intero);
  const QString rec = "(\\i REC="_L1 + QString::number(idDoc_) + ")\\par }"_L1;
  Scrivi(rtf::Corpo(20) + rtf::kParagrafo + "Documento: }{"_L1 +
         (filtro_ ? QString() : QString(prefisso + numeroDoc_ + QLatin1Char(' '))) + rec);
  if (!contesto_.completa) return;
  Scrivi(rtf::kParagrafo + "DocID: }{AP="_L1 + rtf::Valore(intero.left(4)) + " NP="_L1 +
         rtf::Valore(intero.mid(4, 1)) + numeroDoc_ + rtf::kFineParagrafo);
}

void Documento::Riferimenti() {
  const Campo idRifBibl = riga_.Fields("IDRifBibl");
  if (!idRifBibl.Presente()) return;
  Scrivi(RigaRiferimenti(contesto_, contesto_.stato.PrefissoDoc + numeroDoc_,
                         {.IDRifBibl = idRifBibl.Intero16(),
                          .pagine = riga_.Fields("pagine").TestoOVuoto(),
                          .td = riga_.Fields("td").TestoOVuoto(),
                          .TAbs = riga_.Fields("TAbs").TestoOVuoto(),
                          .Bib = riga_.Fields("Bib").TestoOVuoto(),
                          .LIN = riga_.Fields("LIN").TestoOVuoto(),
                          .lo = riga_.Fields("lo").TestoOVuoto(),
                          .lr = riga_.Fields("lr").TestoOVuoto(),
                          .la = riga_.Fields("la").TestoOVuoto()}));
}

// Of a type that has no note the translation comes a second time.
void Documento::TraduzioneENota() {
  const QString traduzione = RigaTesto(testi_, "3"_L1, "11"_L1);
  Scrivi(traduzione);
  const QString td = riga_.Fields("td").TestoOVuoto();
  if (!contesto_.completa || td == "01"_L1 || td == "05"_L1) return;
  const QLatin1StringView nota = TagNota(td);
  Scrivi(nota.isEmpty() ? traduzione : RigaTesto(testi_, "4"_L1, nota));
}

void Documento::Classificazione() {
  Scrivi(RigaClassi(contesto_, idDoc_));
  if (!contesto_.CodiciClasse.isEmpty()) Scrivi(RigaClassiTesto(contesto_));
}

QString Origine(bool filtro) {
  if (!filtro) return QStringLiteral("from tabDocumento");
  return QStringLiteral(
      "from tabDocumento, legameDoCTesto, tabTesto where tabDocumento.IDDocumento = "
      "legameDocTesto.IDDoc and tabTesto.IDTesto = legameDocTesto.IDTesto and Tipo = '3' and Testo "
      "like '*]*'");
}

QString Titolo(const StatoGlobale& stato, bool completa) {
  return rtf::Corpo(36) + rtf::kRientro + "{\\b\\scaps Stampa consegna "_L1 +
         rtf::Valore(stato.SiglaConsegna) + (completa ? " (completa)"_L1 : " (solo testi)"_L1) +
         "}{\\fs32\\par \\par }"_L1;
}

}  // namespace

void StampaRTF(StatoGlobale& stato, Dialoghi& dialoghi, bool completa, bool filtro) {
  Clessidra clessidra(dialoghi);
  LeggiInfoConsegna(stato);
  RegistraUsoFunzione(stato, completa ? QStringLiteral("3") : QStringLiteral("4"));
  FileTesto uscita(
      FileUscita(stato.CartellaApplicazione, (completa ? "stampaRTF-C-"_L1 : "stampaRTF-T-"_L1) +
                                                 stato.SiglaConsegna + ".rtf"_L1),
      Apertura::Scrittura);
  uscita.Print(rtf::LeggiTestata(stato, QStringLiteral("testata new.rtf")));
  uscita.Print(Titolo(stato, completa));
  ContestoStampa contesto = {.stato = stato, .completa = completa};
  GiraDocumenti(stato, dialoghi, QStringLiteral("Stampa"), Origine(filtro),
                [&](const Recordset& riga) {
                  Documento(contesto, filtro, riga, uscita).Stampa();
                  stato.ContatoreDoc = Intero16(stato.ContatoreDoc + 1);
                  uscita.Print(QStringLiteral("{\\par }"));
                });
  uscita.Print(QStringLiteral("}"));
  Concludi(uscita, clessidra, dialoghi, QStringLiteral("Fine stampa"));
}

void ComandoStampaSoloTesti(StatoGlobale& stato, Dialoghi& dialoghi) {
  const bool filtro =
      dialoghi.Domanda(QStringLiteral("Stampa con filtro per traduzioni titolo?"),
                       QStringLiteral("Abstract in inglese"), Pulsanti::SiNo) == Risposta::Si;
  StampaRTF(stato, dialoghi, false, filtro);
}

}  // namespace torvi
