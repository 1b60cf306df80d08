#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// Invented customers, with names as unevenly spread as real ones: every tenth is called Silva,
/// and some families are known to a handful of people. The same from run to run.
class People {
 public:
  struct Person {
    std::string nickname, name;
  };

  Person Next();

  /// Family names that only a few in a million bear.
  static std::vector<std::string> RareFamilies(std::size_t count);

 private:
  std::string_view Pick(const std::vector<std::string_view>& names);
  bool Chance(double part);

  std::mt19937_64 chance_{20261122};
};

}  // namespace bench
