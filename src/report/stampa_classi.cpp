#include "report/stampa_classi.h"

#include "report/rtf.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QLatin1Char kSeparatore('\\');

QStringList Coppie(ContestoStampa& contesto, qint64 idDoc) {
  LegamiInOrdine& legami = contesto.legami.classi;
  QStringList coppie;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    const CoppiaClasse* coppia = contesto.coppieClasse.Cerca(legami.Riga().Fields("IDClass"));
    if (coppia != nullptr) coppie += coppia->codici;
  }
  return coppie;
}

QStringList Codici1999(ContestoStampa& contesto, qint64 idDoc) {
  LegamiInOrdine& legami = contesto.legami.classi1999;
  QStringList codici;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    codici += legami.Riga().Fields("Codice").Testo();
  }
  return codici;
}

QString TestoClasse(ContestoStampa& contesto, const QString& pezzo) {
  if (!contesto.stato.Dopo2000) {
    return rtf::Valore(CodicePuntato(pezzo) + QLatin1Char(' ') +
                       contesto.descrizioni1999.Cerca(pezzo));
  }
  const CoppiaDecodificata& coppia = contesto.coppie.Cerca(contesto.codici, pezzo);
  // The descriptor may be free text, which goes in as it stands.
  return rtf::Valore(coppia.sigla + QLatin1Char('|') + coppia.descrizione) + coppia.descrittore;
}

}  // namespace

QString RigaClassi(ContestoStampa& contesto, qint64 idDoc) {
  const bool dopo2000 = contesto.stato.Dopo2000;
  const QStringList classi = dopo2000 ? Coppie(contesto, idDoc) : Codici1999(contesto, idDoc);
  contesto.CodiciClasse = classi.join(kSeparatore);
  if (!dopo2000 || classi.isEmpty()) return {};
  QStringList valori;
  for (const QString& classe : classi) valori += rtf::Valore(classe);
  return QLatin1Char('{') + rtf::kParagrafo + "Classificazione: }"_L1 + valori.join("\\\\"_L1) +
         rtf::kFineParagrafo;
}

QString RigaClassiTesto(ContestoStampa& contesto) {
  QStringList testi;
  for (const QString& pezzo : contesto.CodiciClasse.split(kSeparatore)) {
    testi += TestoClasse(contesto, pezzo);
  }
  return rtf::kParagrafo + "Classificazione (testo): }{"_L1 + testi.join("\\line "_L1) +
         rtf::kFineParagrafo;
}

QString CodicePuntato(const QString& codice) {
  QString puntato = codice.left(1);
  for (const QChar c : QStringView(codice).mid(1)) puntato += "."_L1 + c;
  return puntato;
}

}  // namespace torvi
