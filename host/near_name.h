// What a person meant who misspelled a name.
#ifndef ORRERYUI_HOST_NEAR_NAME_H_
#define ORRERYUI_HOST_NEAR_NAME_H_

#include <string>
#include <vector>

namespace orreryui::host {

// The name that `word` comes nearest to, as it stands in `names`, upper and lower case being one;
// empty if more than a third of its characters would have to be added, taken out or replaced.
std::string NearName(const std::string& word, const std::vector<std::string>& names);

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_NEAR_NAME_H_
