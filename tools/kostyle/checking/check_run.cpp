#include "checking/check_run.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <numeric>
#include <system_error>
#include <thread>

#include "checking/file_check.h"
#include "checking/repeated_identifiers.h"

namespace tool {
namespace {

FileReport checkOrSayWhyNot(const Input& input, std::size_t maxSize) {
  try {
    return checkInput(input, maxSize);
  } catch (const std::bad_alloc&) {
    return unreadable(input.shown, "there is not enough memory for the file");
  } catch (const std::exception& error) {
    return unreadable(input.shown, error.what());
  }
}

// Each thread takes the next file that none has taken.
std::vector<FileReport> checkOnThreads(const std::vector<Input>& inputs, const CheckOptions& options) {
  std::vector<FileReport> reports(inputs.size());
  std::atomic<std::size_t> next = 0;
  std::atomic<std::size_t> done = 0;
  const auto work = [&](bool tells) {
    for (std::size_t i = next++; i < inputs.size(); i = next++) {
      reports[i] = checkOrSayWhyNot(inputs[i], options.maxSize);
      ++done;
      if (tells && options.progress) options.progress(done, inputs.size());
    }
  };
  std::vector<std::thread> others;
  try {
    while (others.size() + 1 < std::min<std::size_t>(options.jobs, inputs.size()))
      others.emplace_back(work, false);
  } catch (const std::system_error&) {  // fewer threads do the same
  }
  work(true);
  for (std::thread& other : others) other.join();
  return reports;
}

}  // namespace

std::vector<FileReport> checkAll(const std::vector<Input>& inputs, const CheckOptions& options) {
  std::vector<FileReport> reports = checkOnThreads(inputs, options);
  findRepeatedIdentifiers(inputs, reports);
  return reports;
}

std::size_t numUnkept(const FileReport& report) {
  return std::accumulate(report.numUnkept.begin(), report.numUnkept.end(), std::size_t{0});
}

void dropBelow(Severity least, std::vector<FileReport>& reports) {
  const auto isBelow = [least](const Finding& finding) { return finding.rule->severity < least; };
  for (FileReport& report : reports) {
    auto& findings = report.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(), isBelow), findings.end());
    std::fill_n(report.numUnkept.begin(), static_cast<std::size_t>(least), 0);
  }
}

Counts countsOf(const std::vector<FileReport>& reports) {
  std::array<std::size_t, 3> numbers = {};
  for (const FileReport& report : reports) {
    for (const Finding& finding : report.findings)
      ++numbers[static_cast<std::size_t>(finding.rule->severity)];
    for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] += report.numUnkept[i];
  }
  const auto [notes, warnings, errors] = numbers;
  return {reports.size(), errors, warnings, notes};
}

}  // namespace tool
