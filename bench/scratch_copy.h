// A copy of a file for a benchmark that rewrites it.
#pragma once

#include <filesystem>

namespace kw::bench {

// Copies the file, under its own name, into a new folder; both are gone with the object.
class ScratchCopy {
 public:
  explicit ScratchCopy(const std::filesystem::path& original);
  ~ScratchCopy();
  ScratchCopy(const ScratchCopy&) = delete;
  ScratchCopy& operator=(const ScratchCopy&) = delete;

  const std::filesystem::path& path() const { return path_; }

  // Waits until the disk has taken everything written so far, so that a measurement does not pay
  // for the writing of the one before it.
  void settle() const;

 private:
  std::filesystem::path folder_;
  std::filesystem::path path_;
};

}  // namespace kw::bench
