#include "report/conta_tabs.h"
#include "report/prospetto.h"
#include "report/rtf.h"
#include "report/uscita_consegna.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// Right edges of the cells, in twips. There is none for the type 700.
constexpr std::array kBordi = {4395, 5387, 6096, 7088, 8222, 8647, 9072, 9498, 9923, 10370};

const QString kAttributi = QStringLiteral("\\nowidctlpar\\widctlpar\\intbl\\adjustright ");
const QString kInTabella = "\\pard "_L1 + kAttributi;

QString Bordo(QLatin1StringView lato) { return lato + "\\brdrs\\brdrw10 "_L1; }

QString Intestazione() {
  QString riga = QStringLiteral("\\trowd \\trgaph70\\trleft-70\\trkeep");
  for (const QLatin1StringView lato : {"\\trbrdrt"_L1, "\\trbrdrl"_L1, "\\trbrdrb"_L1,
                                       "\\trbrdrr"_L1, "\\trbrdrh"_L1, "\\trbrdrv"_L1}) {
    riga += Bordo(lato);
  }
  for (const int bordo : kBordi) {
    riga += "\\clvertalt"_L1;
    for (const QLatin1StringView lato :
         {"\\clbrdrt"_L1, "\\clbrdrl"_L1, "\\clbrdrb"_L1, "\\clbrdrr"_L1}) {
      riga += Bordo(lato);
    }
    riga += "\\cltxlrtb \\cellx"_L1 + QString::number(bordo);
  }
  return riga + kInTabella +
         "{\\b\\fs36 TITOLO\\cell CPER\\cell FASC\\cell ANNO\\cell TOTALE\\cell 400\\cell "
         "500}{\\fs36 \\cell }{\\b\\fs36 600\\cell 800\\cell 900\\cell }"_L1 +
         kInTabella + "{\\b\\fs36 \\row }"_L1;
}

QString Celle(const Recordset& riga, const ConteggiTAbs& conteggi) {
  const QLatin1StringView cella = "\\cell "_L1;
  QString celle = riga.Fields("TitoloRivista").Testo() + cella +
                  rtf::Valore(riga.Fields("CPER").Testo()) + cella +
                  rtf::Valore(riga.Fields("Fascicolo").TestoOVuoto()) + cella +
                  rtf::Valore(riga.Fields("Data").TestoOVuoto().right(4)) + cella +
                  QString::number(Somma(conteggi)) + cella;
  for (const qint16 conteggio : conteggi) celle += QString::number(conteggio) + cella;
  return celle;
}

void StampaRighe(const Database& archivio, Dialoghi& dialoghi, FileTesto& uscita) {
  // The row before ends in "\pard ".
  const QString fineRiga = kAttributi + "{\\row }"_L1 + kInTabella;
  Recordset riga = archivio.OpenRecordset(
      QStringLiteral("SELECT DISTINCT TabRifBibl.IDRivista, TabRifBibl.Fascicolo, TabRifBibl.Data, "
                     "TabRivista.CPER, TabRivista.TitoloRivista FROM TabRivista, TabRifBibl, "
                     "TabDocumento WHERE TabDocumento.IDRifBibl = TABRifBibl.IDRifBibl AND "
                     "TabRifBibl.IDRivista = TabRivista.IDRivista ORDER BY TabRivista.CPER, "
                     "TabRifBibl.Fascicolo, TabRifBibl.Data"));
  for (int fatto = 0; !riga.Eof(); riga.MoveNext(), ++fatto) {
    if (fatto % 100 == 0) dialoghi.Avanzamento(QStringLiteral("Prospetto, fascicoli"), fatto, 0);
    // The whole date stands for the year: only a bare year finds anything.
    const ConteggiTAbs conteggi =
        ContaTAbs(archivio, riga.Fields("IDRivista"), riga.Fields("Fascicolo").TestoOVuoto(),
                  riga.Fields("Data").TestoOVuoto());
    uscita.Print((fatto == 0 ? QString() : fineRiga) + QLatin1Char('{') + Celle(riga, conteggi) +
                 "}\\pard "_L1);
  }
}

}  // namespace

void ProspettoRTF(StatoGlobale& stato, Dialoghi& dialoghi) {
  Clessidra clessidra(dialoghi);
  LeggiInfoConsegna(stato);
  RegistraUsoFunzione(stato, QStringLiteral("6"));
  FileTesto uscita(
      FileUscita(stato.CartellaApplicazione, "prospetto "_L1 + stato.SiglaConsegna + ".rtf"_L1),
      Apertura::Scrittura);
  uscita.Print(rtf::LeggiTestata(stato, QStringLiteral("testata prospetto.rtf")));
  uscita.Print(rtf::Corpo(36) + rtf::kRientro + "{\\b\\scaps Prospetto consegna "_L1 +
               rtf::Valore(stato.SiglaConsegna) + "}{\\fs24\\par \\par }"_L1);
  uscita.Print(Intestazione());
  StampaRighe(stato.DbArchivio, dialoghi, uscita);
  uscita.Print(kInTabella + "{\\row }"_L1 + rtf::kRientro + "{\\par }}"_L1);
  Concludi(uscita, clessidra, dialoghi, QStringLiteral("Fine stampa prospetto"));
}

}  // namespace torvi
