// Every statement that the commands of the system give, with values put in as they put them.
#pragma once

namespace torvi {

struct Istruzione {
  const char* testo;
  const char* sulPosto;  // the table whose rows can be changed through it
};

inline constexpr Istruzione kIstruzioni[] = {
    // One document
    {"select * from TabDocumento order by IDDocumento", "TabDocumento"},
    {"SELECT IDDocumento from tabDocumento", "tabDocumento"},
    {"select * from tabRifBibl, tabRivista where tabRifBibl.IDRifBibl = 7 and "
     "tabRifBibl.IDRivista = tabRivista.IDRivista",
     ""},
    {"select * from legameDocResp, tabResponsabilita where legameDocResp.IDDoc= 5 and "
     "legameDocResp.IDResponsabilita = tabResponsabilita.IDResponsabilita",
     ""},
    {"SELECT IDDoc, IDResponsabilita, FlagAutore FROM LegameDocResp WHERE IDDoc = 5",
     "LegameDocResp"},
    {"select * from legameDocTesto where IDDoc = 5", "legameDocTesto"},
    {"SELECT IDDoc, IDTesto, Tipo FROM LegameDocTesto WHERE IDDoc = 5 and Tipo = '3'",
     "LegameDocTesto"},
    {"select * from legameDocTesto, tabTesto where legameDocTesto.IDDoc = 5and "
     "legameDocTesto.Tipo = '0' and legameDocTesto.IDTesto = tabTesto.IDTesto",
     ""},
    {"select IDTesto from LegameDocTesto where IDDoc = 5 and (Tipo = \"2\" or Tipo = \"7\")",
     "LegameDocTesto"},
    {"select * from legameDocFonte, tabFonte where legameDocFonte.IDDoc = 5 and "
     "legameDocFonte.IDFnt = tabFonte.IDFonte",
     ""},
    {"SELECT * FROM LegameDocFonte, TabFonte WHERE LegameDocFonte.IDFnt = TabFonte.IDFonte and "
     "LegameDocFonte.IDDoc = 5",
     ""},
    {"SELECT * FROM LegameDocClass, TabClasse2000 WHERE LegameDocClass.IDClass = "
     "TabClasse2000.IDClasse2000 and LegameDocClass.IDDoc = 5",
     ""},
    {"select * from legameDocClass, tabClasse2000, [tabClasse2000-S] where legameDocClass.IDDoc = "
     "5 and legameDocClass.IDClass = tabClasse2000.IDClasse2000 and "
     "[tabClasse2000-S].IDCLasseS = tabClasse2000.[IDCLasse2000-S]",
     ""},
    {"select * from legameDocClass1999, tabClasse1999 where legameDocClass1999.IDDoc = 5 and "
     "legameDocClass1999.IDClass = tabClasse1999.IDClasse1999",
     ""},
    {"SELECT TabClasse1999.CODICE, TabClasse1999.DESCRIZIONE FROM TabClasse1999 WHERE "
     "TabClasse1999.CODICE = \"A1\"",
     "TabClasse1999"},
    {"SELECT TabClasse1999.CODICE, TabClasse1999.DESCRIZIONE, TabClasse1999_1.CODICE AS CODICE_P, "
     "TabClasse1999_1.DESCRIZIONE AS DESCRIZIONE_P FROM TabClasse1999 inner JOIN TabClasse1999 AS "
     "TabClasse1999_1 ON TabClasse1999.ID_PADRE = TabClasse1999_1.IDClasse1999 WHERE "
     "TabClasse1999.CODICE = \"A12\"",
     ""},
    {"SELECT TabFonte.*, tabFonteCom.IDFonteCom, tabFonteCom.FonteCom, tabFonteCom.Settore,  "
     "tabFonteCom.Codice, tabFonteCom.AnnoF FROM TabFonte INNER JOIN tabFonteCom ON "
     "TabFonte.Fonte = tabFonteCom.IDFonteCom WHERE TabFonte.IDFonte = 9",
     ""},

    // The save
    {"select * from tabrifbibl where IDRivista = 3 and Fascicolo = \"1-2\" and Annata = \"\" and "
     "Volume = \"\" and Parte = \"\" and Serie = \"\" and Supplemento = \"\" and Sezione = \"\" "
     "and data = \"00/02/2001\"",
     "tabrifbibl"},
    {"UPDATE tabDocumento SET IDRifBibl = 3, pagine = '1-9', LIN = '00', LO = '00', LR = '00', "
     "LA = '00', bib = '0', TD = '01', TAbs = '400' WHERE IDDocumento = 5",
     ""},
    {"delete * from legameDocResp where IDDoc =5", ""},
    {"select * from tabresponsabilita where tabresponsabilita!primoElemento='D''Amico' and "
     "tabresponsabilita!secondoElemento = 'Aldo'",
     "tabresponsabilita"},
    {"delete * from legameDocClass where IDDoc =5", ""},
    {"delete * from legameDocClass1999 where IDDoc =5", ""},
    {"delete * from legameDocFonte where IDDoc =5", ""},
    {"select LegameDocTesto.* from LegameDocTesto where LegameDocTesto.IDDoc = 5",
     "LegameDocTesto"},
    {"delete from TabTesto where IDTesto = 8", ""},
    {"delete from TabDocumento where IDDocumento = 5", ""},
    {"select tabClasse2000.* from [TabClasse2000-S] INNER JOIN TabClasse2000 ON "
     "[TabClasse2000-S].IDClasseS = TabClasse2000.[IDClasse2000-S] where "
     "([TabClasse2000-S].CodiceS ='00101') and ([TabClasse2000].[Classe2000-D] = '*acque') and "
     "([TabClasse2000].Check = '2')",
     ""},
    {"select IDClasse2000 from tabClasse2000, [TabClasse2000-S], [TabClasse2000-D] where "
     "[TabClasse2000-S].IDClasseS = TabClasse2000.[IDClasse2000-S] and "
     "[TabClasse2000-D].IDClasseD = TabClasse2000.[IDClasse2000-D] and "
     "([TabClasse2000-S].CodiceS = '00101') and ([TabClasse2000-D].CodiceD = 'AM001') and "
     "([TabClasse2000].Check = '0')",
     ""},
    {"select IDClasse2000 from tabClasse2000, [TabClasse2000-S] where "
     "[TabClasse2000-S].IDClasseS = TabClasse2000.[IDClasse2000-S] and "
     "tabClasse2000.[IDClasse2000-D] = 0 and ([TabClasse2000-S].CodiceS = '00101') and "
     "([TabClasse2000].Check = '0')",
     ""},
    {"select * from TabClasse1999 where TabClasse1999.Codice =\"A1\"", "TabClasse1999"},
    {"select * from tabFonte where Testo = \"art. 1 \"\"x\"\"\" and TP = \"LIO\" and articolo = "
     "\"1\" and comma = \"\" and lettera = \"\" and allegato = \"\" and ripa = \"\" and ripc = "
     "\"\" and numero = \"241\" and numerop = \"\" and giorno = \"7\" and anno = \"1990\" and "
     "mese = \"8\" and altro = \"\" and IDFonte = 4 and IDRegione = 1 and IDSezione = 2",
     "tabFonte"},

    // Lists and look-ups
    {"select * from TabCitta order by TabCitta.citta", "TabCitta"},
    {"select * from TabSezione order by tabSezione.Sigla", "TabSezione"},
    {"select Stato from tabStato order by Stato", "tabStato"},
    {"select * from TabFonteInterna where liv1 = '1' and liv2 = '2'", "TabFonteInterna"},
    {"select * from TabFonteInterna where liv1 = '1' and (liv2 = '7' or liv2 = '8')",
     "TabFonteInterna"},
    {"select * from TabFonteInt where Tipo = 2 order by FonteInt", "TabFonteInt"},
    {"select * from TabFonteCom where Tipo = 1 order by FonteCom", "TabFonteCom"},
    {"select * from TabFonteCan where Tipo = 3", "TabFonteCan"},
    {"select * from tabFonte where Fonte = 30 and TP = \"NIC\"", "tabFonte"},
    {"select * from tabNIT where  tabNIT.fonte like '*Roma*' AND  tabNIT.fonte like '*1957*'",
     "tabNIT"},
    {"select * from tabLegameDSA order by ND", "tabLegameDSA"},
    {"select distinct ND from TablegameDSA order by ND", ""},
    {"select * from TabLegameDS where NS = '00101' and ND = 'AM001'", "TabLegameDS"},
    {"select * from TabLegameDSA where NS = '00101' and ND = '*l''acqua'", "TabLegameDSA"},

    // The norm catalogue
    {"select * from tabcatalogo where tabCatalogo.anno = 1990 and tabCatalogo.numero = '241' and "
     "tabCatalogo.promulgazione like '07/*' and tabCatalogo.promulgazione like '*/08/*' and "
     "tabCatalogo.abbreviazione = 'l.' and tabCatalogo.titolo like '*procedimento*' OR  "
     "tabCatalogo.titolo like '*accesso*' order by Promulgazione, Numero",
     "tabcatalogo"},
    {"select * from tabCatalogo where anno = 1990 and promulgazione = #8/7/1990# and numero = "
     "'241' and abbreviazione = 'l.'",
     "tabCatalogo"},

    // The search of documents
    {"SELECT TabDocumento.* FROM TabRivista INNER JOIN (TabRifBibl INNER JOIN TabDocumento ON "
     "TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl) ON TabRivista.IDRivista = "
     "TabRifBibl.IDRivista WHERE TabRivista.CPER = 'RIVX' order by TabDocumento.IDDocumento",
     ""},
    {"SELECT TabDocumento.* FROM TabRifBibl INNER JOIN TabDocumento ON TabRifBibl.IDRifBibl = "
     "TabDocumento.IDRifBibl WHERE TabRifBibl.Fascicolo like '*2*' order by "
     "TabDocumento.IDDocumento",
     ""},
    {"SELECT TabDocumento.* FROM TabResponsabilita INNER JOIN (TabDocumento INNER JOIN "
     "LegameDocResp ON TabDocumento.IDDocumento = LegameDocResp.IDDoc) ON "
     "TabResponsabilita.IDResponsabilita = LegameDocResp.IDResponsabilita WHERE "
     "LegameDocResp.FlagAutore = True and TabResponsabilita.PrimoElemento like '*a*' OR "
     "TabResponsabilita.PrimoElemento like '**' order by TabDocumento.IDDocumento",
     ""},
    {"SELECT TabDocumento.* FROM TabTesto INNER JOIN (TabDocumento INNER JOIN LegameDocTesto ON "
     "TabDocumento.IDDocumento = LegameDocTesto.IDDoc) ON TabTesto.IDTesto = "
     "LegameDocTesto.IDTesto WHERE (LegameDocTesto.Tipo='0') AND (TabTesto.Testo like "
     "'*all''estero*') order by TabDocumento.IDDocumento",
     ""},
    {"SELECT distinct TabDocumento.* FROM TabFonte INNER JOIN (TabDocumento INNER JOIN "
     "LegameDocFonte ON TabDocumento.IDDocumento = LegameDocFonte.IDDoc) ON TabFonte.IDFonte = "
     "LegameDocFonte.IDFnt Where TabFonte.testo like '*Cost.*' order by "
     "TabDocumento.IDDocumento",
     ""},
    {"SELECT TabDocumento.* FROM [TabClasse2000-S] INNER JOIN (TabClasse2000 INNER JOIN "
     "(TabDocumento INNER JOIN LegameDocClass ON TabDocumento.IDDocumento = "
     "LegameDocClass.IDDoc) ON TabClasse2000.IDClasse2000 = LegameDocClass.IDClass) ON "
     "[TabClasse2000-S].IDClasseS = TabClasse2000.[IDClasse2000-S]WHERE [TabClasse2000-S].CodiceS "
     "= '00101' order by TabDocumento.IDDocumento",
     ""},
    {"SELECT TabDocumento.* FROM [TabClasse2000-D] INNER JOIN (TabClasse2000 INNER JOIN "
     "(TabDocumento INNER JOIN LegameDocClass ON TabDocumento.IDDocumento = "
     "LegameDocClass.IDDoc) ON TabClasse2000.IDClasse2000 = LegameDocClass.IDClass) ON "
     "[TabClasse2000-D].IDClasseD = TabClasse2000.[IDClasse2000-D]WHERE [TabClasse2000-D].CodiceD "
     "= 'AM001' order by TabDocumento.IDDocumento",
     ""},

    // Prints and extractions
    {"select * from tabDocumento, legameDoCTesto, tabTesto where tabDocumento.IDDocumento = "
     "legameDocTesto.IDDoc and tabTesto.IDTesto = legameDocTesto.IDTesto and Tipo = '3' and "
     "Testo like '*]*' order by IDDocumento",
     ""},
    {"SELECT count(TabDocumento.TAbs) as n FROM TabDocumento, TabRifBibl WHERE "
     "TabDocumento.IDRifBibl = TabRifBibl.IDRifBibl and TabRifBibl.IDRivista = 3 and "
     "right(TabRifBibl.Data,4) = \"2001\" and TabDocumento.TAbs = '400' and "
     "TabRifBibl.Fascicolo = \"1\"",
     ""},
    {"SELECT DISTINCT TabRifBibl.IDRivista, TabRifBibl.Fascicolo, TabRifBibl.Data, "
     "TabRivista.CPER, TabRivista.TitoloRivista FROM TabRivista, TabRifBibl, TabDocumento WHERE "
     "TabDocumento.IDRifBibl = TABRifBibl.IDRifBibl AND TabRifBibl.IDRivista = "
     "TabRivista.IDRivista ORDER BY TabRivista.CPER, TabRifBibl.Fascicolo, TabRifBibl.Data",
     ""},
    {"SELECT DISTINCT TabRifBibl.IDRivista, TabRifBibl.Fascicolo, right(TabRifBibl.Data, 4) as "
     "Anno, TabRivista.CPER, TabRivista.TitoloRivista FROM TabRivista, TabRifBibl, TabDocumento "
     "WHERE TabDocumento.IDRifBibl = TABRifBibl.IDRifBibl AND TabRifBibl.IDRivista = "
     "TabRivista.IDRivista ORDER BY TabRivista.CPER, right(TabRifBibl.Data, 4), "
     "TabRifBibl.Fascicolo",
     ""},
    {"select idDoc from legameDocTesto where Tipo = '8' order by IDDoc", "legameDocTesto"},
    {"select IDDoc from tabDocumento, legameDocTesto where tabDocumento.IDDocumento = "
     "legameDocTesto.IDDoc and Tipo = '7' and (TAbs = '500' or TAbs = '800') order by IDDoc",
     ""},
    {"SELECT count(TabDocumento.IDdocumento) as n FROM TabRifBibl INNER JOIN TabDocumento ON "
     "TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl WHERE TabRifBibl.Fascicolo is null and "
     "TabRifBibl.Data = '00/02/2001' and TabRifBibl.IDRivista = 3",
     ""},
    {"SELECT DISTINCT TabRifBibl.Fascicolo, TabRifBibl.Data, TabRifBibl.IDRivista, "
     "TabRivista.CPER, TabRivista.IDPeriodicita FROM TabRivista INNER JOIN (TabRifBibl INNER JOIN "
     "TabDocumento ON TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl) ON TabRivista.IDRivista = "
     "TabRifBibl.IDRivista ORDER BY TabRivista.CPER, TabRifBibl.Data, TabRifBibl.Fascicolo",
     ""},
    {"SELECT TabDocumento.IDDocumento, TabTesto.Testo, LegameDocTesto.Tipo FROM TabTesto INNER "
     "JOIN (TabDocumento INNER JOIN LegameDocTesto ON TabDocumento.IDDocumento = "
     "LegameDocTesto.IDDoc) ON TabTesto.IDTesto = LegameDocTesto.IDTesto WHERE "
     "(((LegameDocTesto.Tipo)=\"0\")) and TabDocumento.IDDocumento = 5",
     ""},
    {"SELECT TabDocumento.IDDocumento, TabFonte.*, tabFonteCom.FonteCom, tabFonteCom.Settore, "
     "tabFonteCom.Codice, tabFonteCom.AnnoF FROM (TabFonte INNER JOIN tabFonteCom ON "
     "TabFonte.Fonte = tabFonteCom.IDFonteCom) INNER JOIN (TabDocumento INNER JOIN LegameDocFonte "
     "ON TabDocumento.IDDocumento = LegameDocFonte.IDDoc) ON TabFonte.IDFonte = "
     "LegameDocFonte.IDFnt WHERE ((TabFonte.TP)=\"NIC\" Or (TabFonte.TP)=\"GEC\") ORDER BY "
     "TabDocumento.IDDocumento",
     ""},
    {"SELECT TabDocumento.IDDocumento, TabFonte.*  FROM TabDocumento, LegameDocFonte, TabFonte "
     "WHERE TabDocumento.IDDocumento = LegameDocFonte.IDDoc and TabFonte.IDFonte = "
     "LegameDocFonte.IDFnt and TabFonte.Fonte=2 and TabFonte.TP=\"GEI\" ORDER BY "
     "TabDocumento.IDDocumento",
     ""},
    {"select Stato as Nuovo, IDDoc from tabStato, tabFonte, legameDocFonte where "
     "legameDocFonte.IDFnt = tabFonte.IDFonte and tabFonte.IDStato = tabStato.IDStato and nuovo "
     "= 1",
     ""},
    {"select Sigla as Nuovo, IDDoc from tabsezione, tabFonte, legameDocFonte where "
     "legameDocFonte.IDFnt = tabFonte.IDFonte and tabFonte.IDSezione = tabSezione.IDSez and "
     "nuovo = 1",
     ""},
    {"select AutoritaNorm as Nuovo, IDDoc from tabAutorita, tabFonte, legameDocFonte where "
     "legameDocFonte.IDFnt = tabFonte.IDFonte and tabFonte.IDAutorita = tabAutorita.IDAutorita "
     "and nuovo = 1",
     ""},
    {"select * from tabInfo", "tabInfo"},
};

}  // namespace torvi
