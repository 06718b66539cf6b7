// orreryui-call: the smallest host. One call, with the arguments of the command line in UTF-8, and
// its result on the standard output.
//
// The exit status is 0 if the operation was called, whatever the user decided, and 2 if it wasn't.
#include <cstdio>

#include "host/operation_table.h"

namespace {

using orreryui::host::FindOperation;
using orreryui::host::Operation;
using orreryui::host::Operations;
using orreryui::host::Outcome;
using orreryui::host::UsageOf;

constexpr int kNotCalled = 2;

void ExplainOperation(const Operation& operation) {
  std::fprintf(stderr, "usage: orreryui-call %s\n", UsageOf(operation).c_str());
  for (std::size_t i = 0; i < operation.arguments.size(); ++i) {
    std::fprintf(stderr, "  %-12s %s: %s\n", operation.arguments[i].name.c_str(),
                 operation.argument_types[i].c_str(), operation.arguments[i].meaning.c_str());
  }
}

void ExplainAll() {
  std::fprintf(stderr, "usage: orreryui-call OPERATION ARGUMENT...\n");
  for (const Operation& operation : Operations()) {
    std::fprintf(stderr, "  %s\n      %s\n", UsageOf(operation).c_str(), operation.purpose.c_str());
  }
}

}  // namespace

int main(int count, char** values) {
  const Operation* const operation = count > 1 ? FindOperation(values[1]) : nullptr;
  if (!operation) {
    if (count > 1) std::fprintf(stderr, "orreryui-call: no operation is called %s\n", values[1]);
    ExplainAll();
    return kNotCalled;
  }
  const Outcome outcome = operation->call({values + 2, values + count});
  if (!outcome.error.empty()) {
    std::fprintf(stderr, "orreryui-call: %s: %s\n", values[1], outcome.error.c_str());
    ExplainOperation(*operation);
    return kNotCalled;
  }
  if (operation->returns_something) std::printf("%s\n", outcome.result.c_str());
  return 0;
}
