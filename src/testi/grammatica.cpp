#include "testi/grammatica.h"

#include <algorithm>
#include <optional>

#include "testi/coppie_di_segni.h"
#include "testi/parole.h"

namespace torvi {
namespace {

QRegularExpression Espressione(const Regola& regola) {
  QString cerca = QString::fromUtf8(regola.cerca);
  cerca.replace(QLatin1String("<impura>"),
                QStringLiteral("(?:s[bcdfglmnpqrtv]{1,2}[aeiouàèéìòù]|(?:z|ps|gn)[aeiouàèéìòù])"));
  cerca.replace(QLatin1String("<vocale>"), QStringLiteral("[aeiouàèéìòùAEIOUÀÈÉÌÒÙ]"));
  cerca.replace(QLatin1String("<apostrofo>"), QStringLiteral("['’]"));
  return QRegularExpression(cerca, QRegularExpression::UseUnicodePropertiesOption);
}

QString ConMaiuscola(QString testo) {
  if (!testo.isEmpty()) testo[0] = testo.at(0).toUpper();
  return testo;
}

// Nothing where a group of the proposal took no part in the match.
std::optional<QString> Proposta(const QString& modello, const QRegularExpressionMatch& trovato) {
  QString proposta;
  for (qsizetype i = 0; i < modello.size(); ++i) {
    if (modello.at(i) != u'\\') {
      proposta += modello.at(i);
      continue;
    }
    const bool maiuscola = modello.at(i + 1) == u'u';
    i += maiuscola ? 3 : 1;
    const int gruppo = modello.at(i).digitValue();
    if (trovato.capturedStart(gruppo) < 0) return std::nullopt;
    proposta += maiuscola ? ConMaiuscola(trovato.captured(gruppo)) : trovato.captured(gruppo);
  }
  return proposta;
}

QStringList ProposteDi(const Regola& regola, const QRegularExpressionMatch& trovato) {
  QStringList proposte;
  const bool maiuscola = trovato.captured().at(0).isUpper();
  for (const QString& modello : QString::fromUtf8(regola.proposte).split(u'|')) {
    const std::optional<QString> proposta = Proposta(modello, trovato);
    if (proposta) proposte += maiuscola ? ConMaiuscola(*proposta) : *proposta;
  }
  return proposte;
}

bool InUnIndirizzo(const Segnalazione& trovata, const std::vector<Tratto>& indirizzi) {
  return std::any_of(indirizzi.begin(), indirizzi.end(), [&trovata](const Tratto& indirizzo) {
    return trovata.inizio + trovata.testo.size() > indirizzo.inizio &&
           trovata.inizio < indirizzo.inizio + indirizzo.lunghezza;
  });
}

std::vector<const Regola*> RegoleDi(Lingua lingua) {
  std::vector<const Regola*> regole;
  for (const Regola& regola : RegoleComuni()) regole.push_back(&regola);
  const auto proprie = lingua == Lingua::Italiano ? RegoleItaliane() : RegoleInglesi();
  for (const Regola& regola : proprie) regole.push_back(&regola);
  return regole;
}

}  // namespace

Grammatica::Grammatica(Lingua lingua) {
  for (const Regola* regola : RegoleDi(lingua)) regole_.push_back({regola, Espressione(*regola)});
}

const Regola* Grammatica::RegolaDi(const Segnalazione& segnalazione) const {
  const auto quale = static_cast<std::size_t>(segnalazione.regola);
  return quale < regole_.size() ? regole_[quale].regola : nullptr;
}

void Grammatica::Applica(int quale, const QString& testo,
                         std::vector<Segnalazione>& trovate) const {
  const Pronta& pronta = regole_[static_cast<std::size_t>(quale)];
  for (auto trovati = pronta.cerca.globalMatch(testo); trovati.hasNext();) {
    const QRegularExpressionMatch trovato = trovati.next();
    if (pronta.regola->vale != nullptr && !pronta.regola->vale(trovato)) continue;
    trovate.push_back({.inizio = trovato.capturedStart(),
                       .testo = trovato.captured(),
                       .spiegazione = QString::fromUtf8(pronta.regola->spiegazione),
                       .regola = quale,
                       .proposte = ProposteDi(*pronta.regola, trovato)});
  }
}

std::vector<Segnalazione> Grammatica::Segnala(const QString& testo) const {
  std::vector<Segnalazione> trovate;
  const int ultima = static_cast<int>(regole_.size());
  for (int quale = 0; quale < ultima; ++quale) {
    if (!ignorate_.contains(quale)) Applica(quale, testo, trovate);
  }
  if (!ignorate_.contains(ultima)) {
    for (Segnalazione& spaiato : SegniSpaiati(testo)) {
      spaiato.regola = ultima;
      trovate.push_back(std::move(spaiato));
    }
  }
  const std::vector<Tratto> indirizzi = Indirizzi(testo);
  std::erase_if(trovate, [&indirizzi](const Segnalazione& trovata) {
    return InUnIndirizzo(trovata, indirizzi);
  });
  std::sort(trovate.begin(), trovate.end(), [](const Segnalazione& a, const Segnalazione& b) {
    return std::pair(a.inizio, a.regola) < std::pair(b.inizio, b.regola);
  });
  return trovate;
}

}  // namespace torvi
