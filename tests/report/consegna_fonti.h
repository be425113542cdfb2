// Deliveries made row by row for prints and extractions, and their outputs as lines.
#pragma once

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "export/codepagina.h"

namespace torvi {

// Lines as a file has them.
inline QByteArray Righe(const QStringList& righe) {
  return ConvertiAnsi((righe + QStringList{QString()}).join("\r\n"));
}

class ConsegnaFonti : public testing::Test {
 protected:
  qint64 Documento(const Campo& titolo = {}) const {
    const qint64 documento = Aggiungi(stato.DbArchivio, "TabDocumento", {});
    if (!titolo.Nullo()) Testo(documento, "0", titolo);
    return documento;
  }
  void Testo(qint64 documento, const char* tipo, const Campo& testo) const {
    const qint64 numero = Aggiungi(stato.DbArchivio, "TabTesto", {{"testo", testo}});
    Aggiungi(stato.DbArchivio, "LegameDocTesto",
             {{"IDDoc", documento}, {"IDTesto", numero}, {"Tipo", tipo}});
  }
  void Fonte(qint64 documento, Valori valori) const {
    const qint64 numero = Aggiungi(stato.DbArchivio, "TabFonte", valori);
    Cita(documento, numero);
  }
  void Cita(qint64 documento, qint64 fonte) const {
    Aggiungi(stato.DbArchivio, "LegameDocFonte", {{"IDDoc", documento}, {"IDFnt", fonte}});
  }
  [[nodiscard]] QByteArray Dump(const char* nome) const { return Byte(cartella.Dump(nome)); }
  void InBatch() {
    stato.ModoBatch = true;
    stato.FileBatch = cartella.Dump("comune.lst");
  }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  DialoghiScritti dialoghi;
};

}  // namespace torvi
