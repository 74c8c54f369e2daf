#include "killing/folder_watch.h"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <stdexcept>

namespace awizo::test {

FolderWatch::FolderWatch(const std::filesystem::path& folder)
    : events_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
  if (events_ < 0 || inotify_add_watch(events_, folder.c_str(), IN_CREATE | IN_MOVED_TO) < 0) {
    throw std::runtime_error("can't watch " + folder.string());
  }
}

FolderWatch::~FolderWatch() { close(events_); }

bool FolderWatch::waitForNewFile() {
  constexpr int patience = 60'000;
  while (!created_) {
    if (!read(patience)) return false;
  }
  return true;
}

void FolderWatch::catchUp() {
  while (read(0)) continue;
}

void FolderWatch::startAnew() {
  catchUp();
  created_ = renamed_ = false;
}

bool FolderWatch::read(int patienceInMilliseconds) {
  pollfd ready{events_, POLLIN, 0};
  if (poll(&ready, 1, patienceInMilliseconds) <= 0) return false;
  alignas(inotify_event) std::array<char, 4096> bytes{};
  const ssize_t count = ::read(events_, bytes.data(), bytes.size());
  for (ssize_t at = 0; at < count;) {
    inotify_event event{};
    std::memcpy(&event, bytes.data() + at, sizeof event);
    if ((event.mask & IN_CREATE) != 0) created_ = true;
    if ((event.mask & IN_MOVED_TO) != 0) renamed_ = true;
    at += static_cast<ssize_t>(sizeof event + event.len);
  }
  return count > 0;
}

}  // namespace awizo::test
