// A value of an archive: Null, a whole number, a yes/no, or text. Null is not the empty string.
#pragma once

#include <QString>
#include <variant>

namespace torvi {

class Campo {
 public:
  Campo() = default;  // Null
  // Null, read from a column that errors name.
  [[nodiscard]] static Campo NullDi(const QString& colonna) {
    Campo campo;
    campo.valore_ = Assente{colonna};
    return campo;
  }
  Campo(int valore) : valore_(static_cast<qint64>(valore)) {}
  Campo(qint64 valore) : valore_(valore) {}
  Campo(double valore) : valore_(valore) {}
  Campo(bool valore) : valore_(static_cast<qint64>(valore ? 1 : 0)) {}
  Campo(const QString& valore) : valore_(valore) {}
  Campo(QString&& valore) : valore_(std::move(valore)) {}
  Campo(const char* valore) : valore_(QString::fromUtf8(valore)) {}

  [[nodiscard]] bool Nullo() const { return std::holds_alternative<Assente>(valore_); }
  // Neither Null nor the empty string.
  [[nodiscard]] bool Presente() const;
  // Text as it stands, a number in decimals. Null: error 94.
  [[nodiscard]] QString Testo() const;
  // The same, Null as the empty string.
  [[nodiscard]] QString TestoOVuoto() const;
  // A number, or a text that is one. Null: error 94; other text: error 13.
  [[nodiscard]] qint64 Intero() const;
  // The same through the checked conversion to 16 signed bits: error 6.
  [[nodiscard]] qint16 Intero16() const;
  // Any number but 0 is true. Null: error 94.
  [[nodiscard]] bool Logico() const;

  struct Assente {
    QString colonna;
    friend bool operator==(const Assente&, const Assente&) { return true; }
  };
  using Valore = std::variant<Assente, qint64, double, QString>;
  [[nodiscard]] const Valore& Grezzo() const { return valore_; }
  friend bool operator==(const Campo&, const Campo&) = default;

 private:
  void RichiediValore() const;

  Valore valore_;
};

// The one way into the 16-bit signed integers of the system. Error 6 outside -32768 to 32767.
[[nodiscard]] qint16 Intero16(qint64 valore);

}  // namespace torvi
