// The sources of the documents of one run. They are the largest part of what an export reads, so a
// thread of its own reads them ahead, through a connection of its own.
#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <span>
#include <thread>

#include "archive/database.h"
#include "export/fonte_letta.h"

namespace torvi {

class FontiInAnticipo {
 public:
  explicit FontiInAnticipo(const Database& archivio) : archivio_(archivio) {}
  FontiInAnticipo(const FontiInAnticipo&) = delete;
  FontiInAnticipo& operator=(const FontiInAnticipo&) = delete;
  ~FontiInAnticipo() = default;

  // Begins with the first document; the first Leggi does it, if nobody did before. From then on
  // nobody can write to the archive. Within a unit of writing: error 3251.
  void Comincia();
  // Those of a document, in the order of its links; good until the next call. Documents come in the
  // order of their numbers. A failure of the reading is thrown where the rows before it are
  // through.
  [[nodiscard]] std::span<const FonteLetta> Leggi(qint64 idDoc);

 private:
  // Sources of whole documents.
  using Mazzo = std::vector<FonteLetta>;
  void LeggiTutte(const std::stop_token& fermo, const QString& percorso);
  bool Consegna(const std::stop_token& fermo, Mazzo mazzo);
  bool Prendi();

  Database archivio_;
  Mazzo mazzo_;
  std::size_t posto_ = 0;

  std::mutex serratura_;  // of what follows
  std::condition_variable_any cambiato_;
  std::deque<Mazzo> pronti_;
  std::vector<Mazzo> usati_;  // go back to the thread that made them, whose memory they are
  bool finite_ = false;
  std::exception_ptr guasto_;

  std::jthread lettore_;  // last: it uses the others
};

}  // namespace torvi
