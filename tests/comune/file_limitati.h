// A disk that runs full, as far as a process can make one: as long as it lives no file can grow
// over so many bytes.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace torvi {

class FileLimitati {
 public:
  explicit FileLimitati(rlim_t byte) {
    getrlimit(RLIMIT_FSIZE, &prima_);
    const rlimit limite{byte, prima_.rlim_max};
    segnale_ = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limite);
  }
  FileLimitati(const FileLimitati&) = delete;
  FileLimitati& operator=(const FileLimitati&) = delete;
  ~FileLimitati() {
    setrlimit(RLIMIT_FSIZE, &prima_);
    (void)std::signal(SIGXFSZ, segnale_);
  }

 private:
  rlimit prima_{};
  void (*segnale_)(int) = SIG_DFL;
};

}  // namespace torvi
