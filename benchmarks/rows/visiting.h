// Visiting every object of a set that has been read: by next, by prev, or by asking whether it is
// there.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>

#include "host.h"
#include "workload.h"

namespace bench {

using Visit = std::function<std::size_t(KoStyleManager*)>;

class Visiting : public Workload {
 public:
  Visiting(std::filesystem::path directory, std::size_t size, Visit visit)
      : directory_(std::move(directory)), size_(size), visit_(std::move(visit)) {}

  void prepare() override {
    if (host_) return;
    host_.emplace(directory_);
    host_->read();
  }
  Done run() override {
    if (visit_(host_->manager()) != size_) throw std::runtime_error("not all were visited");
    return {size_};
  }

 private:
  std::filesystem::path directory_;
  std::size_t size_;
  Visit visit_;
  std::optional<Host> host_;
};

/// The length of the walk that starts at `first`.
template <class Handle, class Step>
std::size_t walkLength(Handle* first, Step step) {
  std::size_t length = 0;
  for (Handle* handle = first; handle; handle = step(handle)) ++length;
  return length;
}

/// How many of `count` objects, found by index, are in their owner.
template <class At, class Has>
std::size_t countHeld(std::size_t count, At at, Has has) {
  std::size_t held = 0;
  for (std::size_t i = 0; i < count; ++i) held += has(at(i));
  return held;
}

}  // namespace bench
