// Locks a mutex in a scope.
#pragma once

#include <pthread.h>

// Unlocks in the destructor.
class MutexGuard {
  public:
    explicit MutexGuard(pthread_mutex_t* mutex) : mutex_(mutex) { pthread_mutex_lock(mutex_); }
    ~MutexGuard() { pthread_mutex_unlock(mutex_); }
    MutexGuard(const MutexGuard&) = delete;
    MutexGuard& operator=(const MutexGuard&) = delete;

  private:
    pthread_mutex_t* mutex_;
};
