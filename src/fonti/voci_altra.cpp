#include "fonti/voci_altra.h"

#include <algorithm>

#include "fonti/colonna.h"

namespace torvi {
namespace {

constexpr const char16_t* kSchede[] = {u"Diritto internazionale", u"Diritto comunitario",
                                       u"Diritto straniero", u"Diritto canonico",
                                       u"Fonti storiche"};

using L = Libero;
constexpr std::optional<bool> kResta;

constexpr VoceAltra kVoci[] = {
    //                                  estr.  rip.   free text   other  act
    {0, u"Trattati, accordi, convenzioni internazionali (*NIT*)", "NIT", false, true, L::Acceso,
     false, Atto::TestoLibero},
    {0, u"Atti di organi di organismi internazionali (*NIA*)", "NIA", true, false, L::Acceso, false,
     Atto::Elenco, "select * from TabFonteInt where Tipo = 2 order by FonteInt", "FonteInt"},
    {0, u"Giurisprudenza internazionale (*GEI*)", "GEI", true, false, L::Acceso, true, Atto::Elenco,
     "select * from TabFonteInt where Tipo = 3 order by FonteInt", "FonteInt"},
    {1, u"Fonti normative (*NIC*) - Trattati", "NIC T", false, true, L::Spento, false, Atto::Elenco,
     "select * from TabFonteCom where Tipo = 1 order by FonteCom", "FonteCom"},
    {1, u"Fonti normative (*NIC*) - Diritto derivato", "NIC D", true, true, L::Spento, false,
     Atto::Elenco, "select * from TabFonteCom where Tipo = 2 order by FonteCom", "FonteCom"},
    {1, u"Fonti normative (*NIC*) - Convenzioni", "NIC C", true, true, L::SenzaEtichetta, false,
     Atto::Elenco, "select * from TabFonteCom where Tipo = 4 order by FonteCom", "FonteCom"},
    {1, u"Fonti giurisprudenziali (*GEC*)", "GEC", true, false, L::Acceso, true, Atto::Elenco,
     "select * from TabFonteCom where Tipo = 3 order by FonteCom", "FonteCom"},
    {2, u"Fonti normative (*NS*)", "NS", true, true, L::Acceso, false, Atto::NonServe},
    {2, u"Fonti giurisprudenziali (*GS*)", "GS", true, true, L::Acceso, true, Atto::NonServe},
    {3, u"Fonti normative (*FCC*)", "FCC", true, true, L::Spento, kResta, Atto::Elenco},
    {3, u"Altre fonti normative (*FCA*)", "FCA", true, true, L::Acceso, kResta, Atto::NonServe},
    {3, u"Fonti giurisprudenziali (*FCG*)", "FCG", true, true, L::Acceso, true, Atto::Elenco,
     "select * from TabFonteCan where Tipo = 3", "FonteCan"},
    {4, u"Fonti romane (*FSR*)", "FSR", false, false, L::Acceso, kResta, Atto::Elenco},
    {4, u"Fonti greche (*FSG*)", "FSG", false, false, L::Acceso, kResta, Atto::Elenco},
    {4, u"Fonti bizantine (*FSB*)", "FSB", false, false, L::Acceso, kResta, Atto::Elenco},
    // Its list is empty, and it does not pass by its name as the three after it do.
    {4, u"Fonti cuneiformi (*FSC*)", "FSC", false, false, L::Acceso, kResta, Atto::Elenco},
    {4, u"Fonti ebraiche (*FSE*)", "FSE", false, false, L::Acceso, kResta, Atto::ElencoOVoce},
    {4, u"Fonti di diritto intermedio o comune (*FSI*)", "FSI", false, false, L::Acceso, kResta,
     Atto::ElencoOVoce},
    {4, u"Altre fonti (*FSA*)", "FSA", false, false, L::Acceso, kResta, Atto::ElencoOVoce},
};

// Groups of historical sources that are divided by what bears the text.
constexpr const char* kDivise[] = {"FSR", "FSG", "FSB", "FSA"};

QStringList Suddivisioni(const QString& gruppo) {
  QStringList voci = {"giuridiche (*%1G*)", "papirologiche (*%1P*)", "epigrafiche (*%1E*)",
                      "letterarie (*%1L*)"};
  for (QString& voce : voci) voce = voce.arg(gruppo);
  return voci;
}

}  // namespace

std::span<const char16_t* const> SchedeAltra() { return kSchede; }
std::span<const VoceAltra> VociAltra() { return kVoci; }

const VoceAltra* TrovaVoceAltra(int indice, const QString& voce) {
  const auto* trovata = std::ranges::find_if(
      kVoci, [&](const VoceAltra& v) { return v.indice == indice && voce == QStringView(v.voce); });
  return trovata == std::end(kVoci) ? nullptr : trovata;
}

QStringList ComboFonteAltra(int indice) {
  QStringList voci;
  for (const VoceAltra& voce : kVoci) {
    if (voce.indice == indice) voci += QString::fromUtf16(voce.voce);
  }
  return voci;
}

QStringList ListaFonteAltra(const Database& archivio, const VoceAltra& voce) {
  const QString codice = QLatin1String(voce.codice);
  if (codice == QLatin1String("FCC")) return {QStringLiteral("C. Iur. Can.")};
  const bool divisa = std::ranges::any_of(
      kDivise, [&codice](const char* gruppo) { return codice == QLatin1String(gruppo); });
  if (divisa) return Suddivisioni(codice);
  if (voce.istruzione == nullptr) return {};
  return Colonna(archivio, QLatin1String(voce.istruzione), voce.colonna);
}

QStringList ElencoStati(const Database& archivio) {
  return Colonna(archivio, QStringLiteral("select Stato from tabStato order by Stato"), "Stato");
}

std::optional<QString> AttoScelto(const VoceAltra& voce, const std::optional<QString>& lstFonte,
                                  const QString& txtLibero) {
  switch (voce.atto) {
    case Atto::NonServe:
      return QString();
    case Atto::TestoLibero:
      return txtLibero.isEmpty() ? std::nullopt : std::optional<QString>(QString());
    case Atto::Elenco:
      return lstFonte;
    case Atto::ElencoOVoce:
      break;
  }
  return lstFonte ? lstFonte : std::optional<QString>(QString::fromUtf16(voce.voce));
}

QString TestoFormalismo() {
  return QStringLiteral(
      "--> Non occorre mettere gli zeri a sinistra a nessun tipo di informazione numerica.\n"
      "--> L'anno deve essere nella forma 'aaaa'\n"
      "--> Le parentesi fisse nei testi liberi vengono messe automaticamente");
}

QString TitoloFormalismo() { return QStringLiteral("Formalismo"); }

}  // namespace torvi
