#include "export/fonti_etichettate.h"

#include <optional>

#include "export/celex.h"
#include "export/urn.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// The tables that name the kind of a source.
struct Famiglia {
  std::string_view tabella;
  std::string_view colonna;
};
constexpr Famiglia kInterna = {"TabFonteInterna", "FonteNorm"};
constexpr Famiglia kComunitaria = {"TabFonteCom", "FonteCom"};
constexpr Famiglia kInternazionale = {"TabFonteInt", "FonteInt"};
constexpr Famiglia kCanonica = {"TabFonteCan", "FonteCan"};

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

struct SottocampoTesto {
  QLatin1StringView marca;
  std::string_view colonna;
  std::optional<PassoUrn> passo = {};
};

constexpr SottocampoTesto kTesti[] = {
    {"^y"_L1, "anno", PassoUrn::Anno},
    {"^m"_L1, "mese", PassoUrn::Mese},
    {"^d"_L1, "giorno", PassoUrn::Giorno},
    {"^n"_L1, "numero", PassoUrn::Numero},
    {"^a"_L1, "articolo"},
    {"^j"_L1, "ripa"},
    {"^c"_L1, "comma"},
    {"^k"_L1, "ripc"},
    {"^l"_L1, "lettera"},
    {"^g"_L1, "allegato"},
};

struct SottocampoChiave {
  QLatin1StringView marca;
  std::string_view chiave;  // column of the source
  std::string_view tabella;
  std::string_view colonna;
};

constexpr SottocampoChiave kStato = {"^s"_L1, "IDStato", "TabStato", "stato"};
constexpr SottocampoChiave kMinistero = {"^o"_L1, "IDMinistero", "TabMinistero", "MinisteroNorm"};
constexpr SottocampoChiave kAmministrazione = {"^e"_L1, "IDAmministrazione", "TabAmministrazione",
                                               "AmministrazioneNorm"};
constexpr SottocampoChiave kAutorita = {"^e"_L1, "IDAutorita", "TabAutorita", "AutoritaNorm"};
constexpr SottocampoChiave kRegione = {"^r"_L1, "IDRegione", "TabRegione", "regione"};
constexpr SottocampoChiave kProvincia = {"^p"_L1, "IDProvincia", "TabProvincia", "provincia"};
constexpr SottocampoChiave kCitta = {"^i"_L1, "IDCitta", "TabCitta", "citta"};
constexpr SottocampoChiave kSezione = {"^z"_L1, "IDSezione", "TabSezione", "sigla"};

const Famiglia* FamigliaDi(const QString& tp, bool prima) {
  for (const VoceFamiglia& voce : kFamiglie) {
    if (tp == voce.tp) return voce.soloPrima && !prima ? nullptr : voce.famiglia;
  }
  return nullptr;
}

class CampoEtichettato {
 public:
  explicit CampoEtichettato(ContestoEsportazione& contesto) : contesto_(contesto) {}

  void AggiungiFonte(const Riga& fonte);
  [[nodiscard]] const QString& Testo() const { return testo_; }

 private:
  void Sottocampo(QLatin1StringView marca, const QString& valore) { testo_ += marca + valore; }
  void SottocampoVuoto(QLatin1StringView marca) { testo_ += marca + QLatin1Char(' '); }
  void TipoDiFonte(const Riga& fonte, const QString& tp);
  void Parte(const Riga& fonte, const SottocampoTesto& parte);
  const Recordset* Nome(const Riga& fonte, const SottocampoChiave& nome, bool vuotoSeManca = true);
  void Ente(const Riga& fonte);
  void Territorio(const Riga& fonte);

  ContestoEsportazione& contesto_;
  QString testo_;
  QString urnCorrente_;
  bool prima_ = true;
};

void CampoEtichettato::TipoDiFonte(const Riga& fonte, const QString& tp) {
  const Famiglia* famiglia = FamigliaDi(tp, prima_);
  if (famiglia == nullptr) {
    SottocampoVuoto("^f"_L1);
    SottocampoVuoto("^x"_L1);
    return;
  }
  const Recordset& tipo = contesto_.codici.Cerca(famiglia->tabella, fonte.Fields("fonte"));
  Sottocampo("^f"_L1, tipo.Fields(famiglia->colonna).Testo());
  if (famiglia == &kComunitaria) {
    Sottocampo("^x"_L1, CelexDaFonte(contesto_.stato, fonte.Fields("IDFonte").Intero16()));
    return;
  }
  SottocampoVuoto("^x"_L1);
  if (famiglia == &kInterna) urnCorrente_ = tipo.Fields("URN").TestoOVuoto();
}

void CampoEtichettato::Parte(const Riga& fonte, const SottocampoTesto& parte) {
  const Campo& campo = fonte.Fields(parte.colonna);
  if (!campo.Presente()) {
    SottocampoVuoto(parte.marca);
    return;
  }
  const QString valore = campo.Testo();
  Sottocampo(parte.marca, valore);
  if (parte.passo) EstendiUrn(urnCorrente_, *parte.passo, valore, prima_);
}

// The row that the key names, if the source has one.
const Recordset* CampoEtichettato::Nome(const Riga& fonte, const SottocampoChiave& nome,
                                        bool vuotoSeManca) {
  const Campo& chiave = fonte.Fields(nome.chiave);
  if (chiave.Nullo() || chiave.Intero() == 0) {
    if (vuotoSeManca) SottocampoVuoto(nome.marca);
    return nullptr;
  }
  const Recordset& riga = contesto_.codici.Cerca(nome.tabella, chiave);
  Sottocampo(nome.marca, riga.Fields(nome.colonna).Testo());
  return &riga;
}

// The issuing body: an administration, an authority, or both under the same mark.
void CampoEtichettato::Ente(const Riga& fonte) {
  const bool amministrazione = Nome(fonte, kAmministrazione, false) != nullptr;
  Nome(fonte, kAutorita, !amministrazione);
}

void CampoEtichettato::Territorio(const Riga& fonte) {
  const Recordset* regione = Nome(fonte, kRegione);
  if (regione != nullptr && !urnCorrente_.isEmpty()) {
    CompletaUrn(urnCorrente_, regione->Fields("codRegioneURN").Testo());
  }
  const Recordset* provincia = Nome(fonte, kProvincia);
  if (provincia != nullptr && !urnCorrente_.isEmpty()) {
    CompletaUrn(urnCorrente_, provincia->Fields(kProvincia.colonna).Testo().toLower());
  }
}

void CampoEtichettato::AggiungiFonte(const Riga& fonte) {
  urnCorrente_.clear();
  if (!prima_) testo_ += QLatin1Char('\\');
  const QString tp = fonte.Fields("tp").Testo();
  Sottocampo("^t"_L1, tp);
  TipoDiFonte(fonte, tp);
  for (const SottocampoTesto& parte : kTesti) Parte(fonte, parte);
  Nome(fonte, kStato);
  Nome(fonte, kMinistero);
  Ente(fonte);
  Territorio(fonte);
  Nome(fonte, kCitta);
  Nome(fonte, kSezione);
  Sottocampo("^u"_L1, urnCorrente_.isEmpty() ? QStringLiteral(" ") : urnCorrente_);
  prima_ = false;
}

}  // namespace

void ScriviFontiEtichettate(ContestoEsportazione& contesto, const std::vector<Riga>& fonti) {
  if (fonti.empty()) return;
  CampoEtichettato campo(contesto);
  for (const Riga& fonte : fonti) campo.AggiungiFonte(fonte);
  contesto.record.AggiungiTesto(tag::kFontiEtichettate, campo.Testo());
}

}  // namespace torvi
