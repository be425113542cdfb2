#include "export/record.h"

#include <algorithm>
#include <limits>

#include "archive/errore.h"
#include "export/codepagina.h"
#include "export/file_testo.h"

namespace torvi {
namespace {

constexpr qsizetype kMassimoCampo = 1000;
constexpr qsizetype kMassimoRiga = 245;

// Cuts the text before `resto` as far as its first `massimo` characters allow, behind a blank.
QStringView TogliPezzo(QStringView& resto, qsizetype massimo) {
  const qsizetype spazio = resto.first(massimo).lastIndexOf(QLatin1Char(' '));
  if (spazio < 0) throw ErroreEsecuzione(Errore::ChiamataNonValida);
  const QStringView pezzo = resto.first(spazio + 1);
  resto = resto.sliced(spazio + 1);
  return pezzo;
}

constexpr unsigned Segno(unsigned prima, unsigned seconda) { return prima * 256 + seconda; }

// Texts and tagged sources go in as stored; in any other field a line break, which would begin a
// line without a tag, and a zero byte become blanks.
bool ComeRegistrato(QStringView tag) {
  switch (Segno(tag[0].unicode(), tag[1].unicode())) {
    case Segno(' ', '3'):
    case Segno(' ', '4'):
    case Segno(' ', '5'):
    case Segno('1', '0'):
    case Segno('1', '2'):
    case Segno('1', '4'):
    case Segno('2', '1'):
    case Segno('2', '3'):
    case Segno('2', '4'):
    case Segno('2', '5'):
      return false;
    default:
      return true;
  }
}

void AggiungiRigaFile(std::string& byte, QStringView tag, QStringView contenuto,
                      std::string_view fine) {
  for (const QChar c : tag) byte += c.toLatin1();
  const auto inizio = static_cast<std::ptrdiff_t>(byte.size());
  AccodaOem(byte, contenuto);
  if (!ComeRegistrato(tag)) {
    std::replace_if(
        byte.begin() + inizio, byte.end(),
        [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
  }
  byte += fine;
}

void AggiungiRigheCampo(std::string& byte, const Record::Riga& riga) {
  QStringView resto = riga.contenuto;
  while (resto.size() > kMassimoRiga) {
    AggiungiRigaFile(byte, riga.tag, TogliPezzo(resto, kMassimoRiga), "\t\r\n");
  }
  AggiungiRigaFile(byte, riga.tag, resto, "\r\n");
}

}  // namespace

// The text is shared, never copied: the part stays good for as long as the row holds the text.
void Record::Aggiungi(const QString& tag, const QString& testo, QStringView contenuto) {
  if (NumRighe() == std::numeric_limits<qint16>::max()) throw ErroreEsecuzione(Errore::Overflow);
  righe_.push_back({tag, testo, contenuto});
}

void Record::AggiungiRiga(const QString& tag, const QString& contenuto) {
  Aggiungi(tag, contenuto, contenuto);
}

void Record::SpezzaRiga(const QString& testo, const QString& tag) {
  QStringView resto = testo;
  while (resto.size() > kMassimoCampo) Aggiungi(tag, testo, TogliPezzo(resto, kMassimoCampo));
  Aggiungi(tag, testo, resto);
}

void Record::AggiungiTesto(const QString& tag, const QString& testo) {
  if (testo.size() > kMassimoCampo) {
    SpezzaRiga(testo, tag);
  } else {
    AggiungiRiga(tag, testo);
  }
}

void Record::ScriviRecord(FileTesto& uscita) {
  byte_.clear();
  byte_ += ConvertiAnsi(righe_.at(0).contenuto).toStdString();
  byte_ += "\r\n" + std::to_string(NumRighe()) + "\r\n";
  for (const Riga& riga : righe_) AggiungiRigheCampo(byte_, riga);
  uscita.ScriviBlocco(byte_);
}

}  // namespace torvi
