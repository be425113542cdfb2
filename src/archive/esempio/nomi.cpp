#include "archive/esempio/nomi.h"

#include <array>

namespace torvi::esempio {

namespace {

constexpr std::array<QStringView, 64> kCognomi = {
    u"Rossi",      u"Bianchi",   u"Ferrari",     u"Russo",   u"Colombo",    u"Ricci",
    u"Marino",     u"Greco",     u"Bruno",       u"Gallo",   u"Conti",      u"De Luca",
    u"Mancini",    u"Costa",     u"Giordano",    u"Rizzo",   u"Lombardi",   u"Moretti",
    u"Barbieri",   u"Fontana",   u"Santoro",     u"Mariani", u"Rinaldi",    u"Caruso",
    u"Ferrara",    u"Galli",     u"Martini",     u"Leone",   u"Longo",      u"Gentile",
    u"Martinelli", u"Vitale",    u"Lombardo",    u"Serra",   u"Coppola",    u"De Santis",
    u"D’Angelo",   u"Marchetti", u"Parisi",      u"Villa",   u"Conte",      u"Ferraro",
    u"Ferri",      u"Fabbri",    u"Bianco",      u"Marini",  u"Grasso",     u"Valentini",
    u"Messina",    u"Sala",      u"De Angelis",  u"Gatti",   u"Pellegrini", u"Palumbo",
    u"Sanna",      u"Farina",    u"Rizzi",       u"Monti",   u"Cattaneo",   u"Morelli",
    u"Amato",      u"Nardò",     u"Dalla Torre", u"Müller"};

constexpr std::array<QStringView, 40> kPrenomi = {
    u"Mario",    u"Anna",         u"Giuseppe",   u"Maria",     u"Antonio", u"Francesca",
    u"Giovanni", u"Paola",        u"Luigi",      u"Laura",     u"Paolo",   u"Giulia",
    u"Andrea",   u"Chiara",       u"Marco",      u"Elena",     u"Stefano", u"Silvia",
    u"Roberto",  u"Federica",     u"Alessandro", u"Valentina", u"Pietro",  u"Lucia",
    u"Carlo",    u"Daniela",      u"Enrico",     u"Barbara",   u"Nicolò",  u"Simona",
    u"Vincenzo", u"Maria Teresa", u"Gian Luca",  u"Rosa",      u"Michele", u"Ilaria",
    u"Tommaso",  u"Caterina",     u"Ugo",        u"Désirée"};

constexpr std::array<QStringView, 8> kEnti = {u"Associazione italiana dei costituzionalisti",
                                              u"Camera di commercio di Milano",
                                              u"Centro studi sulle autonomie locali",
                                              u"Consiglio superiore della magistratura",
                                              u"Corte dei conti",
                                              u"Istituto di studi giuridici “Vallombrosa”",
                                              u"Osservatorio sul processo civile",
                                              u"Università di Camerino. Facoltà di giurisprudenza"};

constexpr std::array<QStringView, 10> kParti = {u"Alfa c. Beta",
                                                u"Immobiliare Saffi c. Italia",
                                                u"Rossi et al. c. Italia",
                                                u"Kudła c. Polonia",
                                                u"Commissione c. Italia",
                                                u"Società Aurora c. Consiglio",
                                                u"Bottazzi c. Italia",
                                                u"Weiß c. Austria",
                                                u"Lefèvre e altri c. Francia",
                                                u"Ministero c. Marittima"};

constexpr std::array<QStringView, 6> kCategorie = {u"metalmeccanici", u"sanità", u"scuola",
                                                   u"commercio",      u"edili",  u"ministeri"};
constexpr std::array<QStringView, 4> kDiscipline = {u"calcio", u"ciclismo", u"pallacanestro",
                                                    u"atletica leggera"};
constexpr std::array<QStringView, 6> kOggetti = {
    u"tutela dei minori",        u"cooperazione giudiziaria", u"protezione delle acque",
    u"trattamento dei detenuti", u"libertà sindacale",        u"commercio dei servizi"};

constexpr std::array kNormeStraniere = {
    FonteStraniera{u"Code civil", u"Francia"},
    FonteStraniera{u"BGB", u"Germania"},
    FonteStraniera{u"Código civil", u"Spagna"},
    FonteStraniera{u"Human Rights Act", u"Regno Unito"},
    FonteStraniera{u"ABGB", u"Austria"},
    FonteStraniera{u"Loi sur l’informatique", u"Francia"},
    FonteStraniera{u"Obligationenrecht", u"Svizzera"},
};
constexpr std::array kSentenzeStraniere = {
    FonteStraniera{u"Cour cass. I", u"Francia"},
    FonteStraniera{u"BVerfG", u"Germania"},
    FonteStraniera{u"House of Lords", u"Regno Unito"},
    FonteStraniera{u"Tribunal constitucional", u"Spagna"},
    FonteStraniera{u"Supreme Court", u"Stati Uniti"},
};
constexpr std::array<QStringView, 4> kNormeCanoniche = {
    u"Cost. ap. Pastor bonus", u"Motu proprio Causas matrimoniales",
    u"Decr. gen. CEI sul matrimonio canonico", u"Istr. Dignitas connubii"};

constexpr std::array kFontiStoriche = {
    FonteStorica{u"FSRG", u"D. 46.4.18.1"},
    FonteStorica{u"FSRP", u"P. Oxy. 2.237 col. 8"},
    FonteStorica{u"FSRE", u"CIL I 592"},
    FonteStorica{u"FSRL", u"Cic., de off. 3.14.58"},
    FonteStorica{u"FSGG", u"Leg. Gort. col. 4.23"},
    FonteStorica{u"FSGP", u"P. Hal. 1.166"},
    FonteStorica{u"FSGE", u"IG I 104"},
    FonteStorica{u"FSGL", u"Dem., in Macart. 51"},
    FonteStorica{u"FSBG", u"Bas. 2.2.1"},
    FonteStorica{u"FSBP", u"P. Cair. Masp. 2.67151"},
    FonteStorica{u"FSBE", u"SEG 9.356"},
    FonteStorica{u"FSBL", u"Proc., Anecd. 13.20"},
    FonteStorica{u"FSC", u"C. Hamm. par. 128"},
    FonteStorica{u"FSE", u"Mishnah, Bava Qamma 8.1"},
    FonteStorica{u"FSI", u"Stat. Bon. 1288, l. II, rubr. 14"},
    FonteStorica{u"FSAG", u"Sachsenspiegel, Landr. 1.62"},
    FonteStorica{u"FSAP", u"P. Dura 32"},
    FonteStorica{u"FSAE", u"Iscr. di Hatra 281"},
    FonteStorica{u"FSAL", u"Tac., Germ. 12"},
    FonteStorica{u"FSA", u"Capit. Caroli Magni, c. 33"},
    FonteStorica{u"FSRG", u"Gai. 2.104"},
    FonteStorica{u"FSRG", u"Cod. Theod. 9.40.1"},
    FonteStorica{u"FSRL", u"Liv. 8.28"},
    FonteStorica{u"FSI", u"Bart., in D. 1.1.9, n. 20"},
    FonteStorica{u"FSGL", u"Arist., Pol. 3.1275b"},
};

}  // namespace

std::span<const QStringView> Cognomi() { return kCognomi; }
std::span<const QStringView> Prenomi() { return kPrenomi; }
std::span<const QStringView> EntiCollettivi() { return kEnti; }
std::span<const QStringView> Parti() { return kParti; }
std::span<const QStringView> Categorie() { return kCategorie; }
std::span<const QStringView> Discipline() { return kDiscipline; }
std::span<const QStringView> Oggetti() { return kOggetti; }
std::span<const FonteStraniera> NormeStraniere() { return kNormeStraniere; }
std::span<const FonteStraniera> SentenzeStraniere() { return kSentenzeStraniere; }
std::span<const QStringView> NormeCanoniche() { return kNormeCanoniche; }
std::span<const FonteStorica> FontiStoriche() { return kFontiStoriche; }

}  // namespace torvi::esempio
