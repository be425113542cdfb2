#include "archive/jet_valori.h"

#include <QDateTime>
#include <QUuid>
#include <QtEndian>
#include <algorithm>
#include <cmath>

namespace torvi::jet {
namespace {

// A long value's head: its length with two flags, and the pointer to its first piece.
constexpr std::size_t kTesta = 12;
constexpr std::uint32_t kNellaRiga = 0x80000000;
constexpr std::uint32_t kUnPezzo = 0x40000000;
constexpr std::uint32_t kLunghezza = 0x3fffffff;

// From 1 January 100 to 31 December 9999.
constexpr double kPrimoGiorno = -657434;
constexpr double kDopoUltimoGiorno = 2958466;
constexpr int kSecondiDelGiorno = 86400;

template <typename T>
T Numero(Ottetti ottetti) {
  return qFromLittleEndian<T>(ottetti.data());
}

QByteArray Copia(Ottetti ottetti) {
  return {reinterpret_cast<const char*>(ottetti.data()), static_cast<int>(ottetti.size())};
}

// A negative date is whole days minus the fraction's absolute value.
Campo Data(const Pagine& pagine, double giorni) {
  if (!(giorni >= kPrimoGiorno && giorni < kDopoUltimoGiorno)) {
    pagine.Danno(QStringLiteral("una data"));
  }
  const double interi = std::trunc(giorni);
  const auto secondi = static_cast<int>(std::lround(std::abs(giorni - interi) * kSecondiDelGiorno));
  const QDate data =
      QDate(1899, 12, 30).addDays(static_cast<qint64>(interi) + secondi / kSecondiDelGiorno);
  const int resto = secondi % kSecondiDelGiorno;
  QString testo = data.toString(QStringLiteral("dd/MM/yyyy"));
  if (resto != 0) testo += QTime(0, 0).addSecs(resto).toString(QStringLiteral(" hh:mm:ss"));
  return testo;
}

// 17 bytes: the sign, then 16 that the library knows how to read off the page.
Campo Decimale(const Pagine& pagine, const ColonnaJet& colonna, Ottetti ottetti) {
  const auto posizione = static_cast<int>(ottetti.data() - pagine.Motore()->pg_buf);
  char* testo = mdb_numeric_to_string(pagine.Motore(), posizione, colonna.decimali, colonna.cifre);
  if (testo == nullptr) pagine.Danno(QStringLiteral("un numero decimale"));
  Campo valore(QString::fromLatin1(testo));
  g_free(testo);
  return valore;
}

Campo Identificatore(Ottetti ottetti) {
  const auto u = ottetti.subspan(8);
  const QUuid uuid(Numero32(ottetti, 0), Numero16(ottetti, 4), Numero16(ottetti, 6), u[0], u[1],
                   u[2], u[3], u[4], u[5], u[6], u[7]);
  return uuid.toString().toUpper();
}

Campo Reale(const Pagine& pagine, double numero) {
  if (!std::isfinite(numero)) pagine.Danno(QStringLiteral("un numero"));
  return numero;
}

}  // namespace

Campo Valore(Pagine& pagine, const ColonnaJet& colonna, const CampoGrezzo& campo) {
  if (colonna.tipo == MDB_BOOL) return campo.presente;
  if (!campo.presente) return {};
  const Ottetti ottetti = campo.ottetti;
  if (ottetti.size() < colonna.minimo) pagine.Danno(QStringLiteral("un campo di una riga"));
  switch (colonna.tipo) {
    case MDB_BYTE:
      return static_cast<qint64>(ottetti[0]);
    case MDB_INT:
      return static_cast<qint64>(Numero<qint16>(ottetti));
    case MDB_LONGINT:
      return static_cast<qint64>(Numero<qint32>(ottetti));
    case MDB_MONEY:
      return static_cast<double>(Numero<qint64>(ottetti)) / 10000.0;
    case MDB_FLOAT:
      return Reale(pagine, Numero<float>(ottetti));
    case MDB_DOUBLE:
      return Reale(pagine, Numero<double>(ottetti));
    case MDB_DATETIME:
      return Data(pagine, Numero<double>(ottetti));
    case MDB_TEXT:
      return Testo(pagine, ottetti);
    case MDB_MEMO: {
      const QByteArray lungo = Lungo(pagine, ottetti);
      return Testo(pagine, {reinterpret_cast<const std::uint8_t*>(lungo.constData()),
                            static_cast<std::size_t>(lungo.size())});
    }
    case MDB_BINARY:
      return QString::fromLatin1(Copia(ottetti).toHex());
    case MDB_OLE:
      return QString::fromLatin1(Lungo(pagine, ottetti).toHex());
    case MDB_REPID:
      return Identificatore(ottetti);
    case MDB_NUMERIC:
      return Decimale(pagine, colonna, ottetti);
    default:
      pagine.Danno(QStringLiteral("il tipo di una colonna"));
  }
}

QByteArray Lungo(Pagine& pagine, Ottetti campo) {
  const auto esigi = [&](bool sano) {
    if (!sano) pagine.Danno(QStringLiteral("un testo lungo"));
  };
  if (campo.empty()) return {};
  esigi(campo.size() >= kTesta);
  const std::uint32_t testa = Numero32(campo, 0);
  const std::size_t lunghezza = testa & kLunghezza;
  const auto taglia = [&](Ottetti pezzo) {
    esigi(pezzo.size() >= lunghezza);
    return Copia(pezzo.first(lunghezza));
  };
  std::uint32_t puntatore = Numero32(campo, 4);
  if ((testa & kNellaRiga) != 0) return taglia(campo.subspan(kTesta));
  if ((testa & kUnPezzo) != 0) return taglia(pagine.RigaLontana(puntatore).ottetti);
  // Pointers that go in a circle come to an end.
  esigi(lunghezza <= pagine.QuantePagine() * kPagina);
  QByteArray tutto;
  for (std::size_t manca = lunghezza; manca > 0; manca = lunghezza - tutto.size()) {
    const Ottetti pezzo = pagine.RigaLontana(puntatore).ottetti;
    esigi(pezzo.size() > 4);
    tutto += Copia(pezzo.subspan(4, std::min(manca, pezzo.size() - 4)));
    puntatore = Numero32(pezzo, 0);
  }
  return tutto;
}

QString Testo(const Pagine& pagine, Ottetti ottetti) {
  const bool conCambi = ottetti.size() >= 2 && ottetti[0] == 0xff && ottetti[1] == 0xfe;
  if (conCambi) ottetti = ottetti.subspan(2);
  bool compresso = conCambi;
  bool soloLatino = conCambi;
  // No character takes less than one byte.
  QString testo(static_cast<qsizetype>(ottetti.size()), Qt::Uninitialized);
  QChar* fine = testo.data();
  for (std::size_t i = 0; i < ottetti.size();) {
    if (conCambi && ottetti[i] == 0) {
      compresso = !compresso;
      ++i;
    } else if (compresso) {
      *fine++ = QLatin1Char(static_cast<char>(ottetti[i++]));
    } else {
      if (i + 2 > ottetti.size()) pagine.Danno(QStringLiteral("un testo"));
      *fine++ = QChar(Numero16(ottetti, i));
      i += 2;
      soloLatino = false;
    }
  }
  testo.truncate(fine - testo.constData());
  if (!soloLatino && !testo.isValidUtf16()) pagine.Danno(QStringLiteral("un testo"));
  return testo;
}

}  // namespace torvi::jet
