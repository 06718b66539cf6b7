#include "host/call_texts.h"

#include <algorithm>
#include <cstdio>

#include "host/operation_table.h"

namespace orreryui::host {
namespace {

std::string Padded(std::string text, std::size_t width) {
  text.resize(std::max(text.size(), width), ' ');
  return text;
}

template <typename List>
std::size_t WidestName(const List& list) {
  std::size_t widest = 0;
  for (const auto& one : list) widest = std::max(widest, one.name.size());
  return widest;
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') quoted += '\\';
    if (static_cast<unsigned char>(character) >= 0x20) {
      quoted += character;
      continue;
    }
    char escaped[8];
    std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(character));
    quoted += escaped;
  }
  return quoted + '"';
}

std::string FieldsAsJson(const Operation& operation, const std::string& result) {
  const std::vector<std::string> texts = FieldsOf(operation, result);
  std::string json;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    json += (i == 0 ? "\n    " : ",\n    ") + Quoted(operation.fields[i].name) + ": " +
            Quoted(texts[i]);
  }
  return texts.empty() ? "{}" : "{" + json + "\n  }";
}

std::string HelpForArguments(const Operation& operation) {
  std::string help;
  const std::size_t width = WidestName(operation.arguments);
  for (std::size_t i = 0; i < operation.arguments.size(); ++i) {
    help += "  " + Padded(operation.arguments[i].name, width) + "  " +
            Padded(operation.argument_types[i], 7) + "  " + operation.arguments[i].meaning + '\n';
  }
  return help;
}

std::string HelpForResult(const Operation& operation) {
  if (!operation.returns_something) return "It returns nothing.\n";
  std::string help = "The fields of the result:\n";
  const std::size_t width = WidestName(operation.fields);
  for (const Field& field : operation.fields) {
    help += "  " + Padded(field.name, width) + "  " + field.meaning + '\n';
  }
  return help + "The result where the user gave up: \"" + operation.result_unless_ok + "\"\n";
}

}  // namespace

std::string OperationList() {
  std::string list;
  const std::size_t width = WidestName(Operations());
  for (const Operation& operation : Operations()) {
    list += Padded(operation.name, width) + "  " + operation.purpose + '\n';
  }
  return list;
}

std::string HelpFor(const Operation& operation) {
  return "usage: orreryui-call " + UsageOf(operation) + '\n' + operation.purpose + ".\n\n" +
         HelpForArguments(operation) + '\n' + HelpForResult(operation);
}

std::string JsonOf(const Operation& operation, const std::string& ending,
                   const std::string& result) {
  return "{\n  \"operation\": " + Quoted(operation.name) + ",\n  \"ending\": " + Quoted(ending) +
         ",\n  \"result\": " + Quoted(result) +
         ",\n  \"fields\": " + FieldsAsJson(operation, result) + "\n}";
}

}  // namespace orreryui::host
