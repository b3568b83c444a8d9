// The system refuses every new thread of this process.
#pragma once

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>

namespace kit {

// As long as it lives. A thread with a stack this large cannot start.
class NoNewThreads {
 public:
  NoNewThreads() {
    pthread_attr_t huge;
    EXPECT_EQ(pthread_getattr_default_np(&usual_), 0);
    EXPECT_EQ(pthread_attr_init(&huge), 0);
    EXPECT_EQ(pthread_attr_setstacksize(&huge, std::size_t{1} << 50), 0);
    EXPECT_EQ(pthread_setattr_default_np(&huge), 0);
  }
  NoNewThreads(const NoNewThreads&) = delete;
  NoNewThreads& operator=(const NoNewThreads&) = delete;
  ~NoNewThreads() { EXPECT_EQ(pthread_setattr_default_np(&usual_), 0); }

 private:
  pthread_attr_t usual_{};
};

}  // namespace kit
