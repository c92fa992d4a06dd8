#include "platform/linux/automation/live_counts.h"

#include <mutex>

namespace kw {
namespace live {

constinit thread_local Counts* thread_counts = nullptr;

namespace {

struct ThreadRecord;

std::mutex guard;
ThreadRecord* first = nullptr;
Counts ended;  // what threads that have ended left, and what is counted while a thread ends
constinit thread_local bool thread_has_ended = false;

void add_to(Counts& sum, const Counts& part) {
  sum.strings.fetch_add(part.strings.load(std::memory_order_relaxed), std::memory_order_relaxed);
  sum.arrays.fetch_add(part.arrays.load(std::memory_order_relaxed), std::memory_order_relaxed);
}

struct ThreadRecord {
  Counts counts;
  ThreadRecord* previous = nullptr;
  ThreadRecord* next = nullptr;

  ThreadRecord() {
    const std::lock_guard lock(guard);
    next = first;
    if (next != nullptr) next->previous = this;
    first = this;
    thread_counts = &counts;
  }

  ~ThreadRecord() {
    const std::lock_guard lock(guard);
    thread_counts = nullptr;
    thread_has_ended = true;
    (previous != nullptr ? previous->next : first) = next;
    if (next != nullptr) next->previous = previous;
    add_to(ended, counts);
  }

  ThreadRecord(const ThreadRecord&) = delete;
  ThreadRecord& operator=(const ThreadRecord&) = delete;
};

}  // namespace

Counts& attach_thread() {
  if (thread_has_ended) return ended;
  thread_local ThreadRecord record;
  return record.counts;
}

}  // namespace live

void KwAutomationLiveCounts(std::int64_t* strings, std::int64_t* arrays) {
  live::Counts sum;
  {
    const std::lock_guard lock(live::guard);
    live::add_to(sum, live::ended);
    for (auto* record = live::first; record != nullptr; record = record->next) {
      live::add_to(sum, record->counts);
    }
  }
  if (strings != nullptr) *strings = sum.strings.load();
  if (arrays != nullptr) *arrays = sum.arrays.load();
}

}  // namespace kw
