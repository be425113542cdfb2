// The particulars and the divisions of an act, which every page of both source entry forms holds.
#pragma once

#include <QWidget>
#include <array>
#include <memory>

#include "fonti/controlli_fonte.h"

namespace torvi {

namespace Ui {
class FinestraEstremi;
}
class ComboDiCodici;

class FinestraEstremi : public QWidget {
  Q_OBJECT

 public:
  explicit FinestraEstremi(QWidget* genitore = nullptr);
  ~FinestraEstremi() override;

  // Fills the combos of the adverbs and of the months. What fits none of their items may be typed
  // all the same.
  void Prepara(const QStringList& articoli, const QStringList& commi);
  // Shows either frame or leaves its place blank, so that what stands around does not jump.
  void Mostra(bool estremi, bool ripartizioni);
  // For pages that never show the particulars: no place is kept for them.
  void SoloRipartizioni();
  // The focus to the article.
  void EntraRipartizioni();
  // What the article and the paragraph are called.
  void Etichette(const QString& articolo, const QString& comma);
  void MettiData(const QString& giorno, const QString& mese, const QString& anno,
                 const QString& numero);
  // What is typed in a combo becomes its choice, before a command that reads it.
  void Conferma();
  void Leggi(ControlliFonte& controlli) const;
  // Texts to empty, combos to their placeholder.
  void Pulisci();

 Q_SIGNALS:
  void Cambiato();

 private:
  [[nodiscard]] bool Ammesso(std::size_t scelta, const QString& testo) const;

  std::unique_ptr<Ui::FinestraEstremi> ui_;
  std::array<ComboDiCodici*, 3> combo_;  // owned by their combos
};

}  // namespace torvi
