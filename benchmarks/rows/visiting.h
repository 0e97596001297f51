// Visiting every object of a set that has been read: by next, by prev, or by asking whether it is
// there.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

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

/// Asks an owner, which is found once, for each of its objects whether it has it.
template <class Owner, class Handle>
class Asking : public Workload {
 public:
  using FindOwner = std::function<Owner*(KoStyleManager*)>;
  using At = Handle* (*)(Owner*, std::size_t);
  using Has = bool (*)(Owner*, Handle*);

  Asking(std::filesystem::path directory, std::size_t size, FindOwner findOwner, At at, Has has)
      : directory_(std::move(directory)),
        size_(size),
        findOwner_(std::move(findOwner)),
        at_(at),
        has_(has) {}

  void prepare() override {
    if (host_) return;
    host_.emplace(directory_);
    host_->read();
    owner_ = findOwner_(host_->manager());
    for (std::size_t i = 0; i < size_; ++i) handles_.push_back(at_(owner_, i));
  }
  Done run() override {
    std::size_t held = 0;
    for (Handle* const handle : handles_) held += has_(owner_, handle);
    if (held != size_) throw std::runtime_error("not all were there");
    return {size_};
  }

 private:
  std::filesystem::path directory_;
  std::size_t size_;
  FindOwner findOwner_;
  At at_;
  Has has_;
  std::optional<Host> host_;
  Owner* owner_ = nullptr;
  std::vector<Handle*> handles_;
};

}  // namespace bench
