// The smallest host: asks about a range and says what became of it.
//
// Its exit status is 0 if the operation returned the number given as the argument.
#include <orreryui/orreryui.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const int answer = orreryui::OnRengeConfirm("139.5000", "35.4000", "139.6000", "35.3000");
  std::printf("OnRengeConfirm returned %d\n", answer);
  return answer == std::atoi(argv[1]) ? 0 : 1;
}
