#pragma once

/// Qt is not built for the thread sanitizer, which does not see the locks of its queue of events:
/// tests tell it where something is handed from one thread to another.
#ifdef __SANITIZE_THREAD__
extern "C" {
void __tsan_acquire(void* address);
void __tsan_release(void* address);
}
#else
static inline void __tsan_acquire(void*) {}
static inline void __tsan_release(void*) {}
#endif
