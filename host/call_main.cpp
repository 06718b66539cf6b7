// orreryui-call: the smallest host. One call, with the arguments of the command line in UTF-8, and
// its result on the standard output; or what a host's author wants to know.
#include <cstdio>

#include "host/call_texts.h"
#include "host/near_name.h"
#include "host/operation_table.h"
#include "host/plug_in_check.h"

namespace {

using namespace orreryui::host;

enum Status { kResult = 0, kGivenUp = 1, kWrongUse = 2, kNoWindow = 3 };

constexpr const char* kEndings[] = {"result", "given up", "wrong use", "no window"};

constexpr char kHelp[] =
    R"(usage: orreryui-call [--json] OPERATION ARGUMENT...
       orreryui-call OPERATION --help
       orreryui-call --list | --check | --help | --version

Calls an operation, which shows a dialog, and prints its result. Texts are UTF-8.

  --json     prints the result by the names of its fields
  --list     prints the operations, and OPERATION --help what each of its arguments means
  --check    prints whether a dialog can be shown here, and what stands in its way
  --help     prints this
  --version  prints the release

The exit status is 0 for a result, 1 if the user gave up, 2 for a wrong use, 3 if no window can be
shown.
)";

int Print(const std::string& text) {
  std::fputs(text.c_str(), stdout);
  return kResult;
}

int PrintHelp() { return Print(kHelp); }
int PrintList() { return Print(OperationList()); }
int PrintRelease() { return Print("orreryui-call " ORRERYUI_RELEASE "\n"); }

int PrintCheck() {
  PrintRelease();
  const PlugInCheck check = CheckPlugIn();
  for (const std::string& finding : check.findings) Print(finding + '\n');
  Print(check.works ? "A dialog can be shown.\n" : "No dialog can be shown.\n");
  return check.works ? kResult : kNoWindow;
}

constexpr char kJson[] = "--json";

struct Option {
  const char* name;
  int (*act)();
};
constexpr Option kOptions[] = {{"--help", &PrintHelp},
                               {"--list", &PrintList},
                               {"--check", &PrintCheck},
                               {"--version", &PrintRelease}};

int RefuseUse(const std::string& reason) {
  std::fprintf(stderr, "orreryui-call: %s\n", reason.c_str());
  return kWrongUse;
}

int RefuseName(const std::string& word) {
  std::vector<std::string> names = {kJson};
  for (const Option& option : kOptions) names.emplace_back(option.name);
  for (const Operation& operation : Operations()) names.push_back(operation.name);
  const std::string near = NearName(word, names);
  return RefuseUse("no " + std::string(word.starts_with('-') ? "option" : "operation") +
                   " is called " + word +
                   (near.empty() ? "; orreryui-call --list names the operations"
                                 : "; did you mean " + near + "?"));
}

Status StatusOf(const Operation& operation, const std::string& result) {
  if (operation.returns_something && result != operation.result_unless_ok) return kResult;
  if (!CheckPlugIn().works) return kNoWindow;
  return operation.returns_something ? kGivenUp : kResult;
}

int Call(const Operation& operation, const std::vector<std::string>& values, bool as_json) {
  const Outcome outcome = operation.call(values);
  if (!outcome.error.empty()) {
    return RefuseUse(operation.name + ": " + outcome.error + "; orreryui-call " + operation.name +
                     " --help tells what they mean");
  }
  const Status status = StatusOf(operation, outcome.result);
  if (as_json) {
    Print(JsonOf(operation, kEndings[status], outcome.result) + '\n');
  } else if (operation.returns_something) {
    Print(outcome.result + '\n');
  }
  if (status == kNoWindow) RefuseUse("no window can be shown; orreryui-call --check tells why");
  return status;
}

int CallByName(const std::string& name, const std::vector<std::string>& values, bool as_json) {
  const Operation* const operation = FindOperation(name);
  if (!operation) return RefuseName(name);
  if (values == std::vector<std::string>{"--help"}) return Print(HelpFor(*operation));
  return Call(*operation, values, as_json);
}

int Run(std::vector<std::string> words) {
  const std::string first = words.empty() ? "" : words.front();
  for (const Option& option : kOptions) {
    if (first != option.name) continue;
    return words.size() == 1 ? option.act() : RefuseUse(first + " stands alone");
  }
  const bool as_json = first == kJson;
  if (as_json) words.erase(words.begin());
  if (words.empty()) return RefuseUse("which operation? orreryui-call --help tells more");
  return CallByName(words.front(), {words.begin() + 1, words.end()}, as_json);
}

}  // namespace

int main(int count, char** values) { return Run({values + 1, values + count}); }
