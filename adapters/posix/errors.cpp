#include "adapters/posix/errors.h"

#include <sys/stat.h>

#include <cerrno>

namespace awizo::posix {
namespace {

bool parentExists(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == path.npos) return true;
  struct stat status {};
  return stat(path.substr(0, slash + 1).c_str(), &status) == 0;
}

}  // namespace

RunTimeError folderError(int number) {
  switch (number) {
    case ENOENT:
    case ENOTDIR:
      return errors::pathNotFound();
    case EACCES:
    case EPERM:
    case EROFS:
      return errors::permissionDenied();
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return errors::diskFull();
    case ENODEV:
    case ENXIO:
      return errors::deviceUnavailable();
    case ENOMEDIUM:
    case EIO:
      return errors::diskNotReady();
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
      return errors::badFileName();
    case ENOMEM:
      return errors::outOfMemory();
    default:
      return errors::pathFileAccess();
  }
}

RunTimeError fileError(int number, const std::string& path) {
  if (number == ENOENT && parentExists(path)) return errors::fileNotFound();
  return folderError(number);
}

}  // namespace awizo::posix
