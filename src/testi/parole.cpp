#include "testi/parole.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace torvi {
namespace {

constexpr const char* kIndirizzo = R"(\S*(?:://|@|\bwww\.|\burn:|\bECLI:)\S*)";

// Each is blanked before words are cut.
constexpr std::array kRumore = {
    kIndirizzo,
    // Words with figures.
    R"([\p{L}\p{N}_]*[\p{N}_][\p{L}\p{N}_]*)",
    // Short letters with points between them: d.lgs., c.p.c., S.p.A.
    R"((?<!\p{L})(?:\p{L}{1,4}\.)+\p{L}{1,4}(?![\p{L}\p{N}])\.?)",
    // A point that no sentence ends with: what stands before it is an abbreviation.
    R"((?<!\p{L})\p{L}{1,6}\.(?=[ \x{A0}]*[,;:/]|[ \x{A0}]+[\p{Ll}\p{N}§]))",
    // Abbreviations that a capital or the end of the text may follow.
    R"((?<!\p{L})(?i:artt?|cass|sez|un|civ|pen|cost|trib|app|cons|corr|pagg?|ecc|etc|cfr|cit|ss|segg?)"
    R"(|nn?|co|cpv|lett|par|cap|tit|vol|fasc|riv|prof|dott|avv|proc|rep|reg|dir|dec|sent|ord|min)"
    R"(|amm|giust|conv|mod|disp|att|trans|prel|ult|est|rel|pres|pubbl|racc|arts?|paras?|no|vs|dr|mr)"
    R"(|mrs|ed|eds|pp|all|tab|conf|suppl)\.)",
    // All capitals, and short words with a capital inside: CEDU, SMEs, CdA, PhD.
    R"((?<!\p{L})\p{Lu}{2,}s?(?!\p{L}))",
    R"((?<!\p{L})(?=\p{L}{2,5}(?!\p{L}))\p{L}+\p{Lu}\p{L}*)",
    // First parts that stand only before a hyphen.
    R"((?<!\p{L})(?i:anti|neo|semi|pre|post|inter|intra|extra|infra|sub|super|ultra|vice|auto)"
    R"(|bio|euro|eco|geo|multi|pluri|socio|tecno|italo|anglo|austro|ispano|sino|nippo)-(?=\p{L}))",
    // Roman numbers of a list: ii), iv).
    R"((?<!\p{L})[ivxl]{1,5}\))",
};

constexpr const char* kParola = R"([\p{L}\p{M}]+(?:['’][\p{L}\p{M}]+)*['’]?)";

QRegularExpression Espressione(const char* testo) {
  return QRegularExpression(QString::fromUtf8(testo),
                            QRegularExpression::UseUnicodePropertiesOption);
}

std::vector<Tratto> Tratti(const QRegularExpression& espressione, const QString& testo) {
  std::vector<Tratto> tratti;
  for (auto trovati = espressione.globalMatch(testo); trovati.hasNext();) {
    const QRegularExpressionMatch trovato = trovati.next();
    tratti.push_back({trovato.capturedStart(), trovato.capturedLength()});
  }
  return tratti;
}

}  // namespace

std::vector<Tratto> ParoleDaControllare(const QString& testo) {
  static const std::vector<QRegularExpression> rumore = [] {
    std::vector<QRegularExpression> espressioni(kRumore.size());
    std::transform(kRumore.begin(), kRumore.end(), espressioni.begin(), Espressione);
    return espressioni;
  }();
  static const QRegularExpression parola = Espressione(kParola);
  QString senzaRumore = testo;
  for (const QRegularExpression& espressione : rumore) {
    for (const Tratto& tratto : Tratti(espressione, senzaRumore)) {
      senzaRumore.replace(tratto.inizio, tratto.lunghezza, QString(tratto.lunghezza, u' '));
    }
  }
  return Tratti(parola, senzaRumore);
}

std::vector<Tratto> Indirizzi(const QString& testo) {
  static const QRegularExpression indirizzo = Espressione(kIndirizzo);
  return Tratti(indirizzo, testo);
}

}  // namespace torvi
