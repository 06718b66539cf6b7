/* host FOLDER: asks for one of the data files that are listed in the folder, the first one being
 * chosen so far, and says what the user decided. Ends with 1 if the user gave up, with 2 if it is
 * called wrongly, with 3 if memory ran out.
 *
 *   cc host.c -o host $(pkg-config --cflags --libs orreryui-c)
 */
#include <orreryui/orreryui_c.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* entry|common area|name, where the name may hold further bars */
static void print_choice(char* result) {
  char* const common_area = strchr(result, '|') + 1;
  char* const name = strchr(common_area, '|') + 1;
  common_area[-1] = name[-1] = '\0';
  printf("Entry %s, %s; common area: %s\n", result, name, common_area);
}

static int choose(const char* folder) {
  char* result;
  const int status = orreryui_OnDataSourceSet(1, "on", folder, &result);
  if (status == ORRERYUI_OK) {
    print_choice(result);
    orreryui_free(result);
    return 0;
  }
  if (status == ORRERYUI_GIVEN_UP) {
    puts("The user gave up, or no window could be shown.");
    return 1;
  }
  if (status == ORRERYUI_OUT_OF_MEMORY) return 3;
  fprintf(stderr, "Argument %d can't be passed: code page 932 lacks it\n", -status);
  return 2;
}

int main(int argc, char** argv) {
  char* folder;
  int status;
  if (argc != 2) return 2;
  folder = malloc(strlen(argv[1]) + 2);
  if (!folder) return 3;
  strcat(strcpy(folder, argv[1]), "/");
  status = choose(folder);
  free(folder);
  return status;
}
