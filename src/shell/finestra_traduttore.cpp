#include "shell/finestra_traduttore.h"

#include <array>
#include <string_view>

namespace torvi {
namespace {

struct Voce {
  std::string_view inglese;
  const char16_t* italiano;
};

constexpr std::array kVoci = {
    Voce{"&OK", u"&OK"},
    Voce{"OK", u"OK"},
    Voce{"Cancel", u"Annulla"},
    Voce{"&Yes", u"&Sì"},
    Voce{"&No", u"&No"},
    Voce{"Close", u"Chiudi"},
    Voce{"&Undo", u"Ann&ulla"},
    Voce{"&Redo", u"&Ripeti"},
    Voce{"Cu&t", u"&Taglia"},
    Voce{"&Copy", u"&Copia"},
    Voce{"&Paste", u"&Incolla"},
    Voce{"Delete", u"Elimina"},
    Voce{"Select All", u"Seleziona tutto"},
    Voce{"Back", u"Indietro"},
    Voce{"Go back", u"Torna indietro"},
    Voce{"Forward", u"Avanti"},
    Voce{"Go forward", u"Vai avanti"},
    Voce{"Parent Directory", u"Cartella superiore"},
    Voce{"Go to the parent directory", u"Vai alla cartella superiore"},
    Voce{"Create New Folder", u"Nuova cartella"},
    Voce{"Create a New Folder", u"Crea una nuova cartella"},
    Voce{"List View", u"Elenco"},
    Voce{"Change to list view mode", u"Mostra come elenco"},
    Voce{"Detail View", u"Dettagli"},
    Voce{"Change to detail view mode", u"Mostra i dettagli"},
    Voce{"Sidebar", u"Barra laterale"},
    Voce{"List of places and bookmarks", u"Elenco di cartelle e segnalibri"},
    Voce{"Files", u"File"},
    Voce{"&Rename", u"&Rinomina"},
    Voce{"&Delete", u"&Elimina"},
    Voce{"Show &hidden files", u"Mostra file &nascosti"},
    Voce{"&New Folder", u"Nuova &cartella"},
    Voce{"New Folder", u"Nuova cartella"},
    Voce{"Remove", u"Togli"},
    Voce{"Recent Places", u"Cartelle recenti"},
    Voce{"Computer", u"Computer"},
    Voce{"My Computer", u"Computer"},
    Voce{"Name", u"Nome"},
    Voce{"Size", u"Dimensione"},
    Voce{"Type", u"Tipo"},
    Voce{"Date Modified", u"Ultima modifica"},
    Voce{"Drive", u"Unità"},
    Voce{"File", u"File"},
    Voce{"%1 File", u"File %1"},
    Voce{"File Folder", u"Cartella"},
    Voce{"Folder", u"Cartella"},
    Voce{"Are you sure you want to delete '%1'?", u"Eliminare «%1»?"},
    Voce{"'%1' is write protected.\nDo you want to delete it anyway?",
         u"«%1» è protetto da scrittura.\nEliminarlo lo stesso?"},
    Voce{"Could not delete directory.", u"Impossibile eliminare la cartella."},
    Voce{"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         u"%1\nLa cartella non esiste. Verificare che il nome sia corretto."},
    Voce{"&Restore", u"&Ripristina"},
    Voce{"&Move", u"&Sposta"},
    Voce{"&Size", u"&Dimensioni"},
    Voce{"Mi&nimize", u"Riduci a &icona"},
    Voce{"Ma&ximize", u"&Ingrandisci"},
    Voce{"&Close", u"&Chiudi"},
};

}  // namespace

QString TraduttoreItaliano::translate(const char* contesto, const char* testo,
                                      const char* /*distinzione*/, int /*n*/) const {
  // The program's own captions are Italian already.
  if (contesto == nullptr || testo == nullptr || contesto[0] != 'Q') return {};
  for (const Voce& voce : kVoci) {
    if (voce.inglese == testo) return QString::fromUtf16(voce.italiano);
  }
  return {};
}

}  // namespace torvi
