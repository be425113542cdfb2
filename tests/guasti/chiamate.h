// Faults at the calls that write. Linked before the C library, or preloaded, this library counts
// the calls of the process that change what is below a folder, and brings a fault about at one of
// them.
#pragma once

#include <array>
#include <atomic>

namespace torvi::guasti {

enum class Modo {
  Conta,           // nothing but the count
  Uccidi,          // SIGKILL before the call
  Spezza,          // SIGKILL in the middle of a write, before any other call
  DiscoPieno,      // from the call on ENOSPC, but for what gives room
  ScritturaCorta,  // half of a write, then as before
  Dispositivo,     // from the call on EIO, whatever it is
};

struct Guasto {
  Modo modo = Modo::Conta;
  long chiamata = 0;  // from 1
  std::atomic<long> fatte = 0;
  std::array<char, 512> cartella = {};
};

// From now on; null: no more. What it points to may be shared with another process.
// A program that knows nothing of this is told by GUASTI="modo:chiamata:cartella", the mode as its
// number above.
void Arma(Guasto* guasto);

}  // namespace torvi::guasti
