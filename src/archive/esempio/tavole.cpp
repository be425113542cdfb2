#include "archive/esempio/tavole.h"

#include <algorithm>
#include <map>
#include <set>

#include "archive/csv.h"
#include "archive/errore.h"
#include "archive/master.h"

namespace torvi::esempio {

namespace {

const QString kAnnoConsegna = QStringLiteral("2001");

void Percorri(const Database& archivio, const QString& tabella,
              const std::function<void(const Recordset&)>& riga) {
  Recordset righe = archivio.OpenRecordset(QStringLiteral("select * from [%1]").arg(tabella));
  if (righe.Eof()) {
    throw ErroreEsecuzione(Errore::OggettoNonTrovato,
                           QStringLiteral("%1 è vuota in %2").arg(tabella, archivio.Name()));
  }
  for (; !righe.Eof(); righe.MoveNext()) riga(righe);
}

// Where the columns of a table of names are.
struct Colonne {
  const char* tabella;
  const char* id;
  const char* nome;
  const char* dettaglio = nullptr;
  const char* tipo = nullptr;
};

Voci Leggi(const Database& archivio, const Colonne& colonne) {
  Voci voci;
  Percorri(archivio, QString::fromLatin1(colonne.tabella), [&](const Recordset& riga) {
    Voce voce;
    voce.id = riga.Fields(colonne.id).Intero();
    voce.nome = riga.Fields(colonne.nome).TestoOVuoto();
    if (colonne.dettaglio != nullptr) voce.dettaglio = riga.Fields(colonne.dettaglio).TestoOVuoto();
    if (colonne.tipo != nullptr && riga.Fields(colonne.tipo).Presente()) {
      voce.tipo = static_cast<int>(riga.Fields(colonne.tipo).Intero());
    }
    voci.push_back(voce);
  });
  return voci;
}

Voci LeggiInterne(const Database& archivio) {
  Voci voci;
  Percorri(archivio, QStringLiteral("TabFonteInterna"), [&](const Recordset& riga) {
    Voce voce;
    voce.id = riga.Fields("IDFonteInterna").Intero();
    voce.nome = riga.Fields("FonteNorm").Testo();
    voce.urn = riga.Fields("URN").TestoOVuoto();
    voce.liv1 = riga.Fields("liv1").TestoOVuoto();
    voce.liv2 = riga.Fields("liv2").TestoOVuoto();
    voci.push_back(voce);
  });
  return voci;
}

// Treaties by their row in TabFonteInt, which the sources name, with what TabNIT says of them.
Voci LeggiTrattati(const Database& archivio) {
  std::map<QString, Voce> trattati;
  Percorri(archivio, QStringLiteral("TabNIT"), [&](const Recordset& riga) {
    Voce& trattato = trattati[riga.Fields("fonte").TestoOVuoto()];
    trattato.dettaglio = riga.Fields("descrizione").TestoOVuoto();
    trattato.data = riga.Fields("data").TestoOVuoto().left(10);
  });
  Voci voci;
  Percorri(archivio, QStringLiteral("TabFonteInt"), [&](const Recordset& riga) {
    const auto trattato = trattati.find(riga.Fields("Fonte").TestoOVuoto());
    if (trattato == trattati.end()) return;
    Voce voce = trattato->second;
    voce.id = riga.Fields("IDFonteInt").Intero();
    voce.nome = trattato->first;
    voci.push_back(voce);
  });
  return voci;
}

std::vector<Rivista> LeggiRiviste(const Database& archivio) {
  std::vector<Rivista> riviste;
  Percorri(archivio, QStringLiteral("TabRivista"), [&](const Recordset& riga) {
    riviste.push_back({riga.Fields("IDRivista").Intero(),
                       riga.Fields("TitoloRivista").TestoOVuoto(),
                       static_cast<int>(riga.Fields("IDPeriodicita").Intero())});
  });
  return riviste;
}

// As the table of internal sources spells what the catalogue abbreviates otherwise.
QString NomeAtto(const QString& abbreviazione) {
  if (abbreviazione == QLatin1String("l.cost.")) return QStringLiteral("l. cost.");
  if (abbreviazione == QLatin1String("d.lgs.")) return QStringLiteral("d.lg.");
  return abbreviazione;
}

QString SenzaZero(const QString& numero) { return QString::number(numero.toInt()); }

std::vector<AttoNoto> LeggiAtti() {
  LettoreCsv lettore(CartellaDati() + QLatin1String("/catalogo.csv"));
  const auto colonna = [&](const char* nome) {
    return lettore.Colonne().indexOf(QLatin1String(nome));
  };
  const qsizetype abbreviazione = colonna("abbreviazione");
  const qsizetype data = colonna("promulgazione");
  const qsizetype numero = colonna("numero");
  std::vector<AttoNoto> atti;
  QList<Campo> celle;
  while (lettore.Leggi(celle)) {
    const QStringList parti = celle[data].TestoOVuoto().split(u'/');
    if (parti.size() != 3 || parti[2] > kAnnoConsegna || !celle[numero].Presente()) continue;
    atti.push_back({NomeAtto(celle[abbreviazione].Testo()), SenzaZero(parti[0]),
                    SenzaZero(parti[1]), parti[2], celle[numero].Testo()});
  }
  return atti;
}

const Voce* PerNome(const Voci& voci, QStringView nome) {
  const auto voce =
      std::find_if(voci.begin(), voci.end(), [&](const Voce& una) { return una.nome == nome; });
  return voce == voci.end() ? nullptr : &*voce;
}

std::vector<Coppia> LeggiCoppie(const Database& archivio, const Tavole& tavole) {
  std::vector<Coppia> coppie;
  Percorri(archivio, QStringLiteral("TabLegameDS"), [&](const Recordset& riga) {
    const Voce* sistematico = PerNome(tavole.sistematici, riga.Fields("NS").TestoOVuoto());
    const Voce* descrittore = PerNome(tavole.descrittori, riga.Fields("nD").TestoOVuoto());
    if (sistematico == nullptr || descrittore == nullptr) return;
    coppie.push_back({sistematico->id, descrittore->id, {}, sistematico->dettaglio});
  });
  return coppie;
}

std::vector<Coppia> LeggiCoppieAsterisco(const Database& archivio, const Tavole& tavole) {
  std::vector<Coppia> coppie;
  Percorri(archivio, QStringLiteral("TabLegameDSA"), [&](const Recordset& riga) {
    const Voce* sistematico = PerNome(tavole.sistematici, riga.Fields("NS").TestoOVuoto());
    if (sistematico == nullptr) return;
    coppie.push_back({sistematico->id, 0, riga.Fields("nD").TestoOVuoto(), sistematico->dettaglio});
  });
  return coppie;
}

bool DiPrimoLivello(const QString& codice) {
  return codice.size() == 2 ||
         (codice.size() == 3 && codice.startsWith(QLatin1String("D9"), Qt::CaseInsensitive));
}

// A code that is neither of the first level nor below another cannot be decoded.
std::vector<qint64> LeggiClassi1999(const Database& archivio) {
  std::set<qint64> note;
  std::vector<qint64> classi;
  Percorri(archivio, QStringLiteral("TabClasse1999"), [&](const Recordset& riga) {
    const qint64 id = riga.Fields("IDClasse1999").Intero();
    const Campo padre = riga.Fields("ID_PADRE");
    note.insert(id);
    if (DiPrimoLivello(riga.Fields("Codice").TestoOVuoto()) ||
        (!padre.Nullo() && note.contains(padre.Intero()))) {
      classi.push_back(id);
    }
  });
  return classi;
}

}  // namespace

Tavole LeggiTavole(const Database& archivio) {
  Tavole tavole;
  tavole.interne = LeggiInterne(archivio);
  tavole.comunitarie = Leggi(archivio, {"TabFonteCom", "IDFonteCom", "FonteCom", nullptr, "Tipo"});
  tavole.internazionali =
      Leggi(archivio, {"TabFonteInt", "IDFonteInt", "FonteInt", nullptr, "Tipo"});
  tavole.canoniche = Leggi(archivio, {"TabFonteCan", "IDFonteCan", "FonteCan", nullptr, "Tipo"});
  tavole.trattati = LeggiTrattati(archivio);
  tavole.regioni = Leggi(archivio, {"TabRegione", "IDRegione", "CodRegione"});
  tavole.province = Leggi(archivio, {"TabProvincia", "IDProvincia", "CodProvincia"});
  tavole.citta = Leggi(archivio, {"TabCitta", "IDCitta", "citta"});
  tavole.sezioni = Leggi(archivio, {"TabSezione", "IDSez", "sigla"});
  tavole.ministeri = Leggi(archivio, {"TabMinistero", "IDMinistero", "MinisteroNorm"});
  tavole.amministrazioni =
      Leggi(archivio, {"TabAmministrazione", "IDAmministrazione", "AmministrazioneNorm"});
  tavole.autorita = Leggi(archivio, {"TabAutorita", "IDAutorita", "AutoritaNorm"});
  tavole.stati = Leggi(archivio, {"TabStato", "IDStato", "stato"});
  tavole.riviste = LeggiRiviste(archivio);
  tavole.atti = LeggiAtti();
  tavole.sistematici = Leggi(archivio, {"TabClasse2000-S", "IDClasseS", "CodiceS", "sigla"});
  tavole.descrittori = Leggi(archivio, {"TabClasse2000-D", "IDClasseD", "CodiceD"});
  tavole.coppie = LeggiCoppie(archivio, tavole);
  tavole.coppieAsterisco = LeggiCoppieAsterisco(archivio, tavole);
  tavole.classi1999 = LeggiClassi1999(archivio);
  return tavole;
}

Voci Filtra(const Voci& voci, const QString& cosa,
            const std::function<bool(const Voce&)>& condizione) {
  Voci trovate;
  std::copy_if(voci.begin(), voci.end(), std::back_inserter(trovate), condizione);
  if (trovate.empty()) throw ErroreEsecuzione(Errore::OggettoNonTrovato, cosa);
  return trovate;
}

const Voce& Trova(const Voci& voci, QStringView nome) {
  const Voce* voce = PerNome(voci, nome);
  if (voce == nullptr) throw ErroreEsecuzione(Errore::OggettoNonTrovato, nome.toString());
  return *voce;
}

}  // namespace torvi::esempio
