// The fields of people and of running text, and the checks that ask whether a text which the
// document calls for is there.
#pragma once

#include "export/contesto.h"

namespace torvi {

// One text of a document: its `Tipo`, the name in the message that it is missing, its tag.
struct CampoTesto {
  QString tipo;
  QString nome;
  QString tag;
};
namespace testo {
inline const CampoTesto kTitolo = {QStringLiteral("0"), QStringLiteral("titolo"), tag::kTitolo};
inline const CampoTesto kRiassunto = {QStringLiteral("1"), QStringLiteral("riassunto"),
                                      tag::kRiassunto};
inline const CampoTesto kSommario = {QStringLiteral("2"), QStringLiteral("sommario"),
                                     tag::kSommario};
inline const CampoTesto kTraduzione = {QStringLiteral("3"), QStringLiteral("traduzione"),
                                       tag::kTraduzione};
inline const CampoTesto kNotaAmb = {QStringLiteral("6"), QStringLiteral("nota amb"), tag::kNotaAmb};
inline const CampoTesto kInTemaDi = {QStringLiteral("7"), QStringLiteral("in tema di"),
                                     tag::kInTemaDi};
inline const CampoTesto kEnglishAbstract = {QStringLiteral("8"), QStringLiteral("english abstract"),
                                            tag::kEnglishAbstract};
}  // namespace testo

// The tag of the note, which follows from the document's type. Empty: the type has no note.
[[nodiscard]] QLatin1StringView TagNota(const QString& td);

// The texts of one document. Of several of one `Tipo` the first counts.
class TestiDocumento {
 public:
  TestiDocumento(LegamiInOrdine& legami, qint64 idDoc);
  // No such text: nullptr.
  [[nodiscard]] const Campo* Trova(QAnyStringView tipo) const;

 private:
  std::vector<std::pair<QString, Campo>> testi_;
};

// Authors or curators: one field for all names, under the tag of the first. A person without
// `SecondoElemento` (Null): error 94.
void ScriviResponsabili(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord);

// True if the text is there and was appended. A row without content (Null): error 94.
bool ScriviTesto(ContestoEsportazione& contesto, const TestiDocumento& testi,
                 const QString& idRecord, const CampoTesto& campo, const QString& td,
                 const QString& tAbs);

// Whether a document has a link to a text of one of these kinds, be the text itself there or not.
[[nodiscard]] bool EsisteTesto(const ContestoEsportazione& contesto, const TestiDocumento& testi,
                               qint64 idDoc, std::initializer_list<QStringView> tipi);

}  // namespace torvi
