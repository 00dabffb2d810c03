#include "help/help_page.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace help {
namespace {

/// Reads a page and stops at the first thing that is not as it should be.
class PageReader final {
  public:
    PageReader(const QByteArray &bytes, const QString &name, OwnStyle own_style)
        : reader_(bytes), own_style_(own_style), page_{name, {}, {}, {}} {}

    std::variant<Page, Failure> read() {
        while (!failure_ && !reader_.atEnd())
            take(reader_.readNext());
        if (!failure_ && reader_.hasError())
            fail(u"a lap nem jól formált (%1)"_s.arg(reader_.errorString()));
        if (!failure_ && page_.title.isEmpty())
            fail(u"a lapnak nincs címe (title)"_s);
        if (!failure_ && !has_body_)
            fail(u"a lapnak nincs törzse (body)"_s);
        if (failure_)
            return *failure_;
        return std::move(page_);
    }

  private:
    void fail(const QString &what) { failure_ = failure_at(page_.name, reader_.lineNumber(), what); }

    void take(QXmlStreamReader::TokenType type) {
        if (type == QXmlStreamReader::StartElement)
            start();
        else if (type == QXmlStreamReader::EndElement)
            end();
        else if (type == QXmlStreamReader::Characters && in_body_)
            page_.body.append({Token::Kind::text, {}, {}, reader_.text().toString(), reader_.lineNumber()});
    }

    void start() {
        const QString name = reader_.name().toString();
        if (name == u"body")
            in_body_ = has_body_ = true;
        else if (in_body_)
            body_element(name);
        else if (name != u"html" && name != u"head" && name != u"meta")
            head_element(name);
    }

    void head_element(const QString &name) {
        if (name == u"title") {
            page_.title = reader_.readElementText().simplified();
        } else if (name == u"style" && own_style_ == OwnStyle::allowed) {
            reader_.skipCurrentElement();
        } else if (name == u"link" && reader_.attributes().value(u"rel"_s) == u"stylesheet" &&
                   page_.style_sheet.isEmpty()) {
            page_.style_sheet = reader_.attributes().value(u"href"_s).toString();
        } else {
            fail(u"„%1” elem itt nem lehet"_s.arg(name));
        }
    }

    void body_element(const QString &name) {
        static const QStringList refused{u"script"_s, u"style"_s, u"link"_s, u"iframe"_s, u"object"_s,
                                         u"embed"_s,  u"form"_s,  u"base"_s, u"meta"_s};
        if (refused.contains(name)) {
            fail(u"„%1” elem itt nem lehet"_s.arg(name));
            return;
        }
        Token token{Token::Kind::start, name, {}, {}, reader_.lineNumber()};
        for (const QXmlStreamAttribute &one : reader_.attributes()) {
            const QString attribute = one.name().toString();
            if (attribute.startsWith(u"on"_s)) {
                fail(u"a lapon nem futhat program („%1”)"_s.arg(attribute));
                return;
            }
            token.attributes.append({attribute, one.value().toString()});
        }
        page_.body.append(std::move(token));
    }

    void end() {
        if (reader_.name() == u"body")
            in_body_ = false;
        else if (in_body_)
            page_.body.append({Token::Kind::end, reader_.name().toString(), {}, {}, reader_.lineNumber()});
    }

    QXmlStreamReader reader_;
    const OwnStyle own_style_;
    Page page_;
    bool in_body_ = false;
    bool has_body_ = false;
    std::optional<Failure> failure_;
};

}  // namespace

QString Token::attribute(QStringView wanted) const {
    for (const auto &[one, value] : attributes) {
        if (one == wanted)
            return value.isNull() ? u""_s : value;
    }
    return {};
}

std::variant<Page, Failure> parse_page(const QByteArray &bytes, const QString &name, OwnStyle own_style) {
    return PageReader(bytes, name, own_style).read();
}

bool is_plain_name(QStringView name) {
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](QChar letter) {
        return letter.unicode() < 128 &&
               (letter.isLetterOrNumber() || letter == u'-' || letter == u'_' || letter == u'.');
    });
}

Failure failure_at(const QString &page, qint64 line, const QString &what) {
    return {u"%1, %2. sor: %3."_s.arg(page, QString::number(line), what)};
}

}  // namespace help
