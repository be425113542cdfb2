#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/comando.h"
#include "cli/json_fonte.h"
#include "fonti/anteprima.h"
#include "shell/apertura.h"
#include "shell/guardia.h"

namespace torvi {

namespace {

struct Forma {
  const char* nome;
  SalvaFonte salva;
  ControlliFonte (*leggi)(const QJsonObject&);
};
constexpr Forma kForme[] = {{"interna", SalvaFonteInterna, ControlliInterna},
                            {"altra", SalvaFonteAltra, ControlliAltra}};

const Forma& FormaScelta(const QString& nome) {
  for (const Forma& forma : kForme) {
    if (nome == QLatin1String(forma.nome)) return forma;
  }
  throw ErroreUso{QStringLiteral("la forma deve essere interna o altra")};
}

QJsonObject Componi(const Forma& forma, StatoGlobale& stato, const QJsonObject& richiesta) {
  DialoghiRegistrati dialoghi(richiesta.value(QStringLiteral("risposte")).toArray());
  stato.NuovaFonte = richiesta.value(QStringLiteral("NuovaFonte")).toBool(true);
  stato.RigheFonte.clear();
  QJsonValue risultato = QStringLiteral("errore");
  Esegui(dialoghi, [&] {
    const ControlliFonte controlli =
        forma.leggi(richiesta.value(QStringLiteral("controlli")).toObject());
    risultato = static_cast<int>(forma.salva(stato, dialoghi, controlli));
  });
  const bool tolta = stato.RigheFonte.empty();
  return {{QStringLiteral("risultato"), risultato},
          {QStringLiteral("messaggi"), dialoghi.Messaggi()},
          {QStringLiteral("riga"), tolta ? QJsonValue() : JsonFonte(stato.RigheFonte.back())}};
}

Esito ComponiFonti(Contesto& contesto, const QCommandLineParser& righe) {
  const QStringList argomenti = righe.positionalArguments();
  const Forma& forma = FormaScelta(argomenti.at(0));
  contesto.stato.DbArchivio = ApriArchivio(argomenti.at(1), contesto.dialoghi);
  QFile ingresso;
  if (!ingresso.open(stdin, QIODevice::ReadOnly)) return Esito::Fallito;
  for (qint64 numero = 1; !ingresso.atEnd(); ++numero) {
    const QByteArray linea = ingresso.readLine().trimmed();
    if (linea.isEmpty()) continue;
    QJsonParseError guasto;
    const QJsonDocument richiesta = QJsonDocument::fromJson(linea, &guasto);
    if (!richiesta.isObject()) {
      contesto.dialoghi.Messaggio(QStringLiteral("La riga %1 non è un oggetto JSON: %2")
                                      .arg(numero)
                                      .arg(guasto.errorString()));
      return Esito::Fallito;
    }
    const QJsonObject risposta = Componi(forma, contesto.stato, richiesta.object());
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
    "I controlli hanno i nomi di quelli della forma; quelli che mancano sono vuoti. Le risposte\n"
    "sono si, no o annulla. Esce:\n\n"
    "  {\"risultato\": 1, \"messaggi\": [...], \"riga\": {\"TP\": \"LICO\", \"Testo\": \"...\", "
    "...}}\n\n"
    "Il risultato è 1 (composta), 0 (resta una riga incompleta), -1 (nessuna riga) o \"errore\".\n",
    2,
    {},
    ComponiFonti};

}  // namespace torvi
