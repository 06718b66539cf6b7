// The smallest host: asks about a range and says what became of it.
//
// Its exit status is 0 if the operation returned the number given as the argument, and text goes to
// the code page and comes back.
#include <orreryui/orreryui.h>
#include <orreryui/utf8.h>

#include <cstdio>
#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const int answer = orreryui::OnRengeConfirm("139.5000", "35.4000", "139.6000", "35.3000");
  std::printf("OnRengeConfirm returned %d\n", answer);
  const std::string text = "鎌倉";
  const bool comes_back = orreryui::ToUtf8(orreryui::FromUtf8(text).bytes) == text;
  return comes_back && answer == std::atoi(argv[1]) ? 0 : 1;
}
