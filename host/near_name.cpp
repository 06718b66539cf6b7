#include "host/near_name.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orreryui::host {
namespace {

char Lower(char character) {
  return character >= 'A' && character <= 'Z' ? char(character - 'A' + 'a') : character;
}

// How many characters must be added, taken out or replaced to make one text the other.
std::size_t Distance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t replaced = diagonal + (Lower(from[i]) == Lower(to[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string NearName(const std::string& word, const std::vector<std::string>& names) {
  std::string nearest;
  std::size_t least = std::string::npos;
  for (const std::string& name : names) {
    const std::size_t distance = Distance(word, name);
    if (distance >= least || distance > name.size() / 3) continue;
    least = distance;
    nearest = name;
  }
  return nearest;
}

}  // namespace orreryui::host
