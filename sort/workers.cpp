// The caller hands a piece of work over, does its own part, and waits until the piece is taken back.
#include "sort/workers.h"

#include <system_error>
#include <utility>

namespace sort {

SortWorkers::~SortWorkers() {
  if (!second_.joinable()) return;
  {
    std::scoped_lock lock(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  second_.join();
}

void SortWorkers::Serve() {
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

// Where the system has no thread to give, the caller does all of it.
bool SortWorkers::Started() {
  if (second_.joinable()) return true;
  try {
    second_ = std::thread([this] { Serve(); });
    return true;
  } catch (const std::system_error&) {
    return false;
  }
}

void SortWorkers::HandOver(const std::function<void(int worker)>& work) {
  {
    std::scoped_lock lock(mutex_);
    work_ = &work;
  }
  changed_.notify_all();
}

void SortWorkers::Await() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !work_; });
}

void SortWorkers::Twice(const std::function<void(int worker)>& work) {
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
