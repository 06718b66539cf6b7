#include "host/operation.h"

#include <cstdlib>

namespace orreryui::host {

std::string UsageOf(const Operation& operation) {
  std::string line = operation.name;
  for (const Argument& argument : operation.arguments) line += " " + argument.name;
  return line;
}

std::vector<std::string> FieldsOf(const Operation& operation, const std::string& result) {
  std::vector<std::string> texts;
  if (result == operation.result_unless_ok) return texts;
  const std::size_t texts_at_bars = operation.fields.size() + 1 - operation.last_fields;
  std::size_t start = 0;
  while (texts.size() + 1 < texts_at_bars) {
    const std::size_t bar = result.find('|', start);
    if (bar == std::string::npos) break;
    texts.push_back(result.substr(start, bar - start));
    start = bar + 1;
  }
  const std::string rest = result.substr(start);
  if (operation.cut_last) {
    for (const std::string& text : operation.cut_last(rest)) texts.push_back(text);
    return texts;
  }
  texts.push_back(rest);
  if (operation.ends_in_number && rest.ends_with('|')) texts.back().pop_back();
  texts.resize(texts_at_bars);
  return texts;
}

std::string ShownValue(const Operation& operation, const std::vector<std::string>& values,
                       std::size_t index) {
  const std::string& value = values[index];
  const std::string words = operation.explain ? operation.explain(values, index) : "";
  return words.empty() ? value : value + " " + words;
}

std::vector<std::string> InOrder(const Operation& operation, const Values& values) {
  std::vector<std::string> ordered;
  for (const Argument& argument : operation.arguments) {
    ordered.push_back(values.at(argument.name));
  }
  return ordered;
}

void KeepResult(const Operation& operation, const std::string& result, Values& kept) {
  const std::vector<std::string> texts = FieldsOf(operation, result);
  std::map<std::string, long long> sums;
  Values whole;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const Field& field = operation.fields[i];
    if (field.next_argument.empty()) continue;
    if (field.factor == 0) {
      const auto [value, is_first] = whole.try_emplace(field.next_argument, texts[i]);
      if (!is_first) value->second += '|' + texts[i];
    } else {
      sums[field.next_argument] += std::atoll(texts[i].c_str()) * field.factor;
    }
  }
  for (const auto& [argument, value] : whole) kept[argument] = value;
  for (const auto& [argument, sum] : sums) kept[argument] = std::to_string(sum);
}

}  // namespace orreryui::host
