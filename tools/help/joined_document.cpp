#include "help/joined_document.h"

#include <QMap>
#include <optional>

using namespace Qt::StringLiterals;

namespace help {
namespace {

const QString contents_key = u"tartalom"_s;

/// Elements that HTML closes itself.
bool is_void(QStringView name) {
    return name == u"br" || name == u"hr" || name == u"img" || name == u"col" || name == u"wbr";
}

QString written(const QString &name, const QString &value) {
    return u' ' + name + u"=\""_s + value.toHtmlEscaped() + u'"';
}

/// The texts of the headings with an id, in order.
QVector<QPair<QString, QString>> chapters_of(const Page &page) {
    QVector<QPair<QString, QString>> chapters;
    bool inside = false;
    for (const Token &token : page.body) {
        if (token.name == u"h2")
            inside = token.kind == Token::Kind::start && !token.attribute(u"id").isNull();
        if (token.name == u"h2" && inside)
            chapters.append({token.attribute(u"id"), {}});
        else if (inside)
            chapters.back().second += token.text;
    }
    return chapters;
}

class Joiner final {
  public:
    Joiner(const QVector<Page> &pages, const QStringList &beside) : pages_(pages), beside_(beside) {}

    std::variant<Document, Failure> join() {
        for (const Page &page : pages_) {
            if (auto failure = note(page))
                return *failure;
        }
        document_.style_sheet = pages_.front().style_sheet;
        begin();
        for (const Page &page : pages_) {
            if (auto failure = add(page))
                return *failure;
        }
        out_ += u"</body>\n</html>\n"_s;
        document_.html = out_.toUtf8();
        return document_;
    }

  private:
    std::optional<Failure> note(const Page &page) {
        auto ids = ids_of(page);
        if (const auto *failure = std::get_if<Failure>(&ids))
            return *failure;
        if (page.key() == contents_key)
            return Failure{u"A lap neve nem lehet „%1”."_s.arg(page.name)};
        if (page.style_sheet != pages_.front().style_sheet)
            return Failure{u"%1: a lap stíluslapja más, mint a címlapé."_s.arg(page.name)};
        ids_.insert(page.name, std::get<QStringList>(ids));
        return std::nullopt;
    }

    void begin() {
        out_ = u"<!DOCTYPE html>\n<html lang=\"hu\">\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"_s.arg(
            pages_.front().title.toHtmlEscaped());
        if (!document_.style_sheet.isEmpty())
            out_ += u"<link rel=\"stylesheet\"%1>\n"_s.arg(written(u"href"_s, document_.style_sheet));
        out_ += u"</head>\n<body>\n"_s;
    }

    std::optional<Failure> add(const Page &page) {
        out_ += u"<section class=\"lap\" id=\"%1\">"_s.arg(page.key());
        for (const Token &token : page.body) {
            if (auto failure = add(page, token))
                return failure;
        }
        const bool first = &page == &pages_.front();
        if (first)
            add_contents();
        else
            out_ += u"<p class=\"tartalomhoz\"><a href=\"#%1\">Vissza a tartalomhoz</a></p>\n"_s.arg(contents_key);
        out_ += u"</section>\n"_s;
        return std::nullopt;
    }

    std::optional<Failure> add(const Page &page, const Token &token) {
        if (token.kind == Token::Kind::text) {
            out_ += token.text.toHtmlEscaped();
        } else if (token.kind == Token::Kind::end) {
            out_ += is_void(token.name) ? QString() : u"</%1>"_s.arg(token.name);
        } else {
            out_ += u'<' + token.name;
            for (const auto &[name, value] : token.attributes) {
                if (auto failure = add(page, token, name, value))
                    return failure;
            }
            out_ += u'>';
        }
        if (token.kind == Token::Kind::start && token.name == u"img")
            return add_picture(page, token);
        return std::nullopt;
    }

    std::optional<Failure> add(const Page &page, const Token &token, const QString &name, const QString &value) {
        QString address = value;
        if (name == u"id") {
            address = page.key() + u'.' + value;
        } else if (name == u"href") {
            auto place = target(page, value);
            if (!place)
                return failure_at(page.name, token.line, u"a hivatkozás nem vezet sehová: „%1”"_s.arg(value));
            address = *place;
        }
        out_ += written(name, address);
        return std::nullopt;
    }

    /// Where a link of a page leads in the document; nothing when it leads nowhere.
    [[nodiscard]] std::optional<QString> target(const Page &page, const QString &link) const {
        if (is_web_address(link) || beside_.contains(link))
            return link;
        const QString name = link.startsWith(u'#') ? page.name : link.section(u'#', 0, 0);
        const auto ids = ids_.constFind(name);
        if (ids == ids_.constEnd())
            return std::nullopt;
        const QString key = u'#' + name.section(u'.', 0, 0);
        if (!link.contains(u'#'))
            return key;
        const QString id = link.section(u'#', 1);
        return ids->contains(id) ? std::optional(key + u'.' + id) : std::nullopt;
    }

    std::optional<Failure> add_picture(const Page &page, const Token &token) {
        const QString path = token.attribute(u"src");
        if (token.attribute(u"alt").isNull())
            return failure_at(page.name, token.line, u"a képnek nincs leírása (alt): „%1”"_s.arg(path));
        for (const QString &step : path.split(u'/')) {
            if (!is_plain_name(step) || step.startsWith(u'.'))
                return failure_at(page.name, token.line, u"a kép neve nem megfelelő: „%1”"_s.arg(path));
        }
        if (!document_.pictures.contains(path))
            document_.pictures.append(path);
        return std::nullopt;
    }

    void add_contents() {
        out_ += u"<nav id=\"%1\">\n<h2>Tartalom</h2>\n<ol>\n"_s.arg(contents_key);
        for (const Page &page : pages_) {
            if (&page == &pages_.front())
                continue;
            out_ += u"<li>%1"_s.arg(contents_link(page.key(), page.title));
            const auto chapters = chapters_of(page);
            if (!chapters.isEmpty())
                out_ += u"\n<ul>\n"_s;
            for (const auto &[id, text] : chapters)
                out_ += u"<li>%1</li>\n"_s.arg(contents_link(page.key() + u'.' + id, text.simplified()));
            if (!chapters.isEmpty())
                out_ += u"</ul>\n"_s;
            out_ += u"</li>\n"_s;
        }
        out_ += u"</ol>\n</nav>\n"_s;
    }

    static QString contents_link(const QString &place, const QString &text) {
        return u"<a href=\"#%1\">%2</a>"_s.arg(place, text.toHtmlEscaped());
    }

    const QVector<Page> &pages_;
    const QStringList &beside_;
    QMap<QString, QStringList> ids_;
    Document document_;
    QString out_;
};

}  // namespace

std::variant<Document, Failure> joined(const QVector<Page> &pages, const QStringList &beside) {
    Q_ASSERT(!pages.isEmpty());
    return Joiner(pages, beside).join();
}

bool is_web_address(QStringView address) {
    return address.startsWith(u"https://") || address.startsWith(u"http://");
}

std::variant<QStringList, Failure> ids_of(const Page &page) {
    QStringList ids;
    for (const Token &token : page.body) {
        const QString id = token.attribute(u"id");
        if (id.isNull())
            continue;
        if (!is_plain_name(id) || id.contains(u'.'))
            return failure_at(page.name, token.line, u"az azonosító nem megfelelő: „%1”"_s.arg(id));
        if (ids.contains(id))
            return failure_at(page.name, token.line, u"az azonosító már szerepel a lapon: „%1”"_s.arg(id));
        ids.append(id);
    }
    return ids;
}

}  // namespace help
