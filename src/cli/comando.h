// A command of torvi is a row of a table: its name, what it takes, what it says of itself, and the
// routine that does it.
#pragma once

#include <QCommandLineParser>
#include <QTextStream>
#include <span>

#include "cli/dialoghi_console.h"
#include "shell/stato_globale.h"

namespace torvi {

// What a command works with.
struct Contesto {
  StatoGlobale stato;
  QTextStream& uscita;
  DialoghiConsole dialoghi{uscita};
};

// Arguments that make no sense together; the command's usage is shown with the reason.
struct ErroreUso {
  QString motivo;
};

enum class Esito : int { Fatto = 0, Fallito = 1, Uso = 2 };

struct Opzione {
  const char* nome;
  const char* valore;  // what stands for its value in the usage; nullptr: a switch
};

struct Comando {
  const char* nome;
  const char* uso;    // arguments and options, as the first line of the help shows them
  const char* aiuto;  // what it does, in lines of the terminal
  int argomenti;      // how many there must be
  std::span<const Opzione> opzioni;
  Esito (*esegui)(Contesto& contesto, const QCommandLineParser& opzioni);
  bool ancheOltre = false;  // more arguments may follow
};

// The commands in the order of the help.
[[nodiscard]] std::span<const Comando> Comandi();

// One for each file comando_*.cpp.
extern const Comando kNuovo;
extern const Comando kEsporta;
extern const Comando kErrori;
extern const Comando kStampa;
extern const Comando kEstrai;
extern const Comando kLotto;
extern const Comando kControllo;
extern const Comando kCerca;
extern const Comando kComponi;
extern const Comando kConverti;
extern const Comando kVerifica;
extern const Comando kMaster;
extern const Comando kCatalogo;
extern const Comando kEsempio;

}  // namespace torvi
