#include "platform/linux/clipboard_text.h"

#include <QStringDecoder>

#include "platform/code_page.h"

namespace clipboard_text {
namespace {

/// A text of which nobody says how it is written: what is no UTF-8 is taken for the program's own code page.
QString guessed(QByteArrayView bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    return utf8.hasError() ? code_page::decode(bytes) : text;
}

}  // namespace

std::optional<QString> decode(QByteArrayView kind, QByteArrayView bytes) {
    // Some owners hand over the end of their text, too.
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    if (kind == "UTF8_STRING" || kind.startsWith("text/plain;"))
        return QString::fromUtf8(bytes);
    if (kind == "text/plain" || kind == "TEXT")
        return guessed(bytes);
    if (kind == "STRING" || (kind == compound && !bytes.contains('\x1b')))
        return QString::fromLatin1(bytes);
    return std::nullopt;
}

}  // namespace clipboard_text
