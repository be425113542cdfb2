#include "export/tabelle_di_codici.h"

#include "archive/collazione.h"
#include "archive/errore.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// Not only codes are sought: a free text that might be one is, too, and there is no end of those.
constexpr std::size_t kRicordate = 4096;

struct NomiTavola {
  QLatin1StringView tabella;
  const char* chiave;
};

// In the order of TavolaCodici.
constexpr std::array<NomiTavola, kTavoleCodici> kNomi = {{
    {"TabFonteInterna"_L1, "IDFonteInterna"},
    {"TabFonteCom"_L1, "IDFonteCom"},
    {"TabFonteInt"_L1, "IDFonteInt"},
    {"TabFonteCan"_L1, "IDFonteCan"},
    {"TabStato"_L1, "IDStato"},
    {"TabMinistero"_L1, "IDMinistero"},
    {"TabAmministrazione"_L1, "IDAmministrazione"},
    {"TabAutorita"_L1, "IDAutorita"},
    {"TabRegione"_L1, "IDRegione"},
    {"TabProvincia"_L1, "IDProvincia"},
    {"TabCitta"_L1, "IDCitta"},
    {"TabSezione"_L1, "IDSez"},
    {"TabBIB"_L1, "IDBib"},
    {"tabClasse2000-S"_L1, "CodiceS"},
    {"tabClasse2000-D"_L1, "IDClasseD"},
    {"tabClasse2000-D"_L1, "CodiceD"},
}};

const NomiTavola& NomiDi(TavolaCodici quale) { return kNomi.at(static_cast<std::size_t>(quale)); }

QString Istruzione(TavolaCodici quale) {
  return "select * from ["_L1 + NomiDi(quale).tabella + ']';
}

template <typename Chiave>
bool TestiUguali(const Chiave& a, const Chiave& b) {
  const auto* testoA = std::get_if<std::string>(&a);
  const auto* testoB = std::get_if<std::string>(&b);
  return testoA != nullptr && testoB != nullptr && ConfrontaItaliano(*testoA, *testoB) == 0;
}

}  // namespace

const Campo& RigaCodice::Fields(std::string_view nome) const {
  if (!riga_) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  return riga_->Fields(nome);
}

TabelleDiCodici::Chiave TabelleDiCodici::ChiaveDi(const Campo& campo) {
  if (const auto* testo = std::get_if<QString>(&campo.Grezzo())) return testo->toStdString();
  if (const auto* intero = std::get_if<qint64>(&campo.Grezzo())) return *intero;
  if (const auto* reale = std::get_if<double>(&campo.Grezzo())) return *reale;
  return {};
}

// In the order of the keys, so that of keys which the archive takes for equal the first row comes
// first: the others are never found, not even by their own spelling.
TabelleDiCodici::Tavola& TabelleDiCodici::Letta(TavolaCodici quale) {
  Tavola& tavola = tavole_.at(static_cast<std::size_t>(quale));
  if (tavola.letta) return tavola;
  Recordset righe =
      archivio_.OpenRecordset(Istruzione(quale) + " order by "_L1 + NomiDi(quale).chiave);
  const int colonna = righe.Colonna(NomiDi(quale).chiave);
  Chiave precedente;
  for (; !righe.Eof() && tavola.righe.size() < kRicordate; righe.MoveNext()) {
    Riga riga = righe.Copia();
    Chiave chiave = ChiaveDi(riga.Fields(colonna));
    if (TestiUguali(precedente, chiave)) continue;
    precedente = chiave;
    tavola.righe.emplace(std::move(chiave), std::move(riga));
  }
  tavola.letta = true;
  return tavola;
}

void TabelleDiCodici::LeggiTutte() {
  for (std::size_t i = 0; i < kTavoleCodici; ++i) Letta(static_cast<TavolaCodici>(i));
}

RigaCodice TabelleDiCodici::CercaInArchivio(TavolaCodici quale, const Campo& chiave) const {
  const Recordset riga = archivio_.OpenRecordset(
      Istruzione(quale) + " where "_L1 + NomiDi(quale).chiave + " = ?"_L1, {chiave});
  return riga.Eof() ? RigaCodice() : RigaCodice(riga.Copia());
}

const RigaCodice& TabelleDiCodici::Cerca(TavolaCodici quale, const Campo& chiave) {
  Tavola& tavola = Letta(quale);
  Chiave cercata = ChiaveDi(chiave);
  const auto nota = tavola.righe.find(cercata);
  if (nota != tavola.righe.end()) return nota->second;
  if (tavola.righe.size() >= 2 * kRicordate) tavola.righe.clear();
  return tavola.righe.emplace(std::move(cercata), CercaInArchivio(quale, chiave)).first->second;
}

}  // namespace torvi
