#include "shell/percorsi.h"

#include <QDir>
#include <QFileInfo>

#include "archive/errore.h"

namespace torvi {
namespace {

QString TrovaNome(const QDir& cartella, const QString& nome) {
  if (cartella.exists(nome)) return nome;
  const QStringList voci =
      cartella.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  for (const QString& voce : voci) {
    if (voce.compare(nome, Qt::CaseInsensitive) == 0) return voce;
  }
  return nome;
}

}  // namespace

QString TrovaPercorso(const QString& percorso) {
  if (percorso.isEmpty() || QFileInfo::exists(percorso)) return percorso;
  const QFileInfo voce(percorso);
  const QString cartella = TrovaPercorso(voce.path());
  const QString nome = TrovaNome(QDir(cartella), voce.fileName());
  if (nome == voce.fileName() && cartella == voce.path()) return percorso;
  return QDir(cartella).filePath(nome);
}

QString PostoVero(const QString& percorso) {
  constexpr int kMassimoLegami = 8;
  QFileInfo voce(percorso);
  for (int i = 0; i < kMassimoLegami && !voce.exists() && voce.isSymLink(); ++i) {
    voce.setFile(voce.symLinkTarget());
  }
  if (voce.exists()) return voce.canonicalFilePath();
  const QString cartella = QFileInfo(voce.path()).canonicalFilePath();
  return cartella.isEmpty() ? percorso : QDir(cartella).filePath(voce.fileName());
}

QString FileArchivio(const QString& cartellaApplicazione, const QString& nome) {
  return TrovaPercorso(cartellaApplicazione + QLatin1String("/mdb/") + nome);
}

QString FileUscita(const QString& cartellaApplicazione, const QString& nome) {
  return TrovaPercorso(cartellaApplicazione + QLatin1String("/dump/") + nome);
}

QString CartellaUscite(const QString& cartellaApplicazione) {
  return TrovaPercorso(cartellaApplicazione + QLatin1String("/dump"));
}

void PreparaCartelle(const QString& cartellaApplicazione) {
  for (const char* nome : {"mdb", "dump"}) {
    const QString cartella =
        TrovaPercorso(cartellaApplicazione + QLatin1Char('/') + QLatin1String(nome));
    if (QFileInfo(cartella).isDir() || QDir().mkpath(cartella)) continue;
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, cartella);
  }
}

QStringList ElencoFile(const QString& cartella, const QString& modello) {
  QStringList modelli = {modello};
  if (modello.endsWith(QLatin1String(".*"))) modelli += modello.chopped(2);
  return QDir(cartella).entryList(modelli, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

QString NomeMaiuscolo(const QString& percorso) {
  const qsizetype inizio = percorso.lastIndexOf(QLatin1Char('/')) + 1;
  return percorso.left(inizio) + percorso.mid(inizio).toUpper();
}

}  // namespace torvi
