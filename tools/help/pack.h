#pragma once

#include <QString>
#include <variant>

#include "platform/files.h"

// The help as its writers keep it: a folder with pages (help/help_page.h), their style sheet and pictures, and the file
// `tartalom.txt`, which names the pages in their order, one in a line. Lines that are blank or begin with "#" are
// passed over. A page behind "mellette:" does not become part of the document but lies beside it, as an address of its
// own; it carries its style within it and has no pictures. Every page of the folder is named, `index.html` first:
//
//     # A súgó lapjai, ebben a sorrendben.
//     index.html
//     foablak.html
//     mellette: keszito.html
namespace help {

extern const QString archive_name;

struct Packed {
    qsizetype pages = 0;
    qsizetype pictures = 0;
};

/// Makes the help document, one web archive, of the pages in `folder`, and lays it and the pages beside it into
/// `output_folder`, which is made when it is missing. Nothing is written before all of it has been made.
[[nodiscard]] std::variant<Packed, Failure> pack(const QString &folder, const QString &output_folder);

}  // namespace help
