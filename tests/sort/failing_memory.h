// Memory that runs out on demand, for the whole program.
#pragma once

namespace kw::sort {

// While one of these exists, `new (std::nothrow)` gives nothing.
class NoWorkMemory {
 public:
  NoWorkMemory() noexcept { active_ = true; }
  ~NoWorkMemory() { active_ = false; }
  NoWorkMemory(const NoWorkMemory&) = delete;
  NoWorkMemory& operator=(const NoWorkMemory&) = delete;

  static bool active() noexcept { return active_; }

 private:
  static bool active_;
};

}  // namespace kw::sort
