#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>
#include <variant>

#include "platform/files.h"

// A page of the help, in HTML that is well-formed XML: every element is closed (`<br/>`, `<img …/>`), attributes have
// quotation marks, letters are written as they are, in UTF-8 (`ő`, `–`; a blank that does not break as `&#160;`), and
// only `&amp;`, `&lt;`, `&gt;` and `&quot;` are needed. It looks the same in any browser:
//
//     <!DOCTYPE html>
//     <html lang="hu">
//     <head>
//     <meta charset="utf-8"/>
//     <title>A főablak</title>
//     <link rel="stylesheet" href="sugo.css"/>
//     </head>
//     <body>
//     <h1>A főablak</h1>
//     <h2 id="kereses">Keresés</h2>
//     <p>Lásd a <a href="tanulas.html#kezdes">tanulást</a>.</p>
//     <p><img src="kepek/foablak.png" alt="A főablak az apple szó jelentéseivel"/></p>
//     </body>
//     </html>
//
// - A page is named in small letters without accents: `foablak.html`. Its title stands in the table of contents, and
//   below it each `<h2>` that has an id.
// - An id is of letters without accents, digits, "-" and "_"; it need only be the one of its name on its own page.
// - A link leads to a page (`tanulas.html`), to a place on one (`tanulas.html#kezdes`, `#kereses`), to a page that lies
//   beside the help document (`keszito.html`), or to the web (`https://…`).
// - A picture lies in the folder of the pages or below it, is named by letters without accents, digits, "-", "_" and
//   ".", and is a PNG, JPEG, GIF or SVG. `alt` says in words what it shows; it may be empty for an ornament.
// - All pages have the same style sheet, which names no further file. There is no script, and no `style` element.
namespace help {

/// A piece of a page's body. Text keeps its line breaks and blanks.
struct Token {
    enum class Kind { start, end, text };

    Kind kind;
    /// Name of the element.
    QString name;
    QVector<QPair<QString, QString>> attributes;
    QString text;
    qint64 line = 0;

    /// Value of an attribute; null without it.
    [[nodiscard]] QString attribute(QStringView name) const;
};

struct Page {
    /// File name.
    QString name;
    QString title;
    /// Empty for none.
    QString style_sheet;
    QVector<Token> body;

    /// The name without its ending.
    [[nodiscard]] QString key() const { return name.section(u'.', 0, 0); }
};

/// Whether a page may carry a style of its own within it.
enum class OwnStyle { refused, allowed };

/// The page of a file's bytes; a failure, with the line, when it is not as above.
[[nodiscard]] std::variant<Page, Failure> parse_page(const QByteArray &bytes, const QString &name,
                                                     OwnStyle own_style = OwnStyle::refused);

/// True for what a page or picture may be named, an id when it has no dot.
[[nodiscard]] bool is_plain_name(QStringView name);

/// A failure at a place of a page.
[[nodiscard]] Failure failure_at(const QString &page, qint64 line, const QString &what);

}  // namespace help
