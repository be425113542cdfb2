#include "classificazione/righe_classe.h"
#include "document/carica_parti.h"
#include "document/righe_liste.h"

namespace torvi {
namespace {

RigaResponsabilita LeggiResponsabilita(const Recordset& legame, Recordset& persone) {
  RigaResponsabilita riga;
  riga.IDResponsabilitaRiga = legame.Fields("IDResponsabilita").Intero16();
  riga.flagAutore = legame.Fields("FlagAutore").Logico();
  persone.Seek(legame.Fields("IDResponsabilita"));
  riga.PrimoElemento = persone.Fields("PrimoElemento").TestoOVuoto();
  if (!persone.Fields("flagCollettivo").Logico()) {
    riga.SecondoElemento = persone.Fields("SecondoElemento").TestoOVuoto();
  }
  return riga;
}

// The descriptor of a pair: free text where it is asterisked, otherwise what its code leads to.
QString LeggiDescrittore(const Recordset& coppia, Recordset& descrittori, qint16 check) {
  if (check == 2 || check == 3) return coppia.Fields("Classe2000-D").TestoOVuoto();
  const Campo chiave = coppia.Fields("IDClasse2000-D");
  if (chiave.Nullo() || chiave.Intero() == 0) return {};
  descrittori.Seek(chiave);
  return descrittori.Fields("CodiceD").Testo();
}

void CaricaClassi2000(Documento& documento) {
  const Database& archivio = documento.stato.DbArchivio;
  Recordset sistematici = archivio.OpenRecordset(QStringLiteral("TabClasse2000-S"));
  Recordset descrittori = archivio.OpenRecordset(QStringLiteral("TabClasse2000-D"));
  sistematici.Index("PrimaryKey");
  descrittori.Index("PrimaryKey");
  Recordset coppie = archivio.OpenRecordset(
      QStringLiteral("SELECT * FROM LegameDocClass, TabClasse2000 WHERE LegameDocClass.IDClass = "
                     "TabClasse2000.IDClasse2000 and LegameDocClass.IDDoc = ?"),
      {NumeroDocumento(documento)});
  for (; !coppie.Eof(); coppie.MoveNext()) {
    RigaClasse riga;
    riga.IDClasse = coppie.Fields("IDClass").Intero16();
    sistematici.Seek(coppie.Fields("IDClasse2000-S"));
    riga.Sistematico = sistematici.Fields("CodiceS").Testo();
    riga.Check = coppie.Fields("Check").Intero16();
    riga.Descrittore = LeggiDescrittore(coppie, descrittori, riga.Check);
    documento.campi.lstClassificazione += RigaListaCaricata(riga);
    documento.stato.RigheClasse.push_back(riga);
  }
}

void CaricaClassi1999(Documento& documento) {
  Recordset codici = documento.stato.DbArchivio.OpenRecordset(
      QStringLiteral("SELECT * FROM LegameDocClass1999, TabClasse1999 WHERE "
                     "LegameDocClass1999.IDClass = TabClasse1999.IDClasse1999 and "
                     "LegameDocClass1999.IDDoc = ?"),
      {NumeroDocumento(documento)});
  for (; !codici.Eof(); codici.MoveNext()) {
    RigaClasse riga;
    riga.IDClasse = codici.Fields("IDClasse1999").Intero16();
    riga.Sistematico = codici.Fields("Codice").Testo();
    documento.campi.lstClassificazione += RigaListaCaricata(riga);
    documento.stato.RigheClasse.push_back(riga);
  }
}

}  // namespace

void CaricaResponsabilita(Documento& documento) {
  const Database& archivio = documento.stato.DbArchivio;
  documento.campi.lstResponsabilita.clear();
  documento.stato.RigheResponsabilita.clear();
  Recordset persone = archivio.OpenRecordset(QStringLiteral("TabResponsabilita"));
  persone.Index("IDResponsabilita");
  Recordset legami = archivio.OpenRecordset(
      QStringLiteral(
          "SELECT IDDoc, IDResponsabilita, FlagAutore FROM LegameDocResp WHERE IDDoc = ?"),
      {NumeroDocumento(documento)});
  for (; !legami.Eof(); legami.MoveNext()) {
    const RigaResponsabilita riga = LeggiResponsabilita(legami, persone);
    documento.campi.lstResponsabilita += RigaLista(riga);
    documento.stato.RigheResponsabilita.push_back(riga);
  }
}

void CaricaClassi(Documento& documento) {
  documento.campi.lstClassificazione.clear();
  documento.stato.RigheClasse.clear();
  if (SchemaPrima2000(documento.campi)) {
    CaricaClassi1999(documento);
  } else {
    CaricaClassi2000(documento);
  }
}

}  // namespace torvi
