/* Loads the library named by the first argument and unloads it again: no
 * symbol of it may pin it in the process (as unique symbols do). */
#include <dlfcn.h>
#include <stdio.h>

int main(int argc, char** argv) {
  void* library;
  if (argc != 2 || (library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL)) == NULL) {
    fprintf(stderr, "cannot load: %s\n", argc == 2 ? dlerror() : "no library named");
    return 1;
  }
  dlclose(library);
  if (dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD) != NULL) {
    fprintf(stderr, "%s stays loaded after dlclose\n", argv[1]);
    return 1;
  }
  return 0;
}
