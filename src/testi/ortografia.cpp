#include "testi/ortografia.h"

#include <algorithm>

#include "testi/parole_giuridiche.h"

namespace torvi {
namespace {

constexpr QChar kApostrofo = u'\'';

QString Normale(QStringView parola) {
  QString normale = parola.toString().replace(u'’', kApostrofo);
  // Places in the word must stay: letters written with loose accents are left, and found wrong.
  const QString composta = normale.normalized(QString::NormalizationForm_C);
  return composta.size() == normale.size() ? composta : normale;
}

QString SenzaApostrofoFinale(const QString& parola) {
  return parola.endsWith(kApostrofo) ? parola.chopped(1) : parola;
}

// "perche'" as typewriters had it: both accents of the last vowel, the likelier first.
QStringList Accentate(const QString& parola) {
  static const QHash<QChar, QString> accenti = {{u'a', QStringLiteral("à")},
                                                {u'e', QStringLiteral("éè")},
                                                {u'i', QStringLiteral("ì")},
                                                {u'o', QStringLiteral("ò")},
                                                {u'u', QStringLiteral("ù")}};
  QStringList accentate;
  if (!parola.endsWith(kApostrofo) || parola.size() < 2) return accentate;
  for (const QChar accento : accenti.value(parola.at(parola.size() - 2))) {
    accentate += parola.chopped(2) + accento;
  }
  return accentate;
}

const QSet<QString>& Elisioni() {
  static const QSet<QString> elisioni = [] {
    const QString voci = QStringLiteral(
        "l un dell all dall sull nell coll pell quell quest codest bell sant d c s n t m v gl "
        "degl dagl sugl negl agl cos com dov quant tutt mezz senz anch neanch ciascun nessun alcun "
        "qualcun altr ch fors sott sovr contr oltr entr ultim prim null buon grand vent trent "
        "quarant cinquant sessant settant ottant novant cent");
    const QStringList elenco = voci.split(u' ');
    return QSet<QString>(elenco.begin(), elenco.end());
  }();
  return elisioni;
}

}  // namespace

Ortografia::Ortografia(Lingua lingua, const Dizionario& dizionario, DizionarioPersonale personale)
    : lingua_(lingua), dizionario_(dizionario), personale_(std::move(personale)) {}

bool Ortografia::Nota(const QString& parola) const {
  return ignorate_.contains(parola) || personale_.Contiene(parola) ||
         ParolaGiuridica(parola, lingua_) || dizionario_.Conosce(parola);
}

bool Ortografia::Giusta(const QString& parola) const {
  if (parola.size() < 2) return true;
  if (const auto vista = viste_.constFind(parola); vista != viste_.cend()) return *vista;
  QString minuscola = parola;
  minuscola[0] = parola.at(0).toLower();
  const bool giusta = Nota(parola) || (minuscola != parola && Nota(minuscola));
  viste_.insert(parola, giusta);
  return giusta;
}

bool Ortografia::Elisione(const QString& parola) const {
  return lingua_ == Lingua::Italiano && Elisioni().contains(parola.toLower());
}

// The last part of a word, whose apostrophe may be an accent or a closing quote.
Tratto Ortografia::FineErrata(const QString& parola) const {
  const QString nuda = SenzaApostrofoFinale(parola);
  if (Giusta(nuda) || (parola != nuda && Giusta(parola))) return {};
  if (lingua_ == Lingua::Inglese && nuda.endsWith(QLatin1String("'s")) && Giusta(nuda.chopped(2))) {
    return {};
  }
  for (const QString& accentata : Accentate(parola)) {
    if (dizionario_.Conosce(accentata)) return {0, parola.size()};
  }
  return {0, nuda.size()};
}

Tratto Ortografia::ParteErrata(const QString& parola) const {
  const QString nuda = SenzaApostrofoFinale(parola);
  if (nuda != parola && (Elisione(nuda) || ignorate_.contains(parola))) return {};
  const Tratto intera = FineErrata(parola);
  const qsizetype taglio = nuda.lastIndexOf(kApostrofo) + 1;
  if (intera.lunghezza == 0 || taglio == 0) return intera;
  // "dell'aministrazione": what is elided is right, and only the rest is wrong.
  const QStringList elise = nuda.left(taglio - 1).split(kApostrofo);
  const bool elisioni = std::all_of(elise.begin(), elise.end(),
                                    [this](const QString& elisa) { return Elisione(elisa); });
  if (!elisioni) return intera;
  Tratto fine = FineErrata(parola.mid(taglio));
  fine.inizio += taglio;
  return fine;
}

std::vector<Tratto> Ortografia::Errate(const QString& testo) const {
  std::vector<Tratto> errate;
  for (const Tratto& tratto : ParoleDaControllare(testo)) {
    const QString parola = Normale(QStringView(testo).mid(tratto.inizio, tratto.lunghezza));
    const Tratto parte = ParteErrata(parola);
    if (parte.lunghezza > 0) errate.push_back({tratto.inizio + parte.inizio, parte.lunghezza});
  }
  return errate;
}

std::vector<Segnalazione> Ortografia::Segnala(const QString& testo) const {
  std::vector<Segnalazione> segnalazioni;
  for (const Tratto& tratto : Errate(testo)) {
    segnalazioni.push_back(
        {.inizio = tratto.inizio,
         .testo = testo.mid(tratto.inizio, tratto.lunghezza),
         .spiegazione =
             QStringLiteral("La parola non è nel dizionario %1.").arg(NomeLingua(lingua_)),
         .regola = 0,
         .proposte = {}});
  }
  return segnalazioni;
}

QStringList Ortografia::Proposte(const Segnalazione& segnalazione) const {
  const QString parola = Normale(segnalazione.testo);
  QStringList proposte;
  for (const QString& accentata : Accentate(parola)) {
    if (dizionario_.Conosce(accentata)) proposte += accentata;
  }
  proposte += dizionario_.Suggerimenti(SenzaApostrofoFinale(parola));
  proposte.removeDuplicates();
  return proposte;
}

void Ortografia::IgnoraTutto(const Segnalazione& segnalazione) {
  ignorate_ += Normale(segnalazione.testo);
  viste_.clear();
}

void Ortografia::AggiungiAlDizionario(const Segnalazione& segnalazione) {
  personale_.Aggiungi(SenzaApostrofoFinale(Normale(segnalazione.testo)));
  viste_.clear();
}

}  // namespace torvi
