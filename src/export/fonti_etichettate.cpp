#include "export/fonti_etichettate.h"

#include <optional>

#include "export/celex.h"
#include "export/fonti_documento.h"
#include "export/urn.h"

namespace torvi {
namespace {

// The tables that name the kind of a source.
struct Famiglia {
  QLatin1StringView tabella;
  const char* colonna;
};
constexpr Famiglia kInterna = {QLatin1StringView("TabFonteInterna"), "FonteNorm"};
constexpr Famiglia kComunitaria = {QLatin1StringView("TabFonteCom"), "FonteCom"};
constexpr Famiglia kInternazionale = {QLatin1StringView("TabFonteInt"), "FonteInt"};
constexpr Famiglia kCanonica = {QLatin1StringView("TabFonteCan"), "FonteCan"};

struct VoceFamiglia {
  QLatin1StringView tp;
  const Famiglia* famiglia;
  bool soloPrima = false;  // only on the first source of a document
};

constexpr VoceFamiglia kFamiglie[] = {
    {QLatin1StringView("LIO"), &kInterna},        {QLatin1StringView("LIC"), &kInterna},
    {QLatin1StringView("LICO"), &kInterna},       {QLatin1StringView("LIOA"), &kInterna},
    {QLatin1StringView("LIR"), &kInterna},        {QLatin1StringView("LIP"), &kInterna},
    {QLatin1StringView("LIAB"), &kInterna},       {QLatin1StringView("AC"), &kInterna},
    {QLatin1StringView("GICO"), &kInterna},       {QLatin1StringView("GICA"), &kInterna},
    {QLatin1StringView("GIO"), &kInterna},        {QLatin1StringView("GICD"), &kInterna},
    {QLatin1StringView("GIT"), &kInterna},        {QLatin1StringView("GICC"), &kInterna},
    {QLatin1StringView("GIA"), &kInterna},        {QLatin1StringView("GIQ"), &kInterna},
    {QLatin1StringView("GIM"), &kInterna},        {QLatin1StringView("GIAL"), &kInterna},
    {QLatin1StringView("GIS"), &kInterna},        {QLatin1StringView("GIB"), &kInterna, true},
    {QLatin1StringView("NIC"), &kComunitaria},    {QLatin1StringView("GEC"), &kComunitaria},
    {QLatin1StringView("NIT"), &kInternazionale}, {QLatin1StringView("NIA"), &kInternazionale},
    {QLatin1StringView("GEI"), &kInternazionale}, {QLatin1StringView("FCC"), &kCanonica},
    {QLatin1StringView("FCG"), &kCanonica},
};

struct SottocampoTesto {
  const char* marca;
  const char* colonna;
  std::optional<PassoUrn> passo = {};
};

constexpr SottocampoTesto kTesti[] = {
    {"^y", "anno", PassoUrn::Anno},
    {"^m", "mese", PassoUrn::Mese},
    {"^d", "giorno", PassoUrn::Giorno},
    {"^n", "numero", PassoUrn::Numero},
    {"^a", "articolo"},
    {"^j", "ripa"},
    {"^c", "comma"},
    {"^k", "ripc"},
    {"^l", "lettera"},
    {"^g", "allegato"},
};

struct SottocampoChiave {
  const char* marca;
  const char* chiave;  // column of the source
  QLatin1StringView tabella;
  const char* colonna;
};

constexpr SottocampoChiave kStato = {"^s", "IDStato", QLatin1StringView("TabStato"), "stato"};
constexpr SottocampoChiave kMinistero = {"^o", "IDMinistero", QLatin1StringView("TabMinistero"),
                                         "MinisteroNorm"};
constexpr SottocampoChiave kAmministrazione = {
    "^e", "IDAmministrazione", QLatin1StringView("TabAmministrazione"), "AmministrazioneNorm"};
constexpr SottocampoChiave kAutorita = {"^e", "IDAutorita", QLatin1StringView("TabAutorita"),
                                        "AutoritaNorm"};
constexpr SottocampoChiave kRegione = {"^r", "IDRegione", QLatin1StringView("TabRegione"),
                                       "regione"};
constexpr SottocampoChiave kProvincia = {"^p", "IDProvincia", QLatin1StringView("TabProvincia"),
                                         "provincia"};
constexpr SottocampoChiave kCitta = {"^i", "IDCitta", QLatin1StringView("TabCitta"), "citta"};
constexpr SottocampoChiave kSezione = {"^z", "IDSezione", QLatin1StringView("TabSezione"), "sigla"};

const Famiglia* FamigliaDi(const QString& tp, bool prima) {
  for (const VoceFamiglia& voce : kFamiglie) {
    if (tp == voce.tp) return voce.soloPrima && !prima ? nullptr : voce.famiglia;
  }
  return nullptr;
}

class CampoEtichettato {
 public:
  explicit CampoEtichettato(const StatoGlobale& stato) : stato_(stato) {}

  void AggiungiFonte(const Recordset& fonte);
  [[nodiscard]] const QString& Testo() const { return testo_; }

 private:
  void Sottocampo(const char* marca, const QString& valore) {
    testo_ += QLatin1StringView(marca) + valore;
  }
  void SottocampoVuoto(const char* marca) { Sottocampo(marca, QStringLiteral(" ")); }
  void TipoDiFonte(const Recordset& fonte, const QString& tp);
  void Parte(const Recordset& fonte, const SottocampoTesto& parte);
  std::optional<Recordset> Nome(const Recordset& fonte, const SottocampoChiave& nome,
                                bool vuotoSeManca = true);
  void Ente(const Recordset& fonte);
  void Territorio(const Recordset& fonte);

  const StatoGlobale& stato_;
  QString testo_;
  QString urnCorrente_;
  bool prima_ = true;
};

void CampoEtichettato::TipoDiFonte(const Recordset& fonte, const QString& tp) {
  const Famiglia* famiglia = FamigliaDi(tp, prima_);
  if (famiglia == nullptr) {
    SottocampoVuoto("^f");
    SottocampoVuoto("^x");
    return;
  }
  const Recordset tipo =
      CercaPerChiave(stato_.DbArchivio, famiglia->tabella, fonte.Fields("fonte"));
  Sottocampo("^f", tipo.Fields(famiglia->colonna).Testo());
  if (famiglia == &kComunitaria) {
    Sottocampo("^x", CelexDaFonte(stato_, fonte.Fields("IDFonte").Intero16()));
    return;
  }
  SottocampoVuoto("^x");
  if (famiglia == &kInterna) urnCorrente_ = tipo.Fields("URN").TestoOVuoto();
}

void CampoEtichettato::Parte(const Recordset& fonte, const SottocampoTesto& parte) {
  const Campo campo = fonte.Fields(parte.colonna);
  if (!campo.Presente()) {
    SottocampoVuoto(parte.marca);
    return;
  }
  const QString valore = campo.Testo();
  Sottocampo(parte.marca, valore);
  if (parte.passo) EstendiUrn(urnCorrente_, *parte.passo, valore, prima_);
}

// The row that the key names, if the source has one.
std::optional<Recordset> CampoEtichettato::Nome(const Recordset& fonte,
                                                const SottocampoChiave& nome, bool vuotoSeManca) {
  const Campo chiave = fonte.Fields(nome.chiave);
  if (chiave.Nullo() || chiave.Intero() == 0) {
    if (vuotoSeManca) SottocampoVuoto(nome.marca);
    return std::nullopt;
  }
  Recordset riga = CercaPerChiave(stato_.DbArchivio, nome.tabella, chiave);
  Sottocampo(nome.marca, riga.Fields(nome.colonna).Testo());
  return riga;
}

// The issuing body: an administration, an authority, or both under the same mark.
void CampoEtichettato::Ente(const Recordset& fonte) {
  const bool amministrazione = Nome(fonte, kAmministrazione, false).has_value();
  Nome(fonte, kAutorita, !amministrazione);
}

void CampoEtichettato::Territorio(const Recordset& fonte) {
  const auto regione = Nome(fonte, kRegione);
  if (regione && !urnCorrente_.isEmpty()) {
    CompletaUrn(urnCorrente_, regione->Fields("codRegioneURN").Testo());
  }
  const auto provincia = Nome(fonte, kProvincia);
  if (provincia && !urnCorrente_.isEmpty()) {
    CompletaUrn(urnCorrente_, provincia->Fields(kProvincia.colonna).Testo().toLower());
  }
}

void CampoEtichettato::AggiungiFonte(const Recordset& fonte) {
  urnCorrente_.clear();
  if (!prima_) testo_ += QLatin1Char('\\');
  const QString tp = fonte.Fields("tp").Testo();
  Sottocampo("^t", tp);
  TipoDiFonte(fonte, tp);
  for (const SottocampoTesto& parte : kTesti) Parte(fonte, parte);
  Nome(fonte, kStato);
  Nome(fonte, kMinistero);
  Ente(fonte);
  Territorio(fonte);
  Nome(fonte, kCitta);
  Nome(fonte, kSezione);
  Sottocampo("^u", urnCorrente_.isEmpty() ? QStringLiteral(" ") : urnCorrente_);
  prima_ = false;
}

}  // namespace

void ScriviFontiEtichettate(ContestoEsportazione& contesto, qint64 idDoc) {
  Recordset fonti = FontiDocumento(contesto.stato.DbArchivio, idDoc);
  if (fonti.Eof()) return;
  CampoEtichettato campo(contesto.stato);
  for (; !fonti.Eof(); fonti.MoveNext()) campo.AggiungiFonte(fonti);
  contesto.record.AggiungiTesto(tag::kFontiEtichettate, campo.Testo());
}

}  // namespace torvi
