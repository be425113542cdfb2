#include "export/fonti_di_prova.h"

#include <QFile>

#include "archive/schema.h"
#include "export/catalogo_norme.h"
#include "export/elenco_fonti.h"
#include "export/fonti_documento.h"
#include "export/fonti_etichettate.h"
#include "shell/consegna.h"

namespace torvi {
namespace {

constexpr qint64 kDocumento = 3;

}  // namespace

FontiDiProva::FontiDiProva(const DatiConsegna& dati) : stato(cartella.StatoConConsegna(dati)) {
  LeggiInfoConsegna(stato);
}

qint64 FontiDiProva::Riga(const char* tabella, Valori valori) const {
  return Aggiungi(stato.DbArchivio, QString::fromUtf8(tabella), valori);
}

qint64 FontiDiProva::Fonte(Valori valori) const {
  const qint64 fonte = Riga("TabFonte", valori);
  Riga("LegameDocFonte", {{"IDDoc", kDocumento}, {"IDFnt", fonte}});
  return fonte;
}

void FontiDiProva::TogliFonti() const {
  stato.DbArchivio.Execute(QStringLiteral("delete * from LegameDocFonte"));
}

void FontiDiProva::NuovoCatalogo(const char* abbreviazione) const {
  const QString percorso = cartella.Mdb(QStringLiteral("Catalogo Norme.MDB"));
  QFile::remove(percorso);
  CreaDatabase(percorso, SchemaCatalogo());
  Aggiungi(OpenDatabase(percorso), QStringLiteral("tabCatalogo"),
           {{"anno", 1990},
            {"numero", "241"},
            {"abbreviazione", abbreviazione},
            {"promulgazione", "07/08/1990"}});
}

EsitoScrittura FontiDiProva::Scrivi(const std::function<void(ContestoEsportazione&)>& scrittore) {
  const QString nomi[] = {cartella.Dump(QStringLiteral("errori.A01")),
                          cartella.Dump(QStringLiteral("errClasse.A01")),
                          cartella.Dump(QStringLiteral("errFonte.A01"))};
  EsitoScrittura esito;
  Record record;
  {
    CatalogoNorme catalogo(stato.CartellaApplicazione);
    FileTesto errori(nomi[0], Apertura::Scrittura);
    FileTesto errClasse(nomi[1], Apertura::Scrittura);
    FileTesto errFonte(nomi[2], Apertura::Scrittura);
    ContestoEsportazione contesto = {stato, record, errori, errClasse, errFonte, catalogo};
    esito.errore = NumeroErrore([&] { scrittore(contesto); });
  }
  for (const Record::Riga& riga : record.RigheRecord()) {
    esito.campi += riga.tag.toStdString() + riga.contenuto.toStdString() + "\n";
  }
  esito.errori = Byte(nomi[0]).toStdString();
  esito.erroriFonti = Byte(nomi[2]).toStdString();
  return esito;
}

EsitoScrittura FontiDiProva::Elenco() {
  return Scrivi([](ContestoEsportazione& contesto) {
    ScriviElencoFonti(contesto, FontiDocumento(contesto.stato.DbArchivio, kDocumento),
                      QStringLiteral("2001A0012"));
  });
}

EsitoScrittura FontiDiProva::Etichettate() {
  return Scrivi([](ContestoEsportazione& contesto) {
    ScriviFontiEtichettate(contesto, FontiDocumento(contesto.stato.DbArchivio, kDocumento));
  });
}

}  // namespace torvi
