#include <array>

#include "cli/comando.h"
#include "cli/per_nome.h"
#include "report/lotto.h"
#include "report/pdf.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

constexpr std::array kOpzioni = {Opzione{"prosegui", nullptr}, Opzione{"pdf", nullptr}};

QString Resoconto(const EsitoLotto& esito, bool prosegue) {
  return QStringLiteral("%1 %2: consegne fatte %3 di %4")
      .arg(prosegue ? QStringLiteral("Non riuscite:") : QStringLiteral("Interrotto alla consegna"),
           esito.fallite.join(u' '), QString::number(esito.fatte), QString::number(esito.consegne));
}

Esito Esegui(Contesto& contesto, const QCommandLineParser& opzioni) {
  const VoceLotto& voce = PerNome(VociLotto(), opzioni.positionalArguments().constFirst());
  const bool prosegue = opzioni.isSet(QStringLiteral("prosegui"));
  const bool pdf = opzioni.isSet(QStringLiteral("pdf"));
  const QString programma = pdf ? ProgrammaPdf() : QString();
  contesto.dialoghi.FileUscitaScelto(TrovaPercorso(opzioni.positionalArguments().constLast()));
  const EsitoLotto esito = EseguiLotto(contesto.stato, contesto.dialoghi, voce.lotto,
                                       prosegue ? AlGuasto::Prosegui : AlGuasto::Ferma);
  if (!esito.fallite.isEmpty()) contesto.dialoghi.Messaggio(Resoconto(esito, prosegue));
  if (pdf && esito.fatte > 0) {
    contesto.uscita << ConvertiInPdf(programma, contesto.stato.FileBatch) << '\n';
  }
  return esito.riuscito ? Esito::Fatto : Esito::Fallito;
}

}  // namespace

const Comando kLotto = {
    "lotto",
    "isis|cassazione|storico|celex|hudoc|note|nuovi|conteggio FILE_SIGLE [--prosegui] "
    "[--pdf]",
    "Fa la stessa operazione su più consegne e ne raccoglie i risultati in un solo file di dump/,\n"
    "che ha per estensione gli ultimi tre caratteri di FILE_SIGLE. FILE_SIGLE ha una sigla per\n"
    "riga: la sigla X è l'archivio mdb/X.mdb. Ciò che il file di dump/ contiene resta, e il nuovo\n"
    "si aggiunge in coda; solo il conteggio lo riscrive.\n\n"
    "  isis, cassazione, storico  l'esportazione nei tre formati\n"
    "  celex, hudoc               le stampe HTML di controllo\n"
    "  note, nuovi                le estrazioni\n"
    "  conteggio                  quanti documenti ha ciascuna consegna\n\n"
    "  --prosegui  una consegna che non riesce viene nominata con il suo errore e non lascia\n"
    "              nulla nei file comuni; le altre si fanno. Altrimenti il lotto si ferma. In\n"
    "              entrambi i casi l'esito è 1\n"
    "  --pdf       anche in PDF, di cui scrive il nome; vuole LibreOffice installato\n",
    2,
    kOpzioni,
    Esegui};

}  // namespace torvi
