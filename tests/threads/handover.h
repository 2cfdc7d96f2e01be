#pragma once

/// Tells the thread sanitizer where data passes from one thread to another. Qt is not built for the
/// sanitizer, which therefore does not see the locks of Qt's event queue.
#ifdef __SANITIZE_THREAD__
extern "C" {
void __tsan_acquire(void* address);
void __tsan_release(void* address);
}
#else
static inline void __tsan_acquire(void*) {}
static inline void __tsan_release(void*) {}
#endif
