#include <QStringDecoder>

#include "platform/code_page.h"

namespace code_page {

std::array<char16_t, 256> system_table() {
    std::array<char16_t, 256> table{};
    for (size_t byte = 0; byte < table.size(); ++byte) {
        // One decoder a byte: an error in one must not colour the next.
        QStringDecoder decoder("windows-1250");
        if (!decoder.isValid())
            qFatal("This Qt was built without ICU and does not know windows-1250.");
        const char one = static_cast<char>(byte);
        const QString character = decoder(QByteArrayView(&one, 1));
        Q_ASSERT(character.size() == 1);
        table[byte] = character.front().unicode();
    }
    return table;
}

}  // namespace code_page
