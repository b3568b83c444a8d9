// Work in halves for two cores.
#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace sort {

// A second thread, started with the first work and kept: a thread per piece starts on the caller's core and stays there
// for a good part of its work.
class Workers {
 public:
  Workers() = default;
  Workers(const Workers&) = delete;
  Workers& operator=(const Workers&) = delete;
  ~Workers();

  // Runs work(0) and work(1) at the same time; what either throws is thrown when both are done.
  void RunHalves(const std::function<void(int worker)>& work);

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

// Without workers, in turn.
inline void RunHalves(Workers* workers, const std::function<void(int worker)>& work) {
  if (workers) {
    workers->RunHalves(work);
  } else {
    work(0);
    work(1);
  }
}

}  // namespace sort
