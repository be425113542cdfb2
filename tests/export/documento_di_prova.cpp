#include "export/documento_di_prova.h"

#include <QFile>
#include <map>

#include "shell/consegna.h"

namespace torvi {
namespace {

using Predefiniti = std::map<std::string, Campo>;

qint64 AggiungiCon(const Database& archivio, const QString& tabella, Predefiniti righe,
                   Valori valori) {
  for (const auto& [nome, valore] : valori) righe[nome] = valore;
  Recordset tab = archivio.OpenRecordset(tabella);
  tab.AddNew();
  for (const auto& [nome, valore] : righe) tab.Assegna(nome, valore);
  tab.Update();
  return tab.LastModified();
}

}  // namespace

DocumentiDiProva::DocumentiDiProva(const DatiConsegna& dati)
    : stato(cartella.StatoConConsegna(dati)) {
  LeggiInfoConsegna(stato);
  Riga("TabRivista",
       {{"CPER", "RGI"}, {"TitoloRivista", "Rivista giuridica"}, {"IDPeriodicita", 3}});
  Riga("TabBib", {{"IDBib", "0"}, {"TipoBibliografia", "senza note"}});
  Riga("TabBib", {{"IDBib", "1"}, {"TipoBibliografia", "con note"}});
  Riga("TabClasse2000-S",
       {{"CodiceS", "AM001"}, {"sigla", "AMM"}, {"descrizione", "Atti amministrativi"}});
  Riga("TabClasse2000-D", {{"CodiceD", "00123"}, {"descrizione", "Procedimento"}});
  Riga("TabClasse1999", {{"Codice", "A1"}, {"descrizione", "Padre"}});
  Riga("TabClasse1999", {{"Codice", "A12"}, {"descrizione", "Figlio"}, {"ID_PADRE", 1}});
  Riga("TabFonteInterna", {{"FonteNorm", "l."}, {"URN", "urn:nir:stato:legge"}});
}

qint64 DocumentiDiProva::Riga(const char* tabella, Valori valori) const {
  return Aggiungi(stato.DbArchivio, tabella, valori);
}

qint64 DocumentiDiProva::Riferimento(Valori valori) const {
  return AggiungiCon(stato.DbArchivio, "TabRifBibl",
                     {{"IDRivista", 1}, {"Fascicolo", "3"}, {"Data", "15/03/2001"}}, valori);
}

qint64 DocumentiDiProva::Documento(Valori valori) const {
  return AggiungiCon(stato.DbArchivio, "TabDocumento",
                     {{"IDRifBibl", 1},
                      {"pagine", "101-120"},
                      {"td", "05"},
                      {"TAbs", "400"},
                      {"Bib", "1"},
                      {"LIN", "00"},
                      {"lo", "00"},
                      {"lr", "00"},
                      {"la", "00"}},
                     valori);
}

void DocumentiDiProva::Testo(qint64 idDoc, const char* tipo, const QString& testo) const {
  const qint64 idTesto = Riga("TabTesto", {{"testo", testo}});
  Riga("LegameDocTesto", {{"IDDoc", idDoc}, {"IDTesto", idTesto}, {"Tipo", tipo}});
}

void DocumentiDiProva::Responsabile(qint64 idDoc, const Campo& primo, const Campo& secondo,
                                    bool autore) const {
  const qint64 id = Riga("TabResponsabilita", {{"PrimoElemento", primo},
                                               {"SecondoElemento", secondo},
                                               {"flagCollettivo", secondo.Nullo()}});
  Riga("LegameDocResp", {{"IDDoc", idDoc}, {"IDResponsabilita", id}, {"flagAutore", autore}});
}

void DocumentiDiProva::Coppia(qint64 idDoc, Valori valori) const {
  const qint64 idClasse = AggiungiCon(stato.DbArchivio, "TabClasse2000",
                                      {{"IDClasse2000-S", 1}, {"Check", "0"}}, valori);
  Riga("LegameDocClass", {{"IDDoc", idDoc}, {"IDClass", idClasse}});
}

void DocumentiDiProva::Codice1999(qint64 idDoc, qint64 idClasse) const {
  Riga("LegameDocClass1999", {{"IDDoc", idDoc}, {"IDClass", idClasse}});
}

qint64 DocumentiDiProva::Esempio() const {
  CatalogoConUnAtto(cartella, "l.");
  const qint64 riferimento = Riferimento({{"Annata", "47"}, {"Parte", "I"}});
  const qint64 idDoc = Documento({{"IDRifBibl", riferimento}, {"td", "02"}, {"TAbs", "600"}});
  Responsabile(idDoc, "Rossi", "Mario");
  Responsabile(idDoc, "Bianchi", "Anna");
  Testo(idDoc, "0", "Il contratto di trasporto");
  Testo(idDoc, "4", "Nota a Cass. 12 marzo 2000");
  Testo(idDoc, "2", "I. Premessa\\II. Conclusioni");
  const qint64 fonte = Riga("TabFonte", {{"TP", "LIO"},
                                         {"fonte", 1},
                                         {"testo", "l. 7 agosto 1990 n. 241 art. 3"},
                                         {"anno", "1990"},
                                         {"mese", "8"},
                                         {"giorno", "7"},
                                         {"numero", "241"},
                                         {"articolo", "3"}});
  Riga("LegameDocFonte", {{"IDDoc", idDoc}, {"IDFnt", fonte}});
  Coppia(idDoc, {{"IDClasse2000-D", 1}});
  return idDoc;
}

StatoGlobale& DocumentiDiProva::StatoScritto() {
  unita_.reset();
  return stato;
}

Scritto DocumentiDiProva::Scrivi(const std::function<void(ContestoEsportazione&)>& scrittore) {
  return torvi::Scrivi(cartella, stato, scrittore);
}

std::string DocumentiDiProva::Dump(const char* nome) const {
  const QString percorso = cartella.Dump(nome);
  return QFile::exists(percorso) ? Byte(percorso).toStdString() : std::string();
}

}  // namespace torvi
