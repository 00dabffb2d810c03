// Feeds arbitrary bytes to the word-list reader. Whatever it reads is written again as a file that reads the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "wordlist/szs_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));

    const QVector<szópár> pairs = szsfájl::olvas(bytes);
    const FileContent written = szsfájl::ír(pairs);

    const auto *content = std::get_if<QByteArray>(&written);
    if (!content || szsfájl::olvas(*content) != pairs)
        std::abort();
    return 0;
}
