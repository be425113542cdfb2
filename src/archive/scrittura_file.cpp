#include "archive/scrittura_file.h"

#include <unistd.h>

#include <cerrno>

namespace torvi {

Errore ErroreDiScrittura(int causa) {
  switch (causa) {
    case ENOSPC:
    case EDQUOT:
      return Errore::DiscoPieno;
    case EIO:
    case EFBIG:
      return Errore::ErroreDispositivo;
    default:
      return Errore::ErroreAccessoFile;
  }
}

bool ScriviTutto(int file, QByteArrayView byte) {
  while (!byte.isEmpty()) {
    const ssize_t scritti = write(file, byte.data(), static_cast<std::size_t>(byte.size()));
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti < 0) return false;
    byte = byte.sliced(scritti);
  }
  return true;
}

}  // namespace torvi
