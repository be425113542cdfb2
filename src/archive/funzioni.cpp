#include <sqlite3.h>

#include <QString>
#include <new>

#include "archive/collazione.h"

namespace torvi {
namespace {

constexpr int kOpzioni = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

int Confronta(void* /*niente*/, int lunghezzaA, const void* a, int lunghezzaB, const void* b) {
  return ConfrontaItaliano({static_cast<const char*>(a), static_cast<std::size_t>(lunghezzaA)},
                           {static_cast<const char*>(b), static_cast<std::size_t>(lunghezzaB)});
}

// Empty also for Null, which the callers have sorted out before.
std::string_view TestoDi(sqlite3_value* valore) {
  const auto* byte = reinterpret_cast<const char*>(sqlite3_value_text(valore));
  if (byte == nullptr) return {};
  return {byte, static_cast<std::size_t>(sqlite3_value_bytes(valore))};
}

bool HaNull(int quanti, sqlite3_value** valori) {
  for (int i = 0; i < quanti; ++i) {
    if (sqlite3_value_type(valori[i]) == SQLITE_NULL) return true;
  }
  return false;
}

// X LIKE Y arrives as like(Y, X). Null is like nothing: the result is Null.
void Somiglia(sqlite3_context* esito, int quanti, sqlite3_value** valori) {
  if (HaNull(quanti, valori)) return;
  sqlite3_result_int(esito, SomigliaA(TestoDi(valori[1]), TestoDi(valori[0])) ? 1 : 0);
}

using Taglio = QString (*)(const QString& testo, int quanti);

template <Taglio taglio>
void Taglia(sqlite3_context* esito, int quanti, sqlite3_value** valori) {
  if (HaNull(quanti, valori)) return;
  const int lunghezza = sqlite3_value_int(valori[1]);
  if (lunghezza < 0) return sqlite3_result_error(esito, "lunghezza negativa", -1);
  try {
    const std::string_view testo = TestoDi(valori[0]);
    const QByteArray pezzo =
        taglio(QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())), lunghezza)
            .toUtf8();
    sqlite3_result_text64(esito, pezzo.constData(), static_cast<sqlite3_uint64>(pezzo.size()),
                          SQLITE_TRANSIENT, SQLITE_UTF8);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(esito);
  }
}

QString Sinistra(const QString& testo, int quanti) { return testo.left(quanti); }
QString Destra(const QString& testo, int quanti) { return testo.right(quanti); }

}  // namespace

void RegistraFunzioni(sqlite3* motore) {
  const auto registra = [motore](const char* nome, auto funzione) {
    sqlite3_create_function_v2(motore, nome, 2, kOpzioni, nullptr, funzione, nullptr, nullptr,
                               nullptr);
  };
  sqlite3_create_collation_v2(motore, "ITALIANO", SQLITE_UTF8, nullptr, Confronta, nullptr);
  // The operator of the engine with the wild cards of the dialect.
  registra("like", Somiglia);
  registra("left", Taglia<Sinistra>);
  registra("right", Taglia<Destra>);
}

}  // namespace torvi
