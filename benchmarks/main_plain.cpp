// Runs the rows where Google Benchmark is not to be had. Understands the arguments that the benchmark's
// scripts give it, and writes the same JSON as far as they read it. Times are those of the clock, since
// the processor time of Windows is counted in ticks of ten milliseconds and more; of several runs the
// shortest counts, which was interrupted least.
#include <rapidjson/filewritestream.h>
#include <rapidjson/prettywriter.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <random>
#include <regex>
#include <stdexcept>
#include <string_view>

#include "all_rows.h"

namespace {

struct Options {
  std::string filter;
  std::string output;
  double leastTime = 0.02;
};

Options parseOptions(const std::vector<char*>& arguments) {
  Options options;
  for (const std::string_view argument : arguments) {
    const std::size_t equals = argument.find('=');
    const std::string_view name = argument.substr(0, equals);
    const std::string value(argument.substr(equals + 1));
    if (name == "--benchmark_filter") options.filter = value;
    if (name == "--benchmark_out") options.output = value;
    if (name == "--benchmark_min_time") options.leastTime = std::stod(value);
  }
  return options;
}

struct Measured {
  double seconds;  // of the shortest run
  bench::Done done;
};

Measured measure(const bench::Row& row, double leastTime) {
  using Clock = std::chrono::steady_clock;
  constexpr std::size_t leastRuns = 3;
  const auto workload = row.make();
  std::vector<double> seconds;
  double total = 0;
  bench::Done done;
  do {
    workload->prepare();
    const auto start = Clock::now();
    done = workload->run();
    seconds.push_back(std::chrono::duration<double>(Clock::now() - start).count());
    workload->tidy();
    total += seconds.back();
  } while (row.runs == bench::Runs::many && (total < leastTime || seconds.size() < leastRuns));
  return {*std::min_element(seconds.begin(), seconds.end()), done};
}

template <class Writer>
void write(Writer& writer, const bench::Row& row, const Measured& measured) {
  writer.StartObject();
  writer.Key("name");
  writer.String(row.name.c_str());
  writer.Key("cpu_time");
  writer.Double(measured.seconds * 1e9);
  writer.Key("time_unit");
  writer.String("ns");
  writer.Key("operations");
  writer.Double(static_cast<double>(measured.done.operations));
  writer.Key("bytes");
  writer.Double(static_cast<double>(measured.done.bytes));
  writer.EndObject();
}

void measureAll(bench::Rows rows, const Options& options) {
  const std::regex filter(options.filter);
  const auto unwanted = [&](const bench::Row& row) { return !std::regex_search(row.name, filter); };
  rows.erase(std::remove_if(rows.begin(), rows.end(), unwanted), rows.end());
  std::shuffle(rows.begin(), rows.end(), std::mt19937(std::random_device()()));

  std::FILE* const file = std::fopen(options.output.c_str(), "wb");
  if (!file) throw std::runtime_error("cannot write " + options.output);
  char buffer[4096];
  rapidjson::FileWriteStream stream(file, buffer, sizeof buffer);
  rapidjson::PrettyWriter<rapidjson::FileWriteStream> writer(stream);
  writer.StartObject();
  writer.Key("benchmarks");
  writer.StartArray();
  for (const bench::Row& row : rows) write(writer, row, measure(row, options.leastTime));
  writer.EndArray();
  writer.EndObject();
  std::fclose(file);
}

}  // namespace

int main(int argc, char** argv) try {
  std::vector<char*> others;
  const bench::Settings settings = bench::parseSettings(argc - 1, argv + 1, others);
  measureAll(bench::allRows(settings), parseOptions(others));
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "bench-kostyle: %s\n", error.what());
  return 1;
}
