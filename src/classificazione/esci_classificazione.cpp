#include "classificazione/esci_classificazione.h"

#include "archive/errore.h"
#include "classificazione/coppie.h"

namespace torvi {
namespace {

// Codes of both schemes are this long.
constexpr int kLunghezzaCodice = 5;

bool CodicePresente(Dialoghi& dialoghi, const QString& codice) {
  if (!codice.isEmpty()) return true;
  // Both buttons leave the form.
  (void)dialoghi.Domanda(QStringLiteral("Immettere il codice del sistematico!"),
                         QStringLiteral("Attenzione!"), Pulsanti::OkAnnulla);
  return false;
}

RigaClasse& RigaScelta(StatoGlobale& stato, qint16 indiceClasse) {
  const auto posto = static_cast<std::size_t>(indiceClasse);
  if (posto >= stato.RigheClasse.size()) throw ErroreEsecuzione(Errore::IndiceNonValido);
  return stato.RigheClasse[posto];
}

RigaClasse Nuova(const QString& sistematico) {
  RigaClasse riga;
  riga.Sistematico = sistematico;
  riga.Nuova = true;
  return riga;
}

void MettiCodice(RigaClasse& riga, const Database& archivio, const QString& codice) {
  riga.Descrittore = codice;
  riga.Check = CheckCodice(archivio, riga.Sistematico, codice);
}

// No text: the systematic code alone.
void MettiTermine(RigaClasse& riga, const Database& archivio, const QString& termine) {
  riga.Descrittore = termine;
  riga.Check = 0;
  if (!termine.isEmpty()) riga.Check = CheckTermine(archivio, riga.Sistematico, termine);
}

void Cambia(StatoGlobale& stato, qint16 indiceClasse, const CampiClassificazione& campi) {
  if (indiceClasse < 0) return;
  RigaClasse riga = RigaScelta(stato, indiceClasse);
  riga.Sistematico = campi.txtSistematico;
  if (!campi.txtDescrittore.isEmpty()) {
    MettiCodice(riga, stato.DbArchivio, campi.txtDescrittore);
  } else {
    MettiTermine(riga, stato.DbArchivio, campi.txtAsteriscato);
  }
  RigaScelta(stato, indiceClasse) = riga;
}

void Aggiunge(StatoGlobale& stato, const CampiClassificazione& campi) {
  std::vector<RigaClasse> nuove;
  for (const QString& linea : campi.lstDescrittore) {
    RigaClasse& riga = nuove.emplace_back(Nuova(campi.txtSistematico));
    MettiCodice(riga, stato.DbArchivio, linea.left(kLunghezzaCodice));
  }
  if (nuove.empty()) {
    RigaClasse& riga = nuove.emplace_back(Nuova(campi.txtSistematico));
    MettiTermine(riga, stato.DbArchivio, campi.txtAsteriscato);
  }
  stato.RigheClasse.insert(stato.RigheClasse.end(), nuove.begin(), nuove.end());
}

}  // namespace

void EsciClassificazione(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceClasse,
                         const CampiClassificazione& campi) {
  if (!CodicePresente(dialoghi, campi.txtSistematico)) return;
  if (stato.NuovaClasse) {
    Aggiunge(stato, campi);
  } else {
    Cambia(stato, indiceClasse, campi);
  }
}

void EsciClassificazione1999(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceClasse,
                             const QString& txtCodice) {
  if (!CodicePresente(dialoghi, txtCodice)) return;
  if (stato.NuovaClasse) {
    stato.RigheClasse.push_back(Nuova(txtCodice));
  } else if (indiceClasse >= 0) {
    RigaClasse& riga = RigaScelta(stato, indiceClasse);
    riga.Sistematico = txtCodice;
    riga.Descrittore.clear();
    riga.Check = 0;
    riga.Cancellata = false;
  }
}

QString RigaDescrittore(const QString& codice, const QString& descrizione) {
  return codice + QStringLiteral(" --> ") + descrizione;
}

}  // namespace torvi
