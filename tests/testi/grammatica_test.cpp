#include "testi/grammatica.h"

#include <gtest/gtest.h>

#include <set>

#include "testi/revisione.h"

namespace torvi {
namespace {

struct Caso {
  const char* regola;  // empty: brackets and quotes
  const char* errato;
  const char* giusto;
};

constexpr Caso kComuni[] = {
    {"parola ripetuta", "La Corte Corte afferma che che il il danno.",
     "La Corte Corte afferma che il danno."},
    {"spazi ripetuti", "il  danno   ingiusto", "il danno ingiusto"},
    {"spazio prima della punteggiatura", "il danno , la colpa : il nesso .",
     "il danno, la colpa: il nesso."},
    {"spazio dopo la punteggiatura", "il danno,la colpa;il nesso", "il danno, la colpa; il nesso"},
    {"spazio dopo il punto", "Premessa.Il caso. 2.La decisione",
     "Premessa. Il caso. 2. La decisione"},
    {"punteggiatura ripetuta", "il danno,, la colpa; ; il nesso", "il danno, la colpa; il nesso"},
    {"due punti fermi", "Il danno è ingiusto.. ", "Il danno è ingiusto. "},
    {"spazio dopo la parentesi aperta", "il danno ( o la colpa) e « il nesso»",
     "il danno (o la colpa) e «il nesso»"},
    {"spazio prima della parentesi chiusa", "il danno (o la colpa ) e «il nesso »",
     "il danno (o la colpa) e «il nesso»"},
    {"spazio prima della parentesi aperta", "il danno(o la colpa)", "il danno (o la colpa)"},
    {"spazio dopo la parentesi chiusa", "il danno (o la colpa)ingiusto",
     "il danno (o la colpa) ingiusto"},
    {"", "il danno (o la colpa. Il nesso", "il danno (o la colpa). Il nesso"},
    {"", "il danno o la colpa) e il nesso", "il danno o la colpa e il nesso"},
    {"", "il «danno ingiusto", "il «danno ingiusto»"},
    {"", "il \"danno ingiusto", "il \"danno ingiusto\""},
    {"", "(lett. a), b) e c) del comma 2", "(lett. a), b) e c) del comma 2"},
};

constexpr Caso kItaliani[] = {
    {"minuscola dopo il punto", "Il danno è risarcibile. la colpa no.",
     "Il danno è risarcibile. La colpa no."},
    {"abbreviazione senza punto", "ai sensi dell'art 5 e della n 3",
     "ai sensi dell'art. 5 e della n. 3"},
    {"abbreviazione attaccata al numero", "gli artt.5 e 6, pag.3", "gli artt. 5 e 6, pag. 3"},
    {"sigla senza il punto finale", "il c.d danno, il d.lgs n. 5 (c.p.c)",
     "il c.d. danno, il d.lgs. n. 5 (c.p.c.)"},
    {"eccetera", "danno, colpa, ecc... e dolo, ecc", "danno, colpa, ecc. e dolo, ecc."},
    {"spazio dopo l'apostrofo", "L' art. 3 dell' ordinamento", "L'art. 3 dell'ordinamento"},
    {"spazio prima dell'apostrofo", "i limiti dell 'ordinamento", "i limiti dell'ordinamento"},
    {"apostrofo mancante", "i limiti dell ordinamento nell ambito",
     "i limiti dell'ordinamento nell'ambito"},
    {"articolo l senza apostrofo", "secondo l amministrazione", "secondo l'amministrazione"},
    {"un' davanti a maschile", "un'altro caso di un'inadempimento e qualcun'altro",
     "un altro caso di un inadempimento e qualcun altro"},
    {"un davanti a femminile", "Un amica di un autorità per nessun azione",
     "Un'amica di un'autorità per nessun'azione"},
    {"qual è", "Qual'è il limite e qual'era", "Qual è il limite e qual era"},
    {"troncamento con apostrofo", "in tal'altro caso", "in tal altro caso"},
    {"po'", "un pò di colpa", "un po' di colpa"},
    {"parola divisa da apostrofo", "ogn'uno, qual'ora e fin'ora", "ognuno, qualora e finora"},
    {"e' per è", "E' vietato ciò che e' dannoso", "È vietato ciò che è dannoso"},
    {"c'e' per c'è", "Dov'e' la colpa c'e' il danno", "Dov'è la colpa c'è il danno"},
    {"apostrofo per accento acuto", "Perche' e affinche'", "Perché e affinché"},
    {"apostrofo per accento su a", "gia' la societa'", "già la società"},
    {"apostrofo per accento su i, o, u", "Cosi' puo' di piu'", "Così può di più"},
    {"-ché", "Perchè, poichè e affinchè", "Perché, poiché e affinché"},
    {"né e sé", "Nè l'uno nè l'altro; di per sè", "Né l'uno né l'altro; di per sé"},
    {"composti di tre", "ventitrè e quarantatrè", "ventitré e quarantatré"},
    {"i accentata", "cosí fece", "così fece"},
    {"u accentata", "di piú", "di più"},
    {"é per è", "É vietato; c'é un limite", "È vietato; c'è un limite"},
    {"e aperta finale", "Cioé il caffé", "Cioè il caffè"},
    {"monosillabi in a", "chi fà da sé", "chi fa da sé"},
    {"altri monosillabi", "Quì e sù", "Qui e su"},
    {"cè", "Cè un limite", "C'è un limite"},
    {"il davanti a s impura", "Il sviluppo e il zelo", "Lo sviluppo e lo zelo"},
    {"un davanti a s impura", "un strumento", "uno strumento"},
    {"preposizione davanti a s impura", "del straniero nel spazio", "dello straniero nello spazio"},
    {"il davanti a vocale", "Il ente", "L'ente"},
    {"preposizione davanti a vocale", "del ente e nel ambito", "dell'ente e nell'ambito"},
    {"i per gli", "i stranieri e i enti dei Stati, dei studi",
     "gli stranieri e gli enti dei Stati, degli studi"},
    {"dello davanti a consonante", "dello provvedimento", "del provvedimento"},
    {"ed davanti a consonante", "il danno ed la colpa", "il danno e la colpa"},
    {"al di là", "aldilà della colpa", "al di là della colpa"},
    {"a fianco", "affianco alla colpa", "a fianco alla colpa"},
    {"d'accordo", "daccordo con la Corte", "d'accordo con la Corte"},
    {"d'altronde", "Daltronde la colpa", "D'altronde la colpa"},
    {"soprattutto", "Sopratutto la colpa", "Soprattutto la colpa"},
    {"pressoché", "pressocchè nulla", "pressoché nulla"},
    {"in quanto", "inquanto nullo", "in quanto nullo"},
};

constexpr Caso kInglesi[] = {
    {"minuscola dopo il punto", "The claim was rejected. the Court held",
     "The claim was rejected. The Court held"},
    {"a davanti a vocale", "A action and a infringement", "An action and an infringement"},
    {"a davanti a h muta", "a honest judge", "an honest judge"},
    {"an davanti a consonante", "an judgment of an statute", "a judgment of a statute"},
    {"an davanti a u e eu lette con consonante", "an European and an universal rule",
     "a European and a universal rule"},
    {"it's per its", "it's own case-law", "its own case-law"},
    {"its per it's", "Its not clear", "It's not clear"},
    {"would of", "the State should of acted", "the State should have acted"},
    {"then per than", "rather then later", "rather than later"},
    {"negazione senza apostrofo", "it doesnt apply", "it doesn't apply"},
    {"plurale di nome non numerabile", "the informations", "the information"},
    {"according with", "According with the Court", "According to the Court"},
    {"depend from", "it depends from the law", "it depends on the law"},
    {"the article 5", "under the article 5", "under Article 5"},
    {"aggettivo di nazionalità", "the italian courts", "the Italian courts"},
    {"mese o giorno", "on 3 october 2001", "on 3 October 2001"},
    {"apart from", "a part from the law", "apart from the law"},
    {"parole unite", "alot of cases, inspite of the law", "a lot of cases, in spite of the law"},
};

constexpr const char* kItalianoGiusto[] = {
    "Qualunque fatto doloso o colposo, che cagiona ad altri un danno ingiusto, obbliga colui che "
    "ha "
    "commesso il fatto a risarcire il danno.",
    "Tutti i cittadini hanno pari dignità sociale e sono eguali davanti alla legge, senza "
    "distinzione "
    "di sesso, di razza, di lingua, di religione, di opinioni politiche (art. 3, comma 1, Cost.).",
    "Cass. civ., sez. un., 11 novembre 2008, n. 26972, in Foro it., 2009, I, c. 120 ss.",
    "Ai sensi dell'art. 21-octies, comma 2, l. 7 agosto 1990, n. 241/1990, non è annullabile.",
    "d.lgs. 31 marzo 1998, n. 112; d.P.R. 28 dicembre 2000, n. 445; r.d. 16 marzo 1942, n. 262",
    "art. 360, n. 5, c.p.c.; artt. 1218 e 2043 c.c.; l. cost. 18 ottobre 2001, n. 3",
    "Le regioni: a) il territorio; b) la popolazione; 1) lo Stato; 2-bis) gli enti locali; iii) "
    "ecc.",
    "La norma (art. 117, secondo comma, lett. l), Cost.) riserva l'ordinamento civile allo Stato.",
    "«[...] la Repubblica tutela il lavoro in tutte le sue forme [...]. Cura la formazione».",
    "Sommario: 1. Premessa. - 2. Il caso. - 3. (Segue): la decisione. - 4. Conclusioni.",
    "Il c.d. danno biologico è risarcibile ... ma non sempre (...).",
    "La Corte di giustizia, causa C-131/12, EU:C:2014:317, ECLI:EU:C:2014:317, "
    "urn:nir:stato:legge:1990-08-07;241.",
    "Si veda http://www.cortecostituzionale.it/actionPronuncia.do?id=1,a oppure scrivi a x@y.it.",
    "Di per sé, né l'uno né l'altro; perché, poiché, affinché, sicché: c'è e cos'è. Qual è? Un "
    "po'.",
    "Via via, così così, quasi quasi. Lo stesso ex art. 2 e gli Stati; i suoi stati, il suo stato.",
    "All'aldilà non si crede; un altro, un'altra, un ente, un'opera, un uomo, un'eccezione.",
    "La ratio legis e il favor rei; lo status quo, gli iura novit curia, lo ius cogens, il vulnus.",
    "(In)capacità e (il)legittimità; diritti/doveri; la (ri)conversione del(la) parte.",
    "Il contratto di viaggio \"tutto compreso\" e l'art. 33 Cost.: libertà d'arte e "
    "d'insegnamento.",
    "Trib. Milano, ord. 3 maggio 2001; App. Roma, sez. lav.; Cons. Stato, ad. plen., n. 1 del "
    "2001.",
    "Quali limiti? e quali poteri? Art. 5, par. 1, lett. a), b) e c), CEDU; §§ 34-36.",
    "Primo paragrafo.\r\nSecondo paragrafo, ed ecco; ad esempio; od altro. Il 1° gennaio 2001.",
    "È punito chiunque, senza giustificato motivo, si trattenga nel territorio dello Stato.",
    "Il S.p.A. e la S.r.l. Gli affidamenti in house, all inclusive e il leasing.",
};

constexpr const char* kIngleseGiusto[] = {
    "The Court held that Article 5(1)(a) of the Convention applies to an individual, a European "
    "citizen, a user and a unanimous bench.",
    "It's clear that the State has its own margin; its necessary limits would of course apply.",
    "He said that that rule had had no effect. An honest judge; a historical account; an NGO; an "
    "MP.",
    "See paras. 34-36, vol. 2, pp. 3 ff., and Smith v. Italy, no. 12345/01, § 12 (cf. e.g. note "
    "3).",
    "Under paragraph a in the unilateral act, a one-off measure of a uniform kind; uninteresting.",
};

void Correggono(Lingua lingua, std::span<const Caso> casi) {
  Grammatica nomi(lingua);
  for (const Caso& caso : casi) {
    Grammatica grammatica(lingua);
    Revisione revisione(QString::fromUtf8(caso.errato), grammatica);
    int passi = 0;
    for (; revisione.Corrente() && passi < 20; ++passi) {
      const Regola* regola = nomi.RegolaDi(*revisione.Corrente());
      EXPECT_STREQ(regola == nullptr ? "" : regola->nome, caso.regola) << caso.errato;
      revisione.Sostituisci(revisione.Proposte().value(0));
    }
    EXPECT_LT(passi, 20) << caso.errato;
    EXPECT_EQ(revisione.Testo().toStdString(), caso.giusto);
  }
}

void Tacciono(Lingua lingua, std::span<const char* const> testi) {
  Grammatica grammatica(lingua);
  for (const char* testo : testi) {
    for (const Segnalazione& trovata : grammatica.Segnala(QString::fromUtf8(testo))) {
      const Regola* regola = grammatica.RegolaDi(trovata);
      ADD_FAILURE() << testo << "\nat \"" << trovata.testo.toStdString()
                    << "\": " << (regola == nullptr ? "signs" : regola->nome);
    }
  }
}

TEST(Grammatica, EachRuleMendsItsOwnSlip) {
  Correggono(Lingua::Italiano, kComuni);
  Correggono(Lingua::Italiano, kItaliani);
  Correggono(Lingua::Inglese, kComuni);
  Correggono(Lingua::Inglese, kInglesi);
}

TEST(Grammatica, EveryRuleHasACase) {
  const auto senzaCaso = [](std::span<const Regola> regole, std::span<const Caso> casi) {
    std::set<std::string> nomi;
    for (const Regola& regola : regole) EXPECT_TRUE(nomi.insert(regola.nome).second) << regola.nome;
    for (const Caso& caso : casi) nomi.erase(caso.regola);
    return nomi;
  };
  EXPECT_EQ(senzaCaso(RegoleComuni(), kComuni), std::set<std::string>());
  EXPECT_EQ(senzaCaso(RegoleItaliane(), kItaliani), std::set<std::string>());
  EXPECT_EQ(senzaCaso(RegoleInglesi(), kInglesi), std::set<std::string>());
}

TEST(Grammatica, FindsNothingInCorrectTexts) {
  Tacciono(Lingua::Italiano, kItalianoGiusto);
  Tacciono(Lingua::Inglese, kIngleseGiusto);
}

}  // namespace
}  // namespace torvi
