#include "archive/esempio/frasi.h"

#include <array>

namespace torvi::esempio {

namespace {

constexpr std::array<QStringView, 14> kTitoliItaliani = {
    u"Note {SU}",
    u"{Tm}: profili ricostruttivi",
    u"{Tm} tra legge e giurisprudenza",
    u"Brevi osservazioni in tema di {S}",
    u"Ancora {SU}",
    u"Appunti per uno studio {DI}",
    u"Profili problematici {DI}",
    u"{Tm} alla prova dei fatti",
    u"Orientamenti e “disorientamenti” {SU}",
    u"{Tm} nella giurisprudenza più recente",
    u"Riflessioni {SU} dopo la riforma",
    u"{Tm}: un problema aperto",
    u"Il punto {SU} – Prime letture",
    u"Crisi e prospettive {DI}",
};

constexpr std::array<QStringView, 6> kTitoliInglesi = {
    u"Notes on {E}",
    u"Recent developments concerning {E}",
    u"The Italian debate on {E}",
    u"Rethinking {E}",
    u"{E}: law and practice",
    u"Some remarks on {E} after the reform",
};
constexpr std::array<QStringView, 4> kTitoliFrancesi = {
    u"Réflexions : {E}",
    u"{E} : évolution récente",
    u"{E} en droit italien et français",
    u"{E} après la réforme",
};
constexpr std::array<QStringView, 4> kTitoliTedeschi = {
    u"{E} – Grundlagen und Grenzen",
    u"{E} im italienischen Recht",
    u"{E} nach der Reform",
    u"{E}: Bemerkungen zur neueren Rechtsprechung",
};

constexpr std::array<QStringView, 10> kAperture = {
    u"Il contributo esamina {T}, muovendo dal quadro normativo che ne ha segnato l’evoluzione.",
    u"Lo scritto ricostruisce {T} alla luce degli orientamenti più recenti della dottrina e della "
    u"giurisprudenza.",
    u"Si prende spunto da una pronuncia che torna {SU} e se ne offre una lettura critica.",
    u"Premessa una ricognizione delle fonti, lo studio si sofferma {SU} e sui problemi applicativi "
    u"che ne derivano.",
    u"Dopo un inquadramento storico {DI}, sono illustrate le tesi che si contendono il campo.",
    u"Si dà conto del dibattito {SU}, aperto dalla riforma e ancora lontano da un approdo sicuro.",
    u"L’indagine, che muove dal dato testuale di {F}, ha per oggetto {T}.",
    u"Il saggio è dedicato {A}, istituto di origine giurisprudenziale che il legislatore ha solo "
    u"in "
    u"parte recepito.",
    u"Vengono ripercorse le tappe che hanno condotto all’attuale disciplina {DI}.",
    u"La prima parte del lavoro definisce i confini {DI}; la seconda ne verifica la tenuta in sede "
    u"applicativa.",
};

constexpr std::array<QStringView, 30> kSviluppi = {
    u"La disciplina dettata da {F} viene letta in coordinamento con i principi costituzionali, con "
    u"particolare riguardo al canone di ragionevolezza.",
    u"Secondo l’opinione prevalente la norma ha carattere imperativo e non può essere derogata "
    u"dall’autonomia delle parti.",
    u"Non convince, ad avviso {AUT}, la soluzione accolta dalla giurisprudenza di merito, che "
    u"finisce per svuotare di contenuto la garanzia.",
    u"Sono poi passati in rassegna i rimedi: dall’annullamento al risarcimento del danno, fino "
    u"alla "
    u"tutela cautelare.",
    u"Un’attenzione specifica è riservata al riparto di giurisdizione e ai poteri istruttori del "
    u"giudice.",
    u"Il confronto con gli ordinamenti vicini mostra che la scelta italiana è tutt’altro che "
    u"isolata, benché non priva di peculiarità.",
    u"Emerge così una nozione “sostanziale”, attenta agli interessi in gioco più che alla forma "
    u"dell’atto.",
    u"La questione è affrontata anche sotto il profilo dell’onere della prova e delle presunzioni.",
    u"Si segnala, in particolare, il mutamento di indirizzo seguito a {F}.",
    u"Resta invece in ombra il problema degli effetti nel tempo della nuova disciplina, che {F} "
    u"non "
    u"risolve espressamente.",
    u"La dottrina ha criticato questa impostazione, osservando che essa confonde il piano della "
    u"validità con quello della responsabilità.",
    u"Di contro, una parte minoritaria degli interpreti ritiene che la regola vada applicata solo "
    u"ai "
    u"rapporti sorti dopo la sua entrata in vigore.",
    u"Quanto ai soggetti, si distingue fra chi è parte del rapporto e chi ne subisce soltanto gli "
    u"effetti indiretti.",
    u"Il tema è collegato a quello, più generale, della certezza del diritto e dell’affidamento "
    u"dei "
    u"terzi.",
    u"Sul piano processuale si discute della legittimazione ad agire e del termine di decadenza.",
    u"Le Sezioni Unite hanno composto il contrasto privilegiando il tenore letterale della "
    u"disposizione.",
    u"La tesi estensiva è sostenuta soprattutto con argomenti sistematici, tratti da {F}.",
    u"Vengono inoltre considerati i costi della regola: secondo alcune stime il contenzioso è "
    u"cresciuto di un terzo e il suo valore medio supera i dieci milioni di lire.",
    u"Ampio spazio è dato all’analisi economica, con l’avvertenza che l’efficienza non può essere "
    u"l’unico criterio di giudizio.",
    u"Si mette in luce il ruolo della buona fede quale fonte di obblighi accessori di protezione e "
    u"di informazione.",
    u"La prassi degli uffici, documentata attraverso circolari e formulari, si è nel frattempo "
    u"consolidata in senso contrario.",
    u"È inoltre esaminata l’ipotesi in cui il vizio sia rilevato d’ufficio, con richiamo a {F}.",
    u"Ne risulta un sistema a due velocità, che tratta in modo diverso situazioni sostanzialmente "
    u"eguali.",
    u"L’interpretazione comunitariamente orientata impone, d’altra parte, di assicurare l’effetto "
    u"utile delle direttive.",
    u"Il giudice delle leggi, più volte investito della questione, l’ha sempre dichiarata non "
    u"fondata – o inammissibile – senza entrare nel merito.",
    u"Vanno tenuti distinti il momento genetico e quello funzionale del rapporto, spesso "
    u"sovrapposti nelle motivazioni delle sentenze.",
    u"A sostegno della conclusione si richiamano i lavori preparatori, dai quali risulta che il "
    u"silenzio del legislatore fu intenzionale.",
    u"Particolarmente delicata è la posizione del minore, per il quale la regola generale deve "
    u"cedere al suo superiore interesse.",
    u"Un paragrafo è dedicato alla disciplina transitoria e ai procedimenti pendenti.",
    u"Si critica infine la tecnica legislativa, fatta di rinvii a catena che rendono incerto "
    u"persino "
    u"il testo vigente.",
};

constexpr std::array<QStringView, 8> kChiusure = {
    u"In conclusione si auspica un intervento del legislatore che dia stabilità alla materia.",
    u"Chiude il lavoro un’ampia rassegna bibliografica.",
    u"La soluzione proposta sembra la più coerente con il sistema, anche se la parola definitiva "
    u"spetterà alle Sezioni Unite.",
    u"Il bilancio è, nel complesso, positivo, ma non mancano zone d’ombra.",
    u"Le considerazioni finali riguardano le prospettive {DI} nel quadro della riforma in corso.",
    u"Si conclude che l’istituto conserva una sua utilità, purché ne siano chiariti i presupposti.",
    u"La conclusione {AUT} è che {T} debba essere ripensato alla radice.",
    u"Rimane aperto, da ultimo, il problema del coordinamento con la normativa speciale.",
};

constexpr std::array<QStringView, 10> kSviluppiInglesi = {
    u"The article deals with {E} and with the main questions that it raises in Italian law.",
    u"The author describes the origin of the rules and the reasons that led to their reform.",
    u"Special attention is paid to the case law of the last ten years, which is far from uniform.",
    u"According to the prevailing opinion, the rule is mandatory and cannot be waived by contract.",
    u"A comparison with other European systems shows that the Italian solution is not an isolated "
    u"one.",
    u"The remedies available to the injured party are then discussed, including interim relief.",
    u"The paper criticises the approach of the lower courts, which tends to deprive the guarantee "
    u"of "
    u"any content.",
    u"Some procedural aspects are also considered, such as standing and time limits.",
    u"Finally, the author argues that {E} should be reconsidered in the light of European law.",
    u"An intervention of the legislature is therefore considered both desirable and urgent.",
};

constexpr std::array<QStringView, 12> kVociSommario = {
    u"Premessa",
    u"Il quadro normativo",
    u"L’evoluzione della giurisprudenza",
    u"Le posizioni della dottrina",
    u"La natura giuridica {DI}",
    u"I presupposti",
    u"Gli effetti",
    u"I rimedi esperibili",
    u"Profili processuali",
    u"Cenni di diritto comparato",
    u"La disciplina transitoria",
    u"Conclusioni",
};

constexpr std::array<QStringView, 6> kInTemaDi = {
    u"in tema di {S}",
    u"in tema di {S} e di tutela dell’affidamento",
    u"in tema di presupposti {DI}",
    u"in tema di limiti {DI} e di onere della prova",
    u"in tema di {S}, con riferimento a {F}",
    u"in tema di {S} e di riparto di giurisdizione",
};

constexpr std::array<QStringView, 6> kNoteAmbiente = {
    u"Il testo è seguito dal provvedimento annotato.",
    u"Testo della relazione presentata al convegno.",
    u"In appendice il testo del disegno di legge.",
    u"Lo scritto è destinato agli Studi in onore di un collega.",
    u"Segue una replica nel fascicolo successivo.",
    u"Traduzione italiana riveduta dall’autore.",
};

constexpr std::array<QStringView, 4> kNoteCompilatore = {
    u"Verificare le pagine sul fascicolo.",
    u"Chiedere alla redazione il titolo esatto del contributo.",
    u"Controllare la classificazione\\proporre un descrittore nuovo.",
    u"Fonti da rivedere con il gruppo di lavoro.",
};

constexpr std::array<QStringView, 4> kConvegni = {
    u"Relazione al Convegno di studi “{Tm}”, Siena, 12-13 maggio 2000",
    u"Intervento alla tavola rotonda “{Tm}: bilanci e prospettive”, Napoli, 3 marzo 2001",
    u"Atti del Convegno “Verso una riforma {DI}”, Trento, 21 ottobre 1999",
    u"Relazione alla giornata di studio “{Tm}”, Perugia, 8 giugno 2001",
};

}  // namespace

Frasi TitoliItaliani() { return kTitoliItaliani; }
Frasi TitoliInglesi() { return kTitoliInglesi; }
Frasi TitoliFrancesi() { return kTitoliFrancesi; }
Frasi TitoliTedeschi() { return kTitoliTedeschi; }
Frasi Aperture() { return kAperture; }
Frasi Sviluppi() { return kSviluppi; }
Frasi Chiusure() { return kChiusure; }
Frasi SviluppiInglesi() { return kSviluppiInglesi; }
Frasi VociSommario() { return kVociSommario; }
Frasi InTemaDi() { return kInTemaDi; }
Frasi NoteAmbiente() { return kNoteAmbiente; }
Frasi NoteCompilatore() { return kNoteCompilatore; }
Frasi Convegni() { return kConvegni; }

}  // namespace torvi::esempio
