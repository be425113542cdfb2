#include "testi/dizionario.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <QStringEncoder>
#include <array>
#include <hunspell/hunspell.hxx>
#include <optional>

#include "archive/errore.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

struct NomiLingua {
  Lingua lingua;
  const char* file;  // without extension
  const char* nome;
  const char* pacchetto;
};

constexpr std::array kLingue = {
    NomiLingua{Lingua::Italiano, "it_IT", "italiano", "hunspell-it"},
    NomiLingua{Lingua::Inglese, "en_US", "inglese", "hunspell-en-us"},
};

const NomiLingua& Nomi(Lingua lingua) { return kLingue.at(static_cast<std::size_t>(lingua)); }

struct Coppia {
  QString aff;
  QString dic;
};

std::optional<Coppia> Cerca(const QString& cartella, const char* nome) {
  const QString base = cartella + QLatin1Char('/') + QLatin1String(nome);
  Coppia coppia = {.aff = TrovaPercorso(base + QLatin1String(".aff")),
                   .dic = TrovaPercorso(base + QLatin1String(".dic"))};
  if (!QFileInfo(coppia.aff).isFile() || !QFileInfo(coppia.dic).isFile()) return std::nullopt;
  return coppia;
}

// The engine takes an unreadable or foreign file for an empty dictionary, in which every word would
// be wrong.
void ControllaDizionario(const QString& fileAff, const QString& fileDic) {
  QFile dic(fileDic);
  QFile aff(fileAff);
  QByteArray prima;
  if (aff.open(QIODevice::ReadOnly) && dic.open(QIODevice::ReadOnly)) prima = dic.readLine();
  if (prima.startsWith("\xEF\xBB\xBF")) prima.remove(0, 3);
  if (prima.trimmed().toInt() > 0) return;
  throw ErroreEsecuzione::ConDescrizione(
      Errore::FormatoNonRiconosciuto,
      QStringLiteral("Il dizionario «%1» non si può leggere o è rovinato: va sostituito con una "
                     "copia integra.")
          .arg(QDir::toNativeSeparators(fileDic)));
}

QByteArray NomeCodifica(const Hunspell& hunspell) {
  QByteArray nome = QByteArray::fromStdString(hunspell.get_dict_encoding());
  if (nome.startsWith("microsoft-cp")) nome.replace("microsoft-cp", "windows-");
  return nome;
}

}  // namespace

QString NomeLingua(Lingua lingua) { return QLatin1String(Nomi(lingua).nome); }

struct Dizionario::Motore {
  Motore(const QString& fileAff, const QString& fileDic)
      : hunspell(QFile::encodeName(fileAff).constData(), QFile::encodeName(fileDic).constData()),
        codifica(NomeCodifica(hunspell)),
        inByte(codifica.constData(), QStringConverter::Flag::Stateless),
        inTesto(codifica.constData(), QStringConverter::Flag::Stateless) {}

  // Nothing where the dictionary's encoding lacks a character of the word.
  std::optional<std::string> Byte(const QString& parola) {
    const QByteArray byte = inByte.encode(parola);
    if (inByte.hasError()) {
      inByte.resetState();
      return std::nullopt;
    }
    return byte.toStdString();
  }

  Hunspell hunspell;
  QByteArray codifica;
  QStringEncoder inByte;
  QStringDecoder inTesto;
};

Dizionario::Dizionario(const QString& fileAff, const QString& fileDic) {
  ControllaDizionario(fileAff, fileDic);
  motore_ = std::make_unique<Motore>(fileAff, fileDic);
  if (motore_->inByte.isValid() && motore_->inTesto.isValid()) return;
  throw ErroreEsecuzione::ConDescrizione(
      Errore::FormatoNonRiconosciuto,
      QStringLiteral("Il dizionario «%1» usa una codifica sconosciuta: %2.")
          .arg(QDir::toNativeSeparators(fileAff), QString::fromLatin1(motore_->codifica)));
}

Dizionario::~Dizionario() = default;

bool Dizionario::Conosce(const QString& parola) const {
  const std::optional<std::string> byte = motore_->Byte(parola);
  return byte && motore_->hunspell.spell(*byte);
}

QStringList Dizionario::Suggerimenti(const QString& parola) const {
  QStringList suggerimenti;
  const std::optional<std::string> byte = motore_->Byte(parola);
  if (!byte) return suggerimenti;
  for (const std::string& suggerimento : motore_->hunspell.suggest(*byte)) {
    suggerimenti += motore_->inTesto.decode(QByteArray::fromStdString(suggerimento));
  }
  return suggerimenti;
}

Dizionari::Dizionari(QString cartellaApplicazione, QString cartellaSistema)
    : cartellaApplicazione_(std::move(cartellaApplicazione)),
      cartellaSistema_(std::move(cartellaSistema)) {}

const Dizionario& Dizionari::Di(Lingua lingua) {
  if (const auto aperto = aperti_.find(lingua); aperto != aperti_.end()) return aperto->second;
  const NomiLingua& nomi = Nomi(lingua);
  const QString propria = cartellaApplicazione_ + QLatin1String("/dizionari");
  std::optional<Coppia> file = Cerca(propria, nomi.file);
  if (!file) file = Cerca(cartellaSistema_, nomi.file);
  if (!file) {
    throw ErroreEsecuzione::ConDescrizione(
        Errore::FileNonTrovato,
        QStringLiteral("Manca il dizionario %1: i file %2.aff e %2.dic.\nVanno copiati nella "
                       "cartella «%3»; in alternativa si installa il pacchetto %4.\nIl testo è "
                       "rimasto com'era.")
            .arg(QLatin1String(nomi.nome), QLatin1String(nomi.file),
                 QDir::toNativeSeparators(propria), QLatin1String(nomi.pacchetto)));
  }
  return aperti_.try_emplace(lingua, file->aff, file->dic).first->second;
}

}  // namespace torvi
