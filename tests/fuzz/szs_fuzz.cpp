// Feeds arbitrary bytes to the readers of word lists and of recent files. Whatever they read is written again as a file
// that reads the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz/expanded.h"
#include "platform/names_in_files.h"
#include "wordlist/recent_files.h"
#include "wordlist/szs_file.h"

namespace {

void check_recent_files(QByteArrayView bytes) {
    const auto always = [](const QString &) { return true; };
    const QStringList paths = legutóbbifájlok::olvas(bytes, always);
    if (paths.isEmpty())
        return;
    const legutóbbifájlok::írott written = legutóbbifájlok::ír(paths.first(), paths.sliced(1));
    QStringList once;
    for (const QString &path : paths) {
        if (path.size() > names_in_files::longest_line)
            std::abort();
        if (once.isEmpty() || path != paths.first())
            once.append(path);
    }
    if (!written.kimaradtak.isEmpty() || legutóbbifájlok::olvas(written.bytes, always) != once)
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray input = expanded(QByteArrayView(data, static_cast<qsizetype>(size)));
    const QByteArrayView bytes(input);
    check_recent_files(bytes);

    const QVector<szópár> pairs = szsfájl::olvas(bytes);
    const FileContent written = szsfájl::ír(pairs);

    const auto *content = std::get_if<QByteArray>(&written);
    if (!content || szsfájl::olvas(*content) != pairs)
        std::abort();
    return 0;
}
