#pragma once

#include <QDateTime>
#include <QString>

// Files as a test wants them and each system makes them its own way.

/// Puts a file at `path` that is there and that nobody can read, not even an administrator, as long as this object
/// lives.
class UnreadableFile final {
  public:
    explicit UnreadableFile(const QString &path);
    ~UnreadableFile();
    UnreadableFile(const UnreadableFile &) = delete;
    UnreadableFile &operator=(const UnreadableFile &) = delete;

  private:
    QString path_;
    /// What the system needs to keep it so.
    [[maybe_unused]] void *held_ = nullptr;
};

/// Makes the folder `path` one that was changed at `time` for the last time.
void set_folder_time(const QString &path, const QDateTime &time);
