#include "export/riferimento_parti.h"

#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QLatin1Char kTratto('-');
const QLatin1String kZero("00");

bool InOrdine(const QString& pagine) {
  const QString asterisco = QStringLiteral("*");
  const qsizetype tratto = pagine.indexOf(kTratto);
  const QString prima = pagine.left(tratto);
  const QString ultima = pagine.mid(tratto + 1);
  return prima.startsWith(asterisco) || ultima.startsWith(asterisco) || Val(prima) < Val(ultima);
}

}  // namespace

void AggiungiSottocampo(QString& codificato, const char* nome, const QString& valore) {
  if (!codificato.isEmpty()) codificato += QLatin1Char(' ');
  codificato += QLatin1String(nome) + QLatin1Char('=') + valore;
}

QString Intervallo(const QString& testo) {
  const qsizetype tratto = testo.indexOf(kTratto);
  return RiempiZeri(testo.left(tratto), 4) + kTratto + RiempiZeri(testo.mid(tratto + 1), 4);
}

QString CodiceFascicolo(const QString& fascicolo) {
  return fascicolo.contains(kTratto) ? Intervallo(fascicolo) : RiempiZeri(fascicolo, 9);
}

Parte ParteGiornoMese(const CifreData& data) {
  QString mese = data.Mese();
  if (mese == kZero) return {};
  const QString nome = NomeMese(mese);
  if (nome.isEmpty()) return {.messaggi = {"Errore mese nel sottocampo DATA: "_L1}};
  QString giorno = data.Giorno();
  if (giorno == kZero) return {.citazione = " ("_L1 + nome + QLatin1Char(')')};
  const double numero = Val(giorno);
  if (numero < 1 || numero > 31) return {.messaggi = {"Errore giorno nel sottocampo DATA: "_L1}};
  if (giorno.startsWith(QLatin1Char('0'))) giorno.remove(0, 1);
  return {.citazione = " ("_L1 + giorno + QLatin1Char(' ') + nome + QLatin1Char(')')};
}

Parte ParteData(const CifreData& data, const QString& annoProduzione) {
  Parte parte;
  const QString anno = data.Anno();
  parte.codice = data.Cifre();
  // Years are text, also where they are compared.
  if (anno < "1970"_L1 || anno > annoProduzione) {
    parte.messaggi += "Errore anno nel sottocampo DATA: "_L1;
  }
  parte.citazione = ", "_L1 + kSegno + QLatin1Char('D') + anno + kSegno + QLatin1Char('d');
  return parte;
}

Parte ParteFascicolo(const QString& fascicolo, const CifreData& data) {
  Parte parte;
  if (fascicolo.contains(QLatin1Char('/'))) {
    parte.messaggi += "Fascicolo con '/': "_L1;
  }
  const Parte giornoMese = ParteGiornoMese(data);
  parte.messaggi += giornoMese.messaggi;
  parte.citazione = ", fasc"_L1 + kSegno + ". "_L1 + fascicolo + giornoMese.citazione;
  parte.codice = CodiceFascicolo(fascicolo);
  return parte;
}

Parte PartePagine(const QString& pagine) {
  const QString errore = QStringLiteral("Errore di paginazione: ");
  Parte parte;
  if (pagine.contains(QLatin1Char('.'))) parte.messaggi += errore;
  const bool piuPagine = pagine.contains(kTratto);
  parte.citazione =
      (piuPagine ? QStringLiteral(" pagg") : QStringLiteral(" pag")) + kSegno + ". "_L1 + pagine;
  if (!piuPagine) {
    parte.codice = RiempiZeri(pagine, 9);
  } else if (InOrdine(pagine)) {
    parte.codice = Intervallo(pagine);
  } else {
    parte.messaggi += errore;
    parte.codice = pagine.left(pagine.indexOf(kTratto));
  }
  return parte;
}

}  // namespace torvi
