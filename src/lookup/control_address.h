#pragma once

#include <QUrl>

/// The address that a text of the browser control stands for: it writes a path of the system for one file, an address
/// for another, and for a part of a web archive "mhtml:", the archive, "!" and the part's own name. What is in an
/// archive counts as the archive.
[[nodiscard]] QUrl address_of_control(const QString &text);

/// Part of a page and no step to another address: what frames are made of besides addresses, and the blank page that
/// the control shows before the first one.
[[nodiscard]] bool is_part_of_page(const QUrl &address, bool whole_window);
