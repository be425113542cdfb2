#include "export/testi.h"

#include <algorithm>

#include <array>

#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// A pair of blanks or a backslash. Looks at every place, without a branch: faster than stopping at
// the first on texts that are long and seldom have any.
bool DaNormalizzare(const QString& testo) {
  const char16_t* c = QStringView(testo).utf16();
  int trovati = static_cast<int>(testo.endsWith(QLatin1Char('\\')));
  for (qsizetype i = 0; i + 1 < testo.size(); ++i) {
    trovati |= static_cast<int>(c[i] == u'\\') |
               (static_cast<int>(c[i] == u' ') & static_cast<int>(c[i + 1] == u' '));
  }
  return trovati != 0;
}

// Blanks around every backslash, and every pair of blanks closed up in one pass.
QString Normalizza(QString testo) {
  if (!DaNormalizzare(testo)) return testo;
  testo.replace("\\"_L1, " \\ "_L1);
  testo.replace("  "_L1, " "_L1);
  return testo;
}

struct Mancanza {
  char16_t tipo;
  bool (*daSegnalare)(const QString& td, const QString& tAbs);
  const char* messaggio;  // null: "Manca " and the name of the text
};

constexpr std::array kMancanze = {
    Mancanza{u'0', [](const QString&, const QString&) { return true; }, nullptr},
    Mancanza{u'1',
             [](const QString&, const QString& tAbs) {
               return tAbs != "700"_L1 && tAbs != "600"_L1 && tAbs != "400"_L1;
             },
             "Manca riassunto e TABS <> 600, 700, 400: "},
    Mancanza{u'2', [](const QString&, const QString& tAbs) { return tAbs == "600"_L1; },
             "Manca sommario e TABS = 600: "},
    Mancanza{u'4', [](const QString& td, const QString&) { return td != "01"_L1; },
             "Manca nota e TD <> 01: "},
    Mancanza{u'7', [](const QString&, const QString& tAbs) { return tAbs == "700"_L1; },
             "Manca 'In tema di' e TABS = 700: "},
};

QString MessaggioMancanza(const CampoTesto& campo, const QString& td, const QString& tAbs) {
  for (const Mancanza& mancanza : kMancanze) {
    if (campo.tipo != QStringView(&mancanza.tipo, 1) || !mancanza.daSegnalare(td, tAbs)) continue;
    if (mancanza.messaggio != nullptr) return QString::fromUtf8(mancanza.messaggio);
    return "Manca "_L1 + campo.nome + ": "_L1;
  }
  return {};
}

}  // namespace

void ScriviResponsabili(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  LegamiInOrdine& legami = contesto.legami.responsabilita;
  QString tag;
  QStringList nomi;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    const Recordset& legame = legami.Riga();
    const QString* nome = contesto.condivise.nomi.Cerca(legame.Fields("IDResponsabilita"));
    if (nome == nullptr) continue;
    if (nomi.isEmpty()) tag = legame.Fields("flagAutore").Logico() ? tag::kAutori : tag::kCuratori;
    nomi += *nome;
  }
  if (nomi.isEmpty()) {
    contesto.fileErrori.Print("Manca autore/curatore: "_L1 + idRecord);
    return;
  }
  contesto.record.AggiungiTesto(tag, nomi.join("\\ "_L1));
}

QLatin1StringView TagNota(const QString& td) {
  static constexpr std::pair<QLatin1StringView, QLatin1StringView> kTag[] = {
      {"02"_L1, "20"_L1}, {"03"_L1, "15"_L1}, {"04"_L1, "16"_L1},
      {"07"_L1, "17"_L1}, {"08"_L1, "18"_L1}, {"09"_L1, "19"_L1}};
  for (const auto& [tipo, tag] : kTag) {
    if (td == tipo) return tag;
  }
  return {};
}

TestiDocumento::TestiDocumento(LegamiInOrdine& legami, qint64 idDoc) {
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    const Recordset& riga = legami.Riga();
    testi_.emplace_back(riga.Fields("Tipo").TestoOVuoto(), riga.Fields("testo"));
  }
}

const Campo* TestiDocumento::Trova(QAnyStringView tipo) const {
  for (const auto& [suo, testo] : testi_) {
    if (QAnyStringView::equal(suo, tipo)) return &testo;
  }
  return nullptr;
}

bool ScriviTesto(ContestoEsportazione& contesto, const TestiDocumento& testi,
                 const QString& idRecord, const CampoTesto& campo, const QString& td,
                 const QString& tAbs) {
  const Campo* trovato = testi.Trova(campo.tipo);
  if (trovato == nullptr) {
    const QString messaggio = MessaggioMancanza(campo, td, tAbs);
    if (!messaggio.isEmpty()) contesto.fileErrori.Print(messaggio + idRecord);
    return false;
  }
  const QString testo = Normalizza(trovato->Testo());
  contesto.record.AggiungiTesto(campo.tag, testo);
  if (campo.tag == tag::kTraduzione && testo.contains(QLatin1Char('['))) {
    contesto.fileErrori.Print("Traduzione del titolo immessa dal compilatore: "_L1 + idRecord);
  }
  return true;
}

// Only what the document's texts cannot tell is asked of the archive.
bool EsisteTesto(const ContestoEsportazione& contesto, const TestiDocumento& testi, qint64 idDoc,
                 std::initializer_list<QStringView> tipi) {
  const auto trovato = [&testi](QStringView tipo) { return testi.Trova(tipo) != nullptr; };
  if (std::ranges::any_of(tipi, trovato)) return true;
  const std::vector<Riga> legami = contesto.stato.DbArchivio.LeggiRighe(
      QStringLiteral("select Tipo from legameDocTesto where legameDocTesto.IDDoc = ?"), {idDoc});
  return std::ranges::any_of(legami, [&tipi](const Riga& legame) {
    return std::ranges::find(tipi, legame.Fields("Tipo").TestoOVuoto()) != tipi.end();
  });
}

}  // namespace torvi
