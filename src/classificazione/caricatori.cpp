#include "classificazione/caricatori.h"

#include <array>
#include <functional>
#include <span>

#include "archive/errore.h"
#include "export/file_testo.h"
#include "shell/accesso_riservato.h"
#include "shell/apertura.h"
#include "shell/impostazioni.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Colonne {
  const char* destinazione;
  const char* origine;
};

struct Caricamento {
  const char* origine;
  const char* destinazione;
  std::span<const Colonne> colonne;
};

constexpr std::array kSistematici = {Colonne{"CodiceS", "id"}, Colonne{"sigla", "sigla"},
                                     Colonne{"SiglaC", "SiglaC"},
                                     Colonne{"descrizione", "Sistematico"}};
constexpr std::array kDescrittori = {Colonne{"CodiceD", "id"},
                                     Colonne{"descrizione", "Descrittore"}};
constexpr std::array kLegami = {Colonne{"NS", "NS"}, Colonne{"nD", "nD"}};

constexpr std::array kNorme = {Colonne{"titolo", "titolo"},
                               Colonne{"anno", "anno"},
                               Colonne{"numero", "numero"},
                               Colonne{"abbreviazione", "abbreviazione"},
                               Colonne{"promulgazione", "promulgazione"},
                               Colonne{"estremi", "estremi"}};

bool Accede(StatoGlobale& stato, Dialoghi& dialoghi) {
  return AccessoRiservato(stato, dialoghi, u"Non hai i diritti per accedere"_s);
}

QString Sorgente(const StatoGlobale& stato, QLatin1StringView nome) {
  return TrovaPercorso(
      LeggiImpostazione(stato.CartellaApplicazione, Impostazione::CartellaClassificazione) +
      QLatin1Char('/') + nome);
}

Database ApriMaster(const StatoGlobale& stato, Dialoghi& dialoghi) {
  return ApriArchivio(FileArchivio(stato.CartellaApplicazione, u"master.mdb"_s), dialoghi);
}

void Assegna(Recordset& destinazione, const Recordset& origine, std::span<const Colonne> colonne) {
  for (const Colonne& una : colonne) {
    destinazione.Assegna(una.destinazione, origine.Fields(una.origine));
  }
}

// Adds rows to a table of `database` as long as `riga` fills one, as one unit on disk.
class Caricatore {
 public:
  Caricatore(Dialoghi& dialoghi, const Database& database, const char* tabella)
      : dialoghi_(dialoghi),
        unita_(database),
        tabella_(QLatin1StringView(tabella)),
        destinazione_(database.OpenRecordset(tabella_)) {}

  // One row more; `origine` names where it comes from if it fails.
  void Aggiungi(const QString& origine, int totale, const std::function<void(Recordset&)>& riempi) {
    constexpr int kPasso = 100;
    if (fatte_++ % kPasso == 0) dialoghi_.Avanzamento("Carica "_L1 + tabella_, fatte_, totale);
    try {
      destinazione_.AddNew();
      riempi(destinazione_);
      destinazione_.Update();
    } catch (const ErroreEsecuzione& errore) {
      throw ErroreEsecuzione::ConDescrizione(
          static_cast<Errore>(errore.Numero()),
          u"%1 (riga %2 di %3)"_s.arg(errore.Descrizione(), QString::number(fatte_), origine));
    }
  }
  void Concludi() { unita_.Concludi(); }

 private:
  Dialoghi& dialoghi_;
  UnitaDiScrittura unita_;
  QString tabella_;
  Recordset destinazione_;
  int fatte_ = 0;
};

void Carica(StatoGlobale& stato, Dialoghi& dialoghi, const Caricamento& carico) {
  if (!Accede(stato, dialoghi)) return;
  const Clessidra clessidra(dialoghi);
  const QString tabella = QLatin1StringView(carico.origine);
  const Database sorgente =
      OpenDatabase(Sorgente(stato, "classificazione.mdb"_L1), Accesso::SolaLettura);
  Recordset origine = sorgente.OpenRecordset(tabella);
  const int totale = sorgente.Conta("from "_L1 + tabella);
  Caricatore caricatore(dialoghi, ApriMaster(stato, dialoghi), carico.destinazione);
  for (; !origine.Eof(); origine.MoveNext()) {
    caricatore.Aggiungi(tabella, totale,
                        [&](Recordset& riga) { Assegna(riga, origine, carico.colonne); });
  }
  caricatore.Concludi();
}

// What a line of the text file holds.
void AssegnaCoppia(Recordset& riga, const QString& linea) {
  constexpr qsizetype kCodice = 5;
  constexpr qsizetype kInizioTermine = 6;
  if (linea.size() < kInizioTermine) throw ErroreEsecuzione(Errore::ChiamataNonValida, linea);
  riga.Assegna("NS", linea.left(kCodice));
  riga.Assegna("nD", linea.mid(kInizioTermine));
}

void CopiaNorme(const Database& catalogo, Dialoghi& dialoghi) {
  Recordset norme = catalogo.OpenRecordset(u"tabCatalogo"_s);
  norme.Index("PD");
  Recordset chiavi = catalogo.OpenRecordset(u"PD"_s);
  const int totale = catalogo.Conta(u"from PD"_s);
  Caricatore caricatore(dialoghi, catalogo, "tabCatalogoRidotta");
  for (; !chiavi.Eof(); chiavi.MoveNext()) {
    caricatore.Aggiungi(u"PD"_s, totale, [&](Recordset& riga) {
      norme.Seek(chiavi.Fields("pd"));
      Assegna(riga, norme, kNorme);
      riga.Assegna("pd", chiavi.Fields("pd"));
    });
  }
  caricatore.Concludi();
}

}  // namespace

void CaricaTabSistematici(StatoGlobale& stato, Dialoghi& dialoghi) {
  Carica(stato, dialoghi, {"TabSistematico", "TabClasse2000-S", kSistematici});
}

void CaricaTabDescrittori(StatoGlobale& stato, Dialoghi& dialoghi) {
  Carica(stato, dialoghi, {"TabDescrittore", "TabClasse2000-D", kDescrittori});
}

void CaricaTabLegami(StatoGlobale& stato, Dialoghi& dialoghi) {
  Carica(stato, dialoghi, {"TabLegame", "TabLegameDS", kLegami});
}

void CaricaTabDescrittoriAsteriscati(StatoGlobale& stato, Dialoghi& dialoghi) {
  if (!Accede(stato, dialoghi)) return;
  const Clessidra clessidra(dialoghi);
  FileTesto file(Sorgente(stato, "DescrittoriA2000.txt"_L1), Apertura::Lettura);
  Caricatore caricatore(dialoghi, ApriMaster(stato, dialoghi), "TabLegameDSA");
  while (const auto linea = file.LineInput()) {
    caricatore.Aggiungi(file.Percorso(), 0, [&](Recordset& riga) { AssegnaCoppia(riga, *linea); });
  }
  caricatore.Concludi();
}

void CaricaTabNorme(StatoGlobale& stato, Dialoghi& dialoghi) {
  if (!Accede(stato, dialoghi)) return;
  const Clessidra clessidra(dialoghi);
  stato.PathArchivio = FileArchivio(stato.CartellaApplicazione, u"catalogo norme.mdb"_s);
  stato.DbCatalogo = ApriCatalogo(stato.PathArchivio, dialoghi);
  CopiaNorme(stato.DbCatalogo, dialoghi);
}

}  // namespace torvi
