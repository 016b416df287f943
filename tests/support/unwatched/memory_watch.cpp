// For programs whose malloc() is a sanitizer's.
#include "support/memory_watch.h"

namespace tarn::test {
MemoryWatched memoryWatched;
const bool canRefuseMemory = false;
} // namespace tarn::test
