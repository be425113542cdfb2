#include "archive/corpo_tabella.h"

#include <algorithm>

namespace torvi {

CorpoTabella::CorpoTabella(const std::shared_ptr<Connessione>& connessione, const QString& tabella)
    : Corpo(connessione), tabella_(connessione->Tabella(tabella)) {}

bool CorpoTabella::Leggi1(const std::string& condizione, const QList<Campo>& parametri,
                          const std::string& ordine) {
  const Connessione::Prestito riga =
      Motore().PreparaMotore("SELECT rowid, * FROM [" + tabella_.nome.toStdString() + "]" +
                             condizione + ordine + " LIMIT 1");
  Motore().LegaTutti(riga, parametri);
  if (!Motore().Passo(riga)) return false;
  numero_ = riga->motore->Leggi(0).Intero();
  valori_.resize(tabella_.colonne.Quante());
  for (std::size_t i = 0; i < valori_.size(); ++i) {
    valori_[i] = riga->motore->Leggi(static_cast<int>(i) + 1);
  }
  const int colonna = tabella_.colonne.Posizione(colonnaIndice_);
  chiave_ = colonna < 0 ? Campo(numero_) : valori_[colonna];
  stato_ = Stato::SuRiga;
  return true;
}

std::string CorpoTabella::Ordine(Verso verso) const {
  const std::string senso = verso == Verso::Avanti ? "" : " DESC";
  const std::string colonna =
      colonnaIndice_.empty() ? "" : "[" + colonnaIndice_ + "]" + senso + ",";
  return " ORDER BY " + colonna + "rowid" + senso;
}

void CorpoTabella::Estremo(Verso verso) {
  noMatch_ = false;
  if (Leggi1("", {}, Ordine(verso))) return;
  stato_ = Stato::Dopo;
  numero_ = 0;
}

void CorpoTabella::Inizia() {
  if (stato_ == Stato::DaIniziare) Estremo(Verso::Avanti);
}

// The neighbour in the order (index column, row number). Null keys come before all others, and no
// comparison finds them, so each side of that border is sought by itself.
void CorpoTabella::Vicino(Verso verso) {
  const bool avanti = verso == Verso::Avanti;
  const std::string segno = avanti ? ">" : "<";
  const std::string ordine = Ordine(verso);
  const std::string colonna = "[" + colonnaIndice_ + "]";
  bool trovata = false;
  if (colonnaIndice_.empty()) {
    trovata = Leggi1(" WHERE rowid" + segno + "?", {numero_}, ordine);
  } else if (chiave_.Nullo()) {
    trovata = Leggi1(" WHERE " + colonna + " IS NULL AND rowid" + segno + "?", {numero_}, ordine) ||
              (avanti && Leggi1(" WHERE " + colonna + " IS NOT NULL", {}, ordine));
  } else {
    trovata = Leggi1(" WHERE " + colonna + segno + "=? AND (" + colonna + segno + "? OR rowid" +
                         segno + "?)",
                     {chiave_, chiave_, numero_}, ordine) ||
              (!avanti && Leggi1(" WHERE " + colonna + " IS NULL", {}, ordine));
  }
  if (!trovata) stato_ = avanti ? Stato::Dopo : Stato::Prima;
}

bool CorpoTabella::Eof() {
  Inizia();
  return stato_ == Stato::Dopo;
}

bool CorpoTabella::Bof() {
  Inizia();
  if (stato_ == Stato::Prima) return true;
  // Without rows both ends are true.
  return stato_ == Stato::Dopo && numero_ == 0;
}

void CorpoTabella::MoveFirst() {
  Estremo(Verso::Avanti);
  if (stato_ == Stato::Dopo) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
}

void CorpoTabella::MoveLast() {
  Estremo(Verso::Indietro);
  if (stato_ == Stato::Dopo) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
}

void CorpoTabella::MoveNext() {
  Inizia();
  if (stato_ == Stato::Prima) return Estremo(Verso::Avanti);
  if (stato_ != Stato::SuRiga && stato_ != Stato::Cancellata) {
    throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  }
  Vicino(Verso::Avanti);
}

void CorpoTabella::MovePrevious() {
  Inizia();
  if (stato_ == Stato::Dopo && numero_ != 0) return Estremo(Verso::Indietro);
  if (stato_ != Stato::SuRiga && stato_ != Stato::Cancellata) {
    throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  }
  Vicino(Verso::Indietro);
}

void CorpoTabella::RichiediRiga() {
  Inizia();
  if (stato_ != Stato::SuRiga) {
    throw ErroreEsecuzione(Errore::NessunRecordCorrente, tabella_.nome);
  }
}

Campo CorpoTabella::Valore(int colonna) {
  RichiediRiga();
  return valori_.at(colonna);
}

qint64 CorpoTabella::Bookmark() {
  RichiediRiga();
  return numero_;
}

void CorpoTabella::Bookmark(qint64 riga) {
  noMatch_ = false;
  if (!Leggi1(" WHERE rowid=?", {riga}, "")) {
    throw ErroreEsecuzione(Errore::NessunRecordCorrente, tabella_.nome);
  }
}

void CorpoTabella::RigaCambiata() { (void)Leggi1(" WHERE rowid=?", {LastModified()}, ""); }

void CorpoTabella::Index(std::string_view nome) {
  std::string chiave(nome);
  std::transform(chiave.begin(), chiave.end(), chiave.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  const auto indice = tabella_.indici.find(chiave);
  if (indice == tabella_.indici.end()) {
    throw ErroreEsecuzione(Errore::NomeIndiceNonValido, QString::fromStdString(chiave));
  }
  colonnaIndice_ = indice->second == tabella_.numeroRiga ? std::string() : indice->second;
  stato_ = Stato::DaIniziare;
}

void CorpoTabella::Seek(const Campo& chiave) {
  const std::string colonna = colonnaIndice_.empty() ? "rowid" : "[" + colonnaIndice_ + "]";
  noMatch_ = !Leggi1(" WHERE " + colonna + "=?", {chiave}, " ORDER BY rowid");
  if (noMatch_) stato_ = Stato::Perduta;
}

}  // namespace torvi
