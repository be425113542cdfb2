#include <array>

#include "testi/regole.h"

namespace torvi {
namespace {

constexpr std::array kRegole = {
    // Sentences and abbreviations. An Italian sentence ends in a vowel, an abbreviation seldom.
    Regola{
        "minuscola dopo il punto",
        R"((?<![\p{L}.])\p{L}{2,}[aeiouàèéìòù][»”"’)]?\K\.([»”"’)]?)[ ]+(\p{Ll}\p{L}*+)(?![).]))",
        R"(.\1 \u\2)", "Dopo il punto fermo si comincia con la maiuscola."},
    Regola{"abbreviazione senza punto",
           R"(\b(artt?|pagg?|nn?|sez|lett|Artt?|Pagg?|Nn?|Sez|Lett)[ ](?=\p{N}))", R"(\1. )",
           "L'abbreviazione si chiude con il punto."},
    Regola{"abbreviazione attaccata al numero", R"((?i)\b(artt?|pagg?)\.(?=\p{N}))", R"(\1. )",
           "Dopo il punto dell'abbreviazione va uno spazio."},
    Regola{"sigla senza il punto finale",
           R"((?i)(?<![\p{L}.])(c\.d|d\.lgs|d\.l|d\.p\.r|d\.m|r\.d|c\.c|c\.p|c\.p\.c|c\.p\.p)"
           R"(|t\.u)(?=[ ,;)]))",
           R"(\1.)", "L'abbreviazione si chiude con il punto."},
    Regola{"eccetera", R"((?i)\b(ecc|etc)(?:\.{2,}|…|(?=[\s,;)]|$)))", R"(\1.)",
           "«ecc.» si scrive con un punto solo, senza puntini."},

    // Apostrophes.
    Regola{
        "spazio dopo l'apostrofo",
        R"((?i)(?<![\p{L}'’‘])(l|un|dell|all|dall|sull|nell|coll|quell|quest|sant|bell|[dcsvmtn])"
        R"(|dov|com|cos|anch|tutt|senz|mezz|nessun|alcun|ciascun)(<apostrofo>)[ ]+(?=<vocale>|h))",
        R"(\1\2)", "Dopo l'apostrofo di un'elisione non va lo spazio."},
    Regola{"spazio prima dell'apostrofo",
           R"(\b(dell|dall|sull|nell|quell|all)[ ]+(<apostrofo>)(?=<vocale>))", R"(\1\2)",
           "Prima dell'apostrofo di un'elisione non va lo spazio."},
    Regola{"apostrofo mancante",
           R"(\b(dell|dall|sull|nell|quell|coll|all(?![ ](?:in|inclusive|over|out)\b))[ ])"
           R"((?=<vocale>\p{L}))",
           R"(\1')", "Davanti a vocale la parola si elide: va l'apostrofo."},
    Regola{"articolo l senza apostrofo",
           R"((?<!lettera[ ])(?<!lett\.[ ])(?<![\p{L}.'’])([Ll])[ ](?=<vocale>\p{L}{3,}))",
           R"(\1')", "Davanti a vocale l'articolo si elide: va l'apostrofo."},
    Regola{"un' davanti a maschile",
           R"((?i)\b((?:qualc|ness|alc|ciasc)?un)<apostrofo>(?=(?:altro|atto|accordo|anno|articolo)"
           R"(|uomo|ente|organo|ordine|istituto|ufficio|obbligo|interesse|esame|esempio|elemento)"
           R"(|effetto|evento|illecito|indizio|avvocato|appello|appalto|impegno|impiego|istante)"
           R"(|indirizzo|arco|ambito|aspetto|oggetto|onere|abuso|aumento|aiuto|assegno|ulteriore)"
           R"(|<vocale>\p{L}+mento|<vocale>\p{L}{2,}(?:tore|rrore|smo))\b))",
           R"(\1 )", "Davanti a un nome maschile «un» non vuole l'apostrofo."},
    Regola{"un davanti a femminile",
           R"((?i)\b((?:qualc|ness|alc|ciasc)?un)[ ](?=(?:altra|amica|opera|idea|impresa|ipotesi)"
           R"(|istanza|udienza|area|arma|offerta|alternativa|analisi|agenzia|assemblea|economia)"
           R"(|indagine|inchiesta|imposta|autonoma|unica|apposita|adeguata|espressa|effettiva)"
           R"(|<vocale>\p{L}*(?:zione|sione|tà|anza|enza))\b))",
           R"(\1')", "Davanti a un nome femminile che comincia per vocale va «un'»."},
    Regola{"qual è", R"((?i)\b(qual)<apostrofo>[ ]?(?=è|é|e<apostrofo>|era\b|erano\b))", R"(\1 )",
           "«Qual è» è un troncamento: si scrive senza apostrofo."},
    Regola{"troncamento con apostrofo", R"((?i)\b(tal)<apostrofo>(?=è|altr[aoie]\b|era\b))",
           R"(\1 )", "È un troncamento: si scrive senza apostrofo."},
    Regola{"po'", R"((?i)\b(p)ò(?!\p{L}))", R"(\1o')",
           "«Po'» è il troncamento di «poco»: vuole l'apostrofo, non l'accento."},
    Regola{"parola divisa da apostrofo",
           R"((?i)\b(?:(ogn)<apostrofo>(uno|una)|(qual)<apostrofo>(ora)|(fin)<apostrofo>(ora))\b)",
           R"(\1\2|\3\4|\5\6)", "La parola si scrive unita, senza apostrofo."},

    // Apostrophes for accents.
    Regola{"e' per è", R"((?i)(?<![\p{L}'’‘])e<apostrofo>(?=[ ,]))", "è",
           "La terza persona del verbo essere vuole l'accento grave: «è»."},
    Regola{"c'e' per c'è", R"((?i)\b(c|dov|com|cos|quant)(<apostrofo>)e<apostrofo>)", R"(\1\2è)",
           "La terza persona del verbo essere vuole l'accento grave: «è»."},
    Regola{"apostrofo per accento acuto",
           R"((?i)\b((?:per|poi|affin|ben|fin|giac|sic|cosic|pur|non|anzi|seb?ben|allor|di)ch))"
           R"(e<apostrofo>)",
           R"(\1é)", "Al posto dell'apostrofo va l'accento acuto."},
    Regola{"apostrofo per accento su a",
           R"((?i)\b(gi|societ|facolt|qualit|autorit|attivit|libert|propriet|responsabilit)"
           R"(|legittimit|possibilit|necessit|validit|nullit)a<apostrofo>)",
           R"(\1à)", "Al posto dell'apostrofo va l'accento."},
    Regola{"apostrofo per accento su i, o, u",
           R"((?i)\b(?:(cos)i<apostrofo>|(pu|per|perci|ci)o<apostrofo>|(pi)u<apostrofo>))",
           R"(\1ì|\2ò|\3ù)", "Al posto dell'apostrofo va l'accento."},

    // Accents.
    Regola{"pressoché", R"((?i)\bpressoc+h[éè](?!\p{L})(?<!pressoché))", "pressoché",
           "Si scrive con una c sola e l'accento acuto."},
    Regola{"-ché", R"((?i)\b(\p{L}*ch)è(?!\p{L}))", R"(\1é)",
           "La e finale è chiusa: vuole l'accento acuto."},
    Regola{"né e sé", R"((?i)\b(n|s)è(?!\p{L}))", R"(\1é)",
           "La e di «né» e di «sé» è chiusa: vuole l'accento acuto."},
    Regola{"composti di tre", R"((?i)\b((?:vent|\p{L}{2,}ant)atr|ventitr|\p{L}+antatr)è(?!\p{L}))",
           R"(\1é)", "I composti di «tre» vogliono l'accento acuto."},
    Regola{"i accentata", R"((?<!\p{L})(\p{Ll}+)í(?!\p{L}))", R"(\1ì)",
           "La i finale vuole l'accento grave."},
    Regola{"u accentata", R"((?<!\p{L})(\p{Ll}+)ú(?!\p{L}))", R"(\1ù)",
           "La u finale vuole l'accento grave."},
    Regola{"é per è", R"((?i)(?<!\p{L})é(?!\p{L}))", "è",
           "La terza persona del verbo essere vuole l'accento grave: «è»."},
    Regola{"e aperta finale", R"((?i)\b(caff|cio|ahim|ohim)é(?!\p{L}))", R"(\1è)",
           "La e finale è aperta: vuole l'accento grave."},
    Regola{"monosillabi in a", R"((?i)\b(f|st|s|v|qu)à(?!\p{L}))", R"(\1a)",
           "Il monosillabo si scrive senza accento."},
    Regola{"altri monosillabi", R"((?i)\b(?:(qu)ì|(s|bl)ù|(r|m|tr)è)(?!\p{L}))", R"(\1i|\2u|\3e)",
           "La parola si scrive senza accento."},
    Regola{"cè", R"((?i)\bc[èé](?!\p{L}))", "c'è", "Si scrive con l'apostrofo: «c'è»."},

    // Articles and prepositions.
    Regola{"il davanti a s impura", R"(\b[Ii]l[ ](?=<impura>))", "lo ",
           "Davanti a s seguita da consonante, z, gn e ps va «lo»."},
    Regola{"un davanti a s impura", R"(\b([Uu]n)[ ](?=<impura>))", R"(\1o )",
           "Davanti a s seguita da consonante, z, gn e ps va «uno»."},
    Regola{"preposizione davanti a s impura",
           R"(\b([Dd]e|[Aa]|[Dd]a|[Ss]u|[Nn]e|[Qq]ue)l[ ](?=<impura>))", R"(\1llo )",
           "Davanti a s seguita da consonante, z, gn e ps va la forma in «-lo»."},
    Regola{"il davanti a vocale", R"(\b[Ii]l[ ](?=[aeou]\p{Ll}{2,}))", "l'",
           "Davanti a vocale l'articolo è «l'»."},
    Regola{"preposizione davanti a vocale",
           R"(\b([Dd]e|[Aa]|[Dd]a|[Ss]u|[Nn]e|[Qq]ue)l[ ](?=[aeou]\p{Ll}{2,}))", R"(\1ll')",
           "Davanti a vocale la preposizione si elide."},
    Regola{
        "i per gli",
        R"((?<![\p{L}.'’])((?:[Dd]e|[Aa]|[Dd]a|[Ss]u|[Nn]e|[Qq]ue)?)i[ ](?=<impura>|[aeou]\p{Ll}{2,}))",
        R"(\1gli )", "Davanti a vocale, s seguita da consonante, z, gn e ps va «gli»."},
    Regola{
        "dello davanti a consonante",
        R"(\b([Dd]e|[Aa]|[Dd]a|[Ss]u|[Nn]e)llo[ ](?=(?:[bcdfgptv]r|[bcfp]l|[bcdfglmpqrtv])[aeiouàèéìòù]\p{L}))",
        R"(\1l )", "Davanti a consonante semplice va la forma senza «-lo»."},
    Regola{"ed davanti a consonante", R"((?<![\p{L}.'’])ed[ ](?=[bcdfglmnpqrstvz]\p{Ll}))", "e ",
           "Davanti a consonante si scrive «e»."},

    // Words joined or parted.
    Regola{"al di là",
           R"((?i)(?<![\p{L}'’])aldi(l|qu)à(?=[ ](?:di|del|dello|della|dell|dei|degli|delle|d)\b))",
           R"(al di \1à)", "La locuzione si scrive staccata; «l'aldilà» unito è l'oltretomba."},
    Regola{"a fianco",
           R"((?i)(?<![mts]i[ ])\baffianco(?=[ ](?:al?|allo|alla|all|ai|agli|alle|di|del|dello)"
           R"(|della|dell|dei|degli|delle)\b))",
           "a fianco", "La locuzione si scrive staccata; «affianco» è una voce di «affiancare»."},
    Regola{"d'accordo", R"((?i)\bd[ ]?accordo\b)", "d'accordo", "Si scrive con l'apostrofo."},
    Regola{"d'altronde", R"((?i)\bd[ ]?altr(onde|a parte|o canto)\b)", R"(d'altr\1)",
           "Si scrive con l'apostrofo."},
    Regola{"soprattutto", R"((?i)\bsopra(?:tutto|ttuto)\b)", "soprattutto",
           "Si scrive con due doppie."},
    Regola{"in quanto", R"((?i)\binquanto\b)", "in quanto", "La locuzione si scrive staccata."},
};

}  // namespace

std::span<const Regola> RegoleItaliane() { return kRegole; }

}  // namespace torvi
