// Makes the allocator keep what the program frees and serve every block from
// memory the process already holds.
//
// On virtual machines a first touch of a fresh page can cost microseconds, and
// glibc gives blocks over 32 MB back to the system when they are freed. A
// serialization run then pays mostly for page faults, and how much depends on
// what the runs before it left in the heap: the order of the runs, not the
// code, would decide the ratios. With this, and one untimed run before each
// measurement, every contender writes into warm memory.
#include <malloc.h>

#include <climits>

namespace {

int const kept = [] {
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  return 0;
}();

}  // namespace
