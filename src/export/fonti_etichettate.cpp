#include "export/fonti_etichettate.h"

#include <optional>

#include "export/celex.h"
#include "export/urn.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// The tables that name the kind of a source.
struct Famiglia {
  TavolaCodici tavola;
  std::string_view colonna;
};
constexpr Famiglia kInterna = {TavolaCodici::FonteInterna, "FonteNorm"};
constexpr Famiglia kComunitaria = {TavolaCodici::FonteCom, "FonteCom"};
constexpr Famiglia kInternazionale = {TavolaCodici::FonteInt, "FonteInt"};
constexpr Famiglia kCanonica = {TavolaCodici::FonteCan, "FonteCan"};

struct VoceFamiglia {
  QLatin1StringView tp;
  const Famiglia* famiglia;
  bool soloPrima = false;  // only on the first source of a document
};

constexpr VoceFamiglia kFamiglie[] = {
    {"LIO"_L1, &kInterna},        {"LIC"_L1, &kInterna},        {"LICO"_L1, &kInterna},
    {"LIOA"_L1, &kInterna},       {"LIR"_L1, &kInterna},        {"LIP"_L1, &kInterna},
    {"LIAB"_L1, &kInterna},       {"AC"_L1, &kInterna},         {"GICO"_L1, &kInterna},
    {"GICA"_L1, &kInterna},       {"GIO"_L1, &kInterna},        {"GICD"_L1, &kInterna},
    {"GIT"_L1, &kInterna},        {"GICC"_L1, &kInterna},       {"GIA"_L1, &kInterna},
    {"GIQ"_L1, &kInterna},        {"GIM"_L1, &kInterna},        {"GIAL"_L1, &kInterna},
    {"GIS"_L1, &kInterna},        {"GIB"_L1, &kInterna, true},  {"NIC"_L1, &kComunitaria},
    {"GEC"_L1, &kComunitaria},    {"NIT"_L1, &kInternazionale}, {"NIA"_L1, &kInternazionale},
    {"GEI"_L1, &kInternazionale}, {"FCC"_L1, &kCanonica},       {"FCG"_L1, &kCanonica},
};

// The mark of a subfield, with the blank that stands for an empty value.
using Marca = QStringView;

struct SottocampoTesto {
  Marca marca;
  ColonnaFonte colonna;
  std::optional<PassoUrn> passo = {};
};

constexpr SottocampoTesto kTesti[] = {
    {u"^y ", ColonnaFonte::anno, PassoUrn::Anno},
    {u"^m ", ColonnaFonte::mese, PassoUrn::Mese},
    {u"^d ", ColonnaFonte::giorno, PassoUrn::Giorno},
    {u"^n ", ColonnaFonte::numero, PassoUrn::Numero},
    {u"^a ", ColonnaFonte::articolo},
    {u"^j ", ColonnaFonte::ripa},
    {u"^c ", ColonnaFonte::comma},
    {u"^k ", ColonnaFonte::ripc},
    {u"^l ", ColonnaFonte::lettera},
    {u"^g ", ColonnaFonte::allegato},
};

struct SottocampoChiave {
  Marca marca;
  ColonnaFonte chiave;
  TavolaCodici tavola;
  std::string_view colonna;
};

constexpr SottocampoChiave kStato = {u"^s ", ColonnaFonte::IDStato, TavolaCodici::Stato, "stato"};
constexpr SottocampoChiave kMinistero = {u"^o ", ColonnaFonte::IDMinistero, TavolaCodici::Ministero,
                                         "MinisteroNorm"};
constexpr SottocampoChiave kAmministrazione = {
    u"^e ", ColonnaFonte::IDAmministrazione, TavolaCodici::Amministrazione, "AmministrazioneNorm"};
constexpr SottocampoChiave kAutorita = {u"^e ", ColonnaFonte::IDAutorita, TavolaCodici::Autorita,
                                        "AutoritaNorm"};
constexpr SottocampoChiave kRegione = {u"^r ", ColonnaFonte::IDRegione, TavolaCodici::Regione,
                                       "regione"};
constexpr SottocampoChiave kProvincia = {u"^p ", ColonnaFonte::IDProvincia, TavolaCodici::Provincia,
                                         "provincia"};
constexpr SottocampoChiave kCitta = {u"^i ", ColonnaFonte::IDCitta, TavolaCodici::Citta, "citta"};
constexpr SottocampoChiave kSezione = {u"^z ", ColonnaFonte::IDSezione, TavolaCodici::Sezione,
                                       "sigla"};

const Famiglia* FamigliaDi(const QString& tp, bool prima) {
  for (const VoceFamiglia& voce : kFamiglie) {
    if (tp == voce.tp) return voce.soloPrima && !prima ? nullptr : voce.famiglia;
  }
  return nullptr;
}

class CampoEtichettato {
 public:
  explicit CampoEtichettato(ContestoEsportazione& contesto) : contesto_(contesto) {}

  void AggiungiFonte(const FonteLetta& fonte);
  [[nodiscard]] const QString& Testo() const { return testo_; }

 private:
  void Sottocampo(Marca marca, const QString& valore) {
    testo_.append(marca.chopped(1)).append(valore);
  }
  void SottocampoVuoto(Marca marca) { testo_.append(marca); }
  void TipoDiFonte(const FonteLetta& fonte, const QString& tp);
  void Parte(const FonteLetta& fonte, const SottocampoTesto& parte);
  const RigaCodice* Nome(const FonteLetta& fonte, const SottocampoChiave& nome,
                         bool vuotoSeManca = true);
  void Ente(const FonteLetta& fonte);
  void Territorio(const FonteLetta& fonte);

  ContestoEsportazione& contesto_;
  QString testo_;
  QString urnCorrente_;
  bool prima_ = true;
};

void CampoEtichettato::TipoDiFonte(const FonteLetta& fonte, const QString& tp) {
  const Famiglia* famiglia = FamigliaDi(tp, prima_);
  if (famiglia == nullptr) {
    SottocampoVuoto(u"^f ");
    SottocampoVuoto(u"^x ");
    return;
  }
  const RigaCodice& tipo =
      contesto_.condivise.codici.Cerca(famiglia->tavola, fonte[ColonnaFonte::fonte]);
  Sottocampo(u"^f ", tipo.Fields(famiglia->colonna).Testo());
  if (famiglia == &kComunitaria) {
    Sottocampo(u"^x ", CelexDaFonte(contesto_.stato, fonte, tipo));
    return;
  }
  SottocampoVuoto(u"^x ");
  if (famiglia == &kInterna) urnCorrente_ = tipo.Fields("URN").TestoOVuoto();
}

void CampoEtichettato::Parte(const FonteLetta& fonte, const SottocampoTesto& parte) {
  const Campo& campo = fonte[parte.colonna];
  if (!campo.Presente()) {
    SottocampoVuoto(parte.marca);
    return;
  }
  const QString valore = campo.Testo();
  Sottocampo(parte.marca, valore);
  if (parte.passo) EstendiUrn(urnCorrente_, *parte.passo, valore, prima_);
}

// The row that the key names, if the source has one.
const RigaCodice* CampoEtichettato::Nome(const FonteLetta& fonte, const SottocampoChiave& nome,
                                         bool vuotoSeManca) {
  const Campo& chiave = fonte[nome.chiave];
  if (chiave.Nullo() || chiave.Intero() == 0) {
    if (vuotoSeManca) SottocampoVuoto(nome.marca);
    return nullptr;
  }
  const RigaCodice& riga = contesto_.condivise.codici.Cerca(nome.tavola, chiave);
  Sottocampo(nome.marca, riga.Fields(nome.colonna).Testo());
  return &riga;
}

// The issuing body: an administration, an authority, or both under the same mark.
void CampoEtichettato::Ente(const FonteLetta& fonte) {
  const bool amministrazione = Nome(fonte, kAmministrazione, false) != nullptr;
  Nome(fonte, kAutorita, !amministrazione);
}

void CampoEtichettato::Territorio(const FonteLetta& fonte) {
  const RigaCodice* regione = Nome(fonte, kRegione);
  if (regione != nullptr && !urnCorrente_.isEmpty()) {
    CompletaUrn(urnCorrente_, regione->Fields("codRegioneURN").Testo());
  }
  const RigaCodice* provincia = Nome(fonte, kProvincia);
  if (provincia != nullptr && !urnCorrente_.isEmpty()) {
    CompletaUrn(urnCorrente_, provincia->Fields(kProvincia.colonna).Testo().toLower());
  }
}

void CampoEtichettato::AggiungiFonte(const FonteLetta& fonte) {
  urnCorrente_.clear();
  if (!prima_) testo_ += QLatin1Char('\\');
  const QString tp = fonte[ColonnaFonte::TP].Testo();
  Sottocampo(u"^t ", tp);
  TipoDiFonte(fonte, tp);
  for (const SottocampoTesto& parte : kTesti) Parte(fonte, parte);
  Nome(fonte, kStato);
  Nome(fonte, kMinistero);
  Ente(fonte);
  Territorio(fonte);
  Nome(fonte, kCitta);
  Nome(fonte, kSezione);
  if (urnCorrente_.isEmpty()) {
    SottocampoVuoto(u"^u ");
  } else {
    Sottocampo(u"^u ", urnCorrente_);
  }
  prima_ = false;
}

}  // namespace

void ScriviFontiEtichettate(ContestoEsportazione& contesto, std::span<const FonteLetta> fonti) {
  if (fonti.empty()) return;
  CampoEtichettato campo(contesto);
  for (const FonteLetta& fonte : fonti) campo.AggiungiFonte(fonte);
  contesto.record.AggiungiTesto(tag::kFontiEtichettate, campo.Testo());
}

}  // namespace torvi
