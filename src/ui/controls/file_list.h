#pragma once

#include <QString>

#include "ui/controls/list_box.h"

/// A list of the files of a folder whose names match a pattern such as "*.wav", in the order of the Hungarian alphabet.
/// Folders and pipes are no files, whatever their names.
class FileListBox final : public ListBox {
  public:
    explicit FileListBox(const QString &pattern, QWidget *parent = nullptr);

    /// Shows the files of `folder`; none is selected.
    void set_folder(const QString &folder);
    /// The folder; no separator at its end.
    [[nodiscard]] const QString &folder() const { return folder_; }

    /// Reads the folder again; none is selected then.
    void refresh();
    /// Reads the folder again and selects what was selected before, if it is still there, which is no new selection.
    void refresh_keeping_selection();

    /// The name of the selected file; "" when there is none.
    [[nodiscard]] QString file_name() const;
    /// The path of a file of the folder.
    [[nodiscard]] QString path_of(const QString &name) const;

  private:
    const QString pattern_;
    QString folder_;
};
