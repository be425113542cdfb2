#include "archive/schema_colonne.h"

namespace torvi {
namespace {

using namespace schema;

std::vector<Tabella> Documenti() {
  return {
      {u"TabDocumento"_qs,
       {Contatore(u"IDDocumento"_qs), Intero(u"IDRifBibl"_qs), Testo(u"pagine"_qs),
        Testo(u"LIN"_qs, 2), Testo(u"lo"_qs, 2), Testo(u"lr"_qs, 2), Testo(u"la"_qs, 2),
        Testo(u"Bib"_qs, 1), Testo(u"td"_qs, 2), Testo(u"TAbs"_qs, 3)},
       {Primaria(u"IDDocumento"_qs), Semplice(u"IDRifBibl"_qs)}},
      {u"TabRifBibl"_qs,
       {Contatore(u"IDRifBibl"_qs), Intero(u"IDRivista"_qs), Testo(u"Fascicolo"_qs),
        Testo(u"Annata"_qs), Testo(u"Volume"_qs), Testo(u"Parte"_qs), Testo(u"Serie"_qs),
        Testo(u"Supplemento"_qs), Testo(u"Sezione"_qs), Testo(u"Data"_qs)},
       {Primaria(u"IDRifBibl"_qs), Semplice(u"IDRivista"_qs)}},
      {u"TabTesto"_qs, {Contatore(u"IDTesto"_qs), Memo(u"testo"_qs)}, {Primaria(u"IDTesto"_qs)}},
      {u"LegameDocTesto"_qs,
       {Intero(u"IDDoc"_qs), Intero(u"IDTesto"_qs), Testo(u"Tipo"_qs, 1)},
       {Semplice(u"IDDoc"_qs), Semplice(u"IDTesto"_qs)}},
      {u"TabResponsabilita"_qs,
       {Contatore(u"IDResponsabilita"_qs), Testo(u"PrimoElemento"_qs), Testo(u"SecondoElemento"_qs),
        Logico(u"flagCollettivo"_qs)},
       {Unico(u"IDResponsabilita"_qs),
        {u"nome"_qs, {u"PrimoElemento"_qs, u"SecondoElemento"_qs}, false}}},
      {u"LegameDocResp"_qs,
       {Intero(u"IDDoc"_qs), Intero(u"IDResponsabilita"_qs), Logico(u"flagAutore"_qs)},
       {Semplice(u"IDDoc"_qs), Semplice(u"IDResponsabilita"_qs)}},
  };
}

std::vector<Tabella> Classificazione() {
  return {
      {u"TabClasse2000"_qs,
       {Contatore(u"IDClasse2000"_qs), Intero(u"IDClasse2000-S"_qs),
        InteroZero(u"IDClasse2000-D"_qs), Testo(u"Classe2000-D"_qs), Testo(u"Check"_qs, 1)},
       {Primaria(u"IDClasse2000"_qs), Semplice(u"IDClasse2000-S"_qs),
        Semplice(u"IDClasse2000-D"_qs)}},
      {u"TabClasse2000-S"_qs,
       {Contatore(u"IDClasseS"_qs), Testo(u"CodiceS"_qs), Testo(u"sigla"_qs), Testo(u"SiglaC"_qs),
        Testo(u"descrizione"_qs)},
       {Primaria(u"IDClasseS"_qs), Unico(u"CodiceS"_qs)}},
      {u"TabClasse2000-D"_qs,
       {Contatore(u"IDClasseD"_qs), Testo(u"CodiceD"_qs), Testo(u"descrizione"_qs)},
       {Primaria(u"IDClasseD"_qs), Unico(u"CodiceD"_qs)}},
      {u"TabLegameDS"_qs,
       {Testo(u"NS"_qs), Testo(u"nD"_qs)},
       {Semplice(u"NS"_qs), {u"coppia"_qs, {u"NS"_qs, u"nD"_qs}, true}}},
      {u"TabLegameDSA"_qs,
       {Testo(u"NS"_qs), Testo(u"nD"_qs)},
       {Semplice(u"NS"_qs), {u"coppia"_qs, {u"NS"_qs, u"nD"_qs}, false}}},
      {u"LegameDocClass"_qs,
       {Intero(u"IDDoc"_qs), Intero(u"IDClass"_qs)},
       {Semplice(u"IDDoc"_qs), Semplice(u"IDClass"_qs)}},
      {u"TabClasse1999"_qs,
       {Contatore(u"IDClasse1999"_qs), Testo(u"Codice"_qs), Testo(u"descrizione"_qs),
        Intero(u"ID_PADRE"_qs)},
       {Primaria(u"IDClasse1999"_qs), Semplice(u"Codice"_qs)}},
      {u"LegameDocClass1999"_qs,
       {Intero(u"IDDoc"_qs), Intero(u"IDClass"_qs)},
       {Semplice(u"IDDoc"_qs), Semplice(u"IDClass"_qs)}},
  };
}

std::vector<Tabella> Fonti() {
  return {
      {u"TabFonte"_qs,
       {Contatore(u"IDFonte"_qs),
        Testo(u"TP"_qs),
        InteroZero(u"fonte"_qs),
        Memo(u"testo"_qs),
        Testo(u"articolo"_qs),
        Testo(u"comma"_qs),
        Testo(u"lettera"_qs),
        Testo(u"allegato"_qs),
        Testo(u"ripa"_qs),
        Testo(u"ripc"_qs),
        Testo(u"numero"_qs),
        Testo(u"numeroP"_qs),
        Testo(u"giorno"_qs),
        Testo(u"mese"_qs),
        Testo(u"anno"_qs),
        Testo(u"altro"_qs),
        Logico(u"ordinanza"_qs),
        Logico(u"decreto"_qs),
        InteroZero(u"IDRegione"_qs),
        InteroZero(u"IDProvincia"_qs),
        InteroZero(u"IDCitta"_qs),
        InteroZero(u"IDMinistero"_qs),
        InteroZero(u"IDAmministrazione"_qs),
        InteroZero(u"IDAutorita"_qs),
        InteroZero(u"IDSezione"_qs),
        InteroZero(u"IDStato"_qs)},
       {Primaria(u"IDFonte"_qs), Semplice(u"fonte"_qs), Semplice(u"testo"_qs)}},
      {u"LegameDocFonte"_qs,
       {Intero(u"IDDoc"_qs), Intero(u"IDFnt"_qs)},
       {Semplice(u"IDDoc"_qs), Semplice(u"IDFnt"_qs)}},
      {u"TabFonteInterna"_qs,
       {Contatore(u"IDFonteInterna"_qs), Testo(u"FonteNorm"_qs), Testo(u"URN"_qs),
        Testo(u"liv1"_qs), Testo(u"liv2"_qs)},
       {Primaria(u"IDFonteInterna"_qs), Semplice(u"FonteNorm"_qs)}},
      {u"TabFonteCom"_qs,
       {Contatore(u"IDFonteCom"_qs), Testo(u"FonteCom"_qs), Testo(u"Settore"_qs),
        Testo(u"Codice"_qs), Testo(u"AnnoF"_qs), Intero(u"Tipo"_qs)},
       {Primaria(u"IDFonteCom"_qs), Semplice(u"FonteCom"_qs)}},
      {u"TabFonteInt"_qs,
       {Contatore(u"IDFonteInt"_qs), Testo(u"FonteInt"_qs), Testo(u"Fonte"_qs), Intero(u"Tipo"_qs)},
       {Primaria(u"IDFonteInt"_qs), Semplice(u"FonteInt"_qs), Semplice(u"Fonte"_qs)}},
      {u"TabFonteCan"_qs,
       {Contatore(u"IDFonteCan"_qs), Testo(u"FonteCan"_qs), Intero(u"Tipo"_qs)},
       {Primaria(u"IDFonteCan"_qs), Semplice(u"FonteCan"_qs)}},
      {u"TabNIT"_qs,
       {Contatore(u"idnit"_qs), Testo(u"nit"_qs), Testo(u"fonte"_qs), Testo(u"numero"_qs),
        Testo(u"descrizione"_qs), Data(u"data"_qs)},
       {Primaria(u"idnit"_qs)}},
  };
}

// The small tables that name places and bodies. Those with `nuovo` grow while sources are entered.
std::vector<Tabella> Luoghi() {
  return {
      {u"TabRegione"_qs,
       {Contatore(u"IDRegione"_qs), Testo(u"CodRegione"_qs), Testo(u"regione"_qs),
        Testo(u"codRegioneURN"_qs)},
       {Primaria(u"IDRegione"_qs), Unico(u"CodRegione"_qs)}},
      {u"TabProvincia"_qs,
       {Contatore(u"IDProvincia"_qs), Testo(u"CodProvincia"_qs), Testo(u"provincia"_qs)},
       {Primaria(u"IDProvincia"_qs), Unico(u"CodProvincia"_qs)}},
      {u"TabCitta"_qs,
       {Contatore(u"IDCitta"_qs), Testo(u"citta"_qs), InteroZero(u"nuovo"_qs)},
       {Primaria(u"IDCitta"_qs), {u"Citta"_qs, {u"citta"_qs}, false}}},
      {u"TabMinistero"_qs,
       {Contatore(u"IDMinistero"_qs), Testo(u"MinisteroNorm"_qs), Testo(u"ministero"_qs),
        InteroZero(u"nuovo"_qs)},
       {Primaria(u"IDMinistero"_qs), Semplice(u"MinisteroNorm"_qs)}},
      {u"TabAmministrazione"_qs,
       {Contatore(u"IDAmministrazione"_qs), Testo(u"AmministrazioneNorm"_qs),
        Testo(u"amministrazione"_qs), InteroZero(u"nuovo"_qs)},
       {Primaria(u"IDAmministrazione"_qs), Semplice(u"AmministrazioneNorm"_qs)}},
      {u"TabAutorita"_qs,
       {Contatore(u"IDAutorita"_qs), Testo(u"AutoritaNorm"_qs), Testo(u"autorita"_qs),
        InteroZero(u"nuovo"_qs)},
       {Primaria(u"IDAutorita"_qs), Semplice(u"AutoritaNorm"_qs)}},
      {u"TabSezione"_qs,
       {Contatore(u"IDSez"_qs), Testo(u"sigla"_qs), Testo(u"sezione"_qs), InteroZero(u"nuovo"_qs)},
       {Primaria(u"IDSez"_qs), {u"Sigla"_qs, {u"sigla"_qs}, false}}},
      {u"TabStato"_qs,
       {Contatore(u"IDStato"_qs), Testo(u"stato"_qs), InteroZero(u"nuovo"_qs)},
       {Primaria(u"IDStato"_qs), {u"Stato"_qs, {u"stato"_qs}, false}}},
  };
}

std::vector<Tabella> Codici() {
  return {
      {u"TabRivista"_qs,
       {Contatore(u"IDRivista"_qs), Testo(u"CPER"_qs), Testo(u"TitoloRivista"_qs),
        Intero(u"IDPeriodicita"_qs)},
       {Primaria(u"IDRivista"_qs), {u"cper"_qs, {u"CPER"_qs}, true}}},
      {u"TabPeriodicita"_qs,
       {Intero(u"IDPeriodicita"_qs), Testo(u"Periodicita"_qs)},
       {Primaria(u"IDPeriodicita"_qs)}},
      {u"TabLingua"_qs,
       {Testo(u"idLingua"_qs, 2), Testo(u"Lingua"_qs)},
       {Primaria(u"idLingua"_qs)}},
      {u"TabTipoDoc"_qs, {Testo(u"IDTD"_qs, 2), Testo(u"TipoDoc"_qs)}, {}},
      {u"TabTAbs"_qs, {Testo(u"IDTAbs"_qs, 3), Testo(u"TipoAbstract"_qs)}, {}},
      {u"TabBib"_qs,
       {Testo(u"IDBib"_qs, 1), Testo(u"TipoBibliografia"_qs)},
       {Primaria(u"IDBib"_qs)}},
      {u"TabInfo"_qs,
       {Testo(u"Consegna"_qs), Testo(u"NumInizio"_qs), Testo(u"IDCentroSpoglio"_qs, 1),
        Testo(u"AnnoProduzione"_qs), Testo(u"Storico"_qs), Testo(u"CELEX"_qs),
        Testo(u"StampaCompleta"_qs), Testo(u"StampaSoloTesto"_qs), Testo(u"StampaProspetto"_qs),
        Testo(u"StampaConsistenze"_qs), Testo(u"VisualizzaErroriGenerici"_qs),
        Testo(u"VisualizzaErroriClasse"_qs), Testo(u"VisualizzaErroriFonti"_qs)},
       {}},
  };
}

std::vector<Tabella> Componi() {
  std::vector<Tabella> tutte;
  for (auto gruppo : {Documenti, Classificazione, Fonti, Luoghi, Codici}) {
    for (Tabella& tabella : gruppo()) tutte.push_back(std::move(tabella));
  }
  return tutte;
}

}  // namespace

const std::vector<Tabella>& SchemaArchivio() {
  static const std::vector<Tabella> schema = Componi();
  return schema;
}

}  // namespace torvi
