#include "host/operation.h"

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
  texts.resize(operation.fields.size());
  return texts;
}

std::vector<std::string> NextValues(const Operation& operation, std::vector<std::string> values,
                                    const std::string& result) {
  const std::vector<std::string> texts = FieldsOf(operation, result);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const auto argument = operation.fields[i].next_argument;
    if (argument) values.at(*argument) = texts[i];
  }
  return values;
}

}  // namespace orreryui::host
