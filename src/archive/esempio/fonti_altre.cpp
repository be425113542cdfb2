#include <array>

#include "archive/esempio/fonti.h"
#include "archive/esempio/nomi.h"

namespace torvi::esempio {

namespace {

constexpr int kUltimoAnno = 2001;

const Voce& Atto(Composizione& c) {
  const Voce& atto = c.InTurno(c.atti);
  c.fonte.fonte = atto.id;
  return atto;
}

void Stato(Composizione& c, QStringView nome) {
  for (const Voce& stato : c.tavole.stati) {
    if (stato.nome == nome) c.fonte.stato = stato.id;
  }
}

QString Parentesi(const QString& testo) { return QStringLiteral(" (%1)").arg(testo); }

void Trattato(Composizione& c) {
  const QString articolo = Ripartizioni(c);
  const Voce& trattato = Atto(c);
  c.fonte.altro = trattato.dettaglio;
  const QStringList data = trattato.data.split(u'/');
  if (data.size() == 3) {
    c.fonte.giorno = QString::number(data[0].toInt());
    c.fonte.mese = QString::number(data[1].toInt());
    c.fonte.anno = data[2];
  }
  Concludi(c, articolo + trattato.nome);
}

void AttoInternazionale(Composizione& c) {
  const QString data = Data(c, 1960, kUltimoAnno);
  const QString numero = Numero(c, 1400);
  c.fonte.altro = c.InTurno(Oggetti()).toString();
  Concludi(c, Atto(c).nome + data + numero + Parentesi(c.fonte.altro));
}

void CorteInternazionale(Composizione& c) {
  QString testo = Decisione(c) + Atto(c).nome;
  testo += Sezione(c);
  testo += Data(c, 1975, kUltimoAnno);
  c.fonte.altro = c.InTurno(Parti()).toString();
  Concludi(c, testo + Parentesi(c.fonte.altro));
}

void TrattatoUe(Composizione& c) {
  const QString articolo = Ripartizioni(c);
  Concludi(c, articolo + Atto(c).nome);
}

bool Comincia(const Voce& atto, const char* inizio) {
  return atto.nome.startsWith(QLatin1String(inizio));
}

// Years of the acts that bear the name of one Community or another.
void AnnoNumeroUe(Composizione& c, const Voce& atto) {
  const bool cee = atto.nome.endsWith(QLatin1String("CEE"));
  c.fonte.anno = QString::number(cee ? c.sorte.Tra(1962, 1993) : c.sorte.Tra(1994, kUltimoAnno));
  c.fonte.numero = QString::number(c.sorte.Tra(5, cee ? 3990 : 2900));
}

QString AnnoBreve(const QString& anno) { return anno < QLatin1String("2000") ? anno.mid(2) : anno; }

void DerivatoUe(Composizione& c) {
  const Voce& atto = Atto(c);
  QString testo;
  if (Comincia(atto, "Ris.") || Comincia(atto, "Reg. P.E.")) {
    if (Comincia(atto, "Reg. P.E.")) return Concludi(c, atto.nome);
    testo = atto.nome + Data(c, 1970, kUltimoAnno);
    return Concludi(c, testo + Numero(c, 90));
  }
  if (c.sorte.Una(2)) {
    c.fonte.articolo = QString::number(c.sorte.Tra(1, 40));
    testo = QStringLiteral("art. %1 ").arg(c.fonte.articolo);
  }
  AnnoNumeroUe(c, atto);
  const QString anno = AnnoBreve(c.fonte.anno);
  testo += Comincia(atto, "Reg.") ? QStringLiteral("%1 %2/%3").arg(atto.nome, c.fonte.numero, anno)
                                  : QStringLiteral("%1 %2/%3").arg(atto.nome, anno, c.fonte.numero);
  Concludi(c, testo);
}

void ConvenzioneUe(Composizione& c) {
  const QString data = Data(c, 1968, kUltimoAnno);
  QString testo = Atto(c).nome + data;
  if (c.sorte.Una(2)) testo += Numero(c, 9);
  c.fonte.altro = c.InTurno(Oggetti()).toString();
  Concludi(c, testo + Parentesi(c.fonte.altro));
}

// Cases of the Court of Justice bear a C, those of the Court of First Instance a T.
void CorteUe(Composizione& c) {
  const Voce& corte = Atto(c);
  QString testo = Decisione(c) + corte.nome;
  testo += Sezione(c);
  testo += Data(c, 1990, kUltimoAnno);
  const QChar lettera = Comincia(corte, "Trib.") ? u'T' : u'C';
  const int numero = c.sorte.Tra(1, 400);
  c.fonte.altro = QStringLiteral("causa %1-%2/%3, %4")
                      .arg(lettera)
                      .arg(numero)
                      .arg(QString::number(c.fonte.anno.toInt() - 1).mid(2))
                      .arg(c.InTurno(Parti()).toString());
  Concludi(c, testo + Parentesi(c.fonte.altro));
}

void NormaStraniera(Composizione& c) {
  const QString articolo = Ripartizioni(c);
  const FonteStraniera& norma = c.InTurno(NormeStraniere());
  Stato(c, norma.stato);
  Concludi(c, articolo + norma.testo.toString() + Parentesi(norma.stato.toString()));
}

void SentenzaStraniera(Composizione& c) {
  const FonteStraniera& sentenza = c.InTurno(SentenzeStraniere());
  Stato(c, sentenza.stato);
  const QString data = Data(c, 1970, kUltimoAnno);
  Concludi(c, sentenza.testo.toString() + data + Parentesi(sentenza.stato.toString()));
}

void CodiceCanonico(Composizione& c) {
  c.fonte.articolo = QString::number(c.sorte.Tra(1, 1752));
  QString testo = QStringLiteral("can. ") + c.fonte.articolo;
  if (c.sorte.Una(2)) {
    c.fonte.comma = QString::number(c.sorte.Tra(1, 3));
    testo += QStringLiteral(" par. ") + c.fonte.comma;
  }
  c.fonte.anno = c.sorte.Una(5) ? QStringLiteral("1917") : QStringLiteral("1983");
  Concludi(c, QStringLiteral("%1 %2 %3").arg(testo, Atto(c).nome, c.fonte.anno));
}

void NormaCanonica(Composizione& c) {
  c.fonte.articolo = QString::number(c.sorte.Tra(1, 60));
  const QString testo =
      QStringLiteral("art. %1 %2").arg(c.fonte.articolo, c.InTurno(NormeCanoniche()).toString());
  Concludi(c, testo + Data(c, 1970, kUltimoAnno));
}

void SentenzaCanonica(Composizione& c) {
  const Voce& corte = Atto(c);
  QString testo = corte.nome;
  if (corte.nome == QLatin1String("Trib. Eccl. Reg.")) {
    const Voce& regione = c.sorte.Scegli(c.tavole.regioni);
    c.fonte.regione = regione.id;
    testo += QLatin1Char(' ') + regione.nome;
  } else if (corte.nome == QLatin1String("Trib. Eccl. Dioc.")) {
    const Voce& citta = c.sorte.Scegli(c.tavole.citta);
    c.fonte.citta = citta.id;
    testo += QLatin1Char(' ') + citta.nome;
  }
  Concludi(c, testo + Data(c, 1970, kUltimoAnno));
}

void Storica(Composizione& c) {
  const FonteStorica& fonte = c.InTurno(FontiStoriche());
  c.fonte.tp = fonte.tp.toString();
  c.fonte.testo = fonte.testo.toString();
}

template <int tipo>
bool Di(const Voce& atto) {
  return atto.tipo == tipo;
}

// The acts of a Union that the documents of 2001 cannot cite yet.
bool Derivato(const Voce& atto) {
  return atto.tipo == 2 && !atto.nome.endsWith(QLatin1String(" UE"));
}

constexpr std::array kRegole = {
    RegolaFonte{Genere::Trattato, "NIT", &Tavole::trattati, Di<0>, Trattato},
    RegolaFonte{Genere::AttoInternazionale, "NIA", &Tavole::internazionali, Di<2>,
                AttoInternazionale},
    RegolaFonte{Genere::CorteInternazionale, "GEI", &Tavole::internazionali, Di<3>,
                CorteInternazionale},
    RegolaFonte{Genere::TrattatoUe, "NIC", &Tavole::comunitarie, Di<1>, TrattatoUe},
    RegolaFonte{Genere::DerivatoUe, "NIC", &Tavole::comunitarie, Derivato, DerivatoUe},
    RegolaFonte{Genere::ConvenzioneUe, "NIC", &Tavole::comunitarie, Di<4>, ConvenzioneUe},
    RegolaFonte{Genere::CorteUe, "GEC", &Tavole::comunitarie, Di<3>, CorteUe},
    RegolaFonte{Genere::NormaStraniera, "NS", nullptr, nullptr, NormaStraniera},
    RegolaFonte{Genere::SentenzaStraniera, "GS", nullptr, nullptr, SentenzaStraniera},
    RegolaFonte{Genere::CodiceCanonico, "FCC", &Tavole::canoniche,
                [](const Voce& v) { return v.nome == u"C. Iur. Can."; }, CodiceCanonico},
    RegolaFonte{Genere::NormaCanonica, "FCA", nullptr, nullptr, NormaCanonica},
    RegolaFonte{Genere::SentenzaCanonica, "FCG", &Tavole::canoniche, Di<3>, SentenzaCanonica},
    RegolaFonte{Genere::Storica, "FS", nullptr, nullptr, Storica},
};

}  // namespace

std::span<const RegolaFonte> RegoleAltre() { return kRegole; }

}  // namespace torvi::esempio
