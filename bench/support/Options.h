#pragma once

#include <cstdint>
#include <string>

namespace bench {

/// What the command line asks of a benchmark binary, beside the options of Google Benchmark.
struct Options {
  /// --folder=DIR: where loaded databases are kept from run to run; without it they are temporary.
  std::string folder;
  /// --postgres=CONNINFO: a server to create databases on, told without a dbname; without it a
  /// private one is started for the run.
  std::string postgres;
  /// --rows=N: how many customers and products a large clinic has.
  std::int64_t rows = 1'000'000;
  /// --quick: a few hundred rows and two rounds of everything. Its figures mean nothing; it shows
  /// that the benchmarks still work.
  bool quick = false;

  /// `usual`, or 2 for a quick run.
  int Rounds(int usual) const;
};

/// What was asked for; the same for the life of the process.
const Options& Chosen();

/// Reads the options of ours, and takes them off the arguments. Throws std::runtime_error.
void ReadOptions(int& argc, char** argv);

}  // namespace bench
