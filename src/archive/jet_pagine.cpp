#include "archive/jet_pagine.h"

#include <QFile>
#include <QtEndian>

#include "archive/errore.h"
#include "archive/jet.h"

namespace torvi::jet {
namespace {

constexpr std::size_t kVersione = 0x14;
constexpr char kJet4 = 1;
constexpr std::size_t kConteggioRighe = 12;
constexpr std::size_t kPrimaRiga = 14;
constexpr unsigned kScavalcata = 0x8000;
constexpr unsigned kAltrove = 0x4000;
constexpr unsigned kPosizione = 0x1fff;

QByteArray Inizio(const QString& percorso, qint64& lunghezza) {
  QFile file(percorso);
  if (!file.exists()) throw ErroreEsecuzione(Errore::DatabaseNonTrovato, percorso);
  if (!file.open(QIODevice::ReadOnly)) throw ErroreEsecuzione(Errore::PermessoNegato, percorso);
  lunghezza = file.size();
  return file.read(kVersione + 1);
}

}  // namespace

std::uint16_t Numero16(Ottetti dati, std::size_t posizione) {
  return qFromLittleEndian<std::uint16_t>(dati.data() + posizione);
}

std::uint32_t Numero32(Ottetti dati, std::size_t posizione) {
  return qFromLittleEndian<std::uint32_t>(dati.data() + posizione);
}

Pagine::Pagine(const QString& percorso) : percorso_(percorso) {
  qint64 lunghezza = 0;
  const QByteArray inizio = Inizio(percorso, lunghezza);
  if (!EFileJet(percorso)) Danno(QStringLiteral("l'inizio non è quello di un file Jet"));
  if (inizio.back() != kJet4) Danno(QStringLiteral("la versione del formato non è Jet 4"));
  if (lunghezza % kPagina != 0) Danno(QStringLiteral("è troncato"));
  quante_ = static_cast<std::uint32_t>(lunghezza / kPagina);
  // Names would come out in the character set that this variable names.
  qunsetenv("MDBICONV");
  motore_.reset(mdb_open(QFile::encodeName(percorso).constData(), MDB_NOFLAGS));
  if (!motore_) Danno(QStringLiteral("la prima pagina"));
}

void Pagine::RichiediPagina(std::uint32_t numero) const {
  if (numero == 0 || numero >= quante_) {
    Danno(QStringLiteral("manca la pagina %1").arg(numero));
  }
}

Ottetti Pagine::Pagina(std::uint32_t numero) {
  RichiediPagina(numero);
  if (mdb_read_pg(motore_.get(), numero) != kPagina) {
    throw ErroreEsecuzione(Errore::ErroreDispositivo, percorso_);
  }
  return {motore_->pg_buf, kPagina};
}

Ottetti Pagine::PaginaLontana(std::uint32_t numero) {
  RichiediPagina(numero);
  if (lontana_ != numero) {
    lontana_ = 0;
    if (mdb_read_alt_pg(motore_.get(), numero) != kPagina) {
      throw ErroreEsecuzione(Errore::ErroreDispositivo, percorso_);
    }
    lontana_ = numero;
  }
  return {motore_->alt_pg_buf, kPagina};
}

RigaGrezza Pagine::RigaLontana(std::uint32_t puntatore) {
  const Ottetti pagina = PaginaLontana(puntatore >> 8);
  if (pagina[0] != static_cast<std::uint8_t>(TipoPagina::Dati)) {
    Danno(QStringLiteral("la pagina %1 non è di dati").arg(puntatore >> 8));
  }
  return Riga(pagina, puntatore & 0xff);
}

std::size_t Pagine::QuanteRighe(Ottetti pagina) const {
  const std::size_t quante = Numero16(pagina, kConteggioRighe);
  if (kPrimaRiga + 2 * quante > kPagina) Danno(QStringLiteral("una pagina di righe"));
  return quante;
}

RigaGrezza Pagine::Riga(Ottetti pagina, std::size_t numero) const {
  const std::size_t quante = QuanteRighe(pagina);
  if (numero >= quante) Danno(QStringLiteral("il rinvio a una riga"));
  const unsigned stato = Numero16(pagina, kPrimaRiga + 2 * numero);
  const std::size_t inizio = stato & kPosizione;
  const std::size_t fine =
      numero == 0 ? kPagina : Numero16(pagina, kPrimaRiga + 2 * (numero - 1)) & kPosizione;
  if (inizio < kPrimaRiga + 2 * quante || inizio > fine || fine > kPagina) {
    Danno(QStringLiteral("il posto di una riga"));
  }
  return {pagina.subspan(inizio, fine - inizio), (stato & kAltrove) != 0,
          (stato & kScavalcata) != 0};
}

void Pagine::Danno(const QString& dove) const {
  throw ErroreEsecuzione(
      Errore::FormatoNonRiconosciuto,
      QStringLiteral("%1. Il file è danneggiato o non è un archivio (%2): usarne una copia integra "
                     "o ripararlo con il programma che lo ha scritto.")
          .arg(percorso_, dove));
}

}  // namespace torvi::jet
