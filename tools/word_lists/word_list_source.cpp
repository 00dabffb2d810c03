#include "word_lists/word_list_source.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <optional>

#include "wordlist/szs_file.h"

using namespace Qt::StringLiterals;

namespace word_lists {
namespace {

/// Takes the lines of one source one after the other.
class Parser final {
  public:
    /// Why the line cannot be taken, as the end of a sentence; nothing when it has been.
    [[nodiscard]] std::optional<QString> take(const QString &line) {
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            return std::nullopt;
        return source_.name.isEmpty() ? take_name(line) : take_pair(line);
    }
    [[nodiscard]] const Source &source() const { return source_; }

  private:
    [[nodiscard]] std::optional<QString> take_name(const QString &line) {
        static const QRegularExpression taken(uR"(^name: ([^\\/:*?"<>|.]+)$)"_s);
        const auto match = taken.match(line);
        if (!match.hasMatch())
            return u"nem a lista neve áll („name: …”, pont és \\ / : * ? \" < > | nélkül)."_s;
        source_.name = match.captured(1).trimmed();
        return std::nullopt;
    }

    [[nodiscard]] std::optional<QString> take_pair(const QString &line) {
        const QStringList fields = line.split(u" | "_s);
        if (fields.size() < 2 || fields.size() > 3 || fields.contains(QString()))
            return u"nem „angol | magyar” vagy „angol | magyar | indok” áll."_s;
        const szópár pair{fields[0], fields[1]};
        if (const QString obstacle = szsfájl::akadály(pair); !obstacle.isEmpty())
            return u"ez áll: %1"_s.arg(obstacle);
        if (english_.contains(pair.angol) || hungarian_.contains(pair.magyar))
            return u"olyan szó áll, amely már volt."_s;
        english_.insert(pair.angol);
        hungarian_.insert(pair.magyar);
        source_.pairs.append(pair);
        source_.reasons.append(fields.value(2));
        return std::nullopt;
    }

    Source source_;
    QSet<QString> english_;
    QSet<QString> hungarian_;
};

Failure wrong_line(const QString &file, qsizetype number, const QString &reason) {
    return {u"A(z) „%1” fájl %2. sorában %3"_s.arg(file, QString::number(number), reason)};
}

}  // namespace

std::variant<Source, Failure> parse(QByteArrayView bytes, const QString &file) {
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(bytes);
    if (decode.hasError())
        return Failure{u"A(z) „%1” fájl nem UTF-8 kódolású."_s.arg(file)};
    Parser parser;
    const QStringList lines = text.split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (const auto reason = parser.take(lines[i]))
            return wrong_line(file, i + 1, *reason);
    }
    if (parser.source().pairs.isEmpty())
        return Failure{u"A(z) „%1” fájlban nincs egyetlen pár sem."_s.arg(file)};
    return parser.source();
}

}  // namespace word_lists
