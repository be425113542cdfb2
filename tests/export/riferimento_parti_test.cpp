#include "export/riferimento_parti.h"

#include <gtest/gtest.h>

namespace torvi {
namespace {

// The mark of a citation is shown as "~".
std::string Mostra(Parte parte) {
  parte.citazione.replace(kSegno, '~');
  return QString(parte.codice + "|" + parte.citazione + "|" + parte.messaggi.join(u'+'))
      .toStdString();
}

struct Caso {
  const char* testo;
  const char* atteso;
};

TEST(ParteData, TheYearIsTheLastFourDigitsAndIsComparedAsText) {
  constexpr Caso kCasi[] = {
      {"15/03/2001", "15032001|, ~D2001~d|"},
      {"00/00/1970", "00001970|, ~D1970~d|"},
      {"01/01/1969", "01011969|, ~D1969~d|Errore anno nel sottocampo DATA: "},
      {"01/01/2002", "01012002|, ~D2002~d|Errore anno nel sottocampo DATA: "},
      {"00/00", "0000|, ~D0000~d|Errore anno nel sottocampo DATA: "},
      {"15/03", "1503|, ~D1503~d|Errore anno nel sottocampo DATA: "},
      {"1/3/99", "1399|, ~D1399~d|Errore anno nel sottocampo DATA: "},
      {"15/03/200a", "1503200a|, ~D200a~d|Errore anno nel sottocampo DATA: "},
  };
  for (const Caso& caso : kCasi) {
    EXPECT_EQ(Mostra(ParteData(CifreData(caso.testo), "2001")), caso.atteso) << caso.testo;
  }
}

TEST(ParteFascicolo, DayAndMonthStandBehindTheIssue) {
  struct CasoFascicolo {
    const char* fascicolo;
    const char* data;
    const char* atteso;
  };
  constexpr CasoFascicolo kCasi[] = {
      {"3", "15/03/2001", "000000003|, fasc~. 3 (15 marzo)|"},
      {"3", "07/12/2001", "000000003|, fasc~. 3 (7 dicembre)|"},
      {"3", "31/01/2001", "000000003|, fasc~. 3 (31 gennaio)|"},
      {"3", "00/03/2001", "000000003|, fasc~. 3 (marzo)|"},
      {"3", "15/00/2001", "000000003|, fasc~. 3|"},
      {"3", "00/00", "000000003|, fasc~. 3|"},
      {"3", "15/03", "000000003|, fasc~. 3 (15 marzo)|"},
      {"3", "15/13/2001", "000000003|, fasc~. 3|Errore mese nel sottocampo DATA: "},
      {"3", "", "000000003|, fasc~. 3|Errore mese nel sottocampo DATA: "},
      {"3", "32/03/2001", "000000003|, fasc~. 3|Errore giorno nel sottocampo DATA: "},
      {"3", "xx/03/2001", "000000003|, fasc~. 3|Errore giorno nel sottocampo DATA: "},
      {"3", "32/13/2001", "000000003|, fasc~. 3|Errore mese nel sottocampo DATA: "},
      {"1-2", "00/00", "0001-0002|, fasc~. 1-2|"},
      {"12345-6-7", "00/00", "12345-06-7|, fasc~. 12345-6-7|"},
      {"-", "00/00", "0000-0000|, fasc~. -|"},
      {"1234567890", "00/00", "1234567890|, fasc~. 1234567890|"},
      {"1/2", "00/00", "0000001/2|, fasc~. 1/2|Fascicolo con '/': "},
      {"1/2-3", "00/13",
       "01/2-0003|, fasc~. 1/2-3|Fascicolo con '/': +Errore mese nel sottocampo "
       "DATA: "},
  };
  for (const CasoFascicolo& caso : kCasi) {
    EXPECT_EQ(Mostra(ParteFascicolo(caso.fascicolo, CifreData(caso.data))), caso.atteso)
        << caso.fascicolo << ' ' << caso.data;
  }
}

TEST(PartePagine, ARangeMustRiseUnlessAnAsteriskStands) {
  constexpr Caso kCasi[] = {
      {"101-120", "0101-0120| pagg~. 101-120|"},
      {"5", "000000005| pag~. 5|"},
      {"*12", "000000*12| pag~. *12|"},
      {"1234567890", "1234567890| pag~. 1234567890|"},
      {"9-10", "0009-0010| pagg~. 9-10|"},
      {"12345-12346", "12345-12346| pagg~. 12345-12346|"},
      {"120-101", "120| pagg~. 120-101|Errore di paginazione: "},
      {"15-15", "15| pagg~. 15-15|Errore di paginazione: "},
      {"15-", "15| pagg~. 15-|Errore di paginazione: "},
      {"-15", "0000-0015| pagg~. -15|"},
      {"12a-13", "012a-0013| pagg~. 12a-13|"},
      {"IX-XX", "IX| pagg~. IX-XX|Errore di paginazione: "},
      {"1-5-3", "0001-05-3| pagg~. 1-5-3|"},
      {"101-120 e 125", "0101-120 e 125| pagg~. 101-120 e 125|"},
      {"*3-*5", "00*3-00*5| pagg~. *3-*5|"},
      {"*5-3", "00*5-0003| pagg~. *5-3|"},
      {"5-*3", "0005-00*3| pagg~. 5-*3|"},
      {"p.5", "000000p.5| pag~. p.5|Errore di paginazione: "},
      {"7.5-3", "7.5| pagg~. 7.5-3|Errore di paginazione: +Errore di paginazione: "},
  };
  for (const Caso& caso : kCasi) {
    EXPECT_EQ(Mostra(PartePagine(caso.testo)), caso.atteso) << caso.testo;
  }
}

}  // namespace
}  // namespace torvi
