// The rows of the document on screen, in the order of its lists. A row that is marked for deletion
// stays where it is, shows "DEL--" in front of its line, and is not written at the save.
#pragma once

#include <QString>

namespace torvi {

struct RigaResponsabilita {
  qint16 IDResponsabilitaRiga = 0;  // 0 until the save finds or makes the person
  QString PrimoElemento;
  QString SecondoElemento;  // empty for a collective author
  bool flagAutore = false;  // author; otherwise curator
  bool Nuova = false;       // added since the load
  bool Cancellata = false;
  bool operator==(const RigaResponsabilita&) const = default;
};

struct RigaClasse {
  qint16 IDClasse = 0;  // 0 for a new row
  QString Sistematico;  // systematic code; before 2000 the one code there is
  QString Descrittore;  // a code, an asterisked term, or empty
  qint16 Check = 0;     // 0 valid pair, 1 invalid, 2 valid asterisk pair, 3 invalid asterisk pair
  bool Nuova = false;
  bool Cancellata = false;
  bool operator==(const RigaClasse&) const = default;
};

struct RigaFonte {
  qint64 IDFonte = 0;  // 0 for a new row
  // Names as the code tables hold them, not keys; Mese is the month's Italian name.
  QString FonteNorm;
  QString TP;
  QString Testo;
  QString Articolo;
  QString Comma;
  QString Lettera;
  QString NumeroP;
  QString Allegato;
  QString RipA;
  QString RipC;
  QString Anno;
  QString Mese;
  QString Giorno;
  QString Numero;
  QString Ministero;
  QString Regione;
  QString Provincia;
  QString Citta;
  QString Sezione;
  QString Autorita;
  QString Amministrazione;
  QString Stato;
  bool Decreto = false;
  bool Ordinanza = false;
  QString Altro;
  bool Marca = false;
  bool Cancellata = false;
  bool operator==(const RigaFonte&) const = default;
};

}  // namespace torvi
