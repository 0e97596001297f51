// A thread with a small stack.
#pragma once

#include <functional>
#include <stdexcept>

#if defined(_WIN32)
#include "support/windows_api.h"
#else
#include <pthread.h>
#endif

namespace test {

constexpr std::size_t smallStackSize = 256 * 1024;

/// Runs a job on a thread whose whole stack is that of smallStackSize.
inline void runOnSmallStack(std::function<void()> job) {
#if defined(_WIN32)
  const auto start = [](void* argument) -> DWORD {
    (*static_cast<std::function<void()>*>(argument))();
    return 0;
  };
  const HANDLE thread =
      CreateThread(nullptr, smallStackSize, start, &job, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  if (!thread) throw std::runtime_error("no thread");
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
#else
  const auto start = [](void* argument) -> void* {
    (*static_cast<std::function<void()>*>(argument))();
    return nullptr;
  };
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, smallStackSize);
  pthread_t thread;
  const int failure = pthread_create(&thread, &attributes, start, &job);
  pthread_attr_destroy(&attributes);
  if (failure != 0) throw std::runtime_error("no thread");
  pthread_join(thread, nullptr);
#endif
}

}  // namespace test
