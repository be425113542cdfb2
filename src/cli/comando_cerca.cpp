#include <algorithm>
#include <array>

#include "cli/comando.h"
#include "document/ricerca.h"
#include "shell/apertura.h"

namespace torvi {

namespace {

constexpr std::array kOpzioni = {Opzione{"campo", "CAMPO"}, Opzione{"parte", "MODO"}};

struct Parte {
  const char* nome;
  ModoCampo modo;
};
constexpr std::array kParti = {Parte{"tutte", ModoCampo::Tutte}, Parte{"una", ModoCampo::AlmenoUna},
                               Parte{"sequenza", ModoCampo::Sequenza}};

const CampoRicerca& CampoScelto(const QCommandLineParser& opzioni) {
  const QString nome = opzioni.value(QStringLiteral("campo"));
  if (nome.isEmpty()) throw ErroreUso{QStringLiteral("manca --campo CAMPO")};
  const auto campo = std::ranges::find_if(CampiRicerca(), [&](const CampoRicerca& uno) {
    return nome.compare(QStringView(uno.voce), Qt::CaseInsensitive) == 0;
  });
  if (campo == CampiRicerca().end()) {
    throw ErroreUso{QStringLiteral("non si conosce il campo \"%1\"").arg(nome)};
  }
  return *campo;
}

ModoCampo Modo(const QCommandLineParser& opzioni) {
  const QString opzione = QStringLiteral("parte");
  if (!opzioni.isSet(opzione)) return ModoCampo::Intero;
  const auto* parte = std::ranges::find_if(
      kParti, [&](const Parte& una) { return opzioni.value(opzione) == QLatin1String(una.nome); });
  if (parte == kParti.end()) {
    throw ErroreUso{QStringLiteral("--parte deve essere tutte, una o sequenza")};
  }
  return parte->modo;
}

Esito Cerca(Contesto& contesto, const QCommandLineParser& opzioni) {
  const CampoRicerca& campo = CampoScelto(opzioni);
  const ModoCampo modo = Modo(opzioni);
  const QStringList argomenti = opzioni.positionalArguments();
  const QString parole = argomenti.mid(1).join(u' ');
  if (parole.isEmpty()) throw ErroreUso{QStringLiteral("manca la parola da cercare")};
  StatoGlobale& stato = contesto.stato;
  stato.DbArchivio = ApriConsegna(argomenti.constFirst(), contesto.dialoghi);
  RisultatoRicerca risultato;
  EseguiRicerca(stato, contesto.dialoghi, &campo, modo, parole, risultato);
  for (const qint16 numero : stato.ListaRicerca) contesto.uscita << numero << '\n';
  return Esito::Fatto;
}

}  // namespace

const Comando kCerca = {
    "cerca",
    "ARCHIVIO --campo CAMPO [--parte tutte|una|sequenza] PAROLA...",
    "Scrive i numeri interni dei documenti trovati, uno per riga. Senza --parte il campo deve\n"
    "essere uguale alle parole, unite da uno spazio. Un archivio in formato Jet viene prima\n"
    "convertito; l'originale resta accanto come ARCHIVIO.jet.\n\n"
    "  --campo CAMPO     il campo in cui cercare:\n"
    "                      \"CPer\", \"Data pubblicazione\", \"Fascicolo\",\n"
    "                      \"Autore - 1° elemento (cognome)\", \"Autore - 2° elemento (nome)\",\n"
    "                      \"Curatore - 1° elemento (cognome)\",\n"
    "                      \"Curatore - 2° elemento (nome)\",\n"
    "                      \"Titolo\", \"Riassunto\", \"Sommario\", \"In tema di\", \"Nota\",\n"
    "                      \"Fonte (testo)\", \"Fonte (TP)\",\n"
    "                      \"Classificazione sistematico (codice)\",\n"
    "                      \"Classificazione descrittore (codice)\"\n"
    "  --parte tutte     il campo contiene tutte le parole\n"
    "  --parte una       il campo contiene almeno una delle parole\n"
    "  --parte sequenza  il campo contiene le parole di seguito\n\n"
    "Con --parte, * sta per più caratteri qualsiasi e ? per uno.\n",
    2,
    kOpzioni,
    Cerca,
    true};

}  // namespace torvi
