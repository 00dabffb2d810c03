#include "help/web_archive.h"

namespace help {
namespace {

constexpr const char *line_end = "\r\n";
constexpr const char *boundary = "----=_Zimbora";
constexpr qsizetype line_length = 76;

QByteArray base64(const QByteArray &bytes) {
    const QByteArray all = bytes.toBase64();
    QByteArray lines;
    for (qsizetype i = 0; i < all.size(); i += line_length)
        lines += all.mid(i, line_length) + line_end;
    return lines;
}

/// One character of quoted-printable; blanks are encoded where a line ends.
QByteArray quoted(char character, bool line_ends) {
    const auto byte = static_cast<unsigned char>(character);
    const bool blank = byte == ' ' || byte == '\t';
    if ((byte > ' ' && byte < 127 && byte != '=') || (blank && !line_ends))
        return QByteArray(1, character);
    return '=' + QByteArray(1, character).toHex().toUpper();
}

QByteArray quoted_printable(const QByteArray &text) {
    QByteArray lines;
    for (const QByteArray &line : text.split('\n')) {
        qsizetype length = 0;
        for (qsizetype i = 0; i < line.size(); ++i) {
            const QByteArray next = quoted(line[i], i + 1 == line.size());
            // The "=" that breaks a line counts, too.
            if (length + next.size() > line_length - 1) {
                lines += QByteArray("=") + line_end;
                length = 0;
            }
            lines += next;
            length += next.size();
        }
        lines += line_end;
    }
    return lines;
}

QByteArray written(const Part &part) {
    const bool text = part.type.startsWith("text/");
    QByteArray out = QByteArray("--") + boundary + line_end;
    out += "Content-Type: " + part.type + (text ? "; charset=utf-8" : "") + line_end;
    out += QByteArray("Content-Transfer-Encoding: ") + (text ? "quoted-printable" : "base64") + line_end;
    out += "Content-Location: thismessage:/" + part.path.toLatin1() + line_end;
    return out + line_end + (text ? quoted_printable(part.bytes) : base64(part.bytes));
}

}  // namespace

QByteArray web_archive(const QVector<Part> &parts) {
    QByteArray out = QByteArray("From: <Zimbora>") + line_end;
    out += QByteArray("MIME-Version: 1.0") + line_end + "Content-Type: multipart/related;" + line_end;
    out += QByteArray("\ttype=\"text/html\";") + line_end + "\tboundary=\"" + boundary + '"' + line_end + line_end;
    for (const Part &part : parts)
        out += written(part);
    return out + "--" + boundary + "--" + line_end;
}

}  // namespace help
