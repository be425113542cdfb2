#include "archive/jet.h"

#include <QFile>

#include "archive/errore.h"
#include "archive/jet_catalogo.h"
#include "archive/jet_valori.h"
#include "archive/per_nome.h"

namespace torvi {

bool EFileJet(const QString& percorso) {
  constexpr qint64 inizioFirma = 4;
  const QByteArray firma("Standard Jet DB", 16);  // with the zero at its end
  QFile file(percorso);
  return file.open(QIODevice::ReadOnly) &&
         file.read(inizioFirma + firma.size() + 1).mid(inizioFirma).startsWith(firma);
}

struct LettoreJet::Stato {
  explicit Stato(const QString& percorso) : pagine(percorso) {
    for (const jet::VoceCatalogo& voce : jet::LeggiCatalogo(pagine)) {
      jet::Definizione& definizione =
          definizioni.emplace_back(jet::LeggiDefinizione(pagine, voce.nome, voce.pagina));
      for (Colonna& colonna : definizione.tabella.colonne) {
        const auto predefinito = voce.predefiniti.find(colonna.nome);
        if (predefinito != voce.predefiniti.end()) colonna.predefinito = predefinito->second;
      }
      tabelle.push_back(definizione.tabella);
    }
  }

  [[nodiscard]] const jet::Definizione& Trova(const QString& tabella) const {
    const Tabella* trovata = PerNome(tabelle, tabella);
    if (trovata == nullptr) throw ErroreEsecuzione(Errore::TabellaNonTrovata, tabella);
    return definizioni[trovata - tabelle.data()];
  }

  jet::Pagine pagine;
  std::vector<jet::Definizione> definizioni;
  std::vector<Tabella> tabelle;
};

LettoreJet::LettoreJet(const QString& percorso) : stato_(std::make_unique<Stato>(percorso)) {}
LettoreJet::LettoreJet(LettoreJet&&) noexcept = default;
LettoreJet::~LettoreJet() = default;

const std::vector<Tabella>& LettoreJet::Tabelle() const { return stato_->tabelle; }

qint64 LettoreJet::UltimoContatore(const QString& tabella) const {
  return stato_->Trova(tabella).ultimoContatore;
}

qint64 LettoreJet::QuanteRighe(const QString& tabella) const {
  return stato_->Trova(tabella).righe;
}

void LettoreJet::LeggiRighe(const QString& tabella,
                            const std::function<void(const std::vector<Campo>&)>& riga) const {
  const jet::Definizione& definizione = stato_->Trova(tabella);
  std::vector<Campo> valori(definizione.colonne.size());
  jet::PercorriRighe(stato_->pagine, definizione, [&](const jet::RigaDiCampi& campi) {
    for (std::size_t i = 0; i < campi.size(); ++i) {
      valori[i] = jet::Valore(stato_->pagine, definizione.colonne[i], campi[i]);
    }
    riga(valori);
  });
}

}  // namespace torvi
