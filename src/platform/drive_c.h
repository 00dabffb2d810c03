#pragma once

#include <QString>

/// The drive C on which the program's fixed places lie, such as "c:\zbrmkfnh.ini". Where the system has no such drive,
/// it is one folder of the user.
class DriveC final {
  public:
    /// A drive whose root is the folder `root`.
    explicit DriveC(QString root);

    /// The drive of the user who runs the program: the folder that the environment's ZIMBORA_C names, else the
    /// system's own place for it (root_of_this_user()).
    [[nodiscard]] static DriveC of_this_user();

    /// The real path of a fixed place, which must begin with "c:\". The file need not exist.
    [[nodiscard]] QString path(QStringView fixed_place) const;

    /// Makes the root folder if it is missing; false when that fails.
    [[nodiscard]] bool make_root() const;

  private:
    /// One source a system.
    [[nodiscard]] static QString root_of_this_user();

    QString root_;
};
