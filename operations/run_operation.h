// The door of the library: each exported operation runs behind it.
#ifndef ORRERYUI_OPERATIONS_RUN_OPERATION_H_
#define ORRERYUI_OPERATIONS_RUN_OPERATION_H_

#include <atomic>

namespace orreryui {

// The turn of the one operation that runs in the process.
class OperationTurn {
 public:
  OperationTurn() : taken_(!runs_.test_and_set()) {}
  ~OperationTurn() {
    if (taken_) runs_.clear();
  }
  OperationTurn(const OperationTurn&) = delete;
  OperationTurn& operator=(const OperationTurn&) = delete;

  explicit operator bool() const { return taken_; }

 private:
  static inline std::atomic_flag runs_;

  const bool taken_;
};

// What `body` returns; `given_up` if it throws, or if another operation runs already, in this
// thread or in another one.
template <class Result, class Body>
Result RunOperation(Result given_up, Body body) {
  const OperationTurn turn;
  if (!turn) return given_up;
  try {
    return body();
  } catch (...) {
    return given_up;
  }
}

// The same for an operation that returns nothing.
template <class Body>
void RunOperation(Body body) {
  RunOperation(0, [&body] {
    body();
    return 0;
  });
}

}  // namespace orreryui

#endif  // ORRERYUI_OPERATIONS_RUN_OPERATION_H_
