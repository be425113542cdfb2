// Bytes on their way to the disk, and what their failures are called.
#pragma once

#include <QByteArrayView>

#include "archive/errore.h"

namespace torvi {

// By the system's reason for a call that failed: no room left is 61, a device that fails 57, all
// else 75.
[[nodiscard]] Errore ErroreDiScrittura(int causa);
// All bytes, where the open file stands. False where one of them could not be written: the reason
// is in errno.
[[nodiscard]] bool ScriviTutto(int file, QByteArrayView byte);

}  // namespace torvi
