#include "archive/jet_catalogo.h"

#include "archive/errore.h"
#include "archive/jet_proprieta.h"
#include "archive/jet_valori.h"
#include "archive/per_nome.h"

namespace torvi::jet {
namespace {

constexpr std::uint32_t kPaginaCatalogo = 2;
constexpr quint32 kDiSistema = 0x80000002;
constexpr quint32 kGenere = 0x7f;
constexpr quint32 kNumeroPagina = 0xffffff;

// The catalogue is a table itself, and its columns have fixed names.
struct Colonne {
  std::size_t id, nome, genere, contrassegni, proprieta;
};

std::size_t Trova(const Pagine& pagine, const Definizione& definizione, const char* nome) {
  const Colonna* colonna = PerNome(definizione.tabella.colonne, QLatin1String(nome));
  if (colonna == nullptr) pagine.Danno(QStringLiteral("l'elenco delle tabelle"));
  return colonna - definizione.tabella.colonne.data();
}

class Lettore {
 public:
  explicit Lettore(Pagine& pagine)
      : pagine_(pagine),
        definizione_(LeggiDefinizione(pagine, QStringLiteral("MSysObjects"), kPaginaCatalogo)),
        colonne_{Trova(pagine, definizione_, "Id"), Trova(pagine, definizione_, "Name"),
                 Trova(pagine, definizione_, "Type"), Trova(pagine, definizione_, "Flags"),
                 Trova(pagine, definizione_, "LvProp")} {}

  std::vector<VoceCatalogo> Leggi() {
    PercorriRighe(pagine_, definizione_, [this](const RigaDiCampi& riga) { Aggiungi(riga); });
    return std::move(voci_);
  }

 private:
  void Aggiungi(const RigaDiCampi& riga) {
    const bool tabella = (Numero(riga, colonne_.genere) & kGenere) == MDB_TABLE;
    if (!tabella || (Numero(riga, colonne_.contrassegni) & kDiSistema) != 0) return;
    const QString nome = Prendi(riga, colonne_.nome).TestoOVuoto();
    if (PerNome(voci_, nome) != nullptr) pagine_.Danno(QStringLiteral("l'elenco delle tabelle"));
    voci_.push_back({nome, Numero(riga, colonne_.id) & kNumeroPagina,
                     LeggiPredefiniti(riga[colonne_.proprieta].ottetti)});
  }

  // A table is whole without its properties: what cannot be made out in them is no reason to refuse
  // the file.
  [[nodiscard]] std::map<QString, QString> LeggiPredefiniti(Ottetti campo) {
    try {
      const QByteArray proprieta = Lungo(pagine_, campo);
      return Predefiniti(pagine_, {reinterpret_cast<const std::uint8_t*>(proprieta.constData()),
                                   static_cast<std::size_t>(proprieta.size())});
    } catch (const ErroreEsecuzione&) {
      return {};
    }
  }

  [[nodiscard]] Campo Prendi(const RigaDiCampi& riga, std::size_t quale) {
    return Valore(pagine_, definizione_.colonne[quale], riga[quale]);
  }
  // Null is 0: a row of the catalogue may leave its flags out.
  [[nodiscard]] quint32 Numero(const RigaDiCampi& riga, std::size_t quale) {
    const Campo valore = Prendi(riga, quale);
    const auto* numero = std::get_if<qint64>(&valore.Grezzo());
    return numero == nullptr ? 0 : static_cast<quint32>(*numero);
  }

  Pagine& pagine_;
  Definizione definizione_;
  Colonne colonne_;
  std::vector<VoceCatalogo> voci_;
};

}  // namespace

std::vector<VoceCatalogo> LeggiCatalogo(Pagine& pagine) { return Lettore(pagine).Leggi(); }

}  // namespace torvi::jet
