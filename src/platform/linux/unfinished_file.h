#pragma once

#include <sys/types.h>

#include <QByteArrayView>
#include <QString>

#include "platform/linux/open_file.h"

/// A file that is being written and takes another's place when it is whole. Where the file system can make one without
/// a name it has none until then, so that a killed process leaves nothing behind; elsewhere its name is one of
/// platform/unfinished_files.h. It is locked as long as this object lives, and removed when it has taken no place.
/// Functions give the error number of the system, 0 on success.
class UnfinishedFile final {
  public:
    enum class Name { later, at_once };

    /// For the file `target` of the open folder, which must outlive this object.
    UnfinishedFile(const OpenFile &folder, QString target) : folder_(folder), target_(std::move(target)) {}
    ~UnfinishedFile() { remove(); }
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;

    /// Makes the file, for which nobody but `rights` has any.
    [[nodiscard]] int make(mode_t rights, Name name);
    [[nodiscard]] int handle() const { return file_.handle(); }
    /// Writes `bytes` and waits until the disk has them.
    [[nodiscard]] int fill(QByteArrayView bytes);
    /// Gives it its name, if it has none yet.
    [[nodiscard]] int name_it();
    /// Puts it in the place of the target. After that nothing is removed any more.
    [[nodiscard]] int take_place();

    /// Removes what processes that have ended have left in the folder for this target, and which belongs to this user.
    static void remove_left(const OpenFile &folder, const QString &target);

  private:
    [[nodiscard]] int make_named(mode_t rights);
    void remove();

    const OpenFile &folder_;
    const QString target_;
    QByteArray name_;
    OpenFile file_;
};
