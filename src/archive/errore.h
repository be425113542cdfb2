// The one exception of the program. It carries the platform's error number, by which the traps of
// the commands sort failures, and an Italian description that names the file or the object.
#pragma once

#include <QString>
#include <exception>

namespace torvi {

enum class Errore : int {
  Overflow = 6,         // a value that does not fit 16 signed bits
  IndiceNonValido = 9,  // subscript out of range
  StackEsaurito = 28,   // a search result that no document ends
  ErroreInterno = 51,
  FileNonTrovato = 53,
  FileAperto = 55,
  ErroreDispositivo = 57,  // the device failed while reading or writing
  DiscoPieno = 61,
  AccessoNegato = 70,
  ErroreAccessoFile = 75,
  PercorsoNonTrovato = 76,
  TipoNonCorrispondente = 13,
  ChiamataNonValida = 5,  // an argument out of range, as a negative length
  OggettoNonImpostato = 91,
  NullNonValido = 94,              // Null where text or a number is needed
  ValoreProprietaNonValido = 380,  // an item that a list does not have
  OggettoNonTrovato = 3011,        // table absent, or a file that is no archive
  NomeIndiceNonValido = 3015,
  AggiornamentoSenzaEdit = 3020,  // Update, or a value given, without AddNew or Edit
  NessunRecordCorrente = 3021,
  ChiaveDuplicata = 3022,
  DatabaseNonTrovato = 3024,
  SolaLettura = 3027,
  DatabaseInUso = 3045,
  OperazioneNonAmmessa = 3251,  // Index or Seek on a statement; reading ahead of a unit
  PermessoNegato = 3051,
  ParametriInsufficienti = 3061,  // a statement names a column that its tables lack
  SintassiErrata = 3075,
  TabellaNonTrovata = 3078,
  RecordBloccato = 3260,
  CampoNonTrovato = 3265,
  FormatoNonRiconosciuto = 3343,  // neither an archive nor a sound Jet file
  OggettoChiuso = 3420,
  ConversioneTipo = 3421,
  OperazioneAnnullata = 32755,  // the operator left a file dialog by Cancel
};

class ErroreEsecuzione : public std::exception {
 public:
  // Without a description, or with a detail, the text is the platform's own for that number,
  // followed by the detail (a file, a table, a column) where one is given.
  explicit ErroreEsecuzione(Errore numero, const QString& dettaglio = {});
  // The text as it stands.
  static ErroreEsecuzione ConDescrizione(Errore numero, const QString& descrizione);

  [[nodiscard]] int Numero() const { return static_cast<int>(numero_); }
  [[nodiscard]] bool E(Errore numero) const { return numero_ == numero; }
  [[nodiscard]] const QString& Descrizione() const { return descrizione_; }
  [[nodiscard]] const char* what() const noexcept override { return utf8_.constData(); }

 private:
  Errore numero_;
  QString descrizione_;
  QByteArray utf8_;
};

}  // namespace torvi
