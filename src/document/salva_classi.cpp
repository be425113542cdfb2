#include "document/carica_parti.h"
#include "document/salva_parti.h"

namespace torvi {
namespace {

bool Asteriscata(const RigaClasse& riga) { return riga.Check == 2 || riga.Check == 3; }

QString IstruzioneAsteriscata(const RigaClasse& riga) {
  QString descrittore = riga.Descrittore;
  descrittore.replace(QLatin1Char('\''), QStringLiteral("''"));
  return QStringLiteral(
             "select tabClasse2000.* from [TabClasse2000-S] INNER JOIN TabClasse2000 ON "
             "[TabClasse2000-S].IDClasseS = TabClasse2000.[IDClasse2000-S] where "
             "([TabClasse2000-S].CodiceS ='") +
         riga.Sistematico + QStringLiteral("') and ([TabClasse2000].[Classe2000-D] = '") +
         descrittore + QStringLiteral("') and ([TabClasse2000].Check = '") +
         QString::number(riga.Check) + QStringLiteral("')");
}

QString IstruzioneConCodice(const RigaClasse& riga) {
  const bool solo = riga.Descrittore.isEmpty();
  QString istruzione = QStringLiteral("select IDClasse2000 from tabClasse2000, [TabClasse2000-S]");
  if (!solo) istruzione += QStringLiteral(", [TabClasse2000-D]");
  istruzione +=
      QStringLiteral(" where [TabClasse2000-S].IDClasseS = TabClasse2000.[IDClasse2000-S] and ");
  istruzione += solo ? QStringLiteral("tabClasse2000.[IDClasse2000-D] = 0 and ")
                     : QStringLiteral(
                           "[TabClasse2000-D].IDClasseD = "
                           "TabClasse2000.[IDClasse2000-D] and ");
  istruzione += QStringLiteral("([TabClasse2000-S].CodiceS = '") + riga.Sistematico +
                QStringLiteral("') and ");
  if (!solo) {
    istruzione += QStringLiteral("([TabClasse2000-D].CodiceD = '") + riga.Descrittore +
                  QStringLiteral("') and ");
  }
  return istruzione + QStringLiteral("([TabClasse2000].Check = '") + QString::number(riga.Check) +
         QStringLiteral("')");
}

// The key that a code has in its table. No such code: error 3021.
qint64 Chiave(const Database& archivio, const char* tabella, const char* indice,
              const QString& codice, const char* chiave) {
  Recordset codici = archivio.OpenRecordset(QLatin1String(tabella));
  codici.Index(indice);
  codici.Seek(codice);
  return codici.Fields(chiave).Intero();
}

qint64 AggiungiCoppia(const Database& archivio, const RigaClasse& riga) {
  Recordset coppie = archivio.OpenRecordset(QStringLiteral("TabClasse2000"));
  coppie.AddNew();
  coppie.Assegna("IDClasse2000-S",
                 Chiave(archivio, "TabClasse2000-S", "CodiceS", riga.Sistematico, "IDClasseS"));
  coppie.Assegna("Check", QString::number(riga.Check));
  if (Asteriscata(riga)) {
    coppie.Assegna("classe2000-D", riga.Descrittore);
  } else if (!riga.Descrittore.isEmpty()) {
    coppie.Assegna("IDClasse2000-D",
                   Chiave(archivio, "TabClasse2000-D", "CodiceD", riga.Descrittore, "IDClasseD"));
  }
  coppie.Update();
  coppie.Bookmark(coppie.LastModified());
  return coppie.Fields("IDClasse2000").Intero16();
}

qint64 TrovaOAggiungi2000(const Database& archivio, const RigaClasse& riga) {
  const Recordset coppia = archivio.OpenRecordset(Asteriscata(riga) ? IstruzioneAsteriscata(riga)
                                                                    : IstruzioneConCodice(riga));
  return coppia.Eof() ? AggiungiCoppia(archivio, riga) : coppia.Fields("IDClasse2000").Intero16();
}

// 0 where there is no such code: the row is dropped.
qint64 Trova1999(const Database& archivio, const RigaClasse& riga) {
  const Recordset codice = archivio.OpenRecordset(
      QStringLiteral("select * from TabClasse1999 where TabClasse1999.Codice =\"") +
      riga.Sistematico + QLatin1Char('"'));
  return codice.Eof() ? 0 : codice.Fields("idClasse1999").Intero16();
}

}  // namespace

void SalvaClassi(Documento& documento) {
  const auto& righe = documento.stato.RigheClasse;
  if (righe.empty()) return;
  const Database& archivio = documento.stato.DbArchivio;
  const bool prima2000 = SchemaPrima2000(documento.campi);
  const QString tabella =
      prima2000 ? QStringLiteral("legameDocClass1999") : QStringLiteral("legameDocClass");
  const qint64 idDoc = NumeroDocumento(documento);
  if (!documento.SalvaComeNuovo) {
    archivio.Execute(QStringLiteral("delete * from ") + tabella + QStringLiteral(" where IDDoc =?"),
                     {idDoc});
  }
  Recordset legami = archivio.OpenRecordset(tabella);
  for (const RigaClasse& riga : righe) {
    if (riga.Cancellata) continue;
    const qint64 idClasse =
        prima2000 ? Trova1999(archivio, riga) : TrovaOAggiungi2000(archivio, riga);
    if (idClasse == 0) continue;
    legami.AddNew();
    legami.Assegna("idDoc", idDoc);
    legami.Assegna("IDClass", idClasse);
    legami.Update();
  }
}

}  // namespace torvi
