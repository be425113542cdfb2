// What `torvi componi` is asked, on an archive without rows.
#include <QJsonDocument>
#include <QTemporaryDir>

#include "archive/schema.h"
#include "cli/richiesta_fonte.h"
#include "ingresso.h"

namespace {

torvi::StatoGlobale StatoVuoto() {
  static const QTemporaryDir cartella;
  torvi::StatoGlobale stato;
  stato.CartellaApplicazione = cartella.path();
  const QString archivio = cartella.filePath(QStringLiteral("A01.MDB"));
  torvi::CreaDatabase(archivio, torvi::SchemaArchivio());
  stato.DbArchivio = torvi::OpenDatabase(archivio);
  return stato;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* byte, std::size_t quanti) {
  static torvi::StatoGlobale stato = StatoVuoto();
  const auto documento =
      QJsonDocument::fromJson(QByteArray::fromRawData(byte, static_cast<qsizetype>(quanti)));
  for (const char* nome : {"interna", "altra"}) {
    const auto* forma = torvi::TrovaForma(QLatin1String(nome));
    if (!torvi::ComponiRichiesta(*forma, stato, documento.object())
             .contains(QStringLiteral("risultato"))) {
      abort();
    }
  }
  return 0;
}
