// Workloads over a reader: the library or one of its peers. A reader is made of a directory, reads all
// of it in read(), which returns how many files it took, and frees what it holds in its destructor.
#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>

#include "heap.h"
#include "workload.h"

namespace bench {

template <class Reader>
class ReaderWorkload : public Workload {
 public:
  ReaderWorkload(std::filesystem::path directory, std::size_t files)
      : directory_(std::move(directory)), files_(files) {}

 protected:
  void make() { reader_.emplace(directory_); }
  void read() {
    if (reader_->read() != files_) throw std::runtime_error("not all files were read");
  }
  void destroy() { reader_.reset(); }
  std::size_t files() const { return files_; }

 private:
  std::filesystem::path directory_;
  std::size_t files_;
  std::optional<Reader> reader_;
};

enum class Heap { warm, fresh };

template <class Reader, Heap heap = Heap::warm>
class Reading : public ReaderWorkload<Reader> {
 public:
  Reading(std::filesystem::path directory, std::size_t files, std::size_t heapForFile = 48U << 10)
      : ReaderWorkload<Reader>(std::move(directory), files), heapForFile_(heapForFile) {}

  void prepare() override {
    this->make();
    if (heap == Heap::warm) {
      warmHeap(this->files() * heapForFile_);
    } else {
      chillHeap();
    }
  }
  Done run() override {
    this->read();
    return {this->files()};
  }
  void tidy() override { this->destroy(); }

 private:
  std::size_t heapForFile_;
};

template <class Reader>
class Destroying : public ReaderWorkload<Reader> {
 public:
  using ReaderWorkload<Reader>::ReaderWorkload;
  void prepare() override {
    this->make();
    this->read();
  }
  Done run() override {
    this->destroy();
    return {this->files()};
  }
};

/// Measures the bytes that a reader holds once it has read.
template <class Reader>
class Holding : public ReaderWorkload<Reader> {
 public:
  using ReaderWorkload<Reader>::ReaderWorkload;
  void prepare() override { this->make(); }
  Done run() override {
    const std::size_t before = memoryInUse();
    this->read();
    return {this->files(), memoryInUse() - before};
  }
  void tidy() override { this->destroy(); }
};

}  // namespace bench
