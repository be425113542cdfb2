#include <QFile>
#include <QJsonDocument>

#include "cli/comando.h"
#include "cli/richiesta_fonte.h"
#include "shell/apertura.h"

namespace torvi {

namespace {

const FormaFonte& FormaScelta(const QString& nome) {
  const FormaFonte* forma = TrovaForma(nome);
  if (forma == nullptr) throw ErroreUso{QStringLiteral("la forma deve essere interna o altra")};
  return *forma;
}

Esito ComponiFonti(Contesto& contesto, const QCommandLineParser& opzioni) {
  const QStringList argomenti = opzioni.positionalArguments();
  const FormaFonte& forma = FormaScelta(argomenti.at(0));
  contesto.stato.DbArchivio = ApriConsegna(argomenti.at(1), contesto.dialoghi);
  QFile ingresso;
  if (!ingresso.open(stdin, QIODevice::ReadOnly)) return Esito::Fallito;
  for (qint64 numero = 1; !ingresso.atEnd(); ++numero) {
    const QByteArray linea = ingresso.readLine().trimmed();
    if (linea.isEmpty()) continue;
    const QJsonDocument richiesta = QJsonDocument::fromJson(linea);
    if (!richiesta.isObject()) {
      contesto.dialoghi.Messaggio(QStringLiteral("La riga %1 non è un oggetto JSON").arg(numero));
      return Esito::Fallito;
    }
    const QJsonObject risposta = ComponiRichiesta(forma, contesto.stato, richiesta.object());
    contesto.uscita << QString::fromUtf8(QJsonDocument(risposta).toJson(QJsonDocument::Compact))
                    << '\n';
    contesto.uscita.flush();
  }
  return Esito::Fatto;
}

}  // namespace

const Comando kComponi = {
    "componi",
    "interna|altra ARCHIVIO",
    "Compone citazioni come fa \"Salva\" sulla forma delle fonti interne o di altro diritto: "
    "legge\n"
    "dall'ingresso un oggetto JSON per riga e scrive una riga per ciascuno. L'archivio non "
    "cambia.\n\n"
    "  {\"NuovaFonte\": true, \"risposte\": [\"si\"], \"controlli\": {\"indice\": 2, "
    "\"ComboFonte\":\n"
    "   \"Legge costituzionale\", \"lstFonte\": null, \"txtArt\": \"1\", \"ComboMese\": "
    "\"febbraio\"}}\n\n"
    "I controlli hanno i nomi di quelli della forma; quelli che mancano sono vuoti, e un atto "
    "deve\n"
    "essere nell'elenco del suo tipo. Le risposte\n"
    "sono si, no o annulla. Esce:\n\n"
    "  {\"risultato\": 1, \"messaggi\": [...], \"riga\": {\"TP\": \"LICO\", \"Testo\": \"...\", "
    "...}}\n\n"
    "Il risultato è 1 (composta), 0 (resta una riga incompleta), -1 (nessuna riga) o \"errore\".\n",
    2,
    {},
    ComponiFonti};

}  // namespace torvi
