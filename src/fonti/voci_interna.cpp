#include "fonti/voci_interna.h"

#include <algorithm>

#include "archive/recordset.h"
#include "fonti/colonna.h"

namespace torvi {
namespace {

constexpr SchedaInterna kSchede[] = {{4, u"Costituzione", "0"},
                                     {1, u"Codificazioni", "1"},
                                     {2, u"Normativa", "2"},
                                     {3, u"Giurisprudenza", "3"}};

using E = ElencoInfo;

constexpr VoceInterna kVoci[] = {
    //                liv2   rip.  estr.  altro  regione  info2  list   info1  info3
    {2, u"Legge costituzionale", nullptr, true, true, false, false, false, E::Nessuno, nullptr,
     nullptr},
    {2, u"Atti statali aventi forza di legge", "1", true, true, false, false, false, E::Nessuno,
     nullptr, nullptr},
    {2, u"Leggi e statuti provinciali", "2", true, true, false, false, false, E::Province,
     u"Provincia", nullptr},
    {2, u"Leggi e statuti regionali", "3", true, true, false, true, false, E::Nessuno, nullptr,
     nullptr},
    {2, u"Regolamento della Camera", nullptr, true, false, false, false, false, E::Nessuno, nullptr,
     nullptr},
    {2, u"Regolamento del Senato", nullptr, true, false, false, false, false, E::Nessuno, nullptr,
     nullptr},
    {2, u"Atti governativi e ministeriali", "6", true, true, false, false, false, E::Ministeri,
     u"Ministero", nullptr},
    {2, u"Atti di altre amministrazioni statali e locali", "7", true, true, false, false, false,
     E::Amministrazioni, u"Amministrazione", nullptr},
    {2, u"Regolamenti ed altri atti degli enti locali", "8", true, true, false, true, false,
     E::Province, u"Provincia", nullptr},
    {2, u"Atti delle autorità amministrative indipendenti", "9", true, true, false, false, false,
     E::Autorita, u"Autorità", nullptr},
    {2, u"Contratti collettivi", "a", true, true, false, false, false, E::Nessuno, nullptr,
     u"Specifica"},
    {3, u"Corte costituzionale", nullptr, false, true, true, false, false, E::Nessuno, nullptr,
     nullptr},
    {3, u"Consiglio di giurisdizione della Camera dei Deputati", nullptr, false, true, true, false,
     false, E::Nessuno, nullptr, nullptr},
    {3, u"Corte suprema di Cassazione", nullptr, false, true, true, false, true, E::Nessuno,
     nullptr, nullptr},
    {3, u"Giurisprudenza ordinaria", "3", false, true, true, false, true, E::Citta, u"Città",
     u"Altro"},
    {3, u"Giurisprudenza tributaria", "4", false, true, true, true, true, E::Citta, u"Città",
     nullptr},
    {3, u"Corte dei Conti", nullptr, false, true, true, true, true, E::Nessuno, nullptr, nullptr},
    {3, u"Giurisprudenza amministrativa", "6", false, true, true, true, true, E::Citta, u"Città",
     nullptr},
    {3, u"Giurisprudenza speciale", "7-8", false, true, true, true, false, E::Citta, u"Città",
     nullptr},
    {3, u"Forme di risoluzione delle controversie alternative alla giurisdizione", "9-a", false,
     true, true, false, false, E::Citta, u"Città", u"Ente/parti/..."},
    {3, u"Giurisprudenza sportiva", nullptr, false, true, false, false, false, E::Nessuno, nullptr,
     u"Specifica"},
};

}  // namespace

std::span<const SchedaInterna> SchedeInterna() { return kSchede; }
std::span<const VoceInterna> VociInterna() { return kVoci; }

const VoceInterna* TrovaVoceInterna(int indice, const QString& voce) {
  const auto* trovata = std::ranges::find_if(kVoci, [&](const VoceInterna& v) {
    return v.indice == indice && voce == QStringView(v.voce);
  });
  return trovata == std::end(kVoci) ? nullptr : trovata;
}

QStringList ComboFonteInterna(const Database& archivio, int indice) {
  QStringList voci;
  for (const VoceInterna& voce : kVoci) {
    if (voce.indice == indice) voci += QString::fromUtf16(voce.voce);
  }
  if (!voci.isEmpty()) return voci;
  const auto* scheda = std::ranges::find(kSchede, indice, &SchedaInterna::indice);
  return ListaFonteInterna(archivio, QLatin1String(scheda->liv1), QStringLiteral("*"));
}

QStringList ListaFonteInterna(const Database& archivio, const QString& liv1, const QString& liv2) {
  QString istruzione =
      QStringLiteral("select * from TabFonteInterna where liv1 = '") + liv1 + QLatin1Char('\'');
  if (liv2.contains(QLatin1Char('-'))) {
    istruzione += QStringLiteral(" and (liv2 = '") + liv2.front() +
                  QStringLiteral("' or liv2 = '") + liv2.back() + QStringLiteral("')");
  } else if (liv2 != QLatin1String("*")) {
    istruzione += QStringLiteral(" and liv2 = '") + liv2 + QLatin1Char('\'');
  }
  return Colonna(archivio, istruzione, "FonteNorm");
}

QStringList VociElenco(const Database& archivio, ElencoInfo elenco) {
  switch (elenco) {
    case E::Province:
      return {QStringLiteral("BZ - Bolzano"), QStringLiteral("TN - Trento")};
    case E::Ministeri:
      return Colonna(archivio, QStringLiteral("TabMinistero"), "MinisteroNorm");
    case E::Amministrazioni:
      return Colonna(archivio, QStringLiteral("TabAmministrazione"), "AmministrazioneNorm");
    case E::Autorita:
      return Colonna(archivio, QStringLiteral("TabAutorita"), "AutoritaNorm");
    case E::Citta:
      return Colonna(archivio, QStringLiteral("select * from TabCitta order by TabCitta.citta"),
                     "citta");
    case E::Nessuno:
      break;
  }
  return {};
}

QStringList VociSezione(const Database& archivio) {
  return Colonna(archivio, QStringLiteral("select * from TabSezione order by tabSezione.Sigla"),
                 "sigla");
}

}  // namespace torvi
