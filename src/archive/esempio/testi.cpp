#include "archive/esempio/testi.h"

#include <algorithm>
#include <array>

#include "archive/esempio/frasi.h"
#include "archive/esempio/lingua.h"
#include "archive/esempio/nomi.h"

namespace torvi::esempio {

namespace {

// A language in which documents are written.
struct Lingua {
  const char* codice;
  Frasi (*titoli)();
  QStringView Tema::*tema;
};
constexpr std::array kLingue = {
    Lingua{"01", TitoliInglesi, &Tema::inglese},
    Lingua{"02", TitoliFrancesi, &Tema::francese},
    Lingua{"03", TitoliTedeschi, &Tema::tedesco},
};

QString ConSoggetto(QStringView frase, QStringView soggetto) {
  const std::array ricambi = {Ricambio{u"{E}", soggetto.toString()}};
  return Maiuscola(Sostituisci(frase.toString(), ricambi));
}

// A rule that the document cites; a judgment would be out of place in these phrases.
QString Disposizione(const Documento& documento, Sorte& sorte) {
  if (!documento.fonti.empty()) {
    const auto& fonte = sorte.Scegli(documento.fonti);
    if (fonte.tp.startsWith(u'L') || fonte.tp.startsWith(u'N')) return fonte.testo;
  }
  return QStringLiteral("quella disposizione");
}

QString Periodo(QStringView frase, const Documento& documento, const Tema& tema, Sorte& sorte) {
  const QString autori =
      documento.persone.size() > 1 ? QStringLiteral("degli AA.") : QStringLiteral("dell’A.");
  const std::array ricambi = {Ricambio{u"{F}", Disposizione(documento, sorte)},
                              Ricambio{u"{AUT}", autori}};
  return Sostituisci(ConTema(frase, tema.italiano), ricambi);
}

// `quanti` of the phrases, none of them twice, each with `tra` before it.
template <typename Compila>
QString Serie(Frasi frasi, int quanti, Sorte& sorte, const Compila& compila) {
  const auto totale = static_cast<int>(frasi.size());
  const int primo = sorte.Fino(totale);
  QString testo;
  for (int i = 0; i < std::min(quanti, totale); ++i) {
    testo += compila(frasi[static_cast<std::size_t>((primo + i * 7) % totale)], i);
  }
  return testo;
}

QString Riassunto(const Documento& documento, const Tema& tema, Sorte& sorte) {
  const bool esteso = documento.tabs == QLatin1String("800");
  const int quanti = esteso ? sorte.Tra(22, 28) : sorte.Tra(11, 20);
  QString testo = Periodo(sorte.Scegli(Aperture()), documento, tema, sorte);
  testo += Serie(Sviluppi(), quanti, sorte, [&](QStringView frase, int i) {
    const QString stacco = esteso && i % 7 == 6 ? QStringLiteral("\r\n") : QStringLiteral(" ");
    return QString(stacco + Maiuscola(Periodo(frase, documento, tema, sorte)));
  });
  return testo + QLatin1Char(' ') + Periodo(sorte.Scegli(Chiusure()), documento, tema, sorte);
}

QString Sommario(const Documento& documento, const Tema& tema, Sorte& sorte) {
  const auto voci = VociSommario();
  const int quante = sorte.Tra(3, 7);
  QString testo;
  for (int i = 0; i < quante; ++i) {
    // The first and the last of the list stand at the ends.
    const auto ultima = static_cast<int>(voci.size()) - 1;
    const int posto = i == quante - 1 ? ultima : i * ultima / quante;
    if (i > 0) testo += QLatin1Char('\\');
    testo += QStringLiteral("%1. ").arg(i + 1) +
             Periodo(voci[static_cast<std::size_t>(posto)], documento, tema, sorte);
  }
  return testo;
}

QString AbstractInglese(const Tema& tema, Sorte& sorte) {
  const QString testo =
      Serie(SviluppiInglesi(), sorte.Tra(5, 8), sorte, [&](QStringView frase, int /*i*/) {
        return QString(ConSoggetto(frase, tema.inglese) + u' ');
      });
  return testo.trimmed();
}

// The first source of a family, for notes that name what they comment on.
QString PrimaFonte(const Documento& documento, const char* famiglia, const QString& altrimenti) {
  for (const auto& fonte : documento.fonti) {
    if (fonte.tp.startsWith(QLatin1String(famiglia))) return fonte.testo;
  }
  return altrimenti;
}

QString Recensione(const Tema& tema, Sorte& sorte) {
  return QStringLiteral("Recensione a %1 %2., %3, Padova, %4, pp. %5")
      .arg(sorte.Scegli(Cognomi()).toString(), QString(sorte.Scegli(Prenomi()).front()),
           Maiuscola(tema.italiano.toString()))
      .arg(sorte.Tra(1995, 2000))
      .arg(sorte.Tra(120, 640));
}

QString Nota(const Documento& documento, const Tema& tema, Sorte& sorte) {
  if (documento.td == u"02") {
    return QStringLiteral("Nota a ") +
           PrimaFonte(documento, "G", QStringLiteral("Cass. I 12 marzo 2000, n. 2843"));
  }
  if (documento.td == u"03") {
    return QStringLiteral("Commento a ") +
           PrimaFonte(documento, "L", QStringLiteral("l. 7 agosto 1990, n. 241"));
  }
  if (documento.td == u"04") return Recensione(tema, sorte);
  if (documento.td == u"07") return ConTema(sorte.Scegli(Convegni()), tema.italiano);
  if (documento.td == u"08") return QStringLiteral("Traduzione di uno scritto apparso nel 1998");
  if (documento.td == u"09") {
    return ConTema(u"Parere reso {SU} a un’amministrazione comunale", tema.italiano);
  }
  return {};
}

void TestiDelRiassunto(Documento& documento, const Tema& tema, Sorte& sorte) {
  const bool breve = documento.tabs == u"500" || documento.tabs == u"800";
  const bool conSommario = documento.tabs == u"600" || (breve && sorte.Una(2));
  if (breve || documento.tabs == u"900") {
    documento.testi[kRiassunto] = Riassunto(documento, tema, sorte);
  }
  if (conSommario) documento.testi[kSommario] = Sommario(documento, tema, sorte);
  if (documento.tabs == u"700" || (breve && !conSommario)) {
    documento.testi[kInTemaDi] = Periodo(sorte.Scegli(InTemaDi()), documento, tema, sorte);
  }
}

void TitoloStraniero(Documento& documento, const Tema& tema, Sorte& sorte) {
  const Lingua& lingua = sorte.Scegli(kLingue);
  documento.lingua = QString::fromLatin1(lingua.codice);
  documento.testi[kTitolo] = ConSoggetto(sorte.Scegli(lingua.titoli()), tema.*lingua.tema);
  const QString traduzione = ConTema(sorte.Scegli(TitoliItaliani()), tema.italiano);
  // Between brackets where the compiler is the translator.
  documento.testi[kTraduzione] =
      sorte.Una(3) ? QLatin1Char('[') + traduzione + QLatin1Char(']') : traduzione;
}

}  // namespace

void ScriviTesti(Documento& documento, const Tema& tema, Sorte& sorte) {
  if (sorte.Una(12)) {
    TitoloStraniero(documento, tema, sorte);
  } else {
    documento.testi[kTitolo] = ConTema(sorte.Scegli(TitoliItaliani()), tema.italiano);
    if (sorte.Una(5)) {
      documento.testi[kTraduzione] = ConSoggetto(sorte.Scegli(TitoliInglesi()), tema.inglese);
      documento.testi[kAbstractInglese] = AbstractInglese(tema, sorte);
    }
  }
  TestiDelRiassunto(documento, tema, sorte);
  documento.testi[kNota] = Nota(documento, tema, sorte);
  if (sorte.Una(10)) documento.testi[kNotaCompilatore] = sorte.Scegli(NoteCompilatore()).toString();
  if (sorte.Una(7)) documento.testi[kNotaAmb] = sorte.Scegli(NoteAmbiente()).toString();
}

}  // namespace torvi::esempio
