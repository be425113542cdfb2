#include <array>

#include "testi/regole.h"

namespace torvi {
namespace {

constexpr std::array kRegole = {
    Regola{"minuscola dopo il punto",
           R"((?<![\p{L}.])(?!(?:paras|arts|chap|sect|vols|approx|supp|suppl|corp|const|ibid)\b))"
           R"([\p{L}]{4,}[”"’)]?\K\.([”"’)]?)[ ]+(\p{Ll}\p{L}*+)(?![).]))",
           R"(.\1 \u\2)", "Dopo il punto fermo si comincia con la maiuscola."},
    Regola{
        "a davanti a vocale",
        R"((?<![Pp]aragraph[ ])(?<![Ll]etter[ ])(?<![Pp]oint[ ])(?<![Ss]ection[ ])(?<![\p{L}.'’-])([Aa])[ ])"
        R"((?=[aeiou]\p{Ll}+)(?!eu|one\b|once\b|u(?:nanim|ni(?!n|mp)|s[aeu]|tili|tens|biq|topi)))",
        R"(\1n )", "Davanti a suono vocalico l'articolo è «an»."},
    Regola{"a davanti a h muta", R"((?<![\p{L}.'’-])([Aa])[ ](?=hour|honest|honou?r|heir))",
           R"(\1n )", "La h è muta: l'articolo è «an»."},
    Regola{"an davanti a consonante",
           R"(\b([Aa])n[ ](?=[bcdfgjklmnpqrstvwyz][bcdfghklmnpqrstvwyz]{0,2}[aeiouy]\p{Ll}))",
           R"(\1 )", "Davanti a suono consonantico l'articolo è «a»."},
    Regola{
        "an davanti a u e eu lette con consonante",
        R"(\b([Aa])n[ ](?=[Ee]urop|uni(?:vers|que|on\b|form|ty\b|lateral)|us(?:e|er|age|ual)\b))",
        R"(\1 )", "La parola comincia con suono consonantico: l'articolo è «a»."},
    Regola{
        "it's per its",
        R"((?i)\b(it)<apostrofo>s(?=[ ](?:own|provisions?|application|scope|content|terms|nature)"
        R"(|effects?|limits|case-law|judgments?|decisions?|members?|role|purpose|power|powers)"
        R"(|implementation|interpretation|jurisdiction)\b))",
        R"(\1s)", "Il possessivo è «its»; «it's» sta per «it is»."},
    Regola{"its per it's", R"((?i)\b(it)s(?=[ ](?:an?|the|not|been)\b))", R"(\1's)",
           "«It is» abbreviato si scrive «it's»; «its» è il possessivo."},
    Regola{"would of", R"((?i)\b(could|should|would|must|might)[ ]of\b(?![ ]course))", R"(\1 have)",
           "Dopo il verbo modale va «have»."},
    Regola{"then per than", R"((?i)\b(more|less|rather|greater|fewer|better)[ ]then\b)",
           R"(\1 than)", "Il secondo termine di un paragone vuole «than»."},
    Regola{"negazione senza apostrofo",
           R"((?i)\b(does|do|is|are|was|were|did|has|have|could|would|should)nt\b)", R"(\1n't)",
           "La forma contratta vuole l'apostrofo."},
    Regola{"plurale di nome non numerabile",
           R"((?i)\b(information|advice|knowledge|legislation|jurisprudence)s\b)", R"(\1)",
           "Il nome inglese non ha plurale."},
    Regola{"according with", R"((?i)\b(according)[ ]with\b)", R"(\1 to)",
           "Si scrive «according to»."},
    Regola{"depend from", R"((?i)\b(depend(?:s|ed|ing)?)[ ]from\b)", R"(\1 on)",
           "Il verbo regge «on»."},
    Regola{"the article 5", R"(\b[Tt]he[ ](?:[Aa]rticle|art\.)[ ](?=\p{N}))", "Article ",
           "Davanti al numero «Article» non vuole l'articolo."},
    Regola{"aggettivo di nazionalità", R"(\b(italian|european|english|french|german|spanish)\b)",
           R"(\u\1)", "In inglese gli aggettivi di nazionalità hanno la maiuscola."},
    Regola{"mese o giorno",
           R"(\b(january|february|april|june|july|september|october|november|december|monday)"
           R"(|tuesday|wednesday|thursday|friday|saturday|sunday)\b)",
           R"(\u\1)", "In inglese i mesi e i giorni hanno la maiuscola."},
    Regola{"apart from", R"((?i)\ba[ ]part[ ]from\b)", "apart from",
           "La locuzione si scrive unita."},
    Regola{"parole unite", R"((?i)\b(?:(a)(lot)|(in)(spite)|(even)(though)|(as)(well)[ ]as)\b)",
           R"(\1 \2|\3 \4|\5 \6|\7 \8 as)", "La locuzione si scrive staccata."},
};

}  // namespace

std::span<const Regola> RegoleInglesi() { return kRegole; }

}  // namespace torvi
