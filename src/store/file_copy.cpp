#include "store/file_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <vector>

namespace veroxia {

namespace {

// A file descriptor, closed when it goes.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return fd_; }
  // Closes now; false with errno set when the system reports a failure
  // (some file systems tell a full disk only here).
  bool Close() {
    const int fd = fd_;
    fd_ = -1;
    return ::close(fd) == 0;
  }

 private:
  int fd_;
};

}  // namespace

std::optional<CopyFailure> CopyFileBytes(const QString& from, const QString& to) {
  Descriptor source(::open(QFile::encodeName(from).constData(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (source.get() < 0 || ::fstat(source.get(), &status) != 0) return CopyFailure{true, errno};
  // The copy is made with the original's permissions.
  Descriptor copy(::open(QFile::encodeName(to).constData(),
                         O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, status.st_mode & 0777));
  if (copy.get() < 0) return CopyFailure{false, errno};
  std::vector<char> buffer(1 << 16);
  for (;;) {
    const ssize_t got = ::read(source.get(), buffer.data(), buffer.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return CopyFailure{true, errno};
    if (got == 0) break;
    for (ssize_t done = 0; done < got;) {
      const ssize_t put =
          ::write(copy.get(), buffer.data() + done, static_cast<size_t>(got - done));
      if (put < 0 && errno == EINTR) continue;
      if (put < 0) return CopyFailure{false, errno};
      done += put;
    }
  }
  if (!copy.Close()) return CopyFailure{false, errno};
  return std::nullopt;
}

bool IsDiskFull(int error) { return error == ENOSPC || error == EDQUOT; }

}  // namespace veroxia
