#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// A web archive taken apart again, by other means than the packer's.
struct ArchivePart {
    QByteArray type;
    QByteArray location;
    QByteArray bytes;
};

inline QByteArray header_of(const QByteArray &head, const QByteArray &name) {
    for (const QByteArray &line : head.split('\n')) {
        if (line.startsWith(name + ": "))
            return line.mid(name.size() + 2).trimmed();
    }
    return {};
}

inline QByteArray unquoted(QByteArray text) {
    text.replace("=\r\n", "");
    QByteArray bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '=') {
            bytes += QByteArray::fromHex(text.mid(i + 1, 2));
            i += 2;
        } else {
            bytes += text[i];
        }
    }
    return bytes.replace("\r\n", "\n");
}

/// The parts of an archive; none when it has no boundary or no end.
inline QList<ArchivePart> parts_of(const QByteArray &archive) {
    const QByteArray mark = "boundary=\"";
    const auto begin = archive.indexOf(mark);
    if (begin < 0)
        return {};
    const auto name = begin + mark.size();
    const QByteArray boundary = "--" + archive.mid(name, archive.indexOf('"', name) - name);
    if (!archive.endsWith(boundary + "--\r\n"))
        return {};
    QList<ArchivePart> parts;
    for (auto at = archive.indexOf("\r\n" + boundary + "\r\n"); at >= 0;) {
        at += boundary.size() + 4;
        const auto next = archive.indexOf("\r\n" + boundary, at);
        const QByteArray part = archive.mid(at, next - at);
        const auto blank = part.indexOf("\r\n\r\n");
        const QByteArray head = part.left(blank);
        const QByteArray body = part.mid(blank + 4);
        const bool quoted = header_of(head, "Content-Transfer-Encoding") == "quoted-printable";
        parts.append({header_of(head, "Content-Type"), header_of(head, "Content-Location"),
                      quoted ? unquoted(body) : QByteArray::fromBase64(body)});
        at = archive.indexOf("\r\n" + boundary + "\r\n", next);
    }
    return parts;
}
