// The exported operations that stand, in the order of the public header.
#ifndef ORRERYUI_HOST_OPERATION_TABLE_H_
#define ORRERYUI_HOST_OPERATION_TABLE_H_

#include <string>
#include <vector>

#include "host/operation.h"

namespace orreryui::host {

const std::vector<Operation>& Operations();

// Null if no operation bears the name.
const Operation* FindOperation(const std::string& name);

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_OPERATION_TABLE_H_
