#include <algorithm>

#include "archive/errore.h"
#include "fonti/componi_altra.h"
#include "fonti/composizione_altra.h"

namespace torvi {
namespace {

using C = ControlliFonte;
using R = RigaFonte;

constexpr Pezzo kNumeroDopoData[] = {{u", n. ", &C::txtN, &R::Numero}};
const QString kMancaNumero = QStringLiteral("Manca il numero!");
const QString kMancaAnno = QStringLiteral("Manca l'anno!");

bool ComponiTrattato(QString& testo, RigaFonte& riga, const ControlliFonte& controlli, Dialoghi&) {
  Aggiungi(testo, riga, controlli, Articolo());
  AggiungiNome(testo, *controlli.lstFonte);
  return true;
}

bool ComponiRisoluzione(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                        Dialoghi& dialoghi) {
  testo = *controlli.lstFonte;
  if (!AggiungiDataRichiesta(testo, riga, controlli, dialoghi)) return false;
  Aggiungi(testo, riga, controlli, kNumeroDopoData);
  return true;
}

bool ComponiConvenzione(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                        Dialoghi& dialoghi) {
  if (!ComponiRisoluzione(testo, riga, controlli, dialoghi)) return false;
  Aggiungi(testo, riga, controlli, TestoLibero());
  return true;
}

bool ComponiRegolamentoParlamento(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                                  Dialoghi&) {
  Aggiungi(testo, riga, controlli, Articolo().first(1));
  AggiungiNome(testo, *controlli.lstFonte);
  return true;
}

// Reads a field that must be filled.
bool Legge(QString C::*controllo, QString R::*campo, const QString& mancanza, RigaFonte& riga,
           const ControlliFonte& controlli, Dialoghi& dialoghi) {
  QString scarto;
  const Pezzo pezzo = {u"", controllo, campo};
  return AggiungiRichiesto(scarto, riga, controlli, pezzo, mancanza, dialoghi);
}

// The number first until 2014, the year first from 2015; two digits of it until 1999.
bool ComponiRegolamento(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                        Dialoghi& dialoghi) {
  if (!Legge(&C::txtN, &R::Numero, kMancaNumero, riga, controlli, dialoghi) ||
      !Legge(&C::txtAA, &R::Anno, kMancaAnno, riga, controlli, dialoghi)) {
    return false;
  }
  Aggiungi(testo, riga, controlli, Articolo().first(5));
  AggiungiNome(testo, *controlli.lstFonte);
  const QString anno = riga.Anno >= QLatin1String("2000") ? riga.Anno : riga.Anno.mid(2);
  const bool annoPrima = riga.Anno >= QLatin1String("2015");
  testo += QLatin1Char(' ') + (annoPrima ? riga.Anno : riga.Numero) + QLatin1Char('/') +
           (annoPrima ? riga.Numero : anno);
  return true;
}

// The year always first, with two digits until 1999.
bool ComponiDirettiva(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                      Dialoghi& dialoghi) {
  Aggiungi(testo, riga, controlli, Articolo().first(4));
  AggiungiNome(testo, *controlli.lstFonte);
  if (!Legge(&C::txtAA, &R::Anno, kMancaAnno, riga, controlli, dialoghi) ||
      !Legge(&C::txtN, &R::Numero, kMancaNumero, riga, controlli, dialoghi)) {
    return false;
  }
  const QString anno = riga.Anno <= QLatin1String("1999") ? riga.Anno.mid(2) : riga.Anno;
  testo += QLatin1Char(' ') + anno + QLatin1Char('/') + riga.Numero;
  return true;
}

using Compositore = bool (*)(QString&, RigaFonte&, const ControlliFonte&, Dialoghi&);

struct PerCodice {
  const char* tp;
  Compositore compositore;
};
constexpr PerCodice kPerCodice[] = {
    {"NIC T", ComponiTrattato}, {"NIC C", ComponiConvenzione}, {"GEC", ComponiDecisione}};

// Derived law by the name of the act; any other name is a directive or a decision.
constexpr PerCodice kPerAtto[] = {
    {"Reg. P.E.", ComponiRegolamentoParlamento},
    {"Ris. P.E.", ComponiRisoluzione},
    {"Ris. CE", ComponiRisoluzione},
    {"Ris. CEE", ComponiRisoluzione},
    {"Ris. UE", ComponiRisoluzione},
    {"Reg. CEE", ComponiRegolamento},
    {"Reg. CE", ComponiRegolamento},
    {"Reg. UE", ComponiRegolamento},
};

Compositore Trova(std::span<const PerCodice> voci, const QString& nome) {
  const auto voce = std::ranges::find_if(
      voci, [&nome](const PerCodice& v) { return nome == QLatin1String(v.tp); });
  return voce == voci.end() ? ComponiDirettiva : voce->compositore;
}

}  // namespace

EsitoFonte ComponiComunitario(const ControlliFonte& controlli, const QString& tp, RigaFonte& riga,
                              Dialoghi& dialoghi) {
  const bool derivato = tp == QLatin1String("NIC D");
  const Compositore compositore =
      derivato ? Trova(kPerAtto, *controlli.lstFonte) : Trova(kPerCodice, tp);
  QString testo;
  if (!compositore(testo, riga, controlli, dialoghi)) return EsitoFonte::Mancata;
  riga.Testo = SpaziSingoli(testo);
  riga.FonteNorm = *controlli.lstFonte;
  riga.TP = tp.left(3);
  return EsitoFonte::Composta;
}

}  // namespace torvi
