#include "help/pack.h"

#include <QDir>
#include <QUrl>
#include <optional>
#include <utility>

#include "help/joined_document.h"
#include "help/web_archive.h"

using namespace Qt::StringLiterals;

namespace help {

const QString archive_name = u"Kavaro súgó.mht"_s;

namespace {

const QString contents_file = u"tartalom.txt"_s;
const QString first_page = u"index.html"_s;

struct Contents {
    QStringList pages;
    QStringList beside;
};

std::variant<Contents, Failure> parse_contents(const QByteArray &bytes) {
    const auto at = [](qsizetype line, const QString &what) { return failure_at(contents_file, line, what); };
    Contents contents;
    const QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString name = lines[i].trimmed();
        if (name.isEmpty() || name.startsWith(u'#'))
            continue;
        const QString mark = u"mellette:"_s;
        const bool lies_beside = name.startsWith(mark);
        if (lies_beside)
            name = name.mid(mark.size()).trimmed();
        if (!is_plain_name(name) || !name.endsWith(u".html"_s) || name != name.toLower())
            return at(i + 1, u"ez nem lehet egy lap neve: „%1”"_s.arg(name));
        if (contents.pages.contains(name) || contents.beside.contains(name))
            return at(i + 1, u"a lap már szerepel: „%1”"_s.arg(name));
        (lies_beside ? contents.beside : contents.pages).append(name);
    }
    if (contents.pages.value(0) != first_page)
        return Failure{u"%1: az első lap nem „%2”."_s.arg(contents_file, first_page)};
    return contents;
}

class Packer final {
  public:
    Packer(const QString &folder, const QString &output_folder) : folder_(folder), output_(output_folder) {}

    std::optional<Failure> read() {
        const FileContent list = files::read_whole(folder_.filePath(contents_file));
        if (const auto *failure = std::get_if<Failure>(&list))
            return *failure;
        auto contents = parse_contents(std::get<QByteArray>(list));
        if (const auto *failure = std::get_if<Failure>(&contents))
            return *failure;
        contents_ = std::get<Contents>(std::move(contents));
        for (const QString &name : folder_.entryList({u"*.html"_s}, QDir::Files)) {
            if (!contents_.pages.contains(name) && !contents_.beside.contains(name))
                return Failure{u"%1: hiányzik belőle a „%2” lap."_s.arg(contents_file, name)};
        }
        for (const QString &name : contents_.pages) {
            if (auto failure = read_page(name))
                return failure;
        }
        for (const QString &name : contents_.beside) {
            if (auto failure = read_page_beside(name))
                return failure;
        }
        return std::nullopt;
    }

    std::variant<Packed, Failure> write() {
        auto document = joined(pages_, contents_.beside);
        if (const auto *failure = std::get_if<Failure>(&document))
            return *failure;
        const auto &whole = std::get<Document>(document);
        QVector<Part> parts{{first_page, "text/html", whole.html}};
        if (!whole.style_sheet.isEmpty()) {
            if (auto failure = add_style_sheet(whole.style_sheet, parts))
                return *failure;
        }
        for (const QString &picture : whole.pictures) {
            if (auto failure = add_picture(picture, parts))
                return *failure;
        }
        written_.append({archive_name, web_archive(parts)});
        output_.mkpath(u"."_s);
        for (const auto &[name, bytes] : written_) {
            if (auto failure = files::replace_whole(output_.filePath(name), bytes))
                return *failure;
        }
        return Packed{pages_.size(), whole.pictures.size()};
    }

  private:
    std::optional<Failure> read_page(const QString &name) {
        const FileContent bytes = files::read_whole(folder_.filePath(name));
        if (const auto *failure = std::get_if<Failure>(&bytes))
            return *failure;
        auto page = parse_page(std::get<QByteArray>(bytes), name);
        if (const auto *failure = std::get_if<Failure>(&page))
            return *failure;
        pages_.append(std::get<Page>(std::move(page)));
        return std::nullopt;
    }

    std::optional<Failure> read_page_beside(const QString &name) {
        const FileContent bytes = files::read_whole(folder_.filePath(name));
        if (const auto *failure = std::get_if<Failure>(&bytes))
            return *failure;
        const auto result = parse_page(std::get<QByteArray>(bytes), name, OwnStyle::allowed);
        if (const auto *failure = std::get_if<Failure>(&result))
            return *failure;
        const auto &page = std::get<Page>(result);
        if (!page.style_sheet.isEmpty())
            return Failure{u"%1: a dokumentum mellett nincs stíluslap."_s.arg(name)};
        for (const Token &token : page.body) {
            if (token.name == u"img")
                return failure_at(name, token.line, u"a dokumentum mellett nincsenek képek"_s);
            const QString link = token.attribute(u"href");
            if (!link.isNull() && !is_web_address(link) && QUrl(link).path() != archive_name)
                return failure_at(name, token.line, u"a hivatkozás nem vezet sehová: „%1”"_s.arg(link));
        }
        written_.append({name, std::get<QByteArray>(bytes)});
        return std::nullopt;
    }

    std::optional<Failure> add_style_sheet(const QString &name, QVector<Part> &parts) const {
        const FileContent bytes = files::read_whole(folder_.filePath(name));
        if (const auto *failure = std::get_if<Failure>(&bytes))
            return *failure;
        const auto &style = std::get<QByteArray>(bytes);
        if (!is_plain_name(name) || style.contains("url(") || style.contains("@import"))
            return Failure{u"%1: a stíluslap nem hivatkozhat más fájlra."_s.arg(name)};
        parts.append({name, "text/css", style});
        return std::nullopt;
    }

    std::optional<Failure> add_picture(const QString &path, QVector<Part> &parts) const {
        const QString ending = path.section(u'.', -1).toLower();
        QByteArray type;
        if (ending == u"png" || ending == u"gif")
            type = "image/" + ending.toLatin1();
        else if (ending == u"jpg" || ending == u"jpeg")
            type = "image/jpeg";
        else if (ending == u"svg")
            type = "image/svg+xml";
        else
            return Failure{u"„%1”: ilyen fajta kép nem lehet a súgóban."_s.arg(path)};
        FileContent bytes = files::read_whole(folder_.filePath(path));
        if (const auto *failure = std::get_if<Failure>(&bytes))
            return *failure;
        parts.append({path, type, std::get<QByteArray>(std::move(bytes))});
        return std::nullopt;
    }

    const QDir folder_;
    const QDir output_;
    Contents contents_;
    QVector<Page> pages_;
    QVector<QPair<QString, QByteArray>> written_;
};

}  // namespace

std::variant<Packed, Failure> pack(const QString &folder, const QString &output_folder) {
    Packer packer(folder, output_folder);
    if (auto failure = packer.read())
        return *failure;
    return packer.write();
}

}  // namespace help
