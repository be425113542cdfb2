#include "fonti/tavole_fonte.h"

#include <algorithm>
#include <array>

#include "fonti/righe_fonte.h"

namespace torvi {
namespace {

using R = RigaFonte;

constexpr std::array kColonne = {
    ColonnaFonte{"articolo", &R::Articolo}, ColonnaFonte{"comma", &R::Comma},
    ColonnaFonte{"lettera", &R::Lettera},   ColonnaFonte{"allegato", &R::Allegato},
    ColonnaFonte{"ripa", &R::RipA},         ColonnaFonte{"ripc", &R::RipC},
    ColonnaFonte{"numero", &R::Numero},     ColonnaFonte{"numerop", &R::NumeroP},
    ColonnaFonte{"giorno", &R::Giorno},     ColonnaFonte{"anno", &R::Anno},
};

constexpr Catalogo kInterna{"TabFonteInterna", "IDFonteInterna", "FonteNorm"};
constexpr Catalogo kInt{"TabFonteInt", "IDFonteInt", "FonteInt"};
constexpr Catalogo kCom{"TabFonteCom", "IDFonteCom", "FonteCom"};
constexpr Catalogo kCan{"TabFonteCan", "IDFonteCan", "FonteCan"};

constexpr TavolaNomi kRegione{"TabRegione", "IDRegione", "CodRegione",
                              "IDRegione",  &R::Regione, {}};
constexpr TavolaNomi kProvincia{"TabProvincia", "IDProvincia", "CodProvincia",
                                "IDProvincia",  &R::Provincia, {}};
constexpr TavolaNomi kCitta{"TabCitta", "IDCitta", "Citta",
                            "IDCitta",  &R::Citta, {"Città nuova: aggiungere?", nullptr, nullptr}};
constexpr TavolaNomi kMinistero{
    "TabMinistero", "IDMinistero", "MinisteroNorm",
    "IDMinistero",  &R::Ministero, {"Ministero nuovo: aggiungere?", "Ministero: ", "ministero"}};
constexpr TavolaNomi kAmministrazione{
    "TabAmministrazione",
    "IDAmministrazione",
    "AmministrazioneNorm",
    "IDAmministrazione",
    &R::Amministrazione,
    {"Amministrazione nuova: aggiungere?", "Amministrazione: ", "amministrazione"}};
constexpr TavolaNomi kAutorita{
    "TabAutorita", "IDAutorita", "AutoritaNorm",
    "IDAutorita",  &R::Autorita, {"Autorità nuova: aggiungere?", "Autorita: ", "autorita"}};
constexpr TavolaNomi kSezione{"TabSezione", "IDSez",
                              "Sigla",      "IDSezione",
                              &R::Sezione,  {"Sezione nuova: aggiungere?", "Sezione: ", "sezione"}};
constexpr TavolaNomi kStato{"TabStato", "IDStato", "Stato",
                            "IDStato",  &R::Stato, {"Stato nuovo: aggiungere?", nullptr, nullptr}};

constexpr std::array kNomiInterni = {&kRegione,         &kCitta,    &kProvincia, &kMinistero,
                                     &kAmministrazione, &kAutorita, &kSezione};
constexpr std::array kNomiEsterni = {&kStato, &kSezione, &kRegione, &kCitta};
constexpr std::array kSoloSezione = {&kSezione};
constexpr std::array kRegioneCitta = {&kRegione, &kCitta};
constexpr std::array kSoloStato = {&kStato};

struct Famiglia {
  QLatin1String tp;
  bool prefisso;  // all codes that begin so
  TavoleFonte tavole;
};

constexpr std::array kFamiglie = {
    Famiglia{QLatin1String("LI"), true, {&kInterna, kNomiInterni}},
    Famiglia{QLatin1String("GI"), true, {&kInterna, kNomiInterni}},
    Famiglia{QLatin1String("AC"), true, {&kInterna, kNomiInterni}},
    Famiglia{QLatin1String("NIT"), false, {&kInt, {}}},
    Famiglia{QLatin1String("NIA"), false, {&kInt, {}}},
    Famiglia{QLatin1String("GEI"), false, {&kInt, kSoloSezione}},
    Famiglia{QLatin1String("NIC"), false, {&kCom, {}}},
    Famiglia{QLatin1String("GEC"), false, {&kCom, kSoloSezione}},
    Famiglia{QLatin1String("FCC"), false, {&kCan, kRegioneCitta}},
    Famiglia{QLatin1String("FCG"), false, {&kCan, kRegioneCitta}},
    Famiglia{QLatin1String("NS"), false, {nullptr, kSoloStato}},
    Famiglia{QLatin1String("GS"), false, {nullptr, kSoloStato}},
};

}  // namespace

std::span<const ColonnaFonte> ColonneFonte() { return kColonne; }

TavoleFonte TavoleDaCercare(const QString& tp) {
  const auto famiglia = std::ranges::find_if(kFamiglie, [&tp](const Famiglia& una) {
    return una.prefisso ? tp.startsWith(una.tp) : tp == una.tp;
  });
  return famiglia == kFamiglie.end() ? TavoleFonte{} : famiglia->tavole;
}

TavoleFonte TavoleDaLeggere(const QString& tp) {
  if (FonteInterna(tp)) return {&kInterna, kNomiInterni};
  // A code that only begins as AC does is internal law to the save alone.
  const Catalogo* catalogo = TavoleDaCercare(tp).catalogo;
  return {catalogo == &kInterna ? nullptr : catalogo, kNomiEsterni};
}

}  // namespace torvi
