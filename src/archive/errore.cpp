#include "archive/errore.h"

#include <array>

namespace torvi {
namespace {

struct Voce {
  Errore numero;
  const char16_t* testo;
};

constexpr std::array kDescrizioni = {
    Voce{Errore::ChiamataNonValida, u"Chiamata di routine o argomento non validi"},
    Voce{Errore::Overflow, u"Overflow"},
    Voce{Errore::IndiceNonValido, u"Indice non incluso nell'intervallo"},
    Voce{Errore::TipoNonCorrispondente, u"Tipo non corrispondente"},
    Voce{Errore::StackEsaurito, u"Spazio dello stack esaurito"},
    Voce{Errore::ErroreInterno, u"Errore interno"},
    Voce{Errore::FileNonTrovato, u"Impossibile trovare il file"},
    Voce{Errore::FileAperto, u"Il file è già aperto"},
    Voce{Errore::ErroreDispositivo, u"Errore di I/O della periferica"},
    Voce{Errore::DiscoPieno, u"Disco pieno"},
    Voce{Errore::AccessoNegato, u"Autorizzazione negata"},
    Voce{Errore::ErroreAccessoFile, u"Errore di accesso al percorso o al file"},
    Voce{Errore::PercorsoNonTrovato, u"Impossibile trovare il percorso"},
    Voce{Errore::OggettoNonImpostato, u"Variabile oggetto non impostata"},
    Voce{Errore::NullNonValido, u"Utilizzo non valido di Null"},
    Voce{Errore::ValoreProprietaNonValido, u"Valore di proprietà non valido"},
    Voce{Errore::OggettoNonTrovato, u"Impossibile trovare l'oggetto"},
    Voce{Errore::NomeIndiceNonValido, u"Il nome non è un indice della tabella"},
    Voce{Errore::AggiornamentoSenzaEdit, u"Update o assegnazione senza AddNew o Edit"},
    Voce{Errore::NessunRecordCorrente, u"Nessun record corrente"},
    Voce{Errore::ChiaveDuplicata,
         u"Le modifiche non sono riuscite: la chiave è già presente nella tabella"},
    Voce{Errore::DatabaseNonTrovato, u"Impossibile trovare il file"},
    Voce{Errore::SolaLettura, u"Impossibile aggiornare: il database è di sola lettura"},
    Voce{Errore::DatabaseInUso, u"Impossibile usare il file: è già in uso"},
    Voce{Errore::OperazioneNonAmmessa, u"Operazione non ammessa per questo tipo di oggetto"},
    Voce{Errore::PermessoNegato, u"Impossibile aprire il file: manca il permesso di accesso"},
    Voce{Errore::ParametriInsufficienti, u"Parametri insufficienti: colonna sconosciuta"},
    Voce{Errore::SintassiErrata, u"Errore di sintassi nell'istruzione"},
    Voce{Errore::TabellaNonTrovata, u"Impossibile trovare la tabella"},
    Voce{Errore::RecordBloccato, u"Impossibile aggiornare: il database è bloccato"},
    Voce{Errore::CampoNonTrovato, u"Elemento non trovato nell'insieme"},
    Voce{Errore::FormatoNonRiconosciuto, u"Formato del database non riconosciuto"},
    Voce{Errore::OggettoChiuso, u"L'oggetto non è più impostato"},
    Voce{Errore::ConversioneTipo, u"Errore di conversione del tipo di dati"},
    Voce{Errore::OperazioneAnnullata, u"È stato scelto Annulla"},
};

QString Componi(Errore numero, const QString& dettaglio) {
  QString testo;
  for (const Voce& voce : kDescrizioni) {
    if (voce.numero == numero) testo = QString::fromUtf16(voce.testo);
  }
  if (dettaglio.isEmpty()) return testo + QLatin1Char('.');
  return testo + QLatin1String(": ") + dettaglio;
}

}  // namespace

ErroreEsecuzione::ErroreEsecuzione(Errore numero, const QString& dettaglio)
    : numero_(numero), descrizione_(Componi(numero, dettaglio)), utf8_(descrizione_.toUtf8()) {}

ErroreEsecuzione ErroreEsecuzione::ConDescrizione(Errore numero, const QString& descrizione) {
  ErroreEsecuzione errore(numero);
  errore.descrizione_ = descrizione;
  errore.utf8_ = descrizione.toUtf8();
  return errore;
}

}  // namespace torvi
