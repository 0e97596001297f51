// Memory that runs out on demand: the nth allocation of a thread's trial fails with std::bad_alloc.
// The program is linked with replace_operator_new.cpp.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

namespace test {

struct AllocationTrial {
  bool running = false;
  long left = 0;        // allocations until the one that fails
  bool failed = false;  // whether one has failed
};

inline thread_local AllocationTrial allocationTrial;

/// Whether the allocation that is asked for now is the one that fails.
inline bool failsOnTrial() {
  AllocationTrial& trial = allocationTrial;
  if (!trial.running || trial.left-- != 0) return false;
  trial.failed = true;
  return true;
}

inline void* allocateOnTrial(std::size_t size) {
  if (failsOnTrial()) throw std::bad_alloc();
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

/// Runs an operation whose allocation number `n`, from 0, fails. True when std::bad_alloc left the
/// operation; `failed` tells whether an allocation failed at all.
template <class Operation>
bool runsOutOfMemory(long n, bool& failed, Operation operation) {
  bool thrown = false;
  allocationTrial = {true, n, false};
  try {
    operation();
  } catch (const std::bad_alloc&) {
    thrown = true;
  } catch (...) {
    allocationTrial.running = false;
    throw;
  }
  allocationTrial.running = false;
  failed = allocationTrial.failed;
  return thrown;
}

/// Lets each allocation of an operation fail in turn, from the first until there are none left, and
/// calls `check` after each failure. Ends with the operation done; gives the number of failures.
template <class Operation, class Check>
long failEachAllocation(Operation operation, Check check) {
  for (long n = 0;; ++n) {
    bool failed = false;
    const bool thrown = runsOutOfMemory(n, failed, operation);
    if (!failed) return n;
    check(n, thrown);
  }
}

}  // namespace test
