#include <array>

#include "archive/errore.h"
#include "export/una_riga.h"
#include "report/estrazione.h"
#include "report/estrazioni.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

struct TabellaDiCodici {
  QLatin1StringView intestazione;  // its slips included
  QLatin1StringView tabella;
  QLatin1StringView colonna;  // with the value
  QLatin1StringView chiave;
  QLatin1StringView chiaveFonte;  // in the source
};

constexpr std::array kTabelle = {
    TabellaDiCodici{"tabStato"_L1, "tabStato"_L1, "Stato"_L1, "IDStato"_L1, "IDStato"_L1},
    TabellaDiCodici{"tabCitta"_L1, "tabCitta"_L1, "Citta"_L1, "IDCitta"_L1, "IDCitta"_L1},
    TabellaDiCodici{"tabSezione"_L1, "tabSezione"_L1, "Sigla"_L1, "IDSez"_L1, "IDSezione"_L1},
    TabellaDiCodici{"tabMinistero"_L1, "tabMinistero"_L1, "MinisteroNorm"_L1, "IDMinistero"_L1,
                    "IDMinistero"_L1},
    TabellaDiCodici{"tabAmministrzione"_L1, "tabAmministrazione"_L1, "AmministrazioneNorm"_L1,
                    "IDAmministrazione"_L1, "IDAmministrazione"_L1},
    TabellaDiCodici{"tabAutorita"_L1, "tabAutorita"_L1, "AutoritaNorm"_L1, "IDAutorita"_L1,
                    "IDAutorita"_L1},
};

QString Istruzione(const TabellaDiCodici& codici) {
  return u"select %1 as Nuovo, IDDoc from %2, tabFonte, legameDocFonte where "
         "legameDocFonte.IDFnt = tabFonte.IDFonte and tabFonte.%3 = %2.%4 and nuovo = 1"_s.arg(
             codici.colonna, codici.tabella, codici.chiaveFonte, codici.chiave);
}

}  // namespace

void EstraiNuovi(StatoGlobale& stato, Dialoghi& dialoghi) {
  Estrai(stato, dialoghi, {"nuovi."_L1, "nuovi"_L1}, [&](FileTesto& file) {
    int fatte = 0;
    for (const TabellaDiCodici& codici : kTabelle) {
      dialoghi.Avanzamento("Estrazione nuovi, "_L1 + codici.tabella, fatte++,
                           static_cast<int>(kTabelle.size()));
      file.Print("Nuovi inserimenti in "_L1 + codici.intestazione);
      ElencaNuovi(stato.DbArchivio, codici.tabella, Istruzione(codici), file);
      file.Print({});
    }
  });
}

void ElencaNuovi(const Database& archivio, const QString& tabella, const QString& istruzione,
                 FileTesto& file) {
  std::vector<Riga> righe;
  try {
    righe = archivio.LeggiRighe(istruzione);
  } catch (const ErroreEsecuzione&) {
    file.Print(
        u"Impossibilità di risultato a causa della struttura non aggiornata della tabella"_s);
    return;
  }
  if (righe.empty()) file.Print(u"Nessuna novità in "_s + tabella);
  for (const Riga& riga : righe) {
    file.Print("Nuovo: "_L1 + UnaRiga(riga.Fields("Nuovo").TestoOVuoto()) + " ("_L1 +
               riga.Fields("IDDoc").Testo() + QLatin1Char(')'));
  }
}

}  // namespace torvi
