#pragma once

#include <QStringList>

#include "help/help_page.h"

namespace help {

/// The pages as one document. A browser follows no link from one page of an archive to another, so the pages stand one
/// behind the other, each under its key, and links between them lead to places: the id `kereses` of `foablak.html` is
/// `foablak.kereses` there.
struct Document {
    QByteArray html;
    /// Empty for none.
    QString style_sheet;
    /// Paths of the pictures, from the folder of the pages, each once.
    QStringList pictures;
};

/// Joins pages, of which the first is the title page; the table of contents stands at its end. `beside` names the pages
/// that lie beside the document. A failure when a link leads to nothing or two ids of a page are the same.
[[nodiscard]] std::variant<Document, Failure> joined(const QVector<Page> &pages, const QStringList &beside);

/// True for an address of the web.
[[nodiscard]] bool is_web_address(QStringView address);

/// The ids of a page; a failure when one is not plain or not the only one of its name.
[[nodiscard]] std::variant<QStringList, Failure> ids_of(const Page &page);

}  // namespace help
