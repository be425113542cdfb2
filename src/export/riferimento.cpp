#include "export/riferimento.h"

#include "export/riferimento_parti.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString kSenzaLingua = QStringLiteral("00");

// The two texts that grow side by side while a reference is read.
class Riferimento {
 public:
  Riferimento(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord)
      : contesto_(contesto), idDoc_(idDoc), idRecord_(idRecord) {}

  void Primo(const RigaRiferimento& riga);
  void Secondo(const RigaRiferimento& riga, const DatiDocumento& documento);

 private:
  void Data(const RigaRiferimento& riga, const CifreData& data);
  void Fascicolo(const RigaRiferimento& riga, const CifreData& data);
  void Pagine(const QString& pagine);
  void TipoAbstract(const QString& tAbs);
  void Bibliografia(const QString& bib);

  void Codifica(const char* sottocampo, const QString& valore);
  void CodificaSePresente(const char* sottocampo, const Campo& valore, int larghezza);
  void CodificaLingua(const char* sottocampo, const QString& lingua);
  void Aggiungi(const char* sottocampo, const Parte& parte);
  void Segnala(const QString& messaggio) { contesto_.fileErrori.Print(messaggio + idRecord_); }
  void Chiudi(const QString& tag);

  ContestoEsportazione& contesto_;
  qint64 idDoc_;
  const QString& idRecord_;
  QString RefCodificato_;
  QString RefEsteso_;
};

void Riferimento::Codifica(const char* sottocampo, const QString& valore) {
  if (!RefCodificato_.isEmpty()) RefCodificato_ += QLatin1Char(' ');
  RefCodificato_ += QLatin1String(sottocampo) + QLatin1Char('=') + valore;
}

void Riferimento::CodificaSePresente(const char* sottocampo, const Campo& valore, int larghezza) {
  if (valore.Presente()) Codifica(sottocampo, RiempiZeri(valore.Testo(), larghezza));
}

void Riferimento::CodificaLingua(const char* sottocampo, const QString& lingua) {
  if (lingua != kSenzaLingua) Codifica(sottocampo, lingua);
}

void Riferimento::Aggiungi(const char* sottocampo, const Parte& parte) {
  for (const QString& messaggio : parte.messaggi) Segnala(messaggio);
  Codifica(sottocampo, parte.codice);
  RefEsteso_ += parte.citazione;
}

void Riferimento::Chiudi(const QString& tag) {
  contesto_.record.AggiungiRiga(tag, Trim(RefCodificato_));
  RefCodificato_.clear();
}

void Riferimento::Primo(const RigaRiferimento& riga) {
  Codifica("PER", riga.CPER.Testo());
  Codifica("FR", riga.IDPeriodicita.Testo());
  CodificaSePresente("SR", riga.Serie, 2);
  CodificaSePresente("ANN", riga.Annata, 6);
  RefEsteso_ = riga.TitoloRivista.Testo();
  const CifreData data(riga.Data.TestoOVuoto());
  Data(riga, data);
  Fascicolo(riga, data);
  CodificaSePresente("SUPP", riga.Supplemento, 3);
  Chiudi(tag::kRiferimento);
  RefEsteso_ += QLatin1Char(',');
}

void Riferimento::Data(const RigaRiferimento& riga, const CifreData& data) {
  if (!riga.Data.Presente()) return;
  contesto_.stato.Dopo2000 = data.Anno() >= "2000"_L1;
  Aggiungi("DATA", ParteData(data, idRecord_.left(4)));
}

void Riferimento::Fascicolo(const RigaRiferimento& riga, const CifreData& data) {
  constexpr int kSenzaFascicoli = 9;
  if (riga.Fascicolo.Presente()) {
    Aggiungi("FASC", ParteFascicolo(riga.Fascicolo.Testo(), data));
  } else if (riga.IDPeriodicita.Intero() != kSenzaFascicoli) {
    Segnala(QStringLiteral("Errore fascicolo mancante: "));
  }
}

void Riferimento::Secondo(const RigaRiferimento& riga, const DatiDocumento& documento) {
  if (riga.Parte.Presente()) {
    Codifica("PT", riga.Parte.Testo());
    RefEsteso_ += " pt"_L1 + kSegno + ". "_L1 + riga.Parte.Testo() + QLatin1Char(',');
  }
  if (riga.Sezione.Presente()) Codifica("SEZ", riga.Sezione.Testo() + QLatin1Char(','));
  Pagine(documento.pagine);
  if (documento.td.isEmpty()) {
    Segnala(QStringLiteral("Errore TD mancante: "));
  } else {
    Codifica("TD", documento.td);
  }
  TipoAbstract(documento.TAbs);
  Bibliografia(documento.Bib);
  Codifica("LIN", documento.LIN);
  CodificaLingua("LO", documento.lo);
  CodificaLingua("LR", documento.lr);
  CodificaLingua("LA", documento.la);
  CodificaSePresente("VOL", riga.Volume, 6);
  Chiudi(tag::kSecondoRiferimento);
  contesto_.record.AggiungiRiga(tag::kCitazione, Trim(RefEsteso_));
}

void Riferimento::Pagine(const QString& pagine) {
  if (pagine.isEmpty()) {
    Segnala(QStringLiteral("Errore pagina mancante: "));
  } else {
    Aggiungi("PAG", PartePagine(pagine));
  }
}

void Riferimento::TipoAbstract(const QString& tAbs) {
  if (tAbs.isEmpty()) {
    Segnala(QStringLiteral("Errore TAbs mancante: "));
    return;
  }
  Codifica("TABS", tAbs);
  if (tAbs != "500"_L1 && tAbs != "800"_L1) return;
  const Recordset testi = contesto_.stato.DbArchivio.OpenRecordset(
      QStringLiteral("select IDTesto from LegameDocTesto where IDDoc = ? and (Tipo = \"2\" or Tipo "
                     "= \"7\")"),
      {idDoc_});
  if (testi.Eof()) Segnala(QStringLiteral("Manca 'In tema di'/'Sommario' e TABS = 500/800: "));
}

void Riferimento::Bibliografia(const QString& bib) {
  if (bib.isEmpty()) {
    Segnala(QStringLiteral("Errore BIB mancante: "));
    return;
  }
  Codifica("BIB", bib);
  const Recordset& tabBib = contesto_.codici.Cerca("TabBIB", bib);
  RefEsteso_ += ", ("_L1 + tabBib.Fields("TipoBibliografia").Testo() + QLatin1Char(')');
}

}  // namespace

void ScriviRiferimento(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord,
                       const DatiDocumento& documento) {
  const RigaRiferimento& riga =
      contesto.riferimenti.Leggi(contesto.stato.DbArchivio, documento.IDRifBibl);
  Riferimento riferimento(contesto, idDoc, idRecord);
  riferimento.Primo(riga);
  riferimento.Secondo(riga, documento);
}

}  // namespace torvi
