#include "archive/master.h"

#include <QtGlobal>
#include <algorithm>
#include <array>

#include "archive/copia_archivio.h"
#include "archive/csv.h"
#include "archive/schema.h"

// The macro declares a function, which must not land in a namespace.
static void RendiVisibili() { Q_INIT_RESOURCE(dati); }

namespace torvi {
namespace {

// The tables that hold documents: empty in a master.
constexpr std::array kVuote = {
    u"TabInfo",        u"TabDocumento",       u"TabRifBibl",     u"TabResponsabilita",
    u"LegameDocResp",  u"TabTesto",           u"LegameDocTesto", u"TabClasse2000",
    u"LegameDocClass", u"LegameDocClass1999", u"TabFonte",       u"LegameDocFonte",
};

bool Vuota(const Tabella& tabella) {
  return std::any_of(kVuote.begin(), kVuote.end(),
                     [&](const char16_t* nome) { return tabella.nome == QStringView(nome); });
}

std::vector<Colonna> TrovaColonne(const LettoreCsv& lettore, const Tabella& tabella) {
  std::vector<Colonna> trovate;
  for (const QString& nome : lettore.Colonne()) {
    const auto colonna = std::find_if(tabella.colonne.begin(), tabella.colonne.end(),
                                      [&](const Colonna& una) { return una.nome == nome; });
    if (colonna == tabella.colonne.end()) throw lettore.Guasto(nome, Errore::CampoNonTrovato);
    trovate.push_back(*colonna);
  }
  return trovate;
}

// The cell as its column holds it. Text longer than its column would be cut by other tools.
Campo Valore(const Campo& cella, const Colonna& colonna, const LettoreCsv& lettore) {
  if (cella.Nullo()) return cella;
  const QString testo = cella.Testo();
  if (colonna.tipo == TipoColonna::Intero || colonna.tipo == TipoColonna::Contatore) {
    bool valido = false;
    const int numero = testo.toInt(&valido);
    if (!valido) {
      throw lettore.Guasto(QStringLiteral("%1 = \"%2\"").arg(colonna.nome, testo));
    }
    return numero;
  }
  if (colonna.larghezza > 0 && testo.size() > colonna.larghezza) {
    throw lettore.Guasto(QStringLiteral("%1 = \"%2\"").arg(colonna.nome, testo));
  }
  return cella;
}

void AggiungiRiga(Recordset& righe, const std::vector<Colonna>& colonne, const QList<Campo>& celle,
                  const LettoreCsv& lettore) {
  righe.AddNew();
  for (std::size_t i = 0; i < colonne.size(); ++i) {
    righe.Assegna(colonne[i].nome.toStdString(),
                  Valore(celle[static_cast<qsizetype>(i)], colonne[i], lettore));
  }
  righe.Update();
}

void CaricaTabella(const Database& database, const Tabella& tabella, const QString& percorso) {
  LettoreCsv lettore(percorso);
  const std::vector<Colonna> colonne = TrovaColonne(lettore, tabella);
  Recordset righe = database.OpenRecordset(tabella.nome);
  QList<Campo> celle;
  while (lettore.Leggi(celle)) {
    try {
      AggiungiRiga(righe, colonne, celle, lettore);
    } catch (const ErroreEsecuzione& errore) {
      if (!errore.E(Errore::ChiaveDuplicata)) throw;
      throw lettore.Guasto(tabella.nome, Errore::ChiaveDuplicata);
    }
  }
}

struct Fonte {
  Tabella tabella;
  QString file;
};

void Scrivi(const QString& percorso, std::span<const Tabella> schema,
            const std::vector<Fonte>& fonti) {
  ScriviTabelle(percorso, schema);
  Database database = OpenDatabase(percorso);
  UnitaDiScrittura unita(database);
  for (const Fonte& fonte : fonti) CaricaTabella(database, fonte.tabella, fonte.file);
  unita.Concludi();
  database.Close();
  RichiediIntegro(percorso);
}

std::vector<Fonte> FontiMaster(const QString& cartella) {
  std::vector<Fonte> fonti;
  for (const Tabella& tabella : SchemaArchivio()) {
    if (Vuota(tabella)) continue;
    fonti.push_back({tabella, QStringLiteral("%1/%2.csv").arg(cartella, tabella.nome)});
  }
  return fonti;
}

}  // namespace

QString CartellaDati() {
  RendiVisibili();
  return QStringLiteral(":/dati");
}

void RiempiMaster(const FileNuovo& file, const QString& cartella) {
  file.Riempi([&] { Scrivi(file.Percorso(), SchemaArchivio(), FontiMaster(cartella)); });
}

void CreaMaster(const QString& percorso, const QString& cartella) {
  FileNuovo file(percorso);
  RiempiMaster(file, cartella);
  file.Consegna();
}

void RichiediSenzaConsegna(const Database& master) {
  if (master.Conta(QStringLiteral("from TabInfo")) == 0) return;
  throw ErroreEsecuzione::ConDescrizione(
      Errore::OggettoNonTrovato,
      QStringLiteral("Il master %1 contiene già i dati di una consegna (TabInfo non è vuota): "
                     "mettere al suo posto un archivio master e riprovare.")
          .arg(master.Name()));
}

void CreaCatalogo(const QString& percorso, const QString& cartella) {
  const std::vector<Tabella>& schema = SchemaCatalogo();
  const auto tabella = [&](QStringView nome) {
    return *std::find_if(schema.begin(), schema.end(),
                         [&](const Tabella& una) { return una.nome == nome; });
  };
  const std::vector<Fonte> fonti = {
      {tabella(u"tabCatalogo"), cartella + QLatin1String("/catalogo.csv")},
      {tabella(u"PD"), cartella + QLatin1String("/catalogo_pd.csv")}};
  FileNuovo file(percorso);
  file.Riempi([&] { Scrivi(file.Percorso(), schema, fonti); });
  file.Consegna();
}

}  // namespace torvi
