#include "chiamate.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace torvi::guasti {
namespace {

std::atomic<Guasto*> armato = nullptr;

enum class Sorte { Passa, Fallisce, Meta };
enum class Genere { Scrive, Altro, FaPosto };

bool Sotto(const char* percorso) {
  const Guasto* guasto = armato;
  return guasto != nullptr && std::string_view(percorso).starts_with(guasto->cartella.data());
}

bool Sotto(int file) {
  if (armato.load() == nullptr) return false;
  std::array<char, 600> percorso = {};
  const std::string nome = "/proc/self/fd/" + std::to_string(file);
  return readlink(nome.c_str(), percorso.data(), percorso.size() - 1) > 0 && Sotto(percorso.data());
}

// Sets errno where the call fails.
Sorte Decidi(bool seguito, Genere genere) {
  Guasto* guasto = armato;
  if (!seguito || guasto == nullptr) return Sorte::Passa;
  const long chiamata = ++guasto->fatte;
  if (guasto->modo == Modo::Conta || chiamata < guasto->chiamata) return Sorte::Passa;
  const bool questa = chiamata == guasto->chiamata;
  const bool meta = guasto->modo == Modo::Spezza || guasto->modo == Modo::ScritturaCorta;
  if (questa && meta && genere == Genere::Scrive) return Sorte::Meta;
  if (guasto->modo == Modo::Uccidi || guasto->modo == Modo::Spezza) (void)raise(SIGKILL);
  errno = guasto->modo == Modo::Dispositivo ? EIO : ENOSPC;
  return guasto->modo != Modo::Dispositivo && genere == Genere::FaPosto ? Sorte::Passa
                                                                        : Sorte::Fallisce;
}

template <typename Firma>
Firma* Vera(const char* nome) {
  return reinterpret_cast<Firma*>(dlsym(RTLD_NEXT, nome));
}

template <typename Risultato = int, typename... Dati>
Risultato Chiama(const char* nome, bool seguito, Genere genere, Dati... dati) {
  if (Decidi(seguito, genere) != Sorte::Passa) return -1;
  return Vera<Risultato(Dati...)>(nome)(dati...);
}

// `scrivi` writes so many bytes.
template <typename Scrivi>
ssize_t ChiamaScrittura(int file, std::size_t quanti, const Scrivi& scrivi) {
  const Sorte sorte = Decidi(Sotto(file), Genere::Scrive);
  if (sorte == Sorte::Passa) return scrivi(quanti);
  if (sorte == Sorte::Fallisce) return -1;
  const ssize_t scritti = quanti > 1 ? scrivi(quanti / 2) : -1;
  if (armato.load()->modo == Modo::Spezza) (void)raise(SIGKILL);
  if (scritti < 0) errno = ENOSPC;
  return scritti;
}

int ChiamaApertura(const char* nome, int cartella, const char* percorso, int modo, mode_t diritti) {
  const bool svuota = (modo & O_TRUNC) != 0 && access(percorso, F_OK) == 0;
  const bool crea = (modo & O_CREAT) != 0 && access(percorso, F_OK) != 0;
  const bool seguito = (svuota || crea) && Sotto(percorso);
  if (Decidi(seguito, svuota ? Genere::FaPosto : Genere::Altro) != Sorte::Passa) return -1;
  return std::string_view(nome).starts_with("openat")
             ? Vera<int(int, const char*, int, ...)>(nome)(cartella, percorso, modo, diritti)
             : Vera<int(const char*, int, ...)>(nome)(percorso, modo, diritti);
}

mode_t Diritti(int modo, va_list altro) {
  return (modo & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(altro, mode_t) : 0;
}

int ChiamaTaglio(const char* nome, int file, off_t lunghezza) {
  struct stat stato = {};
  const bool meno = fstat(file, &stato) == 0 && lunghezza <= stato.st_size;
  return Chiama(nome, Sotto(file), meno ? Genere::FaPosto : Genere::Altro, file, lunghezza);
}

[[gnu::constructor]] void DallAmbiente() {
  static Guasto guasto;
  int modo = 0;
  const char* detto = getenv("GUASTI");
  if (detto == nullptr ||
      sscanf(detto, "%d:%ld:%511[^\n]", &modo, &guasto.chiamata, guasto.cartella.data()) != 3) {
    return;
  }
  guasto.modo = static_cast<Modo>(modo);
  Arma(&guasto);
}

}  // namespace

void Arma(Guasto* guasto) { armato = guasto; }

}  // namespace torvi::guasti

using namespace torvi::guasti;

extern "C" {

int open(const char* percorso, int modo, ...) {
  va_list altro;
  va_start(altro, modo);
  const mode_t diritti = Diritti(modo, altro);
  va_end(altro);
  return ChiamaApertura("open", AT_FDCWD, percorso, modo, diritti);
}
int open64(const char* percorso, int modo, ...) {
  va_list altro;
  va_start(altro, modo);
  const mode_t diritti = Diritti(modo, altro);
  va_end(altro);
  return ChiamaApertura("open64", AT_FDCWD, percorso, modo, diritti);
}
int openat(int cartella, const char* percorso, int modo, ...) {
  va_list altro;
  va_start(altro, modo);
  const mode_t diritti = Diritti(modo, altro);
  va_end(altro);
  return ChiamaApertura("openat", cartella, percorso, modo, diritti);
}
int openat64(int cartella, const char* percorso, int modo, ...) {
  va_list altro;
  va_start(altro, modo);
  const mode_t diritti = Diritti(modo, altro);
  va_end(altro);
  return ChiamaApertura("openat64", cartella, percorso, modo, diritti);
}

ssize_t write(int file, const void* byte, size_t quanti) {
  return ChiamaScrittura(file, quanti, [&](size_t n) {
    return Vera<ssize_t(int, const void*, size_t)>("write")(file, byte, n);
  });
}
ssize_t pwrite(int file, const void* byte, size_t quanti, off_t posto) {
  return ChiamaScrittura(file, quanti, [&](size_t n) {
    return Vera<ssize_t(int, const void*, size_t, off_t)>("pwrite")(file, byte, n, posto);
  });
}
ssize_t pwrite64(int file, const void* byte, size_t quanti, off64_t posto) {
  return pwrite(file, byte, quanti, posto);
}
ssize_t sendfile(int file, int da, off_t* posto, size_t quanti) noexcept {
  return ChiamaScrittura(file, quanti, [&](size_t n) {
    return Vera<ssize_t(int, int, off_t*, size_t)>("sendfile")(file, da, posto, n);
  });
}
ssize_t sendfile64(int file, int da, off64_t* posto, size_t quanti) noexcept {
  return sendfile(file, da, posto, quanti);
}
ssize_t copy_file_range(int da, off64_t* inizio, int file, off64_t* posto, size_t quanti,
                        unsigned modo) {
  return ChiamaScrittura(file, quanti, [&](size_t n) {
    return Vera<ssize_t(int, off64_t*, int, off64_t*, size_t, unsigned)>("copy_file_range")(
        da, inizio, file, posto, n, modo);
  });
}
ssize_t writev(int file, const iovec* pezzi, int quanti) {
  return Chiama<ssize_t>("writev", Sotto(file), Genere::Altro, file, pezzi, quanti);
}

int ftruncate(int file, off_t lunghezza) noexcept {
  return ChiamaTaglio("ftruncate", file, lunghezza);
}
int ftruncate64(int file, off64_t lunghezza) noexcept {
  return ChiamaTaglio("ftruncate64", file, lunghezza);
}
int fsync(int file) { return Chiama("fsync", Sotto(file), Genere::Altro, file); }
int fdatasync(int file) { return Chiama("fdatasync", Sotto(file), Genere::Altro, file); }

int rename(const char* da, const char* a) noexcept {
  return Chiama("rename", Sotto(a), Genere::Altro, da, a);
}
int renameat2(int doveDa, const char* da, int doveA, const char* a, unsigned modo) noexcept {
  return Chiama("renameat2", Sotto(a), Genere::Altro, doveDa, da, doveA, a, modo);
}
int link(const char* da, const char* a) noexcept {
  return Chiama("link", Sotto(a), Genere::Altro, da, a);
}
int linkat(int doveDa, const char* da, int doveA, const char* a, int modo) noexcept {
  return Chiama("linkat", Sotto(a), Genere::Altro, doveDa, da, doveA, a, modo);
}
int mkdir(const char* percorso, mode_t diritti) noexcept {
  return Chiama("mkdir", Sotto(percorso), Genere::Altro, percorso, diritti);
}
int unlink(const char* percorso) noexcept {
  return Chiama("unlink", Sotto(percorso), Genere::FaPosto, percorso);
}
int remove(const char* percorso) noexcept {
  return Chiama("remove", Sotto(percorso), Genere::FaPosto, percorso);
}

}  // extern "C"
