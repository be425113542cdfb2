// Shorthand for the rows of the schema tables. Private to archive/.
#pragma once

#include "archive/schema.h"

namespace torvi::schema {

inline Colonna Contatore(const QString& nome) { return {nome, TipoColonna::Contatore}; }
inline Colonna Intero(const QString& nome) { return {nome, TipoColonna::Intero}; }
// An integer that reads 0 in a row written without it.
inline Colonna InteroZero(const QString& nome) {
  return {nome, TipoColonna::Intero, 0, QStringLiteral("0")};
}
inline Colonna Testo(const QString& nome, int larghezza = 0) {
  return {nome, TipoColonna::Testo, larghezza};
}
inline Colonna Memo(const QString& nome) { return {nome, TipoColonna::Memo}; }
inline Colonna Logico(const QString& nome) { return {nome, TipoColonna::Logico}; }
inline Colonna Data(const QString& nome) { return {nome, TipoColonna::Data}; }

inline Indice Primaria(const QString& colonna) {
  return {QStringLiteral("PrimaryKey"), {colonna}, true};
}
inline Indice Unico(const QString& nome) { return {nome, {nome}, true}; }
// An index named as the column it stands on.
inline Indice Semplice(const QString& nome) { return {nome, {nome}, false}; }

}  // namespace torvi::schema
