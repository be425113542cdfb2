#include "archive/esempio/scrittura.h"

#include <QStringList>

namespace torvi::esempio {

namespace {

// Null, as the system leaves a column that it has no value for.
Campo ONullo(const QString& testo) { return testo.isEmpty() ? Campo() : Campo(testo); }

QString Uguaglianza(const QStringList& parti) { return parti.join(u'\n'); }

// The stored row of that equality, or the one that `aggiungi` makes.
template <typename Aggiungi>
qint64 UnaVolta(std::unordered_map<QString, qint64>& comuni, const QString& uguaglianza,
                const Aggiungi& aggiungi) {
  const auto [posto, nuova] = comuni.try_emplace(uguaglianza, 0);
  if (nuova) posto->second = aggiungi();
  return posto->second;
}

}  // namespace

TavolaScritta::TavolaScritta(const Database& archivio, const char* nome)
    : righe_(archivio.OpenRecordset(QString::fromLatin1(nome))) {}

qint64 TavolaScritta::Aggiungi(std::initializer_list<std::pair<const char*, Campo>> valori) {
  righe_.AddNew();
  for (const auto& [colonna, valore] : valori) {
    if (!valore.Nullo()) righe_.Assegna(colonna, valore);
  }
  righe_.Update();
  return righe_.LastModified();
}

Scrittura::Scrittura(const Database& archivio)
    : informazioni_(archivio, "TabInfo"),
      documenti_(archivio, "TabDocumento"),
      riferimenti_(archivio, "TabRifBibl"),
      persone_(archivio, "TabResponsabilita"),
      testi_(archivio, "TabTesto"),
      classi_(archivio, "TabClasse2000"),
      fonti_(archivio, "TabFonte"),
      legamiPersone_(archivio, "LegameDocResp"),
      legamiTesti_(archivio, "LegameDocTesto"),
      legamiClassi_(archivio, "LegameDocClass"),
      legamiClassi1999_(archivio, "LegameDocClass1999"),
      legamiFonti_(archivio, "LegameDocFonte") {}

void Scrittura::ScriviInformazioni() {
  informazioni_.Aggiungi({{"Consegna", "A01"},
                          {"NumInizio", "12"},
                          {"IDCentroSpoglio", "A"},
                          {"AnnoProduzione", "2001"}});
}

void Scrittura::Scrivi(const Documento& d) {
  const qint64 documento = documenti_.Aggiungi({{"IDRifBibl", Riga(d.riferimento)},
                                                {"pagine", ONullo(d.pagine)},
                                                {"LIN", d.lingua},
                                                {"lo", d.altraLingua},
                                                {"lr", "00"},
                                                {"la", "00"},
                                                {"Bib", d.bib},
                                                {"td", d.td},
                                                {"TAbs", d.tabs}});
  ScriviTesti(documento, d);
  ScriviLegami(documento, d);
}

void Scrittura::ScriviTesti(qint64 documento, const Documento& d) {
  for (std::size_t tipo = 0; tipo < d.testi.size(); ++tipo) {
    if (d.testi[tipo].isEmpty()) continue;
    legamiTesti_.Aggiungi({{"IDDoc", documento},
                           {"IDTesto", testi_.Aggiungi({{"testo", d.testi[tipo]}})},
                           {"Tipo", QString::number(tipo)}});
  }
}

void Scrittura::ScriviLegami(qint64 documento, const Documento& d) {
  for (const Persona& persona : d.persone) {
    legamiPersone_.Aggiungi({{"IDDoc", documento},
                             {"IDResponsabilita", Riga(persona)},
                             {"flagAutore", persona.autore}});
  }
  for (const Classe& classe : d.classi) {
    legamiClassi_.Aggiungi({{"IDDoc", documento}, {"IDClass", Riga(classe)}});
  }
  for (const qint64 classe : d.classi1999) {
    legamiClassi1999_.Aggiungi({{"IDDoc", documento}, {"IDClass", classe}});
  }
  for (const FonteCitata& fonte : d.fonti) {
    legamiFonti_.Aggiungi({{"IDDoc", documento}, {"IDFnt", Riga(fonte)}});
  }
}

qint64 Scrittura::Riga(const Riferimento& r) {
  const QString uguaglianza =
      Uguaglianza({QString::number(r.rivista), r.fascicolo, r.annata, r.volume, r.parte, r.serie,
                   r.supplemento, r.sezione, r.data});
  return UnaVolta(riferimentiScritti_, uguaglianza, [&] {
    return riferimenti_.Aggiungi({{"IDRivista", r.rivista},
                                  {"Fascicolo", ONullo(r.fascicolo)},
                                  {"Annata", ONullo(r.annata)},
                                  {"Volume", ONullo(r.volume)},
                                  {"Parte", ONullo(r.parte)},
                                  {"Serie", ONullo(r.serie)},
                                  {"Supplemento", ONullo(r.supplemento)},
                                  {"Sezione", ONullo(r.sezione)},
                                  {"Data", r.data}});
  });
}

qint64 Scrittura::Riga(const Persona& p) {
  return UnaVolta(personeScritte_, Uguaglianza({p.cognome, p.nome}), [&] {
    return persone_.Aggiungi({{"PrimoElemento", p.cognome},
                              {"SecondoElemento", ONullo(p.nome)},
                              {"flagCollettivo", p.nome.isEmpty()}});
  });
}

qint64 Scrittura::Riga(const Classe& classe) {
  const Coppia& c = classe.coppia;
  const QString check = QChar::fromLatin1(classe.check);
  const QString uguaglianza = Uguaglianza(
      {QString::number(c.sistematico), QString::number(c.descrittore), c.libero, check});
  return UnaVolta(classiScritte_, uguaglianza, [&] {
    return classi_.Aggiungi({{"IDClasse2000-S", c.sistematico},
                             {"IDClasse2000-D", c.descrittore},
                             {"Classe2000-D", ONullo(c.libero)},
                             {"Check", check}});
  });
}

// The text columns of a source are written even when they are empty.
qint64 Scrittura::Riga(const FonteCitata& f) {
  const QString uguaglianza = Uguaglianza(
      {f.tp, f.testo, f.numero, f.giorno, f.mese, f.anno, f.altro, QString::number(f.fonte)});
  return UnaVolta(fontiScritte_, uguaglianza, [&] {
    return fonti_.Aggiungi({{"TP", f.tp},
                            {"fonte", f.fonte},
                            {"testo", f.testo},
                            {"articolo", f.articolo},
                            {"comma", f.comma},
                            {"lettera", f.lettera},
                            {"allegato", f.allegato},
                            {"ripa", f.ripa},
                            {"ripc", f.ripc},
                            {"numero", f.numero},
                            {"numeroP", f.numeroP},
                            {"giorno", f.giorno},
                            {"mese", f.mese},
                            {"anno", f.anno},
                            {"altro", f.altro},
                            {"ordinanza", f.ordinanza},
                            {"decreto", f.decreto},
                            {"IDRegione", f.regione},
                            {"IDProvincia", f.provincia},
                            {"IDCitta", f.citta},
                            {"IDMinistero", f.ministero},
                            {"IDAmministrazione", f.amministrazione},
                            {"IDAutorita", f.autorita},
                            {"IDSezione", f.sezione},
                            {"IDStato", f.stato}});
  });
}

}  // namespace torvi::esempio
