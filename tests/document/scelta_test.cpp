#include "document/scelta.h"

#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"

namespace torvi {
namespace {

const QString kSceglie = "Confermi cancellazione?";

TEST(Scelta, NumbersFollowThePlaceInTheList) {
  ArchivioDiProva prova;
  prova.Metti("TabDocumento", {{"IDRifBibl", 1}});
  SceltaDoc scelta;
  RiempiScelta(prova.stato, prova.dialoghi, scelta);
  EXPECT_EQ(scelta.lstDocumento.join('|'), "1 --> 2001A0012|2 --> 2001A0013|3 --> 2001A0014");
  CliccaScelta(prova.stato, scelta, 1);
  EXPECT_EQ(prova.stato.IDDocumentoScelto, "2");

  prova.dialoghi.AttendeDomanda(kSceglie, "Attenzione!", Pulsanti::SiNo, Risposta::Si);
  EXPECT_TRUE(CancellaScelte(prova.stato, prova.dialoghi, scelta, {"1 --> x", "2 --> y"}));
  EXPECT_EQ(scelta.lstDocumento.join('|'), "3 --> 2001A0012");
  EXPECT_FALSE(EditaScelta(prova.stato, prova.dialoghi, scelta));
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "Scegli un documento!");
  // The rows that belonged to the deleted documents stay.
  EXPECT_FALSE(prova.stato.DbArchivio.OpenRecordset("LegameDocTesto").Eof());
  // A number that was given out is not given again.
  EXPECT_EQ(prova.Metti("TabDocumento", {{"IDRifBibl", 1}}), 4);
}

TEST(Scelta, DeletesNothingUnlessAskedTo) {
  ArchivioDiProva prova;
  SceltaDoc scelta;
  RiempiScelta(prova.stato, prova.dialoghi, scelta);
  EXPECT_FALSE(CancellaScelte(prova.stato, prova.dialoghi, scelta, {}));
  EXPECT_EQ(prova.dialoghi.Parole().last().testo, "Nessuna selezione effettuata");
  EXPECT_EQ(prova.dialoghi.Parole().last().titolo, "Attenzione!");
  prova.dialoghi.AttendeDomanda(kSceglie, "Attenzione!", Pulsanti::SiNo, Risposta::No);
  EXPECT_FALSE(CancellaScelte(prova.stato, prova.dialoghi, scelta, scelta.lstDocumento));
  EXPECT_FALSE(prova.stato.DbArchivio.OpenRecordset("TabDocumento").Eof());

  prova.dialoghi.AttendeDomanda(kSceglie, "Attenzione!", Pulsanti::SiNo, Risposta::Si);
  prova.stato.DbArchivio.Close();
  EXPECT_FALSE(CancellaScelte(prova.stato, prova.dialoghi, scelta, scelta.lstDocumento));
  EXPECT_TRUE(prova.dialoghi.UltimoMessaggio().startsWith("Error number: 3420\r"));
  EXPECT_EQ(scelta.lstDocumento.size(), 2);
}

}  // namespace
}  // namespace torvi
