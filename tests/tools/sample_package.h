#pragma once

#include <zlib.h>

#include <QByteArray>
#include <QByteArrayList>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

/// A FreeDict package made by a test, sound unless the test makes it otherwise. Every text is UTF-8.
class SamplePackage final {
  public:
    /// Adds an entry as it stands in the data, e.g. "apple /ˈapəl/\nalma\n".
    SamplePackage &add(const QByteArray &index_word, const QByteArray &definition) {
        words_.append(index_word);
        definitions_.append(definition);
        return *this;
    }
    SamplePackage &add(const QByteArray &definition) {
        return add(definition.left(definition.indexOf(" /")), definition);
    }
    /// The number that the description states; by default the true one.
    SamplePackage &state(qsizetype headwords) {
        stated_ = headwords;
        return *this;
    }
    /// Replaces a part of the description.
    SamplePackage &describe(const QByteArray &part, const QByteArray &by) {
        description_.replace(part, by);
        return *this;
    }

    [[nodiscard]] QByteArray index() const {
        QByteArray index = line("00databaseinfo", 0, description().size());
        qsizetype offset = description().size();
        for (qsizetype i = 0; i < words_.size(); ++i) {
            index += line(words_[i], offset, definitions_[i].size());
            offset += definitions_[i].size();
        }
        return index;
    }
    [[nodiscard]] QByteArray data() const { return description() + definitions_.join(); }

    /// Writes the files `name`.index and `name`.dict.dz into `folder`.
    void write(const QString &folder, const QString &name) const {
        put(QDir(folder).filePath(name + u".index"_s), index());
        put(QDir(folder).filePath(name + u".dict.dz"_s), packed(data()));
    }

    static void put(const QString &path, const QByteArray &bytes) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The test cannot write its file.");
    }

    /// A gzip file with an extra field in its header, as dictzip makes it.
    [[nodiscard]] static QByteArray packed(const QByteArray &bytes) {
        z_stream stream{};
        deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
        QByteArray extra("RA\x06\x00\x01\x00\xCB\xE3\x00\x00", 10);
        gz_header header{};
        header.extra = reinterpret_cast<Bytef *>(extra.data());
        header.extra_len = static_cast<uInt>(extra.size());
        deflateSetHeader(&stream, &header);
        QByteArray input = bytes;
        QByteArray gzip(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(input.size()))) + 64, '\0');
        stream.next_in = reinterpret_cast<Bytef *>(input.data());
        stream.avail_in = static_cast<uInt>(input.size());
        stream.next_out = reinterpret_cast<Bytef *>(gzip.data());
        stream.avail_out = static_cast<uInt>(gzip.size());
        deflate(&stream, Z_FINISH);
        gzip.truncate(static_cast<qsizetype>(stream.total_out));
        deflateEnd(&stream);
        return gzip;
    }

  private:
    static QByteArray base64(qsizetype number) {
        const QByteArray digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        QByteArray text(1, digits[number % 64]);
        for (number /= 64; number > 0; number /= 64)
            text.prepend(digits[number % 64]);
        return text;
    }
    static QByteArray line(const QByteArray &word, qsizetype offset, qsizetype length) {
        return word + '\t' + base64(offset) + '\t' + base64(length) + '\n';
    }
    [[nodiscard]] QByteArray description() const {
        const qsizetype stated = stated_ < 0 ? words_.size() : stated_;
        return QByteArray(description_).replace("COUNT", QByteArray::number(stated));
    }

    QByteArrayList words_;
    QByteArrayList definitions_;
    qsizetype stated_ = -1;
    QByteArray description_ =
        "Sample FreeDict Dictionary\n"
        "\n"
        "Edition: 1.2.3\n"
        "Size: COUNT headwords\n"
        "\n"
        "Availability:\n"
        "\n"
        "    Copyright (C) 2000 Somebody and\n"
        "  somebody else\n"
        "    Available under the terms of the GNU General\n"
        "  Public License ver. 2.0.\n"
        "    This program is free software.\n"
        "\n"
        "Publication date: Dec 02, 2017.\n";
};
