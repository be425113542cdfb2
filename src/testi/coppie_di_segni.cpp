#include "testi/coppie_di_segni.h"

#include <QRegularExpression>
#include <QSet>
#include <array>

namespace torvi {
namespace {

struct Coppia {
  char16_t apre;
  char16_t chiude;
};

constexpr std::array kCoppie = {Coppia{u'(', u')'}, Coppia{u'[', u']'}, Coppia{u'«', u'»'},
                                Coppia{u'“', u'”'}};

using Posti = std::vector<qsizetype>;

struct Spaiati {
  Posti aperti;
  Posti chiusi;
};

QSet<qsizetype> ParentesiDiElenco(const QString& testo) {
  static const QRegularExpression voce(
      QStringLiteral("(?<![\\p{L}\\p{N}.])(?:\\p{L}|[ivxlIVXL]{1,5}|\\p{N}{1,3})"
                     "(?:[.-]?(?:bis|ter|quater|quinquies|sexies|septies|octies))?\\)"),
      QRegularExpression::UseUnicodePropertiesOption);
  QSet<qsizetype> posti;
  for (auto voci = voce.globalMatch(testo); voci.hasNext();) posti += voci.next().capturedEnd() - 1;
  return posti;
}

// "(lett. a), b) e c) del comma)": a bracket of a list may close one or not, so that those still
// open are at least `aperti` and at most `forse`.
Spaiati TrovaSpaiati(const QString& testo, const Coppia& coppia, const QSet<qsizetype>& elenco) {
  Spaiati spaiati;
  int forse = 0;
  for (qsizetype i = 0; i < testo.size(); ++i) {
    if (testo.at(i) == coppia.apre) {
      spaiati.aperti.push_back(i);
      ++forse;
    } else if (testo.at(i) == coppia.chiude) {
      if (!spaiati.aperti.empty()) spaiati.aperti.pop_back();
      if (elenco.contains(i)) continue;
      if (forse == 0) {
        spaiati.chiusi.push_back(i);
      } else {
        --forse;
      }
    }
  }
  return spaiati;
}

// The same sign on both sides: one too many is the last, and what follows it tells which it is.
Spaiati VirgoletteSpaiate(const QString& testo) {
  Spaiati spaiati;
  if (testo.count(u'"') % 2 == 0) return spaiati;
  const qsizetype ultima = testo.lastIndexOf(u'"');
  const bool apre = ultima + 1 < testo.size() && testo.at(ultima + 1).isLetterOrNumber();
  (apre ? spaiati.aperti : spaiati.chiusi).push_back(ultima);
  return spaiati;
}

// Not far away: nobody reads on for the end of a text that is all brackets.
QString RestoDellaFrase(const QString& testo, qsizetype da) {
  constexpr qsizetype kMassimo = 400;
  static const QRegularExpression fine(
      QStringLiteral("[.;!?]*(?:\\s*$|\\s*[\\r\\n]|[;!?.]\\s+\\p{Lu})"),
      QRegularExpression::UseUnicodePropertiesOption);
  const QString resto = testo.mid(da, kMassimo);
  const qsizetype trovata = resto.indexOf(fine, 1);
  return trovata < 0 ? resto : resto.left(trovata);
}

Segnalazione Aperto(const QString& testo, qsizetype posto, QChar chiude) {
  const QString frase = RestoDellaFrase(testo, posto);
  return {.inizio = posto,
          .testo = frase,
          .spiegazione = QStringLiteral("Manca il segno che chiude: %1").arg(chiude),
          .regola = 0,
          .proposte = {frase + chiude, frase.mid(1)}};
}

Segnalazione Chiuso(const QString& testo, qsizetype posto, QChar apre) {
  qsizetype inizio = posto;
  while (inizio > 0 && testo.at(inizio - 1).isLetterOrNumber()) --inizio;
  const QString parola = testo.mid(inizio, posto - inizio);
  return {.inizio = inizio,
          .testo = parola + testo.at(posto),
          .spiegazione = QStringLiteral("Manca il segno che apre: %1").arg(apre),
          .regola = 0,
          .proposte = {parola, apre + parola + testo.at(posto)}};
}

}  // namespace

std::vector<Segnalazione> SegniSpaiati(const QString& testo) {
  std::vector<Segnalazione> segnalazioni;
  const auto aggiungi = [&](const Spaiati& spaiati, const Coppia& coppia) {
    for (const qsizetype posto : spaiati.aperti) {
      segnalazioni.push_back(Aperto(testo, posto, coppia.chiude));
    }
    for (const qsizetype posto : spaiati.chiusi) {
      segnalazioni.push_back(Chiuso(testo, posto, coppia.apre));
    }
  };
  const QSet<qsizetype> elenco = ParentesiDiElenco(testo);
  for (const Coppia& coppia : kCoppie) aggiungi(TrovaSpaiati(testo, coppia, elenco), coppia);
  aggiungi(VirgoletteSpaiate(testo), {u'"', u'"'});
  return segnalazioni;
}

}  // namespace torvi
