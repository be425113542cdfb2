#include "archive/esempio/difetti.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "archive/esempio/testi.h"

namespace torvi::esempio {

namespace {

constexpr qint64 kTar = 117;

void SenzaCodici(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.pagine.clear();
  documento.td.clear();
  documento.tabs.clear();
  documento.bib.clear();
}

void RiferimentoImpossibile(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.riferimento.data = QStringLiteral("15/03/2010");
  documento.riferimento.fascicolo = QStringLiteral("1/2");
  documento.pagine = QStringLiteral("12. 15");
}

void MeseImpossibile(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.riferimento.data = QStringLiteral("10/13/2001");
  documento.riferimento.fascicolo = QStringLiteral("3");
  documento.persone.clear();
}

void GiornoImpossibile(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.riferimento.data = QStringLiteral("32/05/2001");
  documento.riferimento.fascicolo = QStringLiteral("3");
  documento.pagine = QStringLiteral("120-101");
  documento.testi[kTitolo].clear();
}

void SenzaFascicolo(Documento& documento, const Mezzi& mezzi) {
  const auto rivista = std::find_if(mezzi.tavole.riviste.begin(), mezzi.tavole.riviste.end(),
                                    [](const Rivista& una) { return una.periodicita != 9; });
  if (rivista != mezzi.tavole.riviste.end()) documento.riferimento.rivista = rivista->id;
  documento.riferimento.fascicolo.clear();
  documento.tabs = QStringLiteral("500");
  documento.testi[kSommario].clear();
  documento.testi[kInTemaDi].clear();
}

void SenzaTraduzione(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.lingua = QStringLiteral("01");
  documento.altraLingua = QStringLiteral("02");
  documento.testi[kTraduzione].clear();
  documento.testi[kAbstractInglese] = QStringLiteral("The article is written in English.");
}

void TraduzioneImmessa(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.lingua = QStringLiteral("03");
  documento.testi[kTraduzione] = QStringLiteral("[Titolo tradotto dal compilatore]");
}

void NotaDiTroppo(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.td = QStringLiteral("01");
  documento.testi[kNota] = QStringLiteral("Nota a Trib. Milano 3 aprile 2000");
  documento.tabs = QStringLiteral("700");
  documento.testi[kInTemaDi].clear();
}

void SenzaNota(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.td = QStringLiteral("02");
  documento.testi[kNota].clear();
  documento.tabs = QStringLiteral("600");
  documento.testi[kSommario].clear();
}

void SenzaRiassunto(Documento& documento, const Mezzi& /*mezzi*/) {
  documento.tabs = QStringLiteral("900");
  documento.testi[kRiassunto].clear();
  documento.fonti.clear();
  documento.classi.clear();
  documento.classi1999.clear();
}

void CoppieDaSegnalare(Documento& documento, const Mezzi& mezzi) {
  documento.riferimento.data.replace(6, 4, QStringLiteral("2001"));
  documento.classi1999.clear();
  documento.classi = mezzi.classificazione.DaSegnalare(mezzi.sorte);
}

FonteCitata TarSenzaRegione() {
  FonteCitata fonte;
  fonte.tp = QStringLiteral("GIA");
  fonte.fonte = kTar;
  fonte.anno = QStringLiteral("2000");
  fonte.testo = QStringLiteral("Tribunale amministrativo regionale 2000");
  return fonte;
}

// No act of the catalogue has this number.
FonteCitata LeggeInesistente(const Mezzi& mezzi) {
  FonteCitata fonte = mezzi.citazioni.Componi(Genere::Costituzionale, mezzi.sorte);
  fonte.numero = QStringLiteral("9999");
  fonte.testo = fonte.testo.left(fonte.testo.lastIndexOf(u' ') + 1) + fonte.numero;
  return fonte;
}

// The number of a judgment is looked at from the second source on.
void FontiErrate(Documento& documento, const Mezzi& mezzi) {
  FonteCitata alta = mezzi.citazioni.Componi(Genere::CorteCostituzionale, mezzi.sorte);
  FonteCitata senzaNumero = mezzi.citazioni.Componi(Genere::Cassazione, mezzi.sorte);
  alta.numero = QStringLiteral("1234");
  alta.testo = alta.testo.left(alta.testo.lastIndexOf(u' ') + 1) + alta.numero;
  senzaNumero.numero.clear();
  senzaNumero.testo.truncate(senzaNumero.testo.lastIndexOf(u','));
  documento.fonti = {TarSenzaRegione(), alta, senzaNumero, LeggeInesistente(mezzi)};
}

using Difetto = void (*)(Documento& documento, const Mezzi& mezzi);
constexpr std::array<Difetto, 12> kDifetti = {
    SenzaCodici,    RiferimentoImpossibile, MeseImpossibile,   GiornoImpossibile,
    SenzaFascicolo, SenzaTraduzione,        TraduzioneImmessa, NotaDiTroppo,
    SenzaNota,      SenzaRiassunto,         CoppieDaSegnalare, FontiErrate};

// Every third document of the first ones, so that a short delivery shows all faults; every tenth
// after them.
constexpr int kPasso = 3;
constexpr int kPassoDopo = 10;
constexpr auto kInizio = static_cast<int>(kDifetti.size()) * kPasso;

}  // namespace

void Guasta(Documento& documento, int posto, const Mezzi& mezzi) {
  const int passo = posto <= kInizio ? kPasso : kPassoDopo;
  if (posto == 0 || posto % passo != 0) return;
  kDifetti[static_cast<std::size_t>(posto / passo - 1) % kDifetti.size()](documento, mezzi);
}

}  // namespace torvi::esempio
