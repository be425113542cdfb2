#include "shell/informazione.h"

#include <gtest/gtest.h>

namespace torvi {
namespace {

TEST(Informazione, OffersCentresAndYearsInTheirOrder) {
  EXPECT_EQ(VociCentro().join(' '),
            "1 2 3 4 5 6 7 8 9 A B C D E F G H J K I L M N O P Q R S T U V W X Y Z");
  EXPECT_EQ(VociCentro().size(), 35);
  EXPECT_EQ(VociAnno(2001).join(' '), "2000 2001 2002 2003 2004 2005");
}

TEST(Informazione, WantsAllFourValues) {
  const CampiInformazione pieni = {"a01", "12", "A", "2001"};
  EXPECT_TRUE(Completi(pieni));
  EXPECT_EQ(Unisci(pieni), "a01|12|A|2001");
  using Membro = QString CampiInformazione::*;
  for (const auto& [membro, valore] : {std::pair<Membro, QString>{&CampiInformazione::consegna, {}},
                                       {&CampiInformazione::inizio, {}},
                                       {&CampiInformazione::centro, {}},
                                       {&CampiInformazione::anno, {}},
                                       {&CampiInformazione::centro, "Centro spoglio"},
                                       {&CampiInformazione::anno, "Anno produzione"}}) {
    CampiInformazione campi = pieni;
    campi.*membro = valore;
    EXPECT_FALSE(Completi(campi)) << valore.toStdString();
  }
}

}  // namespace
}  // namespace torvi
