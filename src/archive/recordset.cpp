#include "archive/recordset.h"

#include "archive/corpo.h"
#include "archive/errore.h"

namespace torvi {

Recordset::Recordset(std::unique_ptr<Corpo> corpo) : corpo_(std::move(corpo)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

Recordset::Corpo& Recordset::Aperto() const {
  if (corpo_ == nullptr) throw ErroreEsecuzione(Errore::OggettoChiuso);
  corpo_->RichiediAperta();
  return *corpo_;
}

bool Recordset::Eof() const { return Aperto().Eof(); }
bool Recordset::Bof() const { return Aperto().Bof(); }
void Recordset::MoveFirst() { Aperto().MoveFirst(); }
void Recordset::MoveLast() { Aperto().MoveLast(); }
void Recordset::MoveNext() { Aperto().MoveNext(); }
void Recordset::MovePrevious() { Aperto().MovePrevious(); }
Campo Recordset::Fields(std::string_view nome) const { return Aperto().Fields(nome); }
Campo Recordset::Fields(int colonna) const { return Aperto().Fields(colonna); }
int Recordset::Colonna(std::string_view nome) const { return Aperto().Colonna(nome); }
int Recordset::QuanteColonne() const { return Aperto().QuanteColonne(); }
bool Recordset::HaCampo(std::string_view nome) const { return Aperto().HaCampo(nome); }
Riga Recordset::Copia() const { return Aperto().Copia(); }
void Recordset::Assegna(std::string_view nome, const Campo& valore) {
  Aperto().Assegna(nome, valore);
}
void Recordset::AddNew() { Aperto().AddNew(); }
void Recordset::Edit() { Aperto().Edit(); }
void Recordset::Update() { Aperto().Update(); }
void Recordset::Delete() { Aperto().Delete(); }
void Recordset::Index(std::string_view nome) { Aperto().Index(nome); }
void Recordset::Seek(const Campo& chiave) { Aperto().Seek(chiave); }
bool Recordset::NoMatch() const { return Aperto().NoMatch(); }
qint64 Recordset::LastModified() const { return Aperto().LastModified(); }
qint64 Recordset::Bookmark() const { return Aperto().Bookmark(); }
void Recordset::Bookmark(qint64 riga) { Aperto().Bookmark(riga); }
void Recordset::Close() { corpo_.reset(); }

}  // namespace torvi
