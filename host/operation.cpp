#include "host/operation.h"

#include <cstdlib>
#include <map>

namespace orreryui::host {

std::string UsageOf(const Operation& operation) {
  std::string line = operation.name;
  for (const Argument& argument : operation.arguments) line += " " + argument.name;
  return line;
}

std::vector<std::string> FieldsOf(const Operation& operation, const std::string& result) {
  std::vector<std::string> texts;
  if (result == operation.result_unless_ok) return texts;
  std::size_t start = 0;
  while (texts.size() + 1 < operation.fields.size()) {
    const std::size_t bar = result.find('|', start);
    if (bar == std::string::npos) break;
    texts.push_back(result.substr(start, bar - start));
    start = bar + 1;
  }
  texts.push_back(result.substr(start));
  if (operation.ends_in_number && texts.back().ends_with('|')) texts.back().pop_back();
  texts.resize(operation.fields.size());
  return texts;
}

std::vector<std::string> NextValues(const Operation& operation, std::vector<std::string> values,
                                    const std::string& result) {
  const std::vector<std::string> texts = FieldsOf(operation, result);
  std::map<std::size_t, long long> sums;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const Field& field = operation.fields[i];
    if (!field.next_argument) continue;
    if (field.factor == 0) {
      values.at(*field.next_argument) = texts[i];
    } else {
      sums[*field.next_argument] += std::atoll(texts[i].c_str()) * field.factor;
    }
  }
  for (const auto& [argument, sum] : sums) values.at(argument) = std::to_string(sum);
  return values;
}

}  // namespace orreryui::host
