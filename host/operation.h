// An exported operation as the sample hosts see it: what it takes, what it gives back, a way to
// call it with texts in UTF-8, and what the tour does in its dialogs.
#ifndef ORRERYUI_HOST_OPERATION_H_
#define ORRERYUI_HOST_OPERATION_H_

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/argument_text.h"
#include "host/hand.h"

namespace orreryui::host {

// In the start text of an argument: the folder of the sample data, without a separator at its end.
inline constexpr char kDataFolder[] = "{data}";

// In the same: the points of all albums of the sample data, as a list of points is passed in.
inline constexpr char kAlbumPoints[] = "{points}";

struct Argument {
  std::string name;
  std::string meaning;
  std::string start;  // what a host passes at first
};

// The values of arguments by their names. Arguments with one name mean the same thing in all
// operations, so that what one operation hands back is passed to the others as well.
using Values = std::map<std::string, std::string>;

// A field of a result. The sample host keeps the value of a field that gives an argument its next
// value. Several numbers may share an argument, each with its factor: the next value is then the
// sum of the numbers times their factors. Several whole values that share one are joined by bars.
struct Field {
  std::string name;
  std::string meaning;
  std::string next_argument =
      {};          // the name of an argument of any operation; empty if there is none
  int factor = 0;  // 0: the field is the argument's whole value
};

// A step of the tour's visit to an operation: what is done in one go in the dialog of the template
// `dialog`, once that is the innermost one. A step that opens a further dialog is its dialog's last
// until that has closed.
struct Step {
  int dialog = 0;
  std::function<void(Hand&)> act;
};

// What became of a call. Where `error` isn't empty the operation wasn't called.
struct Outcome {
  std::string result;  // in UTF-8; a number in decimal; empty for an operation that returns nothing
  std::string error;
};

struct Operation {
  std::string name;
  std::string purpose;
  std::vector<Argument> arguments;
  std::vector<Field> fields;
  bool ends_in_number = false;  // the last field has a bar behind it, as the others have
  // Where the text behind the last bar holds several fields: their number, and what cuts it into as
  // many texts, or none if it can't.
  std::size_t last_fields = 1;
  std::function<std::vector<std::string>(const std::string& text)> cut_last;
  // What the value of the field at `index` stands for in this result, where that isn't the same in
  // all; may be empty, and the function null.
  std::function<std::string(const std::vector<std::string>& values, std::size_t index)> explain;
  std::string result_unless_ok;
  bool returns_something = true;
  std::vector<Step> steps;                  // of the tour's visit,
  std::string expected_result;              // which ends in this, kDataFolder filled in
  std::vector<std::string> argument_types;  // "integer" or "text"
  // Takes one text an argument.
  std::function<Outcome(const std::vector<std::string>& values)> call;
};

// One line for a person: the name and the names of the arguments.
std::string UsageOf(const Operation& operation);

// The texts of the fields of a result: what stands between its bars, the last one taking what is
// left, or the texts that `cut_last` finds there. Empty if the run didn't end in OK; shorter than
// the fields if `cut_last` gives none.
std::vector<std::string> FieldsOf(const Operation& operation, const std::string& result);

// The value of a field for a person, with what it stands for behind it.
std::string ShownValue(const Operation& operation, const std::vector<std::string>& values,
                       std::size_t index);

// One value an argument, as the operation is called with them. Each must be there.
std::vector<std::string> InOrder(const Operation& operation, const Values& values);

// Keeps what the result gives arguments as their next values.
void KeepResult(const Operation& operation, const std::string& result, Values& kept);

namespace internal {

template <typename... Parameters, std::size_t... I>
Outcome CallWithTexts(auto* function, const std::vector<std::string>& values,
                      std::index_sequence<I...>) {
  std::string error;
  // Braces, so that the texts are read from left to right and the first wrong one is reported.
  std::tuple<Parameters...> arguments{ReadArgument<Parameters>(values[I], I + 1, error)...};
  if (!error.empty()) return {"", error};
  return {TextOf([&] { return std::apply(function, std::move(arguments)); }), ""};
}

}  // namespace internal

// Fills in what the signature of the operation says by itself: the types and the call.
template <typename Result, typename... Parameters>
Operation Describe(Result (*function)(Parameters...), Operation operation) {
  operation.argument_types = {TypeName<Parameters>()...};
  operation.returns_something = !std::is_void_v<Result>;
  operation.call = [function](const std::vector<std::string>& values) -> Outcome {
    if (values.size() != sizeof...(Parameters)) {
      return {"", "it takes " + std::to_string(sizeof...(Parameters)) + " arguments, not " +
                      std::to_string(values.size())};
    }
    return internal::CallWithTexts<Parameters...>(function, values,
                                                  std::index_sequence_for<Parameters...>());
  };
  return operation;
}

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_OPERATION_H_
