#include "lookup/control_address.h"

#include <QRegularExpression>

#include "lookup/help_address.h"

using namespace Qt::StringLiterals;

QUrl address_of_control(const QString &text) {
    static const QString archive = u"mhtml:"_s;
    if (!text.startsWith(archive, Qt::CaseInsensitive))
        return súgócímek::url(text);
    // A file name may hold a "!" too; the part's name is an address, which holds none that is not encoded.
    const QString inside = text.mid(archive.size());
    const qsizetype end = inside.lastIndexOf(u'!');
    QString file = end < 0 ? inside : inside.left(end);
    // Between the slashes of an address it has a path with backslashes.
    static const QRegularExpression not_an_address(u"^file:/*(?=[A-Za-z]:\\\\)"_s,
                                                   QRegularExpression::CaseInsensitiveOption);
    return súgócímek::url(file.remove(not_an_address));
}

bool is_part_of_page(const QUrl &address, bool whole_window) {
    const QString scheme = address.scheme();
    if (scheme == u"about")
        return !whole_window || address.path() == u"blank";
    return !whole_window && (scheme == u"data" || scheme == u"res");
}
