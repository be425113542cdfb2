#include "archive/schema_colonne.h"

namespace torvi {

using namespace schema;

const std::vector<Tabella>& SchemaCatalogo() {
  static const std::vector<Tabella> schema = {
      {u"tabCatalogo"_qs,
       {Contatore(u"id"_qs), Memo(u"titolo"_qs), Intero(u"anno"_qs), Testo(u"numero"_qs),
        Testo(u"abbreviazione"_qs), Testo(u"promulgazione"_qs), Testo(u"estremi"_qs),
        Testo(u"pd"_qs)},
       {Primaria(u"id"_qs), {u"PD"_qs, {u"pd"_qs}, true}, Semplice(u"anno"_qs)}},
      {u"tabCatalogoRidotta"_qs,
       {Memo(u"titolo"_qs), Intero(u"anno"_qs), Testo(u"numero"_qs), Testo(u"abbreviazione"_qs),
        Testo(u"promulgazione"_qs), Testo(u"estremi"_qs), Testo(u"pd"_qs)},
       {{u"PD"_qs, {u"pd"_qs}, true}}},
      {u"PD"_qs, {Testo(u"pd"_qs)}, {Primaria(u"pd"_qs)}},
  };
  return schema;
}

}  // namespace torvi
