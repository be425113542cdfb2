#include "archive/esempio.h"

#include <QFileInfo>
#include <array>

#include "archive/copia_archivio.h"
#include "archive/errore.h"
#include "archive/esempio/classi.h"
#include "archive/esempio/difetti.h"
#include "archive/esempio/fonti.h"
#include "archive/esempio/nomi.h"
#include "archive/esempio/primo.h"
#include "archive/esempio/riferimenti.h"
#include "archive/esempio/scrittura.h"
#include "archive/esempio/testi.h"
#include "archive/file_nuovo.h"
#include "archive/master.h"
#include "archive/verifica.h"

namespace torvi {

namespace {

using namespace esempio;

// A code and how often it comes up, of a hundred documents.
struct Frequenza {
  const char* codice;
  int suCento;
};
constexpr std::array kTipiDocumento = {
    Frequenza{"02", 30}, Frequenza{"01", 40}, Frequenza{"03", 8},
    Frequenza{"04", 6},  Frequenza{"05", 5},  Frequenza{"06", 3},
    Frequenza{"07", 4},  Frequenza{"08", 2},  Frequenza{"09", 2}};
constexpr std::array kTipiRiassunto = {Frequenza{"900", 45}, Frequenza{"800", 15},
                                       Frequenza{"500", 15}, Frequenza{"700", 11},
                                       Frequenza{"600", 8},  Frequenza{"400", 6}};
constexpr std::array kBibliografie = {Frequenza{"1", 50}, Frequenza{"0", 30}, Frequenza{"2", 10},
                                      Frequenza{"3", 10}};

template <typename Frequenze>
QString Estrai(const Frequenze& frequenze, Sorte& sorte) {
  int resto = sorte.Fino(100);
  for (const Frequenza& frequenza : frequenze) {
    resto -= frequenza.suCento;
    if (resto < 0) return QString::fromLatin1(frequenza.codice);
  }
  return QString::fromLatin1(frequenze.front().codice);
}

std::vector<Persona> Persone(Sorte& sorte) {
  if (sorte.Una(15)) return {{sorte.Scegli(EntiCollettivi()).toString(), {}, true}};
  const bool curatori = sorte.Una(8);
  const int quante = sorte.Una(4) ? sorte.Tra(2, 3) : 1;
  std::vector<Persona> persone;
  for (int i = 0; i < quante; ++i) {
    const QString cognome = sorte.Scegli(Cognomi()).toString();
    persone.push_back({cognome, sorte.Scegli(Prenomi()).toString(), !curatori});
  }
  return persone;
}

// Makes one document after the other.
class Redazione {
 public:
  explicit Redazione(const Database& archivio)
      : tavole_(LeggiTavole(archivio)),
        citazioni_(tavole_),
        classificazione_(tavole_),
        fascicoli_(tavole_) {}

  [[nodiscard]] Documento Prossimo() {
    const int posto = posto_++;
    if (posto == 0) return PrimoDocumento(tavole_);
    Sorte sorte(static_cast<std::uint64_t>(posto) + 1);
    // Fields follow one another; five and thirteen have no common divisor, so that all come up.
    const auto campo = static_cast<std::size_t>(posto) * 5 % Aree().size();
    const Area& area = Aree()[campo];
    Documento documento;
    fascicoli_.Assegna(documento, sorte);
    documento.td = Estrai(kTipiDocumento, sorte);
    documento.tabs = Estrai(kTipiRiassunto, sorte);
    documento.bib = Estrai(kBibliografie, sorte);
    documento.persone = Persone(sorte);
    documento.fonti = Fonti(area, turni_[campo], sorte);
    classificazione_.Assegna(documento, area.sigla, sorte);
    ScriviTesti(documento, sorte.Scegli(area.temi), sorte);
    Guasta(documento, posto, {tavole_, citazioni_, classificazione_, sorte});
    return documento;
  }

 private:
  std::vector<FonteCitata> Fonti(const Area& area, std::size_t& turno, Sorte& sorte) {
    const int quante = area.fonti + sorte.Fino(2);
    std::vector<FonteCitata> fonti;
    fonti.reserve(static_cast<std::size_t>(quante));
    for (int i = 0; i < quante; ++i) {
      fonti.push_back(citazioni_.Componi(area.generi[turno++ % area.generi.size()], sorte));
    }
    return fonti;
  }

  Tavole tavole_;
  Citazioni citazioni_;
  Classificazione classificazione_;
  Fascicoli fascicoli_;
  std::array<std::size_t, 32> turni_{};
  int posto_ = 0;
};

void RichiediVuoto(const Database& archivio) {
  for (const char* tabella : {"TabDocumento", "TabTesto", "TabFonte"}) {
    const QString nome = QString::fromLatin1(tabella);
    if (archivio.OpenRecordset(nome).Eof()) continue;
    throw ErroreEsecuzione::ConDescrizione(
        Errore::OggettoNonTrovato,
        QStringLiteral("%1 non è vuota: serve un archivio master").arg(nome));
  }
}

void Riempi(const QString& percorso, int documenti) {
  Database archivio = OpenDatabase(percorso);
  RichiediArchivio(archivio);
  RichiediVuoto(archivio);
  Redazione redazione(archivio);
  Scrittura scrittura(archivio);
  UnitaDiScrittura unita(archivio);
  scrittura.ScriviInformazioni();
  for (int i = 0; i < documenti; ++i) scrittura.Scrivi(redazione.Prossimo());
  unita.Concludi();
  archivio.Close();
}

}  // namespace

void CreaEsempio(const QString& percorso, const QString& master, int documenti) {
  FileNuovo file(percorso);
  if (QFileInfo::exists(master)) {
    RichiediSenzaConsegna(OpenDatabase(master));
    file.Riempi([&] { CopiaArchivio(master, file); });
  } else {
    RiempiMaster(file);
  }
  file.Riempi([&] {
    Riempi(file.Percorso(), documenti);
    RichiediIntegro(file.Percorso());
  });
  file.Consegna();
}

}  // namespace torvi
