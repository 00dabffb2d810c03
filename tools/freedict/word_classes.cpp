#include "freedict/word_classes.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr int sizes[] = {10, 20, 35, 40, 50, 55, 60, 70, 80};
constexpr const char *kinds[] = {"english-words", "british-words", "american-words", "english-upper", "british-upper"};

}  // namespace

std::variant<WordClasses, Failure> WordClasses::read(const QString &folder) {
    WordClasses classes;
    for (const int size : sizes) {
        for (const char *kind : kinds) {
            const QString path =
                QDir(folder).filePath(u"%1.%2"_s.arg(QString::fromLatin1(kind), QString::number(size)));
            // Not every kind has a list of every size.
            if (!classes.classes_.isEmpty() && !files::exists(path))
                continue;
            const FileContent content = files::read_whole(path);
            if (const auto *failure = std::get_if<Failure>(&content))
                return *failure;
            for (const QByteArray &line : std::get<QByteArray>(content).split('\n')) {
                const QString word = QString::fromLatin1(line).toLower();
                if (!classes.classes_.contains(word))
                    classes.classes_.insert(word, size);
            }
        }
    }
    return classes;
}

int WordClasses::of_rarest(const QString &text) const {
    int rarest = 0;
    for (const QString &word : words_of(text, Language::english)) {
        if (word != verb_mark)
            rarest = std::max(rarest, of(word));
    }
    return rarest == 0 ? unknown : rarest;
}

}  // namespace freedict
