#include "document/archivio_di_prova.h"

#include "document/carica.h"

namespace torvi {

ArchivioDiProva::ArchivioDiProva() : stato(cartella.StatoConCodici()) {
  Documento2001();
  Documento1998();
}

void ArchivioDiProva::Documento2001() {
  const qint64 rivista = stato.DbArchivio.OpenRecordset("select IDRivista from TabRivista")
                             .Fields("IDRivista")
                             .Intero();
  const qint64 riferimento = Metti("TabRifBibl", {{"IDRivista", rivista},
                                                  {"Fascicolo", "3"},
                                                  {"Annata", "54"},
                                                  {"Parte", "I"},
                                                  {"Data", "03/00/2001"}});
  Metti("TabDocumento", {{"IDRifBibl", riferimento},
                         {"pagine", "12-34"},
                         {"LIN", "00"},
                         {"Bib", "1"},
                         {"td", "03"},
                         {"TAbs", "500"}});
  const qint64 rossi = Metti(
      "TabResponsabilita",
      {{"PrimoElemento", "D'Amico"}, {"SecondoElemento", "Lucia"}, {"flagCollettivo", false}});
  const qint64 ente =
      Metti("TabResponsabilita", {{"PrimoElemento", "Gruppo di studio"}, {"flagCollettivo", true}});
  Metti("LegameDocResp", {{"IDDoc", 1}, {"IDResponsabilita", ente}, {"flagAutore", false}});
  Metti("LegameDocResp", {{"IDDoc", 1}, {"IDResponsabilita", rossi}, {"flagAutore", true}});
  for (int tipo = 0; tipo <= 8; ++tipo) {
    const qint64 testo = Metti("TabTesto", {{"testo", QStringLiteral("testo %1").arg(tipo)}});
    Metti("LegameDocTesto", {{"IDDoc", 1}, {"IDTesto", testo}, {"Tipo", QString::number(tipo)}});
  }
}

void ArchivioDiProva::Documento1998() {
  const qint64 riferimento = Metti("TabRifBibl", {{"IDRivista", 9999}, {"Data", "00/00"}});
  Metti("TabDocumento",
        {{"IDRifBibl", riferimento}, {"LIN", "00"}, {"Bib", ""}, {"td", ""}, {"TAbs", ""}});
}

void ArchivioDiProva::Apri(const QString& numero) {
  stato.DocumentoNuovo = numero.isEmpty();
  stato.IDDocumentoScelto = numero;
  CaricaForma(documento);
}

}  // namespace torvi
