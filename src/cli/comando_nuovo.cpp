#include <QRegularExpression>
#include <array>

#include "cli/comando.h"
#include "shell/apertura.h"

namespace torvi {

namespace {

constexpr std::array kOpzioni = {Opzione{"consegna", "SIGLA"}, Opzione{"inizio", "NUMERO"},
                                 Opzione{"centro", "CENTRO"}, Opzione{"anno", "ANNO"}};

struct Forma {
  const char* opzione;
  const char* modello;
  const char* detto;
};

// What the form of a new delivery can be given, and no more.
constexpr std::array kForme = {
    Forma{"consegna", "[^|/]+", "una sigla"},
    Forma{"inizio", "[^|]+", "un numero"},
    Forma{"centro", "[1-9A-Za-z]", "una cifra da 1 a 9 o una lettera"},
    Forma{"anno", "[0-9]{4}", "di quattro cifre"},
};

QString Valore(const QCommandLineParser& opzioni, const Forma& forma) {
  const QString opzione = QString::fromUtf8(forma.opzione);
  const QRegularExpression modello(
      QRegularExpression::anchoredPattern(QString::fromUtf8(forma.modello)));
  QString valore = opzioni.value(opzione);
  if (!modello.match(valore).hasMatch()) {
    throw ErroreUso{
        QStringLiteral("--%1 deve essere %2").arg(opzione, QString::fromUtf8(forma.detto))};
  }
  return valore;
}

Esito Nuovo(Contesto& contesto, const QCommandLineParser& opzioni) {
  QStringList campi;
  for (const Forma& forma : kForme) campi.append(Valore(opzioni, forma));
  contesto.stato.PathArchivio = opzioni.positionalArguments().constFirst();
  if (contesto.stato.PathArchivio.isEmpty()) {
    throw ErroreUso{QStringLiteral("Nome archivio non valido")};
  }
  contesto.uscita << CreaConsegna(contesto.stato, contesto.stato.PathArchivio, campi.join(u'|'),
                                  contesto.dialoghi)
                  << '\n';
  return Esito::Fatto;
}

}  // namespace

const Comando kNuovo = {
    "nuovo",
    "ARCHIVIO --consegna SIGLA --inizio NUMERO --centro CENTRO --anno ANNO",
    "Crea una consegna dall'archivio master (mdb/master.mdb) e ne scrive il nome. Il nome del\n"
    "file diventa maiuscolo; un file di quel nome viene sostituito, e resta accanto con\n"
    ".precedente in fondo al nome.\n\n"
    "  --consegna SIGLA  nome della consegna, estensione di tutte le uscite\n"
    "  --inizio NUMERO   numero del primo documento\n"
    "  --centro CENTRO   centro di spoglio, un carattere\n"
    "  --anno ANNO       anno di produzione, quattro cifre\n",
    1,
    kOpzioni,
    Nuovo};

}  // namespace torvi
