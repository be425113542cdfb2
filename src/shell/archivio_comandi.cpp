#include "shell/archivio_comandi.h"

#include <array>
#include <functional>

#include "archive/errore.h"
#include "shell/apertura.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

struct Trappola {
  Errore numero;
  bool prosegue;  // at the next statement, instead of ending the command
};

constexpr std::array kTrappoleApri = {
    Trappola{Errore::OperazioneAnnullata, false},
    Trappola{Errore::OggettoNonTrovato, false},
    Trappola{Errore::NessunRecordCorrente, true},
    Trappola{Errore::DatabaseNonTrovato, false},
};

// One statement of mnuFileApri under its trap. True if the command goes on.
bool Passo(Dialoghi& dialoghi, const std::function<void()>& passo) {
  try {
    passo();
    return true;
  } catch (const ErroreEsecuzione& errore) {
    for (const Trappola& trappola : kTrappoleApri) {
      if (!errore.E(trappola.numero)) continue;
      dialoghi.Messaggio(errore.Descrizione());
      return trappola.prosegue;
    }
    return false;
  }
}

RichiestaFile Richiesta(const StatoGlobale& stato, const QString& titolo) {
  return {.titolo = titolo,
          .filtro = QStringLiteral("Database file (*.mdb)|*.mdb"),
          .estensione = QStringLiteral("mdb"),
          .cartella = TrovaPercorso(stato.CartellaApplicazione + QLatin1String("/mdb"))};
}

Database ApriComeArchivio(const QString& percorso, Dialoghi& dialoghi) {
  try {
    return ApriConsegna(percorso, dialoghi);
  } catch (const ErroreEsecuzione& errore) {
    if (errore.E(Errore::DatabaseNonTrovato) || errore.E(Errore::NessunRecordCorrente)) throw;
    // Whatever keeps a file from being used as an archive: to the command the object is not there.
    throw ErroreEsecuzione::ConDescrizione(Errore::OggettoNonTrovato, errore.Descrizione());
  }
}

bool ChiediECrea(StatoGlobale& stato, Dialoghi& dialoghi) {
  RichiestaFile richiesta = Richiesta(stato, QStringLiteral("Nuovo archivio"));
  richiesta.chiedeSeCreare = true;
  stato.PathArchivio = dialoghi.ScegliFile(richiesta);
  if (stato.PathArchivio.isEmpty()) {
    dialoghi.Messaggio(QStringLiteral("Nome archivio non valido"));
    return false;
  }
  stato.InfoNuovoArchivio = dialoghi.ChiediInformazione();
  if (stato.InfoNuovoArchivio.isEmpty()) {
    dialoghi.Messaggio(QStringLiteral("Archivio nuovo non creato!"), {}, Icona::Informazione);
    return false;
  }
  const Clessidra clessidra(dialoghi);
  CreaConsegna(stato, stato.PathArchivio, stato.InfoNuovoArchivio, dialoghi);
  return true;
}

}  // namespace

bool ComandoApri(StatoGlobale& stato, Dialoghi& dialoghi) {
  const auto scegli = [&] {
    RichiestaFile richiesta = Richiesta(stato, QStringLiteral("Apri archivio"));
    richiesta.deveEsistere = true;
    stato.PathArchivio = dialoghi.ScegliFile(richiesta);
  };
  const auto apri = [&] { stato.DbArchivio = ApriComeArchivio(stato.PathArchivio, dialoghi); };
  return Passo(dialoghi, scegli) && Passo(dialoghi, apri);
}

QString TitoloArchivio(const QString& percorso) {
  return QStringLiteral("Torvi Editor (%1)").arg(percorso);
}

bool ComandoNuovo(StatoGlobale& stato, Dialoghi& dialoghi) {
  try {
    return ChiediECrea(stato, dialoghi);
  } catch (const ErroreEsecuzione& errore) {
    if (!errore.E(Errore::OperazioneAnnullata)) dialoghi.Messaggio(errore.Descrizione());
    return false;
  }
}

void ComandoChiudi(StatoGlobale& stato) { stato.DbArchivio.Close(); }

bool ComandoEsci(StatoGlobale& stato, Dialoghi& dialoghi) {
  if (dialoghi.Domanda(QStringLiteral("Confermi l'uscita ?"), {}, Pulsanti::OkAnnulla) !=
      Risposta::Ok) {
    return false;
  }
  try {
    stato.DbArchivio.Close();
  } catch (const ErroreEsecuzione& errore) {
    // Never opened, or closed already: the program ends all the same.
    if (!errore.E(Errore::OggettoChiuso) && !errore.E(Errore::OggettoNonImpostato)) throw;
  }
  return true;
}

}  // namespace torvi
