#include "export/celex.h"

#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString kNonTrovato = QStringLiteral(" ");
// The one treaty of `TabFonteCom` whose year follows the production year.
constexpr qint64 kTrattatoRinumerato = 5;

struct Corte {
  QLatin1StringView codice;
  QLatin1StringView sentenza;
  QLatin1StringView ordinanza;
  QLatin1StringView segno;  // what stands before the number of its cases
};

constexpr Corte kCorti[] = {
    {"J"_L1, "CJ"_L1, "CO"_L1, "C-"_L1},
    {"A"_L1, "TJ"_L1, "TO"_L1, "T-"_L1},
    {"F"_L1, "FJ"_L1, "FO"_L1, "F-"_L1},
};

const Corte* CorteDi(const QString& codice) {
  for (const Corte& corte : kCorti) {
    if (codice == corte.codice) return &corte;
  }
  return nullptr;
}

QString ArticoloTrattato(const QString& articolo) {
  const QChar iniziale = articolo.front().toUpper();
  if (iniziale >= u'A' && iniziale <= u'Z') {
    const bool breve = (iniziale == u'K' || iniziale == u'J') && articolo.size() == 2;
    return breve ? QString(articolo.front() + QLatin1Char('0') + articolo.back()) : articolo;
  }
  const QChar finale = articolo.back();
  return RiempiZeri(articolo, finale >= u'0' && finale <= u'9' ? 3 : 4);
}

// Where the number of the case begins in the free text; -1 if nothing announces it.
qsizetype InizioCausa(const QString& altro, QLatin1StringView segno) {
  for (const QLatin1StringView annuncio : {segno, "causa "_L1}) {
    const auto posto = altro.indexOf(annuncio);
    if (posto >= 0) return posto + annuncio.size();
  }
  return -1;
}

QString NumeroCausa(const DatiCelex& dati) {
  const Corte* corte = CorteDi(dati.Codice);
  if (corte == nullptr) return kNonTrovato;
  const auto inizio = InizioCausa(dati.Altro, corte->segno);
  if (inizio < 0) return kNonTrovato;
  const auto barra = dati.Altro.indexOf(QLatin1Char('/'), inizio);
  if (barra < 0) return kNonTrovato;
  const QString anno = dati.Altro.mid(barra + 1, 2);
  const QLatin1StringView secolo(anno < "50"_L1 ? "20" : "19");
  return dati.Settore + secolo + anno + (dati.Ordinanza ? corte->ordinanza : corte->sentenza) +
         RiempiZeri(dati.Altro.mid(inizio, barra - inizio), 4);
}

QString AnnoTrattato(const QString& prefissoDoc) {
  return Val(prefissoDoc.left(4)) >= 2003 ? QStringLiteral("2002") : QStringLiteral("1997");
}

}  // namespace

QString NumeroCelex(const DatiCelex& dati) {
  if (dati.Settore == "1"_L1) {
    if (dati.Articolo.isEmpty()) return {};
    return dati.Settore + dati.AnnoF + dati.Codice + ArticoloTrattato(dati.Articolo);
  }
  if (dati.Settore == "3"_L1) {
    return dati.Settore + dati.Anno + dati.Codice + RiempiZeri(dati.Numero, 4);
  }
  if (dati.Settore == "6"_L1) return NumeroCausa(dati);
  return {};
}

DatiCelex LeggiDatiCelex(const Recordset& fonte) {
  return {.Settore = fonte.Fields("Settore").Testo(),
          .Codice = fonte.Fields("Codice").Testo(),
          .Articolo = fonte.Fields("articolo").TestoOVuoto(),
          .AnnoF = fonte.Fields("AnnoF").TestoOVuoto(),
          .Altro = fonte.Fields("altro").TestoOVuoto(),
          .Numero = fonte.Fields("numero").TestoOVuoto(),
          .Anno = fonte.Fields("anno").TestoOVuoto(),
          .Ordinanza = fonte.Fields("ordinanza").Logico()};
}

QString CelexDaFonte(const StatoGlobale& stato, const FonteLetta& fonte, const RigaCodice& tipo) {
  // Sources are named by numbers of 16 bits; one beyond them must not pass.
  (void)fonte[ColonnaFonte::IDFonte].Intero16();
  if (!tipo.Fields("Settore").Presente()) return {};
  const bool rinumerato = tipo.Fields("IDFonteCom").Intero() == kTrattatoRinumerato;
  return NumeroCelex(
      {.Settore = tipo.Fields("Settore").Testo(),
       .Codice = tipo.Fields("Codice").Testo(),
       .Articolo = fonte[ColonnaFonte::articolo].TestoOVuoto(),
       .AnnoF = rinumerato ? AnnoTrattato(stato.PrefissoDoc) : tipo.Fields("AnnoF").TestoOVuoto(),
       .Altro = fonte[ColonnaFonte::altro].TestoOVuoto(),
       .Numero = fonte[ColonnaFonte::numero].TestoOVuoto(),
       .Anno = fonte[ColonnaFonte::anno].TestoOVuoto(),
       .Ordinanza = fonte[ColonnaFonte::ordinanza].Logico()});
}

}  // namespace torvi
