#pragma once

#include <QByteArrayView>
#include <optional>

#include "platform/file_system.h"

/// What the error `number` of a system call means.
[[nodiscard]] FileTrouble trouble_of(int number);

/// A file or folder that the system has opened; closed at the end of this object. Its functions give the error number
/// of the system, 0 on success.
class OpenFile final {
  public:
    /// `handle` is negative when opening has failed.
    explicit OpenFile(int handle = -1) : handle_(handle) {}
    ~OpenFile() { static_cast<void>(close()); }
    OpenFile(OpenFile &&other) noexcept : handle_(other.release()) {}
    OpenFile &operator=(OpenFile &&other) noexcept;
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    [[nodiscard]] bool is_open() const { return handle_ >= 0; }
    [[nodiscard]] int handle() const { return handle_; }
    /// The handle, which the caller has to close.
    [[nodiscard]] int release();

    /// Writes all of `bytes` from the file's position on.
    [[nodiscard]] int write(QByteArrayView bytes) const;
    /// Waits until the disk has what was written.
    [[nodiscard]] int sync() const;
    /// What some file systems tell only now is the error of an earlier write.
    [[nodiscard]] int close();

  private:
    int handle_;
};
