#include "document/carica.h"

#include <functional>

#include "archive/errore.h"
#include "document/carica_parti.h"
#include "document/impronta.h"
#include "fonti/carica_fonti.h"
#include "shell/guardia.h"
#include "shell/valori.h"

namespace torvi {
namespace {

// A combo of codes: the table in its own order, each row as code, '|', description.
struct TabellaCodici {
  const char* tabella;
  const char* codice;
  const char* descrizione;
  QStringList CodiciDocumento::*voci;
  QString CampiDocumento::*combo;
  QString (*segnaposto)();
};
const TabellaCodici kTabelle[] = {
    {"TabLingua", "idLingua", "Lingua", &CodiciDocumento::ComboLIN, &CampiDocumento::ComboLIN,
     SegnapostoLIN},
    {"TabTipoDoc", "IDTD", "TipoDoc", &CodiciDocumento::ComboTD, &CampiDocumento::ComboTD,
     SegnapostoTD},
    {"TabTAbs", "IDTAbs", "TipoAbstract", &CodiciDocumento::ComboTAbs, &CampiDocumento::ComboTAbs,
     SegnapostoTAbs},
    {"TabBib", "IDBib", "TipoBibliografia", &CodiciDocumento::ComboBib, &CampiDocumento::ComboBib,
     SegnapostoBib},
};

// The fields that a new document finds empty. The publisher's own data stay for the load to fill.
constexpr QString CampiDocumento::*kDaSvuotare[] = {
    &CampiDocumento::txtCPer,   &CampiDocumento::txtRivista,   &CampiDocumento::txtParte,
    &CampiDocumento::txtSerie,  &CampiDocumento::txtVolume,    &CampiDocumento::txtAnnata,
    &CampiDocumento::txtPagine, &CampiDocumento::txtTitolo,    &CampiDocumento::txtNota,
    &CampiDocumento::txtSuppl,  &CampiDocumento::txtAA,        &CampiDocumento::txtGG,
    &CampiDocumento::txtMM,     &CampiDocumento::txtFascicolo, &CampiDocumento::txtSez,
};

void AzzeraIndici(Documento& documento) {
  documento.IndiceResponsabilita = -1;
  documento.IndiceClasse = -1;
  documento.IndiceFonte = -1;
}

// One statement of the form's load. Where the archive has no document the number is set and the
// load goes on with the next.
void Passo(Documento& documento, const std::function<void()>& istruzione) {
  try {
    istruzione();
  } catch (const ErroreEsecuzione& errore) {
    if (!errore.E(Errore::NessunRecordCorrente) ||
        documento.stato.DbArchivio.Conta(QStringLiteral("from TabDocumento")) > 0) {
      throw;
    }
    documento.campi.txtID = QStringLiteral(" 1");
  }
}

void SvuotaCampi(Documento& documento) {
  CampiDocumento& campi = documento.campi;
  for (QString CampiDocumento::*campo : kDaSvuotare) (campi.*campo).clear();
  SvuotaTesti(documento);
  campi.lstResponsabilita.clear();
  campi.lstClassificazione.clear();
  campi.lstFonte.clear();
  AzzeraIndici(documento);
  documento.stato.RigheResponsabilita.clear();
  documento.stato.RigheClasse.clear();
  documento.stato.RigheFonte.clear();
}

void DimenticaArchiviato(Documento& documento) {
  documento.guasto.clear();
  documento.testiMancanti.clear();
  documento.impronta.clear();
  documento.numeroSuo = 0;
}

// Half a document under its number could be taken for the whole.
void NonCaricato(Documento& documento, const ErroreEsecuzione& errore) {
  DimenticaArchiviato(documento);
  SvuotaCampi(documento);
  documento.campi.icone.fill(false);
  for (const TabellaCodici& codici : kTabelle) {
    documento.campi.*codici.combo = codici.segnaposto();
  }
  documento.numeroMostrato = NumeroDocumento(documento);
  documento.guasto = TestoErrore(errore);
}

void CaricaSenzaRete(Documento& documento) {
  const StatoGlobale& stato = documento.stato;
  documento.ApriDocumenti();
  Passo(documento, [&] { CaricaCodici(documento); });
  AzzeraIndici(documento);
  documento.comandiVisibili = !stato.DocumentoNuovo;
  if (stato.DocumentoNuovo) {
    Passo(documento, [&] { documento.Documenti().MoveLast(); });
    Passo(documento, [&] { SvuotaDocumento(documento); });
  } else {
    documento.campi.txtID = stato.IDDocumentoScelto;
    Passo(documento, [&] { CaricaDocumento(documento); });
  }
  documento.numeroMostrato = NumeroDocumento(documento);
}

}  // namespace

QString SegnapostoLIN() { return QStringLiteral("Lingua"); }
QString SegnapostoTD() { return QStringLiteral("Tipo documento"); }
QString SegnapostoTAbs() { return QStringLiteral("Tipo abstract"); }
QString SegnapostoBib() { return QStringLiteral("Tipo bibliografia"); }

void CaricaForma(Documento& documento) {
  try {
    CaricaSenzaRete(documento);
  } catch (const ErroreEsecuzione& errore) {
    NonCaricato(documento, errore);
  }
}

void CaricaCodici(Documento& documento) {
  const Database& archivio = documento.stato.DbArchivio;
  for (const TabellaCodici& codici : kTabelle) {
    QStringList& voci = documento.codici.*codici.voci;
    voci.clear();
    Recordset righe = archivio.OpenRecordset(QLatin1String(codici.tabella));
    for (; !righe.Eof(); righe.MoveNext()) {
      voci += righe.Fields(codici.codice).TestoOVuoto() + QLatin1Char('|') +
              righe.Fields(codici.descrizione).TestoOVuoto();
    }
    documento.campi.*codici.combo = codici.segnaposto();
  }
  documento.campi.txtAnnoPr =
      archivio.OpenRecordset(QStringLiteral("TabInfo")).Fields("AnnoProduzione").TestoOVuoto();
}

void SvuotaDocumento(Documento& documento) {
  CampiDocumento& campi = documento.campi;
  if (campi.txtID.isEmpty()) {
    const qint64 ultimo = documento.Documenti().Fields("IDDocumento").Intero();
    campi.txtID = QString::number(ultimo + 1);
  }
  if (!documento.codici.ComboLIN.isEmpty()) campi.ComboLIN = documento.codici.ComboLIN.first();
  SvuotaCampi(documento);
  DimenticaArchiviato(documento);
  documento.numeroMostrato = NumeroDocumento(documento);
}

void CaricaDocumento(Documento& documento) {
  DimenticaArchiviato(documento);
  CaricaResponsabilita(documento);
  CaricaRiferimenti(documento);
  CaricaClassi(documento);
  CaricaTesti(documento);
  documento.campi.lstFonte = CaricaFonti(documento.stato, NumeroDocumento(documento));
  RiconosciArchiviato(documento);
}

void CaricaIntero(Documento& documento) {
  try {
    CaricaDocumento(documento);
  } catch (const ErroreEsecuzione& errore) {
    NonCaricato(documento, errore);
    throw ErroreEsecuzione::ConDescrizione(
        static_cast<Errore>(errore.Numero()),
        QStringLiteral("il documento %1 non è stato caricato. %2")
            .arg(documento.campi.txtID.trimmed(), errore.Descrizione()));
  }
}

void AvvertiNonCaricato(const Documento& documento) {
  documento.dialoghi.Messaggio(
      QStringLiteral("Il documento %1 non è stato caricato: non si può modificare né salvare. %2")
          .arg(documento.campi.txtID.trimmed(), documento.guasto));
}

qint64 NumeroDocumento(const Documento& documento) {
  return static_cast<qint64>(Val(documento.campi.txtID));
}

}  // namespace torvi
