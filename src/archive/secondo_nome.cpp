#include "archive/secondo_nome.h"

#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "archive/file_nuovo.h"

namespace torvi {

namespace {

std::filesystem::path Percorso(const QString& percorso) {
  return QFileInfo(percorso).filesystemFilePath();
}

}  // namespace

bool StessoFile(const QString& a, const QString& b) {
  std::error_code assente;
  return std::filesystem::equivalent(Percorso(a), Percorso(b), assente);
}

SecondoNome::SecondoNome(const QString& percorso, QString conservato)
    : conservato_(std::move(conservato)) {
  if (StessoFile(percorso, conservato_)) return;
  std::error_code impossibile;
  std::filesystem::create_hard_link(Percorso(percorso), Percorso(conservato_), impossibile);
  if (impossibile) {
    // A file system without second names, or a file of that name since a moment ago.
    FileNuovo copia(conservato_);
    copia.Copia(percorso);
    copia.Consegna();
  }
  fatto_ = true;
}

SecondoNome::~SecondoNome() {
  if (fatto_) QFile::remove(conservato_);
}

}  // namespace torvi
