// The caller hands work over, does its own half, and waits until the other half is done.
#include "sort/workers.h"

#include <system_error>
#include <utility>

namespace sort {

Workers::~Workers() {
  if (!second_.joinable()) return;
  {
    std::scoped_lock lock(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  second_.join();
}

void Workers::Serve() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return work_ || ending_; });
    if (!work_) return;
    lock.unlock();
    std::exception_ptr thrown;
    try {
      (*work_)(1);
    } catch (...) {
      thrown = std::current_exception();
    }
    lock.lock();
    thrown_ = thrown;
    work_ = nullptr;
    changed_.notify_all();
  }
}

// False if the system refuses a thread; the caller then does all of it.
bool Workers::Started() {
  if (second_.joinable()) return true;
  try {
    second_ = std::thread([this] { Serve(); });
    return true;
  } catch (const std::system_error&) {
    return false;
  }
}

void Workers::HandOver(const std::function<void(int worker)>& work) {
  {
    std::scoped_lock lock(mutex_);
    work_ = &work;
  }
  changed_.notify_all();
}

void Workers::Await() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !work_; });
}

void Workers::RunHalves(const std::function<void(int worker)>& work) {
  if (!Started()) {
    work(0);
    work(1);
    return;
  }
  HandOver(work);
  try {
    work(0);
  } catch (...) {
    Await();
    thrown_ = nullptr;
    throw;
  }
  Await();
  if (std::exception_ptr thrown = std::exchange(thrown_, nullptr)) std::rethrow_exception(thrown);
}

}  // namespace sort
