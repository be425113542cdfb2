// Every command that writes is killed, or its disk runs full or fails, at each of its calls that
// write. What stands under a name is then the old or the new, whole; what a failing run added ends
// with a whole record or line; the next run gives what it would have given, and nothing stays
// beside. GUASTI_TUTTI: every call, not a few of each. GUASTI_UNO="mode number:call": only this
// one.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <filesystem>
#include <iostream>

#include "archive/verifica.h"
#include "chiamate.h"
#include "cli/torvi.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "document/carica.h"
#include "document/salva.h"

namespace torvi {
namespace {

using guasti::Modo;
using Foto = QMap<QString, QByteArray>;  // files by their path from the folder

constexpr std::array kModi = {Modo::Uccidi, Modo::Spezza, Modo::DiscoPieno, Modo::ScritturaCorta,
                              Modo::Dispositivo};
constexpr long kCampioni = 2;      // of each kind of fault, where not all calls are meant
constexpr unsigned kSecondi = 60;  // for one run

bool Uccide(Modo modo) { return modo == Modo::Uccidi || modo == Modo::Spezza; }

struct Prova {
  const char* nome;
  const char* comando;  // of torvi, words between bars; ":salva" saves a document
  const char* file;     // which a failure names, between bars
  const char* detto;    // when it is done; empty: nothing
  bool accoda = false;
};

constexpr Prova kProve[] = {
    {"esporta", "esporta|isis|mdb/A01.MDB", "A01", "Fine esportazione"},
    {"accoda", "esporta|isis|mdb/A01.MDB|--accoda|dump/lexxdump isis.tot", "A01|.tot",
     "Fine esportazione", true},
    {"lotto", "lotto|isis|mdb/sigle.agg", "A01|B01|.agg", "", true},
    {"note", "estrai|note|mdb/A01.MDB", "A01", ""},
    {"stampa", "stampa|completa|mdb/A01.MDB", "A01", ""},
    {"consistenza", "stampa|consistenza|mdb/A01.MDB", "A01", ""},
    {"celex", "stampa|celex|mdb/A01.MDB", "A01", ""},
    {"nuovo", "nuovo|mdb/B01.MDB|--consegna|C01|--inizio|5|--centro|B|--anno|2002", "B01", ""},
    {"esempio", "esempio|mdb/E01.MDB|--documenti|10", "E01", ""},
    {"converti", "converti|mdb/C01.MDB|mdb/C02.MDB", "C01|C02", ""},
    {"apri", "stampa|consistenza|mdb/C01.MDB", "C01|consistenza", ""},
    {"master", "master|mdb/M01.MDB", "M01", ""},
    {"catalogo", "catalogo|mdb/N01.MDB", "N01", ""},
    {"salva", ":salva", "A01", "Documento salvato!"},
    {"salva_nuovo", ":salva nuovo", "A01", "Documento salvato!"},
};

int Salva(const QString& cartella, bool nuovo) {
  StatoGlobale stato;
  DialoghiScritti dialoghi;
  Documento documento(stato, dialoghi);
  try {
    stato.DbArchivio = OpenDatabase(cartella + "/mdb/A01.MDB");
    stato.IDDocumentoScelto = "3";
    CaricaForma(documento);
    if (nuovo) {
      Recordset documenti = stato.DbArchivio.OpenRecordset("TabDocumento");
      documenti.MoveLast();
      documento.campi.txtID = QString::number(documenti.Fields("IDDocumento").Intero() + 1);
    }
    documento.SalvaComeNuovo = nuovo;
    for (QString* parte : {&documento.campi.txtFascicolo, &documento.campi.txtPagine,
                           &documento.campi.txtTitolo, &stato.TestoRiassunto}) {
      *parte = "12";
    }
    for (auto& riga : stato.RigheResponsabilita) riga.PrimoElemento = "D'Amico";
    if (!SalvaDocumento(documento)) return 2;
  } catch (const ErroreEsecuzione& errore) {
    std::cerr << errore.what() << std::endl;
    return 1;
  }
  std::cerr << dialoghi.UltimoMessaggio().toStdString() << std::endl;
  return 0;
}

int Comando(const QString& cartella, const char* comando) {
  if (*comando == ':') return Salva(cartella, QByteArray(comando).endsWith("nuovo"));
  QStringList argomenti = {"torvi", "--cartella", cartella};
  for (QString parola : QString::fromUtf8(comando).split('|')) {
    if (parola.startsWith("mdb/") || parola.startsWith("dump/")) parola = cartella + '/' + parola;
    argomenti += parola;
  }
  QString testo;
  QTextStream uscita(&testo);
  return EseguiTorvi(argomenti, uscita);
}

struct EsitoCorsa {
  int codice = -1;  // -1: ended by a signal
  bool ucciso = false;
  long chiamate = 0;
  QString detto;
};

EsitoCorsa Corri(const QString& cartella, const char* comando, Modo modo = Modo::Conta,
                 long chiamata = 0) {
  void* memoria = mmap(nullptr, sizeof(guasti::Guasto), PROT_READ | PROT_WRITE,
                       MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto* guasto = new (memoria) guasti::Guasto{modo, chiamata};
  qstrncpy(guasto->cartella.data(), qPrintable(cartella + '/'), guasto->cartella.size());
  const int errori = memfd_create("errori", 0);
  const pid_t figlio = fork();
  if (figlio == 0) {
    dup2(errori, STDERR_FILENO);
    alarm(kSecondi);
    guasti::Arma(guasto);
    _exit(Comando(cartella, comando));
  }
  int esito = 0;
  waitpid(figlio, &esito, 0);
  QByteArray detto(lseek(errori, 0, SEEK_END), '\0');
  EXPECT_EQ(pread(errori, detto.data(), detto.size(), 0), detto.size());
  close(errori);
  const EsitoCorsa corsa = {WIFEXITED(esito) ? WEXITSTATUS(esito) : -1,
                            WIFSIGNALED(esito) && WTERMSIG(esito) == SIGKILL, guasto->fatte,
                            QString::fromUtf8(detto)};
  munmap(memoria, sizeof(guasti::Guasto));
  return corsa;
}

// The counters of changes in an archive's header tell of runs, not of contents.
QByteArray SenzaConteggi(QByteArray byte) {
  if (byte.startsWith("SQLite format 3")) {
    for (const int posto : {24, 92}) byte.replace(posto, 4, QByteArray(4, '\0'));
  }
  return byte;
}

Foto Fotografa(const QString& cartella) {
  Foto foto;
  QDirIterator file(cartella, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (file.hasNext()) {
    const QString percorso = file.next();
    foto[percorso.mid(cartella.size() + 1)] = SenzaConteggi(Byte(percorso));
  }
  return foto;
}

void Copia(const QString& da, const QString& a) {
  std::filesystem::remove_all(a.toStdString());
  std::filesystem::copy(da.toStdString(), a.toStdString(),
                        std::filesystem::copy_options::recursive);
}

// What is wrong with an archive, and every row of it.
QByteArray Difetti(const QString& percorso) {
  QString difetti;
  const QString errore = ErroreDi([&] {
    difetti = VerificaArchivio(OpenDatabase(percorso, Accesso::SolaLettura)).join(u'\n');
  });
  return (errore + difetti).toUtf8();
}
QByteArray Righe(const QString& percorso) {
  QByteArray righe = Difetti(percorso);
  (void)ErroreDi([&] {
    const Database archivio = OpenDatabase(percorso, Accesso::SolaLettura);
    for (const QString& tabella : archivio.Tabelle()) {
      righe += (tabella % ':' % RigheTesto(archivio, tabella, archivio.Colonne(tabella)).join('\n'))
                   .toUtf8();
    }
  });
  return righe;
}

// Whether `byte` is a beginning of `tutto` that ends with a whole line, of an export with a record:
// a field may have line breaks in it, so a record ends only where the next has its three first
// lines.
bool Intero(const QString& nome, const QByteArray& byte, const QByteArray& tutto) {
  if (!tutto.startsWith(byte)) return false;
  if (byte.isEmpty() || byte == tutto) return true;
  static const QRegularExpression record("^(\\d{4}[1-9A-Z]\\d{4,})\r\n\\d+\r\n 1\\1\r\n");
  return byte.endsWith("\r\n") &&
         (!nome.startsWith("dump/lexxdump") ||
          record.match(QString::fromLatin1(tutto.mid(byte.size(), 100))).hasMatch());
}

QSet<QString> Insieme(const QStringList& nomi) { return {nomi.begin(), nomi.end()}; }

class Guasti : public testing::TestWithParam<Prova> {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite() { cartella_.reset(); }
  [[nodiscard]] static QString Sotto(const char* nome) { return cartella_->Percorso() + nome; }

  void Una(Modo modo, long chiamata);
  void Guarda(const EsitoCorsa& corsa, Modo modo, bool archivi);
  void GuardaSeconda(Modo modo);
  // Numbers of processes are not worth telling apart.
  void Difetto(QString cosa) {
    static const QRegularExpression processo("\\.\\d+-\\d|\\d{4,}");
    difetti_[cosa.remove(lavoro_).replace(processo, ".N")] += dove_;
  }
  [[nodiscard]] bool Archivio(const QString& nome) const { return nome.endsWith(".MDB"); }
  [[nodiscard]] bool StesseRighe(const QString& nome, const QByteArray& ora, const char* come,
                                 const Foto& foto) const {
    return foto.contains(nome) &&
           (foto[nome] == ora ||
            (Archivio(nome) && Righe(lavoro_ + '/' + nome) == Righe(Sotto(come) + '/' + nome)));
  }
  [[nodiscard]] bool AggiuntaIntera(const QString& nome, const QByteArray& ora) const {
    return nome.startsWith("dump/") && GetParam().accoda && ora.startsWith(prima_[nome]) &&
           Intero(nome, ora, dopo_[nome]);
  }

  static std::unique_ptr<CartellaDiProva> cartella_;
  QString lavoro_ = Sotto("/lavoro");
  Foto prima_;
  Foto dopo_;
  Foto traGuasti_;
  QString dove_;
  QMap<QString, QStringList> difetti_;
};
std::unique_ptr<CartellaDiProva> Guasti::cartella_;

// An application folder with the outputs of a good run on a delivery that has changed since.
void Guasti::SetUpTestSuite() {
  cartella_ = std::make_unique<CartellaDiProva>();
  const QString modello = Sotto("/modello");
  ASSERT_TRUE(QDir(modello).mkpath("mdb") && QDir(modello).mkpath("dump"));
  QFile::copy(FileProgetto("risorse/testata new.rtf"), modello + "/testata new.rtf");
  const auto fa = [&](const char* comando) {
    const EsitoCorsa corsa = Corri(modello, comando);
    ASSERT_EQ(corsa.codice, 0) << comando << '\n' << corsa.detto.toStdString();
  };
  for (const char* comando : {"master|mdb/master.mdb", "catalogo|mdb/catalogo norme.mdb",
                              "esempio|mdb/A01.MDB|--documenti|8", "esporta|isis|mdb/A01.MDB",
                              "esporta|isis|mdb/A01.MDB|--accoda|dump/lexxdump isis.tot",
                              "estrai|note|mdb/A01.MDB", "stampa|completa|mdb/A01.MDB",
                              "stampa|consistenza|mdb/A01.MDB", "stampa|celex|mdb/A01.MDB"}) {
    fa(comando);
  }
  QFile::rename(modello + "/mdb/A01.MDB", modello + "/mdb/B01.MDB");
  ScriviByte(modello + "/mdb/sigle.agg", "A01\r\nB01\r\n");
  fa("esempio|mdb/A01.MDB|--documenti|60");
  fa("lotto|isis|mdb/sigle.agg");
  ScriviByte(modello + "/mdb/C01.MDB", Byte(FileGenuino("consegna.mdb")));
}

void Guasti::Guarda(const EsitoCorsa& corsa, Modo modo, bool archivi) {
  const bool finita =
      corsa.codice == 0 || (*GetParam().detto != '\0' && corsa.detto.contains(GetParam().detto));
  traGuasti_ = Fotografa(lavoro_);
  for (const QString& nome : Insieme(prima_.keys() + dopo_.keys())) {
    if (Archivio(nome) && !archivi) continue;
    if (!traGuasti_.contains(nome)) {
      if (prima_.contains(nome) || finita) Difetto("manca " + nome);
      continue;
    }
    const QByteArray& ora = traGuasti_[nome];
    if (StesseRighe(nome, ora, "/atteso", dopo_)) continue;
    if (finita) {
      Difetto("fatto, ma non è il nuovo: " + nome);
    } else if (!StesseRighe(nome, ora, "/modello", prima_) && !AggiuntaIntera(nome, ora)) {
      const bool inCoda = GetParam().accoda && ora.startsWith(prima_[nome]);
      const bool inizio = Intero(nome, ora, dopo_[nome]);
      // On a device that has failed nothing can be taken back any more: the next run does.
      if (Uccide(modo) || (inCoda && modo == Modo::Dispositivo) ? !inCoda : !inizio) {
        Difetto("né il vecchio né il nuovo: " + nome +
                (Archivio(nome) ? " " + QString::fromUtf8(Righe(lavoro_ + '/' + nome).left(150))
                                : QString()));
      }
    }
  }
}

void Guasti::GuardaSeconda(Modo modo) {
  const bool salva = *GetParam().comando == ':';
  const EsitoCorsa corsa = Corri(lavoro_, GetParam().comando);
  if (corsa.codice != 0 && !corsa.detto.contains("esiste già")) {
    return Difetto("la seconda corsa: " + QString::number(corsa.codice) + ' ' +
                   corsa.detto.left(200).simplified().remove(lavoro_));
  }
  const Foto ora = Fotografa(lavoro_);
  for (const auto& [nome, atteso] : dopo_.asKeyValueRange()) {
    const QByteArray byte = ora.value(nome);
    const QByteArray prima = prima_.value(nome);
    if (salva && Archivio(nome)) {
      if (Difetti(lavoro_ + '/' + nome) != Difetti(Sotto("/modello/") + nome))
        Difetto("guasto " + nome);
    } else if (GetParam().accoda && nome.startsWith("dump/") && byte.startsWith(prima)) {
      const QByteArray nuovo = atteso.mid(prima.size());
      const QByteArray inMezzo =
          byte.mid(prima.size()).chopped(byte.endsWith(nuovo) ? nuovo.size() : 0);
      if (!byte.endsWith(nuovo) || !Intero(nome, inMezzo, nuovo) ||
          (Uccide(modo) && *GetParam().detto != '\0' && !inMezzo.isEmpty() && inMezzo != nuovo)) {
        Difetto("dopo la seconda corsa resta un pezzo in " + nome);
      }
    } else if (!StesseRighe(nome, byte, "/atteso", dopo_)) {
      Difetto("dopo la seconda corsa non è il nuovo: " + nome);
    }
  }
  const QSet<QByteArray> noti = {prima_.value("mdb/B01.MDB"), dopo_.value("mdb/B01.MDB")};
  for (const auto& [nome, byte] : ora.asKeyValueRange()) {
    if (!dopo_.contains(nome) && !noti.contains(byte)) {
      Difetto("resta " + nome);
    }
  }
}

void Guasti::Una(Modo modo, long chiamata) {
  dove_ = QStringLiteral("%1:%2").arg(static_cast<int>(modo)).arg(chiamata);
  Copia(Sotto("/modello"), lavoro_);
  const EsitoCorsa corsa = Corri(lavoro_, GetParam().comando, modo, chiamata);
  const bool fallita = corsa.codice == 1;
  if (Uccide(modo) ? !corsa.ucciso : corsa.codice != 0 && !fallita) {
    Difetto("esito " + QString::number(corsa.codice) + ' ' + corsa.detto.left(200));
  }
  if (fallita) {
    static const QRegularExpression passaggio("\\.\\d+-\\d|-journal|/\\.");
    const QStringList nomi = QString::fromUtf8(GetParam().file).split('|');
    const bool nominato =
        std::ranges::any_of(nomi, [&](const QString& nome) { return corsa.detto.contains(nome); });
    QString detto = corsa.detto.left(250).simplified().remove(lavoro_);
    if (!nominato || passaggio.match(corsa.detto).hasMatch())
      Difetto("non nomina il file: " + detto);
    if (modo != Modo::Dispositivo && !corsa.detto.contains("disco pieno", Qt::CaseInsensitive)) {
      Difetto("non dice disco pieno: " + detto);
    }
  }
  Guarda(corsa, modo, chiamata % 2 == 1);
  GuardaSeconda(modo);
}

TEST_P(Guasti, LeaveTheOldOrTheNewAndNothingBeside) {
  prima_ = Fotografa(Sotto("/modello"));
  Copia(Sotto("/modello"), Sotto("/atteso"));
  const EsitoCorsa intera = Corri(Sotto("/atteso"), GetParam().comando);
  ASSERT_EQ(intera.codice, 0) << intera.detto.toStdString();
  ASSERT_GT(intera.chiamate, 0);
  dopo_ = Fotografa(Sotto("/atteso"));
  if (const QByteArray una = qgetenv("GUASTI_UNO"); !una.isEmpty()) {
    Una(static_cast<Modo>(una.split(':')[0].toInt()), una.split(':')[1].toLong());
  } else {
    const bool tutti = qEnvironmentVariableIsSet("GUASTI_TUTTI");
    const long passo = tutti ? 1 : std::max(1L, intera.chiamate / kCampioni);
    int uccisioni = 0;
    int fallite = 0;
    for (const Modo modo : kModi) {
      for (long n = tutti ? 1 : 1 + static_cast<long>(modo) % passo; n <= intera.chiamate;
           n += passo) {
        Una(modo, n);
        ++(Uccide(modo) ? uccisioni : fallite);
      }
    }
    std::cout << GetParam().nome << ": " << intera.chiamate << " calls, " << uccisioni << " kills, "
              << fallite << " failing calls" << std::endl;
  }
  for (const auto& [cosa, dove] : difetti_.asKeyValueRange()) {
    ADD_FAILURE() << cosa.toStdString() << "\n  " << dove.size()
                  << " times: " << dove.mid(0, 8).join(' ').toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Comandi, Guasti, testing::ValuesIn(kProve),
                         [](const auto& caso) { return caso.param.nome; });

}  // namespace
}  // namespace torvi
