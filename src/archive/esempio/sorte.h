// Reproducible choices: the same seed gives the same sequence on every machine.
#pragma once

#include <cstddef>
#include <cstdint>

namespace torvi::esempio {

class Sorte {
 public:
  explicit Sorte(std::uint64_t seme) : stato_(seme) {}

  // 0 to n - 1.
  [[nodiscard]] int Fino(int n) {
    return static_cast<int>(Prossimo() % static_cast<std::uint64_t>(n));
  }
  [[nodiscard]] int Tra(int minimo, int massimo) { return minimo + Fino(massimo - minimo + 1); }
  // True once in n.
  [[nodiscard]] bool Una(int n) { return Fino(n) == 0; }
  template <typename Elenco>
  [[nodiscard]] const auto& Scegli(const Elenco& elenco) {
    return elenco[static_cast<std::size_t>(Prossimo() % elenco.size())];
  }

 private:
  // splitmix64
  std::uint64_t Prossimo() {
    stato_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = stato_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
  }
  std::uint64_t stato_;
};

}  // namespace torvi::esempio
