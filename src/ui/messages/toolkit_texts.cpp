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
    std::string_view context;
    std::string_view source;
    const char16_t *hungarian;
};

constexpr std::string_view file_kinds = "QAbstractFileIconProvider";
/// What the toolkit's translation lacks, the file dialog's kinds of files, and what it says otherwise than the program
/// does.
constexpr std::array own_texts{Text{file_kinds, "Drive", u"Meghajtó"},      Text{file_kinds, "File", u"Fájl"},
                               Text{file_kinds, "%1 File", u"%1 fájl"},     Text{file_kinds, "File Folder", u"Mappa"},
                               Text{file_kinds, "Folder", u"Mappa"},        Text{file_kinds, "Alias", u"Hivatkozás"},
                               Text{file_kinds, "Shortcut", u"Hivatkozás"}, Text{file_kinds, "Unknown", u"Ismeretlen"},
                               Text{"QPlatformTheme", "Cancel", u"Mégsem"}};

class OwnTexts final : public QTranslator {
  public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char *context, const char *source, const char *, int) const override {
        for (const Text &text : own_texts) {
            if (text.context == context && text.source == source)
                return QString::fromUtf16(text.hungarian);
        }
        return {};
    }
};

}  // namespace

void make_toolkit_hungarian() {
    QLocale::setDefault(QLocale(QLocale::Hungarian, QLocale::Hungary));
    auto *translation = new QTranslator(qApp);
    if (translation->load(QLocale(), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translation);
    // The last one that is installed is asked first.
    QCoreApplication::installTranslator(new OwnTexts(qApp));
}
