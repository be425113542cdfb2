#include "cli/torvi.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <array>

#include "cli/comando.h"
#include "shell/avvio.h"
#include "shell/guardia.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

const QString kCartella = QStringLiteral("cartella");
const QString kAiuto = QStringLiteral("aiuto");

QString UsoGenerale() {
  QString testo = QStringLiteral(
      "Uso: torvi [--cartella DIR] COMANDO [ARGOMENTI]\n\n"
      "L'Editore Torvi senza finestre. Comandi:\n\n");
  for (const Comando& comando : Comandi()) {
    testo += QStringLiteral("  torvi %1 %2\n")
                 .arg(QString::fromUtf8(comando.nome), QString::fromUtf8(comando.uso));
  }
  return testo + QStringLiteral(
                     "\n"
                     "  --cartella DIR  cartella dell'applicazione, con mdb/ e dump/\n"
                     "                  (se manca l'opzione, quella del programma)\n"
                     "  --aiuto         questo testo; dopo un comando, l'aiuto del comando\n\n"
                     "Esito: 0 fatto, 1 errore o rifiuto, 2 uso sbagliato.\n");
}

QString UsoComando(const Comando& comando) {
  return QStringLiteral("Uso: torvi [--cartella DIR] %1 %2\n\n%3")
      .arg(QString::fromUtf8(comando.nome), QString::fromUtf8(comando.uso),
           QString::fromUtf8(comando.aiuto));
}

int Sbagliato(const QString& motivo, const QString& uso) {
  QTextStream(stderr) << "torvi: " << motivo << "\n\n" << uso;
  return static_cast<int>(Esito::Uso);
}

void AggiungiComuni(QCommandLineParser& opzioni) {
  opzioni.addOption({kCartella, {}, QStringLiteral("DIR")});
  opzioni.addOption(QCommandLineOption(kAiuto));
}

// What the parser says is English; the reasons that it can have are few.
QString Motivo(const QCommandLineParser& opzioni) {
  const QStringList ignote = opzioni.unknownOptionNames();
  return ignote.isEmpty() ? QStringLiteral("manca il valore di un'opzione, o ce n'è uno di troppo")
                          : QStringLiteral("opzione sconosciuta: ") + ignote.join(u' ');
}

QString CartellaApplicazione(const QString& scelta) {
  if (!scelta.isEmpty()) return QDir(scelta).absolutePath();
  PreparaCartelle(QCoreApplication::applicationDirPath());
  return QCoreApplication::applicationDirPath();
}

int EseguiComando(const Comando& comando, const QCommandLineParser& opzioni,
                  const QString& cartella, QTextStream& uscita) {
  Contesto contesto{{}, uscita};
  Esito esito = Esito::Fallito;
  try {
    Esegui(contesto.dialoghi, [&] {
      contesto.stato.CartellaApplicazione = CartellaApplicazione(cartella);
      TogliLasciati(contesto.stato.CartellaApplicazione);
      esito = comando.esegui(contesto, opzioni);
    });
  } catch (const Rifiuto& rifiuto) {
    contesto.dialoghi.Messaggio(
        QStringLiteral("Rifiutato: nessuna opzione risponde a \"%1\"").arg(rifiuto.domanda));
  } catch (const ErroreUso& errore) {
    return Sbagliato(errore.motivo, UsoComando(comando));
  }
  return static_cast<int>(esito);
}

int LeggiComando(const Comando& comando, const QStringList& argomenti, const QString& cartella,
                 QTextStream& uscita) {
  QCommandLineParser opzioni;
  AggiungiComuni(opzioni);
  for (const Opzione& opzione : comando.opzioni) {
    opzioni.addOption({QString::fromUtf8(opzione.nome), {}, QString::fromUtf8(opzione.valore)});
  }
  const bool letto = opzioni.parse(argomenti);
  if (opzioni.isSet(kAiuto)) {
    uscita << UsoComando(comando);
    return static_cast<int>(Esito::Fatto);
  }
  if (!letto) return Sbagliato(Motivo(opzioni), UsoComando(comando));
  const qsizetype dati = opzioni.positionalArguments().size();
  if (dati < comando.argomenti || (dati > comando.argomenti && !comando.ancheOltre)) {
    return Sbagliato(QStringLiteral("gli argomenti di \"%1\" sono %2%3")
                         .arg(QString::fromUtf8(comando.nome),
                              comando.ancheOltre ? QStringLiteral("almeno ") : QString())
                         .arg(comando.argomenti),
                     UsoComando(comando));
  }
  return EseguiComando(comando, opzioni,
                       opzioni.isSet(kCartella) ? opzioni.value(kCartella) : cartella, uscita);
}

}  // namespace

std::span<const Comando> Comandi() {
  static const std::array comandi = {kNuovo,    kEsporta,   kErrori,   kStampa,  kEstrai,
                                     kLotto,    kControllo, kCerca,    kComponi, kConverti,
                                     kVerifica, kMaster,    kCatalogo, kEsempio};
  return comandi;
}

int EseguiTorvi(const QStringList& argomenti, QTextStream& uscita) {
  QCommandLineParser opzioni;
  opzioni.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
  AggiungiComuni(opzioni);
  const bool letto = opzioni.parse(argomenti);
  if (opzioni.isSet(kAiuto)) {
    uscita << UsoGenerale();
    return static_cast<int>(Esito::Fatto);
  }
  if (!letto) return Sbagliato(Motivo(opzioni), UsoGenerale());
  QStringList resto = opzioni.positionalArguments();
  if (resto.isEmpty()) return Sbagliato(QStringLiteral("manca il comando"), UsoGenerale());
  const auto comando = std::ranges::find_if(
      Comandi(), [&](const Comando& uno) { return resto.first() == QLatin1String(uno.nome); });
  if (comando == Comandi().end()) {
    return Sbagliato(QStringLiteral("comando sconosciuto: ") + resto.first(), UsoGenerale());
  }
  return LeggiComando(*comando, resto, opzioni.value(kCartella), uscita);
}

}  // namespace torvi
