#include "export/catalogo_norme.h"

#include <QDate>

#include "fonti/abbreviazioni_catalogo.h"
#include "shell/percorsi.h"
#include "shell/valori.h"

namespace torvi {
namespace {

// dd/mm/yyyy, as the catalogue holds it; nothing for a day that is on no calendar.
std::optional<QString> DataCatalogo(const AttoCercato& atto) {
  bool giornoValido = false;
  bool meseValido = false;
  bool annoValido = false;
  const QDate data(atto.anno.toInt(&annoValido), atto.mese.toInt(&meseValido),
                   atto.giorno.toInt(&giornoValido));
  if (!giornoValido || !meseValido || !annoValido || !data.isValid()) return std::nullopt;
  return data.toString(QStringLiteral("dd/MM/yyyy"));
}

}  // namespace

CatalogoNorme::CatalogoNorme(const QString& cartellaApplicazione)
    : cartella_(cartellaApplicazione) {}

void CatalogoNorme::Apri() {
  if (database_) return;
  database_ = OpenDatabase(FileArchivio(cartella_, QStringLiteral("catalogo norme.mdb")),
                           Accesso::SolaLettura);
}

bool CatalogoNorme::Contiene(const AttoCercato& atto) {
  constexpr qsizetype kRicordati = 4096;
  Apri();
  constexpr QLatin1Char kBarra('|');
  const QString chiave = atto.anno + kBarra + atto.mese + kBarra + atto.giorno + kBarra +
                         atto.FonteNorm + kBarra + atto.numero;
  const auto noto = cercati_.constFind(chiave);
  if (noto != cercati_.constEnd()) return *noto;
  if (cercati_.size() >= kRicordati) cercati_.clear();
  const auto data = DataCatalogo(atto);
  return *cercati_.insert(chiave, data && Cerca(atto, *data));
}

bool CatalogoNorme::Cerca(const AttoCercato& atto, const QString& data) const {
  // The date goes in as the text that a date literal stands for, so that one statement does for
  // all.
  auto istruzione = QStringLiteral(
      "select * from tabCatalogo where anno = ? and promulgazione = ? and abbreviazione = ?");
  QList<Campo> valori = {Val(atto.anno), data, AbbreviazioneCatalogo(atto.FonteNorm)};
  if (!atto.numero.isEmpty()) {
    istruzione += QLatin1String(" and numero = ?");
    valori.append(atto.numero);
  }
  return !database_->OpenRecordset(istruzione, valori).Eof();
}

}  // namespace torvi
