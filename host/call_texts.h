// What orreryui-call prints, but for the result as it stands.
#ifndef ORRERYUI_HOST_CALL_TEXTS_H_
#define ORRERYUI_HOST_CALL_TEXTS_H_

#include <string>

#include "host/operation.h"

namespace orreryui::host {

// The operations, one a line: name and purpose.
std::string OperationList();

// How an operation is called, what each argument means and what comes back.
std::string HelpFor(const Operation& operation);

// One JSON object: the operation, how the call ended, the result as it stands and its fields by
// their names. All values are strings; there are no fields where the user gave up.
std::string JsonOf(const Operation& operation, const std::string& ending,
                   const std::string& result);

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_CALL_TEXTS_H_
