// Root may read and write everywhere, so a test of permissions steps down.
#pragma once

#include <unistd.h>

namespace kit {

// While it lives, a process of root is that of another user. Without effect for anybody else.
class OrdinaryUser {
 public:
  OrdinaryUser() : stepped_down_(::geteuid() == 0 && ::seteuid(Nobody) == 0) {}
  ~OrdinaryUser() {
    if (stepped_down_) static_cast<void>(::seteuid(0));
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t Nobody = 65534;
  const bool stepped_down_;
};

}  // namespace kit
