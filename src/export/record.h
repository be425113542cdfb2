// The record that an export is building: an array of fields, each a tag of two characters and a
// content. Field writers only append; the driver writes the whole at once, since line two counts
// the fields.
#pragma once

#include <QString>
#include <vector>

namespace torvi {

class FileTesto;

namespace tag {
inline const QString kIdentificativo = QStringLiteral(" 1");
inline const QString kNumero = QStringLiteral(" 2");
inline const QString kAutori = QStringLiteral(" 3");
inline const QString kCuratori = QStringLiteral(" 4");
inline const QString kRiferimento = QStringLiteral(" 5");
inline const QString kTitolo = QStringLiteral(" 6");
inline const QString kNotaAmb = QStringLiteral(" 8");
inline const QString kSommario = QStringLiteral(" 9");
inline const QString kFonti = QStringLiteral("10");
inline const QString kTraduzione = QStringLiteral("11");
inline const QString kClassi1999 = QStringLiteral("12");
inline const QString kRiassunto = QStringLiteral("13");
inline const QString kSecondoRiferimento = QStringLiteral("14");
inline const QString kCitazione = QStringLiteral("21");
inline const QString kFontiEtichettate = QStringLiteral("22");
inline const QString kCodiciClasse = QStringLiteral("23");
inline const QString kClassiStorico = QStringLiteral("24");
inline const QString kClassiCassazione = QStringLiteral("25");
inline const QString kEnglishAbstract = QStringLiteral("77");
inline const QString kInTemaDi = QStringLiteral("88");
}  // namespace tag

class Record {
 public:
  // A field of several pairs has one text, of which each is a part.
  struct Riga {
    QString tag;
    QString testo;
    QStringView contenuto;  // into `testo`
  };

  // One pair more. Past 32767 pairs: error 6.
  void AggiungiRiga(const QString& tag, const QString& contenuto);
  // As many pairs of the tag as the text needs, each of at most 1000 characters and cut behind a
  // blank. A piece without a blank: error 5. The caller's text stays whole.
  void SpezzaRiga(const QString& testo, const QString& tag);
  // SpezzaRiga above 1000 characters, AggiungiRiga otherwise.
  void AggiungiTesto(const QString& tag, const QString& testo);

  [[nodiscard]] qint16 NumRighe() const { return static_cast<qint16>(righe_.size()); }
  [[nodiscard]] const std::vector<Riga>& RigheRecord() const { return righe_; }
  void Azzera() { righe_.clear(); }

  // The content of the first pair, the count of pairs, then every pair in lines of at most 245
  // characters of content in the OEM code page: a line that goes on in the next ends in a TAB. The
  // file gets the whole record or, on a piece without a blank (error 5), nothing of it.
  void ScriviRecord(FileTesto& uscita);

 private:
  void Aggiungi(const QString& tag, const QString& testo, QStringView contenuto);

  std::vector<Riga> righe_;
  std::string byte_;  // of the record being written; its memory serves the next one
};

}  // namespace torvi
