#include "fonti/interroga_catalogo.h"

#include "archive/errore.h"
#include "archive/recordset.h"
#include "fonti/abbreviazioni_catalogo.h"
#include "shell/percorsi.h"
#include "shell/valori.h"

namespace torvi {
namespace {

const QString kSegno = QStringLiteral(") ");
const QString kE = QStringLiteral(" and");

// The month's two digits.
QString DueCifre(const QString& mese) { return RiempiZeri(NumeroMese(mese), 2); }

bool FonteChiesta(const QString& voce) {
  return !voce.isEmpty() && voce != SegnapostoProvvedimento();
}

QString Condizioni(const DomandaCatalogo& domanda) {
  const QString promulgazione = QStringLiteral(" tabCatalogo.promulgazione like '");
  QString testo;
  if (!domanda.txtCatalogoAnno.isEmpty()) {
    testo += QStringLiteral(" tabCatalogo.anno = ") + domanda.txtCatalogoAnno + kE;
  }
  if (!domanda.txtCatalogoNumero.isEmpty()) {
    testo += QStringLiteral(" tabCatalogo.numero = '") + domanda.txtCatalogoNumero +
             QLatin1Char('\'') + kE;
  }
  if (!domanda.txtCatalogoGiorno.isEmpty()) {
    testo += promulgazione + RiempiZeri(domanda.txtCatalogoGiorno, 2) + QStringLiteral("/*'") + kE;
  }
  if (domanda.ComboCatalogoMese != kMese) {
    testo += promulgazione + QStringLiteral("*/") + DueCifre(domanda.ComboCatalogoMese) +
             QStringLiteral("/*'") + kE;
  }
  if (FonteChiesta(domanda.ComboCatalogoFonte)) {
    testo += QStringLiteral(" tabCatalogo.abbreviazione = '") +
             AbbreviazioneCatalogo(domanda.ComboCatalogoFonte) + QLatin1Char('\'') + kE;
  }
  if (!domanda.txtCatalogoParola.isEmpty()) {
    testo += CondizioneParole(QStringLiteral(" tabCatalogo.titolo"), domanda.modo,
                              domanda.txtCatalogoParola);
  }
  return testo;
}

// The last "and" joins nothing; behind a number its blank stays.
void TogliCoda(QString& testo) {
  if (testo.endsWith(QLatin1Char('\'') + kE)) {
    testo.chop(4);
  } else if (testo.endsWith(kE)) {
    testo.chop(3);
  }
}

// What the form's kinds of act and their lists call an act of the catalogue.
void ScegliAtto(AttoTrovato& atto, const QString& abbreviazione) {
  if (abbreviazione == QLatin1String("l.cost.")) {
    atto.ComboFonte = QStringLiteral("Legge costituzionale");
    return;
  }
  const bool governativo =
      abbreviazione == QLatin1String("dir.p.c.m.") || abbreviazione == QLatin1String("d.p.c.m.");
  atto.ComboFonte = governativo ? QStringLiteral("Atti governativi e ministeriali")
                                : QStringLiteral("Atti statali aventi forza di legge");
  atto.lstFonte = FonteNormDelCatalogo(abbreviazione);
}

}  // namespace

QString SegnapostoProvvedimento() { return QStringLiteral("Provvedimento"); }

QStringList VociCatalogo() {
  return {"l.", "l. cost.", "d.p.r.", "d.l.", "d.lg.", "d.p.c.m.", "dir. p.c.m."};
}

QString IstruzioneCatalogo(const DomandaCatalogo& domanda) {
  QString condizioni = Condizioni(domanda);
  if (condizioni.isEmpty()) return {};
  TogliCoda(condizioni);
  return QStringLiteral("select * from tabcatalogo where") + condizioni +
         QStringLiteral(" order by Promulgazione, Numero");
}

void InterrogazioneCatalogo::Apri(const QString& cartellaApplicazione) {
  catalogo_.reset();
  catalogo_ = OpenDatabase(FileArchivio(cartellaApplicazione, QStringLiteral("catalogo norme.mdb")),
                           Accesso::SolaLettura);
}

void InterrogazioneCatalogo::Chiudi() { catalogo_.reset(); }

const Database& InterrogazioneCatalogo::Catalogo() const {
  if (!catalogo_) throw ErroreEsecuzione(Errore::OggettoNonImpostato);
  return *catalogo_;
}

QStringList InterrogazioneCatalogo::Cerca(const QString& istruzione) const {
  QStringList linee;
  for (Recordset r = Catalogo().OpenRecordset(istruzione); !r.Eof(); r.MoveNext()) {
    linee += r.Fields("id").Testo() + kSegno + r.Fields("estremi").TestoOVuoto() +
             QStringLiteral(" --- ") + r.Fields("titolo").TestoOVuoto();
  }
  return linee;
}

Recordset InterrogazioneCatalogo::Riga(const QString& linea) const {
  Recordset riga = Catalogo().OpenRecordset(QStringLiteral("tabCatalogo"));
  riga.Index("PrimaryKey");
  riga.Seek(Campo(linea.left(linea.indexOf(kSegno))).Intero());
  return riga;
}

QString InterrogazioneCatalogo::Descrivi(const QString& linea) const {
  const Recordset riga = Riga(linea);
  return riga.Fields("estremi").TestoOVuoto() + QStringLiteral("\r\n") +
         riga.Fields("titolo").TestoOVuoto();
}

AttoTrovato InterrogazioneCatalogo::Trasferisci(const QString& linea) const {
  const Recordset riga = Riga(linea);
  const QString data = riga.Fields("promulgazione").TestoOVuoto();
  AttoTrovato atto{.ComboFonte = {},
                   .lstFonte = {},
                   .txtGG = data.section(QLatin1Char('/'), 0, 0),
                   .ComboMese = {},
                   .txtAA = riga.Fields("anno").TestoOVuoto(),
                   .txtN = riga.Fields("numero").TestoOVuoto()};
  if (atto.txtGG.startsWith(QLatin1Char('0'))) atto.txtGG.remove(0, 1);
  QString mese = data.section(QLatin1Char('/'), 1, 1);
  atto.ComboMese = NomeMese(mese);
  ScegliAtto(atto, riga.Fields("abbreviazione").TestoOVuoto());
  return atto;
}

}  // namespace torvi
