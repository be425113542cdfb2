#include <QSet>
#include <QString>
#include <array>

#include "testi/regole.h"

namespace torvi {
namespace {

// "via via", "that that", "Baden Baden" are no slips.
bool RipetizioneErrata(const QRegularExpressionMatch& trovato) {
  static const QSet<QString> ammesse = {
      QStringLiteral("via"),    QStringLiteral("quasi"), QStringLiteral("così"),
      QStringLiteral("appena"), QStringLiteral("volta"), QStringLiteral("piano"),
      QStringLiteral("passo"),  QStringLiteral("poco"),  QStringLiteral("ben"),
      QStringLiteral("no"),     QStringLiteral("sì"),    QStringLiteral("pari"),
      QStringLiteral("mano"),   QStringLiteral("man"),   QStringLiteral("sotto"),
      QStringLiteral("that"),   QStringLiteral("had")};
  const QString prima = trovato.captured(1);
  if (ammesse.contains(prima.toLower())) return false;
  const bool nome = prima.at(0).isUpper() && trovato.captured(0).endsWith(prima);
  return !nome;
}

constexpr std::array kRegole = {
    Regola{"parola ripetuta",
           R"((?i)(?<![\p{L}\p{N}'’-])(\p{L}{2,})[ \x{A0}]+\1(?![\p{L}\p{N}'’-]))", R"(\1)",
           "La parola è scritta due volte di seguito.", RipetizioneErrata},
    Regola{"spazi ripetuti", R"((?<=\S)[ \x{A0}]{2,}(?=\S))", " ",
           "Tra due parole basta uno spazio."},
    Regola{"spazio prima della punteggiatura",
           R"((?<=[\p{L}\p{N})\]»”"'’%])[ \x{A0}]+([,;:!?]|\.(?![.\p{L}\p{N}])))", R"(\1)",
           "Prima di un segno di punteggiatura non va lo spazio."},
    Regola{"spazio dopo la punteggiatura", R"(([,;:!?])(?<!\p{Lu}:)(?=\p{L}))", R"(\1 )",
           "Dopo un segno di punteggiatura va uno spazio."},
    Regola{"spazio dopo il punto", R"((?<=\p{Ll}{3}|[\p{N})»])\.(?=\p{Lu}\p{Ll}))", ". ",
           "Dopo il punto va uno spazio."},
    Regola{"punteggiatura ripetuta", R"(([,;:])[ ]?\1)", R"(\1)",
           "Il segno di punteggiatura è scritto due volte."},
    Regola{"due punti fermi", R"((?<![.(\[])\.\.(?![.)\]]))", ".|...",
           "Il punto fermo è uno solo; i puntini di sospensione sono tre."},
    Regola{"spazio dopo la parentesi aperta", R"(([(\[«“])[ \x{A0}]+(?=\S))", R"(\1)",
           "Dopo una parentesi o virgolette aperte non va lo spazio."},
    Regola{"spazio prima della parentesi chiusa", R"((?<=[^\s,;:])[ \x{A0}]+([)\]»”]))", R"(\1)",
           "Prima di una parentesi o virgolette chiuse non va lo spazio."},
    Regola{"spazio prima della parentesi aperta", R"((?<=\p{L}{3})\((?=[^()]* ))", " (",
           "Prima di una parentesi aperta va uno spazio."},
    Regola{"spazio dopo la parentesi chiusa",
           // Not in "(in)capacità", which is one word.
           R"((?<= )[\p{L}\p{N}.]+\K\)(?=\p{L}{2,}))", ") ",
           "Dopo una parentesi chiusa va uno spazio."},
};

}  // namespace

std::span<const Regola> RegoleComuni() { return kRegole; }

}  // namespace torvi
