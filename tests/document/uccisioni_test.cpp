// A process that saves again and again is killed at random moments. Whatever the moment, the
// archive is sound, the document is wholly of one save, and no save that was told is lost.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <random>
#include <thread>

#include "archive/verifica.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "document/carica.h"
#include "document/carica_parti.h"
#include "document/salva.h"

namespace torvi {
namespace {

constexpr int kUccisioni = 110;  // for each way of saving
constexpr int kMassimoRitardoMicrosecondi = 15'000;

// Writes to the pipe the number of each save that the operator is told of.
class DialoghiCheContano : public DialoghiScritti {
 public:
  explicit DialoghiCheContano(int tubo) : tubo_(tubo) {}
  void Messaggio(const QString& testo, const QString& /*titolo*/, Icona /*icona*/) override {
    if (testo == "Documento salvato!") Di(++versione);
  }
  void Di(int numero) const {
    if (write(tubo_, &numero, sizeof numero) != sizeof numero) _exit(2);
  }
  int versione = 0;

 private:
  int tubo_;
};

// The parts of a document that bear the number of the save that wrote them.
QStringList Parti(const Documento& documento) {
  const CampiDocumento& campi = documento.campi;
  const StatoGlobale& stato = documento.stato;
  QStringList parti = {campi.txtFascicolo, campi.txtPagine, campi.txtTitolo, stato.TestoRiassunto,
                       stato.TestoEnglishAbstract};
  for (const auto& riga : stato.RigheResponsabilita) parti += riga.PrimoElemento;
  for (const auto& riga : stato.RigheClasse) parti += riga.Descrittore;
  for (const auto& riga : stato.RigheFonte) parti += riga.Testo;
  return parti;
}
constexpr int kParti = 8;

void Numera(Documento& documento, int versione) {
  const QString numero = QString::number(versione);
  CampiDocumento& campi = documento.campi;
  StatoGlobale& stato = documento.stato;
  for (QString* parte :
       {&campi.txtFascicolo, &campi.txtPagine, &campi.txtTitolo, &stato.TestoRiassunto,
        &stato.TestoEnglishAbstract, &stato.RigheResponsabilita.at(0).PrimoElemento,
        &stato.RigheClasse.at(0).Descrittore, &stato.RigheFonte.at(0).Testo}) {
    *parte = numero;
  }
}

QString UltimoDocumento(const Database& archivio, int piu = 0) {
  Recordset documenti = archivio.OpenRecordset("TabDocumento");
  documenti.MoveLast();
  return QString::number(documenti.Fields("IDDocumento").Intero() + piu);
}

void ApriUltimo(Documento& documento, const QString& percorso) {
  documento.stato.DbArchivio = OpenDatabase(percorso);
  documento.stato.IDDocumentoScelto = UltimoDocumento(documento.stato.DbArchivio);
  CaricaForma(documento);
}

// A delivery with the document of version 0.
QString Consegna(const CartellaDiProva& cartella) {
  StatoGlobale stato = cartella.StatoConCodici();
  const auto primo = [&stato](const char* tabella, const char* colonna) {
    return stato.DbArchivio.OpenRecordset(tabella).Fields(colonna).Testo();
  };
  DialoghiScritti dialoghi;
  Documento documento(stato, dialoghi);
  stato.DocumentoNuovo = true;
  CaricaForma(documento);
  documento.campi.txtCPer = primo("TabRivista", "CPER");
  documento.campi.txtAA = "2001";
  RigaResponsabilita persona;
  persona.SecondoElemento = "Lucia";
  stato.RigheResponsabilita = {persona};
  RigaClasse coppia;
  coppia.Sistematico = primo("TabClasse2000-S", "CodiceS");
  coppia.Check = 2;
  stato.RigheClasse = {coppia};
  RigaFonte fonte;
  fonte.FonteNorm = primo("TabFonteInterna", "FonteNorm");
  fonte.TP = "LICO";
  stato.RigheFonte = {fonte};
  Numera(documento, 0);
  documento.SalvaComeNuovo = true;
  EXPECT_TRUE(SalvaDocumento(documento));
  stato.DbArchivio.Close();
  return stato.PathArchivio;
}

// The child: saves until it is killed.
[[noreturn]] void SalvaSenzaFine(const QString& percorso, bool nuovi, int tubo) {
  StatoGlobale stato;
  DialoghiCheContano dialoghi(tubo);
  Documento documento(stato, dialoghi);
  ApriUltimo(documento, percorso);
  dialoghi.versione = documento.campi.txtPagine.toInt();
  dialoghi.Di(dialoghi.versione);
  for (;;) {
    if (nuovi) documento.campi.txtID = UltimoDocumento(stato.DbArchivio, 1);
    documento.numeroMostrato = NumeroDocumento(documento);
    documento.SalvaComeNuovo = nuovi;
    Numera(documento, dialoghi.versione + 1);
    SalvaDocumento(documento);
  }
}

// The last number that the child told before it died, -1 if it never came to that.
int SalvaEUccidi(const QString& percorso, bool nuovi, std::chrono::microseconds dopo) {
  std::array<int, 2> tubo{};
  if (pipe2(tubo.data(), O_CLOEXEC) != 0) return -1;
  const pid_t figlio = fork();
  if (figlio == 0) {
    try {
      SalvaSenzaFine(percorso, nuovi, tubo[1]);
    } catch (const std::exception& errore) {
      (void)std::fprintf(stderr, "%s\n", errore.what());
    }
    _exit(1);
  }
  close(tubo[1]);
  int detta = -1;
  EXPECT_EQ(read(tubo[0], &detta, sizeof detta), static_cast<ssize_t>(sizeof detta));
  std::this_thread::sleep_for(dopo);
  kill(figlio, SIGKILL);
  int esito = 0;
  waitpid(figlio, &esito, 0);
  EXPECT_TRUE(WIFSIGNALED(esito)) << "the child ended by itself";
  while (read(tubo[0], &detta, sizeof detta) == static_cast<ssize_t>(sizeof detta)) {
  }
  close(tubo[0]);
  return detta;
}

// The version that every part of the last document bears; -1 where they differ.
int VersioneSalvata(const QString& percorso) {
  StatoGlobale stato;
  DialoghiScritti dialoghi;
  Documento documento(stato, dialoghi);
  ApriUltimo(documento, percorso);
  EXPECT_EQ(VerificaArchivio(stato.DbArchivio).join(u'\n').toStdString(), "");
  const QStringList parti = Parti(documento);
  if (parti.size() != kParti || parti.count(parti.first()) != kParti) {
    ADD_FAILURE() << "a torn document: " << parti.join(u'|').toStdString();
    return -1;
  }
  return parti.first().toInt();
}

class Uccisioni : public testing::TestWithParam<bool> {};

TEST_P(Uccisioni, NeitherTearADocumentNorLoseASave) {
  const CartellaDiProva cartella;
  const QString percorso = Consegna(cartella);
  std::minstd_rand sorte(20'011);
  std::uniform_int_distribution<int> ritardo(0, kMassimoRitardoMicrosecondi);
  int salvata = 0;
  for (int i = 0; i < kUccisioni && !HasFailure(); ++i) {
    const int detta = SalvaEUccidi(percorso, GetParam(), std::chrono::microseconds(ritardo(sorte)));
    salvata = VersioneSalvata(percorso);
    EXPECT_TRUE(salvata == detta || salvata == detta + 1) << detta << " told, " << salvata;
  }
  EXPECT_GT(salvata, 0) << "no save came to its end";
}

INSTANTIATE_TEST_SUITE_P(Saves, Uccisioni, testing::Bool(), [](const auto& caso) {
  return caso.param ? "OfNewDocuments" : "OfTheSameDocument";
});

}  // namespace
}  // namespace torvi
