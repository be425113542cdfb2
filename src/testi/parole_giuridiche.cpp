#include "testi/parole_giuridiche.h"

#include <QSet>
#include <QStringList>

namespace torvi {
namespace {

// Both languages quote the Latin of jurists.
constexpr const char* kLatino =
    "abuso accessorium accipiens actio actus adempimenti adimplenti adimpleti affectio aliud "
    "aliunde alterum amicus animus arbitrium auctor audiatur bona bonam boni bonis bonum brevi "
    "captatio casus causa causae certum civilis civitatis cogens cogente communis compensatio "
    "condendo condicio conditio condominii confirmat consensus constitutum contractus "
    "contrahendo contrahere corpore credendi criminis cum curiae custodia damni damnum dante "
    "debeatur debet decidendi decies decisis decisum deducibile deducto defensionale delicti "
    "delicto delictum deposito depositum dicta dictum diem disputandum doli dolus domini dominus "
    "donandi dubio duodecies ea eadem effectus eius eo eodem erga error evictionis exceptio "
    "executivis expensis extrema facie facta facto factum falsum favor favorem fictio fidei "
    "fides finium fori fraudem fumus generalia generalis gentium genus gestio gestor gratia "
    "habeas homine hominis honorem ictu ignorantia imperii improbus inaudita incerta incidenter "
    "indebiti infinitum instrumentum intentio inter intra intuitu intuitus ipsa ipso iter iudex "
    "iudicando iudicati iudicatum iudicio iudicis iura iure iuris ius iussu iusta iustae "
    "iustitiae lata legale legatum lege legem leges legibus legis lex liberatoria libertatis "
    "licet lis litem litis locatio loci locum locus maior mala malam materiae medio mens mero "
    "minoris modo modus morae mortis motu multis mutandis mutatis necesse negotii negotiorum nemo "
    "nexum "
    "nomen nomine novi novies novit nudum nulla nullum nunc obiter obligatio occasio octies "
    "offendicula officii officio officium omissa omnes omnia onus ope operandi opinio "
    "ordinatorium pacta pactum pari pars parte partem partis patiendi patria pauliana pendente "
    "pendentia perpetuatio perpetuationis personae petendi petita petitum plena poena poenae "
    "possidendi posterior postulandi potestas praesumptio praesumptiones praeter prima primae "
    "princeps principii probandi probandum probatio procedendo proprio provisionis proximi "
    "publicum purgatio quaestio qualitatis quater quia quinquies quoad quod ratione rationis "
    "receptum reformatio regit regula regundorum rei relictum remissio reo rerum res reus "
    "revocatoria rigidum sanatio sanctio se secundum sedes semper sensu septies servandae sexies "
    "silentio simul sine singuli sit societas societatis solum solutio solvendi solvens "
    "specialis species sponte stans stantibus statim stipulatio stricto strictu subiecta "
    "subiecti sui suis sunt suo superficies supervacua suum tabula tacendo tamquam tantum "
    "tempore tempus tenetur ter tertio tertium testimonium thema timor traditio tribunus tunc "
    "ubi undecies unicuique unum usque usus ut utendo utili vacatio verba verbis veritatis vim "
    "vinculis vinculum vindicatio vindicta vires vis vivos volenti voluntas voluntatis volutum";

constexpr const char* kItaliano =
    "Agcom Cedu Cgue Consob Covip Eurojust Europol Frontex Ivass Onu Tfue Ue Unicost adoption "
    "amministrativistica amministrativistiche amministrativistici amministrativistico "
    "antidumping antielusiva antielusive antielusivo appropriativa appropriativo authorities "
    "authority bail best bigenitoriale bigenitorialità biodiritto blockchain canonistica "
    "canonistico cartolarizzazione civil codicistica codicistiche codicistici codicistico "
    "cointestazione common conferibilità consumeristica consumeristico costituzionalizzazione "
    "cram crowdfunding cyberbullismo decontribuzione deindicizzazione demansionamento "
    "deresponsabilizzazione disapplicabilità ecclesiasticistica ecclesiasticistico "
    "efficientamento eurounitari eurounitaria eurounitarie eurounitario extrapenale extrapenali "
    "extraprocessuale extraprocessuali fair fidejussione fidejussioni fidejussore fidejussorio "
    "fintech gender genitorialità giudicabilità giusfilosofica giusfilosofico giuslavoristica "
    "giuslavoristiche giuslavoristici giuslavoristico giusnaturalista giusnaturalistico "
    "giuspositivismo giuspositivista giusprivatistica giusprivatistico giuspubblicistica "
    "giuspubblicistico giusrealismo giustiziabile giustiziabili giustiziabilità golden "
    "governance grooming house inconferibilità inespropriabilità infrannuale infraprocedimentale "
    "intercettabilità interest interlocutorietà internazionalpenalistica "
    "internazionalprivatistica internazionalprivatistiche internazionalprivatistici "
    "internazionalprivatistico intraunionale judgment judicial lavoristica lavoristiche "
    "lavoristici lavoristico law leaseback legistica mediaconciliazione mobbing "
    "neocostituzionalismo neocostituzionalista neocostituzionalisti nomofilachia nomofilattica "
    "nomofilattiche nomofilattico nomogenetica nomogenetico omogenitoriale omogenitoriali "
    "omogenitorialità ordinamentale ordinamentali overruling parasubordinazione patrimonialità "
    "penalprocessualistica penalprocessualistico phishing pluridisciplinare plurioffensività "
    "plurioffensivo porn power precettività procedimentalizzazione process processualcivilistica "
    "processualcivilistico processualpenalistica processualpenalistico profiling protection "
    "provvedimentale provvedimentali rating regulation revenge review ripubblicizzazione rule "
    "rules sanzionabilità smart soft sovracompensazione sovraindebitamento spoil spoils "
    "stakeholder stakeholders startup stepchild subprocedimenti subprocedimento suppletività "
    "swap swaps system trial tributaristica tributaristico trustee ultrattiva ultrattività "
    "ultrattivo unionale unionali usufruibilità welfare whistleblower whistleblowing working";

// Among them the British spellings: journals use either, and the dictionary has the American ones.
constexpr const char* kInglese =
    "Consob Eurojust Europol Frontex acquis amongst analyse analysed authorisation authorise "
    "authorised behaviour cancelled caselaw centre characterise characterised colour counselling "
    "criminalisation criminalise criticise criticised decriminalisation defence emphasise "
    "emphasised enrol favour favourable fulfil fulfilment globalisation harmonisation harmonise "
    "harmonised honour judgement judgements justiciability labelling labour legitimisation "
    "legitimise liberalisation licence maximise minimise normativity offence organisation "
    "organisations penalise practise prioritise privatisation programme realise realised "
    "recognise recognised regularisation rulemaking specialised summarise summarised travelling "
    "utilise whistleblower whistleblowing";

QSet<QString> Insieme(const char* lingua) {
  const QString voci = QString::fromUtf8(kLatino) + u' ' + QString::fromUtf8(lingua);
  const QStringList elenco = voci.split(u' ');
  return QSet<QString>(elenco.begin(), elenco.end());
}

}  // namespace

bool ParolaGiuridica(const QString& parola, Lingua lingua) {
  static const QSet<QString> italiane = Insieme(kItaliano);
  static const QSet<QString> inglesi = Insieme(kInglese);
  return (lingua == Lingua::Italiano ? italiane : inglesi).contains(parola);
}

}  // namespace torvi
