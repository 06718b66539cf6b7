// An exported operation as the sample hosts see it: what it takes, what it gives back, and a way to
// call it with texts in UTF-8. Knows no dialog and no window.
#ifndef ORRERYUI_HOST_OPERATION_H_
#define ORRERYUI_HOST_OPERATION_H_

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/argument_text.h"

namespace orreryui::host {

// In the start text of an argument: the folder of the sample data, without a separator at its end.
inline constexpr char kDataFolder[] = "{data}";

struct Argument {
  std::string name;
  std::string meaning;
  std::string start;  // what a host passes at first
};

// A field of a result. The sample host keeps the value of a field that gives an argument its next
// value, and passes it in at the next call. Several numbers may share an argument, each with its
// factor: the next value is then the sum of the numbers times their factors.
struct Field {
  std::string name;
  std::string meaning;
  std::optional<std::size_t> next_argument;  // its index
  int factor = 0;                            // 0: the field is the argument's whole value
};

// Which arguments of an operation name a palette: its number and the folder that it lies in.
struct PaletteArguments {
  std::size_t number = 0;  // the index of the argument
  std::size_t folder = 0;
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
  std::optional<PaletteArguments> palette;
  bool ends_in_number = false;  // the last field has a bar behind it, as the others have
  std::string result_unless_ok;
  bool returns_something = true;
  std::vector<std::string> argument_types;  // "integer" or "text"
  // Takes one text an argument.
  std::function<Outcome(const std::vector<std::string>& values)> call;
};

// One line for a person: the name and the names of the arguments.
std::string UsageOf(const Operation& operation);

// The result cut at its bars into as many texts as the operation has fields; the last one takes
// what is left. Empty if the run didn't end in OK.
std::vector<std::string> FieldsOf(const Operation& operation, const std::string& result);

// The values to pass at the next call, after one that was made with `values` and gave `result`.
std::vector<std::string> NextValues(const Operation& operation, std::vector<std::string> values,
                                    const std::string& result);

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
