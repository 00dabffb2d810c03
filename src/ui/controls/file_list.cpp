#include "ui/controls/file_list.h"

#include <QCollator>
#include <QDir>
#include <QLocale>
#include <QSignalBlocker>
#include <algorithm>

FileListBox::FileListBox(const QString &pattern, QWidget *parent) : ListBox(parent), pattern_(pattern) {}

void FileListBox::set_folder(const QString &folder) {
    folder_ = folder;
    refresh();
}

void FileListBox::refresh() {
    QStringList names;
    // A pipe passes for a file there, as a device would.
    for (const QFileInfo &file : QDir(folder_).entryInfoList({pattern_}, QDir::Files, QDir::Name)) {
        // A separator of folders in a name, of whichever system, would lead elsewhere when the name is read from a
        // file.
        if (file.isFile() && !file.fileName().contains(u'\\'))
            names.append(file.fileName());
    }
    const QCollator alphabet(QLocale(QLocale::Hungarian, QLocale::Hungary));
    std::stable_sort(names.begin(), names.end(), alphabet);
    set_items(names);
}

void FileListBox::refresh_keeping_selection() {
    const QString name = file_name();
    refresh();
    const QSignalBlocker silence(this);
    select(static_cast<int>(items().indexOf(name)));
}

QString FileListBox::file_name() const {
    return selected() < 0 ? QString() : item(selected());
}

QString FileListBox::path_of(const QString &name) const {
    return folder_ + u'/' + name;
}
