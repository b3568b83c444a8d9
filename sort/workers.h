// Work for the two cores of a machine.
#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace sort {

// A second thread beside the caller's, which starts with the first work for two and then waits for more: a new thread
// for each piece would sit on the caller's core for a good part of it.
class SortWorkers {
 public:
  SortWorkers() = default;
  SortWorkers(const SortWorkers&) = delete;
  SortWorkers& operator=(const SortWorkers&) = delete;
  ~SortWorkers();

  // Runs work(0) and work(1) at the same time; what either throws is thrown when both are over.
  void Twice(const std::function<void(int worker)>& work);

 private:
  bool Started();
  void Serve();
  void HandOver(const std::function<void(int worker)>& work);
  void Await();

  std::mutex mutex_;
  std::condition_variable changed_;
  const std::function<void(int worker)>* work_ = nullptr;  // of the second thread, until it is done
  std::exception_ptr thrown_;
  bool ending_ = false;
  std::thread second_;
};

// With nobody else to do it, one after the other.
inline void Twice(SortWorkers* workers, const std::function<void(int worker)>& work) {
  if (workers) {
    workers->Twice(work);
  } else {
    work(0);
    work(1);
  }
}

}  // namespace sort
