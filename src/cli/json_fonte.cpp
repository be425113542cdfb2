#include "cli/json_fonte.h"

#include <algorithm>

#include "archive/errore.h"
#include "fonti/voci_altra.h"
#include "fonti/voci_interna.h"

namespace torvi {
namespace {

using C = ControlliFonte;
using R = RigaFonte;

struct CampoTesto {
  const char* nome;
  QString C::*campo;
};
constexpr CampoTesto kTesti[] = {
    {"ComboFonte", &C::ComboFonte},
    {"txtGG", &C::txtGG},
    {"ComboMese", &C::ComboMese},
    {"txtAA", &C::txtAA},
    {"txtN", &C::txtN},
    {"txtArt", &C::txtArt},
    {"ComboRipA", &C::ComboRipA},
    {"txtComma", &C::txtComma},
    {"ComboRipC", &C::ComboRipC},
    {"txtLett", &C::txtLett},
    {"txtNumP", &C::txtNumP},
    {"txtAll", &C::txtAll},
    {"ComboRegione", &C::ComboRegione},
    {"txtInfo1", &C::txtInfo1},
    {"txtInfo2", &C::txtInfo2},
    {"txtInfo3", &C::txtInfo3},
    {"txtLibero", &C::txtLibero},
    {"txtStato", &C::txtStato},
};

struct CampoRiga {
  const char* nome;
  QString R::*campo;
};
constexpr CampoRiga kRiga[] = {
    {"FonteNorm", &R::FonteNorm},
    {"TP", &R::TP},
    {"Testo", &R::Testo},
    {"Articolo", &R::Articolo},
    {"Comma", &R::Comma},
    {"Lettera", &R::Lettera},
    {"NumeroP", &R::NumeroP},
    {"Allegato", &R::Allegato},
    {"RipA", &R::RipA},
    {"RipC", &R::RipC},
    {"Anno", &R::Anno},
    {"Mese", &R::Mese},
    {"Giorno", &R::Giorno},
    {"Numero", &R::Numero},
    {"Ministero", &R::Ministero},
    {"Regione", &R::Regione},
    {"Provincia", &R::Provincia},
    {"Citta", &R::Citta},
    {"Sezione", &R::Sezione},
    {"Autorita", &R::Autorita},
    {"Amministrazione", &R::Amministrazione},
    {"Stato", &R::Stato},
    {"Altro", &R::Altro},
};

[[noreturn]] void Inatteso(const QString& nome) {
  throw ErroreEsecuzione(Errore::TipoNonCorrispondente, nome);
}

void LeggiControllo(C& controlli, const QString& nome, const QJsonValue& valore) {
  const auto testo = std::ranges::find_if(
      kTesti, [&nome](const CampoTesto& campo) { return nome == QLatin1String(campo.nome); });
  if (testo != std::end(kTesti) && valore.isString()) {
    controlli.*testo->campo = valore.toString();
  } else if (nome == QLatin1String("indice") && valore.isDouble()) {
    controlli.indice = valore.toInt(-1);
  } else if (nome == QLatin1String("lstFonte") && (valore.isString() || valore.isNull())) {
    if (valore.isString()) controlli.lstFonte = valore.toString();
  } else if (nome == QLatin1String("chkOrd") && valore.isBool()) {
    controlli.chkOrd = valore.toBool();
  } else if (nome == QLatin1String("chkDecr") && valore.isBool()) {
    controlli.chkDecr = valore.toBool();
  } else {
    Inatteso(nome);
  }
}

C Leggi(const QJsonObject& oggetto) {
  C controlli;
  for (auto voce = oggetto.begin(); voce != oggetto.end(); ++voce) {
    LeggiControllo(controlli, voce.key(), voce.value());
  }
  return controlli;
}

}  // namespace

ControlliFonte ControlliInterna(const QJsonObject& oggetto) {
  C controlli = Leggi(oggetto);
  if (oggetto.contains(QStringLiteral("ComboFonte"))) return controlli;
  for (const SchedaInterna& scheda : SchedeInterna()) {
    if (scheda.indice == controlli.indice) controlli.ComboFonte = QString::fromUtf16(scheda.titolo);
  }
  return controlli;
}

ControlliFonte ControlliAltra(const QJsonObject& oggetto) {
  C controlli = Leggi(oggetto);
  const auto posto = static_cast<std::size_t>(controlli.indice);
  if (!oggetto.contains(QStringLiteral("ComboFonte")) && posto < SchedeAltra().size()) {
    controlli.ComboFonte = QString::fromUtf16(SchedeAltra()[posto]);
  }
  return controlli;
}

QJsonObject JsonFonte(const RigaFonte& riga) {
  QJsonObject oggetto{{QStringLiteral("IDFonte"), riga.IDFonte},
                      {QStringLiteral("Decreto"), riga.Decreto},
                      {QStringLiteral("Ordinanza"), riga.Ordinanza},
                      {QStringLiteral("Marca"), riga.Marca},
                      {QStringLiteral("Cancellata"), riga.Cancellata}};
  for (const CampoRiga& campo : kRiga) oggetto.insert(QLatin1String(campo.nome), riga.*campo.campo);
  return oggetto;
}

DialoghiRegistrati::DialoghiRegistrati(QJsonArray risposte)
    : DialoghiConsole(muto_), risposte_(std::move(risposte)) {}

void DialoghiRegistrati::Registra(const QString& testo, const QString& titolo,
                                  const char* pulsanti) {
  messaggi_.append(QJsonObject{{QStringLiteral("testo"), testo},
                               {QStringLiteral("titolo"), titolo},
                               {QStringLiteral("pulsanti"), QLatin1String(pulsanti)}});
}

void DialoghiRegistrati::Messaggio(const QString& testo, const QString& titolo, Icona /*icona*/) {
  Registra(testo, titolo, "OK");
}

Risposta DialoghiRegistrati::Domanda(const QString& testo, const QString& titolo,
                                     Pulsanti pulsanti) {
  Registra(testo, titolo, pulsanti == Pulsanti::SiNo ? "SiNo" : "SiNoAnnulla");
  if (risposte_.isEmpty()) throw ErroreEsecuzione(Errore::OperazioneAnnullata);
  const QString risposta = risposte_.takeAt(0).toString();
  if (risposta == QLatin1String("si")) return Risposta::Si;
  if (risposta == QLatin1String("no")) return Risposta::No;
  if (risposta == QLatin1String("annulla")) return Risposta::Annulla;
  Inatteso(risposta);
}

}  // namespace torvi
