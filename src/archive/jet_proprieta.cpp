#include "archive/jet_proprieta.h"

#include <QRegularExpression>

#include "archive/jet_valori.h"

namespace torvi::jet {
namespace {

enum Blocco : std::uint16_t { kNomi = 0x80, kDellaColonna = 1 };
constexpr std::size_t kFirma = 4;
constexpr std::size_t kTestaBlocco = 6;  // length, kind
constexpr std::size_t kTestaNome = 4;
constexpr std::size_t kTestaVoce = 8;  // length, flag, type, which name, length of the value

// Takes pieces off the front of a run of bytes; a piece that is not there is damage.
class Lettura {
 public:
  Lettura(const Pagine& pagine, Ottetti ottetti) : pagine_(pagine), resto_(ottetti) {}

  [[nodiscard]] bool Finita() const { return resto_.empty(); }
  [[nodiscard]] Ottetti Prendi(std::size_t quanti) {
    if (quanti > resto_.size()) pagine_.Danno(QStringLiteral("le proprietà di una tabella"));
    const Ottetti presi = resto_.first(quanti);
    resto_ = resto_.subspan(quanti);
    return presi;
  }
  [[nodiscard]] std::size_t Prendi16() { return Numero16(Prendi(2), 0); }
  [[nodiscard]] QString PrendiTesto() { return Testo(pagine_, Prendi(Prendi16())); }
  // What follows a head that begins with the length of both.
  [[nodiscard]] Ottetti Coda(std::size_t lunghezza, std::size_t testa) {
    return Prendi(lunghezza >= testa ? lunghezza - testa : resto_.size() + 1);
  }

 private:
  const Pagine& pagine_;
  Ottetti resto_;
};

QString Letterale(QString testo) {
  testo = testo.trimmed();
  if (testo.startsWith(QLatin1Char('='))) testo = testo.mid(1).trimmed();
  static const QRegularExpression numero(QStringLiteral("^[+-]?\\d+(\\.\\d+)?$"));
  if (numero.match(testo).hasMatch()) return testo;
  static const std::map<QString, QString> logici = {{QStringLiteral("true"), QStringLiteral("1")},
                                                    {QStringLiteral("yes"), QStringLiteral("1")},
                                                    {QStringLiteral("false"), QStringLiteral("0")},
                                                    {QStringLiteral("no"), QStringLiteral("0")}};
  if (const auto voce = logici.find(testo.toLower()); voce != logici.end()) return voce->second;
  const bool tra =
      testo.size() >= 2 && (testo.front() == QLatin1Char('"')) && testo.back() == QLatin1Char('"');
  if (!tra) return {};
  QString dentro = testo.mid(1, testo.size() - 2);
  dentro.replace(QLatin1String("\"\""), QLatin1String("\""));
  dentro.replace(QLatin1Char('\''), QLatin1String("''"));
  return QLatin1Char('\'') + dentro + QLatin1Char('\'');
}

QStringList LeggiNomi(Lettura blocco) {
  QStringList nomi;
  while (!blocco.Finita()) nomi += blocco.PrendiTesto();
  return nomi;
}

// A column's block: its name, then its properties.
void LeggiColonna(const Pagine& pagine, Lettura blocco, const QStringList& nomi,
                  std::map<QString, QString>& predefiniti) {
  const std::size_t lunghezzaNome = Numero32(blocco.Prendi(kTestaNome), 0);
  const QString colonna = Lettura(pagine, blocco.Coda(lunghezzaNome, kTestaNome)).PrendiTesto();
  while (!blocco.Finita()) {
    const std::size_t lunghezza = blocco.Prendi16();
    const Ottetti testa = blocco.Prendi(kTestaVoce - 2);
    Lettura valore(pagine, blocco.Coda(lunghezza, kTestaVoce));
    const int nome = Numero16(testa, 2);
    if (nome >= nomi.size() || nomi[nome] != QLatin1String("DefaultValue")) continue;
    const QString letterale = Letterale(Testo(pagine, valore.Prendi(Numero16(testa, 4))));
    if (!letterale.isEmpty()) predefiniti[colonna] = letterale;
  }
}

}  // namespace

std::map<QString, QString> Predefiniti(const Pagine& pagine, Ottetti proprieta) {
  std::map<QString, QString> predefiniti;
  if (proprieta.empty()) return predefiniti;
  Lettura lettura(pagine, proprieta);
  (void)lettura.Prendi(kFirma);
  QStringList nomi;
  while (!lettura.Finita()) {
    const Ottetti testa = lettura.Prendi(kTestaBlocco);
    const Lettura blocco(pagine, lettura.Coda(Numero32(testa, 0), kTestaBlocco));
    const std::uint16_t genere = Numero16(testa, 4);
    if (genere == kNomi) nomi = LeggiNomi(blocco);
    if (genere == kDellaColonna) LeggiColonna(pagine, blocco, nomi, predefiniti);
  }
  return predefiniti;
}

}  // namespace torvi::jet
