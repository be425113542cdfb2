// The look-up of an act in the catalogue of norms, `catalogo norme.mdb` in mdb/ below the
// application folder, and what it carries into the form.
#pragma once

#include <QStringList>
#include <optional>

#include "archive/database.h"
#include "fonti/controlli_fonte.h"
#include "shell/condizione_parole.h"

namespace torvi {

// What is asked for; a combo on its placeholder and an empty field ask nothing.
struct DomandaCatalogo {
  QString ComboCatalogoFonte = {};
  QString txtCatalogoGiorno = {};
  QString ComboCatalogoMese = kMese;
  QString txtCatalogoAnno = {};
  QString txtCatalogoNumero = {};
  QString txtCatalogoParola = {};
  ModoCampo modo = ModoCampo::Intero;
};

[[nodiscard]] QString SegnapostoProvvedimento();
// The kinds of act that can be asked for.
[[nodiscard]] QStringList VociCatalogo();
// Empty where nothing was asked.
[[nodiscard]] QString IstruzioneCatalogo(const DomandaCatalogo& domanda);

// What goes into the tab of acts. The act is empty where none is to be selected.
struct AttoTrovato {
  QString ComboFonte;
  std::optional<QString> lstFonte;
  QString txtGG;
  QString ComboMese;
  QString txtAA;
  QString txtN;
};

class InterrogazioneCatalogo {
 public:
  // Opens the catalogue for reading. Not there: error 3024.
  void Apri(const QString& cartellaApplicazione);
  void Chiudi();

  // The lines "id) estremi --- titolo" of what was found. Before Apri, or after it failed:
  // error 91.
  [[nodiscard]] QStringList Cerca(const QString& istruzione) const;
  // Particulars and title of a line, on two lines.
  [[nodiscard]] QString Descrivi(const QString& linea) const;
  [[nodiscard]] AttoTrovato Trasferisci(const QString& linea) const;

 private:
  [[nodiscard]] Recordset Riga(const QString& linea) const;
  [[nodiscard]] const Database& Catalogo() const;

  std::optional<Database> catalogo_;
};

}  // namespace torvi
