#include "archive/esempio/temi.h"

#include <array>

namespace torvi::esempio {

namespace {

using enum Genere;

constexpr std::array kAmministrativo = {
    Tema{u"il silenzio della pubblica amministrazione", u"administrative silence",
         u"le silence de l’administration", u"das Schweigen der Verwaltung"},
    Tema{u"l’accesso ai documenti amministrativi", u"access to administrative documents",
         u"l’accès aux documents administratifs", u"die Akteneinsicht"},
    Tema{u"la conferenza di servizi", u"the joint decision procedure", u"la conférence de services",
         u"die Dienststellenkonferenz"},
    Tema{u"il risarcimento degli interessi legittimi", u"damages for unlawful administrative acts",
         u"la responsabilité de la puissance publique", u"die Staatshaftung"},
    Tema{u"la finanza di progetto negli enti locali", u"project finance for local authorities",
         u"le partenariat public-privé local", u"die Projektfinanzierung der Gemeinden"},
};
constexpr std::array kGeneriAmministrativo = {
    Statale, Amministrativa,       Regionale,       Ministeriale,          CorteConti, Provinciale,
    Acque,   RegolamentoRegionale, Amministrazione, RegolamentoProvinciale};

constexpr std::array kCivile = {
    Tema{u"la responsabilità precontrattuale", u"pre-contractual liability",
         u"la responsabilité précontractuelle", u"die vorvertragliche Haftung"},
    Tema{u"il danno biologico", u"personal injury", u"le dommage corporel",
         u"der Gesundheitsschaden"},
    Tema{u"l’affidamento dei figli minori", u"the custody of children", u"la garde des enfants",
         u"das Sorgerecht"},
    Tema{u"la caparra confirmatoria", u"the deposit in contracts of sale", u"les arrhes",
         u"das Angeld im Kaufvertrag"},
    Tema{u"gli usi civici nel Mezzogiorno", u"rights of common", u"les usages civiques",
         u"die Allmenderechte"},
};
constexpr std::array kGeneriCivile = {Codice, Cassazione, Ordinaria, Statale, Arbitrato};

constexpr std::array kCommerciale = {
    Tema{u"la tutela del marchio notorio", u"the protection of well-known trade marks",
         u"la protection des marques notoires", u"der Schutz der bekannten Marke"},
    Tema{u"le clausole bancarie uniformi", u"standard terms in banking",
         u"les conditions générales des banques",
         u"die Allgemeinen Geschäftsbedingungen der Banken"},
    Tema{u"i patti parasociali", u"shareholders’ agreements", u"les pactes d’actionnaires",
         u"die Stimmbindungsverträge"},
    Tema{u"l’abuso di posizione dominante", u"the abuse of a dominant position",
         u"l’abus de position dominante", u"der Missbrauch einer beherrschenden Stellung"},
};
constexpr std::array kGeneriCommerciale = {Codice,     Brevetti, Bancarie, Autorita,
                                           Cassazione, Statale,  Brevetti};

constexpr std::array kLavoro = {
    Tema{u"il licenziamento per giustificato motivo", u"dismissal for objective reasons",
         u"le licenciement économique", u"die betriebsbedingte Kündigung"},
    Tema{u"lo sciopero nei servizi pubblici essenziali", u"strikes in essential services",
         u"la grève dans les services essentiels", u"der Streik in der Daseinsvorsorge"},
    Tema{u"la tutela dei fondi pensione", u"the protection of pension funds",
         u"la protection des fonds de pension", u"der Schutz der Pensionsfonds"},
};
constexpr std::array kGeneriLavoro = {Collettivo, Statale, Cassazione, Ordinaria, Amministrazione};

constexpr std::array kTributario = {
    Tema{u"l’avviso di accertamento", u"the notice of assessment", u"l’avis de redressement",
         u"der Steuerbescheid"},
    Tema{u"lo statuto del contribuente", u"the taxpayers’ charter", u"la charte du contribuable",
         u"das Statut der Steuerpflichtigen"},
    Tema{u"la notificazione degli atti impositivi", u"service of tax assessments",
         u"la notification des actes d’imposition", u"die Zustellung der Steuerbescheide"},
};
constexpr std::array kGeneriTributario = {Tributaria, Statale, Ministeriale, Cassazione};

constexpr std::array kPenale = {
    Tema{u"la custodia cautelare in carcere", u"pre-trial detention", u"la détention provisoire",
         u"die Untersuchungshaft"},
    Tema{u"le intercettazioni telefoniche", u"telephone tapping", u"les écoutes téléphoniques",
         u"die Telefonüberwachung"},
    Tema{u"la legittima difesa nel domicilio", u"self-defence in the home",
         u"la légitime défense au domicile", u"die Notwehr im eigenen Haus"},
};
constexpr std::array kGeneriPenale = {Codice, Cassazione, Ordinaria, Speciale, Statale};

constexpr std::array kCostituzionale = {
    Tema{u"l’insindacabilità dei parlamentari", u"parliamentary immunity",
         u"l’immunité parlementaire", u"die Indemnität der Abgeordneten"},
    Tema{u"la potestà legislativa delle regioni", u"the legislative power of the regions",
         u"le pouvoir législatif des régions", u"die Gesetzgebung der Regionen"},
    Tema{u"i limiti della decretazione d’urgenza", u"the limits of emergency decrees",
         u"les limites des décrets-lois", u"die Grenzen der Notverordnungen"},
};
constexpr std::array kGeneriCostituzionale = {CorteCostituzionale, Costituzionale, Camera, Codice,
                                              GiurisdizioneCamera, Senato};

constexpr std::array kInternazionale = {
    Tema{u"la durata ragionevole del processo", u"the reasonable length of proceedings",
         u"la durée raisonnable de la procédure", u"die angemessene Verfahrensdauer"},
    Tema{u"l’immunità degli stati dalla giurisdizione", u"the immunity of states",
         u"l’immunité de juridiction des États", u"die Staatenimmunität"},
    Tema{u"il riconoscimento dello status di rifugiato", u"the recognition of refugees",
         u"la reconnaissance des réfugiés", u"die Anerkennung der Flüchtlinge"},
};
constexpr std::array kGeneriInternazionale = {Trattato, CorteInternazionale, AttoInternazionale};

constexpr std::array kComunitario = {
    Tema{u"la libera circolazione dei lavoratori", u"the free movement of workers",
         u"la libre circulation des travailleurs", u"die Freizügigkeit der Arbeitnehmer"},
    Tema{u"gli aiuti di stato alle imprese", u"state aid", u"les aides d’État",
         u"die staatlichen Beihilfen"},
    Tema{u"il rinvio pregiudiziale", u"the reference for a preliminary ruling",
         u"le renvoi préjudiciel", u"das Vorabentscheidungsverfahren"},
};
constexpr std::array kGeneriComunitario = {DerivatoUe, CorteUe, TrattatoUe, ConvenzioneUe};

constexpr std::array kComparato = {
    Tema{u"il contratto in favore di terzi nel diritto comparato",
         u"contracts for the benefit of third parties", u"la stipulation pour autrui",
         u"der Vertrag zugunsten Dritter"},
    Tema{u"la responsabilità del produttore in Europa", u"product liability in Europe",
         u"la responsabilité du fait des produits", u"die Produkthaftung in Europa"},
};
constexpr std::array kGeneriComparato = {NormaStraniera, SentenzaStraniera};

constexpr std::array kEcclesiastico = {
    Tema{u"il matrimonio concordatario", u"concordat marriage", u"le mariage concordataire",
         u"die Konkordatsehe"},
    Tema{u"la simulazione del consenso matrimoniale", u"simulated matrimonial consent",
         u"la simulation du consentement", u"die Simulation des Ehekonsenses"},
};
constexpr std::array kGeneriEcclesiastico = {CodiceCanonico, SentenzaCanonica, NormaCanonica};

constexpr std::array kStoria = {
    Tema{u"la manomissione nell’età del principato", u"manumission in the early empire",
         u"l’affranchissement sous le principat", u"die Freilassung in der Prinzipatszeit"},
    Tema{u"il giuramento nei diritti antichi", u"the oath in ancient law",
         u"le serment dans les droits antiques", u"der Eid in den antiken Rechten"},
    Tema{u"gli statuti dei comuni medievali", u"the statutes of medieval towns",
         u"les statuts communaux du Moyen Âge", u"die mittelalterlichen Stadtstatuten"},
};
constexpr std::array kGeneriStoria = {Storica};

constexpr std::array kSport = {
    Tema{u"il vincolo sportivo degli atleti dilettanti", u"the registration of amateur athletes",
         u"la licence des athlètes amateurs", u"die Vereinsbindung der Amateure"},
    Tema{u"il doping e la giustizia sportiva", u"doping and sports justice",
         u"le dopage et la justice sportive", u"das Doping und die Sportgerichtsbarkeit"},
};
constexpr std::array kGeneriSport = {Sportiva, Statale, Amministrativa};

constexpr std::array kAree = {
    Area{u"AMM", kAmministrativo, kGeneriAmministrativo, 4},
    Area{u"CIV", kCivile, kGeneriCivile, 3},
    Area{u"COMM", kCommerciale, kGeneriCommerciale, 3},
    Area{u"STOR", kStoria, kGeneriStoria, 7},
    Area{u"LAV", kLavoro, kGeneriLavoro, 3},
    Area{u"TRIB", kTributario, kGeneriTributario, 2},
    Area{u"PEN", kPenale, kGeneriPenale, 3},
    Area{u"COST", kCostituzionale, kGeneriCostituzionale, 3},
    Area{u"INT", kInternazionale, kGeneriInternazionale, 2},
    Area{u"UE", kComunitario, kGeneriComunitario, 3},
    Area{u"COMP", kComparato, kGeneriComparato, 2},
    Area{u"ECCL", kEcclesiastico, kGeneriEcclesiastico, 2},
    Area{u"LAV", kSport, kGeneriSport, 2},
};

}  // namespace

std::span<const Area> Aree() { return kAree; }

}  // namespace torvi::esempio
