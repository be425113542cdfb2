#include "archive/verifica.h"

#include "archive/connessione.h"
#include "archive/legami.h"
#include "archive/schema.h"

namespace torvi {
namespace {

constexpr int kNumeriMostrati = 5;

bool Contiene(const QStringList& nomi, const QString& nome) {
  return nomi.contains(nome, Qt::CaseInsensitive);
}

QStringList Righe(Connessione& motore, const std::string& sql) {
  QStringList righe;
  const Connessione::Prestito elenco = motore.PreparaMotore(sql);
  while (motore.Passo(elenco)) righe += elenco->motore->Leggi(0).TestoOVuoto();
  return righe;
}

QStringList Danni(Connessione& motore) {
  const QStringList trovati =
      Righe(motore, "PRAGMA integrity_check").join(QLatin1Char('\n')).split(QLatin1Char('\n'));
  if (trovati == QStringList{QStringLiteral("ok")}) return {};
  QStringList righe;
  for (const QString& danno : trovati) {
    if (danno.startsWith(QLatin1String("***"))) continue;
    righe += QStringLiteral("Il file è danneggiato: %1").arg(danno);
  }
  return righe;
}

bool HaIndice(const InfoTabella& presente, const Indice& indice) {
  const QString nome = indice.nome.toLower();
  return presente.indici.contains(nome.toStdString());
}

QStringList DifettiTabella(const Tabella& attesa, const InfoTabella& presente) {
  QStringList difetti;
  for (const Colonna& colonna : attesa.colonne) {
    if (presente.colonne.Posizione(colonna.nome.toStdString()) >= 0) continue;
    difetti +=
        QStringLiteral("Nella tabella %1 manca la colonna %2.").arg(attesa.nome, colonna.nome);
  }
  for (const Indice& indice : attesa.indici) {
    if (HaIndice(presente, indice)) continue;
    difetti += QStringLiteral("Nella tabella %1 manca l'indice %2.").arg(attesa.nome, indice.nome);
  }
  return difetti;
}

QStringList DifettiSchema(Connessione& motore) {
  QStringList difetti;
  const QStringList presenti = motore.Tabelle();
  for (const Tabella& attesa : SchemaArchivio()) {
    if (Contiene(presenti, attesa.nome)) {
      difetti += DifettiTabella(attesa, motore.Tabella(attesa.nome));
    } else {
      difetti += QStringLiteral("Manca la tabella %1.").arg(attesa.nome);
    }
  }
  return difetti;
}

QStringList DifettiInfo(Connessione& motore) {
  const QString quante = Righe(motore, "SELECT count(*) FROM [TabInfo]").value(0);
  if (quante == QLatin1String("1")) return {};
  return {QStringLiteral("La tabella TabInfo ha %1 righe invece di una.").arg(quante)};
}

bool HaColonna(Connessione& motore, const QStringList& presenti, const char* tabella,
               const char* colonna) {
  return Contiene(presenti, QLatin1String(tabella)) &&
         motore.Tabella(QLatin1String(tabella)).colonne.Posizione(colonna) >= 0;
}

QStringList LegamiSospesi(Connessione& motore, const Legame& legame) {
  const std::string colonna = std::string("a.[") + legame.colonna + "]";
  const std::string condizione =
      legame.ammetteZero ? "coalesce(" + colonna + ", 0) <> 0 AND " : std::string();
  const Connessione::Prestito sospesi = motore.PreparaMotore(
      "SELECT " + colonna + " FROM [" + legame.tabella + "] a WHERE (" + legame.quando + ") AND " +
      condizione + "NOT EXISTS (SELECT 1 FROM [" + legame.destinazione + "] b WHERE b.[" +
      legame.chiave + "] = " + colonna + ") ORDER BY a.rowid");
  int quanti = 0;
  QStringList primi;
  for (; motore.Passo(sospesi); ++quanti) {
    if (quanti > kNumeriMostrati) continue;
    const Campo numero = sospesi->motore->Leggi(0);
    primi += numero.Nullo() ? QStringLiteral("Null") : numero.Testo();
  }
  if (quanti == 0) return {};
  if (quanti > kNumeriMostrati) primi.back() = QStringLiteral("...");
  return {QStringLiteral("%1.%2: %3 senza riscontro in %4 (%5).")
              .arg(QLatin1String(legame.tabella), QLatin1String(legame.colonna),
                   quanti == 1 ? QStringLiteral("1 riga") : QStringLiteral("%1 righe").arg(quanti),
                   QLatin1String(legame.destinazione), primi.join(QLatin1String(", ")))};
}

void Richiedi(const Database& database, const std::vector<Tabella>& schema, const QString& cosa) {
  const QStringList presenti = database.Tabelle();
  for (const Tabella& attesa : schema) {
    if (Contiene(presenti, attesa.nome)) continue;
    throw ErroreEsecuzione::ConDescrizione(
        Errore::OggettoNonTrovato,
        QStringLiteral("Il file %1 non è %2: manca la tabella %3. Scegliere un altro file.")
            .arg(database.Name(), cosa, attesa.nome));
  }
}

}  // namespace

void RichiediArchivio(const Database& database) {
  Richiedi(database, SchemaArchivio(), QStringLiteral("un archivio"));
}

void RichiediCatalogo(const Database& database) {
  Richiedi(database, SchemaCatalogo(), QStringLiteral("un catalogo di norme"));
}

QStringList VerificaArchivio(const Database& database) {
  Connessione& motore = database.Connessa();
  QStringList difetti = Danni(motore);
  if (!difetti.isEmpty()) return difetti;
  difetti = DifettiSchema(motore);
  const QStringList presenti = motore.Tabelle();
  if (Contiene(presenti, QStringLiteral("TabInfo"))) difetti += DifettiInfo(motore);
  for (const Legame& legame : LegamiArchivio()) {
    if (HaColonna(motore, presenti, legame.tabella, legame.colonna) &&
        HaColonna(motore, presenti, legame.destinazione, legame.chiave)) {
      difetti += LegamiSospesi(motore, legame);
    }
  }
  return difetti;
}

}  // namespace torvi
