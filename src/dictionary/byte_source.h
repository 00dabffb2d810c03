#pragma once

#include <QFile>
#include <QString>
#include <QtGlobal>

/// Bytes that are read from any place. A dictionary is one of them: it is searched where it lies and never loaded.
class ByteSource {
  public:
    virtual ~ByteSource() = default;

    /// Length in bytes.
    [[nodiscard]] virtual qint64 size() const = 0;

    /// Reads up to `most` bytes from the byte offset `from` (counted from 0) into `to` and returns how many came; 0 at
    /// the end and when reading fails, so that a damaged file merely seems shorter.
    [[nodiscard]] virtual qint64 read(qint64 from, char *to, qint64 most) = 0;
};

/// A file, without any buffer of its own: what is asked for is what is read.
class FileSource final : public ByteSource {
  public:
    /// Opens the file `path`; is_open() tells whether that went well. Only an ordinary file is opened.
    explicit FileSource(const QString &path);

    [[nodiscard]] bool is_open() const { return file_.isOpen(); }
    [[nodiscard]] qint64 size() const override { return size_; }
    [[nodiscard]] qint64 read(qint64 from, char *to, qint64 most) override;

  private:
    QFile file_;
    qint64 size_ = 0;
};
