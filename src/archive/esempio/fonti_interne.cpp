#include <array>

#include "archive/esempio/fonti.h"
#include "archive/esempio/nomi.h"

namespace torvi::esempio {

namespace {

constexpr int kPrimoAnno = 1950;
constexpr int kUltimoAnno = 2000;
constexpr qint64 kTar = 117;

bool Contiene(const Voce& atto, QLatin1StringView parte) {
  return atto.nome.contains(parte, Qt::CaseInsensitive);
}

// A template without the place of a region or province cannot take one.
bool PrendeLuogo(const Voce& atto) {
  return atto.urn.isEmpty() || atto.urn.contains(QLatin1String(".xxx"));
}

bool Di(const Voce& atto, QStringView liv1, QStringView liv2) {
  return atto.liv1 == liv1 && atto.liv2 == liv2;
}

bool DiRegione(const Voce& atto) { return atto.nome.endsWith(QLatin1String("r.")); }

bool Speciale(const Voce& atto) { return Di(atto, u"3", u"7") || Di(atto, u"3", u"8"); }
bool DiAcque(const Voce& atto) {
  return Speciale(atto) && Contiene(atto, QLatin1StringView("acque"));
}
bool DiBrevetti(const Voce& atto) {
  return Speciale(atto) && !DiAcque(atto) && Contiene(atto, QLatin1StringView("brevetti"));
}

QString Regione(Composizione& c, const Voce& regione) {
  c.fonte.regione = regione.id;
  return QLatin1Char(' ') + regione.nome;
}
QString Regione(Composizione& c) { return Regione(c, c.sorte.Scegli(c.tavole.regioni)); }

QString Provincia(Composizione& c) {
  const Voce& provincia = Trova(c.tavole.province, c.sorte.Una(2) ? u"BZ" : u"TN");
  c.fonte.provincia = provincia.id;
  return QLatin1Char(' ') + provincia.nome;
}

QString Citta(Composizione& c, const QString& stacco) {
  const Voce& citta = c.sorte.Scegli(c.tavole.citta);
  c.fonte.citta = citta.id;
  return stacco + citta.nome;
}

// A region and a town of it where courts sit.
QString Sede(Composizione& c) {
  struct Luogo {
    QStringView regione;
    QStringView citta;
  };
  static constexpr std::array kLuoghi = {
      Luogo{u"LA", u"Roma"},    Luogo{u"LO", u"Milano"},  Luogo{u"CM", u"Napoli"},
      Luogo{u"PI", u"Torino"},  Luogo{u"SI", u"Palermo"}, Luogo{u"SI", u"Catania"},
      Luogo{u"LO", u"Brescia"}, Luogo{u"VE", u"Venezia"}, Luogo{u"TO", u"Firenze"}};
  const Luogo& luogo = c.sorte.Scegli(kLuoghi);
  const Voce& citta = Trova(c.tavole.citta, luogo.citta);
  c.fonte.citta = citta.id;
  return Regione(c, Trova(c.tavole.regioni, luogo.regione)) + QStringLiteral(" - ") + citta.nome;
}

QString Atto(Composizione& c, const Voce& atto) {
  c.fonte.fonte = atto.id;
  return atto.nome;
}
QString Atto(Composizione& c) { return Atto(c, c.InTurno(c.atti)); }

QString Estremi(Composizione& c, int massimo) {
  const QString data = Data(c, kPrimoAnno, kUltimoAnno);
  return data + Numero(c, massimo);
}

void Codice(Composizione& c) {
  const QString articolo = Ripartizioni(c);
  Concludi(c, articolo + Atto(c));
}

void Bancarie(Composizione& c) { Concludi(c, Atto(c)); }

// An act of the state: mostly one of the norm catalogue, the others of kinds that went out of use.
void Statale(Composizione& c) {
  const QString articolo = c.sorte.Una(4) ? QString() : Ripartizioni(c);
  if (c.noti.empty() || (!c.liberi.empty() && c.giro % 8 == 7)) {
    const QString nome = Atto(c, c.InTurno(c.liberi)) + Data(c, 1923, 1947);
    Concludi(c, articolo + nome + Numero(c, 999));
    return;
  }
  const AttoNoto& noto = c.sorte.Scegli(c.noti);
  const QString nome = Atto(c, Trova(c.atti, noto.nome));
  Concludi(c, articolo + nome + Data(c.fonte, noto));
}

void Locale(Composizione& c, QString (*luogo)(Composizione&)) {
  const QString articolo = c.sorte.Una(2) ? QString() : Ripartizioni(c);
  const QString atto = Atto(c) + luogo(c);
  QString testo = articolo + atto + Estremi(c, 80);
  if (c.sorte.Una(8)) {
    c.fonte.allegato = QStringLiteral("A");
    testo += QStringLiteral(", all. A");
  }
  Concludi(c, testo);
}
void Regionale(Composizione& c) { Locale(c, Regione); }
void Provinciale(Composizione& c) { Locale(c, Provincia); }

// An act of an office, named by the table that its kind goes with.
void DiUfficio(Composizione& c, const Voci& uffici, qint64 FonteCitata::*chiave) {
  const Voce& ufficio = c.InTurno(uffici);
  c.fonte.*chiave = ufficio.id;
  const QString atto = Atto(c, c.InTurno(c.liberi));
  Concludi(c, atto + QLatin1Char(' ') + ufficio.nome + Estremi(c, 300));
}
void Ministeriale(Composizione& c) {
  if (!c.noti.empty() && c.giro % 4 == 3) {
    Statale(c);
  } else {
    DiUfficio(c, c.tavole.ministeri, &FonteCitata::ministero);
  }
}
void DiAmministrazione(Composizione& c) {
  DiUfficio(c, c.tavole.amministrazioni, &FonteCitata::amministrazione);
}
void DiAutorita(Composizione& c) { DiUfficio(c, c.tavole.autorita, &FonteCitata::autorita); }

void Collettivo(Composizione& c) {
  const QString atto = Atto(c) + Data(c, 1970, kUltimoAnno);
  c.fonte.altro = c.InTurno(Categorie()).toString();
  Concludi(c, atto + QStringLiteral(" (%1)").arg(c.fonte.altro));
}

void Corte(Composizione& c, int massimo) {
  const QString testo = Decisione(c) + Atto(c);
  Concludi(c, testo + Estremi(c, massimo));
}
void CorteCostituzionale(Composizione& c) { Corte(c, 550); }
void GiurisdizioneCamera(Composizione& c) { Corte(c, 20); }
void Tecnica(Composizione& c) { Corte(c, 200); }

void Cassazione(Composizione& c) {
  static constexpr std::array<QStringView, 6> kDiCassazione = {u"I",    u"II",       u"III",
                                                               u"lav.", u"sez. un.", u"trib."};
  QString testo = Decisione(c) + Atto(c);
  testo += Sezione(c, kDiCassazione);
  Concludi(c, testo + Estremi(c, 15'000));
}

void Ordinaria(Composizione& c) {
  QString testo = Decisione(c) + Atto(c);
  if (c.sorte.Una(8)) {
    c.fonte.altro = QStringLiteral("sez. dist.");
    testo += QLatin1Char(' ') + c.fonte.altro;
  }
  testo += Citta(c, QStringLiteral(" "));
  testo += Sezione(c);
  testo += Data(c, 1985, kUltimoAnno);
  Concludi(c, c.sorte.Una(3) ? testo + Numero(c, 2000) : testo);
}

void Tributaria(Composizione& c) {
  const Voce& corte = c.InTurno(c.atti);
  QString testo = Atto(c, corte);
  if (Contiene(corte, QLatin1StringView("regionale"))) {
    testo += Regione(c);
  } else if (!Contiene(corte, QLatin1StringView("centrale"))) {
    testo += Citta(c, QStringLiteral(" - "));
  }
  testo += Sezione(c);
  Concludi(c, testo + Estremi(c, 400));
}

void CorteConti(Composizione& c) {
  QString testo = Decisione(c) + Atto(c);
  if (c.sorte.Una(2)) testo += Regione(c);
  testo += Sezione(c);
  Concludi(c, testo + Estremi(c, 600));
}

// Every second one is of a regional court, which is always named with its region.
void Amministrativa(Composizione& c) {
  const bool tar = c.giro % 2 == 0;
  QString testo = Decisione(c);
  for (const Voce& corte : c.atti) {
    if (tar && corte.id == kTar) testo += Atto(c, corte);
  }
  if (c.fonte.fonte == 0) testo += Atto(c);
  if (c.fonte.fonte == kTar) testo += c.sorte.Una(3) ? Sede(c) : Regione(c);
  testo += Sezione(c);
  Concludi(c, testo + Estremi(c, 4000));
}

void Acque(Composizione& c) {
  QString testo = Decisione(c) + Atto(c);
  testo += Sede(c);
  Concludi(c, testo + Estremi(c, 90));
}

void Arbitrato(Composizione& c) {
  c.fonte.altro = c.InTurno(Parti()).toString();
  const QString testo = Atto(c) + Citta(c, QStringLiteral(" ")) + QLatin1Char(' ') + c.fonte.altro;
  Concludi(c, testo + Data(c, 1980, kUltimoAnno));
}

void Sportiva(Composizione& c) {
  c.fonte.altro = c.InTurno(Discipline()).toString();
  const QString testo = Atto(c) + Data(c, 1985, kUltimoAnno);
  Concludi(c, testo + QStringLiteral(" (%1)").arg(c.fonte.altro));
}

bool DiCodice(const Voce& v) {
  return (v.liv1 == u"0" || v.liv1 == u"1") && v.nome != u"Norme bancarie uniformi";
}

template <char16_t liv2, bool daLuogo = false>
bool Norma(const Voce& v) {
  return v.liv1 == u"2" && v.liv2 == QChar(liv2) && (!daLuogo || PrendeLuogo(v));
}
template <char16_t liv2>
bool Giudice(const Voce& v) {
  return v.liv1 == u"3" && v.liv2 == QChar(liv2);
}

constexpr Voci Tavole::*kTavola = &Tavole::interne;

constexpr std::array kRegole = {
    RegolaFonte{Genere::Codice, "LIC", kTavola, DiCodice, Codice},
    RegolaFonte{Genere::Bancarie, "LIAB", kTavola,
                [](const Voce& v) { return v.nome == u"Norme bancarie uniformi"; }, Bancarie},
    RegolaFonte{Genere::Costituzionale, "LICO", kTavola,
                [](const Voce& v) { return v.nome == u"l. cost."; }, Statale},
    RegolaFonte{Genere::Statale, "LIO", kTavola, Norma<u'1'>, Statale},
    RegolaFonte{Genere::Regionale, "LIR", kTavola, Norma<u'3', true>, Regionale},
    RegolaFonte{Genere::RegolamentoRegionale, "LIR", kTavola,
                [](const Voce& v) { return Norma<u'8', true>(v) && DiRegione(v); }, Regionale},
    RegolaFonte{Genere::Provinciale, "LIP", kTavola, Norma<u'2', true>, Provinciale},
    RegolaFonte{Genere::RegolamentoProvinciale, "LIP", kTavola,
                [](const Voce& v) { return Norma<u'8', true>(v) && !DiRegione(v); }, Provinciale},
    RegolaFonte{Genere::Camera, "LIOA", kTavola,
                [](const Voce& v) { return v.nome == u"reg. cam."; }, Codice},
    RegolaFonte{Genere::Senato, "LIOA", kTavola,
                [](const Voce& v) { return v.nome == u"reg. sen."; }, Codice},
    RegolaFonte{Genere::Ministeriale, "LIOA", kTavola, Norma<u'6'>, Ministeriale},
    RegolaFonte{Genere::Amministrazione, "LIOA", kTavola, Norma<u'7'>, DiAmministrazione},
    RegolaFonte{Genere::Autorita, "LIOA", kTavola, Norma<u'9'>, DiAutorita},
    RegolaFonte{Genere::Collettivo, "AC", kTavola, Norma<u'a'>, Collettivo},
    RegolaFonte{Genere::CorteCostituzionale, "GICO", kTavola,
                [](const Voce& v) { return v.nome == u"C. Cost."; }, CorteCostituzionale},
    RegolaFonte{Genere::GiurisdizioneCamera, "GICD", kTavola,
                [](const Voce& v) { return v.nome == u"Cons. giurisd. Camera"; },
                GiurisdizioneCamera},
    RegolaFonte{Genere::Cassazione, "GICA", kTavola,
                [](const Voce& v) { return v.nome == u"Cass."; }, Cassazione},
    RegolaFonte{Genere::Ordinaria, "GIO", kTavola, Giudice<u'3'>, Ordinaria},
    RegolaFonte{Genere::Tributaria, "GIT", kTavola, Giudice<u'4'>, Tributaria},
    RegolaFonte{Genere::CorteConti, "GICC", kTavola,
                [](const Voce& v) { return v.nome == u"C. Conti"; }, CorteConti},
    RegolaFonte{Genere::Amministrativa, "GIA", kTavola, Giudice<u'6'>, Amministrativa},
    RegolaFonte{Genere::Acque, "GIQ", kTavola, DiAcque, Acque},
    RegolaFonte{Genere::Brevetti, "GIB", kTavola, DiBrevetti, Tecnica},
    RegolaFonte{Genere::Speciale, "GIM", kTavola,
                [](const Voce& v) { return Speciale(v) && !DiAcque(v) && !DiBrevetti(v); },
                Tecnica},
    RegolaFonte{Genere::Arbitrato, "GIAL", kTavola,
                [](const Voce& v) { return Giudice<u'9'>(v) || Giudice<u'a'>(v); }, Arbitrato},
    RegolaFonte{Genere::Sportiva, "GIS", kTavola,
                [](const Voce& v) { return v.nome == u"giur. sport"; }, Sportiva},
};

}  // namespace

std::span<const RegolaFonte> RegoleInterne() { return kRegole; }

}  // namespace torvi::esempio
