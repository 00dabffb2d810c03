#include "ui/messages/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

struct Text {
    std::string_view source;
    const char16_t *hungarian;
};

/// The file dialog's kinds of files, all of one context.
constexpr std::string_view file_kinds = "QAbstractFileIconProvider";
constexpr std::array missing_texts{Text{"Drive", u"Meghajtó"},      Text{"File", u"Fájl"},
                                   Text{"%1 File", u"%1 fájl"},     Text{"File Folder", u"Mappa"},
                                   Text{"Folder", u"Mappa"},        Text{"Alias", u"Hivatkozás"},
                                   Text{"Shortcut", u"Hivatkozás"}, Text{"Unknown", u"Ismeretlen"}};

class MissingTexts final : public QTranslator {
  public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char *context, const char *source, const char *, int) const override {
        if (context != file_kinds)
            return {};
        for (const Text &text : missing_texts) {
            if (text.source == source)
                return QString::fromUtf16(text.hungarian);
        }
        return {};
    }
};

}  // namespace

void make_toolkit_hungarian() {
    QLocale::setDefault(QLocale(QLocale::Hungarian, QLocale::Hungary));
    QCoreApplication::installTranslator(new MissingTexts(qApp));
    auto *translation = new QTranslator(qApp);
    if (translation->load(QLocale(), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translation);
}
