#include "export/nomi_responsabili.h"

#include "shell/valori.h"

namespace torvi {
namespace {

const RigheCondivise kResponsabili = {
    .istruzione = QStringLiteral("select * from tabResponsabilita"),
    .condizione = QStringLiteral(" where IDResponsabilita = ?"),
    .chiave = "IDResponsabilita"};

QString ComponiNome(const Recordset& riga, QLatin1StringView fra) {
  QString primo = Trim(riga.Fields("PrimoElemento").Testo());
  if (riga.Fields("flagCollettivo").Logico()) return primo;
  return primo + fra + Trim(riga.Fields("SecondoElemento").Testo());
}

}  // namespace

NomiResponsabili::NomiResponsabili(const Database& archivio, QLatin1StringView fra)
    : noti_(archivio, kResponsabili,
            [fra](const Recordset& riga) { return ComponiNome(riga, fra); }) {}

}  // namespace torvi
