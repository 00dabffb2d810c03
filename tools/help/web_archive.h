#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

// A web archive (MHTML, RFC 2557): a message of several parts, of which the first is the document. Every line ends with
// CR LF, as a browser insists, and has at most 76 characters:
//
//     From: <Zimbora>
//     MIME-Version: 1.0
//     Content-Type: multipart/related;
//         type="text/html";
//         boundary="----=_Zimbora"
//
//     ------=_Zimbora
//     Content-Type: text/html; charset=utf-8
//     Content-Transfer-Encoding: quoted-printable
//     Content-Location: thismessage:/index.html
//
//     (the document)
//     ------=_Zimbora
//     Content-Type: image/png
//     Content-Transfer-Encoding: base64
//     Content-Location: thismessage:/kepek/foablak.png
//
//     (the picture)
//     ------=_Zimbora--
//
// Texts are quoted-printable, everything else is base64; neither can hold the "=_" of the boundary. The scheme
// "thismessage" stands for the archive, wherever it lies.
namespace help {

struct Part {
    /// Path within the archive, plain ASCII.
    QString path;
    QByteArray type;
    QByteArray bytes;
};

/// The archive of these parts, the first of which is its document.
[[nodiscard]] QByteArray web_archive(const QVector<Part> &parts);

}  // namespace help
