// Older archives lack columns of today: what does not read one works without it.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QStringList>
#include <functional>
#include <map>

#include "archive/collazione.h"
#include "archive/esempio.h"
#include "archive/master.h"
#include "archive/schema.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "export/esporta_ascii.h"
#include "report/consistenza.h"
#include "report/stampa_rtf.h"

namespace torvi {
namespace {

using Lavoro = void (*)(StatoGlobale&, Dialoghi&);
const std::vector<std::pair<QString, Lavoro>> kLavori = {
    {"isis", [](auto& stato, auto& dialoghi) { EsportaAscii(stato, dialoghi, kEsportaIsis); }},
    {"cassazione",
     [](auto& stato, auto& dialoghi) { EsportaAscii(stato, dialoghi, kEsportaCassazione); }},
    {"storico",
     [](auto& stato, auto& dialoghi) { EsportaAscii(stato, dialoghi, kEsportaStorico); }},
    {"completa", [](auto& stato, auto& dialoghi) { StampaRTF(stato, dialoghi, true, false); }},
    {"testi", [](auto& stato, auto& dialoghi) { StampaRTF(stato, dialoghi, false, false); }},
    {"consistenza", StampaConsistenza},
};

void Rinomina(const QString& archivio, const QString& tabella, const QString& da,
              const QString& a) {
  sqlite3* motore = nullptr;
  ASSERT_EQ(SQLITE_OK, sqlite3_open(archivio.toUtf8().constData(), &motore));
  RegistraFunzioni(motore);
  const QString sql =
      QStringLiteral("ALTER TABLE [%1] RENAME COLUMN [%2] TO [%3]").arg(tabella, da, a);
  EXPECT_EQ(SQLITE_OK, sqlite3_exec(motore, sql.toUtf8().constData(), nullptr, nullptr, nullptr))
      << sqlite3_errmsg(motore);
  sqlite3_close(motore);
}

TEST(ColonneAssenti, FallisconoSoloPerChiLeLegge) {
  const CartellaDiProva cartella;
  const QString archivio = cartella.Mdb("A01.MDB");
  CreaEsempio(archivio, {}, 40);
  CreaCatalogo(cartella.Mdb("catalogo norme.mdb"));
  ASSERT_TRUE(QFile::copy(FileProgetto("risorse/testata new.rtf"),
                          cartella.Percorso() + "/testata new.rtf"));
  std::map<QString, QStringList> falliti;
  for (const Tabella& tabella : SchemaArchivio()) {
    for (const Colonna& colonna : tabella.colonne) {
      Rinomina(archivio, tabella.nome, colonna.nome, "assente");
      for (const auto& [nome, lavoro] : kLavori) {
        StatoGlobale stato;
        stato.CartellaApplicazione = cartella.Percorso();
        stato.ModoBatch = true;
        stato.FileBatch = cartella.Dump("lexxdump isis.b12");
        stato.DbArchivio = OpenDatabase(archivio);
        DialoghiScritti dialoghi;
        const QString errore = ErroreDi([&] { lavoro(stato, dialoghi); });
        if (errore.isEmpty()) continue;
        // Who fails says for want of what.
        EXPECT_TRUE(errore.startsWith("3061 ") || errore.startsWith("3265 "))
            << errore.toStdString();
        for (const QString& parola : {tabella.nome, colonna.nome}) {
          EXPECT_TRUE(errore.contains(parola, Qt::CaseInsensitive)) << errore.toStdString();
        }
        if (tabella.nome == "TabFonte") falliti[nome] += colonna.nome;
      }
      Rinomina(archivio, tabella.nome, "assente", colonna.nome);
    }
  }
  const char* const catalogo = "IDFonte TP fonte testo numero giorno mese anno IDRegione";
  const std::map<QString, QString> attesi = {
      {"isis",
       "IDFonte TP fonte testo articolo comma lettera allegato ripa ripc numero giorno mese anno "
       "altro ordinanza IDRegione IDProvincia IDCitta IDMinistero IDAmministrazione IDAutorita "
       "IDSezione IDStato"},
      {"cassazione", catalogo},
      {"storico", catalogo},
      {"completa", "IDFonte TP testo"},
  };
  for (const auto& lavoro : kLavori) {
    const auto atteso = attesi.find(lavoro.first);
    EXPECT_EQ(atteso == attesi.end() ? QString() : atteso->second, falliti[lavoro.first].join(' '))
        << lavoro.first.toStdString();
  }
}

}  // namespace
}  // namespace torvi
