#include "adapters/posix/posix_one_program.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "adapters/posix/posix_record_folder.h"
#include "platform/run_time_error.h"

namespace awizo {
namespace {

constexpr unsigned ownersAlone = S_IRUSR | S_IWUSR;

/// None for a path that is too long for one.
std::optional<sockaddr_un> addressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return std::nullopt;
  path.copy(address.sun_path, path.size());
  return address;
}

int newSocket() { return socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

bool makeOwnFolder(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(path, error);
  struct stat status {};
  // Another user's folder could lead calls anywhere.
  return !error && lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == geteuid() && chmod(path.c_str(), S_IRWXU) == 0;
}

bool isAt(const std::string& path, const posix::Descriptor& file) {
  struct stat there {};
  struct stat open {};
  return lstat(path.c_str(), &there) == 0 && fstat(file.number(), &open) == 0 &&
         there.st_ino == open.st_ino && there.st_dev == open.st_dev;
}

}  // namespace

std::string PosixOneProgram::usersOwnFolder() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime != nullptr && runtime[0] == '/') return std::string(runtime) + "/awizo";
  return std::filesystem::path(PosixRecordFolder::usersOwnPath()).parent_path() / "programs";
}

PosixOneProgram::PosixOneProgram(const std::string& folder, std::string_view name)
    : path_(folder + "/" + std::string(name)) {
  if (!makeOwnFolder(folder)) return;
  caughtError([this] {
    lock();
    if (isFirst_) claim();
  });
}

PosixOneProgram::~PosixOneProgram() {
  if (socket_ >= 0) {
    unlink(path_.c_str());
    close(socket_);
  }
  // As long as it is locked, nobody else takes another file of this name for the lock.
  if (isFirst_ && lock_) unlink(lockPath().c_str());
}

/// A program that has ended meanwhile takes its file away: then the next one is the lock.
void PosixOneProgram::lock() {
  do {
    lock_ =
        std::make_unique<posix::Descriptor>(lockPath(), O_RDWR | O_CREAT | O_NOFOLLOW, ownersAlone);
    isFirst_ = flock(lock_->number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
  } while (isFirst_ && !isAt(lockPath(), *lock_));
}

void PosixOneProgram::claim() {
  const auto address = addressOf(path_);
  if (!address) return;
  // A program that was killed leaves its own.
  unlink(path_.c_str());
  socket_ = newSocket();
  if (socket_ < 0) return;
  if (bind(socket_, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0) return;
  close(socket_);
  socket_ = -1;
}

bool PosixOneProgram::callFirst() const {
  const auto address = addressOf(path_);
  const int caller = newSocket();
  if (!address || caller < 0) return false;
  const char call = 0;
  const ssize_t sent = sendto(caller, &call, sizeof call, 0,
                              reinterpret_cast<const sockaddr*>(&*address), sizeof *address);
  // Calls that the other hasn't taken yet do as well.
  const bool waits = sent < 0 && (errno == EAGAIN || errno == ENOBUFS);
  close(caller);
  return sent == sizeof call || waits;
}

void PosixOneProgram::takeCalls() const {
  std::array<char, 16> call{};
  while (recv(socket_, call.data(), call.size(), 0) >= 0) {
  }
}

}  // namespace awizo
