#include "export/codepagina.h"

#include <gtest/gtest.h>

namespace torvi {
namespace {

TEST(CodePagina, OemTakesTheNearestCharacterOrAQuestionMark) {
  struct Caso {
    const char16_t* testo;
    const char* byte;
  };
  constexpr Caso kCasi[] = {
      {u"abc XYZ 0~\x7f", "abc XYZ 0~\x7f"},
      {u"\x01\x06\t\r\n\x1f", "\x01\x06\t\r\n\x1f"},
      {u"àèéìòù", "\x85\x8a\x82\x8d\x95\x97"},
      {u"ÀÈÉÌÒÙ", "\xb7\xd4\x90\xde\xe3\xeb"},
      {u"ÇüñßØ×£§¶°·²«»", "\x80\x81\xa4\xe1\x9d\x9e\x9c\xf5\xf4\xf8\xfa\xfd\xae\xaf"},
      {u"\u00a0\u00ad", "\xff\xf0"},
      {u"’‘“”„–—…", "''\"\"\"--."},
      {u"ŠšŽžŸŒœŁłğĂ", "SsZzYOoLlgA"},
      {u"ếề", "\x88\x88"},
      {u"ỄựỹỲ", "\xd2uyY"},
      {u"€ẞΩж\u0301\u0085", "??????"},
      {u"𝄞x", "??x"},
      {u"", ""},
  };
  for (const Caso& caso : kCasi) {
    const QString testo = QString::fromUtf16(caso.testo);
    EXPECT_EQ(ConvertiOem(testo).toStdString(), caso.byte) << testo.toStdString();
  }
}

TEST(CodePagina, OemTreatsEveryPlaceOfALongTextAlike) {
  const QString ascii = QString(70, u'a');
  for (int i = 0; i < ascii.size(); ++i) {
    QString testo = ascii;
    testo[i] = u'è';
    std::string byte = "prima";
    AccodaOem(byte, testo);
    EXPECT_EQ(byte, "prima" + std::string(i, 'a') + "\x8a" + std::string(69 - i, 'a'));
  }
}

TEST(CodePagina, OemHoldsEveryLetterOfLatin1InItsOwnByte) {
  QString latin1;
  for (char16_t c = 0xA0; c <= 0xFF; ++c) latin1 += QChar(c);
  QByteArray byte = ConvertiOem(latin1);
  std::sort(byte.begin(), byte.end());
  EXPECT_EQ(std::unique(byte.begin(), byte.end()), byte.end());
  EXPECT_FALSE(byte.contains('?'));
}

TEST(CodePagina, AnsiReadsBackEveryByteAndLacksTheRest) {
  QByteArray tutti;
  for (int byte = 0; byte < 256; ++byte) tutti += static_cast<char>(byte);
  EXPECT_EQ(ConvertiAnsi(DaAnsi(tutti)), tutti);
  EXPECT_EQ(ConvertiAnsi(u"è € ’“”…Ž"), QByteArray("\xe8 \x80 \x92\x93\x94\x85\x8e"));
  EXPECT_EQ(ConvertiAnsi(u"Łğ\u0080𝄞"), QByteArray("?????"));
}

}  // namespace
}  // namespace torvi
