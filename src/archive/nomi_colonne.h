// The names of a table's or a statement's columns.
#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace torvi {

// A name is sought again and again by the same literal of the program: its address leads straight
// to the column where it was found the time before.
class NomiColonne {
 public:
  void Aggiungi(std::string_view nome) {
    nomi_.emplace_back(nome);
    testi_.push_back(QString::fromUtf8(nome.data(), static_cast<qsizetype>(nome.size())));
  }
  // The tables that they are columns of: errors name them.
  void Di(const QStringList& tabelle) { tabelle_ = tabelle; }
  // Without regard to case, the first of equal ones; -1 where there is none.
  [[nodiscard]] int Posizione(std::string_view nome) const;
  // The same; error 3265 where there is none.
  [[nodiscard]] int Richiedi(std::string_view nome) const;
  [[nodiscard]] std::size_t Quante() const { return nomi_.size(); }
  // The same name for words that are shown, made once.
  [[nodiscard]] const QString& Testo(std::size_t posto) const { return testi_[posto]; }
  [[nodiscard]] const std::string& operator[](std::size_t posto) const { return nomi_[posto]; }

 private:
  // A spelling that was asked for, and the column that it stands for.
  struct Grafia {
    std::string nome;
    int posizione;
  };
  [[nodiscard]] int Cerca(std::string_view nome) const;

  QStringList tabelle_;
  std::vector<std::string> nomi_;
  std::vector<QString> testi_;
  mutable std::vector<Grafia> grafie_;
  mutable std::array<quint16, 256> ricordate_{};  // in grafie_
};

}  // namespace torvi
